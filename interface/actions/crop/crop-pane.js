// The settings of the Crop action.

import { guard } from "../../lib/guard.js";
import { converted, PIXEL, unitSign } from "../../lib/measure.js";
import { fill } from "../../lib/wording.js";
import * as crop from "./crop-step.js";
import { Pane } from "../shared/pane.js";
import { ResolutionRow } from "../shared/resolution-row.js";

const LENGTHS = ["width", "height", "offsetX", "offsetY"];
const CENTRE = 4;
// Initial values for a new frame by ratio.
const USUAL_RATIO = "3:2";

export class CropPane extends Pane {
    constructor(settings, changed) {
        super("actions/crop/crop-pane.ui", crop, settings, changed);
        this.services = null;
        this.planned = null;
        this.offered = null;
        this.replaced = "";
        this.join();
        this.fill();
    }

    join() {
        this.form.control("cropMode").segments = [qsTr("Ratio"), qsTr("Size"), qsTr("Trim by %"), qsTr("Trim by px")];
        this.form.control("position").names = [qsTr("Top left"), qsTr("Top"), qsTr("Top right"), qsTr("Left"),
                                               qsTr("Centre"), qsTr("Right"), qsTr("Bottom left"), qsTr("Bottom"),
                                               qsTr("Bottom right")];
        this.segments("cropMode", "mode", crop.MODES);
        this.segments("position", "position", crop.PLACES);
        this.form.control("attention").toggled.connect(guard("attention", () => this.attentionToggled()));
        this.number("cropWidth", "width");
        this.number("cropHeight", "height");
        this.number("cropPercent", "percent");
        this.number("cropPixels", "pixels");
        this.number("offsetX", "offsetX");
        this.number("offsetY", "offsetY");
        this.number("ratioWidth", "ratioWidth");
        this.number("ratioHeight", "ratioHeight");
        this.choice("ratio", "ratio");
        this.check("turnsRatio", "turnsRatio");
        this.resolution = new ResolutionRow(this);
        this.units("unit", LENGTHS);
        this.units("offsetUnit", LENGTHS);
    }

    showValues() {
        this.form.control("cropPercent").value = this.settings.percent;
        this.form.control("cropPixels").value = this.settings.pixels;
        this.form.control("turnsRatio").checked = this.settings.turnsRatio;
        this.resolution.fill();
    }

    showState() {
        const mode = this.settings.mode;
        const isBySize = mode === "size";
        this.visible(["sizeLabel", "sizeFields"], isBySize);
        this.visible(["percentLabel", "percentHost"], mode === "percent");
        this.visible(["pixelsLabel", "pixelsHost"], mode === "pixels");
        this.visible(["turnsRatio"], mode === "ratio");
        this.form.control("cropMode").selectedSegment = crop.MODES.indexOf(mode);
        this.showRatio(mode);
        this.showPlace();
        this.form.chooseValue("unit", this.settings.unit);
        this.showLength("cropWidth", this.settings.width, this.settings.unit, "");
        this.showLength("cropHeight", this.settings.height, this.settings.unit, "");
        this.resolution.show(isBySize);
    }

    showRatio(mode) {
        const ratios = mode === "ratio" ? crop.RATIOS : crop.HELD_RATIOS;
        this.visible(["ratioLabel", "ratioHost"], mode === "ratio" || mode === "size");
        if (this.offered !== ratios) {
            const words = { free: qsTr("Free"), original: qsTr("Original"), custom: qsTr("Other") };
            this.form.setItems("ratio", ratios.map((ratio) => words[ratio] || ratio), ratios);
            this.offered = ratios;
        }
        this.form.chooseValue("ratio", this.settings.ratio);
        this.visible(["ratioWidth", "ratioColon", "ratioHeight"], this.settings.ratio === "custom");
        const before = this.filling;
        this.filling = true;
        ["ratioWidth", "ratioHeight"].forEach((name) => { this.form.control(name).value = this.settings[name]; });
        this.filling = before;
    }

    // A frame that is found in each picture has no offset.
    showPlace() {
        const isFound = this.settings.position === crop.ATTENTION;
        this.form.control("position").selectedSegment = isFound ? -1 : this.settings.position;
        const before = this.filling;
        this.filling = true;
        this.form.control("attention").checked = isFound;
        this.filling = before;
        ["offsetX", "offsetY"].forEach((name) => {
            this.form.control(name).enabled = !isFound;
            this.showLength(name, this.settings[name], this.settings.unit, unitSign(this.settings.unit));
        });
        this.visible(["offsetUnit"], this.settings.mode !== "size" && this.settings.unit !== PIXEL);
        this.form.chooseValue("offsetUnit", this.settings.unit);
    }

