// Sorting one picture after the other into folders: what was done with which picture, where it is now, and undoing it.
// Pure but for translation; the move engine, the file service and the log are handed in.

import { emptyTable, joinPath, splitPath } from "../../lib/names.js";
import { logRow } from "../../runs/report.js";
import { fill } from "../../lib/wording.js";

export const MODES = ["move", "copy", "link"];

export const TRASH = "trash";

/** The act in words, as the log and the list say it. */
export function actWords(kind, label) {
    const words = { move: qsTr("Moved to %1"), copy: qsTr("Copied to %1"), link: qsTr("Linked in %1"),
                    trash: qsTr("In the trash") };
    return fill(words[kind], label);
}

function logWords(kind, label) {
    const words = { move: qsTr("Move to %1"), copy: qsTr("Copy to %1"), link: qsTr("Link in %1"),
                    trash: qsTr("Trash") };
    return fill(words[kind], label);
}

function failed(message) {
    return { status: "Failed", message: message, act: null };
}

export class HandSorting {
    /**
     * @param moves   the move engine: open, add, takeBack, end
     * @param along   function(path): the files that move with a picture, [{name, ending}, ...]
     * @param keep    function(rows): adds rows to the log; returns a message if that failed
     */
    constructor(moves, along, keep) {
        this.moves = moves;
        this.along = along;
        this.keep = keep;
        this.run = "";
        this.logProblem = "";
        this.forget();
    }

    forget() {
        this.acts = [];
        this.byPicture = emptyTable();
        this.counts = emptyTable();
        this.companions = emptyTable();
    }

    isOpen() {
        return this.run !== "";
    }

    /** Where the file of a picture is now; "" in the trash. */
    placeOf(photo) {
        const act = this.lastOf(photo, (each) => each.kind === "move" || each.kind === TRASH);
        if (act === null) {
            return photo.path;
        }
        return act.kind === TRASH ? "" : act.parts[0].to;
    }

    isTrashed(photo) {
        return this.placeOf(photo) === "";
    }

    /** Everything that was done to a picture and is still in effect, oldest first: [{kind, label, from}, ...]. */
    doneWith(photo) {
        return this.byPicture[photo.id] || [];
    }

    /** The ids of the pictures to which something was done. */
    decided() {
        return Object.keys(this.byPicture).filter((id) => this.byPicture[id].length > 0).map(Number);
    }

    /** The last act that is in effect, or null. */
    last() {
        return this.acts.length > 0 ? this.acts[this.acts.length - 1] : null;
    }

    /** What was done to it, in words; "" for nothing. */
    wordsFor(photo) {
        return this.doneWith(photo).map((act) => actWords(act.kind, act.label)).join(" · ");
    }

    /** How many pictures of this session are in a folder, counting what was done here. */
    countIn(folder) {
        return this.counts[folder] || 0;
    }

    lastOf(photo, test) {
        return this.doneWith(photo).slice().reverse().find(test) || null;
    }

    /**
     * Puts a picture {id, name, original path} into the folder of a slot {path, label}: {status, message, act}.
     * Existing files are never replaced: a name that is taken gets a number.
     */
    put(photo, kind, slot) {
        const from = this.placeOf(photo);
        if (from === "") {
            return failed(qsTr("This picture is in the trash. Use Undo to restore it."));
        }
        if (kind === "move" && splitPath(from).folder === slot.path) {
            return { status: "Same", message: fill(qsTr("This picture is already in %1."), slot.label), act: null };
        }
        return this.act(photo, kind, from, slot);
    }

    trash(photo) {
        const from = this.placeOf(photo);
        return from === ""
            ? failed(qsTr("This picture is already in the trash."))
            : this.act(photo, TRASH, from, { path: "", label: "" });
    }

    act(photo, kind, from, slot) {
        const problem = this.open();
        if (problem) {
            return failed(problem);
        }
        const act = { id: photo.id, kind: kind, label: slot.label, folder: slot.path, from: from, parts: [],
                       left: kind === "move" || kind === TRASH ? this.sessionFolder(photo) : "" };
        const result = this.addPart(act, kind, from, joinPath(slot.path, splitPath(from).name));
        if (result.status === "OK") {
            this.addAlong(act, from);
            this.acts.push(act);
            this.byPicture[photo.id] = this.doneWith(photo).concat([act]);
            this.count(act, 1);
        }
        this.write([this.row(kind, from, result, logWords(kind, slot.label))]);
        return { status: result.status, message: result.message, act: result.status === "OK" ? act : null };
    }

