// What a crash or a power cut interrupted, and what remains to be done: runs that write pictures and runs that move
// files. Pure but for translation; the services are passed in.

import { splitPath } from "../lib/names.js";
import { fill, numberText } from "../lib/wording.js";
import { settleReplaced } from "./making/replacing.js";
import { doneCount, doneResults, foldersOfItem, recordFrom, recordsFolder } from "./making/run-record.js";
import { logRow } from "./report.js";

// Unfinished files are of no use to anybody.
function sweepFolders(record, files) {
    const folders = new Set([].concat(...record.items.map(foldersOfItem)));
    folders.forEach((folder) => {
        if (folder !== "" && files.info(folder).exists) {
            files.sweep(folder);
        }
    });
}

// The move engine knows the results that replaced files, because it copied them there: to the record they are other
// files.
function notePlaced(record, path, runRecords, files, moves) {
    const placed = new Set(settleReplaced(record.replacing, moves).map((each) => files.identity(each)));
    Object.keys(record.rows).map((index) => record.rows[index]).forEach((row) => {
        const identity = files.identity(row.path);
        if (row.about !== undefined && identity !== "" && placed.has(identity)) {
            row.identity = identity;
            runRecords.add(path, JSON.stringify(row) + "\n", true);
        }
    });
}

/** The records of interrupted runs: [{path, record}]. Useless ones are removed. */
function wholeRecords(runRecords, files) {
    const all = runRecords.interrupted(recordsFolder(files))
        .map((path) => ({ path: path, record: recordFrom(files.readText(path) || "") }));
    const whole = all.filter((each) => each.record !== null); // the others had not begun
    const continued = new Set(whole.map((each) => each.record.head.continues));
    const used = whole.filter((each) => !continued.has(each.path));
    all.filter((each) => used.indexOf(each) < 0).forEach((each) => runRecords.end(each.path));
    return used;
}

/**
 * Runs that wrote pictures: {kind: "pictures", action (its name), title, record, path, done, count, places}; places are the paths of their
 * list. Their unfinished files are removed. Call this after the move engine has finished its own runs.
 */
export function interruptedPictures(runRecords, files, moves) {
    return wholeRecords(runRecords, files).map(({ path, record }) => {
        sweepFolders(record, files);
        notePlaced(record, path, runRecords, files, moves);
        return { kind: "pictures", action: record.head.action, title: record.head.title, record: record, path: path,
                 id: "", done: doneCount(record, files), count: record.items.length,
                 places: record.items.map((item) => item.of) };
    });
}

// What happened to one item, or to one of its outputs.
function finalOf(item, planned, result) {
    const photo = { path: item.of, name: splitPath(item.of).name };
    const isReady = planned.status === "ready";
    return Object.assign(result || { status: isReady ? "Skipped" : planned.status,
                                     reason: isReady ? qsTr("interrupted") : planned.reason }, { photo: photo });
}

/**
 * A generator for the log rows of a run that is left as it is, one item after the other; process, about: see logRow().
 */
export function* rowsOfLeft(record, files, process, about) {
    const done = doneResults(record, files);
    const date = new Date().toISOString();
    const run = record.replacing || record.head.id;
    for (let i = 0; i < record.items.length; i += 1) {
        const item = record.items[i];
        const finals = item.outputs === undefined ? [finalOf(item, item, done[i])]
            : item.outputs.map((output) => finalOf(item, output, done[i + ":" + output.output]));
        yield finals.map((final) => logRow(final, process, about, date, run));
    }
}

/**
 * Those of the runs with these ids that are not complete: {kind: "moves" or "undo", id, title, items, places, done,
 * count}.
 */
export function interruptedMoves(moves, ids) {
    const found = [];
    for (const run of moves.runs().filter((each) => ids.indexOf(each.id) >= 0)) {
        const rest = moves.rest(run.id);
        if (run.state === "recovered" && run.done < run.count && (run.undoes !== "" || rest.items.length > 0)) {
            found.push({ kind: run.undoes === "" ? "moves" : "undo", id: run.id, undoes: run.undoes, title: run.title,
                         items: rest.items, places: rest.places, done: run.done, count: run.count });
        }
    }
    return found;
}

/** One of them in words; action: the one that made it, or undefined. */
export function interruptedText(work, action) {
    const doing = action !== undefined && action.doing !== undefined ? action.doing() : work.title;
    const done = numberText(work.done);
    const count = numberText(work.count);
    if (work.kind === "pictures") {
        return fill(qsTr("%1 was interrupted: %2 of %3 pictures are done.", "", work.done), doing, done, count);
    }
    if (work.kind === "undo") {
        return fill(qsTr("Undoing “%1” was interrupted: %2 of %3 files are done.", "", work.done),
                    work.title, done, count);
    }
    return action !== undefined && action.givesNames
        ? fill(qsTr("%1 was interrupted: %2 of %3 files have their new names.", "", work.done), doing, done, count)
        : fill(qsTr("%1 was interrupted: %2 of %3 files are done.", "", work.done), doing, done, count);
}

/** The text of the button that does the rest. */
export function restText(work, action) {
    return work.kind === "moves" && action !== undefined && action.givesNames
        ? qsTr("Rename the Rest") : qsTr("Continue");
}
