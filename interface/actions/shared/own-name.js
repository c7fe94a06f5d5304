// The names of results that are what their pictures were, with a change. Pure; no service is used.

import { splitPath } from "../../lib/names.js";
import { ORIGINAL, writtenType } from "../../lib/types.js";

/** The whole name of the picture where the type stays, else with the usual extension of the chosen one. */
export function ownName(path, fileType) {
    const parts = splitPath(path);
    return fileType === ORIGINAL ? parts.name : parts.base + writtenType(fileType).extension;
}
