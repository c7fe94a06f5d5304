// What every script of the interface finds without an import, besides what interface/quorlin.d.ts has.

declare function qsTr(text: string, disambiguation?: string, count?: number): string;
declare const console: { error(...values: any[]): void; log(...values: any[]): void };
