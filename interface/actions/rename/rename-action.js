// Rename: gives files or folders new names.

import { MOVES } from "../../runs/moves.js";
import { RenamePane } from "./rename-pane.js";
import { presets } from "./rename-presets.js";
import * as step from "./rename-step.js";

function areFolders(settings) {
    return settings !== null && settings.what === "folders";
}

export const rename = {
    name: "rename",
    title: () => qsTr("Rename"),
    givesNames: true,
    doing: () => qsTr("Renaming"),
    manner: MOVES,
    usesList: true,
    step: step,
    pane: RenamePane,
    presets: presets,
    lists: (settings) => settings.what,
    startText: (number, settings) => (areFolders(settings) ? qsTr("Rename %n Folders", "", number)
                                                           : qsTr("Rename %n Files", "", number)),
    done: (number, settings) => (areFolders(settings) ? qsTr("%n folders renamed", "", number)
                                                      : qsTr("%n files renamed", "", number)),
    undone: (number, settings) => (areFolders(settings) ? qsTr("%n names restored", "", number)
                                                        : qsTr("%n names restored", "", number)),
};
