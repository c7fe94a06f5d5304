// The manner of actions that move files through the move engine, and can be undone.

import { fill, fillNumbers } from "../lib/wording.js";
import { LiveMoves } from "./live-moves.js";
import { MoveRun } from "./move-run.js";

function startText(window) {
    const ready = window.planned.ready;
    if (!ready) {
        return window.action.title();
    }
    const text = window.action.startText(ready, window.settings);
    return window.settings.simulation ? fill(qsTr("Dry Run: %1"), text) : text;
}

function startNote(window) {
    const planned = window.planned;
    if (planned.named !== undefined) {
        return fillNumbers(qsTr("Planning: %1 of %2…"), planned.named, planned.all);
    }
    // After a run there is no plan until something changes.
    if (window.pictures.tickedCount === 0 || planned.ready === undefined) {
        return "";
    }
    const parts = [fillNumbers(qsTr("%1 ready"), planned.ready)];
    if (planned.attention > 0) {
        parts.push(qsTr("%n need attention", "", planned.attention));
    }
    if (planned.same > 0) {
        parts.push(qsTr("%n unchanged", "", planned.same));
    }
    if (planned.along > 0) {
        parts.push(qsTr("%n sidecar files", "", planned.along));
    }
    return parts.concat(planned.ready > 0 ? [qsTr("can be undone")] : []).join(" · ");
}

export const MOVES = {
    makeRun: (window, changed) => new MoveRun(window, changed),
    makePlan: (window, planned) => new LiveMoves(window, planned),
    output: false,
    preview: false,
    watches: false,
    repeats: true,
    columns: ["thumbnail", "name", "folder", "taken", "camera", "rating", "newName", "status"],
    headings: () => ({ name: qsTr("Now") }),
    stressed: true,
    startText: startText,
    startNote: startNote,
    isReady: (window) => window.pictures.tickedCount > 0 && window.pictures.settled && window.planned.ready > 0,
    simulationText: () => qsTr("Dry run: move nothing"),
    replaces: () => false,
};
