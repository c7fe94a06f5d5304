// Carries out a plan, one picture after the other. A generator: whoever runs it may stop after any picture, and what is
// unfinished is then removed. The same runner serves the windows and the command line.
// Services used: files (info, makeFolder, makeStaging, place, ...), pictures (takeMemoryRefusal), replacing, and what the
// step uses.

import { FolderNames } from "quorlin/files";
import { emptyTable, joinPath, splitPath } from "../../lib/names.js";

const MOST_NUMBERS = 10000;
const MOST_OPEN = 64;

/** The folders that a run writes to: made when they are first needed, each with a hidden folder for unfinished files. */
export class Workshop {
    constructor(files) {
        this.files = files;
        this.stagings = new Map();
        this.users = emptyTable();
        this.made = [];
    }

    /** What is unfinished in a folder stays there until leave() was called as often. */
    enter(folder) {
        this.users[folder] = (this.users[folder] || 0) + 1;
    }

    leave(folder) {
        this.users[folder] -= 1;
    }

    /** {staging} or {problem}. */
    open(folder) {
        if (this.stagings.has(folder)) {
            return { staging: this.stagings.get(folder) };
        }
        const missing = this.missing(folder);
        if (missing.length > 0) {
            const problem = this.files.makeFolder(folder);
            if (problem) {
                return { problem: problem };
            }
            this.made = missing.concat(this.made);
        }
        this.closeOldest();
        this.files.sweep(folder);
        const staging = this.files.makeStaging(folder);
        if (staging === null) {
            return { problem: qsTr("the folder is read-only") };
        }
        this.stagings.set(folder, staging);
        return { staging: staging };
    }

    // The folders that are to be made for this one to be there, itself first.
    missing(folder) {
        const missing = [];
        for (let each = folder; each.length > 1 && !this.files.info(each).exists; each = splitPath(each).folder) {
            missing.push(each);
        }
        return missing;
    }

    // Each hidden folder is held open, and a process may not hold many.
    closeOldest() {
        const oldest = Array.from(this.stagings.keys()).find((folder) => !this.users[folder]);
        if (this.stagings.size >= MOST_OPEN && oldest !== undefined) {
            this.files.removeStaging(this.stagings.get(oldest));
            this.stagings.delete(oldest);
        }
    }

    close() {
        for (const staging of this.stagings.values()) {
            this.files.removeStaging(staging);
        }
        // A folder in which nothing came to be is taken away again, the innermost first.
        for (const folder of this.made) {
            this.files.removeEmptyFolder(folder);
        }
    }
}

export function failed(reason) {
    return { status: "Failed", reason: reason };
}

/**
 * The name was free when the run was planned. If it was taken since, the rule for taken names holds again.
 *
 * @param services  files and, perhaps, replacing (see replacing.js), without which the files that are replaced are gone
 */
export function placeResult(from, item, rule, services) {
    const files = services.files;
    const replacing = services.replacing;
    let name = item.name;
    for (let number = 2; number < MOST_NUMBERS; number += 1) {
        const path = joinPath(item.folder, name);
        const keeps = replacing !== undefined && item.replaces && name === item.name && files.info(path).exists;
        const answer = keeps
            ? replacing.put(from, item) : files.place(from, path, replacing === undefined ? item.replaced : "");
        if (answer.status === "OK") {
            return { status: "OK", name: name };
        }
        if (answer.status !== "Taken") {
            return failed(answer.message);
        }
        if (rule === "skip") {
            return { status: "Skipped", reason: qsTr("file already exists") };
        }
        name = FolderNames.numbered(item.name, number);
    }
    return failed(qsTr("no free name found"));
}

function makeOne(item, step, settings, services, workshop) {
    if (item.status !== "ready") {
        return { status: item.status, reason: item.reason };
    }
    const place = workshop.open(item.folder);
    if (place.problem) {
        return failed(place.problem);
    }
    const made = step.run(item.photo, Object.assign({}, settings, { prefix: place.staging }), services);
    if (made.status !== "OK") {
        return { status: made.status, reason: made.reason };
    }
    const bytes = services.files.info(made.outputs[0]).bytes;
    const placed = placeResult(made.outputs[0], item, settings.output.ifTaken, services);
    if (placed.status !== "OK") {
        return placed;
    }
    return { status: "OK", reason: "", name: placed.name, path: joinPath(item.folder, placed.name), folder: item.folder,
             bytes: bytes, width: made.width, height: made.height };
}

// A step that throws has met a mistake of ours; the other pictures are not affected.
function finalResult(item, step, settings, services, workshop) {
    const started = Date.now();
    let result;
    services.pictures.takeMemoryRefusal(); // of what was shown before
    try {
        result = makeOne(item, step, settings, services, workshop);
        const refusal = services.pictures.takeMemoryRefusal();
        result.reason = result.status === "Failed" && refusal !== "" ? refusal : result.reason;
    } catch (error) {
        result = failed(String(error.message || error));
    }
    result.photo = item.photo;
    result.ms = Date.now() - started;
    return result;
}

/**
 * A generator that carries out the items of a plan. Before each picture it yields {kind: "start", index, item}, after it
 * {kind: "end", index, item, result}; exactly one end per picture. Returns the list of all results.
 *
 * A result has status "OK", "Failed", "Not Supported" or "Skipped", reason, photo, ms, and if OK name, path, folder, bytes,
 * width, height. Stopping it (return) removes what is unfinished.
 */
export function* runItems(items, step, settings, services) {
    const workshop = new Workshop(services.files);
    const results = [];
    try {
        for (let index = 0; index < items.length; index += 1) {
            yield { kind: "start", index: index, item: items[index] };
            const result = finalResult(items[index], step, settings, services, workshop);
            results.push(result);
            yield { kind: "end", index: index, item: items[index], result: result };
        }
    } finally {
        workshop.close();
    }
    return results;
}
