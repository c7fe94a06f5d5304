// What a run that writes pictures would write: new names, new sizes, what is replaced and what is left out.
// Services used: those of the step, and files.

import { planRun } from "./plan.js";
import { fill, pixels, statusKind, statusText } from "../lib/wording.js";
import { photosOf } from "./list-rows.js";
import { LivePlan } from "./live-plan.js";
import { guessedBytes, WriteNeeds } from "./room.js";

/** Shows an item of a plan in its row; `simulated` says so in words. */
export function showItem(list, id, item, simulated) {
    if (item.status !== "ready") {
        list.setPlan(id, "–", "–");
        list.setStatus(id, statusKind(item.status), statusText(item.status, item.reason), "");
        return;
    }
    list.setPlan(id, item.name, pixels(item));
    const detail = item.notes.join("\n");
    const remarked = (text) => [text].concat(item.remarks).join(", ");
    if (item.asks) {
        list.setStatus(id, "planned", remarked(qsTr("file exists: will ask")), detail);
    } else if (item.replaces) {
        const text = item.replacesOriginal ? qsTr("replaces original") : fill(qsTr("replaces %1"), item.name);
        list.setStatus(id, "caution", remarked(text), detail);
    } else {
        const text = simulated ? qsTr("would be written") : qsTr("ready");
        list.setStatus(id, simulated ? "planned" : "waiting", remarked(text), detail);
    }
}

export class WritePlan extends LivePlan {
    nothing() {
        return { ready: 0, originals: 0, replaced: 0, unwritable: 0, all: -1,
                 needs: new WriteNeeds(this.window.services.files) };
    }

    noteSize(id, item) {
        if (item.status === "ready") {
            this.sizes.push({ id: id, pixels: item.width * item.height, bytes: Math.max(0, item.photo.bytes),
                              sourcePixels: item.photo.width * item.photo.height });
        }
    }

    noteRoom(needs, item) {
        if (item.status === "ready") {
            needs.add(item.path, guessedBytes(item.photo, item));
        }
        if (item.replaces) {
            needs.addReplaced(item.path, item.replacesOriginal ? item.photo.bytes : 0);
        }
    }

    work(ids, settings) {
        const window = this.window;
        this.sizes = [];
        // The engine loses a generator that is returned by the call that creates it.
        const planning = planRun(photosOf(window, ids), window.action.step, settings, window.services);
        return planning;
    }

    take(item, summary) {
        const id = this.ids[this.next];
        this.next += 1;
        // Another run would write it again.
        summary.ready += item.status === "ready" ? 1 : 0;
        this.noteSize(id, item);
        summary.unwritable += item.status === "Not Supported" ? 1 : 0;
        if (this.isFinal(id)) {
            return;
        }
        this.noteRoom(summary.needs, item);
        summary.originals += item.replacesOriginal ? 1 : 0;
        summary.replaced += item.replaces ? 1 : 0;
        showItem(this.window.pictures, id, item, false);
    }

    ended(_value, summary) {
        summary.all = this.ids.length;
        this.window.actionPage.output.offerType(summary.unwritable);
        this.window.estimate.begin(this.sizes);
    }
}
