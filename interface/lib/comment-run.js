// Writing the user comment into pictures and taking it back, with what the file really says afterwards. Pure but for translation;
// the service (mMeta) and files are handed in.

import { splitPath } from "./names.js";
import { logRow } from "./report.js";
import { expand, needsFacts, parse, problems } from "./tokens.js";
import { fill } from "./wording.js";

const NOT_A_PICTURE = () => qsTr("This file is not a picture that can be read.");
const NOT_WRITTEN = () => qsTr("The file stayed as it was: its type has no place for a comment, or the comment is too long, or the file cannot be written.");

// A comment of nothing but blanks reads as none.
function reads(comment) {
    return comment.trim() === "" ? "" : comment;
}

/** What is wrong with the text of a comment, as one sentence; "" if nothing is. */
export function commentProblem(text) {
    return problems(text)[0] || "";
}

/** A function (path, index) => comment for the text of a comment, which may have tokens in it. */
export function commentMaker(text, files) {
    const parts = parse(text);
    const asks = needsFacts(parts);
    return (path, index) => expand(parts, { path: path, index: index, facts: asks ? files.facts(path) : null }).text;
}

/** Writes one comment: {path, status, reason, before, after}. What the file says afterwards decides. */
export function writeComment(meta, path, comment) {
    const before = meta.hGetExifUc(path);
    if (meta.hSetExifData(path, comment) !== "OK") {
        return { path: path, status: "Failed", reason: NOT_A_PICTURE(), before: before, after: before };
    }
    const after = meta.hGetExifUc(path);
    const isWritten = after === reads(comment);
    return { path: path, status: isWritten ? "OK" : "Failed", reason: isWritten ? "" : NOT_WRITTEN(), before: before, after: after };
}

/** A generator that writes a comment into each file; yields what writeComment() gives. */
export function* writing(meta, paths, comment) {
    for (let i = 0; i < paths.length; ++i) {
        yield writeComment(meta, paths[i], comment(paths[i], i));
    }
}

/**
 * A generator that takes edits back, the last one first; yields what writeComment() gives. A comment that somebody changed meanwhile
 * stays.
 */
export function* takingBack(meta, edits) {
    for (const edit of edits.slice().reverse()) {
        const now = meta.hGetExifUc(edit.path);
        yield now === edit.after ? writeComment(meta, edit.path, edit.before)
            : { path: edit.path, status: "Skipped", reason: qsTr("The comment was changed meanwhile."), before: now, after: now };
    }
}

/** The edits among results that can be taken back. */
export function editsOf(results) {
    return results.filter((result) => result.status === "OK" && result.before !== result.after);
}

/** A result as a row of the log, with the old and the new comment. */
export function editRow(result, action, date, run) {
    const changed = fill(qsTr("“%1” became “%2”"), result.before, result.after);
    const photo = { name: splitPath(result.path).name, path: result.path };
    return logRow({ status: result.status, reason: result.status === "OK" ? changed : result.reason, photo: photo,
                    name: photo.name, path: result.path }, qsTr("Metadata"), action, date, run);
}
