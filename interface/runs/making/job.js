// Carries out a plan, one picture after the other. A generator: its caller may stop after any picture, and unfinished
// files are then removed. The same runner serves the windows and the command line.
// Services used: files (info, makeFolder, makeStaging, place, ...), pictures (takeMemoryRefusal), replacing, and what
// the step uses.

import { FolderNames } from "quorlin/files";
import { emptyTable, joinPath, splitPath } from "../../lib/names.js";

const MOST_NUMBERS = 10000;
const MOST_OPEN = 64;

/** The folders that a run writes to: created when first needed, each with a hidden folder for unfinished files. */
export class Workshop {
    constructor(files) {
        this.files = files;
        this.stagings = new Map();
        this.users = emptyTable();
        this.made = [];
    }

    /** Unfinished files in a folder stay there until leave() was called as often. */
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

    // The folders to be created so that this one exists, itself first.
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
        // A folder in which nothing was written is removed again, innermost first.
        for (const folder of this.made) {
            this.files.removeEmptyFolder(folder);
        }
    }
}

export function failed(reason) {
    return { status: "Failed", reason: reason };
}

/**
 * The name was free when the run was planned. If it has been taken since, the rule for taken names applies again.
 *
 * @param services  files and, optionally, replacing (see replacing.js), without which replaced files are gone
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

// An exception in a step is a bug; the other pictures are not affected.
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
 * width, height. Stopping it (return) removes unfinished files.
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
