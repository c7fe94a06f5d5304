// The manner of actions that carry out a recipe: several operations and outputs, with names and folders given by the
// recipe.

import { fill } from "../../lib/wording.js";
import { RecipePlan } from "./recipe-plan.js";
import { RecipeRun } from "./recipe-run.js";
import { roomNote, WRITES } from "../writes.js";

function startText(window) {
    const total = window.pictures.tickedCount;
    const planned = window.planned;
    const number = planned.all === total ? planned.ready : total;
    if (total === 0) {
        return window.action.title();
    }
    if (window.settings.simulation) {
        return fill(qsTr("Dry Run: %1"), window.action.startText(number, window.settings));
    }
    return planned.originals > 0
        ? window.action.startText(number, window.settings) + ", " + qsTr("Replace %n Originals", "", planned.originals)
        : window.action.startText(number, window.settings);
}

function startNote(window) {
    const planned = window.planned;
    if (window.pictures.tickedCount === 0 || window.settings.simulation) {
        return "";
    }
    const problem = roomNote(window);
    if (problem !== "") {
        return problem;
    }
    if (planned.originals > 0) {
        return qsTr("Originals are replaced by their results.");
    }
    return planned.replaced > 0 ? qsTr("%n files are replaced.", "", planned.replaced) : "";
}

export const RECIPES = Object.assign({}, WRITES, {
    makeRun: (window, changed) => new RecipeRun(window, changed),
    makePlan: (window, planned) => new RecipePlan(window, planned),
    output: false,
    headings: () => ({ newName: qsTr("New names"), newSize: qsTr("New sizes") }),
    startText: startText,
    startNote: startNote,
    replaces: (window) => window.planned.originals > 0 && !window.settings.simulation,
});
