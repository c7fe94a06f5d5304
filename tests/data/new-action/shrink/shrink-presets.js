// The columns of its presets, and those that it starts with. Pure but for translation.

import { writingForm } from "../../presets/preset-forms.js";

export const presets = {
    form: writingForm("Shrink", "", [], { StrField11: ["percent", "number"] }),
    starting: () => [[qsTr("A quarter"), { percent: 25 }]],
};
