// The folders that a run will sort into: as they are on the disk, as they will be, and how many files each gets.
// Services used: files (folders, info), passed in.

import { FolderNames } from "quorlin/files";
import { emptyTable, joinPath, splitPath } from "../../lib/names.js";

const NONE = Object.freeze([]);

// Ten thousand folders are many: lists are created when something is put into them.
function nodeAt(path, name, parent, exists) {
    return { path: path, name: name, parent: parent, exists: exists, inTheWay: "", children: NONE, count: 0, total: 0,
             rows: NONE };
}

function added(list, value) {
    const longer = list === NONE ? [] : list;
    longer.push(value);
    return longer;
}

/**
 * Folders below one or more bases. Two names that differ only in case or in the encoding of an accent are one folder:
 * the one on the disk, else the first one requested. A node: {path, name, parent (node or null), exists, inTheWay: path
 * of a file that has its name, or "", count and rows: of the files that go into it, total: of those below it too}.
 */
export class FolderBook {
    constructor(files) {
        this.files = files;
        this.bases = emptyTable();
        this.byKey = emptyTable();
        this.foldersOf = emptyTable();
    }

    base(path) {
        if (this.bases[path] === undefined) {
            const known = this.below(path);
            this.bases[path] = known === null ? this.makeBase(path) : known;
        }
        return this.bases[path];
    }

    makeBase(path) {
        const info = this.files.info(path);
        const node = nodeAt(path, path, null, info.exists && info.isFolder);
        node.inTheWay = info.exists && !info.isFolder ? path : "";
        return node;
    }

    // The folder at a path that was requested below a base, or null.
    below(path) {
        const parts = splitPath(path);
        const known = this.byKey[joinPath(parts.folder, FolderNames.keyOf(parts.name))];
        return known !== undefined && known.path === path ? known : null;
    }

    /** The node of the folder at a path, or null. */
    at(path) {
        return this.bases[path] || this.below(path);
    }

    // The folder of that name as it is written on the disk; "" if there is none.
    folderIn(node, wanted) {
        if (!node.exists) {
            return "";
        }
        if (this.foldersOf[node.path] === undefined) {
            this.foldersOf[node.path] = new FolderNames({ names: this.files.folders(node.path) });
        }
        return this.foldersOf[node.path].onDiskAs(wanted);
    }

    make(node, wanted) {
        const there = this.folderIn(node, wanted);
        const path = joinPath(node.path, there === "" ? wanted : there);
        const known = this.bases[path];
        if (known !== undefined) { // a base that is below another one
            known.parent = node;
            known.name = splitPath(path).name;
            return known;
        }
        const made = nodeAt(path, splitPath(path).name, node, there !== "");
        const isFile = node.exists && there === "" && this.files.info(path).exists;
        made.inTheWay = node.inTheWay || (isFile ? path : "");
        return made;
    }

    child(node, wanted) {
        const key = joinPath(node.path, FolderNames.keyOf(wanted));
        if (this.byKey[key] === undefined) {
            const made = this.make(node, wanted);
            this.byKey[key] = made;
            node.children = added(node.children, made);
        }
        return this.byKey[key];
    }

    /** The node of a folder below a base. */
    place(base, names) {
        return names.reduce((node, name) => this.child(node, name), this.base(base));
    }

    /** Counts a file into a folder, once all are placed; row is what rowsBelow() returns. */
    count(node, row) {
        node.count += 1;
        node.rows = added(node.rows, row);
        for (let above = node; above !== null; above = above.parent) {
            above.total += 1;
        }
    }
}

/**
 * The folders that get files, for the tree: [{path, above (path, "" for a base), name, count, total, isNew}], parents
 * before children, in no particular order.
 */
export function treeRows(book) {
    return everyRow(treeParts(book));
}

function everyRow(parts) {
    const rows = [];
    for (let part = parts.next(); !part.done; part = parts.next()) {
        part.value.forEach((row) => rows.push(row));
    }
    return rows;
}

const AT_ONCE = 100;

/** A generator that returns the same in parts, lists of about a hundred. */
export function* treeParts(book) {
    const open = Object.keys(book.bases).map((path) => book.bases[path]).filter((node) => node.parent === null);
    let rows = [];
    while (open.length > 0) {
        const node = open.pop();
        if (node.total > 0) {
            rows.push({ path: node.path, above: node.parent === null ? "" : node.parent.path, name: node.name,
                        count: node.count,
                        total: node.total, isNew: !node.exists });
            for (let i = node.children.length - 1; i >= 0; i -= 1) {
                open.push(node.children[i]);
            }
        }
        if (rows.length >= AT_ONCE) {
            yield rows;
            rows = [];
        }
    }
    yield rows;
}

/** The rows of all files that go into the folder at the path or below it; none for an unknown folder. */
export function rowsBelow(book, path) {
    const rows = [];
    const add = (node) => {
        node.rows.forEach((row) => rows.push(row));
        node.children.forEach(add);
    };
    const top = book.at(path);
    if (top !== null) {
        add(top);
    }
    return rows;
}

/** True if a folder's path ends with these names: then what would be sorted into it is there already. */
export function endsWithFolders(folder, names) {
    const parts = folder.split("/");
    const end = parts.slice(Math.max(0, parts.length - names.length));
    return names.length > 0 && parts.length > names.length
        && end.every((name, i) => FolderNames.keyOf(name) === FolderNames.keyOf(names[i]));
}
