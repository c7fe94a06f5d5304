// The rows of the list as runs look at them.

/** The rows with these ids as planRun() takes them: {count, at, paths}. */
export function photosOf(list, ids) {
    return { count: ids.length, at: (i) => list.photo(ids[i]), paths: list.paths() };
}

/** The ids of the rows by the paths of their files. */
export function rowsByPath(list) {
    const table = Object.create(null);
    const ids = list.ids();
    list.paths().forEach((path, i) => { table[path] = ids[i]; });
    return table;
}
