// The manner of actions that write pictures through the output block.

import { fill } from "../lib/wording.js";
import { tooMuchText } from "./room.js";
import { WritePlan } from "./write-plan.js";
import { WriteRun } from "./write-run.js";

// What will be written; all pictures of the list until the present list has been planned.
function countOf(window) {
    const total = window.pictures.tickedCount;
    return window.planned.all === total ? window.planned.ready : total;
}

function startText(window) {
    const total = countOf(window);
    const originals = window.planned.originals;
    if (total === 0) {
        return window.action.title();
    }
    if (window.settings.output.simulation) {
        return fill(qsTr("Dry Run: %1"), window.action.startText(total, window.settings));
    }
    return originals > 0
        ? window.action.startText(total, window.settings) + ", "
        + qsTr("Replace %n Originals", "", originals)
        : window.action.startText(total, window.settings);
}

// With the required disk space, once that is known.
function withSize(window, note) {
    const size = window.estimate === undefined ? "" : window.estimate.text;
    return [note, size].filter((text) => text !== "").join(" · ");
}

/** What will not fit, of the plan that is shown; "" if there is room, or none is planned. */
export function roomNote(window) {
    const { all, needs } = window.planned;
    const { files } = window.services;
    const sum = window.estimate === undefined ? -1 : window.estimate.sum;
    return needs === undefined || all !== window.pictures.tickedCount
        ? "" : tooMuchText(needs, sum, (bytes) => files.byteText(bytes));
}

function startNote(window) {
    const planned = window.planned;
    if (window.pictures.tickedCount === 0 || window.settings.output.simulation) {
        return "";
    }
    const problem = roomNote(window);
    if (problem !== "") {
        return problem;
    }
    if (planned.originals > 0) {
        return withSize(window, qsTr("Originals are replaced by their results."));
    }
    return withSize(window, planned.replaced > 0 ? qsTr("%n files are replaced.", "", planned.replaced) : "");
}

export const WRITES = {
    makeRun: (window, changed) => new WriteRun(window, changed),
    makePlan: (window, planned) => new WritePlan(window, planned),
    output: true,
    preview: true,
    watches: true,
    repeats: true,
    columns: ["thumbnail", "name", "folder", "taken", "camera", "rating", "pixels", "size", "type", "newName",
              "newSize", "status"],
    headings: () => ({}),
    stressed: false,
    startText: startText,
    startNote: startNote,
    isReady: (window) => window.pictures.tickedCount > 0 && window.pictures.settled,
    simulationText: () => qsTr("Dry run: write nothing"),
    replaces: (window) => window.planned.originals > 0 && !window.settings.output.simulation,
};
