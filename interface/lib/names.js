// File names: taking paths apart, and finding free names for the results of a run. Pure; no service is used.

/** "/a/b.tar.gz" gives {folder: "/a", name: "b.tar.gz", base: "b.tar", extension: "gz"}. */
export function splitPath(path) {
    const slash = path.lastIndexOf("/");
    const name = path.slice(slash + 1);
    const dot = name.lastIndexOf(".");
    const hasExtension = dot > 0 && dot < name.length - 1;
    return {
        folder: slash > 0 ? path.slice(0, slash) : "/",
        name: name,
        base: hasExtension ? name.slice(0, dot) : name,
        extension: hasExtension ? name.slice(dot + 1) : "",
    };
}

export function joinPath(folder, name) {
    return folder.endsWith("/") ? folder + name : folder + "/" + name;
}

// Two names that differ only in case or in the way an accent is written are one name on many disks, so they count as
// the same everywhere: a result never gets a name that another disk would take for that of a second file.
export function nameKey(name) {
    return name.normalize("NFC").toLowerCase();
}

// What a disk takes as the name of one file, in bytes of UTF-8.
const MOST_BYTES = 255;

function bytesOf(code) {
    if (code < 0x80) {
        return 1;
    }
    if (code < 0x800) {
        return 2;
    }
    return code < 0x10000 ? 3 : 4;
}

/** The beginning of a text that has at most so many bytes of UTF-8; no character is cut in two. */
export function shortened(text, most) {
    let bytes = 0;
    let end = 0;
    while (end < text.length) {
        const code = text.codePointAt(end);
        bytes += bytesOf(code);
        if (bytes > most) {
            break;
        }
        end += code > 0xffff ? 2 : 1;
    }
    return text.slice(0, end);
}

function lengthOf(text) {
    return Array.from(text).reduce((bytes, character) => bytes + bytesOf(character.codePointAt(0)), 0);
}

/** "photo.jpg", 3 gives "photo (3).jpg". A name that would be too long with the number loses the end of its base. */
export function numberedName(name, number) {
    const parts = splitPath(name);
    const mark = " (" + number + ")";
    const ending = mark + (parts.extension ? "." + parts.extension : "");
    const left = MOST_BYTES - lengthOf(ending);
    return left > 0 ? shortened(parts.base, left) + ending : shortened(name, MOST_BYTES - mark.length) + mark;
}

/** A table without entries of its own, for ten thousand names: the engine's Map and Set take twenty times as long. */
export function emptyTable() {
    return Object.create(null);
}

/**
 * The names of one folder during a run: those on the disk and those that results of the run were given.
 */
export class FolderNames {
    constructor(namesOnDisk) {
        this.exact = emptyTable();
        this.onDisk = emptyTable();
        for (const name of namesOnDisk) {
            this.exact[name] = true;
            this.onDisk[nameKey(name)] = name;
        }
        this.given = emptyTable();
        this.nextNumber = emptyTable();
    }

    /** The name on the disk that stands in the way of this one, as it is written there; null if none. */
    onDiskAs(name) {
        return this.exact[name] ? name : this.onDisk[nameKey(name)] || null;
    }

    /** True if a result of this run was given that name. */
    isGiven(name) {
        return this.given[nameKey(name)] === true;
    }

    isFree(name) {
        return !this.isGiven(name) && this.onDiskAs(name) === null;
    }

    give(name) {
        this.given[nameKey(name)] = true;
        return name;
    }

    /** Gives the first free numbered form of the name, counting from 2. */
    giveNumbered(name) {
        const key = nameKey(name);
        let number = this.nextNumber[key] || 2;
        while (!this.isFree(numberedName(name, number))) {
            number += 1;
        }
        this.nextNumber[key] = number + 1;
        return this.give(numberedName(name, number));
    }
}
