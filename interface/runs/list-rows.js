// The rows of the list in the form that runs use.

import { emptyTable } from "../lib/names.js";

const ROWS_AT_ONCE = 200;

/**
 * The rows with these ids as planRun() takes them: {count, at, paths}. Each picture also says how many ticked ones
 * precede it in the list (index), and in which added folder it was found (root; "" for one that was added itself).
 */
export function photosOf(window, ids) {
    const list = window.pictures;
    const places = emptyTable();
    list.tickedIds().forEach((id, i) => { places[id] = i; });
    return { count: ids.length, paths: list.paths(), at: (i) => {
        const photo = list.photo(ids[i]);
        return Object.assign(photo, { index: places[ids[i]], root: window.input.rootOf(photo.path) });
    } };
}

/** Marks the rows that are not ticked as left out of runs, except those for which isFinal(id). */
export function showUnticked(list, isFinal) {
    list.untickedIds().filter((id) => !isFinal(id)).forEach((id) => {
        list.setPlan(id, "", "");
        list.setStatus(id, "none", qsTr("left out"), "");
    });
}

/** A generator that returns the paths of these rows, read some at a time: ten thousand at once would be noticed. */
export function* pathsInParts(list, ids) {
    const paths = [];
    for (let i = 0; i < ids.length; i += ROWS_AT_ONCE) {
        list.pathsOf(ids.slice(i, i + ROWS_AT_ONCE)).forEach((path) => paths.push(path));
        yield ids.length;
    }
    return paths;
}

/** A generator that makes what rowsByPath() does, some rows at a time. */
export function* rowsByPathInParts(list) {
    const table = emptyTable();
    const ids = list.ids();
    const paths = yield* pathsInParts(list, ids);
    for (let i = 0; i < paths.length; i += ROWS_AT_ONCE) {
        paths.slice(i, i + ROWS_AT_ONCE).forEach((path, j) => { table[path] = ids[i + j]; });
        yield i;
    }
    return table;
}

/** The ids of the rows by the paths of their files. */
export function rowsByPath(list) {
    const table = Object.create(null);
    const ids = list.ids();
    list.paths().forEach((path, i) => { table[path] = ids[i]; });
    return table;
}
