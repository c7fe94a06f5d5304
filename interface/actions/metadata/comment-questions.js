// What is asked before comments are written, and before a typed comment is dropped.
// Services used: shell (ask), files (holdsComment).

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { splitPath } from "../../lib/names.js";
import { PICTURE_INPUT } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";

// The name alone says that these can hold a comment.
const HOLDING = PICTURE_INPUT.filter((extension) => extension !== "gif" && extension !== "bmp")
    .concat(["jpe", "webp", "dng"]);

function mayHold(path) {
    return HOLDING.indexOf(splitPath(path).extension.toLowerCase()) >= 0 || files.holdsComment(path);
}

function pagesText(lost, isOne) {
    const pages = qsTr("%n more pages", "", lost.pages);
    if (isOne) {
        return fill(qsTr("This file has %1. Only the first page is kept; this cannot be undone."), pages);
    }
    const words = qsTr("%n files with several pages are left out, since writing would remove %1: %2.", "",
                       lost.files);
    return fill(words, pages, lost.words);
}

// What users must know before they write into pictures.
function warnings(paths, lost) {
    const without = paths.filter((path) => !mayHold(path)).length;
    return [
        qsTr("This changes the metadata inside your originals. Their pictures are not touched."),
        lost.files === 0 ? "" : pagesText(lost, paths.length === 1),
        without === 0 ? ""
            : qsTr("%n files have types that cannot hold a comment and stay unchanged.", "", without),
    ].filter((each) => each !== "");
}

/**
 * Whether to write: {goesOn, pagesMayGo: files with several pages may lose all but their first}.
 *
 * @param lost  what pagesAtStake() says of the paths
 */
export function mayWrite(paths, comment, lost) {
    const isOne = paths.length === 1 && lost.files === 1;
    const answer = shell.ask({
        title: qsTr("Write comment"),
        text: comment === ""
            ? qsTr("Clear the comments of %n pictures?", "", paths.length)
            : qsTr("Write the comment into %n pictures?", "", paths.length),
        detail: warnings(paths, lost).join(" "), initial: 1, escape: 1,
        buttons: [isOne ? qsTr("Write and Remove Pages") : qsTr("Write"), qsTr("Cancel")],
        check: lost.files > 0 && !isOne ? qsTr("Write into these too, keeping only their first page") : "",
    });
    return { goesOn: answer.button === 0, pagesMayGo: isOne || answer.checked };
}

/** What to do with a typed comment that is not in its file: "write", "discard" or, if possible, "stay". */
export function askAboutTyped(path, canStay) {
    const answer = shell.ask({
        title: qsTr("Comment not written"),
        text: fill(qsTr("Write your changes to %1?"), splitPath(path).name),
        detail: qsTr("The comment has not been written yet."), check: "", initial: 0, escape: canStay ? 2 : 1,
        buttons: [qsTr("Write"), qsTr("Discard")].concat(canStay ? [qsTr("Keep Editing")] : []),
    });
    return ["write", "discard", "stay"][answer.button];
}
