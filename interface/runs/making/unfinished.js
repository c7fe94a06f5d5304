// Runs that make one thing of all pictures cannot be continued. The folders in which they have unfinished files are
// recorded, so that the next start removes what a crash left there. The services are passed in.

import { joinPath } from "../../lib/names.js";

function notesFolder(files) {
    return joinPath(files.dataFolder, "unfinished");
}

function folderIn(text) {
    try {
        return String(JSON.parse(text).folder);
    } catch (error) {
        return ""; // it was being written
    }
}

/** Notes that unfinished files are about to be in a folder; returns the note, for forgetUnfinished(). */
export function noteUnfinished(folder, records, files) {
    const note = records.begin(notesFolder(files));
    if (note !== "") {
        records.add(note, JSON.stringify({ folder: folder }) + "\n", true);
    }
    return note;
}

/** They are finished, or removed. */
export function forgetUnfinished(note, records) {
    if (note !== "") {
        records.end(note);
    }
}

/** Removes what ended processes left. What other windows are making stays, and so do their notes. */
export function removeUnfinished(records, files) {
    records.interrupted(notesFolder(files)).forEach((note) => {
        const folder = folderIn(files.readText(note) || "");
        if (folder.startsWith("/")) {
            files.sweep(folder);
        }
        records.end(note);
    });
}
