// What pictures can be converted to, and what gets lost on the way.

import { splitPath } from "../../lib/names.js";
import { keepsProfile, PDF_PAGE, RAW_WITH_PREVIEW, typeOfExtension, WRITTEN } from "../../lib/types.js";
import { mayBeTransparent } from "../shared/written.js";

/** The keywords of the targets, in the order in which they are offered. */
export const KEYWORDS = ["jpeg", "png", "tiff", "pdf", "jp2", "gif", "bmp"];

/** What lib/types.js knows of the type of a keyword. */
export function targetNamed(keyword) {
    return WRITTEN.concat([PDF_PAGE]).find((type) => type.keyword === keyword);
}

export function isTarget(keyword) {
    return KEYWORDS.indexOf(keyword) >= 0;
}

/** What becomes of everything in a picture that is written as this target, in sentences. */
export function targetText(keyword) {
    return {
        jpeg: () => qsTr("Small files for showing. Fine detail is lost, the more the lower the quality; EXIF, IPTC and XMP are not kept, transparent parts become black and 16 bits become 8. The colour profile is kept."),
        png: () => qsTr("Nothing is lost: pixels, transparency, 16 bits, colour profile, EXIF, IPTC and XMP are kept."),
        tiff: () => qsTr("Nothing is lost: pixels, transparency, 16 bits, CMYK, colour profile, EXIF, IPTC and XMP are kept. Large files."),
        pdf: () => qsTr("One page of the picture’s own size. A JPEG goes in as it is; others without loss. EXIF, IPTC and XMP are not kept."),
        jp2: () => qsTr("Loss that cannot be seen. Transparency and 16 bits are kept; EXIF, IPTC, XMP and the resolution are not. Few programs show such files."),
        gif: () => qsTr("256 colours at most, and a pixel is either transparent or not. EXIF, IPTC, XMP and the resolution are not kept; colours become sRGB."),
        bmp: () => qsTr("Pixels only, in large files. EXIF, IPTC and XMP are not kept, colours become sRGB, transparent parts black, and 16 bits become 8."),
    }[keyword]();
}

/** What the result of one picture will not hold, in a few words; empty where nothing is lost. */
export function lostText(photo, target) {
    const lost = [];
    if (!target.metadata) {
        lost.push(qsTr("EXIF, IPTC and XMP are not kept"));
    }
    if (target.keyword === "gif") {
        lost.push(qsTr("256 colours"));
    } else if (!keepsProfile(photo.path, target)) {
        lost.push(qsTr("colours become sRGB"));
    }
    if (!target.resolution && target.id !== PDF_PAGE.id) { // which has a size instead
        lost.push(qsTr("the resolution is not kept"));
    }
    if (!target.alpha && mayBeTransparent(photo)) {
        lost.push(qsTr("transparent parts become black"));
    }
    return lost.join(" · ");
}

/** What is to be known of a source, in sentences. */
export function sourceNotes(photo, target) {
    const extension = splitPath(photo.path).extension.toLowerCase();
    const notes = [];
    if (RAW_WITH_PREVIEW.indexOf(extension) >= 0) {
        notes.push(qsTr("The preview that the camera put into the raw file is converted, not the raw data."));
    } else if (extension === "pdf") {
        notes.push(qsTr("The first page is drawn at 72 pixels per inch."));
    } else if (extension === "gif" && target.keyword !== "gif") {
        notes.push(qsTr("Of an animation the first picture is converted."));
    } else if (extension === "tif" || extension === "tiff") {
        notes.push(qsTr("Of several pages the first is converted."));
    } else if (extension === "psd") {
        notes.push(qsTr("Layers become one picture."));
    }
    if (typeOfExtension(extension) === target.id) {
        notes.push(qsTr("It is %1 already and is written anew.").replace("%1", target.word));
    }
    return notes;
}
