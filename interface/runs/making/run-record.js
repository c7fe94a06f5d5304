// The record of a run, in case it is interrupted: its plan, and for each picture a line before its result is put into
// place and one after it. Lines are JSON: {run: {action, title, settings, startedMs, id, replacing, continues}}, {item:
// index, path, status, ...}, {paths: all inputs, in parts}, {begun: count} (again where items joined), {about: index,
// path, identity}, {placed: index, path, identity, bytes}, {replacing: run of the move engine}, {logging: true}. If a
// picture has several outputs, its lines also have the number of the output, as `output`. Pure but for the services
// that are passed in.
// Services used: records (begin, add, end), files (identity).

import { emptyTable, joinPath, splitPath } from "../../lib/names.js";

const ITEMS_A_SLICE = 100;
const KEPT = ["status", "reason", "notes", "remarks", "folder", "name", "path", "width", "height", "replaces",
              "replaced", "replacesOriginal", "outputs", "missing", "number", "root"];

/** The folder of the records. */
export function recordsFolder(files) {
    return joinPath(files.dataFolder, "runs");
}

function lineOf(value) {
    return JSON.stringify(value) + "\n";
}

function itemLine(item, index) {
    const line = { item: index, of: item.photo.path, size: [item.photo.width || 0, item.photo.height || 0] };
    KEPT.forEach((field) => { line[field] = item[field]; });
    return lineOf(line);
}

export class RunRecord {
    constructor(records, files) {
        this.records = records;
        this.files = files;
        this.path = "";
    }

    /**
     * Writes what is planned, some of it at a time; head: {action, title, settings, startedMs, id: of its rows in the log,
     * replacing: the run of the move engine of an earlier part, continues: the record of that part}; paths: see
     * addPaths(), optional.
     */
    * begin(head, items, paths) {
        this.path = this.records.begin(recordsFolder(this.files));
        this.add({ run: head }, false);
        yield* this.addItems(items, 0);
        yield* this.addDone(items);
        yield* this.addPaths(paths || []);
        this.add({ begun: items.length }, true);
    }

    // What an earlier run had done.
    * addDone(items) {
        for (let i = 0; i < items.length; i += 1) {
            const { done, outputs } = items[i];
            if (done !== undefined && done.status === "OK") {
                this.add(this.placedLine(i, done.path, done.bytes), false);
            }
            this.addAll(this.outputLines(i, (outputs || []).filter((output) => output.status === "OK")), false);
            if (i % ITEMS_A_SLICE === ITEMS_A_SLICE - 1) {
                yield i;
            }
        }
    }

    * addItems(items, first) {
        for (let i = 0; i < items.length && this.path !== ""; i += ITEMS_A_SLICE) {
            const lines = items.slice(i, i + ITEMS_A_SLICE).map((item, j) => itemLine(item, first + i + j));
            this.records.add(this.path, lines.join(""), false);
            yield i;
        }
    }

    /** Further items join the run, of which there are `first` so far; some of them at a time. */
    * grow(items, first, paths) {
        yield* this.addItems(items, first);
        yield* this.addPaths(paths || []);
        this.add({ begun: first + items.length }, true);
    }

    /** Records all inputs of a run whose names depend on pictures that it does not make; some of them at a time. */
    * addPaths(paths) {
        for (let i = 0; i < paths.length && this.path !== ""; i += ITEMS_A_SLICE) {
            this.add({ paths: paths.slice(i, i + ITEMS_A_SLICE) }, false);
            yield i;
        }
    }

    // A run is carried out even if it cannot be recorded.
    add(value, isKept) {
        this.addAll([value], isKept);
    }

    addAll(values, isKept) {
        if (this.path !== "" && values.length > 0) {
            this.records.add(this.path, values.map(lineOf).join(""), isKept);
        }
    }

    aboutLine(index, from, path) {
        return { about: index, path: path, identity: this.files.identity(from) };
    }

    placedLine(index, path, bytes) {
        return { placed: index, path: path, identity: this.files.identity(path), bytes: bytes };
    }

    /** The finished file `from` is about to be moved to `path`. */
    about(index, from, path) {
        this.add(this.aboutLine(index, from, path), true);
    }

    placed(index, path, bytes) {
        this.add(this.placedLine(index, path, bytes), true);
    }

    /** The same for all outputs of a picture that are about to be placed: [{output, file, path}]. */
    aboutOutputs(index, whole) {
        this.addAll(whole.map((each) => Object.assign(this.aboutLine(index, each.file, each.path),
                                                      { output: each.output })), true);
    }

