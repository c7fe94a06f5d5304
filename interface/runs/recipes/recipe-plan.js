// What a run of a recipe would write: for every picture one or more outputs, each with its name, its size and what it
// replaces. The program plans names as its command line does, so that both make the same files.

import { RecipeBatch } from "quorlin/recipes";
import { splitPath } from "../../lib/names.js";
import { fill, pixels, statusKind, statusText } from "../../lib/wording.js";
import { LivePlan } from "../live-plan.js";
import { guessedBytes, WriteNeeds } from "../room.js";
import { vanishedInWords } from "./recipe-making.js";

// Of several outputs the first of these statuses applies to the whole picture.
const ORDER = ["ready", "Failed", "Not Supported", "Skipped"];

/** A batch of the recipe in the settings over pictures of the list. */
export function batchOf(settings, paths) {
    return new RecipeBatch({ recipe: settings.text, folder: settings.folder, base: settings.base,
                             keepsTree: settings.keepSubfolders, paths: paths });
}

function isReady(output) {
    return output.status === "ready";
}

// The distinct reasons.
function reasonsOf(outputs) {
    return outputs.map((output) => output.reason).filter((reason, i, all) => reason !== "" && all.indexOf(reason) === i)
        .join(" · ");
}

function notesOf(outputs) {
    return outputs.filter(isReady).reduce((notes, output) => notes.concat(output.losses), [])
        .filter((note, i, all) => all.indexOf(note) === i);
}

/** The plan of one picture from those of its outputs. */
export function itemOf(photo, outputs) {
    const status = ORDER.find((word) => outputs.some((output) => output.status === word)) || "Failed";
    return { photo: photo, outputs: outputs, status: status,
             reason: status === "ready" ? "" : reasonsOf(outputs.filter((output) => output.status === status)),
             missing: reasonsOf(outputs.filter((output) => !isReady(output))), notes: notesOf(outputs),
             replaces: outputs.some((output) => output.replaces),
             replacesOriginal: outputs.some((output) => output.replacesOriginal) };
}

// Unreadable pictures are described as everywhere in the list.
function inWords(photo, outputs) {
    return photo.width > 0 && photo.height > 0
        ? outputs
        : outputs.map((output) => (output.status === "Failed"
            ? Object.assign({}, output, { reason: qsTr("not a readable picture") }) : output));
}

/**
 * A generator that plans pictures of a batch, one after the other: see itemOf(); first: the number of the first of them
 * there.
 */
export function* planOfBatch(window, batch, ids, first) {
    const problem = batch.problem();
    for (let i = 0; i < ids.length; i += 1) {
        const photo = window.pictures.photo(ids[i]);
        const root = window.input.rootOf(photo.path);
        const outputs = problem === ""
            ? vanishedInWords(inWords(photo, batch.plan(first + i, root)), photo, window.services.files)
            : [{ status: "Failed", reason: problem, path: "", losses: [], width: 0, height: 0 }];
        yield Object.assign(itemOf(photo, outputs), { number: first + i, root: root });
    }
}

/** A generator that plans all ticked pictures of the list. It returns {batch, cancelled}. */
export function* recipePlan(window, ids, settings) {
    const batch = batchOf(settings, window.pictures.tickedPaths());
    yield* planOfBatch(window, batch, ids, 0);
    return { batch: batch, cancelled: false };
}

/** The item of a record, planned again by a batch that was made for the rest; outputs: those of the item as they are now. */
export function itemAgain(batch, item, photo, outputs) {
    const pathsOf = (word) => outputs.map((output) => (output.status === word ? output.path : ""));
    const [width, height] = item.size;
    const told = batch.planAgain(item.number, { root: item.root, width: width, height: height,
                                                planned: pathsOf("ready"), done: pathsOf("OK") });
    const now = outputs.map((output) => {
        const again = told.find((each) => each.output === output.output);
        return again === undefined ? output
            : Object.assign({}, output, { status: again.status, reason: again.reason, path: again.path });
    });
    const isReadyNow = now.some(isReady);
    return Object.assign({}, item, { photo: photo, outputs: now, status: isReadyNow ? "ready" : "done" });
}

/** "a.jpg, a-small.jpg"; a dash if there is none. */
export function namesOf(outputs) {
    return outputs.filter((output) => output.path !== "").map((output) => splitPath(output.path).name).join(", ") ||
           "–";
}

export function sizesOf(outputs) {
    return outputs.filter((output) => output.width > 0).map(pixels).join(", ") || "–";
}

/** Shows an item of a plan in its row; `simulated` says so in words. */
export function showRecipeItem(list, id, item, simulated) {
    const ready = item.outputs.filter(isReady);
    list.setPlan(id, namesOf(ready), sizesOf(ready));
    const detail = item.notes.join("\n");
    if (item.status !== "ready") {
        list.setStatus(id, statusKind(item.status), statusText(item.status, item.reason), "");
    } else if (ready.length < item.outputs.length) {
        list.setStatus(id, "caution",
                       fill(qsTr("%1 of %2 files: %3"), ready.length, item.outputs.length, item.missing), detail);
    } else if (item.replaces) {
        const replaced = ready.filter((output) => output.replaces);
        list.setStatus(id, "caution", item.replacesOriginal ? qsTr("replaces original")
                                                            : fill(qsTr("replaces %1"), namesOf(replaced)), detail);
    } else {
        list.setStatus(id, simulated ? "planned" : "waiting", simulated ? qsTr("would be written") : qsTr("ready"),
                       detail);
    }
}

/** Adds a planned picture to the summary of a plan. */
export function countItem(summary, item) {
    summary.ready += item.status === "ready" ? 1 : 0;
    summary.files += item.outputs.filter(isReady).length;
    summary.originals += item.replacesOriginal ? 1 : 0;
    summary.replaced += item.outputs.filter((output) => output.replaces).length;
}

function noteRoom(needs, item) {
    item.outputs.filter(isReady).forEach((output) => {
        needs.add(output.path, guessedBytes(item.photo, output));
        if (output.replaces) {
            needs.addReplaced(output.path, output.replacesOriginal ? item.photo.bytes : 0);
        }
    });
}

export class RecipePlan extends LivePlan {
    nothing() {
        return { ready: 0, files: 0, originals: 0, replaced: 0, all: -1,
                 needs: new WriteNeeds(this.window.services.files) };
    }

    work(ids, settings) {
        // The engine loses a generator that is returned by the call that creates it.
        const planning = recipePlan(this.window, ids, settings);
        return planning;
    }

    // What was planned with another recipe is no longer valid.
    refused() {
        this.ids.filter((id) => !this.isFinal(id)).forEach((id) => {
            this.window.pictures.setPlan(id, "–", "–");
            this.window.pictures.setStatus(id, "waiting", qsTr("check the recipe"), "");
        });
    }

    take(item, summary) {
        const id = this.ids[this.next];
        this.next += 1;
        if (this.isFinal(id)) {
            summary.ready += item.status === "ready" ? 1 : 0;
            return;
        }
        countItem(summary, item);
        noteRoom(summary.needs, item);
        showRecipeItem(this.window.pictures, id, item, false);
    }

    ended(_value, summary) {
        summary.all = this.ids.length;
    }
}
