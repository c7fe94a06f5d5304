// The names of results that keep the name of their picture, with a change. Pure; no service is used.

import { splitPath } from "../../lib/names.js";
import { ORIGINAL, writtenType } from "../../lib/types.js";

/** The full name of the picture if the type stays, otherwise with the usual extension of the chosen type. */
export function ownName(path, fileType) {
    const parts = splitPath(path);
    return fileType === ORIGINAL ? parts.name : parts.base + writtenType(fileType).extension;
}
