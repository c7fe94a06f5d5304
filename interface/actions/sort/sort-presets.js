// The columns of its presets, and those that it starts with; docs/presets.md has the layout. Pure but for translation.

import { movingForm } from "../../presets/preset-forms.js";
import { UNDATED } from "./sorting.js";
import { KINDS } from "./sort-step.js";

export const presets = {
    form: movingForm("Sort into Folders", "kind", KINDS, {
        StrField6: ["destination.kind", "text", ["beside", "folder"]], StrField8: ["destination.path", "text"],
        StrField9: ["ifTaken", "text", ["number", "skip"]], StrField11: ["pattern", "text"],
        StrField12: ["undated", "text", UNDATED],
        StrField13: ["undatedName", "text"],
    }),
    starting: () => [
        [qsTr("By year and day taken"), { pattern: "{taken:yyyy}/{taken:yyyy-MM-dd}" }],
        [qsTr("By year and month taken"), { pattern: "{taken:yyyy}/{taken:yyyy-MM}" }],
        [qsTr("By day changed"), { pattern: "{changed:yyyy-MM-dd}" }],
        [qsTr("By camera and day taken"), { pattern: "{camera}/{taken:yyyy-MM-dd}" }],
        [qsTr("By type"), { pattern: "{type}" }],
        [qsTr("By orientation"), { pattern: "{orientation}" }],
        [qsTr("By file size"), { pattern: "{size:class}" }],
        [qsTr("By start of name"), { pattern: "{name:word}" }],
    ],
};
