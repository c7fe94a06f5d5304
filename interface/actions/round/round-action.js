// Round Corners: cuts pictures to a shape.

import { count } from "../../lib/wording.js";
import { onPictures } from "../shared/on-pictures.js";
import { RoundPane } from "./round-pane.js";
import { presets } from "./round-presets.js";
import * as step from "./round-step.js";

export const round = onPictures({
    name: "round",
    title: () => qsTr("Round Corners"),
    step: step,
    pane: RoundPane,
    presets: presets,
    startText: (number) => count(number, qsTr("Round 1 Picture"), qsTr("Round %1 Pictures")),
});
