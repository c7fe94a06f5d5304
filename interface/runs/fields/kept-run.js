// A run that changes the metadata of pictures, as far as a kill is concerned: the old values of a picture are on the
// disk before its edit takes its place, and a record says that the run is under way. Pure but for the services that are
// passed in.
// Services used: files, records (begin, add, end, interrupted).

import { emptyTable, joinPath, splitPath } from "../../lib/names.js";
import { appendRows, logPath } from "../log-file.js";
import { logRow } from "../report.js";
import { keepValues, noteUnwritten, runsUnderWay, underWayFolder, valuesOf } from "./kept-values.js";

export class KeptRun {
    /** @param head  what its rows in the log say: run, process and action */
    constructor(files, records, head) {
        this.files = files;
        this.records = records;
        this.run = head.run;
        this.path = records.begin(underWayFolder(files));
        if (this.path !== "") {
            records.add(this.path, JSON.stringify(head) + "\n", true);
        }
    }

    /**
     * Stores what is about to be written: {path, file, before, after, undo}. Returns a message if that failed; nothing
     * may be written then.
     */
    keep(values) {
        const { path, file, before, after, undo } = values;
        const line = { path: path, file: file, was: this.files.identity(file), before: before, after: after,
                       undo: undo };
        return keepValues(this.files, this.run, line);
    }

    /** Nothing was written into the picture at a path after all. */
    unwritten(path) {
        noteUnwritten(this.files, this.run, path);
    }

    end() {
        if (this.path !== "") {
            this.records.end(this.path);
            this.path = "";
        }
    }
}

function loggedPictures(files, run) {
    const logged = emptyTable();
    const end = "\"run\":" + JSON.stringify(run) + "}";
    (files.readText(logPath(files)) || "").split("\n").filter((line) => line.endsWith(end)).forEach((line) => {
        logged[JSON.parse(line).inputPath] = true;
    });
    return logged;
}

// The edit of a picture that is not in the log took its place if the file is another one than before it.
function settle(files, head) {
    const logged = loggedPictures(files, head.run);
    let problem = "";
    for (const kept of valuesOf(files, head.run).reverse().filter((each) => logged[each.path] !== true)) {
        if (files.identity(kept.file) === kept.was) {
            problem = problem || noteUnwritten(files, head.run, kept.path);
        } else {
            const result = { status: "OK", photo: { name: splitPath(kept.path).name, path: kept.path },
                             name: splitPath(kept.file).name, path: kept.file };
            const date = new Date().toISOString();
            problem = problem || appendRows(files, [logRow(result, head.process, head.action, date, head.run)]);
        }
    }
    return problem;
}

/**
 * Puts into the log what interrupted runs wrote, so that it can be reverted. Returns how many pictures those runs
 * changed, in a list.
 */
export function settleKeptRuns(files, records) {
    const all = runsUnderWay(files);
    const changed = [];
    records.interrupted(underWayFolder(files)).forEach((path) => {
        const head = all.find((each) => joinPath(underWayFolder(files), each.name) === path);
        if (head === undefined || settle(files, head) === "") {
            records.end(path);
        }
        if (head !== undefined && valuesOf(files, head.run).length > 0) {
            changed.push(valuesOf(files, head.run).length);
        }
    });
    return changed;
}
