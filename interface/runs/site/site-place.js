// Where a page goes. Pure; no service is used.

import { splitPath } from "../../lib/names.js";

/** The folder that the folder of the page is made in: the one that was chosen, or that of the first picture. */
export function parentOf(settings, paths) {
    return settings.parent !== "" || paths.length === 0 ? settings.parent || "/" : splitPath(paths[0]).folder;
}
