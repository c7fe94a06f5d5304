// The columns of its presets, and those that it starts with; docs/presets.md has the layout. Pure but for translation.

import { UNITS } from "../../lib/measure.js";
import { writingForm } from "../../presets/preset-forms.js";
import { ATTENTION, HELD_RATIOS, MODES, PLACES } from "./crop-step.js";

const LATER_RATIOS = { "5:4": 2, "7:5": 2, "4:5": 2, custom: 2 };

function size(width, height, ratio) {
    return { mode: "size", width: width, height: height, ratio: ratio };
}

export const presets = {
    form: writingForm("Crop", "mode", MODES, {
        StrField11: ["width", "number"], StrField12: ["height", "number"], StrField13: ["unit", "text", UNITS],
        StrField14: ["percent", "number"], StrField15: ["pixels", "number"], StrField16: ["offsetX", "number"],
        StrField17: ["offsetY", "number"], StrField18: ["ratio", "text", HELD_RATIOS, LATER_RATIOS],
        StrField19: ["ratioWidth", "number"], StrField20: ["ratioHeight", "number"], StrField42: ["dpi", "number"],
        StrField22: ["position", "whole", PLACES, { [ATTENTION]: 2 }], StrField23: ["turnsRatio", "flag"],
    }, { modes: { ratio: 2 } }),
    starting: () => [
        [qsTr("Centre square 1080"), size(1080, 1080, "1:1")],
        [qsTr("3:2, 1800 × 1200"), size(1800, 1200, "3:2")],
        [qsTr("4:3, 1600 × 1200"), size(1600, 1200, "4:3")],
        [qsTr("16:9, 1920 × 1080"), size(1920, 1080, "16:9")],
        [qsTr("Trim 5%"), { mode: "percent", percent: 5 }],
    ],
};
