// Results that take the place of files: what they replace goes to the trash first, or, where there is none, into a folder beside it, so
// that the run can be undone. Pure but for translation; the services are handed in.
// Services used: moves (open, add, takeBack, end), files (identity, realFolder, copyPermissions).

import { joinPath } from "../../lib/names.js";

function dayText(date) {
    return date.toISOString().slice(0, 10);
}

export class Replacing {
    /** @param title  what the run is called that can be undone */
    constructor(services, title) {
        this.services = services;
        this.title = title;
        this.run = "";
        this.count = 0;
        this.folder = qsTr("Replaced") + " " + dayText(new Date());
    }

    begin() {
        if (this.run !== "") {
            return "";
        }
        const opened = this.services.moves.open(this.title);
        this.run = opened.run || "";
        return opened.problem || "";
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
     * Puts the finished file `from` in the place of what the item replaces: {status: "OK", "Taken" or "Failed", message}. Taken: something
     * else is there by now, which stays. Where it fails the old file is in its place again.
     */
    put(from, item) {
        const files = this.services.files;
        // The move engine wants to know where things are, not how somebody came there.
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
        this.count += 1;
        return { status: "OK", message: "" };
    }

    /** Returns what to say, or "". */
    end() {
        const run = this.run;
        this.run = "";
        return run === "" ? "" : this.services.moves.end(run);
    }
}
