// The live plan of a page: what each picture becomes, as a recipe that the settings stand for.

import { joinPath } from "../../lib/names.js";
import { parentOf } from "./site-place.js";
import { RecipePlan, recipePlan } from "../recipes/recipe-plan.js";

export class SitePlan extends RecipePlan {
    work(ids, settings) {
        const step = this.window.action.step;
        const base = joinPath(parentOf(settings, this.window.pictures.tickedPaths()), step.folderNameOf(settings));
        // Names are those of a new folder, whatever stands where it will be.
        const planned = { text: JSON.stringify(step.recipeOf(settings, "new")), folder: "/", base: base,
                          keepSubfolders: false };
        // The engine loses a generator that is returned by the call that makes it.
        const planning = recipePlan(this.window, ids, planned);
        return planning;
    }
}
