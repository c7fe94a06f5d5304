// Cuts a rectangle out of a picture, as an operation of a recipe.
// Services used: recipes (planOutput, make), units, files. Plain data in, plain data out.

import { cropFrame, insidePicture } from "./crops.js";
import { inPixels, PIXEL, UNITS } from "../../lib/measure.js";
import { ORIGINAL, WRITTEN } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { makeBy, planBy, recipeOf, showBy, statedQuality, usualOutput } from "../shared/by-recipe.js";
import { outputMessages, unreadable } from "../shared/written.js";

export const MOST = 100000;
/** The ratios of the frame that can be kept: "free" for none, "original" for that of the picture. */
export const RATIOS = ["free", "original", "1:1", "3:2", "4:3", "16:9", "2:3", "3:4", "9:16"];
/** The nine positions of the frame, row by row. */
export const PLACES = [0, 1, 2, 3, 4, 5, 6, 7, 8];

/** What a new pane shows. */
export const defaults = {
    mode: "percent", width: 1200, height: 800, unit: PIXEL, percent: 20, pixels: 200, position: 4, offsetX: 0,
    offsetY: 0,
    ratio: "free",
    output: usualOutput(ORIGINAL, "9", qsTr("Cropped")),
};

/** What the output block offers; see the Resize step. */
export const offer = { types: WRITTEN.map((type) => type.id), quality: true, byRecipe: true };

/** The settings in a few words, for the log. */
export function describe(settings) {
    const size = { size: settings.width + "×" + settings.height + " " + settings.unit,
                   percent: fill(qsTr("%1 % away"), settings.percent),
                   pixels: qsTr("%n pixels away", "", settings.pixels) }[settings.mode];
    const moved = settings.offsetX || settings.offsetY
        ? [fill(qsTr("moved %1, %2 %3"), settings.offsetX, settings.offsetY, settings.unit)] : [];
    return [size, fill(qsTr("position %1"), settings.position + 1)].concat(moved).join(", ");
}

function isWhole(value, least, most) {
    return Number.isInteger(value) && value >= least && value <= most;
}

function sizeMessages(settings) {
    if (settings.mode === "percent") {
        return isWhole(settings.percent, 0, 99) ? [] : [qsTr("Enter a whole number from 0 to 99 per cent.")];
    }
    if (settings.mode === "pixels") {
        return isWhole(settings.pixels, 0, MOST)
            ? [] : [qsTr("Enter a whole number from 0 to %1.").replace("%1", String(MOST))];
    }
    const good = (value) => value > 0 && value <= MOST && (settings.unit !== PIXEL || Number.isInteger(value));
    return good(settings.width) && good(settings.height) ? [] : [qsTr("Enter a width and a height.")];
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = sizeMessages(settings);
    if (!isWhole(settings.position, 0, 8)) {
        messages.push(qsTr("Choose one of the nine positions."));
    }
    if (!(Math.abs(settings.offsetX) <= MOST && Math.abs(settings.offsetY) <= MOST)
        || UNITS.indexOf(settings.unit) < 0) {
        messages.push(qsTr("Enter offsets from %1 to %2.").replace("%1", String(-MOST)).replace("%2", String(MOST)));
    }
    return messages.concat(outputMessages(settings.output));
}

/** The settings with all lengths in pixels of the picture. */
export function forPhoto(photo, settings, services) {
    const lengths = settings.mode === "size" ? ["width", "height", "offsetX", "offsetY"] : ["offsetX", "offsetY"];
    return inPixels(photo, settings, lengths, services);
}

/** What is done to one picture: in its own pixels, so that the frame that is shown is what is cut. */
export function recipe(photo, settings, services) {
    return recipeOf("Crop", Object.assign(forPhoto(photo, settings, services), { unit: PIXEL }));
}

/** The same: workers are given it with the picture. */
export function recipeFor(photo, settings, services) {
    return recipe(photo, settings, services);
}

/** What a run would write for one picture: a plan with the frame, or a final status with its reason. */
export function plan(photo, settings, services) {
    const refusal = unreadable(photo);
    if (refusal !== null) {
        return refusal;
    }
    const frame = cropFrame(photo, forPhoto(photo, settings, services));
    if (!(frame.width > 0 && frame.height > 0)) {
        return { status: "Failed", reason: qsTr("nothing would be left of it") };
    }
    const inside = insidePicture(photo, frame);
    if (inside === null) {
        return { status: "Failed", reason: qsTr("the frame lies outside the picture") };
    }
    const planned = planBy(photo, settings, services,
                           () => services.recipes.planOutput(photo.path, recipe(photo, settings, services)));
    if (planned.status === "ready" && (inside.width < frame.width || inside.height < frame.height)) {
        planned.notes = [qsTr("Cut off at the picture’s edge.")].concat(planned.notes);
    }
    return Object.assign(planned, { frame: frame, inside: inside });
}

/** Writes the cut picture as settings.prefix + name, where plan() tells the name; see the Resize step. */
export function run(photo, settings, services) {
    return makeBy(photo, settings, recipe(photo, settings, services), plan(photo, settings, services), services);
}

/** What the preview does to the upright picture to show the result. */
export function preview(photo, settings, planned, services) {
    return showBy(photo, recipe(photo, settings, services), planned, statedQuality(settings.output));
}
