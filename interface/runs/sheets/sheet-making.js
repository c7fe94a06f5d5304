// Makes the file of a plan: workers prepare the pictures, the pages are assembled beside the destination, and then the
// file is moved there. A generator that yields {index, result} for each picture, and null while it waits; it returns
// {status, reason, name, path, folder, bytes}. Stopping it leaves nothing behind.
// Services used: files (makeFolder, makeStaging, place ...), replacing, recipes (noteResult).

import { guard } from "../../lib/guard.js";
import { joinPath } from "../../lib/names.js";
import { failed, placeResult, Workshop } from "../making/job.js";

/**
 * Carries out work of "quorlin/pages" into a new file: yields as above, and returns its last message.
 *
 * @param order  which pages, see PageWork
 * @param wake   called when something has arrived
 */
export function* makePages(work, target, order, wake) {
    work.arrived.connect(guard("pages.arrived", wake));
    work.begin(target, order);
    try {
        for (;;) {
            const said = work.take();
            if (said.problem !== undefined) {
                return said;
            }
            yield said.picture === undefined
                ? null : { index: said.picture, result: { status: said.status, reason: said.reason } };
        }
    } finally {
        work.close();
    }
}

/** @param item  of the plan; @param rule  what happens if its name has been taken meanwhile */
export function* makeSheet(work, item, rule, services, wake) {
    const workshop = new Workshop(services.files);
    try {
        const place = workshop.open(item.folder);
        if (place.problem) {
            return failed(place.problem);
        }
        const target = place.staging + "pages.pdf";
        const made = yield* makePages(work, target, {}, wake);
        if (made.problem !== "") {
            return failed(made.problem);
        }
        const placed = placeResult(target, item, rule, services);
        if (placed.status !== "OK") {
            return placed;
        }
        const path = joinPath(item.folder, placed.name);
        services.recipes.noteResult(path);
        return { status: "OK", reason: "", name: placed.name, path: path, folder: item.folder, bytes: made.bytes,
                 pages: made.pages };
    } finally {
        workshop.close();
    }
}
