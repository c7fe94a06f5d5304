// The settings of the Crop action.

import { cropFrame, largestOf, MODES, offsetsFor, ratioOf } from "./crops.js";
import { converted, PIXEL, unitSign } from "../../lib/measure.js";
import { fill, pixels } from "../../lib/wording.js";
import * as crop from "./crop-step.js";
import { Pane } from "../shared/pane.js";

const LENGTHS = ["width", "height", "offsetX", "offsetY"];

export class CropPane extends Pane {
    constructor(settings, changed) {
        super("actions/crop/crop-pane.ui", crop, settings, changed);
        this.join();
        this.fill();
    }

    join() {
        this.form.control("cropMode").segments = [qsTr("W × H"), "%", qsTr("Pixels")];
        this.form.control("position").names = [qsTr("Top left"), qsTr("Top"), qsTr("Top right"), qsTr("Left"),
                                               qsTr("Centre"), qsTr("Right"), qsTr("Bottom left"), qsTr("Bottom"),
                                               qsTr("Bottom right")];
        this.form.setItems("ratio", [qsTr("Free"), qsTr("Original")].concat(crop.RATIOS.slice(2)), crop.RATIOS);
        this.segments("cropMode", "mode", MODES);
        this.segments("position", "position", crop.PLACES);
        this.number("cropWidth", "width");
        this.number("cropHeight", "height");
        this.number("cropPercent", "percent");
        this.number("cropPixels", "pixels");
        this.number("offsetX", "offsetX");
        this.number("offsetY", "offsetY");
        this.choice("ratio", "ratio");
        this.units("unit", LENGTHS);
    }

    showValues() {
        this.form.control("cropMode").selectedSegment = MODES.indexOf(this.settings.mode);
        this.form.control("position").selectedSegment = this.settings.position;
        this.form.control("cropPercent").value = this.settings.percent;
        this.form.control("cropPixels").value = this.settings.pixels;
        this.form.chooseValue("ratio", this.settings.ratio);
        this.form.chooseValue("unit", this.settings.unit);
    }

    showState() {
        const mode = this.settings.mode;
        this.visible(["sizeLabel", "sizeFields"], mode === "size");
        this.visible(["percentLabel", "percentHost"], mode === "percent");
        this.visible(["pixelsLabel", "pixelsHost"], mode === "pixels");
        this.form.control("cropMode").selectedSegment = MODES.indexOf(mode);
        const fields = { cropWidth: "width", cropHeight: "height", offsetX: "offsetX", offsetY: "offsetY" };
        const unit = this.settings.unit;
        Object.keys(fields).forEach((name) => this.showLength(name, this.settings[fields[name]], unit, unitSign(unit)));
    }

    adjust(field) {
        if (field === "ratio" && this.settings.ratio !== "free") {
            this.useRatio();
        } else if (field === "width" || field === "height") {
            this.keepRatio(field);
        } else if (field === "mode" && this.settings.mode !== "size") {
            this.settings.ratio = "free";
            this.form.chooseValue("ratio", "free");
        }
        this.showState();
    }

    ratio() {
        return ratioOf(this.settings.ratio, this.photo !== null && this.photo.width > 0 ? this.photo : null);
    }

    // The largest frame of that ratio in the picture; without a picture only the height follows the width.
    useRatio() {
        this.settings.mode = "size";
        const ratio = this.ratio();
        if (ratio > 0 && this.photo !== null && this.photo.width > 0) {
            const size = largestOf(ratio, this.photo);
            this.settings.width = this.length(size.width);
            this.settings.height = this.length(size.height);
            this.settings.offsetX = 0;
            this.settings.offsetY = 0;
        } else {
            this.keepRatio("width");
        }
    }

    keepRatio(field) {
        const ratio = this.ratio();
        if (ratio > 0) {
            const other = field === "width" ? "height" : "width";
            const value = field === "width" ? this.settings.width / ratio : this.settings.height * ratio;
            this.settings[other] = converted(value, this.settings.unit, this.settings.unit, this.dpi);
        }
    }

    // Pixels as a length in the unit of the pane.
    length(value) {
        return converted(value, PIXEL, this.settings.unit, this.dpi);
    }

    /** Takes a frame that was dragged in the preview: the position stays, so that it makes sense for other sizes too. */
    takeFrame(rectangle) {
        if (this.photo === null) {
            return;
        }
        const offsets = offsetsFor(this.photo, rectangle, this.settings.position);
        this.settings.mode = "size";
        this.settings.width = this.length(rectangle.width);
        this.settings.height = this.length(rectangle.height);
        this.settings.offsetX = this.length(offsets.offsetX);
        this.settings.offsetY = this.length(offsets.offsetY);
        this.fill();
        this.changed();
    }

    /** The frame on a picture, for the view: whole pixels and the ratio that is kept while it is sized (0: none). */
    frame(photo, services) {
        const rectangle = cropFrame(photo, crop.forPhoto(photo, this.settings, services));
        return { x: rectangle.x, y: rectangle.y, width: rectangle.width, height: rectangle.height,
                 ratio: this.ratio() };
    }

    resultText(photo, planned) {
        return fill(qsTr("%1 at %2, %3"), pixels(planned), planned.inside.x, planned.inside.y) + this.dpiText();
    }
}
