// Writing the user comment into pictures and reverting it, with what the file really says afterwards. Pure but for translation; what
// reads and writes comments is handed in.

import { splitPath } from "./names.js";
import { logRow, undoing } from "./report.js";
import { expand, needsFacts, parse, problems, tokens } from "./tokens.js";
import { fill } from "./wording.js";

// Stands for any picture where there is none yet.
const MADE_UP = { path: "/IMG_4711.JPG", facts: { taken: "2026-08-14T10:20:30", created: "2026-08-14T10:20:30", changed: "2026-08-15T09:00:00",
                                                       width: 4032, height: 3024, bytes: 2440000 } };

/** Reads and writes comments with the services mMeta and files: read(path) => text; write(path, text) => "" or what went wrong. */
export function commentsOf(meta, files) {
    return { read: (path) => meta.hGetExifUc(path), write: (path, comment) => files.writeComment(path, comment), isThere: (path) => files.info(path).exists };
}

// A comment of nothing but blanks reads as none.
function reads(comment) {
    return comment.trim() === "" ? "" : comment;
}

/** What is wrong with the text of a comment that may have tokens in it, as one sentence; "" if nothing is. */
export function commentProblem(text) {
    return problems(text)[0] || "";
}

/** A function (path, index) => comment for the text of a comment, which may have tokens in it. */
export function commentMaker(text, files) {
    const parts = parse(text);
    const asks = needsFacts(parts);
    return (path, index) => expand(parts, { path: path, index: index, facts: asks ? files.facts(path) : null }).text;
}

/** What a text with tokens comes to: {name, comment} for the picture at a path, or for one that is made up where path is "". */
export function commentExample(text, path, files) {
    if (path !== "") {
        return { name: splitPath(path).name, comment: commentMaker(text, files)(path, 0) };
    }
    const facts = Object.assign({}, MADE_UP.facts);
    tokens().forEach((each) => { facts[each.name] = facts[each.name] === undefined ? each.example : facts[each.name]; });
    return { name: splitPath(MADE_UP.path).name, comment: expand(parse(text), { path: MADE_UP.path, index: 0, facts: facts }).text };
}

/** Writes one comment: {path, status, reason, before, after}. What the file says afterwards decides. */
export function writeComment(comments, path, comment) {
    const before = comments.read(path);
    const problem = comments.write(path, comment);
    const after = comments.read(path);
    const isWritten = problem === "" && after === reads(comment);
    return { path: path, status: isWritten ? "OK" : "Failed", before: before, after: after,
             reason: isWritten ? "" : problem || qsTr("The file does not say what was written into it.") };
}

/** A generator that writes a comment into each file; yields what writeComment() gives. */
export function* writing(comments, paths, comment) {
    for (let i = 0; i < paths.length; ++i) {
        yield writeComment(comments, paths[i], comment(paths[i], i));
    }
}

// Why an edit is not reverted; "" where it can be.
function obstacle(comments, edit, now) {
    if (!comments.isThere(edit.path)) {
        return { status: "Failed", reason: qsTr("The file is not there any more.") };
    }
    if (now === reads(edit.before)) {
        return { status: "Skipped", reason: qsTr("It has its old comment already.") };
    }
    return now === edit.after ? null
        : { status: "Skipped", reason: fill(qsTr("The comment was changed since and stays: “%1”"), now) };
}

function revert(comments, edit) {
    const now = comments.read(edit.path);
    const found = obstacle(comments, edit, now);
    return found === null ? writeComment(comments, edit.path, edit.before)
        : { path: edit.path, status: found.status, reason: found.reason, before: now, after: now };
}

/**
 * A generator that gives pictures their old comments again; yields what writeComment() gives, with undoes, the run of the edit. A
 * comment that somebody changed since stays.
 *
 * @param edits  {path, before, after, run}, in the order in which they are reverted: the newest first
 */
export function* reverting(comments, edits) {
    for (const edit of edits) {
        yield Object.assign(revert(comments, edit), { undoes: edit.run });
    }
}

/** The edits among the results of a run that can be reverted, the newest first. */
export function editsOf(results, run) {
    return results.filter((result) => result.status === "OK" && result.before !== result.after)
        .map((result) => ({ path: result.path, before: result.before, after: result.after, run: run })).reverse();
}

/** What an edit was, as one sentence. */
export function editWords(before, after) {
    if (before === "" || after === "") {
        return before === "" ? fill(qsTr("“%1” was written"), after) : fill(qsTr("“%1” was emptied"), before);
    }
    return fill(qsTr("“%1” became “%2”"), before, after);
}

/** A result as a row of the log, with the old and the new comment. */
export function editRow(result, action, date, run) {
    const photo = { name: splitPath(result.path).name, path: result.path };
    const row = logRow({ status: result.status, reason: result.reason, photo: photo, name: photo.name, path: result.path },
                       qsTr("Metadata"), action, date, run);
    const edit = Object.assign(row, { before: result.before, after: result.after });
    return result.undoes === undefined ? edit : undoing(edit, result.undoes);
}