    outputLines(index, outputs) {
        return outputs.map((each) => Object.assign(this.placedLine(index, each.path, each.bytes),
                                                   { output: each.output }));
    }

    /** outputs: [{output, path, bytes}] */
    placedOutputs(index, outputs) {
        this.addAll(this.outputLines(index, outputs), true);
    }

    /** The run of the move engine by which results replace files. */
    noteReplacing(run) {
        this.add({ replacing: run }, true);
    }

    /** From here on rows may be in the log. */
    noteLogging() {
        this.add({ logging: true }, true);
    }

    end() {
        if (this.path !== "") {
            this.records.end(this.path);
            this.path = "";
        }
    }
}

function parsed(line) {
    try {
        return JSON.parse(line);
    } catch (error) {
        return null; // it was being written
    }
}

function rowKey(index, output) {
    return output === undefined ? String(index) : index + ":" + output;
}

// Processes one line of a record; returns how many items it says were begun, or -1.
function takeLine(record, line) {
    const index = line.placed === undefined ? line.about : line.placed;
    if (line.run !== undefined) {
        record.head = line.run;
        record.replacing = line.run.replacing || "";
    } else if (line.replacing !== undefined) {
        record.replacing = line.replacing;
    } else if (line.logging !== undefined) {
        record.isLogging = true;
    } else if (line.item !== undefined) {
        record.items[line.item] = line;
    } else if (line.paths !== undefined) {
        record.paths = record.paths.concat(line.paths);
    } else if (index !== undefined) {
        record.rows[rowKey(index, line.output)] = line;
    }
    return line.begun === undefined ? -1 : line.begun;
}

/**
 * The contents of a record: {head, items, paths, rows, replacing, isLogging}, or null if the run had not begun. Items
 * are those of the plan with `of`, the path of their picture; rows have the last line about a picture, by index, or
 * about one of its outputs, by "index:output".
 */
export function recordFrom(text) {
    const record = { head: null, items: [], paths: [], rows: emptyTable(), replacing: "", isLogging: false };
    let count = -1;
    text.split("\n").map(parsed).filter((line) => line !== null && typeof line === "object").forEach((line) => {
        const begun = takeLine(record, line);
        count = begun >= 0 ? begun : count;
    });
    record.items = record.items.slice(0, Math.max(0, count)); // others were about to join
    const isWhole = record.head !== null && record.items.length === count
        && Object.keys(record.items).length === count;
    return isWhole ? record : null;
}

/**
 * The results that are done, by index, or "index:output": {status: "OK", name, path, folder, bytes ...}. The disk
 * decides: a result that was about to be placed and exists is done, and one that no longer exists is not.
 */
export function doneResults(record, files) {
    const done = emptyTable();
    Object.keys(record.rows).forEach((key) => {
        const row = record.rows[key];
        const item = record.items[row.placed === undefined ? row.about : row.placed];
        if (item !== undefined && row.identity !== "" && files.identity(row.path) === row.identity) {
            const { folder, name } = splitPath(row.path);
            const bytes = row.bytes === undefined ? Math.max(0, files.info(row.path).bytes) : row.bytes;
            done[key] = { status: "OK", reason: "", name: name, path: row.path, folder: folder, bytes: bytes,
                          width: item.width, height: item.height };
        }
    });
    return done;
}

/** The present outputs of an item: those that are done have their results, the others are as planned. */
export function outputsNow(item, index, done) {
    return item.outputs.map((output) => {
        const result = done[rowKey(index, output.output)];
        return output.status !== "ready" || result === undefined ? output
            : Object.assign({}, output, { status: "OK", path: result.path, bytes: result.bytes });
    });
}

/** How many pictures of a record are complete, with all their outputs. */
export function doneCount(record, files) {
    const done = doneResults(record, files);
    return record.items.filter((item, i) => {
        const outputs = item.outputs === undefined ? null : outputsNow(item, i, done);
        return outputs === null ? done[i] !== undefined
            : outputs.some((output) => output.status === "OK") && outputs.every((output) => output.status !== "ready");
    }).length;
}

/** The folders that an item writes to. */
export function foldersOfItem(item) {
    return item.outputs === undefined ? [item.folder]
        : item.outputs.map((output) => (output.path === "" ? "" : splitPath(output.path).folder));
}
