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

/** "photo.jpg", 3 gives "photo (3).jpg". */
export function numberedName(name, number) {
    const parts = splitPath(name);
    return parts.base + " (" + number + ")" + (parts.extension ? "." + parts.extension : "");
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
