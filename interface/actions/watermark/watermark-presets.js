// The columns of its presets, and those that it starts with; docs/presets.md has the layout. Pure but for translation.

import { writingForm } from "../../presets/preset-forms.js";
import { MARKS } from "./watermark-step.js";

export const presets = {
    form: writingForm("Watermark", "mark", MARKS, {
        StrField11: ["text", "text"], StrField12: ["picture", "text"], StrField13: ["font", "text"],
        StrField14: ["color", "color"], StrField15: ["size", "number"], StrField16: ["pictureSize", "number"],
        StrField17: ["margin", "number"], StrField18: ["angle", "number"], StrField19: ["opacity", "number"],
        StrField22: ["position", "whole"], StrField23: ["tile", "flag"],
    }),
    starting: () => [
        [qsTr("Copyright, bottom right"), {}],
        [qsTr("Copyright, dark"), { color: "#000000", opacity: 60 }],
        [qsTr("File name"), { text: "{name}", position: 6, size: 2.5 }],
        [qsTr("Tiled draft"), { text: qsTr("DRAFT"), position: 4, size: 6, margin: 6, angle: 30, opacity: 30,
                                tile: true }],
    ],
};
