// Where a page goes. Pure; no service is used.

import { splitPath } from "../../lib/names.js";

/** The folder in which the page's folder is made: the chosen one, or that of the first picture. */
export function parentOf(settings, paths) {
    return settings.parent !== "" || paths.length === 0 ? settings.parent || "/" : splitPath(paths[0]).folder;
}
