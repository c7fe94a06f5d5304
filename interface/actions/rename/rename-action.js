// Rename: gives files or folders new names.

import { count } from "../../lib/wording.js";
import { MOVES } from "../../runs/moves.js";
import { RenamePane } from "./rename-pane.js";
import { presets } from "./rename-presets.js";
import * as step from "./rename-step.js";

// One of four texts: for a file, files, a folder, folders.
function renamed(settings, number, texts) {
    const first = settings !== null && settings.what === "folders" ? 2 : 0;
    return count(number, texts[first], texts[first + 1]);
}

export const rename = {
    name: "rename",
    title: () => qsTr("Rename"),
    manner: MOVES,
    usesList: true,
    step: step,
    pane: RenamePane,
    presets: presets,
    lists: (settings) => settings.what,
    startText: (number, settings) =>
        renamed(settings, number, [qsTr("Rename 1 File"), qsTr("Rename %1 Files"), qsTr("Rename 1 Folder"),
                                                                qsTr("Rename %1 Folders")]),
    done: (number, settings) =>
        renamed(settings, number, [qsTr("1 file renamed"), qsTr("%1 files renamed"), qsTr("1 folder renamed"),
                                                           qsTr("%1 folders renamed")]),
    undone: (number, settings) => renamed(settings, number, [
        qsTr("1 file has its old name again"), qsTr("%1 files have their old names again"),
        qsTr("1 folder has its old name again"), qsTr("%1 folders have their old names again"),
    ]),
};
