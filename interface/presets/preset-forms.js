// Which column of a preset holds which setting of an action; docs/presets.md says why they lie where they do. Pure data.
//
// Kinds: "text" any text; "number" any finite number, as text, so that it keeps its form; "whole" a whole number and "flag" true
// or false, both in the columns that the database keeps as numbers; "color" is "#rrggbb". A setting is named by its path,
// "output.quality"; where it can only have certain values they stand behind its kind.

import { MODES } from "../actions/crop/crops.js";
import { UNITS } from "../lib/measure.js";
import { stepFrom } from "../actions/rename/name-steps.js";
import { KEYWORDS, QUALITIES as CONVERT_QUALITIES } from "../actions/convert/targets.js";
import { UNDATED } from "../actions/sort/sorting.js";
import { ORIGINAL, WRITTEN } from "../lib/types.js";

/** The newest version of the forms below. A form whose columns change their meaning gets a higher version. */
export const VERSION = 1;

const TYPES = [ORIGINAL].concat(WRITTEN.map((type) => type.id));
const QUALITIES = ["1", "2", "3", "4", "5", "6", "7", "8", "9", "10"];
const RATIOS = ["free", "original", "1:1", "3:2", "4:3", "16:9", "2:3", "3:4", "9:16"];
const PLACES = [0, 1, 2, 3, 4, 5, 6, 7, 8];

// The columns for the parts of a list, each as JSON: its order is theirs, and the first empty one ends it.
const TEXT_COLUMNS = [11, 12, 13, 14, 15, 16, 17, 18, 19, 20].concat([42, 43, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 59, 60, 61])
    .map((number) => "StrField" + number);

const OUTPUT = {
    StrField4: ["output.fileType", "text", TYPES], StrField5: ["output.quality", "text", QUALITIES],
    StrField6: ["output.destination.kind", "text", ["beside", "source", "folder"]], StrField7: ["output.destination.name", "text"],
    StrField8: ["output.destination.path", "text"], StrField9: ["output.ifTaken", "text", ["number", "replace", "skip", "ask"]],
    StrField21: ["output.simulation", "flag"],
};

/** Where the folders of a preset that is nothing but folders lie: in all columns, one each. */
export const FIRST_SLOT = 3;
export const SLOTS = 59;

function form(process, mode, own, modes) {
    return { process: process, mode: mode, modes: modes || [], columns: Object.assign({}, OUTPUT, own) };
}

// An action that moves files has no output but a simulation.
function moveForm(process, mode, own, modes) {
    return { process: process, mode: mode, modes: modes || [], columns: Object.assign({ StrField21: ["simulation", "flag"] }, own) };
}

/**
 * By the name of the action's step: the words for Process, the setting that stands in Action, or "", and its values, and the
 * columns. A setting that is a list has {path, columns, read}: read(kept) makes a part of what was kept, or null.
 */
export const FORMS = {
    resize: form("Resize", "mode", {
        StrField11: ["width", "number"], StrField12: ["height", "number"], StrField13: ["longest", "number"],
        StrField14: ["percent", "number"], StrField15: ["boxWidth", "number"], StrField16: ["boxHeight", "number"],
        StrField17: ["boxFit", "text", ["fill", "stretch"]], StrField18: ["unit", "text", UNITS], StrField22: ["neverEnlarge", "flag"],
    }, ["width", "height", "longest", "percent", "box"]),
    crop: form("Crop", "mode", {
        StrField11: ["width", "number"], StrField12: ["height", "number"], StrField13: ["unit", "text", UNITS], StrField14: ["percent", "number"],
        StrField15: ["pixels", "number"], StrField16: ["offsetX", "number"], StrField17: ["offsetY", "number"], StrField18: ["ratio", "text", RATIOS],
        StrField22: ["position", "whole", PLACES],
    }, MODES),
    turn: form("Rotate and Flip", "", {
        StrField11: ["angle", "number"], StrField22: ["flipHorizontal", "flag"], StrField23: ["flipVertical", "flag"],
    }),
    round: form("Round Corners", "shape", {
        StrField11: ["radius", "number"], StrField12: ["color", "color"], StrField13: ["band", "number"], StrField22: ["background", "flag"],
    }, ["rectangle", "circle", "ellipse"]),
    rename: Object.assign(moveForm("Rename", "what", { StrField22: ["sidecars", "flag"] }, ["files", "folders"]),
                          { list: { path: "steps", columns: TEXT_COLUMNS, read: stepFrom } }),
    background: form("Background and Border", "under", {
        StrField11: ["color", "color"], StrField12: ["pattern", "text"], StrField13: ["frame", "text", ["none", "white", "band"]],
        StrField14: ["bandColor", "color"], StrField15: ["bandWidth", "number"],
    }, ["color", "pattern"]),
    convert: form("Convert", "target", {
        StrField11: ["quality", "text", CONVERT_QUALITIES],
    }, KEYWORDS),
    // All other columns are folders, so that the mark stands in Action, between the sub-mode of the process and the mode.
    hand: { process: "Sorting", subMode: "ByHand", mode: "mode", modes: ["move", "copy", "link"], slots: "slots", columns: {} },
    sort: moveForm("Sort into Folders", "kind", {
        StrField6: ["destination.kind", "text", ["beside", "folder"]], StrField8: ["destination.path", "text"],
        StrField9: ["ifTaken", "text", ["number", "skip"]], StrField11: ["pattern", "text"], StrField12: ["undated", "text", UNDATED],
        StrField13: ["undatedName", "text"],
    }, ["move", "copy", "link"]),
};
