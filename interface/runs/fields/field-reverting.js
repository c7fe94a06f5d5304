// Gives pictures back the metadata that a run replaced. Pure but for translation; what asks workers and the file
// service are passed in.

import { splitPath } from "../../lib/names.js";
import { fill } from "../../lib/wording.js";
import { appendRows, newRunName } from "../log-file.js";
import { logRow } from "../report.js";
import { noteReverted, valuesOf, valuesSize } from "./kept-values.js";

/** Its name in the log. */
export function revertAction() {
    return qsTr("Revert metadata");
}

/**
 * Whether a metadata run can be reverted, in the form of undoWords(); null for any other run.
 *
 * @param chosen  what the log says about it
 */
export function revertFieldsWords(files, run, chosen) {
    const bytes = valuesSize(files, run);
    if (bytes === 0) {
        return chosen.process !== qsTr("Metadata") || chosen.areEdits ? null
            : { can: false, button: qsTr("Revert This Run"), isRedo: false,
                note: qsTr("No old values of this run are kept.") };
    }
    const left = valuesOf(files, run).length;
    const size = fill(qsTr("Old values: %1."), files.byteText(bytes));
    const note = left > 0 ? qsTr("%n pictures can be reverted.", "", left)
        : qsTr("All its pictures have already been reverted.");
    return { can: left > 0, button: qsTr("Revert This Run"), isRedo: false, note: note + " " + size, isOfFields: true };
}

function rowOf(kept, said, run, undone) {
    const name = splitPath(kept.path).name;
    const status = said.problem === "" ? "OK" : "Failed";
    const result = { status: status, reason: said.problem, photo: { name: name, path: kept.path },
                     name: splitPath(kept.file).name, path: kept.file };
    return Object.assign(logRow(result, qsTr("Metadata"), revertAction(), new Date().toISOString(), run),
                         { undoes: undone });
}

function* tasksOf(files, undone) {
    for (const kept of valuesOf(files, undone)) {
        yield { kept: kept, file: kept.file, ask: (work) => work.revert(kept.path, kept.undo) };
    }
}

/**
 * A generator that reverts a run, newest picture first. It yields {path, status, reason, row} for each, after its row
 * was logged, and null while it waits; it returns a message, or "".
 *
 * @param asker   see FieldAsker
 * @param goesOn  false if it is to stop after the pictures in progress
 */
export function* revertingFields(asker, files, undone, goesOn) {
    const run = newRunName();
    let problem = "";
    for (const answer of asker.each(tasksOf(files, undone), goesOn)) {
        if (answer === null) {
            yield null;
            continue;
        }
        const { kept } = answer.task;
        const row = rowOf(kept, answer.said, run, undone);
        problem = problem || (answer.said.problem === "" ? noteReverted(files, undone, kept.line) : "");
        problem = problem || appendRows(files, [row]);
        yield { path: kept.path, status: row.status, reason: row.reason, row: row };
    }
    return problem;
}

/** The outcome, in a line. */
export function revertSummary(done, failed, problem) {
    return [qsTr("%n pictures reverted", "", done)]
        .concat(failed > 0 ? [qsTr("%n problems", "", failed)] : [], problem ? [problem] : []).join(" · ");
}
