// The manner of actions that put all pictures of the list on pages, as one file.

import { fill } from "../../lib/wording.js";
import { SheetPlan } from "./sheet-plan.js";
import { SheetRun } from "./sheet-run.js";
import { roomNote } from "../writes.js";

function startText(window) {
    const pages = window.planned.pages;
    if (!pages || window.pictures.tickedCount === 0) {
        return window.action.title();
    }
    const text = window.action.startText(pages);
    return window.settings.output.simulation ? fill(qsTr("Dry Run: %1"), text) : text;
}

function startNote(window) {
    const planned = window.planned;
    if (!planned.pages || window.settings.output.simulation) {
        return "";
    }
    const problem = roomNote(window);
    if (problem !== "") {
        return problem;
    }
    const words = planned.replaces ? qsTr("%1 is replaced.") : qsTr("As %1");
    return planned.name === "" ? "" : fill(words, planned.name);
}

export const SHEETS = {
    makeRun: (window, changed) => new SheetRun(window, changed),
    makePlan: (window, planned) => new SheetPlan(window, planned),
    output: true,
    preview: false,
    watches: false,
    repeats: false,
    columns: ["thumbnail", "name", "folder", "taken", "camera", "pixels", "size", "type", "status"],
    headings: () => ({}),
    stressed: false,
    startText: startText,
    startNote: startNote,
    isReady: (window) => window.pictures.tickedCount > 0 && window.pictures.settled,
    simulationText: () => qsTr("Dry run: write nothing"),
    replaces: () => false,
};
