// The columns of its presets, and those that it starts with; docs/presets.md has the layout. Pure but for translation.

import { writingForm } from "../../presets/preset-forms.js";
import { FITS, SIDES } from "./contact-step.js";

export const presets = {
    form: writingForm("Contact Sheet", "fit", FITS, {
        StrField11: ["paper", "word"], StrField12: ["paperWidth", "number"], StrField13: ["paperHeight", "number"],
        StrField14: ["marginTop", "number"], StrField15: ["marginRight", "number"],
        StrField16: ["marginBottom", "number"], StrField17: ["marginLeft", "number"], StrField18: ["gap", "number"],
        StrField19: ["caption", "text"], StrField20: ["captionSize", "number"], StrField42: ["header", "text"],
        StrField43: ["headerSide", "word", SIDES], StrField44: ["footer", "text"],
        StrField45: ["footerSide", "word", SIDES], StrField46: ["lineSize", "number"], StrField47: ["font", "text"],
        StrField48: ["paperColor", "color"], StrField49: ["profile", "text"],
        StrField22: ["landscape", "flag"], StrField23: ["rows", "whole"], StrField24: ["columns", "whole"],
        StrField25: ["turn", "flag"], StrField26: ["repeat", "flag"], StrField27: ["cropMarks", "flag"],
        StrField28: ["frames", "flag"], StrField29: ["dpi", "whole"], StrField30: ["quality", "whole"],
    }),
    starting: () => [
        [qsTr("Contact sheet, 20 on a page"), {}],
        [qsTr("Contact sheet, 48 on a page"), { rows: 8, columns: 6, gap: 3, captionSize: 6 }],
        [qsTr("Contact sheet on black"), { paperColor: "#1c1c1c", rows: 4, columns: 4, caption: "{name}\n{taken}" }],
        [qsTr("One on a page, with its name"), { rows: 1, columns: 1, turn: false, footer: "", captionSize: 9 }],
        [qsTr("Proofs, 2 on a page"), { rows: 2, columns: 1, caption: "{name} · {taken}", captionSize: 9, gap: 8 }],
        [qsTr("Prints of 9 × 13 cm to cut"),
         { rows: 2, columns: 2, fit: "fill", turn: true, repeat: true, cropMarks: true, caption: "", footer: "",
           marginTop: 18.5, marginBottom: 18.5, marginLeft: 15, marginRight: 15, gap: 0 }],
    ],
};
