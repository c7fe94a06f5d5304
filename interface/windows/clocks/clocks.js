// Sets the clocks of cameras: the order of the list, new names and folders follow, and no file is changed.

import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { fill, pictures } from "../../lib/wording.js";

const HOUR = 3600;
const MINUTE = 60;

function twoDigits(number) {
    return String(number).padStart(2, "0");
}

// "+1:00:30"; "" for a clock that is right.
function shiftText(seconds) {
    const whole = Math.abs(seconds);
    const parts = [Math.floor(whole / HOUR), twoDigits(Math.floor(whole / MINUTE) % 60), twoDigits(whole % 60)];
    return seconds === 0 ? "" : (seconds < 0 ? "−" : "+") + parts.join(":");
}

function cameraText(each) {
    const name = each.camera === "" ? qsTr("Unknown camera") : each.camera;
    const parts = [fill(qsTr("%1 · %2"), name, pictures(each.count))].concat(each.shift === 0 ? []
        : [shiftText(each.shift)]);
    return parts.join(" · ");
}

export class Clocks {
    /** @param list  the list of pictures */
    constructor(list) {
        this.list = list;
        this.form = shell.loadForm("windows/clocks/clocks.ui");
        this.cameras = [];
        this.chosen = "";
        const control = (name) => this.form.control(name);
        this.form.setItems("clockDirection", [qsTr("forward by"), qsTr("back by")], [1, -1]);
        control("clockCamera").activated.connect(guard("clock.camera",
                                                       () => this.choose(this.form.value("clockCamera"))));
        control("clockDirection").activated.connect(guard("clock.direction", () => this.take()));
        for (const name of ["clockHours", "clockMinutes", "clockSeconds"]) {
            control(name).valueChanged.connect(guard(name, () => this.take()));
        }
        control("clockReset").clicked.connect(guard("clock.reset", () => this.reset()));
        control("clockClose").clicked.connect(guard("clock.close", () => this.form.close()));
    }

    open() {
        this.fill();
        this.choose(this.cameras.length > 0 ? this.cameras[0].camera : "");
        this.form.show();
        this.form.control("clockCamera").setFocus();
    }

    // The cameras of the list, with what their clocks are set to.
    fill() {
        this.cameras = this.list.cameras();
        this.form.setItems("clockCamera", this.cameras.map(cameraText), this.cameras.map((each) => each.camera));
        this.form.chooseValue("clockCamera", this.chosen);
    }

    choose(camera) {
        const found = this.cameras.find((each) => each.camera === camera);
        const seconds = found === undefined ? 0 : Math.abs(found.shift);
        const control = (name) => this.form.control(name);
        this.chosen = null; // what is shown now is not accepted
        this.form.chooseValue("clockCamera", camera);
        this.form.chooseValue("clockDirection", found !== undefined && found.shift < 0 ? -1 : 1);
        control("clockHours").value = Math.floor(seconds / HOUR);
        control("clockMinutes").value = Math.floor(seconds / MINUTE) % 60;
        control("clockSeconds").value = seconds % 60;
        this.chosen = camera;
        for (const name of ["clockDirection", "clockHours", "clockMinutes", "clockSeconds"]) {
            control(name).enabled = found !== undefined;
        }
    }

    take() {
        if (this.chosen === null) {
            return;
        }
        const number = (name) => this.form.control(name).value;
        const seconds = number("clockHours") * HOUR + number("clockMinutes") * MINUTE + number("clockSeconds");
        this.list.setClockShift(this.chosen, seconds * Number(this.form.value("clockDirection")));
        this.fill();
    }

    reset() {
        this.cameras.forEach((each) => this.list.setClockShift(each.camera, 0));
        this.fill();
        this.choose(this.chosen);
    }
}
