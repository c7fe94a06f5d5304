// The columns of its presets, and those that it starts with; docs/presets.md has the layout. Pure but for translation.

import { writingForm } from "../../presets/preset-forms.js";

export const presets = {
    form: writingForm("Rotate and Flip", "", [], {
        StrField11: ["angle", "number"], StrField22: ["flipHorizontal", "flag"], StrField23: ["flipVertical", "flag"],
    }),
    starting: () => [
        [qsTr("90° anticlockwise"), { angle: 90 }],
        [qsTr("90° clockwise"), { angle: -90 }],
        [qsTr("Upside down"), { angle: 180 }],
        [qsTr("Mirrored"), { angle: 0, flipHorizontal: true }],
    ],
};
