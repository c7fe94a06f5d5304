// What is said about runs that were interrupted and are ended now. Pure; no service is used.

import { fill } from "../lib/wording.js";

function counted(count, one, many) {
    return count === 1 ? one : many.replace("%1", String(count));
}

/** One run in words: what became of its items. */
export function recoveredText(run) {
    const parts = [];
    if (run.done + run.finished > 0) {
        parts.push(counted(run.done + run.finished, qsTr("1 item has its new name"),
                           qsTr("%1 items have their new names")));
    }
    if (run.takenBack > 0) {
        parts.push(counted(run.takenBack, qsTr("1 item was taken back"), qsTr("%1 items were taken back")));
    }
    if (run.left > 0) {
        parts.push(counted(run.left, qsTr("the turn of 1 item had not come"),
                           qsTr("the turn of %1 items had not come")));
    }
    const what = fill(qsTr("%1 was interrupted and is ended now"), run.title);
    return (parts.length > 0 ? fill(qsTr("%1: %2"), what, parts.join(", ")) : what) + ".";
}

/** {text, detail} for all runs, or null where nothing was interrupted. The detail lists what could not be put right. */
export function recoveredWords(runs) {
    if (runs.length === 0) {
        return null;
    }
    const problems = runs.reduce((all, run) => all.concat(run.problems), []);
    return { text: runs.map(recoveredText).join(" "), detail: problems.join("\n") };
}
