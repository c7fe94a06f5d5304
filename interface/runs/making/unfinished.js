// The folders in which pages are being made, recorded so that a start after a crash removes them. The defaults and the
// files are passed in.

import { keep, recall } from "../../lib/store.js";

const KEY = "UnfinishedPages";

function noted(defaults) {
    return recall(defaults, KEY, { folders: [] }).folders.filter((folder) => typeof folder === "string");
}

export function noteUnfinished(defaults, folder) {
    keep(defaults, KEY, { folders: noted(defaults).filter((each) => each !== folder).concat([folder]) });
}

export function forgetUnfinished(defaults, folder) {
    keep(defaults, KEY, { folders: noted(defaults).filter((each) => each !== folder) });
}

/** Removes what ended processes left; folders of running processes stay, as in every sweep. */
export function removeUnfinished(defaults, files) {
    const folders = noted(defaults);
    folders.forEach((folder) => files.sweep(folder));
    if (folders.length > 0) {
        keep(defaults, KEY, { folders: [] });
    }
}
