// What is asked before comments are written, and before one that was typed goes.
// Services used: shell (ask), files (holdsComment).

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { splitPath } from "../../lib/names.js";
import { PICTURE_INPUT } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";

// Of these the name says already that they can hold a comment.
const HOLDING = PICTURE_INPUT.filter((extension) => extension !== "gif" && extension !== "bmp")
    .concat(["jpe", "webp", "dng"]);

function mayHold(path) {
    return HOLDING.indexOf(splitPath(path).extension.toLowerCase()) >= 0 || files.holdsComment(path);
}

function pagesText(lost, isOne) {
    const pages = qsTr("%n further pages", "", lost.pages);
    if (isOne) {
        return fill(qsTr("This file has %1, which would be taken out and cannot be brought back: only its first page is kept."), pages);
    }
    const words = qsTr("%n files have several pages and are left out; their comments would cost them %1: %2.", "",
                       lost.files);
    return fill(words, pages, lost.words);
}

// What whoever writes into pictures must know before.
function warnings(paths, lost) {
    const without = paths.filter((path) => !mayHold(path)).length;
    return [
        qsTr("The originals themselves are changed: their comment, and nothing else in them."),
        lost.files === 0 ? "" : pagesText(lost, paths.length === 1),
        without === 0 ? ""
            : qsTr("%n files are of types that have no place for a comment, and stay as they are.", "", without),
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
            ? qsTr("Empty the comments of %n pictures?", "", paths.length)
            : qsTr("Write the comment into %n pictures?", "", paths.length),
        detail: warnings(paths, lost).join(" "), initial: 1, escape: 1,
        buttons: [isOne ? qsTr("Write and Remove Pages") : qsTr("Write"), qsTr("Cancel")],
        check: lost.files > 0 && !isOne ? qsTr("Write into these too, and keep only their first page") : "",
    });
    return { goesOn: answer.button === 0, pagesMayGo: isOne || answer.checked };
}

/** What becomes of a comment that was typed for a file and is not in it: "write", "discard" or, where that can be, "stay". */
export function askAboutTyped(path, canStay) {
    const answer = shell.ask({
        title: qsTr("Comment not written"),
        text: fill(qsTr("Write what was typed into %1?"), splitPath(path).name),
        detail: qsTr("It is not in the file yet."), check: "", initial: 0, escape: canStay ? 2 : 1,
        buttons: [qsTr("Write"), qsTr("Discard")].concat(canStay ? [qsTr("Keep Typing")] : []),
    });
    return ["write", "discard", "stay"][answer.button];
}
