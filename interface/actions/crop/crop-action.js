// Crop: cuts a rectangle out of pictures.


import { onPictures } from "../shared/on-pictures.js";
import { CropPane } from "./crop-pane.js";
import { presets } from "./crop-presets.js";
import * as step from "./crop-step.js";

export const crop = onPictures({
    name: "crop",
    title: () => qsTr("Crop"),
    doing: () => qsTr("Cropping"),
    step: step,
    pane: CropPane,
    presets: presets,
    startText: (number) => qsTr("Crop %n Pictures", "", number),
});