    attentionToggled() {
        const isFound = this.form.control("attention").checked;
        if (isFound !== (this.settings.position === crop.ATTENTION)) {
            this.set("position", isFound ? crop.ATTENTION : CENTRE);
        }
    }

    adjust(field) {
        if (field === "mode") {
            this.adjustRatio();
        }
        if (this.settings.mode === "size" && field !== "position") {
            this.holdRatio(field);
        }
        this.showState();
    }

    // Pictures cannot be cropped to "Free" and "Original"; these return when nobody has chosen another one meanwhile.
    adjustRatio() {
        if (this.settings.mode === "ratio") {
            this.replaced = crop.RATIOS.indexOf(this.settings.ratio) < 0 ? this.settings.ratio : "";
            this.settings.ratio = this.replaced === "" ? this.settings.ratio : USUAL_RATIO;
        } else if (this.replaced !== "" && this.settings.ratio === USUAL_RATIO) {
            this.settings.ratio = this.replaced;
            this.replaced = "";
        }
    }

    /** Width by height to which the frame on the shown picture is held; 0 for none. */
    heldRatio() {
        const isOfPhoto = this.settings.ratio === "original" && this.photo !== null && this.photo.width > 0;
        const numbers = isOfPhoto ? this.photo : crop.numbersOf(this.settings);
        return numbers !== null && numbers.height > 0 ? numbers.width / numbers.height : 0;
    }

    // The height follows the width, unless the height was typed.
    holdRatio(field) {
        const ratio = this.heldRatio();
        if (ratio > 0 && field !== "unit" && field !== "offsetX" && field !== "offsetY") {
            const other = field === "height" ? "width" : "height";
            const value = field === "height" ? this.settings.height * ratio : this.settings.width / ratio;
            this.settings[other] = converted(value, this.settings.unit, this.settings.unit, this.dpi);
        }
    }

    // Pixels as a length in the unit of the pane.
    length(value) {
        return converted(value, PIXEL, this.settings.unit, this.dpi);
    }

    /** Shows what a picture becomes; see Pane. */
    show(photo, services) {
        this.services = services;
        this.planned = super.show(photo, services);
        return this.planned;
    }

    // Where the frame would be without offset; null if there would be none.
    unmovedFrame() {
        const unmoved = Object.assign({}, this.settings, { offsetX: 0, offsetY: 0 });
        const planned = crop.plan(this.photo, unmoved, this.services);
        return planned.status === "ready" ? planned.cut.frame : null;
    }

    /**
     * Adopts a frame that was dragged in the preview. The position stays, so that it makes sense for other sizes too;
     * so does the kind of size, if the frame was only moved.
     */
    takeFrame(rectangle) {
        if (this.photo === null || this.services === null) {
            return;
        }
        if (this.settings.position === crop.ATTENTION) {
            this.settings.position = CENTRE;
        }
        let frame = this.unmovedFrame();
        if (frame === null || frame.width !== rectangle.width || frame.height !== rectangle.height) {
            this.settings.mode = "size";
            this.settings.width = this.length(rectangle.width);
            this.settings.height = this.length(rectangle.height);
            frame = this.unmovedFrame() || rectangle;
        }
        this.settings.offsetX = this.length(rectangle.x - frame.x);
        this.settings.offsetY = this.length(rectangle.y - frame.y);
        this.fill();
        this.changed();
    }

    // The ratio that the frame keeps while it is resized.
    drawnRatio(cut) {
        if (this.settings.mode === "ratio") {
            const numbers = crop.numbersOf(this.settings);
            const isSwapped = (numbers.width > numbers.height) !== (cut.frame.width > cut.frame.height);
            return isSwapped ? numbers.height / numbers.width : numbers.width / numbers.height;
        }
        return this.settings.mode === "size" ? this.heldRatio() : 0;
    }

    /**
     * The frame on a picture, for the view: whole pixels, the ratio that is kept while it is resized (0: none), and
     * whether the view knows its position better.
     */
    frame(planned) {
        const cut = planned.cut;
        return Object.assign({ ratio: this.drawnRatio(cut), isFound: !cut.isPlaced }, cut.frame);
    }

    resultText(photo, planned) {
        const part = planned.cut.part;
        const words = planned.cut.isPlaced
            ? fill(qsTr("%1 × %2 px at %3, %4"), planned.width, planned.height, part.x, part.y)
            : fill(qsTr("%1 × %2 px"), planned.width, planned.height);
        return words + this.dpiText();
    }
}
