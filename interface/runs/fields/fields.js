// The manner of actions that change the metadata of pictures: in the files, or in sidecars.

import { fill } from "../../lib/wording.js";
import { FieldPlan } from "./field-plan.js";
import { FieldRun } from "./field-run.js";

function changesFiles(window) {
    return window.planned.ready > 0 && !window.settings.simulation;
}

function startText(window) {
    const ready = window.planned.ready;
    if (!ready) {
        return window.action.title();
    }
    const text = window.action.startText(ready);
    return window.settings.simulation ? fill(qsTr("Dry Run: %1"), text) : text;
}

function startNote(window) {
    const planned = window.planned;
    const parts = planned.disputed > 0 ? [qsTr("%n with conflicting values", "", planned.disputed)] : [];
    return parts.concat(planned.beside > 0 ? [qsTr("%n sidecar files", "", planned.beside)] : [])
        .concat(changesFiles(window) ? [qsTr("originals are changed, can be reverted")] : []).join(" · ");
}

export const FIELDS = {
    makeRun: (window, changed) => new FieldRun(window, changed),
    makePlan: (window, planned) => new FieldPlan(window, planned),
    output: false,
    preview: false,
    watches: false,
    repeats: false,
    columns: ["thumbnail", "name", "folder", "taken", "rating", "type", "newName", "status"],
    headings: () => ({ newName: qsTr("Change") }),
    stressed: true,
    startText: startText,
    startNote: startNote,
    isReady: (window) => window.pictures.settled && window.planned.ready > 0,
    simulationText: () => qsTr("Dry run: write nothing"),
    replaces: changesFiles,
};
