// Watermark: puts a text or a picture over pictures.

import { onPictures } from "../shared/on-pictures.js";
import { WatermarkPane } from "./watermark-pane.js";
import { presets } from "./watermark-presets.js";
import * as step from "./watermark-step.js";

export const watermark = onPictures({
    name: "watermark",
    title: () => qsTr("Watermark"),
    doing: () => qsTr("Watermarking"),
    step: step,
    pane: WatermarkPane,
    presets: presets,
    startText: (number) => qsTr("Watermark %n Pictures", "", number),
});
