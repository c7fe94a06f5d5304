// The available recipes: those that come with the program, and the user's own, each a file in the program's data
// folder. Services used: files, recipes (supplied), cNSFileHandling (hTrashFile).

import { cNSFileHandling } from "quorlin";
import { files, FolderNames } from "quorlin/files";
import { recipes } from "quorlin/recipes";
import { joinPath, splitPath } from "../../lib/names.js";
import { fill } from "../../lib/wording.js";
import { canBeShown, parsed, RECIPE_TYPE, textOf, withAbsolutePaths } from "./recipe-text.js";

/** The names of the supplied recipes in the reader's language. */
function suppliedNames() {
    return { "Archive as lossless JPEG 2000": qsTr("Archive as lossless JPEG 2000"),
             "Copyright watermark": qsTr("Copyright watermark"), "Mail under 1 MB": qsTr("Mail under 1 MB"),
             "Print 10 × 15 at 300 dpi": qsTr("Print 10 × 15 at 300 dpi"), "Square on white": qsTr("Square on white"),
             "Web gallery": qsTr("Web gallery") };
}

/** Where the user's own recipes are. */
export function ownFolder() {
    return joinPath(files.dataFolder, "Recipes");
}

function isRecipe(name) {
    return !name.startsWith(".") && splitPath(name).extension.toLowerCase() === RECIPE_TYPE;
}

/** Those of the paths that are files of recipes. */
export function recipesAmong(paths) {
    return paths.filter((path) => isRecipe(splitPath(path).name) && !files.info(path).isFolder);
}

/** {name, path, isOwn}: first the supplied ones, then the user's own, each in alphabetical order. */
export function allRecipes() {
    const words = suppliedNames();
    const supplied = recipes.supplied().map(
        (recipe) => ({ name: words[recipe.name] || recipe.name, path: recipe.path, isOwn: false }));
    const own = files.names(ownFolder()).filter(isRecipe).sort((one, other) => one.localeCompare(other))
        .map((name) => ({ name: splitPath(name).base, path: joinPath(ownFolder(), name), isOwn: true }));
    return supplied.concat(own);
}

/** The file of an own recipe of that name. */
export function ownPath(name) {
    return joinPath(ownFolder(), name + "." + RECIPE_TYPE);
}

/**
 * What is wrong with a name for an own recipe, in a sentence; `kept` is the path of the recipe that may already have
 * it.
 */
export function nameProblem(name, kept) {
    if (name === "") {
        return qsTr("Enter a name.");
    }
    if (name.indexOf("/") >= 0 || name.startsWith(".")) {
        return qsTr("A name cannot contain a slash or begin with a dot.");
    }
    const others = allRecipes().filter((recipe) => recipe.path !== kept).map((recipe) => recipe.name);
    return new FolderNames({ names: others }).isFree(name)
        ? "" : fill(qsTr("A recipe named “%1” already exists."), name);
}

/** The name itself, or with a number if it is taken. */
export function freeName(name) {
    const names = new FolderNames({ names: allRecipes().map((recipe) => recipe.name) });
    return names.isFree(name) ? name : names.giveNumbered(name);
}

/** Reads a file: {text, problem}; the text is valid if problem is empty. */
export function readRecipe(path) {
    const text = files.readText(path);
    if (text === null) {
        return { text: "", problem: fill(qsTr("%1 cannot be read."), splitPath(path).name) };
    }
    const recipe = parsed(text);
    if (recipe === null || !canBeShown(recipe)) {
        const reason = recipes.problemOf(text, splitPath(path).folder, false);
        return { text: "", problem: fill(qsTr("%1 is not a recipe: %2"), splitPath(path).name, reason) };
    }
    return { text: text, problem: "" };
}

/** Writes a recipe whose relative paths start at `from`, replacing an existing file. Answers the problem. */
export function writeRecipe(path, recipe, from) {
    const folder = splitPath(path).folder;
    const problem = files.info(folder).exists ? "" : files.makeFolder(folder);
    return problem || files.writeText(path, textOf(folder === from ? recipe : withAbsolutePaths(recipe, from)));
}

/** Moves a recipe to the user's trash. Answers the problem. */
export function trashRecipe(path) {
    return cNSFileHandling.hTrashFile(path) === "OK"
        ? "" : fill(qsTr("%1 could not be moved to the trash."), splitPath(path).name);
}
