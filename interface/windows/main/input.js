// Adding pictures to the list: panels, drops, paste, recent folders; and saying what was left out.
// Services used: cToolBox (hOpenDialogFiles), files (collect), defaults.

import { cToolBox } from "quorlin";
import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { wordsFor } from "../../lib/input-words.js";
import { splitPath } from "../../lib/names.js";
import { recall, keep, withNewest } from "../../lib/store.js";
import { count, fill, shortPath } from "../../lib/wording.js";

const KEPT_FOLDERS = 8;
const KEY = "RecentFolders";

function addedText(found, added, words) {
    const parts = [];
    if (added > 0) {
        parts.push(fill(qsTr("%1 added"), words.count(added)));
    }
    if (found.paths.length > added) {
        parts.push(count(found.paths.length - added, qsTr("1 was in the list already"), qsTr("%1 were in the list already")));
    }
    if (found.leftOut > 0) {
        parts.push(words.leftOut(found));
    }
    return parts.length > 0 ? parts.join(" · ") : words.nothing();
}

// Folders are the items themselves: files among what was dropped are left out.
function foldersAmong(paths) {
    const isFolder = (path) => files.info(path).isFolder;
    const others = paths.filter((path) => !isFolder(path));
    return { paths: paths.filter(isFolder).map((path) => files.absolute(path)), folders: [], leftOut: others.length,
             example: others.length > 0 ? splitPath(others[0]).name : "" };
}

export class Input {
    /** @param window  the main window's parts: form, pictures, action, say(text) */
    constructor(window) {
        this.window = window;
        this.recent = recall(defaults, KEY, { folders: [] }).folders;
        this.showRecent();
    }

    words() {
        return wordsFor(this.window.action.lists(this.window.settings));
    }

    /** Says what can be added now. */
    showWords() {
        const words = this.words();
        const control = (name) => this.window.form.control(name);
        const areFolders = this.window.action.lists(this.window.settings) === "folders";
        control("addPicturesButton").text = qsTr("+ %1").replace("%1", words.add());
        control("addPicturesAction").text = words.add();
        control("emptyAddPictures").text = words.add();
        for (const name of ["addPicturesButton", "emptyAddPictures", "addPicturesAction"]) {
            control(name).visible = !areFolders;
        }
        control("emptyTitle").text = words.title();
        control("emptyText").text = words.text();
        const hidden = this.window.pictures.hiddenCount();
        control("hiddenNote").text = hidden > 0 ? words.hidden(hidden) : "";
        control("hiddenNote").visible = hidden > 0;
    }

    showRecent() {
        const texts = this.recent.map((folder) => shortPath(folder, files.home));
        this.window.form.setMenu("recentMenu", texts, this.recent, (folder) => this.addPaths([folder]));
    }

    rememberFolder(folder) {
        this.recent = withNewest(this.recent, folder, KEPT_FOLDERS);
        keep(defaults, KEY, { folders: this.recent });
        this.showRecent();
    }

    addFound(found) {
        const added = this.window.pictures.addPaths(found.paths);
        if (added > 0) {
            this.window.pictures.setFocus();
        }
        this.window.say(addedText(found, added, this.words()));
    }

    /** Files and folders, as they were dropped, pasted or named at start-up. */
    addPaths(paths) {
        const kind = this.window.action.lists(this.window.settings);
        const found = kind === "folders" ? foldersAmong(paths) : files.collect(paths, kind === "files" ? ["*"] : this.window.action.takes);
        for (const folder of found.folders) {
            this.rememberFolder(folder);
        }
        this.addFound(found);
    }

    addPictures() {
        const paths = cToolBox.hOpenDialogFiles(this.window.action.keyword);
        if (paths !== null && paths.length > 0) {
            this.addFound({ paths: paths, leftOut: 0, example: "" });
        }
    }

    addFolder() {
        const kind = this.window.action.lists(this.window.settings);
        const titles = { pictures: qsTr("Add all pictures of a folder"), files: qsTr("Add all files of a folder"), folders: qsTr("Add a folder") };
        const folder = shell.chooseFolder(titles[kind], this.recent[0] || "");
        if (folder !== null) {
            this.addPaths([folder]);
        }
    }

    paste() {
        const paths = shell.clipboardPaths();
        if (paths.length === 0) {
            this.window.say(qsTr("There are no files on the clipboard"));
        } else {
            this.addPaths(paths);
        }
    }
}
