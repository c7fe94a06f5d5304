// What is said about interrupted runs that are finished now. Pure; no service is used.

import { fill } from "../lib/wording.js";

/** One run in words: what happened to its items. */
export function recoveredText(run) {
    const parts = [];
    if (run.done + run.finished > 0) {
        parts.push(qsTr("%n files have their new names", "", run.done + run.finished));
    }
    if (run.takenBack > 0) {
        parts.push(qsTr("%n files restored", "", run.takenBack));
    }
    if (run.left > 0) {
        parts.push(qsTr("%n files not started", "", run.left));
    }
    const what = fill(qsTr("%1 was interrupted and has been cleaned up"), run.title);
    return (parts.length > 0 ? fill(qsTr("%1: %2"), what, parts.join(", ")) : what) + ".";
}

/** {text, detail} for all runs, or null if nothing was interrupted. The detail lists what could not be repaired. */
export function recoveredWords(runs) {
    if (runs.length === 0) {
        return null;
    }
    const problems = runs.reduce((all, run) => all.concat(run.problems), []);
    return { text: runs.map(recoveredText).join(" "), detail: problems.join("\n") };
}
