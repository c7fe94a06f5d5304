// What a run over pages would write: one file, with how many pages, and which pictures are on them.

import { statusKind, statusText } from "../../lib/wording.js";
import { photosOf } from "../list-rows.js";
import { LivePlan } from "../live-plan.js";
import { planRun } from "../plan.js";
import { guessedBytes, WriteNeeds } from "../room.js";

const ROWS_A_SLICE = 100;

/**
 * The settings with a rule for taken names that suits a file made of many pictures: nobody can tell whether such a file
 * is up to date.
 */
export function forOneFile(settings) {
    const rule = settings.output.ifTaken === "current" ? "number" : settings.output.ifTaken;
    return Object.assign({}, settings, { output: Object.assign({}, settings.output, { ifTaken: rule }) });
}

/**
 * A generator that plans the file of all pictures with these ids. It yields how far it is, and returns {item, paths,
 * pages, placePixels, cancelled}; the item is that of planRun() for the first picture, or null if there is none.
 */
export function* sheetPlan(window, ids, settings, services) {
    const paths = window.pictures.tickedPaths();
    const step = window.action.step;
    const work = step.workFor(settings, paths);
    const photos = photosOf(window, ids.slice(0, 1));
    const planning = planRun(photos, step, forOneFile(settings), services);
    let part = planning.next();
    for (; !part.done; part = planning.next()) {
        yield 0;
    }
    return { item: part.value.items[0] || null, paths: paths, pages: work.pages, placePixels: work.placePixels,
             cancelled: part.value.cancelled };
}

/** How large a picture on a page will be, roughly: a JPEG with no more pixels than its place has. */
export function bytesOnPage(photo, placePixels) {
    const share = Math.min(1, placePixels / Math.max(1, photo.width * photo.height));
    return guessedBytes(photo, { width: photo.width, height: photo.height * share, type: "jpeg" });
}

export class SheetPlan extends LivePlan {
    nothing() {
        return { ready: 0, pages: 0, name: "", replaces: false, all: -1,
                 needs: new WriteNeeds(this.window.services.files) };
    }

    start() {
        const { pane, pictures } = this.window;
        if (pane !== null && pane.showPages !== undefined) {
            pane.showPages(pictures.tickedPaths());
        }
        super.start();
    }

    * work(ids, settings) {
        const plan = yield* sheetPlan(this.window, ids, settings, this.window.services);
        plan.bytes = 0;
        for (let i = 0; i < ids.length; i += 1) {
            plan.bytes += this.bytesOf(ids[i], plan.placePixels);
            this.showRow(ids[i], plan.item);
            if (i % ROWS_A_SLICE === ROWS_A_SLICE - 1) {
                yield i;
            }
        }
        return plan;
    }

    bytesOf(id, placePixels) {
        const photo = this.window.pictures.photo(id);
        return photo === null ? 0 : bytesOnPage(photo, placePixels);
    }

    showRow(id, item) {
        const list = this.window.pictures;
        if (this.isFinal(id)) {
            return;
        }
        const photo = list.photo(id);
        if (photo !== null && !(photo.width > 0 && photo.height > 0)) {
            list.setStatus(id, "bad", statusText("Failed", photo.problem || qsTr("not a readable picture")), "");
        } else if (item !== null && item.status !== "ready") {
            list.setStatus(id, statusKind(item.status), statusText(item.status, item.reason), "");
        } else {
            list.setStatus(id, "waiting", qsTr("ready"), "");
        }
    }

    ended(plan, summary) {
        const { item } = plan;
        summary.ready = this.ids.length;
        summary.all = this.ids.length;
        if (item !== null && item.status === "ready") {
            summary.needs.add(item.path, plan.bytes);
        }
        if (item !== null && item.replaces) {
            summary.needs.addReplaced(item.path, 0);
        }
        summary.pages = plan.pages;
        summary.name = item === null ? "" : item.name;
        summary.replaces = item !== null && item.replaces;
    }
}
