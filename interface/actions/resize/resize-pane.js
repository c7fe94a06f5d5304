// The settings of the Resize action.

import { PIXEL } from "../../lib/measure.js";
import { percent, pixels } from "../../lib/wording.js";
import * as resize from "./resize-step.js";
import { Pane } from "../shared/pane.js";
import { ResolutionRow } from "../shared/resolution-row.js";

export class ResizePane extends Pane {
    constructor(settings, changed) {
        super("actions/resize/resize-pane.ui", resize, settings, changed);
        this.join();
        this.fill();
    }

    join() {
        this.form.control("mode").segments = [qsTr("Width"), qsTr("Height"), qsTr("Longest side"), "%", qsTr("Box")];
        const fits = [qsTr("Fit inside"), qsTr("Fill (crops)"), qsTr("Stretch"),
                      qsTr("Pad")];
        this.form.setItems("boxFit", fits, resize.BOX_FITS);
        this.form.control("value").maximum = resize.MOST_PIXELS;
        this.segments("mode", "mode", resize.MODES);
        this.number("value", () => this.settings.mode);
        this.number("boxWidth", "boxWidth");
        this.number("boxHeight", "boxHeight");
        this.choice("boxFit", "boxFit");
        this.color("padColor", "padColor");
        this.check("neverEnlarge", "neverEnlarge");
        this.resolution = new ResolutionRow(this);
        this.units("unit", resize.LENGTHS);
    }

    showValues() {
        this.form.control("mode").selectedSegment = resize.MODES.indexOf(this.settings.mode);
        this.form.control("neverEnlarge").checked = this.settings.neverEnlarge;
        this.form.chooseValue("boxFit", this.settings.boxFit);
        this.form.control("padColor").color = this.settings.padColor;
        this.resolution.fill();
        this.form.chooseValue("unit", this.settings.unit);
    }

    showState() {
        const mode = this.settings.mode;
        const labels = { width: qsTr("Width"), height: qsTr("Height"), longest: qsTr("Longest side"),
                         percent: qsTr("Percentage"), box: qsTr("Box") };
        this.visible(["value"], mode !== "box");
        this.visible(["boxWidth", "boxTimes", "boxHeight", "fitLabel", "boxFit"], mode === "box");
        this.visible(["padLabel", "padHost"], mode === "box" && this.settings.boxFit === "pad");
        this.visible(["unit"], mode !== "percent");
        this.resolution.show(mode !== "percent");
        this.form.control("valueLabel").text = labels[mode];
        this.form.control("value").accessibleName = labels[mode];
        this.showLength("boxWidth", this.settings.boxWidth, this.settings.unit, "");
        this.showLength("boxHeight", this.settings.boxHeight, this.settings.unit, "");
        if (mode === "percent") {
            this.showLength("value", this.settings.percent, PIXEL, "%");
        } else if (mode !== "box") {
            this.showLength("value", this.settings[mode], this.settings.unit, "");
        }
    }

    // The new width as a share of the old one; a box that is filled crops some of the picture, one that is padded adds
    // to it.
    scalePercent(photo, planned) {
        const across = planned.width / photo.width;
        const down = planned.height / photo.height;
        const fit = this.settings.mode === "box" ? this.settings.boxFit : "";
        if (fit === "pad") {
            const share = Math.min(across, down);
            return (this.settings.neverEnlarge ? Math.min(1, share) : share) * 100;
        }
        return (fit === "fill" ? Math.max(across, down) : across) * 100;
    }

    resultText(photo, planned) {
        return pixels(photo) + " → " + pixels(planned)
            + (this.settings.unit === PIXEL || this.settings.mode === "percent"
            ? " (" + percent(this.scalePercent(photo, planned)) + ")"
            : this.dpiText());
    }
}
