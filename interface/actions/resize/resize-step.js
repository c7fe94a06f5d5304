// Makes a resized copy of a picture, as an operation of a recipe.
// Services used: recipes (planOutput, make), files. Plain data in, plain data out.

import { dpiMessages, dpiWords, PIXEL } from "../../lib/measure.js";
import { ORIGINAL, WRITTEN } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { makeBy, planBy, recipeOf, showBy, statedQuality, usualOutput } from "../shared/by-recipe.js";
import { outputMessages } from "../shared/written.js";

/** What is given; the rest follows from it. */
export const MODES = ["width", "height", "longest", "percent", "box"];

export const MOST_PIXELS = 100000;
export const MOST_PERCENT = 1000;
/** The settings that are lengths in the unit. */
export const LENGTHS = ["width", "height", "longest", "boxWidth", "boxHeight"];

/** What is done if a picture does not have the shape of the box; the words of recipes. */
export const BOX_FITS = ["inside", "fill", "stretch", "pad"];

/**
 * What a new pane shows. padColor surrounds padded pictures; dpi is the resolution for lengths, 0 for each picture's
 * own.
 */
export const defaults = {
    mode: "longest", width: 1600, height: 1200, longest: 1600, percent: 50, boxWidth: 1600, boxHeight: 1200,
    boxFit: "fill", padColor: "#ffffff", neverEnlarge: true, unit: PIXEL, dpi: 0,
    output: usualOutput(ORIGINAL, "8", qsTr("Resized")),
};

/**
 * What the output block offers: types to write, and a quality for those that have one. byRecipe: the metadata to keep
 * can be chosen, and the plan of each picture says what it loses.
 */
export const offer = { types: WRITTEN.map((type) => type.id), quality: true, byRecipe: true };

/** The settings in a few words, for the log. */
export function describe(settings) {
    const isInPixels = settings.unit === PIXEL || settings.mode === "percent";
    const unit = isInPixels ? "" : " " + settings.unit + dpiWords(settings.dpi);
    const size = settings.mode === "box"
        ? settings.boxWidth + "×" + settings.boxHeight : String(settings[settings.mode]);
    const words = { width: qsTr("width %1"), height: qsTr("height %1"), longest: qsTr("longest side %1"),
                    percent: qsTr("%1%"), box: qsTr("box %1") };
    return fill(words[settings.mode], size + unit);
}

function usedFields(settings) {
    return settings.mode === "box" ? ["boxWidth", "boxHeight"] : [settings.mode];
}

function isInRange(value, least, most, whole) {
    return value >= least && value <= most && (!whole || Number.isInteger(value));
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = [];
    for (const field of usedFields(settings)) {
        const most = field === "percent" ? MOST_PERCENT : MOST_PIXELS;
        const whole = field === "percent" || settings.unit === PIXEL;
        if (!isInRange(settings[field], whole ? 1 : 0.01, most, whole)) {
            const text = whole ? qsTr("Enter a whole number from 1 to %1.") : qsTr("Enter a number above 0, up to %1.");
            messages.push(text.replace("%1", String(most)));
        }
    }
    return messages.concat(settings.mode === "percent" ? [] : dpiMessages(settings), outputMessages(settings.output));
}

/** What is done to each picture. */
export function recipe(settings) {
    return recipeOf("Resize", settings);
}

/** The same for one of them: workers are given it with the picture. */
export function recipeFor(_photo, settings) {
    return recipe(settings);
}

/**
 * What a run would write for one picture: {status: "ready", name, type, width, height, notes, lossless, losses}, or a final status
 * with its reason.
 */
export function plan(photo, settings, services) {
    return planBy(photo, settings, services, () => services.recipes.planOutput(photo.path, recipe(settings)));
}

/**
 * Writes the resized copy as settings.prefix + name, where plan() gives the name; an existing file is replaced. Returns
 * {status, reason, outputs: [path], width, height}.
 */
export function run(photo, settings, services) {
    return makeBy(photo, settings, recipe(settings), plan(photo, settings, services), services);
}

/**
 * What the preview does to the upright picture to show the result: {edits, width, height, type, quality}. Edits are
 * applied in order, lengths are pixels of the full picture, origin top left.
 */
export function preview(photo, settings, planned) {
    return showBy(photo, recipe(settings), planned, statedQuality(settings.output));
}
