// Convert: writes pictures as another file type.


import { CONVERTED_INPUT } from "../../lib/types.js";
import { onPictures } from "../shared/on-pictures.js";
import { ConvertPane } from "./convert-pane.js";
import { presets } from "./convert-presets.js";
import * as step from "./convert-step.js";

export const convert = onPictures({
    name: "convert",
    title: () => qsTr("Convert"),
    doing: () => qsTr("Converting"),
    step: step,
    pane: ConvertPane,
    presets: presets,
    takes: CONVERTED_INPUT,
    startText: (number) => qsTr("Convert %n Pictures", "", number),
});
