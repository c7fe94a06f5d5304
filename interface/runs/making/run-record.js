// What a run leaves behind where it is interrupted: its plan, and for each picture a line before its result takes its place and one after
// it. Lines are JSON: {run: {action, title, settings, startedMs, id, replacing, continues}}, {item: index, path, status, ...},
// {begun: count} (again where items joined), {about: index, path, identity}, {placed: index, path, identity, bytes},
// {replacing: run of the move engine}, {logging: true}. Pure but for the services that are handed in.
// Services used: records (begin, add, end), files (identity).

import { emptyTable, joinPath } from "../../lib/names.js";

const ITEMS_A_SLICE = 100;
const KEPT = ["status", "reason", "notes", "remarks", "folder", "name", "path", "width", "height", "replaces",
              "replaced", "replacesOriginal"];

/** The folder of the records. */
export function recordsFolder(files) {
    return joinPath(files.dataFolder, "runs");
}

function lineOf(value) {
    return JSON.stringify(value) + "\n";
}

function itemLine(item, index) {
    const line = { item: index, of: item.photo.path };
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
     * replacing: the run of the move engine of an earlier part, continues: the record of that part}.
     */
    * begin(head, items) {
        this.path = this.records.begin(recordsFolder(this.files));
        this.add({ run: head }, false);
        yield* this.addItems(items, 0);
        items.forEach((item, i) => {
            if (item.done !== undefined && item.done.status === "OK") {
                this.add({ placed: i, path: item.done.path, identity: this.files.identity(item.done.path),
                           bytes: item.done.bytes }, false);
            }
        });
        this.add({ begun: items.length }, true);
    }

    * addItems(items, first) {
        for (let i = 0; i < items.length && this.path !== ""; i += ITEMS_A_SLICE) {
            const lines = items.slice(i, i + ITEMS_A_SLICE).map((item, j) => itemLine(item, first + i + j));
            this.records.add(this.path, lines.join(""), false);
            yield i;
        }
    }

    /** Further items join the run, of which there are `first` so far; some of them at a time. */
    * grow(items, first) {
        yield* this.addItems(items, first);
        this.add({ begun: first + items.length }, true);
    }

    // A run that cannot be recorded is carried out all the same.
    add(value, isKept) {
        if (this.path !== "") {
            this.records.add(this.path, lineOf(value), isKept);
        }
    }

    /** The finished file `from` is about to be put at `path`. */
    about(index, from, path) {
        this.add({ about: index, path: path, identity: this.files.identity(from) }, true);
    }

    placed(index, path, bytes) {
        this.add({ placed: index, path: path, identity: this.files.identity(path), bytes: bytes }, true);
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

/**
 * What the text of a record says: {head, items, rows, replacing, isLogging}, or null where the run had not begun. Items are those of
 * the plan with `of`, the path of their picture; rows have the last line about a picture, by index.
 */
export function recordFrom(text) {
    const record = { head: null, items: [], rows: emptyTable(), replacing: "", isLogging: false };
    let count = -1;
    text.split("\n").map(parsed).filter((line) => line !== null && typeof line === "object").forEach((line) => {
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
        } else if (line.begun !== undefined) {
            count = line.begun;
        } else if (index !== undefined) {
            record.rows[index] = line;
        }
    });
    record.items = record.items.slice(0, Math.max(0, count)); // others were about to join
    const isWhole = record.head !== null && record.items.length === count
        && Object.keys(record.items).length === count;
    return isWhole ? record : null;
}

/**
 * The results of pictures that are done, by index: {status: "OK", name, path, folder, bytes ...}. What stands on the disk decides: a result
 * that was about to be placed and is there is done, and one that is not there any more is not.
 */
export function doneResults(record, files) {
    const done = emptyTable();
    Object.keys(record.rows).forEach((index) => {
        const row = record.rows[index];
        const item = record.items[index];
        if (item !== undefined && row.identity !== "" && files.identity(row.path) === row.identity) {
            const cut = row.path.lastIndexOf("/");
            const bytes = row.bytes === undefined ? Math.max(0, files.info(row.path).bytes) : row.bytes;
            done[index] = { status: "OK", reason: "", name: row.path.slice(cut + 1), path: row.path,
                            folder: row.path.slice(0, cut), bytes: bytes, width: item.width, height: item.height };
        }
    });
    return done;
}
