// Stands for the part of the move engine that works one by one: files are names of a table, with their contents as values.

import { FolderNames } from "quorlin/files";
import { splitPath } from "../../interface/lib/names.js";

export class OneByOne {
    /** @param disk  {path: content}; folders that can be written are in `folders` */
    constructor(disk, folders) {
        this.disk = Object.assign({}, disk);
        this.folders = folders;
        this.trashed = [];
        this.done = [];
        this.opened = 0;
        this.ended = [];
        this.refuses = "";
    }

    open(title) {
        if (this.refuses) {
            return { problem: this.refuses };
        }
        this.opened += 1;
        this.title = title;
        return { run: "run " + this.opened };
    }

    free(to) {
        const parts = splitPath(to);
        let path = to;
        for (let number = 2; this.disk[path] !== undefined; number += 1) {
            path = parts.folder + "/" + FolderNames.numbered(parts.name, number);
        }
        return path;
    }

    add(run, wish) {
        const content = this.disk[wish.from];
        if (content === undefined) {
            return { status: "Failed", message: "gone", path: "" };
        }
        if (wish.kind === "trash") {
            delete this.disk[wish.from];
            this.trashed.push(content);
            this.done.push({ kind: "trash", from: wish.from, to: "", content: content });
            return { status: "OK", message: "", path: "" };
        }
        if (this.folders.indexOf(splitPath(wish.to).folder) < 0) {
            return { status: "Failed", message: "locked", path: "" };
        }
        const path = this.free(wish.to);
        this.disk[path] = wish.kind === "link" ? "-> " + wish.from : content;
        if (wish.kind === "move") {
            delete this.disk[wish.from];
        }
        this.done.push({ kind: wish.kind, from: wish.from, to: path, content: content });
        return { status: "OK", message: "", path: path };
    }

    takeBack() {
        const last = this.done.pop();
        if (last === undefined) {
            return null;
        }
        if (this.stuck) {
            this.done.push(last);
            return { status: "Failed", message: "stuck", kind: last.kind, from: last.from, to: last.to };
        }
        if (last.to) {
            delete this.disk[last.to];
        }
        if (last.kind === "move" || last.kind === "trash") {
            this.disk[last.from] = last.content;
        }
        return { status: "OK", message: "", kind: last.kind, from: last.from, to: last.to };
    }

    end(run) {
        this.ended.push(run);
        this.done = [];
        return "";
    }
}
