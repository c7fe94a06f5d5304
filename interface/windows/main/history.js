// What was done since the start and can be undone, newest first: edits of the list, and runs that moved files. A run of
// an earlier session can be undone too, but only after a question.
// Services used: moves (runs, undoable), files (dateText), shell (ask).

import { files } from "quorlin/files";
import { moves } from "quorlin/moves";
import { shell } from "quorlin/shell";
import { allActions } from "../../actions/actions.js";
import { MOVES } from "../../runs/moves.js";
import { fill } from "../../lib/wording.js";

const MOST = 100;

const WORDS = {
    add: { undo: (number) => qsTr("Undo Adding %n Files", "", number),
           redo: (number) => qsTr("Redo Adding %n Files", "", number) },
    remove: { undo: (number) => qsTr("Undo Removing %n Files", "", number),
              redo: (number) => qsTr("Redo Removing %n Files", "", number) },
    move: { undo: (number) => qsTr("Undo Moving %n Rows", "", number),
            redo: (number) => qsTr("Redo Moving %n Rows", "", number) },
    clear: { undo: () => qsTr("Undo Clear List"), redo: () => qsTr("Redo Clear List") },
    ratings: { undo: (number) => qsTr("Undo Writing %n Ratings", "", number) },
    run: { undo: (number, title) => fill(qsTr("Undo %1 of %n Files", "", number), title),
           redo: (number, title) => fill(qsTr("Redo %1 of %n Files", "", number), title) },
};

function stepOf(run) {
    return { kind: "run", count: run.files, title: run.title, id: run.id };
}

function newestRun() {
    const run = moves.runs()[0];
    return run === undefined || run.state === "open" || run.done === 0 ? null : run;
}

// Anything old enough to have been forgotten is undone only after a question.
function mayUndoEarlier(run) {
    const answer = shell.ask({
        title: qsTr("Undo an earlier run"),
        text: fill(qsTr("%1 (%n files) belongs to an earlier session. Undo it?", "", run.files),
                   run.title),
        detail: files.dateText(run.date), check: "", initial: 1, escape: 1,
        buttons: [qsTr("Undo It"), qsTr("Leave It")],
    });
    return answer.button === 0;
}

export class History {
    /** @param window  the main window's parts: form, pictures, run, manner, shownPage */
    constructor(window) {
        this.window = window;
        this.done = [];
        this.undone = [];
        this.own = [];
        this.lookForEarlier();
    }

    /** What exists now was made before. */
    lookForEarlier() {
        this.newest = newestRun();
        // The newest run of an earlier session, while it can be undone.
        this.earlier = this.newest;
        this.forgetEarlier();
    }

    forgetEarlier() {
        if (this.earlier !== null && (this.earlier.undoes !== "" || !moves.undoable(this.earlier.id).can)) {
            this.earlier = null;
        }
    }

    /** Something was done to the list: "add", "remove", "move" or "clear", with so many rows. */
    edited(kind, count) {
        if (count > 0) {
            this.keep({ kind: kind, count: count, title: "", id: "" });
        }
    }

    /** Ratings were written into so many files. Once removed, the command writes them again. */
    wroteRatings(run, count) {
        this.keep({ kind: "ratings", count: count, title: "", id: run });
    }

    keep(step) {
        this.done.push(step);
        this.done.splice(0, this.done.length - MOST);
        this.undone = [];
        this.show();
    }

    /** Called after anything that may have moved files: a run, or the undo of one. */
    lookForRun() {
        const run = newestRun();
        if (run !== null && (this.newest === null || run.id !== this.newest.id)) {
            this.newest = run;
            this.own.push(run.id);
            if (run.undoes === "") {
                this.keep(stepOf(run));
            } else {
                this.turned(run);
            }
        } else if (run !== null && run.done !== this.newest.done) {
            this.grown(run);
        }
        this.forgetEarlier();
        this.show();
    }

    // An interrupted run was continued.
    grown(run) {
        this.newest = run;
        const step = this.done.find((each) => each.id === run.id);
        if (step === undefined) {
            this.own.push(run.id);
            this.keep(stepOf(run));
        } else {
            step.count = run.files;
        }
    }

