// Makes pictures smaller. Plain data in, plain data out.

import { ORIGINAL, WRITTEN } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { makeBy, planBy, showBy, statedQuality, usualOutput } from "../shared/by-recipe.js";
import { ownName } from "../shared/own-name.js";
import { outputMessages, unreadable } from "../shared/written.js";

export const defaults = {
    percent: 50,
    output: usualOutput(ORIGINAL, "9", "Shrunk"),
};

export const offer = { types: WRITTEN.map((type) => type.id), quality: true, byRecipe: true };

export function describe(settings) {
    return fill(qsTr("to %1 %"), settings.percent);
}

export function validate(settings) {
    return outputMessages(settings.output);
}

function recipe(settings) {
    return { quorlin: 1, operations: [{ do: "resize", percent: settings.percent }], outputs: [{ type: "original" }] };
}

/** Workers are given it with the picture. */
export function recipeFor(_photo, settings) {
    return recipe(settings);
}

export function plan(photo, settings, services) {
    return unreadable(photo) || planBy(photo, settings, services,
                                       () => services.recipes.planOutput(photo.path, recipe(settings)),
                                       ownName(photo.path, settings.output.fileType));
}

export function run(photo, settings, services) {
    return makeBy(photo, settings, recipe(settings), plan(photo, settings, services), services);
}

export function preview(photo, settings, planned) {
    return showBy(photo, recipe(settings), planned, statedQuality(settings.output));
}
