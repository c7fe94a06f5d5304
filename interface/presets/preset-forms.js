// How an action says which column of a preset holds which of its settings; docs/presets.md explains the layout. Pure
// data.
//
// Kinds: "text" any text; "word" one that is never empty; "number" any finite number, as text, so that it keeps its
// format; "whole" a whole number and "flag" true or false, both in the columns that the database keeps as numbers;
// "color" is "#rrggbb". A setting is named by its path, "output.quality"; if it can only have certain values, they
// follow its kind, and after these the version of the form that introduced some of them, if it is not the first.

import { DATES, METADATA, ORIGINAL, QUALITIES, WRITTEN } from "../lib/types.js";

const TYPES = [ORIGINAL].concat(WRITTEN.map((type) => type.id));
// Those added later.
const LATER_TYPES = ["org.webmproject.webp", "public.avif", "public.jpeg-xl"];

const OUTPUT = {
    StrField4: ["output.fileType", "text"], StrField5: ["output.quality", "text", QUALITIES],
    StrField6: ["output.destination.kind", "text", ["beside", "source", "folder"]],
    StrField7: ["output.destination.name", "text"], StrField8: ["output.destination.path", "text"],
    StrField9: ["output.ifTaken", "text", ["number", "replace", "skip", "current", "ask"]],
    StrField10: ["output.metadata", "word", METADATA], StrField21: ["output.simulation", "flag"],
    StrField39: ["output.ownQuality", "flag"], StrField40: ["output.keepSubfolders", "flag"],
    StrField41: ["output.removeLocation", "flag"],
    StrField59: ["output.dates", "word", DATES], StrField60: ["output.matte", "color"],
    StrField61: ["output.namePattern", "word"],
};

function numbers(from, to) {
    return Array(to - from + 1).fill(0).map((each, i) => from + i);
}

/** The columns for the parts of a list, each as JSON, in their order; the first empty one ends it. */
export const PART_COLUMNS = numbers(11, 20).concat(numbers(42, 61)).map((number) => "StrField" + number);

/** The columns of a preset that consists of folders: all columns, one each. */
export const FIRST_SLOT = 3;
export const SLOTS = 59;

// The columns of the output block in a form whose version introduced the later types; the next version introduced
// "current".
function outputColumns(version) {
    const [path, kind] = OUTPUT.StrField4;
    const [taken, takenKind, words] = OUTPUT.StrField9;
    const brought = {};
    LATER_TYPES.forEach((type) => { brought[type] = version; });
    return Object.assign({}, OUTPUT, { StrField4: [path, kind, TYPES, brought],
                                       StrField9: [taken, takenKind, words, { current: version + 1 }] });
}

/**
 * The form of an action that writes pictures: the words for Process, the setting that stands in Action, or "", its values, and the
 * columns. `later` has the versions that introduced some words: {types: that of WebP, AVIF and JPEG XL, 2 by default;
 * modes: those of values of that setting}. A setting that is a list has {path, columns, read}: read(kept) makes a part
 * from a stored text, or null.
 */
export function writingForm(process, mode, modes, own, later) {
    const versions = Object.assign({ types: 2, modes: {} }, later);
    return { process: process, mode: mode, modes: modes, laterModes: versions.modes,
             columns: Object.assign(outputColumns(versions.types), own) };
}

/** The form of an action that moves files: its only output setting is the dry run. */
export function movingForm(process, mode, modes, own) {
    return { process: process, mode: mode, modes: modes,
             columns: Object.assign({ StrField21: ["simulation", "flag"] }, own) };
}
