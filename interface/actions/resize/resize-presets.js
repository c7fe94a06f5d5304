// The columns of its presets, and those that it starts with; docs/presets.md has the layout. Pure but for translation.

import { UNITS } from "../../lib/measure.js";
import { writingForm } from "../../presets/preset-forms.js";
import { BOX_FITS, MODES } from "./resize-step.js";

const JPEG = "public.jpeg";
// 10 and 15 centimetres at 300 dots per inch.
const PRINT_SHORT = 1181;
const PRINT_LONG = 1772;

function box(width, height, quality, folder) {
    return { mode: "box", boxWidth: width, boxHeight: height, boxFit: "fill", neverEnlarge: false,
             output: { fileType: JPEG, quality: quality, destination: { name: folder } } };
}

function longest(side, quality, folder) {
    return { mode: "longest", longest: side,
             output: { fileType: JPEG, quality: quality, destination: { name: folder } } };
}

export const presets = {
    form: writingForm("Resize", "mode", MODES, {
        StrField11: ["width", "number"], StrField12: ["height", "number"], StrField13: ["longest", "number"],
        StrField14: ["percent", "number"], StrField15: ["boxWidth", "number"], StrField16: ["boxHeight", "number"],
        StrField17: ["boxFit", "text", BOX_FITS, { inside: 2, pad: 2 }], StrField18: ["unit", "text", UNITS],
        StrField19: ["padColor", "color"], StrField20: ["dpi", "number"], StrField22: ["neverEnlarge", "flag"],
    }, { types: 3 }),
    starting: () => [
        [qsTr("Web 1600"), longest(1600, "8", qsTr("Web"))],
        [qsTr("Mail 1024"), longest(1024, "7", qsTr("Mail"))],
        [qsTr("Square 1080"), box(1080, 1080, "9", qsTr("Square"))],
        [qsTr("Print 15 × 10 cm, 300 dpi"), box(PRINT_LONG, PRINT_SHORT, "10", qsTr("Print"))],
        [qsTr("Print 10 × 15 cm, 300 dpi"), box(PRINT_SHORT, PRINT_LONG, "10", qsTr("Print"))],
        [qsTr("Contact thumbnails"), longest(256, "7", qsTr("Thumbnails"))],
    ],
};
