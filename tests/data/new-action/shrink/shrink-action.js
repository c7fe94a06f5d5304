// An action that the program does not have: what adding one takes.

import { onPictures } from "../shared/on-pictures.js";
import { ShrinkPane } from "./shrink-pane.js";
import { presets } from "./shrink-presets.js";
import * as step from "./shrink-step.js";

export const shrink = onPictures({
    name: "shrink",
    title: () => qsTr("Shrink"),
    step: step,
    pane: ShrinkPane,
    presets: presets,
    startText: (number) => qsTr("Shrink %n Picture(s)", "", number),
});
