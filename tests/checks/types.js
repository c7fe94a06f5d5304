// types.js ROOT: what TypeScript says of the scripts of the interface, held against interface/quorlin.d.ts and against globals.d.ts
// beside this file, which has what a script finds without an import. Ends with 77 where TypeScript is not installed (package
// node-typescript), 1 with findings, 0 without.

"use strict";

const fs = require("fs");
const path = require("path");

function compiler() {
    try {
        return require("typescript");
    } catch (error) {
        if (error.code !== "MODULE_NOT_FOUND") {
            throw error;
        }
        console.log("skipped: TypeScript is not installed (package node-typescript)");
        return process.exit(77);
    }
}

function scriptsIn(folder) {
    return fs.readdirSync(folder, { withFileTypes: true }).reduce((found, each) => {
        const inside = path.join(folder, each.name);
        return found.concat(each.isDirectory() ? scriptsIn(inside) : [inside].filter((file) => file.endsWith(".js")));
    }, []);
}

const ts = compiler();
const root = path.resolve(process.argv[2]);
const folder = path.join(root, "interface");
const scripts = scriptsIn(folder);
const declared = [path.join(folder, "quorlin.d.ts"), path.join(__dirname, "globals.d.ts")];
const program = ts.createProgram(scripts.concat(declared), {
    allowJs: true, checkJs: true, noEmit: true, target: ts.ScriptTarget.ES2020, module: ts.ModuleKind.ES2020,
    moduleResolution: ts.ModuleResolutionKind.NodeJs, lib: ["lib.es2020.d.ts"], types: [],
});
const found = ts.getPreEmitDiagnostics(program);
for (const each of found) {
    const message = ts.flattenDiagnosticMessageText(each.messageText, " ");
    const at = each.file === undefined ? null : each.file.getLineAndCharacterOfPosition(each.start);
    console.log((at === null ? "" : `${path.relative(root, each.file.fileName)}:${at.line + 1}: `) + `${message} (TS${each.code})`);
}
console.log(`${found.length} findings in ${scripts.length} scripts`);
process.exit(found.length > 0 || scripts.length < 100 ? 1 : 0);
