// The columns of its presets, and those that it starts with; docs/presets.md has the layout. Pure but for translation.

import { movingForm, PART_COLUMNS } from "../../presets/preset-forms.js";
import { newStep, stepFrom } from "./name-steps.js";

function chain(steps) {
    return { steps: steps.map((step) => newStep(step[0], step[1])) };
}

export const presets = {
    form: Object.assign(movingForm("Rename", "what", ["files", "folders"], { StrField22: ["sidecars", "flag"] }),
                        { list: { path: "steps", columns: PART_COLUMNS, read: stepFrom } }),
    starting: () => [
        [qsTr("Date and place"),
         chain([["text", { pattern: "{taken:yyyy-MM-dd} " + qsTr("place") + " {counter:001}" }],
                ["case", { part: "extension" }]])],
        [qsTr("Clean for the web"),
         chain([["fold", { other: "-" }], ["case", { part: "both" }], ["replace", { search: " ", replacement: "-" }],
                                           ["replace", { search: "_", replacement: "-" }]])],
        [qsTr("Lower-case extensions"), chain([["case", { part: "extension" }]])],
        [qsTr("Date prefix"), chain([["text", { pattern: "{taken:yyyy-MM-dd} {name}" }]])],
        [qsTr("Number suffix"), chain([["text", { pattern: "{name} {counter:001}" }]])],
    ],
};
