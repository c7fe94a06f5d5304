// The presets that an action starts with. They are written once; whoever removes one does not get it back. Pure but for translation.

import { newStep } from "../actions/rename/name-steps.js";
import { keep, recall } from "../lib/store.js";

const KEY = "StartingPresets";
const JPEG = "public.jpeg";
// 10 and 15 centimetres at 300 dots per inch.
const PRINT_SHORT = 1181;
const PRINT_LONG = 1772;

function box(width, height, quality, folder) {
    return { mode: "box", boxWidth: width, boxHeight: height, boxFit: "fill", neverEnlarge: false,
             output: { fileType: JPEG, quality: quality, destination: { name: folder } } };
}

function longest(side, quality, folder) {
    return { mode: "longest", longest: side, output: { fileType: JPEG, quality: quality, destination: { name: folder } } };
}

function size(width, height, ratio) {
    return { mode: "size", width: width, height: height, ratio: ratio };
}

function chain(steps) {
    return { steps: steps.map((step) => newStep(step[0], step[1])) };
}

const LISTS = {
    resize: () => [
        [qsTr("Web 1600"), longest(1600, "8", qsTr("Web"))],
        [qsTr("Mail 1024"), longest(1024, "7", qsTr("Mail"))],
        [qsTr("Square 1080"), box(1080, 1080, "9", qsTr("Square"))],
        [qsTr("Print 15 × 10 cm, 300 dpi"), box(PRINT_LONG, PRINT_SHORT, "10", qsTr("Print"))],
        [qsTr("Print 10 × 15 cm, 300 dpi"), box(PRINT_SHORT, PRINT_LONG, "10", qsTr("Print"))],
        [qsTr("Contact thumbnails"), longest(256, "7", qsTr("Thumbnails"))],
    ],
    crop: () => [
        [qsTr("Centre square 1080"), size(1080, 1080, "1:1")],
        [qsTr("3:2, 1800 × 1200"), size(1800, 1200, "3:2")],
        [qsTr("4:3, 1600 × 1200"), size(1600, 1200, "4:3")],
        [qsTr("16:9, 1920 × 1080"), size(1920, 1080, "16:9")],
        [qsTr("Trim 5 %"), { mode: "percent", percent: 5 }],
    ],
    turn: () => [
        [qsTr("A quarter left"), { angle: 90 }],
        [qsTr("A quarter right"), { angle: -90 }],
        [qsTr("Upside down"), { angle: 180 }],
        [qsTr("Mirrored"), { angle: 0, flipHorizontal: true }],
    ],
    round: () => [
        [qsTr("Soft corners"), { radius: 40 }],
        [qsTr("Round corners on white"), { radius: 120, background: true, color: "#ffffff", output: { fileType: JPEG } }],
        [qsTr("Circle portrait"), { shape: "circle" }],
        [qsTr("Ellipse"), { shape: "ellipse" }],
    ],
    rename: () => [
        [qsTr("Date and place"), chain([["text", { pattern: "{taken:yyyy-MM-dd} " + qsTr("place") + " {counter:001}" }], ["case", { part: "extension" }]])],
        [qsTr("Clean for the web"), chain([["fold", { other: "-" }], ["case", { part: "both" }], ["replace", { search: " ", replacement: "-" }],
                                           ["replace", { search: "_", replacement: "-" }]])],
        [qsTr("Lower-case extensions"), chain([["case", { part: "extension" }]])],
        [qsTr("Date in front"), chain([["text", { pattern: "{taken:yyyy-MM-dd} {name}" }]])],
        [qsTr("Number behind"), chain([["text", { pattern: "{name} {counter:001}" }]])],
    ],
    background: (patterns) => [
        [qsTr("White background"), { under: "color", color: "#ffffff" }],
        [qsTr("White frame"), { frame: "white" }],
        [qsTr("Black band"), { frame: "band", bandColor: "#000000", bandWidth: 40 }],
        [qsTr("Ivory mount"), { frame: "band", bandColor: "#f4f0e6", bandWidth: 160 }],
        [qsTr("On paper"), { under: "pattern", pattern: patterns + "/paper.png" }],
    ],
    convert: () => [
        [qsTr("JPEG for everyone"), { target: "jpeg", quality: "8", output: { destination: { name: "JPEG" } } }],
        [qsTr("Small JPEG"), { target: "jpeg", quality: "5", output: { destination: { name: "JPEG" } } }],
        [qsTr("PNG with all metadata"), { target: "png", output: { destination: { name: "PNG" } } }],
        [qsTr("TIFF for printing"), { target: "tiff", output: { destination: { name: "TIFF" } } }],
        [qsTr("PDF pages"), { target: "pdf", output: { destination: { name: "PDF" } } }],
    ],
    sort: () => [
        [qsTr("By year and day taken"), { pattern: "{taken:yyyy}/{taken:yyyy-MM-dd}" }],
        [qsTr("By year and month taken"), { pattern: "{taken:yyyy}/{taken:yyyy-MM}" }],
        [qsTr("By day changed"), { pattern: "{changed:yyyy-MM-dd}" }],
        [qsTr("By camera and day taken"), { pattern: "{camera}/{taken:yyyy-MM-dd}" }],
        [qsTr("By type"), { pattern: "{type}" }],
        [qsTr("By orientation"), { pattern: "{orientation}" }],
        [qsTr("By file size"), { pattern: "{size:class}" }],
        [qsTr("By start of name"), { pattern: "{name:word}" }],
    ],
};

// The standard settings with some of them changed.
function laidOver(standard, changes) {
    const result = Object.assign({}, standard);
    for (const key of Object.keys(changes)) {
        const isGroup = typeof changes[key] === "object" && !Array.isArray(changes[key]);
        result[key] = isGroup ? laidOver(standard[key], changes[key]) : changes[key];
    }
    return result;
}

/** The presets that an action starts with: [name, settings] each; `patterns` is the folder of the supplied patterns. */
export function startingPresets(action, standard, patterns) {
    return (LISTS[action] ? LISTS[action](patterns) : []).map((entry) => [entry[0], laidOver(standard, entry[1])]);
}

/**
 * Writes the presets that an action starts with, if that was not done before. A name that is taken is left out.
 * Where the database cannot be written it is tried again the next time. Returns whether the presets are to be read anew.
 */
export function writeStartingPresets(action, standard, patterns, store, defaults) {
    const done = recall(defaults, KEY, { actions: [] }).actions;
    if (done.indexOf(action) >= 0) {
        return false;
    }
    const names = store.names();
    for (const [name, settings] of startingPresets(action, standard, patterns)) {
        if (store.nameProblem(name, names) === "" && store.save(action, name, settings) !== "") {
            return true;
        }
    }
    keep(defaults, KEY, { actions: done.concat([action]) });
    return true;
}
