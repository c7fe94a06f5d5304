// The settings of the Convert action.

import { KEYWORDS, qualityText, targetNamed, targetText } from "./targets.js";
import { CONVERSION_QUALITIES } from "../../lib/types.js";
import { pixels } from "../../lib/wording.js";
import * as convert from "./convert-step.js";
import { Pane } from "../shared/pane.js";

export class ConvertPane extends Pane {
    constructor(settings, changed) {
        super("actions/convert/convert-pane.ui", convert, settings, changed);
        this.join();
        this.fill();
    }

    join() {
        this.form.setItems("target", KEYWORDS.map((keyword) => targetNamed(keyword).word), KEYWORDS);
        this.form.setItems("convertQuality", CONVERSION_QUALITIES.map(qualityText),
                           CONVERSION_QUALITIES);
        this.choice("target", "target");
        this.choice("convertQuality", "quality");
    }

    showValues() {
        this.form.chooseValue("target", this.settings.target);
        this.form.chooseValue("convertQuality", this.settings.quality);
    }

    showState() {
        this.visible(["convertQualityLabel", "convertQuality"], targetNamed(this.settings.target).quality);
        this.form.control("targetNote").text = targetText(this.settings.target);
    }

    resultText(photo, planned) {
        return pixels(planned) + ", " + planned.name;
    }
}
