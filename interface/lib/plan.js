// The plan of a run: for every picture what will be written and under which name, before anything is written.
// Services used: files (names, info), ask (optional). The step says what it would write; names are settled here.

import { emptyTable, FolderNames, joinPath, splitPath } from "./names.js";

/** The folder that results of a picture go to; see the output settings of panes. */
export function targetFolder(photo, destination) {
    const source = splitPath(photo.path).folder;
    if (destination.kind === "folder") {
        return destination.path;
    }
    return destination.kind === "beside" ? joinPath(source, destination.name) : source;
}

function foldersOf(services) {
    const known = emptyTable();
    return (folder) => {
        if (known[folder] === undefined) {
            known[folder] = new FolderNames(services.files.names(folder));
        }
        return known[folder];
    };
}

// Made when it is first needed; most runs replace nothing.
function tableOf(paths) {
    let table = null;
    return () => {
        if (table === null) {
            table = emptyTable();
            paths.forEach((path) => { table[path] = true; });
        }
        return table;
    };
}

// May the file at this path be replaced by a result of this picture? A picture that is still to be read may not, and
// neither may a folder.
function replaceable(path, photo, inputs, services) {
    if (path !== photo.path && inputs()[path]) {
        return false;
    }
    return !services.files.info(path).isFolder;
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
        skip(item, given ? qsTr("another picture of this run gets this name") : qsTr("a file of this name is there"));
    } else if (chosen === "replace" && !given && replaceable(joinPath(item.folder, existing), item.photo, context.inputs,
                                                           context.services)) {
        item.name = names.give(existing);
        item.replaces = true;
        item.replacesOriginal = joinPath(item.folder, existing) === item.photo.path;
    } else {
        item.name = names.giveNumbered(wanted);
        item.numbered = true;
    }
}

function itemFor(photo, planned, settings) {
    const item = {
        photo: photo, status: planned.status, reason: planned.reason || "", notes: planned.notes || [],
        folder: targetFolder(photo, settings.output.destination), name: planned.name || "", path: "",
        width: planned.width || 0, height: planned.height || 0,
        replaces: false, replacesOriginal: false, numbered: false, asks: false,
    };
    return item;
}

/**
 * A generator that plans a run. It yields each item as it is planned and returns {items, cancelled}.
 *
 * photoOf(i) gives the i-th of `count` pictures as plain data; paths are all input paths. An item has status "ready" or
 * a final one with its reason, and then folder, name, path, width, height, replaces, replacesOriginal, numbered, notes.
 */
export function* planRun(count, photoOf, paths, step, settings, services) {
    const namesIn = foldersOf(services);
    const context = { inputs: tableOf(paths), memory: { forAll: null }, services: services, cancelled: false };
    const items = [];
    for (let i = 0; i < count && !context.cancelled; i += 1) {
        const photo = photoOf(i);
        const item = itemFor(photo, step.plan(photo, settings, services), settings);
        if (item.status === "ready") {
            settleName(item, namesIn(item.folder), settings.output.ifTaken, context);
            item.path = joinPath(item.folder, item.name);
        }
        items.push(item);
        yield item;
    }
    return { items: items, cancelled: context.cancelled };
}
