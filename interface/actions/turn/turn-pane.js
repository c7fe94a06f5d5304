// The settings of the Rotate & Flip action.

import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import * as turn from "./turn-step.js";
import { Pane } from "../shared/pane.js";

const QUARTERS = { turnLeft: 90, turnRight: -90, turnHalf: 180 };
const WHOLE_TURN = 360;

// The same direction within the range of the dial.
function onDial(angle) {
    if (angle > WHOLE_TURN / 2) {
        return onDial(angle - WHOLE_TURN);
    }
    return angle > -WHOLE_TURN / 2 ? Number(angle.toFixed(1)) : onDial(angle + WHOLE_TURN); // tenths, as in the field
}

// The direction of an angle; anticlockwise is positive.
function senseText(angle) {
    if (angle === 0) {
        return qsTr("No rotation");
    }
    return angle > 0 ? qsTr("↺ anticlockwise") : qsTr("↻ clockwise");
}

export class TurnPane extends Pane {
    constructor(settings, changed) {
        super("actions/turn/turn-pane.ui", turn, settings, changed);
        this.join();
        this.fill();
    }

    join() {
        for (const name of Object.keys(QUARTERS)) {
            this.form.control(name).clicked.connect(guard(name,
                                                          () => this.set("angle", onDial(this.settings.angle
                                                                                        + QUARTERS[name]))));
        }
        this.form.control("angleDial").turned.connect(guard("angleDial", (degrees) => this.set("angle", degrees)));
        this.number("angle", "angle");
        this.check("flipHorizontal", "flipHorizontal");
        this.check("flipVertical", "flipVertical");
        this.form.control("turnReset").clicked.connect(guard("turnReset", () => this.reset()));
        this.showIcons();
        shell.theme.changed.connect(guard("turn.theme", () => this.showIcons()));
    }

    // Drawn again in the colours of the appearance.
    showIcons() {
        const icons = { turnLeft: "turn-left", turnRight: "turn-right", turnHalf: "turn-half",
                        flipHorizontal: "flip-across",
                        flipVertical: "flip-down" };
        Object.keys(icons).forEach((name) => this.form.setIcon(name, icons[name]));
    }

    showValues() {
        this.form.control("flipHorizontal").checked = this.settings.flipHorizontal;
        this.form.control("flipVertical").checked = this.settings.flipVertical;
        this.form.control("angle").value = this.settings.angle;
        this.form.control("angleDial").value = this.settings.angle;
    }

    showState() {
        const before = this.filling;
        this.filling = true;
        this.form.control("angle").value = this.settings.angle;
        this.form.control("angleDial").value = this.settings.angle;
        this.filling = before;
        this.form.control("angleSense").text = senseText(this.settings.angle);
    }

    reset() {
        this.settings.angle = 0;
        this.settings.flipHorizontal = false;
        this.settings.flipVertical = false;
        this.fill();
        this.changed();
    }
}
