// The types and names that the round-corner and overlay operations write. Pure data and functions; no service is used.

import { splitPath } from "../../lib/names.js";
import { ORIGINAL, writtenType } from "../../lib/types.js";

/** The types that these operations can change a picture to. */
export const MASK_TYPES = ["public.png", "public.tiff", "com.compuserve.gif"];

/** By output type; any other code leaves the type. */
export const FORMAT_CODES = { "public.png": "0", "public.tiff": "1", "com.compuserve.gif": "2" };
FORMAT_CODES[ORIGINAL] = "9";

/** The name of the file that is written: the source's own where the type stays. */
export function maskName(path, fileType) {
    const parts = splitPath(path);
    return fileType === ORIGINAL ? parts.name : parts.base + writtenType(fileType).extension;
}
