// The live plan of a page: what each picture becomes, as the recipe that the settings imply.

import { joinPath } from "../../lib/names.js";
import { parentOf } from "./site-place.js";
import { RecipePlan, recipePlan } from "../recipes/recipe-plan.js";

export class SitePlan extends RecipePlan {
    work(ids, settings) {
        const step = this.window.action.step;
        const base = joinPath(parentOf(settings, this.window.pictures.tickedPaths()), step.folderNameOf(settings));
        // Names are those of a new folder, whatever is at its destination.
        const planned = { text: JSON.stringify(step.recipeOf(settings, "new")), folder: "/", base: base,
                          keepSubfolders: false };
        // The engine loses a generator that is returned by the call that creates it.
        const planning = recipePlan(this.window, ids, planned);
        return planning;
    }
}
