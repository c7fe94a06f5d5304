// What the list holds, in words: pictures, files of any kind, or folders. Pure but for translation; no service is used.

import { fill, pictures } from "./wording.js";

// A single file is named.
function leftOut(found, one, many) {
    return found.leftOut === 1 ? fill(one, found.example) : many;
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
                    qsTr("%n files are not pictures that can be taken", "", found.leftOut)),
        hidden: (number) =>
            qsTr("%n other files of the list are not pictures that can be taken", "", number),
    },
    files: {
        count: (number) => qsTr("%n files", "", number),
        none: () => qsTr("No files yet"),
        nothing: () => qsTr("No files there"),
        add: () => qsTr("Add Files…"),
        title: () => qsTr("Drop files or folders here"),
        text: () => qsTr("Then say on the right what is to become of them. You see everything before it happens, and can undo it afterwards."),
        leftOut: (found) => leftOut(found, qsTr("“%1” cannot be taken"),
                                    qsTr("%n files cannot be taken", "", found.leftOut)),
        hidden: (number) =>
            qsTr("%n folders of the list are left out", "", number),
    },
    folders: {
        count: (number) => qsTr("%n folders", "", number),
        none: () => qsTr("No folders yet"),
        nothing: () => qsTr("No folders there"),
        add: () => qsTr("Add Folder…"),
        title: () => qsTr("Drop folders here"),
        text: () => qsTr("The folders themselves are worked on; what is in them stays in them."),
        leftOut: (found) => leftOut(found, qsTr("“%1” is not a folder"),
                                    qsTr("%n files are not folders", "", found.leftOut)),
        hidden: (number) =>
            qsTr("%n files of the list are left out", "", number),
    },
};

/**
 * The words for a list of "pictures", "files" or "folders": count(number), none(), nothing(), add(), title(), text(), leftOut(found),
 * hidden(number).
 */
export function wordsFor(kind) {
    return WORDS[kind];
}
