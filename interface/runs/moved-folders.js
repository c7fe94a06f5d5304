// The folders that a run fills, and which of them are new. Services used: files (info).

import { emptyTable, splitPath } from "../lib/names.js";

export class MovedFolders {
    constructor(files) {
        this.files = files;
        this.seen = emptyTable();
        this.missing = [];
        /** The folders that got files, in that order. */
        this.used = [];
        this.isUsed = emptyTable();
    }

    /** A file is about to go to that path. */
    expect(path) {
        this.look(splitPath(path).folder);
    }

    // If a folder exists, so do its parents.
    look(folder) {
        let at = folder;
        while (this.seen[at] === undefined && !this.files.info(at).exists) {
            this.seen[at] = false;
            this.missing.push(at);
            at = splitPath(at).folder;
        }
        this.seen[at] = this.seen[at] === undefined ? true : this.seen[at];
    }

    /** A file was put at that path. */
    got(path) {
        const folder = splitPath(path).folder;
        if (this.isUsed[folder] === undefined) {
            this.isUsed[folder] = true;
            this.used.push(folder);
        }
    }

    /** {used, made: how many folders now exist that did not before}. */
    sum() {
        return { used: this.used, made: this.missing.filter((folder) => this.files.info(folder).exists).length };
    }
}
