// Web Page: a folder with one page and its pictures in two or three sizes, made as outputs of one recipe. Plain data in, plain data out.
// Services used: webPages, recipes, files (readText).

import { files } from "quorlin/files";
import { webPages } from "quorlin/web";
import { recipes } from "quorlin/recipes";
import { madeType, madeTypeNamed } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";

export const STYLES = ["grid", "rows", "story"];
export const TYPES = ["jpeg", "webp"];
export const METADATA = ["keep", "copyright", "none"];
export const DIRECTIONS = ["auto", "ltr", "rtl"];
export const TAKEN = ["number", "update"];

const SMALLEST = 16;
const LARGEST = 20000;
const LARGEST_QUALITY = 100;

/**
 * captions are the typed ones: [path, text] each; they take precedence over the pattern. parent "" is the folder of the
 * first picture.
 */
export const defaults = {
    title: "", text: "", style: "rows", captionPattern: "{caption}", captions: [],
    lightPaper: "#ffffff", darkPaper: "#16181b", accent: "#1f5fbf",
    language: "", direction: "auto", download: false,
    small: 640, medium: 1280, large: 2560, threeSizes: true,
    type: "jpeg", quality: 85, metadata: "copyright", location: false, sharpen: true,
    template: "", parent: "", name: "", ifTaken: "number", simulation: false,
};

/** The longest sides of the files of a picture, smallest first: [word in their names, pixels]. */
export function sizesOf(settings) {
    const sizes = [["small", settings.small], ["medium", settings.medium], ["large", settings.large]];
    return sizes.filter((size) => settings.threeSizes || size[0] !== "medium");
}

function outputOf(settings, word, longest, folder) {
    const place = settings.metadata === "none" ? {} : { location: settings.location };
    /** @type {any[]} */
    const resize = [{ do: "resize", longest: longest }];
    const sharpen = settings.sharpen ? [{ do: "sharpen", amount: "low" }] : [];
    return Object.assign({ type: settings.type, quality: settings.quality, name: "{counter:001}-{name}-" + word,
                           folder: folder, profile: "sRGB", metadata: settings.metadata,
                           operations: resize.concat(sharpen) },
                         place);
}

/** The recipe that makes all files of each picture, in a folder below its base. */
export function recipeOf(settings, folder) {
    return { quorlin: 1, name: "Web Page", operations: [],
             outputs: sizesOf(settings).map((size) => outputOf(settings, size[0], size[1], folder)) };
}

/** The title of the page; the name of its folder if none was given. */
export function titleOf(settings) {
    return settings.title.trim() || settings.name.trim() || qsTr("Web Page");
}

/** The name of the folder of the page. */
export function folderNameOf(settings) {
    return settings.name.trim() || titleOf(settings).replace(/\//g, "-");
}

/** The code of the language of the page; own is that of the program, used if none was chosen. */
export function languageOf(settings, own) {
    return settings.language === "" ? own : settings.language;
}

export function isFromRight(settings, own) {
    return settings.direction === "auto"
        ? webPages.isFromRight(languageOf(settings, own)) : settings.direction === "rtl";
}

/** The text of the template in the settings: {text, problem}. */
export function templateOf(settings) {
    if (settings.template === "") {
        return { text: webPages.standardTemplate(), problem: "" };
    }
    const text = files.readText(settings.template);
    return text === null
        ? { text: "", problem: fill(qsTr("The template %1 cannot be read."), settings.template) }
        : { text: text, problem: webPages.templateProblem(text) };
}

function nameProblem(settings) {
    const name = folderNameOf(settings);
    return name === "." || name === ".." || name.indexOf("/") >= 0
        ? qsTr("The folder name cannot contain “/”.") : "";
}

function sizesProblem(settings) {
    const sizes = sizesOf(settings).map((size) => size[1]);
    const areInOrder = sizes.every((size, i) => i === 0 || size > sizes[i - 1]);
    const areInRange = sizes.every((size) => Number.isInteger(size) && size >= SMALLEST && size <= LARGEST);
    return areInOrder && areInRange
        ? "" : fill(qsTr("Sizes are whole numbers from %1 to %2, each larger than the one before."), SMALLEST, LARGEST);
}

function qualityProblem(settings) {
    return Number.isInteger(settings.quality) && settings.quality >= 1 && settings.quality <= LARGEST_QUALITY
        ? "" : qsTr("The quality is a whole number from 1 to 100.");
}

/** What is wrong with the settings, as sentences. */
export function validate(settings) {
    const language = settings.language === "" || webPages.isLanguage(settings.language)
        ? "" : fill(qsTr("%1 is not a valid language code."), settings.language);
    const found = [nameProblem(settings), sizesProblem(settings), qualityProblem(settings), language]
        .concat(webPages.captionProblems(settings.captionPattern, settings.location && settings.metadata !== "none"));
    const template = templateOf(settings).problem;
    const all = found.concat([template === "" ? "" : fill(qsTr("Template, %1"), template)]);
    return all.filter((problem) => problem !== "");
}

/** A line for the log. */
export function describe(settings) {
    const styles = { grid: qsTr("Grid"), rows: qsTr("Rows"), story: qsTr("Story") };
    return [styles[settings.style], sizesOf(settings).map((size) => size[1]).join(" / ") + " px",
            settings.type.toUpperCase() + " " + settings.quality].join(", ");
}

// A recipe for the largest file of a picture alone.
function largeRecipe(settings) {
    const recipe = recipeOf(settings, "");
    return { quorlin: 1, operations: [], outputs: [recipe.outputs[recipe.outputs.length - 1]] };
}

/** What the largest file of a picture becomes. */
export function plan(photo, settings, services) {
    const told = services.recipes.planOutput(photo.path, largeRecipe(settings));
    if (told.problem !== "") {
        return { status: told.isNotSupported ? "Not Supported" : "Failed", reason: told.problem };
    }
    return { status: "ready", reason: "", name: "", type: madeTypeNamed(told.type).id, width: told.width,
             height: told.height, notes: told.losses, lossless: told.lossless, losses: told.losses };
}

/** What the preview does to the upright picture to show the largest file. */
export function preview(photo, settings, planned) {
    const output = largeRecipe(settings).outputs[0];
    /** @type {any[]} */
    const edits = [{ do: "recipe", operations: output.operations, path: photo.path }];
    return { edits: madeType(planned.type).alpha ? edits : edits.concat([{ do: "lay", color: "#ffffff" }]),
             width: planned.width, height: planned.height, type: planned.type, quality: String(output.quality) };
}

/** Why the program cannot make a recipe of the settings; empty if it can. */
export function recipeProblem(settings) {
    return recipes.problemOf(JSON.stringify(recipeOf(settings, "pictures")), "/", false);
}
