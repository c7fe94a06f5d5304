// The settings of the Round Corners action.

import * as round from "./round-step.js";
import { Pane } from "../shared/pane.js";

export class RoundPane extends Pane {
    constructor(settings, changed) {
        super("actions/round/round-pane.ui", round, settings, changed);
        this.join();
        this.fill();
    }

    join() {
        this.form.control("shape").segments = [qsTr("Rectangle"), qsTr("Circle"), qsTr("Ellipse")];
        this.segments("shape", "shape", round.SHAPES);
        this.number("radius", "radius");
        this.check("roundBackground", "background");
        this.color("roundColor", "color");
        this.number("roundBand", "band");
    }

    showValues() {
        this.form.control("shape").selectedSegment = round.SHAPES.indexOf(this.settings.shape);
        this.form.control("radius").value = this.settings.radius;
        this.form.control("roundBackground").checked = this.settings.background;
        this.form.control("roundColor").color = this.settings.color;
        this.form.control("roundBand").value = this.settings.band;
    }

    showState() {
        this.visible(["radiusLabel", "radiusHost"], this.settings.shape === "rectangle");
        for (const name of ["roundColorLabel", "roundColor", "bandLabel", "roundBand"]) {
            this.form.control(name).enabled = this.settings.background;
        }
    }
}
