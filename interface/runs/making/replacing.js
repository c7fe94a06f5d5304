// Results that replace files: the replaced file goes to the trash first, or, if there is none, into a folder beside it,
// so that the run can be undone. Pure but for translation; the services are passed in.
// Services used: moves (open, reopen, add, takeBack, end), files (identity, realFolder, copyPermissions).

import { joinPath } from "../../lib/names.js";

/** The name of the folder, beside a replaced file, that keeps it if its disk has no trash. */
export function replacedFolder() {
    return qsTr("Replaced") + " " + new Date().toISOString().slice(0, 10);
}

export class Replacing {
    /**
     * @param title    the name of the run that can be undone
     * @param earlier  the interrupted run to be continued, or ""
     */
    constructor(services, title, earlier) {
        this.services = services;
        this.title = title;
        this.earlier = earlier || "";
        /** Where the name of the run is recorded before anything is moved aside; null for nowhere. */
        this.record = null;
        this.run = "";
        this.count = 0;
        this.folder = replacedFolder();
    }

    begin() {
        if (this.run !== "") {
            return "";
        }
        const again = this.earlier === "" ? {} : this.services.moves.reopen(this.earlier);
        const opened = again.run === undefined ? this.services.moves.open(this.title) : again;
        this.run = opened.run || "";
        if (this.run !== "" && this.record !== null) {
            this.record.noteReplacing(this.run);
        }
        return opened.problem || "";
    }

    /** The run that can be undone, or "". */
    undoable() {
        return this.count > 0 ? this.run : this.earlier;
    }

    add(wish) {
        return this.services.moves.add(this.run, wish);
    }

    // Not every disk has a trash.
    putAside(folder, name) {
        const path = joinPath(folder, name);
        const trashed = this.add({ kind: "trash", from: path, to: "" });
        return trashed.status === "OK" ? trashed
            : this.add({ kind: "move", from: path, to: joinPath(joinPath(folder, this.folder), name), number: true });
    }

    /**
     * Puts the finished file `from` in place of the file that the item replaces: {status: "OK", "Taken" or "Failed",
     * message}. Taken: another file is there by now, which stays. If it fails, the old file is back in its place.
     */
    put(from, item) {
        const files = this.services.files;
        // The move engine works with real locations, not with the links that led there.
        const folder = files.realFolder(item.folder) || item.folder;
        const path = joinPath(folder, item.name);
        if (files.identity(path) !== item.replaced) {
            return { status: "Taken", message: "" };
        }
        const problem = this.begin();
        if (problem !== "") {
            return { status: "Failed", message: problem };
        }
        files.copyPermissions(path, from);
        const aside = this.putAside(folder, item.name);
        if (aside.status !== "OK") {
            return { status: "Failed", message: aside.message };
        }
        const put = this.add({ kind: "copy", from: from, to: path });
        if (put.status !== "OK") {
            this.services.moves.takeBack(this.run);
            return { status: "Failed", message: put.message };
        }
        files.copyPermissions(from, path); // if new files get other permissions from the folder
        this.count += 1;
        return { status: "OK", message: "" };
    }

    /** Returns what to say, or "". */
    end() {
        return this.run === "" ? "" : this.services.moves.end(this.run);
    }
}

/**
 * Once after a run was interrupted: files that were moved aside for a result which never arrived go back. Returns the
 * paths of the results that did arrive.
 */
export function settleReplaced(run, moves) {
    const opened = run === "" ? {} : moves.reopen(run);
    if (opened.run === undefined) {
        return [];
    }
    const last = opened.done[opened.done.length - 1];
    if (last !== undefined && last.kind !== "copy") {
        moves.takeBack(run);
    }
    moves.end(run);
    return opened.done.filter((item) => item.kind === "copy").map((item) => item.path);
}
