// The folders that a run will create, beside the list: counts, what is new, and whether there is room for copies.
// Choosing a folder shows only the files that will go there.

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { rowsBelow, treeParts, treeRows } from "./folder-tree.js";
import { guard } from "../../lib/guard.js";
import { isReadyRow } from "../../runs/move-plan.js";
import { DiskNeeds, roomText } from "../../runs/room.js";
import { fill, shortPath } from "../../lib/wording.js";

// Rows are processed in parts, so that the window stays responsive.
const AT_ONCE = 200;

/** "240 files into 12 folders (22 folders will be made, counting parents)". */
export function summaryText(ready, folders, fresh) {
    if (ready === 0) {
        return qsTr("No file will be moved.");
    }
    const words = fill(qsTr("%1 into %2"), qsTr("%n files", "", ready),
                       qsTr("%n folders", "", folders));
    return fresh === 0
        ? words : fill(qsTr("%1 (%2)"), words, qsTr("%n folders will be made, counting parents", "", fresh));
}

export class SortTree {
    /** @param list  the list of the window, in which the files of a folder are shown */
    constructor(list) {
        this.list = list;
        this.form = shell.loadForm("actions/sort/sort-tree.ui");
        this.tree = this.form.control("sortTree");
        this.book = null;
        this.ids = [];
        this.tree.folderChosen.connect(guard("tree", () => this.showChosen()));
        this.form.control("sortShowAll").clicked.connect(guard("tree.all", () => this.showAll()));
    }

    /** A generator that shows a plan's effect on the folders; ids are those of its rows. */
    * show(plan, ids) {
        const book = plan.rows.book;
        const needs = new DiskNeeds((path) => files.space(path));
        let ready = 0;
        for (let i = 0; i < plan.rows.length; i += 1) {
            if (isReadyRow(plan, i)) {
                book.count(plan.rows[i].node, i);
                needs.add(plan, i);
                ready += 1;
            }
            if (i % AT_ONCE === AT_ONCE - 1) {
                yield plan.rows.length;
            }
        }
        const sum = yield* this.fillTree(book, plan.rows.length);
        this.book = book;
        this.ids = ids;
        this.tree.showFolders();
        this.showChosen();
        this.say(summaryText(ready, sum.used, sum.fresh), needs.disks());
    }

    // {used: folders that get files themselves, fresh: those that will be made}
    * fillTree(book, shown) {
        const sum = { used: 0, fresh: 0 };
        this.tree.beginFolders();
        for (const rows of treeParts(book)) {
            rows.filter((row) => row.above === "").forEach((row) => { row.name = shortPath(row.path, files.home); });
            sum.used += rows.filter((row) => row.count > 0).length;
            sum.fresh += rows.filter((row) => row.isNew).length;
            this.tree.addFolders(rows);
            yield shown;
        }
        return sum;
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

    /** Folders were created or removed; the plan no longer holds. */
    lookAgain() {
        this.say("", []);
        const rows = this.book === null ? [] : treeRows(this.book);
        rows.forEach((row) => {
            row.isNew = !files.info(row.path).exists;
            row.name = row.above === "" ? shortPath(row.path, files.home) : row.name;
        });
        this.tree.setFolders(rows);
    }

    showAll() {
        this.tree.chosenFolder = "";
    }

    /** There is no plan because the settings are invalid. */
    clear() {
        this.book = null;
        this.tree.setFolders([]);
        this.say("", []);
        this.showChosen();
    }

    /** The list shows the files that go into the chosen folder; all of them if none is chosen. */
    showChosen() {
        const chosen = this.book === null ? "" : this.tree.chosenFolder;
        this.form.control("sortShowAll").visible = chosen !== "";
        if (chosen === "") {
            this.list.showAll();
        } else {
            this.list.showOnly(rowsBelow(this.book, chosen).map((row) => this.ids[row]));
        }
    }
}
