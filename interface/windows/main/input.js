// Adding pictures to the list: panels, drops, paste, recent folders; and saying what was left out.
// Services used: cToolBox (hOpenDialogFiles), files (collect), defaults.

import { cToolBox } from "quorlin";
import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { recall, keep, withNewest } from "../../lib/store.js";
import { count, fill, pictures, shortPath } from "../../lib/wording.js";

const KEPT_FOLDERS = 8;
const KEY = "RecentFolders";

function leftOutText(found) {
    return found.leftOut === 1
        ? fill(qsTr("“%1” is not a picture that can be taken"), found.example)
        : fill(qsTr("%1 files are not pictures that can be taken"), found.leftOut);
}

function addedText(found, added) {
    const parts = [];
    if (added > 0) {
        parts.push(fill(qsTr("%1 added"), pictures(added)));
    }
    if (found.paths.length > added) {
        parts.push(count(found.paths.length - added, qsTr("1 was in the list already"), qsTr("%1 were in the list already")));
    }
    if (found.leftOut > 0) {
        parts.push(leftOutText(found));
    }
    return parts.length > 0 ? parts.join(" · ") : qsTr("No pictures there");
}

export class Input {
    /** @param window  the main window's parts: form, pictures, action, say(text) */
    constructor(window) {
        this.window = window;
        this.recent = recall(defaults, KEY, { folders: [] }).folders;
        this.showRecent();
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
        this.window.say(addedText(found, added));
    }

    /** Files and folders, as they were dropped, pasted or named at start-up. */
    addPaths(paths) {
        const found = files.collect(paths, this.window.action.takes);
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
        const folder = shell.chooseFolder(qsTr("Add all pictures of a folder"), this.recent[0] || "");
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
