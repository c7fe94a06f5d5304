// Keeps the list on disk while the program runs, so that it is restored after a crash. A normal exit removes it, unless
// the preferences say otherwise.
// Services used: records (begin, add, endWithProgram, end, interrupted), files (readText, info).

import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { runRecords } from "quorlin/records";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { joinPath } from "../../lib/names.js";
import { wishes } from "../../lib/wishes.js";

const SETTLE_MS = 1000;
const PATHS_A_SLICE = 200;

function listsFolder() {
    return joinPath(files.dataFolder, "lists");
}

function parsed(line) {
    try {
        return JSON.parse(line);
    } catch (error) {
        return null; // it was being written
    }
}

/** The paths in the text of a saved list; null if it was not written completely. */
export function pathsFrom(text) {
    const lines = text.split("\n").map(parsed).filter((line) => line !== null && typeof line === "object");
    const last = lines.pop();
    const paths = [].concat(...lines.map((line) => line.paths).filter(Array.isArray));
    return last !== undefined && last.whole === paths.length ? paths : null;
}

export class KeptList {
    /** @param window  the main window's parts: pictures, sayBeside() */
    constructor(window) {
        this.window = window;
        this.path = "";
        this.job = shell.job();
        this.timer = shell.timer(guard("list.keep", () => this.keep()));
    }

    /** Once, at start: restores the list of a program that did not exit normally, or those of several as one. */
    look() {
        const found = runRecords.interrupted(listsFolder());
        const whole = found.map((path) => pathsFrom(files.readText(path) || "")).filter((paths) => paths !== null);
        found.forEach((path) => runRecords.end(path));
        const paths = [].concat(...whole).filter((path) => files.info(path).exists);
        if (paths.length > 0 && this.window.pictures.addPaths(paths, []) > 0) {
            this.window.sayBeside(qsTr("The list of the last session was restored."));
        }
    }

    /** Called after each change of the list. */
    listChanged() {
        this.job.cancel();
        this.timer.start(SETTLE_MS);
    }

    keep() {
        const work = this.keeping(this.window.pictures.paths(), true);
        this.job.start(work, () => undefined, () => undefined);
    }

    /** The window is about to close normally: the list is kept if the user wants it back. */
    close() {
        this.timer.stop();
        this.job.cancel();
        const work = this.keeping(wishes(defaults).keepsList ? this.window.pictures.paths() : [], false);
        let step = work.next();
        while (!step.done) {
            step = work.next();
        }
    }

    // The old one is kept until the new one is complete.
    * keeping(paths, isPassing) {
        const path = paths.length === 0 ? "" : runRecords.begin(listsFolder());
        let isWhole = paths.length === 0;
        try {
            if (isPassing) {
                runRecords.endWithProgram(path);
            }
            for (let i = 0; i < paths.length && path !== ""; i += PATHS_A_SLICE) {
                runRecords.add(path, JSON.stringify({ paths: paths.slice(i, i + PATHS_A_SLICE) }) + "\n", false);
                yield i;
            }
            isWhole = isWhole || runRecords.add(path, JSON.stringify({ whole: paths.length }) + "\n", true);
        } finally {
            runRecords.end(isWhole ? this.path : path);
            this.path = isWhole ? path : this.path;
        }
    }
}
