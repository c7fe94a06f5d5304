// The contents of the list in words: pictures, files of any kind, or folders. Pure but for translation; no service is
// used.

import { fill, pictures } from "./wording.js";

// A single file is named.
function leftOut(found, one, many) {
    return found.leftOut === 1 ? fill(one, found.example) : many;
}

const WORDS = {
    pictures: {
        count: pictures,
        none: () => qsTr("No pictures yet"),
        nothing: () => qsTr("No pictures found"),
        add: () => qsTr("Add Pictures…"),
        title: () => qsTr("Drop pictures or folders here"),
        text: () => qsTr("Then choose an action on the left. Your originals stay unchanged unless you ask for it."),
        leftOut: (found) =>
            leftOut(found, qsTr("“%1” was not added: it is not a supported picture."),
                    qsTr("%n files were not added: they are not supported pictures.", "", found.leftOut)),
        hidden: (number, action) =>
            fill(qsTr("%n files are not shown because %1 cannot use them.", "", number), action),
    },
    files: {
        count: (number) => qsTr("%n files", "", number),
        none: () => qsTr("No files yet"),
        nothing: () => qsTr("No files found"),
        add: () => qsTr("Add Files…"),
        title: () => qsTr("Drop files or folders here"),
        text: () => qsTr("Then set up the action on the right. You see every result before it is written."),
        leftOut: (found) => leftOut(found, qsTr("“%1” was not added: it is not a file."),
                                    qsTr("%n items were not added: they are not files.", "", found.leftOut)),
        hidden: (number, action) =>
            fill(qsTr("%n folders are not shown because %1 cannot use them.", "", number), action),
    },
    folders: {
        count: (number) => qsTr("%n folders", "", number),
        none: () => qsTr("No folders yet"),
        nothing: () => qsTr("No folders found"),
        add: () => qsTr("Add Folder…"),
        title: () => qsTr("Drop folders here"),
        text: () => qsTr("The folders themselves are renamed. What is in them does not change."),
        leftOut: (found) => leftOut(found, qsTr("“%1” was not added: it is not a folder."),
                                    qsTr("%n files were not added: they are not folders.", "", found.leftOut)),
        hidden: (number) => qsTr("%n files are not shown because folders are being renamed.", "", number),
    },
};

/**
 * The words for a list of "pictures", "files" or "folders": count(number), none(), nothing(), add(), title(), text(), leftOut(found),
 * hidden(number, title of the action).
 */
export function wordsFor(kind) {
    return WORDS[kind];
}
