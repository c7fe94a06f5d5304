// The list as a table for other programs. Pure but for translation; the list and the facts are handed in.

import { keysOf, splitPath } from "./names.js";

/** The column titles, as every reader's spreadsheet gets them. */
export const COLUMNS = ["Ticked", "Name", "Folder", "DateTaken", "Camera", "Width", "Height", "Bytes", "Type",
                        "NewName", "NewSize", "Status"];

/**
 * A generator that makes the rows of all pictures, in the order shown; it yields after each, and returns [[cell ...] ...]. Dates are as in
 * "2026-08-14T10:20:30"; unknown values are empty.
 *
 * @param list   ids(), untickedIds(), photo(id), shown(id)
 * @param facts  of(path)
 */
export function* tableOf(list, facts) {
    const rows = [];
    const unticked = keysOf(list.untickedIds());
    for (const id of list.ids()) {
        const photo = list.photo(id);
        const known = facts.of(photo.path) || { taken: "", camera: "" };
        const shown = list.shown(id);
        const sides = photo.width > 0 ? [photo.width, photo.height] : ["", ""];
        rows.push([unticked[id] ? "no" : "yes", photo.name, splitPath(photo.path).folder, known.taken, known.camera]
            .concat(sides, [photo.bytes < 0 ? "" : photo.bytes, photo.type],
                    [shown.newName, shown.newSize, shown.status]));
        yield rows.length;
    }
    return rows;
}
