// The plan of a run: for every picture what will be written and under which name, before anything is written.
// Services used: files (names, info, identity ...), ask (optional). The step says what it would write; this module
// settles the names.

import { FolderNames } from "quorlin/files";
import { emptyTable, joinPath, splitPath } from "../lib/names.js";

// The path of a folder relative to the added folder that contains it, from its "/" on; "" for that one itself and for
// any other.
function placeIn(root, folder) {
    const above = root === "/" ? "" : root;
    return root !== undefined && root !== "" && folder.startsWith(above + "/") ? folder.slice(above.length) : "";
}

/**
 * The folder that results of a picture go to; see the output settings of panes. Where subfolders are kept, the tree of the added folder
 * that the picture was found in, photo.root, is built again.
 */
export function targetFolder(photo, output) {
    const destination = output.destination;
    const source = splitPath(photo.path).folder;
    if (destination.kind === "folder") {
        const place = output.keepSubfolders ? placeIn(photo.root, source) : "";
        return place === "" || place === "/" ? destination.path : joinPath(destination.path, place.slice(1));
    }
    return destination.kind === "beside" ? joinPath(source, destination.name) : source;
}

/** True for a name that a sibling folder can have: not "." or "..", and not a path. */
export function isPlainName(name) {
    return name !== "" && name !== "." && name !== ".." && name.indexOf("/") < 0 && name.indexOf("\0") < 0;
}

/** True for a destination that means one folder per picture. */
export function isSound(destination) {
    if (destination.kind === "folder") {
        return destination.path.startsWith("/");
    }
    return destination.kind !== "beside" || isPlainName(destination.name);
}

function foldersOf(services) {
    const known = emptyTable();
    const keys = emptyTable();
    return (folder) => {
        // One folder may be reached by several paths, but its names are those of one folder.
        if (keys[folder] === undefined) {
            keys[folder] = services.files.folderIdentity(folder);
        }
        const key = keys[folder];
        if (known[key] === undefined) {
            known[key] = new FolderNames({ names: services.files.names(folder) });
        }
        return known[key];
    };
}

// Which files are still to be read, identified by the files themselves and not by the spelling of paths. Built when
// first needed; most runs replace nothing.
function ownersOf(paths, services) {
    let table = null;
    return (identity) => {
        if (table === null) {
            table = services.files.owners(paths);
        }
        return table[identity] || [];
    };
}

// What may be replaced at a path by a result of this picture: {identity, isOriginal}; null if nothing may. A picture
// that is still to be read must not be replaced, nor a folder.
function replaceable(path, photo, owners, services) {
    const identity = services.files.identity(path);
    const readers = owners(identity);
    if (identity === "" || readers.some((reader) => reader !== photo.path) || services.files.info(path).isFolder) {
        return null;
    }
    return { identity: identity, isOriginal: readers.length > 0 };
}

function askRule(item, existing, memory, services) {
    if (memory.forAll) {
        return memory.forAll;
    }
    if (!services.ask) {
        item.asks = true;
        return "number";
    }
    const answer = services.ask({ photo: item.photo, folder: item.folder, name: existing });
    if (answer.forAll) {
        memory.forAll = answer.rule;
    }
    return answer.rule;
}

function skip(item, reason) {
    item.status = "Skipped";
    item.reason = reason;
}

function replaceOrNumber(item, names, existing, context) {
    const old = existing === null
        ? null : replaceable(joinPath(item.folder, existing), item.photo, context.owners, context.services);
    if (old === null) {
        item.name = names.giveNumbered(item.name);
        item.numbered = true;
        return;
    }
    item.name = names.give(existing);
    item.replaces = true;
    item.replaced = old.identity;
    item.replacesOriginal = old.isOriginal;
}

// If this program made the same result from the same picture before, and nobody has changed it since, there is nothing
// to do.
function isUpToDate(item, step, settings, services) {
    if (settings.output.ifTaken !== "current") {
        return false;
    }
    const recipe = step.recipeFor(item.photo, settings, services);
    const wanted = joinPath(item.folder, item.name);
    return services.recipes.upToDate(item.photo.path, recipe, item.photo.index || 0, wanted) !== "";
}

function settleName(item, names, rule, context) {
    const wanted = item.name;
    if (names.isFree(wanted)) {
        names.give(wanted);
        return;
    }
    const given = names.isGiven(wanted);
    const existing = names.onDiskAs(wanted);
    let chosen = rule;
    if (rule === "ask" && !given) {
        chosen = askRule(item, existing, context.memory, context.services);
    }
    if (chosen === "cancel") {
        context.cancelled = true;
        skip(item, qsTr("cancelled"));
    } else if (chosen === "skip") {
        skip(item, given ? qsTr("another picture in this run has the same new name") : qsTr("file already exists"));
    } else {
        replaceOrNumber(item, names, chosen === "replace" && !given ? existing : null, context);
    }
}

// A picture that cannot be read may have been removed since it was added.
function reasonOf(photo, planned, services) {
    return planned.status === "Failed" && !services.files.info(photo.path).exists
        ? qsTr("the picture no longer exists") : planned.reason || "";
}

function itemFor(photo, planned, settings, services) {
    const item = {
        photo: photo, status: planned.status, reason: reasonOf(photo, planned, services),
        notes: planned.notes || [], remarks: planned.remarks || [],
        folder: targetFolder(photo, settings.output), name: planned.name || "", path: "",
        width: planned.width || 0, height: planned.height || 0,
        replaces: false, replaced: "", replacesOriginal: false, numbered: false, asks: false,
    };
    if (item.status === "ready" && !isSound(settings.output.destination)) {
        item.status = "Failed";
        item.reason = qsTr("the destination folder has no name");
    }
    return item;
}

/**
 * The names that a plan has assigned, and the answers given: passed to planRun() by a run that is planned in several
 * parts.
 */
export function planMemory(services) {
    return { namesIn: foldersOf(services), answers: { forAll: null } };
}

/**
 * A generator that plans a run. It yields each item as it is planned and returns {items, cancelled}.
 *
 * photos: {count, at, paths}: at(i) gives the i-th of `count` pictures as plain data; paths are all input paths. An item has status
 * "ready" or a final one with its reason, and then folder, name, path, width, height, replaces, replaced (the identity of the file that
 * may be replaced), replacesOriginal, numbered, notes. memory: planMemory() of a run that this is a further part of;
 * optional.
 */
export function* planRun(photos, step, settings, services, memory) {
    const { namesIn, answers } = memory || planMemory(services);
    const context = { owners: ownersOf(photos.paths, services), memory: answers, services: services,
                      cancelled: false };
    const items = [];
    for (let i = 0; i < photos.count && !context.cancelled; i += 1) {
        const photo = photos.at(i);
        const item = itemFor(photo, step.plan(photo, settings, services), settings, services);
        if (item.status === "ready" && isUpToDate(item, step, settings, services)) {
            skip(item, qsTr("up to date"));
        } else if (item.status === "ready") {
            settleName(item, namesIn(item.folder), settings.output.ifTaken, context);
            item.path = joinPath(item.folder, item.name);
        }
        items.push(item);
        yield item;
    }
    return { items: items, cancelled: context.cancelled };
}
