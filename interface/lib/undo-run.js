// Undoing a run from the log: what can be said of it, and carrying it out. Pure but for translation; the move engine is handed in.

import { splitPath } from "./names.js";
import { logRow } from "./report.js";
import { count } from "./wording.js";

// Runs that write new files give themselves such a name; those that move files have theirs from the move engine.
const WRITES = /^\d{4}-\d\d-\d\dT/;

function sentence(text) {
    return /[.!?]$/.test(text) ? text : text + ".";
}

/** Whether a run can be undone: {can, button: what the button says, note: how much, or why not}. */
export function undoWords(moves, run) {
    if (run === "" || WRITES.test(run)) {
        return { can: false, button: qsTr("Undo This Run"),
                 note: qsTr("This run wrote new files and moved none, so that there is nothing to take back: its results can be deleted.") };
    }
    const known = moves.runs().find((each) => each.id === run) || { undoes: "" };
    const button = known.undoes ? qsTr("Redo") : qsTr("Undo This Run");
    const undoable = moves.undoable(run);
    if (undoable.can) {
        return { can: true, button: button, note: count(undoable.count, qsTr("1 file can be taken back."), qsTr("%1 files can be taken back.")) };
    }
    return { can: false, button: button, note: sentence(undoable.reason) };
}

/** What an undo that was begun cannot bring back, in sentences. */
export function problemsOfUndo(begun) {
    return begun.problems.map((problem) => problem.path + ": " + problem.reason);
}

/**
 * A generator that carries out an undo that was begun ({run, items, problems}), one file after the other. Yields {from, to, row}, the row
 * being that of the log. Returns a message, or "". Stopping it ends the run properly.
 */
export function* undoing(moves, begun, process) {
    let problem = "";
    try {
        for (const failed of begun.problems) {
            const result = { status: "Failed", reason: failed.reason, photo: { name: splitPath(failed.path).name, path: failed.path } };
            yield { from: failed.path, to: "", row: logRow(result, process, qsTr("Undo"), new Date().toISOString(), begun.run) };
        }
        for (let step = moves.next(begun.run); step !== null; step = moves.next(begun.run)) {
            const item = begun.items[step.index];
            const isDone = step.status === "OK";
            const to = isDone ? step.path || item.to : "";
            const result = { status: step.status, reason: step.message, photo: { name: splitPath(item.from).name, path: item.from },
                             name: isDone ? splitPath(to).name : "", path: to };
            yield { from: item.from, to: to, row: logRow(result, process, qsTr("Undo"), new Date().toISOString(), begun.run) };
        }
    } finally {
        problem = moves.end(begun.run);
    }
    return problem;
}
