// What pictures can be converted to, and what each target does to them.

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

/** A quality code, as it is offered. */
export function qualityText(code) {
    const texts = { 1: qsTr("1 – smallest file"), 9: qsTr("9 – best") };
    return texts[code] || code;
}

/** What a file of this target preserves of a picture, in sentences. */
export function targetText(keyword) {
    return {
        jpeg: () => qsTr("Small files for sharing. The lower the quality, the more detail is lost. Transparent parts get a colour and 16 bits become 8. Colour profile and metadata are kept."),
        png: () => qsTr("Nothing is lost: pixels, transparency, 16 bits, colour profile and metadata are kept."),
        tiff: () => qsTr("Nothing is lost: pixels, transparency, 16 bits, CMYK, colour profile and metadata are kept. Large files."),
        webp: () => qsTr("Small files for web pages. The lower the quality, the more detail is lost. 16 bits become 8. Transparency, colour profile and metadata are kept."),
        avif: () => qsTr("Very small files for web pages, which take the longest to write. The lower the quality, the more detail is lost. 16 bits become 8. Transparency, colour profile and metadata are kept."),
        jxl: () => qsTr("Small files for archives. The lower the quality, the more detail is lost. Transparency, 16 bits, colour profile and metadata are kept. Few programs can open them."),
        pdf: () => qsTr("One page of the size of the picture. A JPEG is included unchanged, other types without loss. Metadata is kept as far as XMP can hold it."),
        jp2: () => qsTr("Visually lossless. Transparency, 16 bits and metadata are kept, and most colour profiles. Few programs can open it."),
        gif: () => qsTr("At most 256 colours. A pixel is either transparent or not. Colours become sRGB. Metadata is kept as far as XMP can hold it."),
        bmp: () => qsTr("Large files with pixels and resolution only. Colours become sRGB, transparent parts get a colour and 16 bits become 8."),
    }[keyword]();
}

/** What the user should know about a source, in sentences. lossless: no pixel of it is encoded again. */
export function sourceNotes(photo, target, lossless) {
    const extension = splitPath(photo.path).extension.toLowerCase();
    const notes = [];
    if (extension === "pdf") {
        notes.push(qsTr("The first page is rendered at 72 pixels per inch."));
    } else if (extension === "psd") {
        notes.push(qsTr("Layers are merged into one picture."));
    }
    if (typeOfExtension(extension) === target.id) {
        notes.push(fill(lossless ? qsTr("Already %1: no pixel changes.")
            : qsTr("Already %1: it will be encoded again."), target.word));
    }
    return notes;
}
