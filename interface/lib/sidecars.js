// Files that belong to a picture and move with it: settings of other programs, previews and voice notes that have its
// name. Services used: files (namesEndingIn), passed in.

import { emptyTable, joinPath, splitPath } from "./names.js";

/** Extensions of such files, in lower case. */
export const SIDECARS = ["xmp", "aae", "thm", "pp3", "dop", "cos", "on1", "wav"];

const ENDINGS = SIDECARS.map((ending) => "." + ending);
const ENDING = new RegExp("[^.]\\.(" + SIDECARS.join("|") + ")$", "i");

/**
 * Those of these files that move with one of the pictures: their extension is one of SIDECARS, and they have its name.
 */
export function goingAlong(candidates, pictures) {
    const bearers = emptyTable();
    candidates.filter((path) => ENDING.test(path))
        .forEach((path) => { bearers[path.slice(0, path.lastIndexOf("."))] = false; });
    if (candidates.length > 0) {
        pictures.forEach((path) => {
            const file = splitPath(path);
            for (const bearer of [path, joinPath(file.folder, file.base)]) {
                if (bearers[bearer] === false) {
                    bearers[bearer] = true;
                }
            }
        });
    }
    return candidates.filter((path) => bearers[path.slice(0, path.lastIndexOf("."))] === true);
}

function push(table, key, value) {
    if (table[key] === undefined) {
        table[key] = [];
    }
    table[key].push(value);
}

/** The sidecar files of folders, listed once per folder. Each sidecar belongs to one picture only. */
export class Sidecars {
    constructor(files) {
        this.files = files;
        this.folders = emptyTable();
        this.given = emptyTable();
    }

    // By the part before the extension: for "a.xmp" that is "a", for "a.jpg.xmp" it is "a.jpg".
    inFolder(folder) {
        if (this.folders[folder] === undefined) {
            const found = emptyTable();
            // Ten thousand names of pictures are not handed over to be thrown away here.
            this.files.namesEndingIn(folder, ENDINGS).filter((name) => ENDING.test(name))
                .forEach((name) => push(found, splitPath(name).base, name));
            this.folders[folder] = found;
        }
        return this.folders[folder];
    }

    /** Whether there are any in a folder. Most have none, and then their files need not be looked up. */
    areIn(folder) {
        return Object.keys(this.inFolder(folder)).length > 0;
    }

    /**
     * The sidecars of a file that do not belong to another one: [{name, ending}]. ending is what follows the file's own
     * name without extension: ".xmp", ".jpg.xmp". A sidecar has none itself.
     */
    of(path) {
        const file = splitPath(path);
        if (ENDING.test(file.name)) {
            return [];
        }
        const found = this.inFolder(file.folder);
        const names = (found[file.name] || []).concat(file.name === file.base ? [] : found[file.base] || []);
        const own = names.filter((name) => this.given[joinPath(file.folder, name)] === undefined);
        own.forEach((name) => { this.given[joinPath(file.folder, name)] = path; });
        return own.map((name) => ({ name: name, ending: name.slice(file.base.length) }));
    }

    /** The file to which this sidecar belongs, or undefined. */
    ownerOf(path) {
        return this.given[path];
    }
}
