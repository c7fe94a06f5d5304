// Rotate & Flip: turns pictures by any angle and mirrors them.


import { onPictures } from "../shared/on-pictures.js";
import { TurnPane } from "./turn-pane.js";
import { presets } from "./turn-presets.js";
import * as step from "./turn-step.js";

export const turn = onPictures({
    name: "turn",
    title: () => qsTr("Rotate & Flip"),
    doing: () => qsTr("Rotating"),
    step: step,
    pane: TurnPane,
    presets: presets,
    startText: (number) => qsTr("Turn %n Pictures", "", number),
});
