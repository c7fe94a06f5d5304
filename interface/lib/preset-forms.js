// Which column of a preset holds which setting of an action; docs/presets.md says why they lie where they do. Pure data.
//
// Kinds: "text" any text; "number" any finite number, as text, so that it keeps its form; "whole" a whole number and "flag" true
// or false, both in the columns that the database keeps as numbers. A setting is named by its path, "output.quality".

/** The newest version of the forms below. A form whose columns change their meaning gets a higher version. */
export const VERSION = 1;

const OUTPUT = {
    StrField4: ["output.fileType", "text"], StrField5: ["output.quality", "text"], StrField6: ["output.destination.kind", "text"],
    StrField7: ["output.destination.name", "text"], StrField8: ["output.destination.path", "text"], StrField9: ["output.ifTaken", "text"],
    StrField21: ["output.simulation", "flag"],
};

function form(process, mode, own) {
    return { process: process, mode: mode, columns: Object.assign({}, OUTPUT, own) };
}

/** By the name of the action's step: the words for Process, the setting that stands in Action, or "", and the columns. */
export const FORMS = {
    resize: form("Resize", "mode", {
        StrField11: ["width", "number"], StrField12: ["height", "number"], StrField13: ["longest", "number"],
        StrField14: ["percent", "number"], StrField15: ["boxWidth", "number"], StrField16: ["boxHeight", "number"],
        StrField17: ["boxFit", "text"], StrField18: ["unit", "text"], StrField22: ["neverEnlarge", "flag"],
    }),
    crop: form("Crop", "mode", {
        StrField11: ["width", "number"], StrField12: ["height", "number"], StrField13: ["unit", "text"], StrField14: ["percent", "number"],
        StrField15: ["pixels", "number"], StrField16: ["offsetX", "number"], StrField17: ["offsetY", "number"], StrField18: ["ratio", "text"],
        StrField22: ["position", "whole"],
    }),
    turn: form("Rotate and Flip", "", {
        StrField11: ["angle", "number"], StrField22: ["flipHorizontal", "flag"], StrField23: ["flipVertical", "flag"],
    }),
    round: form("Round Corners", "shape", {
        StrField11: ["radius", "number"], StrField12: ["color", "text"], StrField13: ["band", "number"], StrField22: ["background", "flag"],
    }),
    background: form("Background and Border", "under", {
        StrField11: ["color", "text"], StrField12: ["pattern", "text"], StrField13: ["frame", "text"], StrField14: ["bandColor", "text"],
        StrField15: ["bandWidth", "number"],
    }),
};
