// Lays pictures on a colour or a pattern, and puts a frame around them or a band inside their edge, as operations of a
// recipe. Services used: recipes (planOutput, make), files. Plain data in, plain data out.

import { files } from "quorlin/files";
import { splitPath } from "../../lib/names.js";
import { ORIGINAL, WRITTEN } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { makeBy, planBy, recipeOf, showBy, statedQuality, usualOutput } from "../shared/by-recipe.js";
import { ownName } from "../shared/own-name.js";
import { mayBeTransparent, outputMessages, unreadable } from "../shared/written.js";

export const MOST_BAND = 10000;
/** What can be put under a picture. */
export const GROUNDS = ["color", "pattern"];
export const FRAMES = ["none", "white", "band"];

/** What a new pane shows. */
export const defaults = {
    under: "color", color: "#ffffff", pattern: "", frame: "none", bandColor: "#202124", bandWidth: 40,
    output: usualOutput(ORIGINAL, "", qsTr("Framed")),
};

/** What the output block offers; see the Resize step. */
export const offer = { types: WRITTEN.map((type) => type.id), quality: true, byRecipe: true };

/** The settings in a few words, for the log. */
export function describe(settings) {
    const under = settings.under === "color"
        ? fill(qsTr("on %1"), settings.color) : fill(qsTr("on pattern %1"), settings.pattern);
    const frames = { none: [], white: [qsTr("white border")],
                     band: [fill(qsTr("border of %1 px in %2"), settings.bandWidth, settings.bandColor)] };
    return [under].concat(frames[settings.frame]).join(", ");
}

function patternMessages(path) {
    if (!path) {
        return [qsTr("Choose a pattern.")];
    }
    return files.storedSize(path) === null
        ? [fill(qsTr("“%1” cannot be read as a picture."), splitPath(path).name)] : [];
}

/** Messages about invalid settings; empty if a run can start. */
export function validate(settings) {
    const messages = settings.under === "pattern" ? patternMessages(settings.pattern) : [];
    if (settings.frame === "band"
        && !(Number.isInteger(settings.bandWidth) && settings.bandWidth >= 1 && settings.bandWidth <= MOST_BAND)) {
        messages.push(qsTr("Enter a border width from 1 to %1.").replace("%1", String(MOST_BAND)));
    }
    return messages.concat(outputMessages(settings.output));
}

/** What is done to each picture. */
export function recipe(settings) {
    return recipeOf("Background and Border", settings);
}

/** The same for one picture: workers receive it with the picture. */
export function recipeFor(_photo, settings) {
    return recipe(settings);
}

/** What a run would write for one picture, or a final status with its reason. */
export function plan(photo, settings, services) {
    const refusal = unreadable(photo);
    if (refusal !== null) {
        return refusal;
    }
    if (settings.frame === "band" && 2 * settings.bandWidth >= Math.min(photo.width, photo.height)) {
        return { status: "Failed", reason: qsTr("the border would cover the whole picture") };
    }
    const planned = planBy(photo, settings, services,
                           () => services.recipes.planOutput(photo.path, recipe(settings)),
                           ownName(photo.path, settings.output.fileType));
    if (planned.status === "ready" && settings.frame === "none" && !mayBeTransparent(photo)) {
        const note = fill(qsTr("%1 pictures have no transparent parts, so a background would not be visible."),
                          photo.type);
        planned.notes = [note].concat(planned.notes);
    }
    return planned;
}

/** Writes the picture as settings.prefix + name, where plan() tells the name; see the Resize step. */
export function run(photo, settings, services) {
    return makeBy(photo, settings, recipe(settings), plan(photo, settings, services), services);
}

/** What the preview does to the upright picture to show the result. */
export function preview(photo, settings, planned) {
    return showBy(photo, recipe(settings), planned, statedQuality(settings.output));
}