    // A run undid another one: that moves to the other stack, under the name of the run that undoes it in turn.
    turned(run) {
        const take = (steps) => {
            const at = steps.findIndex((step) => step.id === run.undoes);
            return at < 0 ? null : steps.splice(at, 1)[0];
        };
        const redone = take(this.undone);
        if (redone !== null) {
            this.done.push(Object.assign(redone, { id: run.id }));
        } else {
            this.undone.push(Object.assign(take(this.done) || stepOf(run), { id: run.id }));
        }
    }

    /** A run of an earlier session is undone as if it were of this one: without a question. */
    adopt(id) {
        const run = moves.runs().find((each) => each.id === id);
        this.own.push(id);
        if (run !== undefined && moves.undoable(id).can) {
            (run.undoes === "" ? this.done : this.undone).push(stepOf(run));
        }
        this.show();
    }

    /** It belongs to an earlier session again. */
    disown(id) {
        const others = (steps) => steps.filter((step) => step.kind !== "run" || step.id !== id);
        this.own = this.own.filter((each) => each !== id);
        this.done = others(this.done);
        this.undone = others(this.undone);
        this.show();
    }

    /** Was that run made since the start? */
    isOwn(id) {
        return this.own.indexOf(id) >= 0;
    }

    // A page that handles undo gets the keys.
    isOpen() {
        const page = this.window.shownPage;
        return !this.window.run.isBusy() && (page === null || page.hasUndo !== true);
    }

    // The last of the steps. One whose files have moved elsewhere since does not block the others.
    lastOf(steps) {
        while (steps.length > 0) {
            const step = steps[steps.length - 1];
            if (step.kind !== "run" || moves.undoable(step.id).can) {
                return step;
            }
            steps.pop();
        }
        return null;
    }

    /** Shows in the menu what can be undone and redone. */
    show() {
        const open = this.isOpen();
        const undo = open ? this.lastOf(this.done) || (this.earlier === null ? null : stepOf(this.earlier)) : null;
        const redo = open ? this.lastOf(this.undone) : null;
        const words = (step, verb) => WORDS[step.kind][verb](step.count, step.title);
        this.showEntry("undoAction", undo, undo === null ? qsTr("Undo") : words(undo, "undo"));
        this.showEntry("redoAction", redo, redo === null ? qsTr("Redo") : words(redo, "redo"));
    }

    showEntry(name, step, text) {
        this.window.form.control(name).enabled = step !== null;
        this.window.form.control(name).text = text;
    }

    undo() {
        const step = this.isOpen() ? this.lastOf(this.done) : null;
        if (step !== null && step.kind === "run") {
            this.takeBack(step.id);
        } else if (step !== null && step.kind === "ratings") {
            this.done.pop();
            this.window.ratings.revert(step.id);
        } else if (step !== null) {
            this.undone.push(this.done.pop());
            this.window.pictures.undoEdit();
        } else if (this.isOpen() && this.earlier !== null) {
            this.takeBack(this.earlier.id);
        }
        this.show();
    }

    redo() {
        const step = this.isOpen() ? this.lastOf(this.undone) : null;
        if (step !== null && step.kind === "run") {
            this.takeBack(step.id);
        } else if (step !== null) {
            this.done.push(this.undone.pop());
            this.window.pictures.redoEdit();
        }
        this.show();
    }

    /** Undoes a run, or redoes what it undid: under the action that made it, if that exists. */
    takeBack(id) {
        const run = moves.runs().find((each) => each.id === id);
        if (run === undefined || (!this.isOwn(id) && !mayUndoEarlier(run))) {
            return;
        }
        const window = this.window;
        window.interrupted.undone(id);
        if (window.manner !== MOVES) {
            const movers = allActions().filter((action) => action.manner === MOVES);
            const maker = movers.find((action) => action.title() === run.title) || movers[0];
            window.form.control("sideBar").currentAction = maker.name;
        }
        if (window.manner === MOVES) {
            window.run.undo(run);
        }
    }
}
