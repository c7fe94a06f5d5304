// Round Corners: cuts pictures to a shape.


import { onPictures } from "../shared/on-pictures.js";
import { RoundPane } from "./round-pane.js";
import { presets } from "./round-presets.js";
import * as step from "./round-step.js";

export const round = onPictures({
    name: "round",
    title: () => qsTr("Round Corners"),
    doing: () => qsTr("Rounding corners"),
    step: step,
    pane: RoundPane,
    presets: presets,
    startText: (number) => qsTr("Round the Corners of %n Pictures", "", number),
});
