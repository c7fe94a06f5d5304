// The settings of the Resize action. Services used: none; the step says what sizes come out.

import { shell } from "quorlin/shell";
import { guard } from "../lib/guard.js";
import { scalePercent } from "../lib/sizes.js";
import { percent, pixels } from "../lib/wording.js";
import { MOST_PERCENT, MOST_PIXELS, plan, validate } from "../steps/resize.js";

const MODES = ["width", "height", "longest", "percent", "box"];
const BOX_CONTROLS = ["boxLabel", "boxFields", "fitLabel", "boxFit"];

function resultLine(photo, planned) {
    if (photo === null || planned === null) {
        return "–";
    }
    if (planned.status !== "ready") {
        return planned.reason;
    }
    return pixels(photo) + " → " + pixels(planned) + " (" + percent(scalePercent(photo, planned)) + ")";
}

/** The pane; `settings` is the object that it reads and changes, changed() is called after each change. */
export class ResizePane {
    constructor(settings, changed) {
        this.settings = settings;
        this.changed = changed;
        this.form = shell.loadForm("panes/resize-pane.ui");
        this.filling = false;
        this.form.control("mode").segments = [qsTr("Width"), qsTr("Height"), qsTr("Longest"), "%", qsTr("Box")];
        this.form.setItems("boxFit", [qsTr("Fill the box and cut"), qsTr("Stretch to the box")], ["fill", "stretch"]);
        this.showAll();
        this.connect();
    }

    connect() {
        this.form.control("mode").chosen.connect(guard("resize.mode", (index) => {
            this.settings.mode = MODES[index];
            this.showMode();
            this.changed();
        }));
        const number = (name, field) => {
            const box = this.form.control(name);
            box.valueChanged.connect(guard("resize." + name, () => this.set(field(), box.value)));
        };
        number("value", () => this.settings.mode);
        number("boxWidth", () => "boxWidth");
        number("boxHeight", () => "boxHeight");
        this.form.control("boxFit").activated.connect(guard("resize.boxFit", () => this.set("boxFit", this.form.value("boxFit"))));
        const never = this.form.control("neverEnlarge");
        never.toggled.connect(guard("resize.neverEnlarge", () => this.set("neverEnlarge", never.checked)));
    }

    set(field, value) {
        if (!this.filling && this.settings[field] !== value) {
            this.settings[field] = value;
            this.changed();
        }
    }

    showAll() {
        this.form.control("mode").selectedSegment = MODES.indexOf(this.settings.mode);
        this.showMode();
        this.filling = true;
        this.form.control("boxWidth").value = this.settings.boxWidth;
        this.form.control("boxHeight").value = this.settings.boxHeight;
        this.form.control("neverEnlarge").checked = this.settings.neverEnlarge;
        this.form.chooseValue("boxFit", this.settings.boxFit);
        this.filling = false;
    }

    /** Shows the fields that belong to the mode. */
    showMode() {
        const mode = this.settings.mode;
        const isBox = mode === "box";
        this.form.control("valueLabel").visible = !isBox;
        this.form.control("valueHost").visible = !isBox;
        for (const name of BOX_CONTROLS) {
            this.form.control(name).visible = isBox;
        }
        if (!isBox) {
            this.showValue(mode);
        }
    }

    showValue(mode) {
        const labels = { width: qsTr("Width"), height: qsTr("Height"), longest: qsTr("Longest side"), percent: qsTr("Per cent") };
        const value = this.form.control("value");
        this.filling = true;
        this.form.control("valueLabel").text = labels[mode];
        value.accessibleName = labels[mode];
        value.maximum = mode === "percent" ? MOST_PERCENT : MOST_PIXELS;
        value.suffix = mode === "percent" ? " %" : qsTr(" px");
        value.value = this.settings[mode];
        this.filling = false;
    }

    /** Shows the size that a picture gets; photo may be null. Returns what the step plans for it, or null. */
    show(photo, services) {
        const messages = validate(this.settings);
        this.form.control("problemText").text = messages.join("\n");
        this.form.control("problemText").visible = messages.length > 0;
        const planned = photo === null || messages.length > 0 ? null : plan(photo, this.settings, services);
        this.form.control("resultText").text = resultLine(photo, planned);
        return planned;
    }
}
