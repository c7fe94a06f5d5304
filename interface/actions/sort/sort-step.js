// Sorts files into folders by what is known of them: dates, type, size, orientation, camera, name.
// Services used: files (folders, info, names), facts (lib/known-facts.js). Plain data in, plain data out; the run that
// moves files carries out what rows() requests.

import { endsWithFolders, FolderBook } from "./folder-tree.js";
import { row } from "../../runs/move-plan.js";
import { joinPath, splitPath } from "../../lib/names.js";
import { Sidecars } from "../../lib/sidecars.js";
import { folderNameProblems, foldersFor, patternProblems, prepared } from "./sorting.js";
import { fill } from "../../lib/wording.js";

// Files are read for about this long before the window gets control again.
const SLICE_MS = 1;

export const KINDS = ["move", "copy", "link"];

/** What a new pane shows. `pattern` is one of sorting.js; undated says what happens to files without a date taken. */
export const defaults = {
    pattern: "{taken:yyyy}/{taken:yyyy-MM-dd}", undated: "folder", undatedName: qsTr("Undated"),
    kind: "move", destination: { kind: "beside", path: "" }, ifTaken: "number", simulation: false,
};

/** The settings in a few words, for the log. */
export function describe(settings) {
    const words = { move: qsTr("move into %1"), copy: qsTr("copy into %1"), link: qsTr("link into %1") };
    const text = fill(words[settings.kind], settings.pattern);
    return settings.destination.kind === "folder" ? fill(qsTr("%1 in %2"), text, settings.destination.path) : text;
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = patternProblems(settings.pattern);
    if (messages.length === 0 && prepared(settings.pattern).isDated && settings.undated === "folder") {
        messages.push(...folderNameProblems(settings.undatedName));
    }
    if (settings.destination.kind === "folder" && settings.destination.path === "") {
        messages.push(qsTr("Choose a folder to sort into."));
    }
    return messages;
}

/** The folder in which the folders of a file are made. */
export function baseOf(path, destination) {
    return destination.kind === "folder" ? destination.path : splitPath(path).folder;
}

// Short, because it is shown in a column; the column before says which folder it is.
function undatedText(settings) {
    return { folder: qsTr("no date taken"), created: qsTr("by date created"), changed: qsTr("by date changed"),
             leave: qsTr("no date taken: not moved") }[settings.undated];
}

function sizeOf(path, facts, services) {
    return facts === null ? Math.max(0, services.files.info(path).bytes) : Math.max(0, facts.bytes);
}

// The request of one file that is to go into a folder of the book.
function wish(path, node, sorted, settings, context) {
    if (node.inTheWay !== "") {
        return row({ status: "Skipped", reason: fill(qsTr("a file already has this folder name: %1"), node.inTheWay) });
    }
    const file = splitPath(path);
    const along = context.sidecars.of(path)
        .map((other) => ({ from: joinPath(file.folder, other.name), to: joinPath(node.path, other.name) }));
    return row({ to: joinPath(node.path, file.name), kind: settings.kind, number: settings.ifTaken === "number",
                 skips: settings.ifTaken === "skip", along: along, shown: sorted.folders.join("/"),
                 caution: sorted.isUndated ? undatedText(settings) : "",
                 notes: sorted.isUndated ? [qsTr("The file has no date taken.")] : [] });
}

function rowFor(path, index, settings, context) {
    const services = context.services;
    const facts = context.ready.needsFacts ? services.facts.of(path) : null;
    const sorted = foldersFor(context.ready, path, facts, settings, index);
    if (sorted.stays) {
        return row({ status: "Skipped", reason: undatedText(settings), isLeft: true, shown: "–" });
    }
    const base = baseOf(path, settings.destination);
    const folder = splitPath(path).folder;
    if (settings.destination.kind === "beside" && endsWithFolders(folder, sorted.folders)) {
        return row({ to: path, kind: settings.kind, shown: sorted.folders.join("/"),
                     notes: [qsTr("It is already in a folder with the right name.")] });
    }
    const node = context.book.place(base, sorted.folders);
    const made = wish(path, node, sorted, settings, context);
    made.base = base;
    made.node = node;
    made.bytes = context.needsBytes
        ? made.along.reduce((sum, other) => sum + sizeOf(other.from, null, services), sizeOf(path, facts, services))
        : 0;
    return made;
}

/**
 * A generator that works out where each file goes: see move-plan.js. The rows also have base, the folder that their folders
 * are in, node, that of their folder, and bytes if these may have to be copied; the array has `book`, the folders
 * (folder-tree.js).
 */
export function* rows(paths, settings, services) {
    const context = { ready: prepared(settings.pattern), book: new FolderBook(services.files),
                      sidecars: new Sidecars(services.files), services: services,
                      needsBytes: settings.kind === "copy" || settings.destination.kind === "folder" };
    const found = [];
    let from = 0;
    let since = Date.now();
    for (let i = 0; i < paths.length; i += 1) {
        found.push(rowFor(paths[i], i, settings, context));
        if (Date.now() - since >= SLICE_MS) {
            yield { rows: found, from: from, to: found.length };
            from = found.length;
            since = Date.now();
        }
    }
    Object.assign(found, { book: context.book });
    if (from < found.length) {
        yield { rows: found, from: from, to: found.length };
    }
    return found;
}
