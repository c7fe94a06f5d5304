// What runs wrote into the metadata of pictures: old and new values and what restores the old file, in a separate file
// for each run, beside the log. The run's name in the log leads to it. The file service is passed in.
//
// A line is {path, file, was, before, after, undo} for a picture that is about to be written, {unwritten: path} if it
// was not after all, or {reverted: number of its line} for one whose old values were restored; was is the identity of the
// file before, before and after have the fields that changed, each a list of texts.

import { logPath } from "../log-file.js";

const FOLDER = "/metadata-values";
const UNDER_WAY = "/metadata-runs";

function folderOf(files) {
    return files.dataFolder + FOLDER;
}

const ENDING = ".jsonl";

function nameOf(run) {
    return encodeURIComponent(run) + ENDING;
}

function runOf(name) {
    return decodeURIComponent(name.slice(0, -ENDING.length));
}

/** The file of a run. */
export function valuesPath(files, run) {
    return folderOf(files) + "/" + nameOf(run);
}

/** Stores what was written into one picture; returns a message if that failed. */
export function keepValues(files, run, values) {
    return files.appendPrivate(valuesPath(files, run), JSON.stringify(values) + "\n");
}

/** Records that nothing was written into the picture at a path; returns a message if that failed. */
export function noteUnwritten(files, run, path) {
    return files.appendPrivate(valuesPath(files, run), JSON.stringify({ unwritten: path }) + "\n");
}

/** Records that the picture of a line has its old values again; returns a message if that failed. */
export function noteReverted(files, run, line) {
    return files.appendPrivate(valuesPath(files, run), JSON.stringify({ reverted: line }) + "\n");
}

function read(line) {
    try {
        const kept = JSON.parse(line);
        return kept !== null && typeof kept === "object" ? kept : {};
    } catch (error) {
        return {}; // a line that was cut off when the program ended
    }
}

/** What a run wrote and was not reverted, newest first: {line, path, file, before, after, undo}. */
export function valuesOf(files, run) {
    const lines = (files.readText(valuesPath(files, run)) || "").split("\n").map(read);
    const reverted = new Set(lines.map((each) => each.reverted));
    const unwritten = new Set(lines.map((each) => each.unwritten));
    const kept = [];
    lines.forEach((each, i) => {
        if (typeof each.path === "string" && typeof each.undo === "string" && !reverted.has(i)
            && !unwritten.has(each.path)) {
            kept.push(Object.assign(each, { line: i }));
        }
    });
    return kept.reverse();
}

/**
 * What a run wrote into the picture at a path, reverted or not: {before, after}; null if nothing is stored about it.
 */
export function valuesAt(files, run, path) {
    const lines = valuesSize(files, run) === 0 ? [] : (files.readText(valuesPath(files, run)) || "").split("\n");
    const found = lines.filter((line) => line.startsWith("{\"path\":" + JSON.stringify(path) + ",")).map(read).pop();
    return found === undefined || found.after === undefined ? null : found;
}

/** Bytes stored for a run; 0 if nothing is. */
export function valuesSize(files, run) {
    const info = run === "" ? { exists: false } : files.info(valuesPath(files, run));
    return info.exists ? info.bytes : 0;
}

/** Removes what is stored for a run; returns a message if that failed. */
export function forgetValues(files, run) {
    return files.removePrivate(valuesPath(files, run));
}

function runsKept(files) {
    return files.names(folderOf(files)).filter((name) => name.endsWith(ENDING)).map(runOf);
}

function forgetThose(files, runs) {
    return runs.map((run) => forgetValues(files, run)).find((problem) => problem !== "") || "";
}

/** Removes what is stored for all runs; returns a message if that failed. */
export function forgetAllValues(files) {
    return forgetThose(files, runsKept(files));
}

/** The folder of the records of runs that are under way, of any window, or were interrupted. */
export function underWayFolder(files) {
    return files.dataFolder + UNDER_WAY;
}

/** What these records say: {name: of the file, run, process, action}. */
export function runsUnderWay(files) {
    const folder = underWayFolder(files);
    return files.names(folder)
        .map((name) => Object.assign(read(files.readText(folder + "/" + name) || ""), { name: name }))
        .filter((head) => typeof head.run === "string");
}

/**
 * Removes what is stored for runs that are no longer in the log; returns a message if that failed. A run that is under
 * way may not be in it yet.
 */
export function forgetUnlogged(files) {
    const underWay = runsUnderWay(files).map((head) => head.run);
    const runs = runsKept(files).filter((run) => underWay.indexOf(run) < 0);
    const log = runs.length === 0 ? "" : files.readText(logPath(files)) || "";
    return forgetThose(files, runs.filter((run) => log.indexOf("\"run\":" + JSON.stringify(run)) < 0));
}
