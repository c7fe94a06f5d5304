// Writes the user comment into pictures and reverts it, checking what the file really says afterwards. Pure but for
// translation; what reads and writes comments is passed in: {look*(path) => {comment, pagesLost, problem}; write*(path,
// text) => "" or what went wrong; isThere(path)}. Both are generators, which yield null while they wait for an answer;
// pagesLost counts the pages that a file would lose by writing.

import { tokens, TokenText } from "quorlin/tokens";
import { splitPath } from "../lib/names.js";
import { logRow } from "./report.js";
import { fill } from "../lib/wording.js";

// Stands for any picture while there is none.
const MADE_UP = { path: "/IMG_4711.JPG",
                  facts: { taken: "2026-08-14T10:20:30", created: "2026-08-14T10:20:30", changed: "2026-08-15T09:00:00",
                           width: 4032, height: 3024, bytes: 2440000, size: "2.4 MB", rating: 3 } };

const NO_WAIT = [];

/** Reads and writes comments with the service files, which answers at once. */
export function commentsOf(files) {
    return {
        * look(path) {
            yield* NO_WAIT;
            return Object.assign({ pagesLost: files.pagesLostToComment(path) }, files.readComment(path));
        },
        * write(path, comment) {
            yield* NO_WAIT;
            return files.writeComment(path, comment);
        },
        isThere: (path) => files.info(path).exists,
    };
}

function failed(path, reason, now) {
    return { path: path, status: "Failed", reason: reason, before: now, after: now };
}

function skipped(path, reason, now) {
    return { path: path, status: "Skipped", reason: reason, before: now, after: now };
}

// So many files with several pages are named.
const MOST_NAMED = 5;

/** What is wrong with the text of a comment, which may contain tokens, as one sentence; "" if nothing is. */
export function commentProblem(text) {
    return tokens.problems(text)[0] || "";
}

/** A function (path, index) => comment for a text that may contain tokens. */
export function commentMaker(text, files) {
    const made = new TokenText({ pattern: text });
    const asks = made.needsFacts;
    return (path, index) => made.expand(path, asks ? files.facts(path) : null, index)[0];
}

/** What a text with tokens yields: {name, comment} for the picture at a path, or for an invented one if path is "". */
export function commentExample(text, path, files) {
    if (path !== "") {
        return { name: splitPath(path).name, comment: commentMaker(text, files)(path, 0) };
    }
    const facts = Object.assign({}, MADE_UP.facts);
    tokens.offered().forEach((each) => { facts[each.name] = facts[each.name] === undefined
                                 ? each.example : facts[each.name]; });
    return { name: splitPath(MADE_UP.path).name,
             comment: new TokenText({ pattern: text }).expand(MADE_UP.path, facts, 0)[0] };
}

// Writing was verified before the file was replaced. What can be read back now also counts, but a file that cannot be
// read just then has not lost its comment.
function* written(comments, path, before, comment) {
    const problem = yield* comments.write(path, comment);
    const after = yield* comments.look(path);
    if (problem !== "") {
        return { path: path, status: "Failed", before: before, after: after.problem === "" ? after.comment : before,
                 reason: problem };
    }
    const isThere = after.problem !== "" || after.comment === comment;
    return { path: path, status: isThere ? "OK" : "Failed", before: before,
             after: after.problem === "" ? after.comment : comment, pagesLeft: after.pagesLost,
             reason: isThere ? "" : qsTr("The file does not contain what was written.") };
}

/** The sentence about pages that are lost, or would be. */
export function pagesGone(pages) {
    return qsTr("%n more pages were removed. This cannot be undone.", "", pages);
}

function pagesInTheWay(pages) {
    return qsTr("It has %n more pages, which would be lost.", "", pages);
}

