// What the panes of all actions have in common: controls joined to settings, lengths in units, and the lines that say what
// comes out.

import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { decimalsOf, dpiOf, PIXEL, UNITS, unitSign, UnitMemory } from "../../lib/measure.js";
import { pixels } from "../../lib/wording.js";

// If no picture says otherwise.
const USUAL_DPI = 300;

// Assign into nested objects in place: other code keeps references to them.
function layOver(settings, others) {
    for (const key of Object.keys(others)) {
        if (others[key] !== null && typeof others[key] === "object") {
            layOver(settings[key], others[key]);
        } else {
            settings[key] = others[key];
        }
    }
}

export class Pane {
    /**
     * @param file      the .ui file
     * @param step      says what is wrong with the settings and what comes out
     * @param settings  the object that is read and changed
     * @param changed   called after each change
     */
    constructor(file, step, settings, changed) {
        this.step = step;
        this.settings = settings;
        this.changed = changed;
        this.form = shell.loadForm(file);
        this.filling = false;
        this.photo = null;
        this.dpi = USUAL_DPI;
    }

    /** Sets one of the settings, as if the user had. */
    set(field, value) {
        if (!this.filling && this.settings[field] !== value) {
            this.settings[field] = value;
            this.adjust(field);
            this.changed();
        }
    }

    /** Called after the user changed a setting, before anybody is told: changes whatever depends on it. */
    adjust(_field) {
        this.showState();
    }

    /** Shows all settings in the controls. */
    fill() {
        this.filling = true;
        this.showValues();
        this.filling = false;
        this.showState();
    }

    /** Adopts other settings and shows them. */
    take(settings) {
        layOver(this.settings, settings);
        this.fill();
    }

    /** Adjusts settings that are shown here: files that are gone are replaced by others. */
    resolved(settings) {
        return settings;
    }

    /** Puts the settings into the controls. */
    showValues() {
        return undefined;
    }

    /** Shows, hides and labels controls as the settings require. */
    showState() {
        return undefined;
    }

    number(name, field) {
        const box = this.form.control(name);
        box.valueChanged.connect(guard(name, () => this.set(typeof field === "function" ? field() : field, box.value)));
    }

    check(name, field) {
        const box = this.form.control(name);
        box.toggled.connect(guard(name, () => this.set(field, box.checked)));
    }

    color(name, field) {
        this.form.control(name).chosen.connect(guard(name, (color) => this.set(field, color)));
    }

    /** A row of segments, or a position pad; values in their order. */
    segments(name, field, values) {
        this.form.control(name).chosen.connect(guard(name, (index) => this.set(field, values[index])));
    }

    choice(name, field) {
        this.form.control(name).activated.connect(guard(name, () => this.set(field, this.form.value(name))));
    }

    /**
     * The menu of units, for the settings that are lengths. A length stays about the same when the unit changes, and is
     * exact again when its own unit returns: converting there and back would take 1600 px for 1599.
     */
    units(name, lengths) {
        this.form.setItems(name, UNITS.map((unit) => unitSign(unit)), UNITS);
        const typed = new UnitMemory();
        this.form.control(name).activated.connect(guard(name, () => {
            const unit = this.form.value(name);
            lengths.forEach((field) => {
                this.settings[field] = typed.inUnit(field, this.settings[field], this.settings.unit, unit, this.dpi);
            });
            this.set("unit", unit);
        }));
    }

    /** Shows a length in a field with the decimals of its unit, and with its symbol if there is no menu beside it. */
    showLength(name, value, unit, sign) {
        const box = this.form.control(name);
        const before = this.filling;
        this.filling = true;
        box.decimals = decimalsOf(unit);
        box.suffix = sign === "" ? "" : " " + sign;
        box.value = value;
        this.filling = before;
    }

    visible(names, on) {
        names.forEach((name) => { this.form.control(name).visible = on; });
    }

    /** The result, in a line. */
    resultText(photo, planned) {
        return pixels(photo) + " → " + pixels(planned);
    }

    /** Shows what a picture becomes; photo may be null. Returns what the step plans for it, or null. */
    show(photo, services) {
        this.photo = photo;
        this.dpi = this.settings.dpi > 0 ? this.settings.dpi : this.ownDpi(photo, services);
        const messages = this.step.validate(this.settings);
        const planned = photo === null || messages.length > 0 ? null : this.step.plan(photo, this.settings, services);
        this.say("problemText", messages.join("\n"));
        this.showPlanned(photo, planned);
        return planned;
    }

    // The resolution stated by the picture.
    ownDpi(photo, services) {
        const isNeeded = this.settings.unit !== undefined && Boolean(services.pictures);
        return isNeeded && photo !== null && photo.width > 0 ? dpiOf(photo, services) : USUAL_DPI;
    }

    showPlanned(photo, planned) {
        const ready = planned !== null && planned.status === "ready";
        const reason = planned === null ? "–" : planned.reason;
        const losses = ready && planned.losses !== undefined ? planned.losses : [];
        // What gets lost is shown below the result.
        this.say("planNote", ready ? planned.notes.filter((note) => losses.indexOf(note) < 0).join(" ") : "");
        this.form.control("resultText").text = ready ? this.resultText(photo, planned) : reason;
    }

    say(name, text) {
        const label = this.form.control(name);
        label.text = text;
        label.visible = text !== "";
    }

    /** " (300 dpi)" if a length is given in a unit that depends on it. */
    dpiText() {
        return this.settings.unit === PIXEL ? "" : qsTr(" at %1 dpi").replace("%1", String(this.dpi));
    }
}
