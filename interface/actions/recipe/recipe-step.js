// Carries out a recipe: several operations and one or more outputs. The run is that of recipes
// (runs/recipes/recipe-run.js); this file answers what the pane and the preview ask about one picture and one output.
// Services used: recipes (problemOf, planOutput), defaults. Plain data in, plain data out.

import { recipes } from "quorlin/recipes";
import { splitPath } from "../../lib/names.js";
import { madeType, madeTypeNamed } from "../../lib/types.js";
import { isAllowed } from "./recipe-reach.js";
import { oneOutput, operationsFor, parsed, withAbsolutePaths } from "./recipe-text.js";

const WHITE = "#ffffff";

/**
 * text is that of the recipe's file, folder where relative paths in it begin, path the file that it was opened from or "". base is where
 * relative folders of outputs begin, "" for the folder of each picture; keepSubfolders builds the tree of each added folder again there.
 * shown is the output whose result the preview shows.
 */
export const defaults = { text: "", folder: "/", path: "", base: "", keepSubfolders: false, shown: 0,
                          simulation: false };

/** The recipe in a few words, for the log. */
export function describe(settings) {
    const recipe = parsed(settings.text);
    return (recipe !== null && recipe.name) || (settings.path === "" ? "" : splitPath(settings.path).base);
}

/** Messages on what is wrong with the recipe; empty if a run can start. */
export function validate(settings) {
    const unread = recipes.problemOf(settings.text, settings.folder, false);
    if (unread !== "") {
        return [unread];
    }
    if (!isAllowed(settings)) {
        return [qsTr("Check what this recipe reads and writes, and allow it first.")];
    }
    const problem = recipes.problemOf(settings.text, settings.folder, true);
    return problem === "" ? [] : [problem];
}

function shownIndex(recipe, settings) {
    return Math.min(settings.shown, recipe.outputs.length - 1);
}

/** What the output that is shown makes of a picture. */
export function plan(photo, settings, services) {
    const recipe = withAbsolutePaths(parsed(settings.text), settings.folder);
    const told = services.recipes.planOutput(photo.path, oneOutput(recipe, shownIndex(recipe, settings)));
    if (told.problem !== "") {
        return { status: told.isNotSupported ? "Not Supported" : "Failed", reason: told.problem };
    }
    return { status: "ready", reason: "", name: "", type: madeTypeNamed(told.type).id, width: told.width,
             height: told.height, notes: told.losses, lossless: told.lossless, losses: told.losses };
}

/** What the preview does to the upright picture to show the result. */
export function preview(photo, settings, planned) {
    const recipe = withAbsolutePaths(parsed(settings.text), settings.folder);
    const index = shownIndex(recipe, settings);
    const output = recipe.outputs[index];
    /** @type {any[]} */
    const edits = [{ do: "recipe", operations: operationsFor(recipe, index), path: photo.path }];
    const quality = output.quality === undefined ? "" : String(output.quality);
    return { edits: madeType(planned.type).alpha ? edits : edits.concat([{ do: "lay", color: output.matte || WHITE }]),
             width: planned.width, height: planned.height, type: planned.type, quality: quality };
}
