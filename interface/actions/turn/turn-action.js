// Rotate & Flip: rotates pictures by any angle and mirrors them.


import { onPictures } from "../shared/on-pictures.js";
import { TurnPane } from "./turn-pane.js";
import { presets } from "./turn-presets.js";
import * as step from "./turn-step.js";

// The operation in words.
function startText(number, settings) {
    const flips = settings.flipHorizontal || settings.flipVertical;
    if (settings.angle !== 0 && flips) {
        return qsTr("Rotate and Flip %n Pictures", "", number);
    }
    if (flips) {
        return qsTr("Flip %n Pictures", "", number);
    }
    return settings.angle !== 0 ? qsTr("Rotate %n Pictures", "", number) : qsTr("Nothing to do");
}

export const turn = onPictures({
    name: "turn",
    title: () => qsTr("Rotate & Flip"),
    doing: () => qsTr("Rotating"),
    step: step,
    pane: TurnPane,
    presets: presets,
    startText: startText,
});
