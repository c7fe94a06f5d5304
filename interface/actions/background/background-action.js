// Background & Border: lays pictures on something and frames them.

import { count } from "../../lib/wording.js";
import { onPictures } from "../shared/on-pictures.js";
import { BackgroundPane } from "./background-pane.js";
import { presets } from "./background-presets.js";
import * as step from "./background-step.js";

export const background = onPictures({
    name: "background",
    title: () => qsTr("Background & Border"),
    step: step,
    pane: BackgroundPane,
    presets: presets,
    startText: (number) => count(number, qsTr("Frame 1 Picture"), qsTr("Frame %1 Pictures")),
});
