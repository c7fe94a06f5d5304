// What is known about the files of the list, read once per file. Services used: files (facts), passed in.

import { emptyTable } from "./names.js";

export class KnownFacts {
    constructor(files) {
        this.files = files;
        this.forget();
    }

    /** What files.facts says about the file: null if there is none. */
    of(path) {
        if (this.known[path] === undefined) {
            this.known[path] = this.files.facts(path);
        }
        return this.known[path];
    }

    isKnown(path) {
        return this.known[path] !== undefined;
    }

    /** Files may have changed: all of them are read again. */
    forget() {
        this.known = emptyTable();
    }
}
