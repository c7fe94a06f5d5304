// The columns of its presets, and those that it starts with; docs/presets.md has the layout. Pure but for translation.

import { writingForm } from "../../presets/preset-forms.js";
import { SHAPES } from "./round-step.js";

const JPEG = "public.jpeg";

export const presets = {
    form: writingForm("Round Corners", "shape", SHAPES, {
        StrField11: ["radius", "number"], StrField12: ["color", "color"], StrField13: ["band", "number"],
        StrField22: ["background", "flag"],
    }),
    starting: () => [
        [qsTr("Soft corners"), { radius: 40 }],
        [qsTr("Round corners on white"),
         { radius: 120, background: true, color: "#ffffff", output: { fileType: JPEG } }],
        [qsTr("Circle portrait"), { shape: "circle" }],
        [qsTr("Ellipse"), { shape: "ellipse" }],
    ],
};
