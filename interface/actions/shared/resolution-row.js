// The row of a pane that sets the resolution for lengths: that of each picture, 300 dpi, or a typed one.

import { guard } from "../../lib/guard.js";
import { PIXEL } from "../../lib/measure.js";

const PRINT_DPI = 300;
const CHOICES = ["own", "print", "typed"];

export class ResolutionRow {
    /** @param pane  has the setting dpi, 0 for each picture's own, and a form with the controls resolution and dpi */
    constructor(pane) {
        this.pane = pane;
        this.isTyped = false;
        const form = pane.form;
        form.setItems("resolution", [qsTr("Same as the picture"), qsTr("300 dpi"), qsTr("Other")], CHOICES);
        form.control("resolution").activated.connect(guard("resolution", () => this.choose(form.value("resolution"))));
        pane.number("dpi", "dpi");
    }

    choose(choice) {
        const settings = this.pane.settings;
        this.isTyped = choice === "typed";
        // A typed number starts from the resolution in use so far.
        const typed = settings.dpi > 0 ? settings.dpi : Math.max(1, Math.round(this.pane.dpi));
        this.pane.set("dpi", { own: 0, print: PRINT_DPI, typed: typed }[choice]);
        this.pane.showState();
    }

    /** Called when other settings are shown. */
    fill() {
        this.isTyped = false;
    }

    /** Shows the row where lengths are in a unit that needs it. */
    show(isUsed) {
        const form = this.pane.form;
        const settings = this.pane.settings;
        const isOn = isUsed && settings.unit !== PIXEL;
        const number = !this.isTyped && settings.dpi === PRINT_DPI ? "print" : "typed";
        const choice = settings.dpi === 0 ? "own" : number;
        form.chooseValue("resolution", choice);
        this.pane.visible(["resolutionLabel", "resolutionHost"], isOn);
        this.pane.visible(["dpi"], isOn && choice === "typed");
        if (settings.dpi > 0) {
            this.pane.showLength("dpi", settings.dpi, PIXEL, qsTr("dpi"));
        }
    }
}
