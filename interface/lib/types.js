// The file types that can be written: their names and what each can hold come from the tables of the program.

import { pictures } from "quorlin/pictures";

export const ORIGINAL = "original file type";

const FORMATS = pictures.formats();

// {id, keyword, extension, word, profile, alpha, depth16, resolution, quality, hasQuality}. profile: the colour profile is kept: "yes",
// "no", or "ifItFits". alpha: transparency is kept. quality: Convert and Save As have one for it. hasQuality: all others have.
function writtenAs(output) {
    const format = FORMATS.find((each) => each.id === output.id);
    return { id: output.id, keyword: output.keyword, extension: "." + format.extensions[0], word: output.word,
             profile: format.profile, alpha: format.alpha, depth16: format.depth16, resolution: format.resolution,
             quality: format.quality, hasQuality: output.hasQuality };
}

/** What actions write. */
export const WRITTEN = pictures.outputTypes().filter((output) => !output.isPage).map(writtenAs);

/** A further target of Convert; no other action writes it. */
export const PDF_PAGE = writtenAs(pictures.outputTypes().find((output) => output.isPage));

/** The codes of quality, and those of conversions, which do not have the last one. */
export const QUALITIES = pictures.qualityCodes();
export const CONVERSION_QUALITIES = QUALITIES.slice(0, -1);

/** Every possible type of a result, in the order in which file types are offered. */
export const MADE = pictures.outputTypes().map(writtenAs);

/** What results keep of a picture's metadata; the words of recipes. */
export const METADATA = ["keep", "copyright", "none"];

/** The modification time of results: that of the run, or that of their pictures; the words of recipes. */
export const DATES = ["now", "keep"];

/** The raw files of cameras, by extension: those with a preview that can be converted, and the others. */
export const RAW_WITH_PREVIEW = pictures.rawTypes().filter((type) => type.hasPreview).map((type) => type.extension);
const RAW = pictures.rawTypes().map((type) => type.extension);

/** The files of written types, by extension. */
export const PICTURE_INPUT = ["jpg", "jpeg", "tif", "tiff", "png", "jp2", "gif", "bmp"];

// Types that are rendered first: pages and drawings contain no pixels.
const DRAWN = ["com.adobe.pdf", "public.svg-image"];

function extensionsWhere(isWanted) {
    return FORMATS.filter(isWanted).reduce((all, format) => all.concat(format.extensions), []);
}

/** The files that actions on pictures accept, by extension: all readable ones; of raw files the camera's preview. */
export const READ_INPUT = extensionsWhere((format) => DRAWN.indexOf(format.id) < 0).concat(RAW_WITH_PREVIEW);

/** The files that can be converted. */
export const CONVERTED_INPUT = READ_INPUT.concat(extensionsWhere((format) => DRAWN.indexOf(format.id) >= 0));

/** The files accepted by actions that look at no pixels: these, and raw files of any kind. */
export const PHOTO_INPUT = CONVERTED_INPUT.concat(RAW.filter((extension) => CONVERTED_INPUT.indexOf(extension) < 0));

/** The files of a folder that comments are written into, and those that can be chosen for it, by extension. */
export const COMMENT_INPUT = ["jpg", "jpeg", "jpe", "tif", "tiff"];

/** The type of that identifier that all actions on pictures write, or null. */
export function writtenType(id) {
    return WRITTEN.find((type) => type.id === id) || null;
}

/** The type of that identifier that some action writes, or null. */
export function madeType(id) {
    return MADE.find((type) => type.id === id) || null;
}

/** The same by its keyword, which is the word of recipes too. */
export function madeTypeNamed(keyword) {
    return MADE.find((type) => type.keyword === keyword) || null;
}

/** The type named by the extension of a path; empty if unknown. */
export function typeOfExtension(extension) {
    const lower = extension.toLowerCase();
    const format = FORMATS.find((each) => each.extensions.indexOf(lower) >= 0);
    return format === undefined ? "" : format.id;
}
