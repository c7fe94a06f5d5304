// Undoing a run from the log: what can be said of it, and carrying it out. Pure but for translation; the move engine is handed in.

import { splitPath } from "../lib/names.js";
import { logRow, undoing as undoingRow } from "./report.js";
import { count } from "../lib/wording.js";

// Runs that write new files give themselves such a name; those that move files have theirs from the move engine.
const WRITES = /^\d{4}-\d\d-\d\dT/;

function sentence(text) {
    return /[.!?]$/.test(text) ? text : text + ".";
}

/** Whether a run can be undone: {can, button: what the button says, isRedo, note: how much, or why not}. */
export function undoWords(moves, run) {
    if (run === "" || WRITES.test(run)) {
        return { can: false, button: qsTr("Undo This Run"), isRedo: false,
                 note: qsTr("This run wrote new files and moved none, so that there is nothing to take back: its results can be deleted.") };
    }
    const known = moves.runs().find((each) => each.id === run) || { undoes: "" };
    const isRedo = Boolean(known.undoes);
    const button = isRedo ? qsTr("Redo") : qsTr("Undo This Run");
    const undoable = moves.undoable(run);
    if (undoable.can) {
        return { can: true, button: button, isRedo: isRedo, note: count(undoable.count, qsTr("1 file can be taken back."), qsTr("%1 files can be taken back.")) };
    }
    return { can: false, button: button, isRedo: isRedo, note: sentence(undoable.reason) };
}

/** The same of a run that wrote comments; chosen is what the list of runs tells of it. */
export function revertWords(chosen) {
    const left = chosen.edits - chosen.undone;
    return { can: left > 0, button: qsTr("Revert This Run"), isRedo: false, note: revertNote(chosen, left) };
}

function revertNote(chosen, left) {
    if (chosen.edits === 0) {
        return qsTr("No comment was changed.");
    }
    if (left <= 0) {
        return qsTr("All its comments were reverted already.");
    }
    const now = count(left, qsTr("1 comment can be reverted."), qsTr("%1 comments can be reverted."));
    const before = count(chosen.undone, qsTr("1 was reverted before."), qsTr("%1 were reverted before."));
    return chosen.undone > 0 ? now + " " + before : now;
}

/** How the log calls the taking back of a run: one that took back another is done again. */
export function undoAction(isRedo) {
    return isRedo ? qsTr("Redo") : qsTr("Undo");
}

/** What an undo that was begun cannot bring back, in sentences. */
export function problemsOfUndo(begun) {
    return begun.problems.map((problem) => problem.path + ": " + problem.reason);
}

/**
 * A generator that carries out an undo that was begun ({run, items, problems}), one file after the other. Yields {from, to, row}, the row
 * being that of the log. Returns a message, or "". Stopping it ends the run properly.
 *
 * @param undone  the run that is taken back: {id, process, action (of undoAction())}
 */
export function* undoing(moves, begun, undone) {
    const rowOf = (result) => undoingRow(logRow(result, undone.process, undone.action, new Date().toISOString(), begun.run), undone.id);
    let problem = "";
    try {
        for (const failed of begun.problems) {
            const result = { status: "Failed", reason: failed.reason, photo: { name: splitPath(failed.path).name, path: failed.path } };
            yield { from: failed.path, to: "", row: rowOf(result) };
        }
        for (let step = moves.next(begun.run); step !== null; step = moves.next(begun.run)) {
            const item = begun.items[step.index];
            const isDone = step.status === "OK";
            const to = isDone ? step.path || item.to : "";
            const result = { status: step.status, reason: step.message, photo: { name: splitPath(item.from).name, path: item.from },
                             name: isDone ? splitPath(to).name : "", path: to };
            yield { from: item.from, to: to, row: rowOf(result) };
        }
    } finally {
        problem = moves.end(begun.run);
    }
    return problem;
}
