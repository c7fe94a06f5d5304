// Sort into Folders: moves, copies or links files into folders that a pattern names.

import { PHOTO_INPUT } from "../../lib/types.js";
import { count } from "../../lib/wording.js";
import { MOVES } from "../../runs/moves.js";
import { SortPane } from "./sort-pane.js";
import { presets } from "./sort-presets.js";
import * as step from "./sort-step.js";

function startText(number, settings) {
    return {
        move: () => count(number, qsTr("Sort 1 File into Folders"), qsTr("Sort %1 Files into Folders")),
        copy: () => count(number, qsTr("Copy 1 File into Folders"), qsTr("Copy %1 Files into Folders")),
        link: () => count(number, qsTr("Link 1 File into Folders"), qsTr("Link %1 Files into Folders")),
    }[settings.kind]();
}

function done(number, settings) {
    return {
        move: () => count(number, qsTr("1 file sorted"), qsTr("%1 files sorted")),
        copy: () => count(number, qsTr("1 file copied"), qsTr("%1 files copied")),
        link: () => count(number, qsTr("1 link made"), qsTr("%1 links made")),
    }[settings === null ? "move" : settings.kind]();
}

export const sort = {
    name: "sort",
    title: () => qsTr("Sort into Folders"),
    manner: MOVES,
    usesList: true,
    step: step,
    pane: SortPane,
    presets: presets,
    lists: () => "pictures",
    takes: PHOTO_INPUT,
    takesAlong: () => true,
    headings: () => ({ newName: qsTr("Folder") }),
    startText: startText,
    done: done,
    undone: (number) => count(number, qsTr("1 file put back"), qsTr("%1 files put back")),
};
