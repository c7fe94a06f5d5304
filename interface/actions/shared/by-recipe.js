// What the steps share that are carried out as a recipe: plan, preview and result come from the same one. Services
// used: recipes (recipeFor, planOutput, nameFor, make), files (storedSize). Plain data in, plain data out.

import { recipes } from "quorlin/recipes";
import { splitPath } from "../../lib/names.js";
import { madeType, madeTypeNamed, PDF_PAGE } from "../../lib/types.js";
import { fill, pixels } from "../../lib/wording.js";
import { outcome, ready, refused, unreadable, unwritable } from "./written.js";

const WHITE = "#ffffff";
const FINEST = "10";
// The word for the raw files of cameras.
const RAW = "RAW";
// The name pattern that keeps names as they are.
const OWN_NAME = "{name}";

/**
 * The output settings of a new pane; name is that of the folder beside the originals. Without a quality, results get
 * that of their originals until the user chooses one.
 */
export function usualOutput(fileType, quality, name) {
    return { fileType: fileType, quality: quality || FINEST, ownQuality: quality === "", matte: WHITE,
             metadata: "keep", removeLocation: false, destination: { kind: "beside", name: name, path: "" },
             keepSubfolders: false, namePattern: OWN_NAME, dates: "now", ifTaken: "number", simulation: false };
}

/** The settings that determine what a picture becomes, but not where it goes. */
export function recipeOf(process, settings) {
    const recipe = recipes.recipeFor(process, settings);
    return { quorlin: recipe.quorlin, operations: recipe.operations,
             outputs: recipe.outputs.map((output) => {
                 const kept = Object.assign({}, output);
                 delete kept.folder;
                 delete kept.ifTaken;
                 return kept;
             }) };
}

// ownName: the name of the result if the pattern does not change it.
function nameOf(photo, pattern, told, ownName, services) {
    if (pattern === OWN_NAME) {
        return ownName;
    }
    const extension = splitPath(ownName).extension;
    return services.recipes.nameFor(photo.path, pattern, photo.index || 0, told.width, told.height,
                                    extension === "" ? "" : "." + extension);
}

// Whether the result is smaller than the frame asks for.
function isCutOff(cut) {
    return cut.frame !== undefined
        && (cut.part.width < cut.frame.width || cut.part.height < cut.frame.height);
}

// Which part of the file the result is made from, if not all of it, and whether that is what was asked for.
function remarksOn(photo, told) {
    const preview = photo.type === RAW ? [fill(qsTr("preview of %1"), pixels(photo))] : [];
    return preview.concat(told.leftOut > 0 ? [qsTr("%n more pictures left out", "", told.leftOut)] : [],
                          isCutOff(told.cut) ? [qsTr("smaller than asked for")] : []);
}

// What the result will lack, in sentences.
function notesOn(told) {
    return told.losses.concat(isCutOff(told.cut) ? [qsTr("The frame extends past the edge of the picture")] : []);
}

/**
 * What a run would write for one picture, or a final status with its reason. With a ready plan: lossless, no pixel is encoded again;
 * losses, sentences about what this picture has and its result will not have; remarks, a few words each, about results
 * that may surprise.
 *
 * @param answer   plans with the recipe service; a function, so that it is called only if something can be made
 * @param ownName  the name of the result, if it is not the picture's own with the usual extension of its type
 */
export function planBy(photo, settings, services, answer, ownName) {
    const told = unreadable(photo) === null ? answer() : null;
    if (told === null) {
        return unreadable(photo);
    }
    if (told.problem !== "") {
        return told.isNotSupported ? unwritable(photo) : { status: "Failed", reason: told.problem };
    }
    const usual = ownName === undefined ? splitPath(photo.path).base + told.extension : ownName;
    const name = nameOf(photo, settings.output.namePattern, told, usual, services);
    const notes = notesOn(told);
    return Object.assign(ready(name, madeTypeNamed(told.type), told, notes),
                         { lossless: told.lossless, losses: notes, cut: told.cut,
                           remarks: remarksOn(photo, told) });
}

// The size of the file as stored, if it may differ from the plan: a picture that is not encoded again may stay stored
// sideways, and a page is measured in points.
function storedAs(path, planned, services) {
    const isPage = planned.type === PDF_PAGE.id;
    const stored = planned.lossless || isPage ? services.files.storedSize(path) : null;
    const lies = stored !== null && stored.width === planned.height && stored.height === planned.width;
    return stored !== null && (lies || isPage) ? stored : planned;
}

/**
 * Writes the result of a plan as settings.prefix + its name; an existing file is replaced. Returns what every step's
 * run() does.
 */
export function makeBy(photo, settings, recipe, planned, services) {
    if (planned.status !== "ready") {
        return refused(planned);
    }
    const result = services.recipes.make(photo.path, recipe, settings.prefix + planned.name);
    if (result.outcome !== "OK") {
        return { status: result.outcome, reason: result.reason, outputs: [] };
    }
    return outcome("OK", result.path, planned, services, storedAs(result.path, planned, services));
}

/** The quality in the settings of the output block; "" if results get that of their originals. */
export function statedQuality(output) {
    return output.ownQuality ? "" : output.quality;
}

/** What the preview does to the upright picture to show the result; quality is given for types that have one. */
export function showBy(photo, recipe, planned, quality) {
    /** @type {any[]} */
    const edits = [{ do: "recipe", operations: recipe.operations, path: photo.path }];
    const matte = recipe.outputs[0].matte || WHITE;
    return { edits: madeType(planned.type).alpha ? edits : edits.concat([{ do: "lay", color: matte }]),
             width: planned.width, height: planned.height, type: planned.type, quality: quality, recipe: recipe };
}
