// The file types that can be written, in the order and words of lists; what each can hold is told by the table of formats.

import { pictures } from "quorlin/pictures";

export const ORIGINAL = "original file type";

const FORMATS = pictures.formats();

// {id, extension, word, profile, alpha, depth16, resolution, quality}. profile: the colour profile is kept: "yes", "no", or
// "ifItFits". alpha: transparency is kept. quality: it can be chosen.
function typeInWords(id, word) {
    const format = FORMATS.find((each) => each.id === id);
    return { id: id, extension: "." + format.extensions[0], word: word, profile: format.profile, alpha: format.alpha,
             depth16: format.depth16, resolution: format.resolution, quality: format.quality };
}

export const WRITTEN = [
    typeInWords("public.jpeg", "JPEG"), typeInWords("public.png", "PNG"), typeInWords("public.tiff", "TIFF"),
    typeInWords("public.bmp", "BMP"), typeInWords("com.compuserve.gif", "GIF"), typeInWords("public.jp2", "JPEG 2000"),
];

/** What pictures can be converted to besides; no other action writes it. */
export const PDF_PAGE = typeInWords("com.adobe.pdf", "PDF");

/** The raw files of cameras, by extension: those that have a preview which can be converted, and the others. */
export const RAW_WITH_PREVIEW = pictures.rawTypes().filter((type) => type.hasPreview).map((type) => type.extension);
const RAW = pictures.rawTypes().map((type) => type.extension);

/** The files that actions on pictures take, by extension. */
export const PICTURE_INPUT = ["jpg", "jpeg", "tif", "tiff", "png", "jp2", "gif", "bmp"];

/** The files that can be converted besides. */
export const FURTHER_INPUT = ["jpe", "heic", "heif", "webp", "avif", "psd", "pdf", "svg"];

/** The files that actions take which look at no pixels: these and those of cameras and phones. */
export const PHOTO_INPUT = PICTURE_INPUT.concat(FURTHER_INPUT, RAW);

/** The files of a folder that comments are written into, and those that can be chosen for it, by extension. */
export const COMMENT_INPUT = ["jpg", "jpeg", "jpe", "tif", "tiff"];

/** The written type of that identifier, or null. */
export function writtenType(id) {
    return WRITTEN.find((type) => type.id === id) || null;
}

/** The written type of that identifier, or that of a page, or null. */
export function madeType(id) {
    return id === PDF_PAGE.id ? PDF_PAGE : writtenType(id);
}

/** The extension of a path's file name names this type; empty where it is unknown. */
export function typeOfExtension(extension) {
    const lower = extension.toLowerCase();
    const format = FORMATS.find((each) => each.extensions.indexOf(lower) >= 0);
    return format === undefined ? "" : format.id;
}

/** The type that a result gets: the chosen one, or the one that the source's extension names. Null if not writable. */
export function resultType(extension, choice) {
    return writtenType(choice === ORIGINAL ? typeOfExtension(extension) : choice);
}

/** Whether the colour profile of the picture at a path stays in a file of this type; true where it has none. */
export function keepsProfile(path, type) {
    return type.profile === "yes" || (type.profile === "ifItFits" && pictures.keepsProfile(path, type.id));
}
