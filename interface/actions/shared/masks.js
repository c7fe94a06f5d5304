// The types and names that the round-corner and overlay operations write. Pure data and functions; no service is used.

import { splitPath } from "../../lib/names.js";
import { ORIGINAL, writtenType } from "../../lib/types.js";

/** The types that these operations can change a picture to. */
export const MASK_TYPES = ["public.png", "public.tiff", "com.compuserve.gif"];

/** The name of the file that is written: the source's own where the type stays. */
export function maskName(path, fileType) {
    const parts = splitPath(path);
    return fileType === ORIGINAL ? parts.name : parts.base + writtenType(fileType).extension;
}
