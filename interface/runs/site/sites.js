// The manner of the action that makes a page of all pictures of the list.

import { RECIPES } from "../recipes/recipes.js";
import { SitePlan } from "./site-plan.js";
import { SiteRun } from "./site-run.js";

export const SITES = Object.assign({}, RECIPES, {
    makeRun: (window, changed) => new SiteRun(window, changed),
    makePlan: (window, planned) => new SitePlan(window, planned),
    watches: false,
    repeats: false,
    startNote: (window) => (window.settings.ifTaken === "update" && !window.settings.simulation
        ? qsTr("The page that Quorlin made in this folder is updated.") : ""),
    replaces: () => false,
});
