// What a page is made of: its pictures, as the recipe made them, with their captions. Plain data in, plain data out;
// the services are passed in.
// Services used: files (facts), webPages.

import { fill } from "../../lib/wording.js";
import { isFromRight, languageOf, templateOf, titleOf } from "./web-step.js";

/** The caption of a picture: the typed one, or the result of the pattern. */
export function captionOf(path, index, settings, services) {
    const typed = settings.captions.find((each) => each[0] === path);
    if (typed !== undefined) {
        return typed[1];
    }
    const pattern = settings.captionPattern;
    if (pattern === "") {
        return "";
    }
    const texts = services.webPages.needsTexts(pattern) ? services.webPages.textsOf(path) : null;
    return services.webPages.caption(pattern, path, services.files.facts(path), texts, index);
}

/**
 * A generator that writes the page into its unfinished folder and moves that to its destination: {problem, path of the
 * folder}.
 *
 * @param folder    a PageFolder that is open
 * @param pictures  each with path, of the input, index, in the list, and files: [{path: below the folder, width, height}], smallest first
 * @param own       the code of the language of the program
 */
export function* finishPage(folder, pictures, settings, services, own) {
    const shown = [];
    for (const picture of pictures) {
        shown.push({ caption: captionOf(picture.path, picture.index, settings, services), files: picture.files });
        yield picture.path;
    }
    const template = templateOf(settings);
    if (template.problem !== "") {
        return { problem: fill(qsTr("Template, %1"), template.problem), path: "" };
    }
    const written = services.webPages.write(template.text, {
        title: titleOf(settings), text: settings.text, style: settings.style, language: languageOf(settings, own),
        fromRight: isFromRight(settings, own), lightPaper: settings.lightPaper, darkPaper: settings.darkPaper,
        accent: settings.accent, download: settings.download, pictures: shown,
    });
    const problem = written.problem || folder.writePage(written.html);
    if (problem !== "") {
        return { problem: problem, path: "" };
    }
    const paths = pictures.reduce((all, picture) => all.concat(picture.files.map((file) => file.path)), []);
    const finished = yield* folder.finish(paths);
    return finished;
}
