// The folders that a run fills, and which of them were not there before. Services used: files (info).

import { emptyTable, splitPath } from "../lib/names.js";

export class MovedFolders {
    /** @param paths  where files are to go; looked at before the run */
    constructor(files, paths) {
        this.files = files;
        this.seen = emptyTable();
        this.missing = [];
        /** The folders that got files, in that order. */
        this.used = [];
        this.isUsed = emptyTable();
        paths.forEach((path) => this.look(splitPath(path).folder));
    }

    // A folder that is there has its parents.
    look(folder) {
        let at = folder;
        while (this.seen[at] === undefined && !this.files.info(at).exists) {
            this.seen[at] = false;
            this.missing.push(at);
            at = splitPath(at).folder;
        }
        this.seen[at] = this.seen[at] === undefined ? true : this.seen[at];
    }

    /** A file came to that path. */
    got(path) {
        const folder = splitPath(path).folder;
        if (this.isUsed[folder] === undefined) {
            this.isUsed[folder] = true;
            this.used.push(folder);
        }
    }

    /** {used, made: how many folders there are that were not there before}. */
    sum() {
        return { used: this.used, made: this.missing.filter((folder) => this.files.info(folder).exists).length };
    }
}
