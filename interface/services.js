// The services that the steps use, created once for a window or a batch.

import { cNSFileHandling, cNSStringHandling } from "quorlin";
import { files } from "quorlin/files";
import { moves } from "quorlin/moves";
import { pictures } from "quorlin/pictures";
import { recipes } from "quorlin/recipes";
import { webPages } from "quorlin/web";
import { KnownFacts } from "./lib/known-facts.js";
import { emptyTable } from "./lib/names.js";

// In the form of the conversion service, but without opening a picture in this process if others do that.
const lengths = {
    getPictureDPI: (path) => pictures.resolution(path),
    convertXtoPixel: (path, _target, unit, value) => pictures.inPixels(value, unit, pictures.resolution(path)),
};

/** {units, fileHandling, files, facts, names, moves, webPages, pictures, recipes, unitCache}. */
export function makeServices() {
    return {
        units: lengths, fileHandling: new cNSFileHandling(), files: files,
        facts: new KnownFacts(files), names: new cNSStringHandling(),
        pictures: pictures, recipes: recipes, moves: moves, webPages: webPages,
        unitCache: emptyTable(),
    };
}
