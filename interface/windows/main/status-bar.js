// The bar at the foot of the window, and the menu entries that do the same: how far a run is, its outcome, and what can
// be done about it.

import { wordsFor } from "../../lib/input-words.js";
import { fill, fillNumbers, numberText } from "../../lib/wording.js";

function listText(window) {
    const words = wordsFor(window.action.lists(window.settings));
    const out = window.pictures.count - window.pictures.tickedCount;
    const parts = [words.count(window.pictures.count)].concat(out > 0 ? [fillNumbers(qsTr("%1 left out"), out)] : []);
    return window.pictures.count > 0 ? parts.join(" · ") : words.none();
}

function showTexts(window, busy, ended) {
    const run = window.run;
    const idleText = () => window.said || run.idleText() || listText(window);
    window.form.control("statusText").text = busy || ended ? run.text : idleText();
    window.form.control("statusDetail").text = (busy || ended) && window.said ? window.said : run.detail;
    if (!busy && !ended) {
        window.form.control("statusText").accessibleName = ""; // screen readers read the text itself
    }
}

// Which buttons the summary of a run has.
function endButtons(run, ended) {
    return {
        dismissButton: ended,
        openFolderButton: ended && run.folders().length > 0,
        showFailedButton: ended && run.hasProblems(),
        retryButton: ended && run.failedIds().length > 0,
        reportButton: ended && run.rows.length > 0,
    };
}

// Says above the list that only part of it is shown.
function showFilter(window) {
    const stars = window.pictures.leastRating;
    const notes = [];
    if (window.pictures.problemsOnly) {
        notes.push(qsTr("Only failed pictures are shown: %n", "", window.run.problems));
    }
    if (stars > 0) {
        notes.push(fill(qsTr("Only pictures with %1 are processed: %2"), qsTr("%n stars or more", "", stars),
                        numberText(window.pictures.count)));
    }
    if (window.pictures.filtered) {
        notes.push(fill(qsTr("Only pictures that match the filter are processed: %1"),
                        numberText(window.pictures.count)));
    }
    window.form.control("filterBar").visible = notes.length > 0;
    window.form.control("filterNote").text = notes.join(" · ");
}

function showBar(window, busy) {
    const bar = window.form.control("progress");
    const { phase, progress } = window.run;
    bar.visible = busy;
    bar.maximum = phase === "planning" ? 0 : Math.max(1, progress.count);
    bar.value = progress.done;
}

/** Shows how far a run is that is under way. */
export function showProgress(window) {
    showTexts(window, true, false);
    showBar(window, true);
}

export function showStatusBar(window) {
    const control = (name) => window.form.control(name);
    const run = window.run;
    const busy = run.isBusy();
    const ended = run.phase === "ended";
    const offer = run.undoOffer();
    showTexts(window, busy, ended);
    showBar(window, busy);
    const visible = Object.assign(endButtons(run, ended), {
        whenDone: run.phase === "running" && !window.watching.isOn(),
        pauseButton: run.phase === "running", cancelButton: busy, undoButton: offer !== null && !window.said,
    });
    Object.keys(visible).forEach((name) => { control(name).visible = visible[name]; });
    control("undoButton").text = offer === null ? qsTr("Undo") : offer.text;
    control("pauseButton").text = run.paused ? qsTr("Resume") : qsTr("Pause");
    control("pauseAction").text = control("pauseButton").text;
    control("pauseAction").enabled = visible.pauseButton;
    control("cancelAction").enabled = window.escape.look();
    control("retryAction").enabled = visible.retryButton;
    control("reportAction").enabled = visible.reportButton;
    control("showFailedAction").enabled = visible.showFailedButton;
    showFilter(window);
    control("showFailedAction").checked = window.pictures.problemsOnly;
    control("showFailedButton").checked = window.pictures.problemsOnly;
}
