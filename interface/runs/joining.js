// Pictures that are added during a run: they are planned, and join its end.
// Services used: shell (job).

import { shell } from "quorlin/shell";
import { guard } from "../lib/guard.js";
import { keysOf } from "../lib/names.js";

export class Joining {
    /**
     * @param run  planMore(ids), a generator that returns items or null, and joined(ids, items); the current rows of
     * the list belong to it
     */
    constructor(run, list) {
        this.run = run;
        this.list = list;
        this.job = shell.job();
        this.known = keysOf(list.ids());
        this.flow = null;
        this.isPlanning = false;
        this.hasEnded = false;
    }

    /** The run has started, and others may join it; what was added before joins at once. */
    open(flow) {
        this.flow = flow;
        this.look();
    }

    isOver() {
        return this.hasEnded || (this.flow !== null && this.flow.isStopping);
    }

    newIds() {
        return this.list.tickedIds().filter((id) => !this.known[id]);
    }

    /** Called when something may have been added. */
    look() {
        if (this.flow === null || this.isPlanning || this.isOver()) {
            return;
        }
        const ids = this.newIds();
        ids.forEach((id) => { this.known[id] = true; });
        this.isPlanning = ids.length > 0;
        this.flow.isGrowing = this.isPlanning;
        if (this.isPlanning) {
            const work = this.run.planMore(ids);
            this.job.start(work, () => undefined,
                           guard("run.joined", (how, items) => this.planned(how, ids, items)));
        } else {
            this.flow.wake();
        }
    }

    planned(how, ids, items) {
        this.isPlanning = false;
        if (how === "done" && items !== null && !this.isOver()) {
            this.run.joined(ids, items);
        }
        this.look();
    }

    /** Nothing joins any more; true if the list contains rows that did not. */
    end() {
        const isLeft = this.isPlanning || this.newIds().length > 0;
        this.hasEnded = true;
        this.job.cancel();
        return isLeft;
    }
}
