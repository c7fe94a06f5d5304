// Cuts a rectangle out of a picture, as an operation of a recipe, whose plan says how large it is and where. Services
// used: recipes (planOutput, make), units, files. Plain data in, plain data out.

import { dpiMessages, dpiWords, inPixels, PIXEL, UNITS } from "../../lib/measure.js";
import { ORIGINAL, WRITTEN } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { makeBy, planBy, recipeOf, showBy, statedQuality, usualOutput } from "../shared/by-recipe.js";
import { outputMessages } from "../shared/written.js";

/** How the size of the frame is given. */
export const MODES = ["ratio", "size", "percent", "pixels"];
export const MOST = 100000;
/** Ratios of width to height; "custom" is one that is typed. */
export const RATIOS = ["1:1", "5:4", "4:3", "7:5", "3:2", "16:9", "4:5", "3:4", "2:3", "9:16", "custom"];
/**
 * What width and height keep while they are typed and drawn: "free" for nothing, "original" for the picture's ratio.
 */
export const HELD_RATIOS = ["free", "original"].concat(RATIOS);
const MOST_OF_RATIO = 1000;
/** The position of a frame placed where the eye is drawn to; the other nine go row by row. */
export const ATTENTION = 9;
export const PLACES = [0, 1, 2, 3, 4, 5, 6, 7, 8, ATTENTION];

/** What a new pane shows. dpi is the resolution for lengths, 0 for each picture's own. */
export const defaults = {
    mode: "percent", width: 1200, height: 800, unit: PIXEL, dpi: 0, percent: 20, pixels: 200, position: 4, offsetX: 0,
    offsetY: 0,
    ratio: "free", ratioWidth: 3, ratioHeight: 2, turnsRatio: true,
    output: usualOutput(ORIGINAL, "9", qsTr("Cropped")),
};

/** What the output block offers; see the Resize step. */
export const offer = { types: WRITTEN.map((type) => type.id), quality: true, byRecipe: true };

/** The two numbers of a ratio; null if they depend on the picture. */
export function numbersOf(settings) {
    if (settings.ratio === "custom") {
        return { width: settings.ratioWidth, height: settings.ratioHeight };
    }
    const parts = settings.ratio.split(":").map(Number);
    return parts.length === 2 ? { width: parts[0], height: parts[1] } : null;
}

function ratioWords(settings) {
    const numbers = numbersOf(settings);
    const words = fill(qsTr("ratio %1"), numbers === null ? settings.ratio : numbers.width + ":" + numbers.height);
    return settings.turnsRatio ? words : words + ", " + qsTr("not swapped");
}

function placeWords(settings) {
    if (settings.position === ATTENTION) {
        return [qsTr("at the focus of attention")];
    }
    const moved = settings.offsetX || settings.offsetY
        ? [fill(qsTr("moved %1, %2 %3"), settings.offsetX, settings.offsetY, settings.unit)] : [];
    return [fill(qsTr("position %1"), settings.position + 1)].concat(moved);
}

/** The settings in a few words, for the log. */
export function describe(settings) {
    const unit = settings.unit === PIXEL ? settings.unit : settings.unit + dpiWords(settings.dpi);
    const size = { ratio: ratioWords(settings), size: settings.width + "×" + settings.height + " " + unit,
                   percent: fill(qsTr("trim %1%"), settings.percent),
                   pixels: qsTr("trim %n pixels", "", settings.pixels) }[settings.mode];
    return [size].concat(placeWords(settings)).join(", ");
}

function isWhole(value, least, most) {
    return Number.isInteger(value) && value >= least && value <= most;
}

function ratioMessages(settings) {
    const numbers = numbersOf(settings);
    const good = (value) => value > 0 && value <= MOST_OF_RATIO;
    return RATIOS.indexOf(settings.ratio) >= 0 && good(numbers.width) && good(numbers.height)
        ? [] : [qsTr("Enter two numbers above 0 for the ratio.")];
}

function sizeMessages(settings) {
    if (settings.mode === "ratio") {
        return ratioMessages(settings);
    }
    if (settings.mode === "percent") {
        return isWhole(settings.percent, 0, 99) ? [] : [qsTr("Enter a whole number from 0 to 99.")];
    }
    if (settings.mode === "pixels") {
        return isWhole(settings.pixels, 0, MOST)
            ? [] : [qsTr("Enter a whole number from 0 to %1.").replace("%1", String(MOST))];
    }
    const good = (value) => value > 0 && value <= MOST && (settings.unit !== PIXEL || Number.isInteger(value));
    return (good(settings.width) && good(settings.height) ? [] : [qsTr("Enter a width and a height.")])
        .concat(dpiMessages(settings));
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = sizeMessages(settings);
    if (PLACES.indexOf(settings.position) < 0) {
        messages.push(qsTr("Choose one of the nine positions."));
    }
    if (!(Math.abs(settings.offsetX) <= MOST && Math.abs(settings.offsetY) <= MOST)
        || UNITS.indexOf(settings.unit) < 0) {
        messages.push(qsTr("Enter offsets from %1 to %2.").replace("%1", String(-MOST)).replace("%2", String(MOST)));
    }
    return messages.concat(outputMessages(settings.output));
}

/** What is done to one picture. */
export function recipe(photo, settings, services) {
    // Offsets are in pixels, since an operation has no unit for them.
    const isMixed = settings.mode === "pixels" && settings.unit !== PIXEL;
    const moved = isMixed ? inPixels(photo, settings, ["offsetX", "offsetY"], services) : settings;
    return recipeOf("Crop", moved);
}

/** The same: workers receive it with the picture. */
export function recipeFor(photo, settings, services) {
    return recipe(photo, settings, services);
}

/** What a run would write for one picture: a plan with the cut, see recipes.planOutput, or a final status with its reason. */
export function plan(photo, settings, services) {
    return planBy(photo, settings, services,
                  () => services.recipes.planOutput(photo.path, recipe(photo, settings, services)));
}

/** Writes the cut picture as settings.prefix + name, where plan() tells the name; see the Resize step. */
export function run(photo, settings, services) {
    return makeBy(photo, settings, recipe(photo, settings, services), plan(photo, settings, services), services);
}

/** What the preview does to the upright picture to show the result. */
export function preview(photo, settings, planned, services) {
    return showBy(photo, recipe(photo, settings, services), planned, statedQuality(settings.output));
}
