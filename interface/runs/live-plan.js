// Shows in the list what a run with the current settings would do. It is computed from the event loop, whenever things
// have settled, by the same plan that a run carries out; subclasses say what that plan is.

import { copyOf } from "../lib/copies.js";
import { guard } from "../lib/guard.js";
import { Marks } from "../lib/marks.js";
import { shell } from "quorlin/shell";
import { showUnticked } from "./list-rows.js";

export class LivePlan {
    /** @param window  the main window's parts; planned(summary) is called when the whole list was planned */
    constructor(window, planned) {
        this.window = window;
        this.planned = planned;
        this.job = shell.job();
        this.finished = new Marks();
        this.ids = [];
        this.next = 0;
        this.settleMs = 180;
        this.makeTimer();
    }

    // Not in the constructor: Qt 6.4 binds `this` wrongly in arrow functions of a base class's constructor.
    makeTimer() {
        this.timer = shell.timer(guard("plan", () => this.start()));
    }

    /** The summary of a plan of nothing. */
    nothing() {
        return { ready: 0 };
    }

    /**
     * A generator that plans; take() gets what it yields.
     *
     * @return {any}
     */
    work(_ids, _settings) {
        throw new Error("A plan must say how it is made.");
    }

    take(_part, _summary) {
        return undefined;
    }

    /** Called with what the generator returned. */
    ended(_value, _summary) {
        return undefined;
    }

    /** Plans again when things have settled. */
    refresh() {
        this.window.estimate.forget(); // of what another action would write, maybe
        this.job.cancel();
        this.timer.start(this.settleMs);
    }

    stop() {
        this.timer.stop();
        this.job.cancel();
    }

    /** Rows that show the result of a run keep it until the settings change. */
    keepFinal(id) {
        this.finished.add(id);
    }

    forgetFinal() {
        this.finished = new Marks();
    }

    isFinal(id) {
        return this.finished.has(id);
    }

    start() {
        const window = this.window;
        const summary = this.nothing();
        this.ids = this.wantedIds();
        this.next = 0;
        showUnticked(window.pictures, (id) => this.isFinal(id));
        if (window.action.step.validate(window.settings).length > 0) {
            this.refused();
            this.planned(summary);
            return;
        }
        const settings = copyOf(window.settings);
        this.job.start(this.work(this.ids, settings), guard("plan.item", (part) => this.take(part, summary)),
                       guard("plan.end", (how, value) => {
            if (how === "done") {
                this.ended(value, summary);
                this.planned(summary);
            }
        }));
    }

    /** The rows that a run would process. */
    wantedIds() {
        return this.window.pictures.tickedIds();
    }

    /** Called if nothing can be planned with the current settings. */
    refused() {
        return undefined;
    }
}
