// The manner of the action that makes a page of all pictures of the list.

import { RECIPES } from "../recipes/recipes.js";
import { SitePlan } from "./site-plan.js";
import { SiteRun } from "./site-run.js";
import { roomNote } from "../writes.js";

function startNote(window) {
    if (window.pictures.tickedCount === 0 || window.settings.simulation) {
        return "";
    }
    const updated = window.settings.ifTaken === "update"
        ? qsTr("The page that Quorlin made in this folder is updated.") : "";
    return roomNote(window) || updated;
}

export const SITES = Object.assign({}, RECIPES, {
    makeRun: (window, changed) => new SiteRun(window, changed),
    makePlan: (window, planned) => new SitePlan(window, planned),
    watches: false,
    repeats: false,
    startNote: startNote,
    replaces: () => false,
});
