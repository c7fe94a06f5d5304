// The settings of the Shrink action.

import { Pane } from "../shared/pane.js";
import * as shrink from "./shrink-step.js";

export class ShrinkPane extends Pane {
    constructor(settings, changed) {
        super("actions/shrink/shrink-pane.ui", shrink, settings, changed);
        this.number("shrinkPercent", "percent");
        this.fill();
    }

    showValues() {
        this.form.control("shrinkPercent").value = this.settings.percent;
    }
}
