// Turns and flips a picture, as operations of a recipe.
// Services used: recipes (planOutput, make), files. Plain data in, plain data out.

import { madeType, ORIGINAL, WRITTEN } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { makeBy, planBy, recipeOf, showBy, statedQuality, usualOutput } from "../shared/by-recipe.js";
import { ownName } from "../shared/own-name.js";
import { outputMessages } from "../shared/written.js";

const RIGHT_ANGLE = 90;
const HALF_TURN = 180;

/** What a new pane shows. The angle is in degrees, anticlockwise, in tenths. */
export const defaults = {
    angle: 0, flipHorizontal: false, flipVertical: false,
    output: usualOutput(ORIGINAL, "", qsTr("Rotated")),
};

/** What the output block offers; see the Resize step. */
export const offer = { types: WRITTEN.map((type) => type.id), quality: true, byRecipe: true };

/** The settings in a few words, for the log. */
export function describe(settings) {
    const parts = settings.angle !== 0 ? [fill(qsTr("rotate %1°"), settings.angle)] : [];
    return parts
        .concat(settings.flipHorizontal ? [qsTr("flip horizontally")] : [],
                settings.flipVertical ? [qsTr("flip vertically")] : []).join(", ");
}

// Both flips and half a turn undo each other.
function changesNothing(settings) {
    return settings.flipHorizontal === settings.flipVertical
        && Math.abs(settings.angle) === (settings.flipVertical ? HALF_TURN : 0);
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = [];
    if (!(settings.angle >= -HALF_TURN && settings.angle <= HALF_TURN)) {
        messages.push(qsTr("Enter an angle from −180 to 180 degrees."));
    } else if (changesNothing(settings)) {
        messages.push(qsTr("Choose an angle or a flip."));
    }
    return messages.concat(outputMessages(settings.output));
}

/** What is done to each picture. */
export function recipe(settings) {
    return recipeOf("Rotate and Flip", settings);
}

/** The same for one of them: workers are given it with the picture. */
export function recipeFor(_photo, settings) {
    return recipe(settings);
}

function notesFor(settings, planned) {
    const type = madeType(planned.type);
    if (settings.angle % RIGHT_ANGLE === 0) {
        return planned.lossless ? [qsTr("Rotated without loss.")] : [];
    }
    return [type.alpha ? qsTr("The canvas grows so that the corners fit.")
                       : qsTr("The canvas grows so that the corners fit. The new corners become white.")];
}

/** What a run would write for one picture, or a final status with its reason. */
export function plan(photo, settings, services) {
    const planned = planBy(photo, settings, services,
                           () => services.recipes.planOutput(photo.path, recipe(settings)),
                           ownName(photo.path, settings.output.fileType));
    if (planned.status === "ready") {
        planned.notes = notesFor(settings, planned).concat(planned.notes);
    }
    return planned;
}

/** Writes the turned picture as settings.prefix + its own name; see the Resize step. */
export function run(photo, settings, services) {
    return makeBy(photo, settings, recipe(settings), plan(photo, settings, services), services);
}

/** What the preview does to the upright picture to show the result. */
export function preview(photo, settings, planned) {
    return showBy(photo, recipe(settings), planned, statedQuality(settings.output));
}
