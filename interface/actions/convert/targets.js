// What pictures can be converted to, and what becomes of them.

import { splitPath } from "../../lib/names.js";
import { MADE, typeOfExtension } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";

/** The keywords of the targets, in the order in which file types are offered everywhere. */
export const KEYWORDS = MADE.map((type) => type.keyword);

/** What lib/types.js knows of the type of a keyword. */
export function targetNamed(keyword) {
    return MADE.find((type) => type.keyword === keyword);
}

export function isTarget(keyword) {
    return KEYWORDS.indexOf(keyword) >= 0;
}

/** A code of quality, as it is offered. */
export function qualityText(code) {
    const texts = { 1: qsTr("1 – smallest file"), 9: qsTr("9 – best") };
    return texts[code] || code;
}

/** What a file of this target holds of a picture, in sentences. */
export function targetText(keyword) {
    return {
        jpeg: () => qsTr("Small files for showing. Fine detail is lost, the more the lower the quality; transparent parts get a colour and 16 bits become 8. Colour profile and metadata are kept."),
        png: () => qsTr("Nothing is lost: pixels, transparency, 16 bits, colour profile and metadata are kept."),
        tiff: () => qsTr("Nothing is lost: pixels, transparency, 16 bits, CMYK, colour profile and metadata are kept. Large files."),
        webp: () => qsTr("Small files for web pages. Fine detail is lost, the more the lower the quality, and 16 bits become 8. Transparency, colour profile and metadata are kept."),
        avif: () => qsTr("Very small files for web pages, which take the longest to write. Fine detail is lost, the more the lower the quality, and 16 bits become 8. Transparency, colour profile and metadata are kept."),
        jxl: () => qsTr("Small files for archives. Fine detail is lost, the more the lower the quality. Transparency, 16 bits, colour profile and metadata are kept. Few programs show such files."),
        pdf: () => qsTr("One page of the picture’s own size. A JPEG goes in as it is; others without loss. Of the metadata what XMP has words for is kept."),
        jp2: () => qsTr("Loss that cannot be seen. Transparency, 16 bits and metadata are kept, and the colour profile where it fits in. Few programs show such files."),
        gif: () => qsTr("256 colours at most, and a pixel is either transparent or not; colours become sRGB. Of the metadata what XMP has words for is kept."),
        bmp: () => qsTr("Pixels and resolution only, in large files. Colours become sRGB, transparent parts get a colour, and 16 bits become 8."),
    }[keyword]();
}

/** What is to be known of a source, in sentences. lossless: no pixel of it is encoded again. */
export function sourceNotes(photo, target, lossless) {
    const extension = splitPath(photo.path).extension.toLowerCase();
    const notes = [];
    if (extension === "pdf") {
        notes.push(qsTr("The first page is drawn at 72 pixels per inch."));
    } else if (extension === "psd") {
        notes.push(qsTr("Layers become one picture."));
    }
    if (typeOfExtension(extension) === target.id) {
        notes.push(fill(lossless ? qsTr("It is %1 already; no pixel of it changes.")
            : qsTr("It is %1 already and is encoded again."), target.word));
    }
    return notes;
}
