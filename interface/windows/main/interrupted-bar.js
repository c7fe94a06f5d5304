// The bar that says at start what a crash or a power cut interrupted, one run at a time, and what can be done about it.
// The lists of the runs are restored.

import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { moves } from "quorlin/moves";
import { runRecords } from "quorlin/records";
import { shell } from "quorlin/shell";
import { allActions } from "../../actions/actions.js";
import { guard } from "../../lib/guard.js";
import { keep, recall } from "../../lib/store.js";
import { interruptedMoves, interruptedPictures, interruptedText, restText,
         rowsOfLeft } from "../../runs/interrupted.js";
import { appendRows, keepRows } from "../../runs/log-file.js";
import { doneResults } from "../../runs/making/run-record.js";
import { recoveredWords } from "../../runs/recovered.js";
import { settleKeptRuns } from "../../runs/fields/kept-run.js";
import { removeUnfinished } from "../../runs/making/unfinished.js";

// Runs that moved files have been completed by then: a user who does not answer is asked again.
const ASKED = "InterruptedRuns";
const ROWS_AT_ONCE = 50;

export class InterruptedBar {
    /** @param window  the main window's parts */
    constructor(window) {
        this.window = window;
        this.waiting = [];
        this.jobs = []; // that log the remaining pictures
        const join = (name, answer) =>
            window.form.control(name).clicked.connect(guard(name, () => answer.call(this, this.waiting[0])));
        join("interruptedGo", this.go);
        join("interruptedUndo", this.undo);
        join("interruptedLeave", this.leave);
        this.show();
    }

    /** Once, at start: completes interrupted steps, restores the lists and asks. */
    look() {
        removeUnfinished(runRecords, files);
        const recovered = moves.recover();
        const written = interruptedPictures(runRecords, files, moves);
        const ids = recall(defaults, ASKED, { ids: [] }).ids.concat(recovered.map((run) => run.id));
        const moved = interruptedMoves(moves, ids);
        this.waiting = [].concat(written, moved);
        this.waiting.forEach((work) => this.window.pictures.addPaths(work.places, []));
        this.tellEnded(recovered);
        this.tellEdited(settleKeptRuns(files, runRecords));
        this.window.history.lookForEarlier();
        this.own(recovered, written);
        keep(defaults, ASKED, { ids: this.waiting.map((work) => work.id).filter((id) => id !== "") });
        this.show();
        if (this.waiting.length > 0) {
            this.showAction(this.waiting[0]);
        }
    }

    // What asks nothing is announced briefly; what could not be repaired has to be read.
    tellEnded(recovered) {
        const isAsked = (run) => this.waiting.some((work) => work.id === run.id || work.title === run.title);
        const all = recoveredWords(recovered);
        const quiet = recoveredWords(recovered.filter((run) => !isAsked(run)));
        if (all !== null && all.detail !== "") {
            shell.ask({ title: qsTr("A run was interrupted"), text: all.text, detail: all.detail,
                        buttons: [qsTr("Continue")], initial: 0, escape: 0, check: "" });
        } else if (quiet !== null) {
            this.window.sayBeside(quiet.text);
        }
    }

    // What a run wrote into pictures before it was interrupted stays there.
    tellEdited(counts) {
        if (counts.length > 0) {
            const all = counts.reduce((sum, count) => sum + count, 0);
            this.window.sayBeside(qsTr("Writing metadata was interrupted: %n pictures were changed. You can revert them in the log.", "", all));
        }
    }

    // While the bar is shown these are undone as if they were of this session: without a question.
    own(recovered, written) {
        const replaced = written.map((work) => work.record.replacing).filter((id) => id !== "");
        recovered.filter((run) => written.some((work) => work.title === run.title)).map((run) => run.id)
            .filter((id) => replaced.indexOf(id) < 0).concat(replaced)
            .forEach((id) => this.window.history.adopt(id));
        this.waiting.filter((work) => work.kind !== "pictures").reverse()
            .forEach((work) => this.window.history.adopt(work.id));
    }

    makerOf(work) {
        return allActions().find((action) => (work.kind === "pictures" ? action.name === work.action
                                                                       : action.title() === work.title));
    }

    showAction(work) {
        const action = this.makerOf(work);
        if (action !== undefined) {
            this.window.form.control("sideBar").currentAction = action.name;
        }
    }

    go(work) {
        const window = this.window;
        this.showAction(work);
        this.forget(work);
        if (work.kind === "undo") {
            window.history.adopt(work.undoes);
            window.history.takeBack(work.undoes);
        } else if (work.kind === "moves") {
            window.run.finishRest(work.title, work.items);
        } else {
            window.run.continueRun(work.record, doneResults(work.record, files), work.path);
        }
    }

    undo(work) {
        this.window.history.takeBack(work.id);
    }

    leave(work) {
        if (work.kind === "pictures") {
            this.leavePictures(work);
        }
        this.window.history.disown(work.id);
        this.forget(work);
    }

    // What was done is logged, as for every run.
    leavePictures(work) {
        const job = shell.job();
        const rows = this.logging(work);
        this.jobs.push(job);
        runRecords.end(work.path);
        job.start(rows, () => undefined, () => undefined);
    }

    * logging(work) {
        const action = this.makerOf(work);
        const { head } = work.record;
        const about = action === undefined ? "" : action.step.describe(head.settings);
        let rows = [];
        for (const some of rowsOfLeft(work.record, files, head.title, about)) {
            rows = rows.concat(some);
            if (rows.length >= ROWS_AT_ONCE) {
                appendRows(files, rows);
                rows = [];
            }
            yield rows.length;
        }
        keepRows(files, rows);
    }

    /** A run was undone in some other way. */
    undone(id) {
        this.waiting.filter((work) => work.id === id && id !== "").forEach((work) => this.forget(work));
    }

    forget(work) {
        this.waiting = this.waiting.filter((each) => each !== work);
        // Another window may ask about others.
        const { ids } = recall(defaults, ASKED, { ids: [] });
        keep(defaults, ASKED, { ids: ids.filter((id) => id !== work.id) });
        this.show();
    }

    show() {
        const control = (name) => this.window.form.control(name);
        const work = this.waiting[0];
        control("interruptedBar").visible = work !== undefined;
        if (work === undefined) {
            return;
        }
        const action = this.makerOf(work);
        control("interruptedNote").text = interruptedText(work, action);
        control("interruptedGo").text = restText(work, action);
        control("interruptedUndo").visible = work.kind !== "pictures";
        for (const name of ["interruptedGo", "interruptedUndo", "interruptedLeave"]) {
            control(name).enabled = !this.window.isBusy();
        }
    }
}
