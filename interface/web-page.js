// Makes a web page without windows, through the same steps as the window:
//     quorlin-script interface/web-page.js FOLDER SETTINGS.json FILE...
// FOLDER is made, or gets a number where there is one; SETTINGS.json has some of the settings of web-step.js and may be {}. Prints where
// the page is. The exit status is 0 if every picture is on the page, 1 if not, 2 for a bad command line or settings.

import { files } from "quorlin/files";
import { finishPage } from "./actions/web/web-making.js";
import { PageFolder } from "./actions/web/web-folder.js";
import * as web from "./actions/web/web-step.js";
import { joinPath, splitPath } from "./lib/names.js";
import { completed } from "./lib/store.js";
import { makeServices } from "./services.js";

const LANGUAGE = "en";

function endOf(generator) {
    let step = generator.next();
    while (!step.done) {
        step = generator.next();
    }
    return step.value;
}

// One file of a picture: {path, width, height}, or null if it cannot be made.
function makeFile(path, index, output, folder, services) {
    const recipe = { quorlin: 1, operations: [], outputs: [output] };
    const told = services.recipes.planOutput(path, recipe);
    if (told.problem !== "") {
        print("Failed: " + path + ": " + told.problem);
        return null;
    }
    const name = services.recipes.nameFor(path, output.name, index, told.width, told.height, told.extension);
    const below = joinPath(folder.pictures, name);
    const made = services.recipes.make(path, recipe, joinPath(folder.folder, below));
    if (made.outcome !== "OK") {
        print("Failed: " + path + ": " + made.reason);
        return null;
    }
    return { path: below, width: made.width, height: made.height };
}

function makePage(settings, paths, services) {
    const folder = new PageFolder(services,
                                  { parent: settings.parent, name: settings.name, ifTaken: settings.ifTaken });
    try {
        const refused = folder.open() || files.makeFolder(joinPath(folder.folder, folder.pictures));
        if (refused !== "") {
            return { problem: refused, path: "", count: 0 };
        }
        const outputs = web.recipeOf(settings, "").outputs;
        const filesOf = (path, index) => outputs.map((output) => makeFile(path, index, output, folder, services));
        const pictures = paths.map((path, index) => ({
            path: path, index: index, files: filesOf(path, index).filter((file) => file !== null),
        })).filter((picture) => picture.files.length === outputs.length);
        if (pictures.length === 0) {
            return { problem: "no picture could be processed", path: "", count: 0 };
        }
        const ended = endOf(finishPage(folder, pictures, settings, services, LANGUAGE));
        return { problem: ended.problem, path: ended.path, count: pictures.length };
    } finally {
        folder.close();
    }
}

function settingsFrom(file, folder) {
    const text = files.readText(file);
    const given = JSON.parse(text === null ? "" : text);
    const place = splitPath(folder);
    return Object.assign(completed(web.defaults, given), { parent: place.folder, name: place.name });
}

function main(folder, file, paths) {
    let settings = null;
    try {
        settings = settingsFrom(file, folder);
    } catch (error) {
        console.error("The settings in " + file + " cannot be read.");
        quit(2);
        return;
    }
    const problems = web.validate(settings);
    if (problems.length > 0) {
        problems.forEach((problem) => console.error(problem));
        quit(2);
        return;
    }
    const made = makePage(settings, paths, makeServices());
    print(made.problem === "" ? made.count + " pictures -> " + made.path : "Failed: " + made.problem);
    quit(made.problem === "" && made.count === paths.length ? 0 : 1);
}

if (scriptArguments.length < 3) {
    console.error("Usage: quorlin-script interface/web-page.js FOLDER SETTINGS.json FILE...");
    quit(2);
} else {
    main(files.absolute(scriptArguments[0]), files.absolute(scriptArguments[1]),
         scriptArguments.slice(2).map((path) => files.absolute(path)));
}
