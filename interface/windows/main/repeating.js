// The settings of earlier runs: restored from the log, or applied at once to the pictures added since the last run.
// Services used: files.

import { files } from "quorlin/files";
import { guard } from "../../lib/guard.js";
import { keysOf } from "../../lib/names.js";
import { completed } from "../../lib/store.js";
import { allActions } from "../../actions/actions.js";
import { newestSettings } from "../../runs/making/run-settings.js";

export class Repeating {
    /** @param window  the main window's parts: form, pictures, run, action, actionPage, isBusy(), chooseAction() */
    constructor(window) {
        this.window = window;
        this.last = newestSettings(files);
        this.done = []; // the rows of the last run, and of those that repeated it
        this.found = { of: "", any: false }; // whether there are others, in a list of that many rows
        this.goesOn = false;
        window.form.control("repeatAction").triggered.connect(guard("repeat", () => this.repeat()));
    }

    /** Called after each change of the run. */
    runChanged() {
        const run = this.window.run;
        if (run.phase === "ended" && run.keptSettings !== null && run.keptSettings !== this.last) {
            const before = this.goesOn ? this.done : [];
            this.goesOn = false;
            this.last = run.keptSettings;
            this.done = before.length === 0 ? run.ids : before.concat(run.ids);
            const isAll = before.length === 0 && run.ids.length === this.window.pictures.tickedCount;
            this.found = { of: isAll ? this.listState() : "", any: false };
        }
        this.show();
    }

    maker() {
        const last = this.last;
        const found = last === null ? undefined : allActions().find((action) => action.name === last.action);
        return found !== undefined && found.manner !== undefined && found.manner.repeats ? found : null;
    }

    later() {
        const done = keysOf(this.done);
        return this.window.pictures.tickedIds().filter((id) => !done[id]);
    }

    listState() {
        const list = this.window.pictures;
        return list.count + " " + list.tickedCount;
    }

    // Checking ten thousand rows takes a while, and this is called after each change of anything.
    hasLater() {
        const state = this.listState();
        if (this.found.of !== state) {
            this.found = { of: state, any: this.later().length > 0 };
        }
        return this.found.any;
    }

    show() {
        const entry = this.window.form.control("repeatAction");
        entry.enabled = this.maker() !== null && !this.window.isBusy() && this.hasLater();
    }

    /** Shows the action of a run with its settings; false if the action no longer exists. */
    take(kept) {
        const window = this.window;
        const action = allActions().find((each) => each.name === kept.action);
        if (action === undefined || action.step === undefined || window.isBusy()) {
            return false;
        }
        window.form.control("sideBar").currentAction = action.name;
        if (window.action !== action) {
            return false;
        }
        window.actionPage.take(completed(action.step.defaults, kept.settings));
        return true;
    }

    // Another action may have another list, so its rows are requested afterwards.
    repeat() {
        const window = this.window;
        if (this.maker() === null || window.isBusy() || !this.take(this.last)) {
            return;
        }
        const ids = this.later();
        if (ids.length > 0 && window.action.step.validate(window.settings).length === 0) {
            this.goesOn = true;
            window.run.repeat(ids);
        }
    }
}
