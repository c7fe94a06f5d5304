// The columns of its presets, and those that it starts with; docs/presets.md has the layout. Pure but for translation.

import { writingForm } from "../../presets/preset-forms.js";
import { FRAMES, GROUNDS } from "./background-step.js";

export const presets = {
    form: writingForm("Background and Border", "under", GROUNDS, {
        StrField11: ["color", "color"], StrField12: ["pattern", "text"], StrField13: ["frame", "text", FRAMES],
        StrField14: ["bandColor", "color"], StrField15: ["bandWidth", "number"],
    }),
    starting: (patterns) => [
        [qsTr("White background"), { under: "color", color: "#ffffff" }],
        [qsTr("White border"), { frame: "white" }],
        [qsTr("Black border"), { frame: "band", bandColor: "#000000", bandWidth: 40 }],
        [qsTr("Ivory mount"), { frame: "band", bandColor: "#f4f0e6", bandWidth: 160 }],
        [qsTr("On paper"), { under: "pattern", pattern: patterns + "/paper.png" }],
    ],
};
