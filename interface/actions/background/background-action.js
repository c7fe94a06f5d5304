// Background & Border: lays pictures on something and frames them.


import { onPictures } from "../shared/on-pictures.js";
import { BackgroundPane } from "./background-pane.js";
import { presets } from "./background-presets.js";
import * as step from "./background-step.js";

export const background = onPictures({
    name: "background",
    title: () => qsTr("Background & Border"),
    doing: () => qsTr("Adding background and border"),
    step: step,
    pane: BackgroundPane,
    presets: presets,
    startText: (number, settings) => (settings.frame === "none" ? qsTr("Add Background to %n Pictures", "", number)
                                                                : qsTr("Add Border to %n Pictures", "", number)),
});
