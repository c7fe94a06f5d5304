// What the list holds, in words: pictures, files of any kind, or folders. Pure but for translation; no service is used.

import { count, fill, pictures } from "./wording.js";

function leftOut(found, one, many) {
    return found.leftOut === 1 ? fill(one, found.example) : fill(many, found.leftOut);
}

const WORDS = {
    pictures: {
        count: pictures,
        none: () => qsTr("No pictures yet"),
        nothing: () => qsTr("No pictures there"),
        add: () => qsTr("Add Pictures…"),
        title: () => qsTr("Drop pictures or folders here"),
        text: () => qsTr("Then choose at the left what to do with them. Your originals stay as they are unless you say otherwise."),
        leftOut: (found) =>
            leftOut(found, qsTr("“%1” is not a picture that can be taken"),
                    qsTr("%1 files are not pictures that can be taken")),
        hidden: (number) =>
            count(number, qsTr("1 other file of the list is not a picture that can be taken"),
                  qsTr("%1 other files of the list are not pictures that can be taken")),
    },
    files: {
        count: (number) => count(number, qsTr("1 file"), qsTr("%1 files")),
        none: () => qsTr("No files yet"),
        nothing: () => qsTr("No files there"),
        add: () => qsTr("Add Files…"),
        title: () => qsTr("Drop files or folders here"),
        text: () => qsTr("Then say on the right what is to become of them. You see everything before it happens, and can undo it afterwards."),
        leftOut: (found) => leftOut(found, qsTr("“%1” cannot be taken"), qsTr("%1 files cannot be taken")),
        hidden: (number) =>
            count(number, qsTr("1 folder of the list is left out"), qsTr("%1 folders of the list are left out")),
    },
    folders: {
        count: (number) => count(number, qsTr("1 folder"), qsTr("%1 folders")),
        none: () => qsTr("No folders yet"),
        nothing: () => qsTr("No folders there"),
        add: () => qsTr("Add Folder…"),
        title: () => qsTr("Drop folders here"),
        text: () => qsTr("The folders themselves are worked on; what is in them stays in them."),
        leftOut: (found) => leftOut(found, qsTr("“%1” is not a folder"), qsTr("%1 files are not folders")),
        hidden: (number) =>
            count(number, qsTr("1 file of the list is left out"), qsTr("%1 files of the list are left out")),
    },
};

/**
 * The words for a list of "pictures", "files" or "folders": count(number), none(), nothing(), add(), title(), text(), leftOut(found),
 * hidden(number).
 */
export function wordsFor(kind) {
    return WORDS[kind];
}
