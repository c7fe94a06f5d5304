// Resize: gives pictures another size.


import { onPictures } from "../shared/on-pictures.js";
import { ResizePane } from "./resize-pane.js";
import { presets } from "./resize-presets.js";
import * as step from "./resize-step.js";

export const resize = onPictures({
    name: "resize",
    title: () => qsTr("Resize"),
    doing: () => qsTr("Resizing"),
    step: step,
    pane: ResizePane,
    presets: presets,
    startText: (number) => qsTr("Resize %n Pictures", "", number),
});
