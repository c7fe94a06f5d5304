// Writes a picture as another file type, as a recipe without operations.
// Services used: recipes (planOutput, make), files. Plain data in, plain data out.

import { isTarget, sourceNotes, targetNamed } from "./targets.js";
import { CONVERSION_QUALITIES, ORIGINAL } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { makeBy, planBy, recipeOf, showBy, usualOutput } from "../shared/by-recipe.js";
import { outputMessages } from "../shared/written.js";

/** What a new pane shows. target: see targets.js. */
export const defaults = {
    target: "jpeg", quality: "8",
    output: usualOutput(ORIGINAL, "10", qsTr("Converted")),
};

/** The output block offers no type and no quality, since the pane itself is about these. */
export const offer = { types: [], quality: false, byRecipe: true };

/** The settings in a few words, for the log. */
export function describe(settings) {
    const target = targetNamed(settings.target);
    return target.quality
        ? fill(qsTr("to %1, quality %2"), target.word, settings.quality) : fill(qsTr("to %1"), target.word);
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = [];
    if (!isTarget(settings.target)) {
        messages.push(qsTr("Choose what to convert to."));
    } else if (CONVERSION_QUALITIES.indexOf(settings.quality) < 0) {
        messages.push(qsTr("Choose a quality from 1 to 9."));
    }
    return messages.concat(outputMessages(settings.output));
}

/** What is done to each picture. */
export function recipe(settings) {
    return recipeOf("Convert", settings);
}

/** The same for one of them: workers are given it with the picture. */
export function recipeFor(_photo, settings) {
    return recipe(settings);
}

/** What a run would write for one picture, or a final status with its reason. */
export function plan(photo, settings, services) {
    const planned = planBy(photo, settings, services,
                           () => services.recipes.planOutput(photo.path, recipe(settings)));
    if (planned.status === "ready") {
        planned.notes = sourceNotes(photo, targetNamed(settings.target), planned.lossless).concat(planned.notes);
    }
    return planned;
}

/** Writes the picture as settings.prefix + name, where plan() tells the name; see the Resize step. */
export function run(photo, settings, services) {
    return makeBy(photo, settings, recipe(settings), plan(photo, settings, services), services);
}

/** What the preview does to the upright picture to show the result. */
export function preview(photo, settings, planned) {
    return showBy(photo, recipe(settings), planned, targetNamed(settings.target).quality ? settings.quality : "");
}
