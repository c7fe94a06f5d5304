// A watched folder: pictures that arrive in it are added to the list and processed at once, with the shown settings.
// These cannot be changed until watching ends.

import { shell } from "quorlin/shell";
import { watch } from "quorlin/watch";
import { guard } from "../../lib/guard.js";
import { emptyTable, splitPath } from "../../lib/names.js";
import { fill, pictures } from "../../lib/wording.js";

// Rows of finished pictures; older ones are removed from the list.
const MOST_ROWS = 1000;

// Why this work cannot run unattended; "" if it can.
function obstacle(action, settings) {
    const problems = action.step.validate(settings);
    if (problems.length > 0) {
        return problems[0];
    }
    const output = settings.output; // recipes specify the destination of results themselves
    if (output === undefined ? settings.simulation : output.simulation) {
        return qsTr("Pictures in a watched folder are written at once: turn the dry run off first.");
    }
    const asks = output !== undefined &&
        (output.ifTaken === "ask" || (output.ifTaken === "replace" && output.destination.kind === "source"));
    return asks
        ? qsTr("A watched folder cannot ask: choose to keep both or to skip existing files.") : "";
}

export class Watching {
    /** @param window  the main window's parts: form, pictures, action, settings, run, livePlan, input, say(text), showAll() */
    constructor(window) {
        this.window = window;
        this.reset();
        const control = (name) => window.form.control(name);
        control("watchAction").triggered.connect(guard("watch", () => this.choose()));
        control("watchStop").clicked.connect(guard("watch.stop", () => this.stop()));
        watch.arrived.connect(guard("watch.arrived", (path) => this.take(path)));
        watch.told.connect(guard("watch.told", (sentence) => window.say(sentence)));
        watch.ended.connect(guard("watch.ended", () => this.folderGone()));
    }

    reset() {
        this.name = "";
        this.waiting = [];
        this.results = emptyTable();
        this.rows = [];
        this.begun = null;
        this.done = 0;
        this.failed = 0;
    }

    isOn() {
        return watch.folder !== "";
    }

    choose() {
        const window = this.window;
        const problem = obstacle(window.action, window.settings);
        if (problem !== "") {
            window.say(problem);
            return;
        }
        const folder = shell.chooseFolder(qsTr("Watch a folder"), "");
        if (folder !== null) {
            this.start(folder);
        }
    }

    start(folder) {
        const window = this.window;
        const answer = watch.start(folder, window.action.name + " " + JSON.stringify(window.settings));
        const texts = { missing: qsTr("This folder does not exist."),
                        taken: qsTr("Another window or program is already watching this folder for the same purpose."),
                        system: fill(qsTr("The folder cannot be watched: %1"), answer.detail) };
        if (answer.code !== "") {
            window.say(texts[answer.code]);
            return;
        }
        this.reset();
        this.name = splitPath(folder).name;
        window.showAll();
    }

    stop() {
        watch.stop();
        this.window.showAll();
    }

    folderGone() {
        this.window.say(fill(qsTr("The folder “%1” no longer exists and is no longer watched."), this.name));
        this.window.showAll();
    }

    take(path) {
        this.waiting.push(path);
        this.work();
    }

    // Pictures that arrived during a run wait for its end, so as not to be taken for its own results.
    work() {
        const window = this.window;
        if (!this.isOn() || window.run.isBusy()) {
            return;
        }
        const fresh = this.waiting.filter((path) => !this.results[path]);
        this.waiting = [];
        const ids = fresh.length > 0 ? this.added(fresh) : [];
        if (ids.length > 0) {
            this.begun = window.run;
            window.run.begin(ids);
            this.rows.forEach((id) => window.livePlan.keepFinal(id));
            this.rows = this.rows.filter((id) => ids.indexOf(id) < 0).concat(ids);
        }
        window.showAll();
    }

    // The rows of these pictures. One that arrived again under the same name is read again.
    added(paths) {
        const list = this.window.pictures;
        const known = list.ids();
        const before = list.paths();
        this.window.history.edited("add", list.addPaths(paths, [watch.folder]));
        const ids = list.ids();
        const all = list.paths();
        const wanted = emptyTable();
        paths.forEach((path) => { wanted[path] = true; });
        before.forEach((path, i) => wanted[path] && list.forget(known[i]));
        return ids.filter((id, i) => wanted[all[i]]);
    }

    /** Called after each change of the run. */
    runChanged() {
        const run = this.window.run;
        if (this.begun !== run || run.phase !== "ended") {
            return;
        }
        this.begun = null;
        for (const result of run.results) {
            this.done += result.status === "OK" ? 1 : 0;
            this.failed += result.status === "OK" ? 0 : 1;
        }
        for (const path of run.resultPaths()) {
            this.results[path] = true;
            watch.leaveOut(path);
        }
        this.window.pictures.removeIds(this.rows.splice(0, Math.max(0, this.rows.length - MOST_ROWS)));
        this.work();
    }

    show() {
        const window = this.window;
        const control = (name) => window.form.control(name);
        const takes = window.shownPage === null && window.action.manner.watches;
        control("watchAction").enabled = takes && !this.isOn() && !window.run.isBusy();
        control("watchBar").visible = this.isOn();
        const parts = [fill(qsTr("Watching “%1”"), this.name), fill(qsTr("%1 done"), pictures(this.done))]
            .concat(this.failed > 0 ? [fill(qsTr("%1 failed"), this.failed)] : []);
        control("watchText").text = parts.join(" · ");
        control("watchText").toolTip = watch.folder;
    }
}
