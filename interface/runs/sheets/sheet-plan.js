// What a run over pages would write: one file, with how many pages, and which pictures are on them.

import { statusKind, statusText } from "../../lib/wording.js";
import { photosOf } from "../list-rows.js";
import { LivePlan } from "../live-plan.js";
import { planRun } from "../plan.js";

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
 * A generator that plans the file of all pictures with these ids. It yields how far it is, and returns {item, paths, pages, cancelled}; the
 * item is that of planRun() for the first picture, or null if there is none.
 */
export function* sheetPlan(window, ids, settings, services) {
    const paths = window.pictures.tickedPaths();
    const step = window.action.step;
    const pages = step.workFor(settings, paths).pages;
    const photos = photosOf(window, ids.slice(0, 1));
    const planning = planRun(photos, step, forOneFile(settings), services);
    let part = planning.next();
    for (; !part.done; part = planning.next()) {
        yield 0;
    }
    return { item: part.value.items[0] || null, paths: paths, pages: pages, cancelled: part.value.cancelled };
}

export class SheetPlan extends LivePlan {
    nothing() {
        return { ready: 0, pages: 0, name: "", replaces: false };
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
        for (let i = 0; i < ids.length; i += 1) {
            this.showRow(ids[i], plan.item);
            if (i % ROWS_A_SLICE === ROWS_A_SLICE - 1) {
                yield i;
            }
        }
        return plan;
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
        summary.pages = plan.pages;
        summary.name = item === null ? "" : item.name;
        summary.replaces = item !== null && item.replaces;
    }
}
