// Sort into Folders: moves, copies or links files into folders that a pattern names.

import { PHOTO_INPUT } from "../../lib/types.js";

import { fill } from "../../lib/wording.js";
import { MOVES } from "../../runs/moves.js";
import { SortPane } from "./sort-pane.js";
import { presets } from "./sort-presets.js";
import * as step from "./sort-step.js";

function startText(number, settings) {
    return {
        move: () => qsTr("Sort %n Files into Folders", "", number),
        copy: () => qsTr("Copy %n Files into Folders", "", number),
        link: () => qsTr("Link %n Files into Folders", "", number),
    }[settings.kind]();
}

// "24 files moved into 12 folders · 22 folders made"; for an earlier run the folders are unknown.
function done(number, settings, folders) {
    if (settings !== null && folders !== undefined && folders.used.length > 0) {
        const files = {
            move: () => qsTr("%n files moved", "", number),
            copy: () => qsTr("%n files copied", "", number),
            link: () => qsTr("%n files linked", "", number),
        }[settings.kind]();
        const words = fill(qsTr("%1 into %2"), files, qsTr("%n folders", "", folders.used.length));
        return folders.made === 0 ? words : words + " · " + qsTr("%n folders made", "", folders.made);
    }
    return {
        move: () => qsTr("%n files sorted", "", number),
        copy: () => qsTr("%n files copied", "", number),
        link: () => qsTr("%n links created", "", number),
    }[settings === null ? "move" : settings.kind]();
}

export const sort = {
    name: "sort",
    title: () => qsTr("Sort into Folders"),
    doing: () => qsTr("Sorting"),
    manner: MOVES,
    usesList: true,
    step: step,
    pane: SortPane,
    presets: presets,
    lists: () => "pictures",
    takes: PHOTO_INPUT,
    takesAlong: () => true,
    headings: () => ({ newName: qsTr("Into") }),
    startText: startText,
    fillsFolders: true,
    done: done,
    undone: (number) => qsTr("%n files restored", "", number),
};