// A file whose old comment cannot be read keeps it.
function* writeOne(comments, path, comment, pagesMayGo) {
    const before = yield* comments.look(path);
    const pages = before.pagesLost;
    if (pages > 0 && !pagesMayGo) {
        return skipped(path, pagesInTheWay(pages), "");
    }
    if (before.problem !== "") {
        return failed(path, before.problem, "");
    }
    const result = yield* written(comments, path, before.comment, comment);
    const areGone = pages > 0 && result.status === "OK" && result.pagesLeft === 0;
    delete result.pagesLeft;
    return areGone ? Object.assign(result, { pages: pages, reason: pagesGone(pages) }) : result;
}

/**
 * A generator that writes a comment into each file. It yields {path, status, reason, before, after} for each, with
 * pages if a file lost its further ones, and null while it waits.
 *
 * @param pagesMayGo  without it files with several pages are left as they are
 */
export function* writing(comments, paths, comment, pagesMayGo) {
    for (let i = 0; i < paths.length; ++i) {
        const result = yield* writeOne(comments, paths[i], comment(paths[i], i), pagesMayGo);
        yield result;
    }
}

// Why an edit is not reverted; null if it can be.
function* obstacle(comments, edit) {
    if (!comments.isThere(edit.path)) {
        return failed(edit.path, qsTr("The file no longer exists."), "");
    }
    const now = yield* comments.look(edit.path);
    if (now.problem !== "") {
        return failed(edit.path, now.problem, "");
    }
    if (now.comment === edit.before) {
        return skipped(edit.path, qsTr("It already has its old comment."), now.comment);
    }
    return now.comment === edit.after ? null
        : skipped(edit.path, fill(qsTr("The comment has been changed since and is kept: “%1”"), now.comment),
                  now.comment);
}

/**
 * A generator that gives pictures back their old comments; yields what writing() does, with undoes, the run of the
 * edit. A comment that somebody has changed since is kept.
 *
 * @param edits  each has path, before, after and run; in the order in which they are reverted: the newest first
 */
export function* reverting(comments, edits) {
    for (const edit of edits) {
        const found = yield* obstacle(comments, edit);
        const result = found === null ? yield* writeOne(comments, edit.path, edit.before, false) : found;
        yield Object.assign(result, { undoes: edit.run });
    }
}

/**
 * A generator that finds out what files with several pages would lose. It yields how many it has checked, and null
 * while it waits, and returns {files, pages, words}, words naming the first of them.
 *
 * @param paths  of any files
 */
export function* pagesAtStake(comments, paths) {
    const looked = [];
    for (const path of paths) {
        const said = yield* comments.look(path);
        looked.push({ name: splitPath(path).name, pages: said.pagesLost });
        yield looked.length;
    }
    const found = looked.filter((each) => each.pages > 0);
    const named = found.slice(0, MOST_NAMED).map((each) => fill(qsTr("%1 (%2)"), each.name, each.pages));
    const rest = found.length - named.length;
    return { files: found.length, pages: found.reduce((sum, each) => sum + each.pages, 0),
             words: named.concat(rest > 0 ? [qsTr("%n more files", "", rest)] : [])
             .join(", ") };
}

/** The edits among the results of a run that can be reverted, the newest first. */
export function editsOf(results, run) {
    return results.filter((result) => result.status === "OK" && result.before !== result.after)
        .map((result) => ({ path: result.path, before: result.before, after: result.after, run: run })).reverse();
}

/** What an edit was, as one sentence. */
export function editWords(before, after) {
    if (before === "" || after === "") {
        return before === "" ? fill(qsTr("“%1” was written"), after) : fill(qsTr("“%1” was cleared"), before);
    }
    return fill(qsTr("“%1” became “%2”"), before, after);
}

/** A result as a row of the log, with the old and the new comment. */
export function editRow(result, action, date, run) {
    const photo = { name: splitPath(result.path).name, path: result.path };
    const row = logRow({ status: result.status, reason: result.reason, photo: photo, name: photo.name,
                         path: result.path },
                       qsTr("Metadata"), action, date, run);
    const edit = Object.assign(row, { before: result.before, after: result.after });
    return result.undoes === undefined ? edit : Object.assign(edit, { undoes: result.undoes });
}
