// The folders of Sort by Hand: their keys, their labels, and what is wrong with them. Pure but for translation; the file service is
// handed in.

import { splitPath } from "../../lib/names.js";

export const MOST_SLOTS = 59;

const DIGITS = "1234567890";
const LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

/** The keys of the slots in their order: 1 to 9 and 0, the letters, then letters with Shift. */
export const KEYS = Array.from(DIGITS + LETTERS)
    .concat(Array.from(LETTERS).map((letter) => "Shift+" + letter)).slice(0, MOST_SLOTS);

/** The name of a folder until the user gives it a label. */
export function labelOf(slot) {
    return slot.label || splitPath(slot.path).name || slot.path;
}

/** Why nothing can be put into a folder, in words; "" if something can. */
export function slotProblem(path, files) {
    const info = files.info(path);
    if (!info.exists) {
        return qsTr("not found");
    }
    if (!info.isFolder) {
        return qsTr("not a folder");
    }
    return info.writable ? "" : qsTr("read-only");
}

// A trailing slash makes no difference to a folder's path.
function clean(path) {
    return path.length > 1 && path.endsWith("/") ? path.slice(0, -1) : path;
}

/** Adds folders that have no slot yet: {slots, added, known, full}, the last three being counts of folders. */
export function withFolders(slots, paths) {
    const result = { slots: slots.slice(), added: 0, known: 0, full: 0 };
    for (const path of paths.map(clean)) {
        if (result.slots.some((slot) => slot.path === path)) {
            result.known += 1;
        } else if (result.slots.length >= MOST_SLOTS) {
            result.full += 1;
        } else {
            result.slots.push({ path: path, label: "" });
            result.added += 1;
        }
    }
    return result;
}

export function withoutSlot(slots, row) {
    return slots.filter((slot, i) => i !== row);
}

/** The slots with one of them moved. */
export function withMoved(slots, from, to) {
    const result = slots.slice();
    const moved = result.splice(from, 1);
    result.splice(Math.max(0, Math.min(result.length, to)), 0, moved[0]);
    return result;
}

/** The slots with one label changed; the folder's own name is stored as no label. */
export function withLabel(slots, row, text) {
    const label = text.replace(/[\u0000-\u001f\u007f]/g, " ").trim();
    return slots
        .map((slot, i) =>
            (i === row ? { path: slot.path, label: label === splitPath(slot.path).name ? "" : label } : slot));
}
