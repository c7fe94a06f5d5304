// Lays pictures on pages and makes a PDF of them. Plain data in, plain data out.
// Services used: pages, recipes (nameFor).

import { PageWork } from "quorlin/pages";
import { ORIGINAL, PDF_PAGE } from "../../lib/types.js";
import { usualOutput } from "../shared/by-recipe.js";
import { outputMessages, ready } from "../shared/written.js";

export const FITS = ["fit", "fill", "size"];
export const SIDES = ["left", "center", "right"];
export const CUSTOM = "custom";
export const PROFILES = ["sRGB", "Display P3", "Adobe RGB", "gray"];
/** The names of papers, in the order in which they are offered. */
export const PAPERS = new PageWork().papers.map((paper) => paper.word);
/** The settings that determine how pages look. */
export const LAYOUT = [
    "paper", "paperWidth", "paperHeight", "landscape", "marginTop", "marginRight", "marginBottom", "marginLeft", "gap",
    "rows", "columns", "fit", "turn", "repeat", "cropMarks", "frames", "caption", "captionSize", "header", "headerSide",
    "footer", "footerSide", "lineSize", "font", "paperColor", "dpi", "quality", "profile",
];

/** What a new pane shows. Lengths are millimetres, sizes of texts points; an empty font is the default. */
export const defaults = {
    paper: "A4", paperWidth: 210, paperHeight: 297, landscape: false,
    marginTop: 12, marginRight: 12, marginBottom: 12, marginLeft: 12, gap: 5, rows: 5, columns: 4, fit: "fit",
    turn: false, repeat: false, cropMarks: false, frames: false, caption: "{name}", captionSize: 7,
    header: "", headerSide: "center", footer: "{page} / {pages}", footerSide: "center", lineSize: 9, font: "",
    paperColor: "#ffffff", dpi: 300, quality: 90, profile: "sRGB",
    output: Object.assign(usualOutput(ORIGINAL, "9", qsTr("Pages")), { namePattern: qsTr("Contact sheet") }),
};

/** What the output block offers: there is one type, and its quality is that of the pages. */
export const offer = { types: [], quality: false, oneFile: true };

/** The settings in the form of the page service. */
export function layoutOf(settings) {
    const layout = {};
    LAYOUT.forEach((name) => { layout[name] = settings[name]; });
    return layout;
}

/** Work on a PDF of these pictures, not started yet. */
export function workFor(settings, paths) {
    return new PageWork({ settings: layoutOf(settings), paths: paths });
}

/** The settings in a few words, for the log. */
export function describe(settings) {
    return qsTr("%1 × %2 on a page").replace("%1", String(settings.columns)).replace("%2", String(settings.rows));
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const problem = workFor(settings, []).problem;
    return (problem === "" ? [] : [problem]).concat(outputMessages(settings.output));
}

/** What a run would write, beside the first of its pictures: one file for all of them. */
export function plan(photo, settings, services) {
    const name = services.recipes.nameFor(photo.path, settings.output.namePattern, 0, 0, 0, ".pdf");
    return ready(name, PDF_PAGE, { width: 0, height: 0 }, []);
}
