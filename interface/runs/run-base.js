// What all runs have in common: phases, pause, cancel, the summary and the report. Subclasses
// decide what a run plans and does.

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { copyOf } from "../lib/copies.js";
import { guard } from "../lib/guard.js";
import { showUnticked } from "./list-rows.js";
import { appendRows, trimRows } from "./log-file.js";
import { clockText, Progress } from "./progress.js";
import { toCsv } from "./report.js";
import { keepSettings } from "./making/run-settings.js";
import { fill, fillNumbers, problemsText } from "../lib/wording.js";

const ROWS_AT_ONCE = 50;

export class BaseRun {
    /** @param window  the main window's parts; changed() is called when buttons and texts should be updated */
    constructor(window, changed) {
        this.window = window;
        this.changed = changed;
        /** Called where nothing but how far it is has changed; as often as that is shown. */
        this.progressed = changed;
        this.job = shell.job();
        this.phase = "idle";
        /** The run that this one undoes, or "". */
        this.undoes = "";
        this.reset([]);
    }

    reset(ids) {
        this.ids = ids;
        this.items = [];
        this.results = [];
        this.problems = 0;
        this.rows = [];
        /** So many of them are in the log already, from a run that was interrupted while they were written. */
        this.keptRows = 0;
        this.paused = false;
        this.isEnding = false;
        this.isAbandoned = false;
        this.endWork = null;
        /** The list contains rows that are not part of this run; they are planned when it ends. */
        this.hasOthers = false;
        /** Whether it ended by itself, and did more than plan. */
        this.isComplete = false;
        /** {run, action, settings}, once they are in the log. */
        this.keptSettings = null;
        this.text = "";
        this.detail = "";
        this.progress = new Progress([]);
        this.startedMs = Date.now();
        // Rows of the log name their run.
        this.id = new Date(this.startedMs).toISOString();
    }

    /** Where all runs over the list begin: planning, with the current settings. */
    startPlanning(ids) {
        const window = this.window;
        window.livePlan.stop();
        window.livePlan.forgetFinal();
        window.said = "";
        window.pictures.setFocus();
        this.reset(ids);
        this.settings = copyOf(window.settings);
        this.phase = "planning";
        this.text = qsTr("Planning…");
        showUnticked(window.pictures, () => false);
        window.pictures.busy = true;
        window.pictures.problemsOnly = false;
    }

    isBusy() {
        return this.phase === "planning" || this.phase === "running";
    }

    /** Whether pictures added to the list now join the run. */
    takesMore() {
        return false;
    }

    /** Called when something was added to the list during the run. */
    listGrew() {
        this.hasOthers = true;
    }

    hasProblems() {
        return this.problems > 0;
    }

    /**
     * Records the final result of one file and its row of the log; index: its position if results arrive in another
     * order.
     */
    noteInLog(result, row, index) {
        const place = index === undefined ? this.results.length : index;
        this.results[place] = result;
        this.countProblem(result);
        this.rows[place] = row;
    }

    countProblem(result) {
        this.problems += result.status === "Failed" || result.status === "Not Supported" ? 1 : 0;
    }

    failedIds() {
        return this.ids.filter((id, i) => this.results[i] !== undefined && this.results[i].status === "Failed");
    }

    /** Folders with results, to be opened from the summary. */
    folders() {
        return [];
    }

    /** What can be undone now: {id, text} or null; text is the label of the button. */
    undoOffer() {
        return null;
    }

    /** Called when the action is shown, since runs may have been made elsewhere. */
    look() {
        return undefined;
    }

    /** The message while nothing runs; "" for nothing. */
    idleText() {
        return "";
    }

    timeText() {
        const left = this.progress.leftMs();
        const leftText = left === null ? "" : fill(qsTr("%1 left"), clockText(left));
        return this.paused ? qsTr("paused") : leftText;
    }

    noteProgress() {
        const time = this.timeText();
        this.text = fillNumbers(qsTr("%1 of %2"), this.progress.done, this.progress.count);
        this.detail = (time ? [time] : [])
            .concat([problemsText(this.problems)]).join(" · ");
    }

    showProgress() {
        this.noteProgress();
        this.changed();
    }

    /** Shows the progress without other changes. */
    showShare() {
        this.noteProgress();
        this.progressed();
    }

    /**
     * A generator that writes the rows of the run into the log, some of them at a time; returns a message if that
     * failed.
     */
    * keepLog() {
        let problem = "";
        for (let i = this.keptRows; i < this.rows.length && problem === ""; i += ROWS_AT_ONCE) {
            const rows = this.rows.slice(i, i + ROWS_AT_ONCE);
            rows.forEach((row) => { row.run = this.id; });
            problem = appendRows(files, rows);
            yield i;
        }
        return problem || (this.rows.length === 0 ? "" : trimRows(files)) || this.keepSettings();
    }

    // A run that undoes another one has no settings.
    keepSettings() {
        if (this.rows.length === 0 || this.undoes) {
            return "";
        }
        this.keptSettings = { run: this.id, action: this.window.action.name, settings: this.settings };
        return keepSettings(files, this.id, this.window.action.name, this.settings);
    }

    /** Runs the generator of the run's end, which returns a message: it can be neither paused nor stopped. */
    endWith(work) {
        this.isEnding = true;
        this.endWork = work;
        if (this.isAbandoned) {
            this.endNow();
            return;
        }
        this.job.resume();
        this.job.start(work, () => undefined, guard("run.ended", (how, value) => {
            this.isEnding = false;
            this.workEnded(value);
        }));
    }

    finish(text) {
        this.phase = "ended";
        this.text = text;
        this.detail = "";
        this.window.pictures.busy = false;
        this.changed();
        if (this.hasOthers) {
            this.hasOthers = false;
            this.window.livePlan.refresh();
        }
    }

    endNow() {
        let step = this.endWork.next();
        while (!step.done) {
            step = this.endWork.next(); // the window is about to close
        }
        this.isEnding = false;
        this.workEnded(step.value);
    }

    // A listener may start the next run when this one ends, which the job could not do during a step of this one.
    workEnded(value) {
        if (this.isBusy()) {
            this.finish(String(value));
            this.hasEnded();
        }
    }

    hasEnded() {
        return undefined;
    }

    togglePause() {
        if (this.isEnding) {
            return;
        }
        this.window.said = "";
        this.paused = !this.paused;
        if (this.paused) {
            this.job.pause();
        } else {
            this.job.resume();
        }
        this.showProgress();
    }

    /** The request is acknowledged at once, however long the end takes. */
    cancel() {
        if (this.isEnding) {
            return;
        }
        this.window.said = "";
        this.job.cancel();
        if (this.isBusy()) {
            this.detail = qsTr("stopping");
            this.changed();
        }
    }

    /** Ends the run at once; pictures in progress are abandoned. */
    abandon() {
        this.isAbandoned = true;
        if (this.isEnding) {
            this.endNow();
        }
        this.job.cancel();
    }

    /** Removes the summary; it stays in the log. */
    dismiss() {
        if (this.phase === "ended") {
            this.phase = "idle";
            this.detail = "";
        }
    }

    /** Writes the rows of this run to a file that the user chooses; returns a message about it. */
    saveReport() {
        const path = shell.chooseNewFile(qsTr("Save the report"), "", qsTr("Report") + ".csv", "csv");
        if (path === null) {
            return "";
        }
        return files.writeText(path, toCsv(this.rows)) || fill(qsTr("Report saved as %1"), path);
    }
}
