// The settings of an output of a recipe as fields; see field-kinds.js. Pure but for translation.

import { fill } from "../../lib/wording.js";
import {
    check, choice, color, explained, explainedFirst, folder, keyed, number, optional, text,
} from "./field-kinds.js";
import { profileFields, resolutionField } from "./operation-fields.js";

const WITH_QUALITY = ["original", "jpeg", "webp", "avif", "jxl", "jp2"];
const WITH_LOSSLESS = ["original", "webp", "jxl", "jp2"];
const WITHOUT_TRANSPARENCY = ["original", "jpeg", "bmp", "pdf"];
const USUAL_QUALITY = 85;
const KILOBYTE = 1000;
const MOST_KILOBYTES = 1000000;

/** The file types of outputs: [word of recipes, words]. */
export function typeWords() {
    return [
        ["original", qsTr("Original file type")], ["jpeg", "JPEG"], ["png", "PNG"], ["tiff", "TIFF"], ["webp", "WebP"],
        ["avif", "AVIF"], ["jxl", "JPEG XL"], ["jp2", "JPEG 2000"], ["gif", "GIF"], ["bmp", "BMP"], ["pdf", "PDF"]
    ];
}

function typeField(output) {
    const type = keyed(output, "type", "original");
    const choose = (value) => {
        type.set(value);
        if (WITH_QUALITY.indexOf(value) < 0) {
            delete output.quality;
        }
        if (WITH_LOSSLESS.indexOf(value) < 0) {
            delete output.lossless;
        }
    };
    return choice(qsTr("File type"), { get: type.get, set: choose }, typeWords());
}

function usualText(type) {
    return fill(type === "original" ? qsTr("Otherwise JPEG files keep their quality, and other types get %1")
                                    : qsTr("Otherwise the quality is %1"), USUAL_QUALITY);
}

function qualityFields(output) {
    const type = output.type || "original";
    const lossless = keyed(output, "lossless", false);
    const choose = (on) => {
        lossless.set(on);
        if (on) {
            delete output.quality;
        }
    };
    const fields = WITH_LOSSLESS.indexOf(type) >= 0
                       ? [explained(qsTr("Keeps every pixel exactly; the files are larger"),
                                    check(type === "original" ? qsTr("Lossless if the type allows it")
                                                              : qsTr("Lossless"),
                                          { get: lossless.get, set: choose }))]
                       : [];
    if (WITH_QUALITY.indexOf(type) < 0 || lossless.get()) {
        return fields;
    }
    return fields.concat(explainedFirst(
        usualText(type),
        optional(qsTr("Choose the quality"), output, "quality", USUAL_QUALITY,
                 () => [explained(qsTr("Higher quality means larger files"),
                                  number(qsTr("Quality"), keyed(output, "quality", undefined), [1, 100], 0, ""))])));
}

function sizeFields(output) {
    const limit = { get: () => output.maxBytes / KILOBYTE,
                    set: (value) => { output.maxBytes = Math.max(1, Math.round(value * KILOBYTE)); } };
    return optional(qsTr("Limit the file size"), output, "maxBytes", KILOBYTE * KILOBYTE,
                    () => [number(qsTr("At most"), limit, [1, MOST_KILOBYTES], 0, qsTr("kB"))]);
}

function metadataFields(output) {
    const metadata = keyed(output, "metadata", "keep");
    const choose = (value) => {
        metadata.set(value);
        if (value === "none") {
            delete output.location;
        }
    };
    const location = keyed(output, "location", true);
    const kept =
        choice(qsTr("Metadata"), { get: metadata.get, set: choose },
               [["keep", qsTr("Keep all")], ["copyright", qsTr("Keep copyright only")], ["none", qsTr("Remove all")]]);
    return metadata.get() === "none"
               ? [kept]
               : [kept, check(qsTr("Remove location"), { get: () => !location.get(), set: (on) => location.set(!on) })];
}

function takenField(output) {
    return choice(qsTr("If the file exists"), keyed(output, "ifTaken", "number"),
                  [["number", qsTr("Keep both (add a number)")], ["replace", qsTr("Replace")], ["skip", qsTr("Skip")],
                   ["current", qsTr("Skip if up to date")]]);
}

function resolutionFields(output) {
    return explainedFirst(
        qsTr("For printing and layout programs; no pixel changes"),
        optional(qsTr("Set the resolution"), output, "dpi", 300,
                 () => [resolutionField(output,
                                        qsTr("Dots per inch written into the file; its pixels do not change"))]));
}

/** The fields that edit an output, which is changed in place. Its operations have separate cards. */
export function outputFields(output) {
    const type = output.type || "original";
    const dates = keyed(output, "dates", "now");
    return [typeField(output)].concat(
        qualityFields(output), sizeFields(output),
        [
            text(qsTr("Name"), keyed(output, "name", "{name}"), true),
            folder(qsTr("Folder"), keyed(output, "folder", ""))
        ],
        profileFields(output, "profile", qsTr("Keep")), metadataFields(output),
        resolutionFields(output),
        WITHOUT_TRANSPARENCY.indexOf(type) < 0
            ? [] : [explained(qsTr("Replaces transparency in file types that cannot hold it"),
                              color(qsTr("Transparency"), keyed(output, "matte", "#ffffff")))],
        [
            check(qsTr("Keep the file date"),
                  { get: () => dates.get() === "keep", set: (on) => dates.set(on ? "keep" : "now") }),
            takenField(output)
        ]);
}
