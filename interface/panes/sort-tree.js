// The folders that will come to be, beside the list: counts, what is new, and whether there is room for copies. Choosing a folder
// shows only the files that will go there. Services used: files (space, byteText, home), moves of the plan.

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { newFolders, rowsBelow, treeRows } from "../lib/folder-tree.js";
import { guard } from "../lib/guard.js";
import { readyOf } from "../lib/move-plan.js";
import { emptyTable, splitPath } from "../lib/names.js";
import { count, fill, shortPath } from "../lib/wording.js";

/** "240 files into 12 folders · 9 new folders". */
export function summaryText(ready, folders, fresh) {
    if (ready === 0) {
        return qsTr("No file will go anywhere.");
    }
    const words = fill(qsTr("%1 into %2"), count(ready, qsTr("1 file"), qsTr("%1 files")), count(folders, qsTr("1 folder"), qsTr("%1 folders")));
    return words + " · " + (fresh === 0 ? qsTr("no new folder") : count(fresh, qsTr("1 new folder"), qsTr("%1 new folders")));
}

function isWritten(item, plan) {
    const said = plan.items[plan.ofRow[item.row]];
    return item.kind === "copy" || (item.kind === "move" && said.code === "disk");
}

/** How many bytes each file system gets: [{disk, bytes, free, folder}]. */
export function bytesByDisk(plan, ready, space) {
    const disks = emptyTable();
    ready.filter((item) => !item.along && isWritten(item, plan)).forEach((item) => {
        const base = plan.rows[item.row].base;
        if (disks[base] === undefined) {
            const found = space(base);
            disks[base] = { disk: found.disk, bytes: 0, free: found.free, folder: base };
        }
        disks[base].bytes += plan.rows[item.row].bytes;
    });
    const joined = [];
    Object.keys(disks).map((base) => disks[base]).forEach((each) => {
        const same = joined.find((other) => other.disk === each.disk && each.disk >= 0);
        if (same === undefined) {
            joined.push(each);
        } else {
            same.bytes += each.bytes;
        }
    });
    return joined;
}

/** What is to be said about room: {note, problem}. */
export function roomText(disks, byteText) {
    const tight = disks.filter((each) => each.free >= 0 && each.bytes > each.free);
    const sum = disks.reduce((bytes, each) => bytes + each.bytes, 0);
    if (tight.length > 0) {
        return { note: "", problem: fill(qsTr("The copies need %1, but only %2 are free for %3."), byteText(tight[0].bytes),
                                         byteText(tight[0].free), tight[0].folder) };
    }
    if (sum === 0) {
        return { note: "", problem: "" };
    }
    const free = disks.length === 1 && disks[0].free >= 0 ? "; " + fill(qsTr("%1 are free"), byteText(disks[0].free)) : "";
    return { note: fill(qsTr("%1 to be written"), byteText(sum)) + free, problem: "" };
}

export class SortTree {
    /** @param window  the main window's parts: pictures, livePlan */
    constructor(window) {
        this.window = window;
        this.form = shell.loadForm("panes/sort-tree.ui");
        this.tree = this.form.control("sortTree");
        this.book = null;
        this.ids = [];
        this.rows = [];
        this.tree.folderChosen.connect(guard("tree", () => this.showChosen()));
        this.form.control("sortShowAll").clicked.connect(guard("tree.all", () => this.showAll()));
    }

    /** Shows what a plan makes of the folders; ids are those of its rows. */
    show(plan, ids) {
        const book = plan.rows.book;
        const ready = readyOf(plan);
        const own = ready.filter((item) => !item.along);
        own.forEach((item) => book.count(splitPath(item.to).folder, item.row));
        this.book = book;
        this.ids = ids;
        const rows = treeRows(book);
        this.rows = rows;
        rows.filter((row) => row.above === "").forEach((row) => { row.name = shortPath(row.path, files.home); });
        this.tree.setFolders(rows);
        this.showChosen();
        const used = rows.filter((row) => row.count > 0);
        this.say(summaryText(own.length, used.length, newFolders(book)), bytesByDisk(plan, ready, (path) => files.space(path)));
    }

    say(summary, disks) {
        const room = roomText(disks, (bytes) => files.byteText(bytes));
        this.form.control("sortTreeSummary").text = summary;
        this.line("sortTreeSpaceNote", room.note);
        this.line("sortTreeProblem", room.problem);
    }

    line(name, text) {
        this.form.control(name).text = text;
        this.form.control(name).visible = text !== "";
    }

    /** Folders were made or taken away. */
    lookAgain() {
        this.rows.forEach((row) => { row.isNew = !files.info(row.path).exists; });
        this.tree.setFolders(this.rows);
    }

    showAll() {
        this.tree.chosen = "";
    }

    /** There is no plan, since something is wrong with the settings. */
    clear() {
        this.book = null;
        this.rows = [];
        this.tree.setFolders([]);
        this.say("", []);
        this.showChosen();
    }

    /** The list shows the files that go into the chosen folder; all of them where none is chosen. */
    showChosen() {
        const chosen = this.book === null ? "" : this.tree.chosen;
        this.form.control("sortShowAll").visible = chosen !== "";
        if (chosen === "") {
            this.window.pictures.showAll();
        } else {
            this.window.pictures.showOnly(rowsBelow(this.book, chosen).map((row) => this.ids[row]));
        }
    }
}
