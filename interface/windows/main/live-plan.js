// Shows in the list what a run with the settings as they are would write: new names, new sizes, what would be left out.
// It is worked out from the event loop by the same plan that a run carries out.
// Services used: those of the step, and files.

import { guard } from "../../lib/guard.js";
import { emptyTable } from "../../lib/names.js";
import { planRun } from "../../lib/plan.js";
import { fill, pixels, statusKind, statusText } from "../../lib/wording.js";
import { shell } from "quorlin/shell";

const SETTLE_MS = 180;

/** Shows an item of a plan in its row; `simulated` says so in words. */
export function showItem(list, id, item, simulated) {
    if (item.status !== "ready") {
        list.setPlan(id, "–", "–");
        list.setStatus(id, statusKind(item.status), statusText(item.status, item.reason), "");
        return;
    }
    list.setPlan(id, item.name, pixels(item));
    const detail = item.notes.join("\n");
    if (item.asks) {
        list.setStatus(id, "planned", qsTr("name is taken: will ask"), detail);
    } else if (item.replaces) {
        const text = item.replacesOriginal ? qsTr("replaces original") : fill(qsTr("replaces %1"), item.name);
        list.setStatus(id, "caution", text, detail);
    } else {
        list.setStatus(id, simulated ? "planned" : "waiting", simulated ? qsTr("would be written") : qsTr("ready"), detail);
    }
}

export class LivePlan {
    /** @param window  the main window's parts; planned(summary) is called when the whole list was planned */
    constructor(window, planned) {
        this.window = window;
        this.planned = planned;
        this.job = shell.job();
        this.finished = emptyTable();
        this.ids = [];
        this.next = 0;
        this.timer = shell.timer(guard("plan", () => this.start()));
    }

    /** Plans anew when things have settled. */
    refresh() {
        this.job.cancel();
        this.timer.start(SETTLE_MS);
    }

    stop() {
        this.timer.stop();
        this.job.cancel();
    }

    /** Rows that show what a run made of them keep that until the settings change. */
    keepFinal(id) {
        this.finished[id] = true;
    }

    forgetFinal() {
        this.finished = emptyTable();
    }

    start() {
        const window = this.window;
        const summary = { ready: 0, originals: 0, replaced: 0 };
        this.ids = window.pictures.ids();
        this.next = 0;
        if (window.action.step.validate(window.settings).length > 0) {
            this.planned(summary);
            return;
        }
        const settings = JSON.parse(JSON.stringify(window.settings));
        const work = planRun(this.ids.length, (i) => window.pictures.photo(this.ids[i]), window.pictures.paths(),
                             window.action.step, settings, window.services);
        this.job.start(work, guard("plan.item", (item) => this.takeItem(item, summary)), guard("plan.end", (how) => {
            if (how === "done") {
                this.planned(summary);
            }
        }));
    }

    takeItem(item, summary) {
        const id = this.ids[this.next];
        this.next += 1;
        if (this.finished[id]) {
            return;
        }
        summary.ready += item.status === "ready" ? 1 : 0;
        summary.originals += item.replacesOriginal ? 1 : 0;
        summary.replaced += item.replaces ? 1 : 0;
        showItem(this.window.pictures, id, item, false);
    }
}
