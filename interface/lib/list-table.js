// The list as a table for other programs. Pure but for translation; the list and the facts are handed in.

import { keysOf, splitPath } from "./names.js";

// As every reader's spreadsheet gets them.
const COLUMNS = ["Ticked", "Name", "Folder", "DateTaken", "Camera", "Rating", "Width", "Height", "Bytes", "Type",
                        "NewName", "NewSize", "Status"];

/** The column titles; properties that have columns in the list are last, under their own names. */
export function titlesOf(list) {
    return COLUMNS.concat(list.propertyColumns.map((name) => name.charAt(0).toUpperCase() + name.slice(1)));
}

/**
 * A generator that makes the rows of all pictures, in the order shown; it yields after each, and returns [[cell ...] ...]. Dates are as in
 * "2026-08-14T10:20:30"; unknown values are empty.
 *
 * @param list   ids(), untickedIds(), photo(id), shown(id), propertyColumns, readProperties(), settled
 * @param facts  of(path)
 */
export function* tableOf(list, facts) {
    const rows = [];
    const unticked = keysOf(list.untickedIds());
    if (list.propertyColumns.length > 0) {
        list.readProperties();
        while (!list.settled) {
            yield 0;
        }
    }
    for (const id of list.ids()) {
        const photo = list.photo(id);
        const known = facts.of(photo.path) || { taken: "", camera: "" };
        const shown = list.shown(id);
        const sides = photo.width > 0 ? [photo.width, photo.height] : ["", ""];
        rows.push([unticked[id] ? "no" : "yes", photo.name, splitPath(photo.path).folder, known.taken, known.camera]
            .concat([shown.rating || ""], sides, [photo.bytes < 0 ? "" : photo.bytes, photo.type],
                    [shown.newName, shown.newSize, shown.status], shown.properties));
        yield rows.length;
    }
    return rows;
}
