// Recipes as texts of their files and as plain objects. Pure; no service is used.

import { copyOf } from "../../lib/copies.js";
import { joinPath } from "../../lib/names.js";

/** The file extension of recipes, without the dot. */
export const RECIPE_TYPE = "quorlin";

const VERSION = 1;
const PROFILES = ["sRGB", "Display P3", "Adobe RGB", "gray"];

/** A recipe without operations, whose results go to that folder beside the originals. */
export function newRecipe(folder) {
    return { quorlin: VERSION, name: "", operations: [], outputs: [{ type: "original", folder: folder }] };
}

/** The recipe in a text; null if it is none. Whether it can be carried out is another matter. */
export function parsed(text) {
    let recipe = null;
    try {
        recipe = JSON.parse(text);
    } catch (error) {
        recipe = null;
    }
    const isObject = (value) => value !== null && typeof value === "object" && !Array.isArray(value);
    const areObjects = (list) => Array.isArray(list) && list.every(isObject);
    if (!isObject(recipe) || !areObjects(recipe.outputs) || recipe.outputs.length === 0) {
        return null;
    }
    recipe.operations = recipe.operations === undefined ? [] : recipe.operations;
    const lists = [recipe.operations].concat(recipe.outputs.map((output) => output.operations)
        .filter((list) => list !== undefined));
    return lists.every(areObjects) ? recipe : null;
}

const WORDS = ["do", "fit", "position", "unit", "direction", "shape", "amount", "type", "metadata", "dates",
               "ifTaken"];
const TEXTS = ["ratio", "color", "pattern", "text", "font", "picture", "to", "name", "folder", "profile",
               "matte"].concat(WORDS);
const CHOICES = ["off", "enlarge", "turn", "tile", "lossless", "location"];
const PAIRS = ["box", "offset"];
const NUMBERS = ["width", "height", "longest", "shortest", "percent", "megapixels", "degrees", "radius", "size",
                 "margin", "angle", "opacity", "quality", "maxBytes", "dpi"];

function hasKind(key, value) {
    if (PAIRS.indexOf(key) >= 0) {
        return Array.isArray(value) && value.length === 2 && value.every((number) => typeof number === "number");
    }
    if (key === "band") {
        return value !== null && typeof value === "object" && !Array.isArray(value) && areShown([value]);
    }
    if (WORDS.indexOf(key) >= 0 && value in {}) {
        return false; // "constructor" is no word, but every object answers to it
    }
    const kinds = [["string", TEXTS], ["boolean", CHOICES], ["number", NUMBERS]];
    return kinds.every((kind) => kind[1].indexOf(key) < 0 || typeof value === kind[0]);
}

function areShown(list) {
    return list.every((thing) => Object.keys(thing).every((key) => hasKind(key, thing[key])));
}

/** Whether cards can show it: no text where a number belongs. Values out of their range do not matter. */
export function canBeShown(recipe) {
    return areShown(recipe.outputs) && allOperations(recipe).every((operation) => typeof operation.do === "string") &&
        areShown(allOperations(recipe));
}

/** The text of its file. */
export function textOf(recipe) {
    return JSON.stringify(recipe, null, 2) + "\n";
}

/** All operations of a recipe, those of its outputs too. */
export function allOperations(recipe) {
    return recipe.outputs.reduce((all, output) => all.concat(output.operations || []), recipe.operations.slice());
}

/** A copy whose paths do not depend on where the recipe is. */
export function withAbsolutePaths(recipe, folder) {
    const copy = copyOf(recipe);
    const absolute = (object, field) => {
        if (typeof object[field] === "string" && object[field] !== "" && !object[field].startsWith("/")) {
            object[field] = joinPath(folder, object[field]);
        }
    };
    const isFile = (value) => typeof value === "string" && PROFILES.indexOf(value) < 0;
    allOperations(copy).forEach((operation) => {
        absolute(operation, "picture");
        absolute(operation, "pattern");
        if (operation.do === "profile" && isFile(operation.to)) {
            absolute(operation, "to");
        }
    });
    copy.outputs.filter((output) => isFile(output.profile)).forEach((output) => absolute(output, "profile"));
    return copy;
}

/** The operations that make one output, in their order. */
export function operationsFor(recipe, index) {
    const output = recipe.outputs[index];
    const profile = output.profile === undefined ? [] : [{ do: "profile", to: output.profile }];
    return recipe.operations.concat(output.operations || [], profile);
}

/** The recipe of one output alone, without names and folders. */
export function oneOutput(recipe, index) {
    const output = Object.assign({}, recipe.outputs[index]);
    ["name", "folder", "ifTaken", "dates"].forEach((field) => { delete output[field]; });
    return { quorlin: recipe.quorlin, operations: recipe.operations, outputs: [output] };
}
