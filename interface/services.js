// The services that the steps use, created once for a window or a batch.

import { cNSFileHandling, cNSStringHandling } from "quorlin";
import { files } from "quorlin/files";
import { moves } from "quorlin/moves";
import { pictures } from "quorlin/pictures";
import { recipes } from "quorlin/recipes";
import { webPages } from "quorlin/web";
import { KnownFacts } from "./lib/known-facts.js";
import { emptyTable } from "./lib/names.js";

/** {fileHandling, files, facts, names, moves, webPages, pictures, recipes, unitCache}. */
export function makeServices() {
    return {
        fileHandling: new cNSFileHandling(), files: files,
        facts: new KnownFacts(files), names: new cNSStringHandling(),
        pictures: pictures, recipes: recipes, moves: moves, webPages: webPages,
        unitCache: emptyTable(),
    };
}