    addPart(act, kind, from, to) {
        const result = this.moves.add(this.run, { kind: kind, from: from, to: kind === TRASH ? "" : to, number: true });
        if (result.status === "OK") {
            act.parts.push({ from: from, to: result.path || "" });
        }
        return result;
    }

    // The folder is searched once per picture, not at every key.
    alongOf(path) {
        if (this.companions[path] === undefined) {
            this.companions[path] = this.along(path);
        }
        return this.companions[path];
    }

    // Companion files get the name that the picture got.
    addAlong(act, from) {
        if (act.kind === "link") {
            return;
        }
        const folder = splitPath(from).folder;
        const to = act.kind === TRASH ? from : act.parts[0].to;
        const gone = [];
        for (const other of this.alongOf(from)) {
            const result = this.addPart(act, act.kind, joinPath(folder, other.name),
                                        joinPath(act.folder, splitPath(to).base + other.ending));
            if (result.status === "OK") {
                gone.push({ name: result.path ? splitPath(result.path).name : other.name, ending: other.ending });
            } else {
                this.write([this.row(act.kind, joinPath(folder, other.name), result,
                                     logWords(act.kind, act.label))]);
            }
        }
        if (act.kind === "move") {
            this.companions[to] = gone;
        }
    }

    /** Undoes the last act that is in effect: {status, message, act}, or null if there is none. */
    takeBack() {
        const act = this.last();
        if (act === null) {
            return null;
        }
        while (act.parts.length > 0) {
            const part = act.parts[act.parts.length - 1];
            const result = this.moves.takeBack(this.run);
            if (result === null || result.status !== "OK") {
                return this.notTakenBack(act, part, result);
            }
            act.parts.pop();
            if (act.parts.length === 0) {
                this.acts.pop();
                this.byPicture[act.id] = this.doneWith({ id: act.id }).slice(0, -1);
                this.count(act, -1);
                this.write([this.row("move", part.to, { status: "OK", message: "", path: part.from },
                                     fill(qsTr("Undo: %1"), logWords(act.kind, act.label)))]);
            }
        }
        return { status: "OK", message: "", act: act };
    }

    notTakenBack(act, part, result) {
        const message = result === null ? qsTr("There is nothing left to undo.") : result.message;
        this.write([this.row("move", part.to, { status: "Failed", message: message, path: "" },
                             fill(qsTr("Undo: %1"), logWords(act.kind, act.label)))]);
        return { status: "Failed", message: message, act: act };
    }

    /** Ends the session: from then on everything can be undone as a whole, from the log. Returns a message, or "". */
    end() {
        if (!this.isOpen()) {
            return "";
        }
        const problem = this.moves.end(this.run);
        this.run = "";
        this.forget();
        return problem;
    }

    open() {
        if (this.isOpen()) {
            return "";
        }
        const opened = this.moves.open(qsTr("Sort by Hand"));
        this.run = opened.run || "";
        return opened.problem || "";
    }

    // The folder into which an earlier act of this session put the picture, and which it leaves now.
    sessionFolder(photo) {
        const act = this.lastOf(photo, (each) => each.kind === "move");
        return act === null ? "" : act.folder;
    }

    count(act, change) {
        if (act.folder !== "") {
            this.counts[act.folder] = this.countIn(act.folder) + change;
        }
        if (act.left !== "") {
            this.counts[act.left] = this.countIn(act.left) - change;
        }
    }

    row(kind, from, result, action) {
        const isThere = result.status === "OK" && Boolean(result.path) && kind !== TRASH;
        const parts = { status: result.status, reason: result.message,
                        photo: { name: splitPath(from).name, path: from },
                        name: isThere ? splitPath(result.path).name : "", path: isThere ? result.path : "" };
        return logRow(parts, qsTr("Sort by Hand"), action, new Date().toISOString(), this.run);
    }

    write(rows) {
        this.logProblem = this.keep(rows) || this.logProblem;
    }
}
