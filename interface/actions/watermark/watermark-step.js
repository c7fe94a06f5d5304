// Puts a text or a picture over pictures, as an operation of a recipe.
// Services used: recipes (planOutput, make), files. Plain data in, plain data out.

import { files } from "quorlin/files";
import { recipes } from "quorlin/recipes";
import { tokens } from "quorlin/tokens";
import { splitPath } from "../../lib/names.js";
import { ORIGINAL, WRITTEN } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { makeBy, planBy, recipeOf, showBy, statedQuality, usualOutput } from "../shared/by-recipe.js";
import { outputMessages } from "../shared/written.js";

/** What is put over the picture. */
export const MARKS = ["text", "picture"];
/** The nine positions, row by row. */
export const PLACES = [0, 1, 2, 3, 4, 5, 6, 7, 8];
export const MOST_PERCENT = 100;
export const MOST_DEGREES = 180;

/**
 * What a new pane shows. Sizes are percentages of a picture: of its height for text, of its width for a picture; the
 * margin is a percentage of its shorter side. The angle is in degrees, anticlockwise. An empty font is the default.
 */
export const defaults = {
    mark: "text", text: "© {date:yyyy}", picture: "", font: "", color: "#ffffff", size: 4, pictureSize: 20, position: 8,
    margin: 2, angle: 0, opacity: 70, tile: false,
    output: usualOutput(ORIGINAL, "9", qsTr("Watermarked")),
};

/** What the output block offers; see the Resize step. */
export const offer = { types: WRITTEN.map((type) => type.id), quality: true, byRecipe: true };

/** The settings in a few words, for the log. */
export function describe(settings) {
    const mark = settings.mark === "text"
        ? fill(qsTr("text “%1”"), settings.text.split("\n").join(" ")) : fill(qsTr("picture %1"), settings.picture);
    return settings.tile ? mark + ", " + qsTr("tiled") : mark;
}

function textMessages(settings) {
    if (settings.text.trim() === "") {
        return [qsTr("Enter a text.")];
    }
    const messages = tokens.problems(settings.text);
    // A resumed run may have only some of its pictures, whose numbers would change.
    if (tokens.parts(settings.text).some((part) => part.token === "counter")) {
        messages.push(qsTr("A watermark cannot contain {counter}."));
    }
    if (settings.font !== "" && recipes.fonts().indexOf(settings.font) < 0) {
        messages.push(fill(qsTr("There is no font “%1” on this computer. Choose another."), settings.font));
    }
    return messages;
}

function pictureMessages(settings) {
    if (settings.picture === "") {
        return [qsTr("Choose a picture.")];
    }
    const name = splitPath(settings.picture).name;
    if (!files.info(settings.picture).exists) {
        return [fill(qsTr("The picture “%1” no longer exists."), name)];
    }
    return files.storedSize(settings.picture) === null
        ? [fill(qsTr("“%1” cannot be read as a picture."), name)] : [];
}

function rangeMessage(value, least, text) {
    return value >= least && value <= MOST_PERCENT ? [] : [text];
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const isText = settings.mark === "text";
    const messages = isText ? textMessages(settings) : pictureMessages(settings);
    return messages
        .concat(rangeMessage(isText ? settings.size : settings.pictureSize, 0.1,
                             qsTr("Enter a size from 0.1% to 100%.")),
                rangeMessage(settings.margin, 0, qsTr("Enter a margin from 0% to 100%.")),
                rangeMessage(settings.opacity, 1, qsTr("Enter an opacity from 1% to 100%.")),
                Math.abs(settings.angle) <= MOST_DEGREES ? [] : [qsTr("Enter an angle from −180 to 180 degrees.")],
                outputMessages(settings.output));
}

/** What is done to each picture. */
export function recipe(settings) {
    return recipeOf("Watermark", settings);
}

/** The same for one of them: workers are given it with the picture. */
export function recipeFor(_photo, settings) {
    return recipe(settings);
}

// What a picture becomes does not depend on the text, and each typed key asks again about all pictures.
function answerFor(photo, settings, services) {
    const cache = services.unitCache;
    const work = recipe(settings);
    const key = JSON.stringify(["watermark", photo.path, work.outputs]);
    if (cache[key] !== undefined) {
        return cache[key];
    }
    const answer = services.recipes.planOutput(photo.path, work);
    if (answer.problem === "") {
        cache[key] = answer;
    }
    return answer;
}

/** What a run would write for one picture, or a final status with its reason. */
export function plan(photo, settings, services) {
    return planBy(photo, settings, services, () => answerFor(photo, settings, services));
}

/** Writes the picture as settings.prefix + name, where plan() tells the name; see the Resize step. */
export function run(photo, settings, services) {
    return makeBy(photo, settings, recipe(settings), plan(photo, settings, services), services);
}

/** What the preview does to the upright picture to show the result. */
export function preview(photo, settings, planned) {
    return showBy(photo, recipe(settings), planned, statedQuality(settings.output));
}
