// Cuts pictures to a rectangle with round corners, a circle or an ellipse, as an operation of a recipe.
// Services used: recipes (planOutput, make), files. Plain data in, plain data out.

import { WRITTEN } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { makeBy, planBy, recipeOf, showBy, statedQuality, usualOutput } from "../shared/by-recipe.js";
import { ownName } from "../shared/own-name.js";
import { outputMessages, unreadable } from "../shared/written.js";

export const MOST_RADIUS = 100000;
export const MOST_BAND = 10000;

/** What a new pane shows. */
export const defaults = {
    shape: "rectangle", radius: 100, background: false, color: "#ffffff", band: 0,
    output: usualOutput("public.png", "", qsTr("Rounded")),
};

/** What the output block offers; see the Resize step. */
export const offer = { types: WRITTEN.map((type) => type.id), quality: true, byRecipe: true };

export const SHAPES = ["rectangle", "circle", "ellipse"];

/** The settings in a few words, for the log. */
export function describe(settings) {
    const shapes = { rectangle: fill(qsTr("corners of %1 px"), settings.radius), circle: qsTr("circle"),
                     ellipse: qsTr("ellipse") };
    const background = settings.background ? [fill(qsTr("on %1"), settings.color)] : [];
    const band = settings.background && settings.band > 0 ? [fill(qsTr("border of %1 px"), settings.band)] : [];
    return [shapes[settings.shape]].concat(background, band).join(", ");
}

function isWhole(value, most) {
    return Number.isInteger(value) && value >= 0 && value <= most;
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = [];
    if (settings.shape === "rectangle" && !isWhole(settings.radius, MOST_RADIUS)) {
        messages.push(qsTr("Enter a radius from 0 to %1.").replace("%1", String(MOST_RADIUS)));
    }
    if (settings.background && !isWhole(settings.band, MOST_BAND)) {
        messages.push(qsTr("Enter a border width from 0 to %1.").replace("%1", String(MOST_BAND)));
    }
    return messages.concat(outputMessages(settings.output));
}

/** What is done to each picture. */
export function recipe(settings) {
    return recipeOf("Round Corners", settings);
}

/** The same for one of them: workers are given it with the picture. */
export function recipeFor(_photo, settings) {
    return recipe(settings);
}

/** What a run would write for one picture, or a final status with its reason. */
export function plan(photo, settings, services) {
    const refusal = unreadable(photo);
    if (refusal !== null) {
        return refusal;
    }
    if (settings.background && 2 * settings.band >= Math.min(photo.width, photo.height)) {
        return { status: "Failed", reason: qsTr("the border would cover the whole picture") };
    }
    const planned = planBy(photo, settings, services,
                           () => services.recipes.planOutput(photo.path, recipe(settings)),
                           ownName(photo.path, settings.output.fileType));
    if (planned.status === "ready" && settings.shape === "circle" && photo.width !== photo.height) {
        planned.notes = [qsTr("The circle is cut from the square in the middle.")].concat(planned.notes);
    }
    return planned;
}

/** Writes the cut picture as settings.prefix + name, where plan() tells the name; see the Resize step. */
export function run(photo, settings, services) {
    return makeBy(photo, settings, recipe(settings), plan(photo, settings, services), services);
}

/** What the preview does to the upright picture to show the result. */
export function preview(photo, settings, planned) {
    return showBy(photo, recipe(settings), planned, statedQuality(settings.output));
}
