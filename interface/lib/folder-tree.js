// The folders that a run will sort into: as they are on the disk, as they will be, and how many files each gets.
// Services used: files (folders, info), handed in.

import { emptyTable, FolderNames, joinPath, nameKey, splitPath } from "./names.js";

function nodeAt(path, name, parent, exists) {
    return { path: path, name: name, parent: parent, exists: exists, inTheWay: "", children: emptyTable(), count: 0, total: 0, rows: [] };
}

/**
 * Folders below one or more bases. Two names that differ in case or in the writing of an accent only are one folder: the one on
 * the disk, else the first that was asked for. A node: {path, name, parent (node or null), exists, inTheWay: path of a file that
 * has its name, or "", count and rows: of the files that go into it, total: of those below it too}.
 */
export class FolderBook {
    constructor(files) {
        this.files = files;
        this.nodes = emptyTable();
        this.foldersOf = emptyTable();
    }

    base(path) {
        if (this.nodes[path] === undefined) {
            const info = this.files.info(path);
            const node = nodeAt(path, path, null, info.exists && info.isFolder);
            node.inTheWay = info.exists && !info.isFolder ? path : "";
            this.nodes[path] = node;
        }
        return this.nodes[path];
    }

    // The folder of that name as it is written on the disk; null where there is none.
    folderIn(node, wanted) {
        if (!node.exists) {
            return null;
        }
        if (this.foldersOf[node.path] === undefined) {
            this.foldersOf[node.path] = new FolderNames(this.files.folders(node.path));
        }
        return this.foldersOf[node.path].onDiskAs(wanted);
    }

    make(node, wanted) {
        const there = this.folderIn(node, wanted);
        const path = joinPath(node.path, there === null ? wanted : there);
        const known = this.nodes[path];
        if (known !== undefined) { // a base that lies below another one
            known.parent = node;
            known.name = splitPath(path).name;
            return known;
        }
        const made = nodeAt(path, splitPath(path).name, node, there !== null);
        const isFile = node.exists && there === null && this.files.info(path).exists;
        made.inTheWay = node.inTheWay || (isFile ? path : "");
        this.nodes[path] = made;
        return made;
    }

    child(node, wanted) {
        const key = nameKey(wanted);
        if (node.children[key] === undefined) {
            node.children[key] = this.make(node, wanted);
        }
        return node.children[key];
    }

    /** The node of a folder below a base. */
    place(base, names) {
        return names.reduce((node, name) => this.child(node, name), this.base(base));
    }

    /** Counts a file into the folder at the path, when all were placed; row is what rowsBelow() gives back. */
    count(folder, row) {
        const node = this.nodes[folder];
        node.count += 1;
        node.rows.push(row);
        for (let above = node; above !== null; above = above.parent) {
            above.total += 1;
        }
    }
}

/**
 * The folders that get files, for the tree: [{path, above (path, "" for a base), name, count, total, isNew}], each behind the one
 * above it, in no order that means anything.
 */
export function treeRows(book) {
    const rows = [];
    const add = (node, above) => {
        if (node.total > 0) {
            rows.push({ path: node.path, above: above, name: node.name, count: node.count, total: node.total, isNew: !node.exists });
            Object.keys(node.children).forEach((key) => add(node.children[key], node.path));
        }
    };
    Object.keys(book.nodes).map((path) => book.nodes[path]).filter((node) => node.parent === null).forEach((base) => add(base, ""));
    return rows;
}

/** How many folders will be made. */
export function newFolders(book) {
    return treeRows(book).filter((row) => row.isNew).length;
}

/** The rows of all files that go into the folder at the path or below it; none for a folder that is not in the book. */
export function rowsBelow(book, path) {
    const rows = [];
    const add = (node) => {
        node.rows.forEach((row) => rows.push(row));
        Object.keys(node.children).forEach((key) => add(node.children[key]));
    };
    if (book.nodes[path] !== undefined) {
        add(book.nodes[path]);
    }
    return rows;
}

/** True if a folder's path ends with these names: then what would be sorted there lies there already. */
export function endsWithFolders(folder, names) {
    const parts = folder.split("/");
    const end = parts.slice(Math.max(0, parts.length - names.length));
    return names.length > 0 && parts.length > names.length && end.every((name, i) => nameKey(name) === nameKey(names[i]));
}
