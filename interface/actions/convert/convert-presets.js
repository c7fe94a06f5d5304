// The columns of its presets, and those that it starts with; docs/presets.md has the layout. Pure but for translation.

import { writingForm } from "../../presets/preset-forms.js";
import { CONVERSION_QUALITIES } from "../../lib/types.js";
import { KEYWORDS } from "./targets.js";

export const presets = {
    form: writingForm("Convert", "target", KEYWORDS, {
        StrField11: ["quality", "text", CONVERSION_QUALITIES],
    }, { modes: { webp: 3, avif: 3, jxl: 3 } }),
    starting: () => [
        [qsTr("JPEG for everyone"), { target: "jpeg", quality: "8", output: { destination: { name: "JPEG" } } }],
        [qsTr("Small JPEG"), { target: "jpeg", quality: "5", output: { destination: { name: "JPEG" } } }],
        [qsTr("PNG with all metadata"), { target: "png", output: { destination: { name: "PNG" } } }],
        [qsTr("TIFF for printing"), { target: "tiff", output: { destination: { name: "TIFF" } } }],
        [qsTr("PDF pages"), { target: "pdf", output: { destination: { name: "PDF" } } }],
    ],
};
