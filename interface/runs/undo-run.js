// Undoing a run from the log: what can be said about it, and carrying it out. Pure but for translation; the move engine
// is passed in.

import { splitPath } from "../lib/names.js";
import { logRow } from "./report.js";


// The size of one step.
const WORK_MS = 1;
const ITEMS_AT_ONCE = 50;

// Runs that write new files give themselves such a name; those that move files get theirs from the move engine.
const WRITES = /^\d{4}-\d\d-\d\dT/;

function sentence(text) {
    return /[.!?]$/.test(text) ? text : text + ".";
}

/** Whether a run can be undone: {can, button: what the button says, isRedo, note: how much, or why not}. */
export function undoWords(moves, run) {
    if (run === "" || WRITES.test(run)) {
        return { can: false, button: qsTr("Undo This Run"), isRedo: false,
                 note: qsTr("This run wrote new files and moved none. To undo it, delete its results.") };
    }
    const known = moves.runs().find((each) => each.id === run) || { undoes: "" };
    const isRedo = Boolean(known.undoes);
    const button = isRedo ? qsTr("Redo") : qsTr("Undo This Run");
    const undoable = moves.undoable(run);
    if (undoable.can) {
        return { can: true, button: button, isRedo: isRedo,
                 note: qsTr("%n files can be restored.", "", undoable.count) };
    }
    return { can: false, button: button, isRedo: isRedo, note: sentence(undoable.reason) };
}

/** The same for a run that wrote comments; chosen is what the list of runs says about it. */
export function revertWords(chosen) {
    const left = chosen.edits - chosen.undone;
    return { can: left > 0, button: qsTr("Revert This Run"), isRedo: false, note: revertNote(chosen, left) };
}

function revertNote(chosen, left) {
    if (chosen.edits === 0) {
        return qsTr("No comment was changed.");
    }
    if (left <= 0) {
        return qsTr("All its comments have already been reverted.");
    }
    const now = qsTr("%n comments can be reverted.", "", left);
    const before = qsTr("%n have already been reverted.", "", chosen.undone);
    return chosen.undone > 0 ? now + " " + before : now;
}

/** The name in the log of undoing a run: undoing an undo is a redo. */
export function undoAction(isRedo) {
    return isRedo ? qsTr("Redo") : qsTr("Undo");
}

/** The row of the log for one file of a run that undoes `undone`: {id, process, action (of undoAction())}. */
export function undoRow(result, undone, run) {
    return Object.assign(logRow(result, undone.process, undone.action, new Date().toISOString(), run),
                         { undoes: undone.id });
}

/** What happens to the files with which an undo cannot even begin, as undoing() yields it. */
export function unableSteps(begun, undone) {
    return begun.problems.map((problem) => {
        const photo = { name: splitPath(problem.path).name, path: problem.path };
        const result = { status: "Failed", reason: problem.reason, photo: photo };
        return { index: -1, from: problem.path, to: "", result: result, row: undoRow(result, undone, begun.run) };
    });
}

// The items of a started run, some of them at a time.
function* itemsOf(moves, begun) {
    const items = [];
    for (let i = 0; i < begun.count; i += ITEMS_AT_ONCE) {
        moves.itemsOf(begun.run, i, i + ITEMS_AT_ONCE).forEach((item) => items.push(item));
        yield i;
    }
    return items;
}

/**
 * A generator that starts undoing a run and returns {run, items, problems}, or {problem, problems}. Nothing moves
 * meanwhile; if stopped before its end it has started nothing.
 */
export function* beginUndo(moves, run) {
    const order = moves.beginUndo(run);
    let begun = { problem: "" };
    let isWhole = false;
    try {
        while (!moves.prepare(order, WORK_MS)) {
            yield 0;
        }
        begun = moves.carryOut(order);
        begun.items = begun.run === undefined ? [] : yield* itemsOf(moves, begun);
        isWhole = true;
    } finally {
        moves.dropOrder(order);
        if (!isWhole && begun.run !== undefined) {
            moves.end(begun.run);
        }
    }
    return begun;
}

/**
 * A generator that carries out a started undo ({run, items, problems}), one file after the other. Yields {index of the
 * item, from, to, result, row}, row being that of the log. Returns a message, or "". Stopping it ends the run properly.
 *
 * @param undone  the run that is undone, see undoRow()
 */
export function* undoing(moves, begun, undone) {
    let problem = "";
    try {
        for (let step = moves.next(begun.run); step !== null; step = moves.next(begun.run)) {
            const item = begun.items[step.index];
            const isDone = step.status === "OK";
            const to = isDone ? step.path || item.to : "";
            const result = { status: step.status, reason: step.message,
                             photo: { name: splitPath(item.from).name, path: item.from },
                             name: isDone ? splitPath(to).name : "", path: to };
            yield { index: step.index, from: item.from, to: to, result: result,
                    row: undoRow(result, undone, begun.run) };
        }
    } finally {
        problem = moves.end(begun.run);
    }
    return problem;
}
