// A file service that works on a table of names, and pictures for it.

import { splitPath } from "../../interface/lib/names.js";

export class FakeFiles {
    /** @param entries  {path: bytes or "folder"} */
    constructor(entries) {
        this.entries = Object.assign({}, entries);
        this.stagings = [];
        this.removed = [];
        this.appearing = [];
        this.dataFolder = "/data";
        this.texts = {};
    }

    info(path) {
        const entry = this.entries[path];
        return { exists: entry !== undefined, isFolder: entry === "folder", isLink: false,
                 bytes: typeof entry === "number" ? entry : -1, writable: true };
    }

    names(folder) {
        return Object.keys(this.entries).filter((path) => splitPath(path).folder === folder).map((path) => splitPath(path).name);
    }

    makeFolder(folder) {
        if (folder.startsWith("/sealed")) {
            return "the folder is sealed";
        }
        this.entries[folder] = "folder";
        return "";
    }

    removeEmptyFolder(folder) {
        if (this.names(folder).length === 0) {
            delete this.entries[folder];
            this.removed.push(folder);
        }
    }

    sweep() {
        return undefined;
    }

    makeStaging(folder) {
        const staging = folder + "/.unfinished/";
        this.stagings.push(staging);
        return staging;
    }

    removeStaging(staging) {
        this.stagings = this.stagings.filter((other) => other !== staging);
        Object.keys(this.entries).filter((path) => path.startsWith(staging)).forEach((path) => { delete this.entries[path]; });
    }

    place(from, to, replace) {
        if (this.appearing.indexOf(to) >= 0) {
            this.entries[to] = 1;
            this.appearing = [];
        }
        if (this.entries[to] !== undefined && !replace) {
            return { status: "Taken", message: "" };
        }
        this.entries[to] = this.entries[from];
        delete this.entries[from];
        return { status: "OK", message: "" };
    }

    storedSize(path) {
        const size = (this.sizes || {})[path];
        return size === undefined ? null : size;
    }

    readText(path) {
        return this.texts[path] === undefined ? null : this.texts[path];
    }

    appendText(path, text) {
        this.texts[path] = (this.texts[path] || "") + text;
        return "";
    }
}

export function photo(path, width, height) {
    return { path: path, name: splitPath(path).name, type: "JPEG", bytes: 1000, width: width, height: height, orientation: 1 };
}
