// What a run that moves files would do, in the list. Services used: those of the step, moves (plan).

import { isPlainlyReady, itemOf, planMoves, row, shownName } from "./move-plan.js";
import { stateOf } from "./move-words.js";
import { splitPath } from "../lib/names.js";
import { pathsInParts } from "./list-rows.js";
import { LivePlan } from "./live-plan.js";

// A plan is made in slices of rows, so that the window stays responsive while ten thousand of them are shown.
const ROWS_A_SLICE = 20;
const SETTLE_MS = 15;
const TELL_MS = 400;

/** Shows the state of one row of a plan; returns "ready", "same", "along" or "attention". */
export function showRow(list, id, plan, i, paths) {
    const wish = plan.rows[i];
    const item = itemOf(plan, i);
    const state = stateOf(wish, item, wish.goesWith >= 0 ? splitPath(paths[wish.goesWith]).name : "");
    list.setPlan(id, shownName(wish, item), "");
    list.setStatus(id, state.kind, state.text, state.detail);
    return state.state;
}

function shownUpTo(named, before) {
    return named.from < named.to ? named.to : before;
}

// The list is told of many rows at once: a call for each of ten thousand would take longer than their names.
function showNames(list, ids, named, isFinal) {
    const changed = [];
    const names = [];
    for (let i = named.from; i < named.to; i += 1) {
        if (!isFinal(ids[i])) {
            changed.push(ids[i]);
            names.push(shownName(named.rows[i], null) || splitPath(named.rows[i].to).name);
        }
    }
    if (changed.length > 0) {
        list.setNewNames(changed, names);
    }
}

/**
 * A generator that plans and shows the plan. It yields between slices, and returns the plan with its states.
 *
 * @param rows     ids and paths of the ticked rows of the list
 * @param settings of the action that the window shows
 * @param isFinal  whether the row with an id is left as it is
 */
export function* showPlan(window, rows, settings, isFinal) {
    const list = window.pictures;
    const { ids, paths } = rows;
    const planning = planMoves(paths, window.action.step, settings, window.services);
    let part = planning.next();
    let shown = 0;
    while (!part.done) {
        const named = part.value;
        showNames(list, ids, named, isFinal);
        shown = shownUpTo(named, shown);
        yield named.to;
        part = planning.next();
    }
    const plan = part.value;
    const plain = stateOf(row({}), { status: "ready", code: "" }, "");
    plan.states = [];
    let ready = []; // plainly, and their names are there
    for (let i = 0; i < plan.rows.length; i += 1) {
        if (isFinal(ids[i])) {
            plan.states.push(null);
        } else if (i < shown && isPlainlyReady(plan, i)) {
            ready.push(ids[i]);
            plan.states.push(plain.state);
        } else {
            plan.states.push(showRow(list, ids[i], plan, i, paths));
        }
        if (i % ROWS_A_SLICE === ROWS_A_SLICE - 1 || i === plan.rows.length - 1) {
            if (ready.length > 0) {
                list.setStatuses(ready, plain.kind, plain.text, plain.detail);
                ready = [];
            }
            yield plan.rows.length;
        }
    }
    return plan;
}

/** {ready, attention, same, along}: how many rows are in each state, and how many files move with the ready ones. */
export function countStates(plan) {
    const sum = { ready: 0, attention: 0, same: 0, along: 0 };
    plan.states.forEach((state, i) => {
        if (state !== null && state !== "along") {
            sum[state] += 1;
        }
        if (state === "ready") {
            sum.along += plan.rows[i].along.length;
        }
    });
    return sum;
}

export class LiveMoves extends LivePlan {
    constructor(window, planned) {
        super(window, planned);
        this.settleMs = SETTLE_MS;
    }

    nothing() {
        return { ready: 0, attention: 0, same: 0, along: 0 };
    }

    work(ids, settings) {
        this.toldMs = Date.now() + TELL_MS;
        // The engine loses a generator that is returned by the call that creates it.
        const planning = this.planAll(ids, settings);
        return planning;
    }

    // The pane may have something to show beside the list.
    * planAll(ids, settings) {
        const window = this.window;
        const paths = yield* pathsInParts(window.pictures, ids);
        const rows = { ids: ids, paths: paths };
        const plan = yield* showPlan(window, rows, settings, (id) => this.isFinal(id));
        if (window.pane.showPlan !== undefined) {
            yield* window.pane.showPlan(plan, ids);
        }
        return plan;
    }

    // Reading files takes a while, and the window shows how far it is.
    take(named) {
        const now = Date.now();
        if (now - this.toldMs >= TELL_MS && named < this.ids.length) {
            this.toldMs = now;
            this.planned({ named: named, all: this.ids.length });
        }
    }

    ended(plan, summary) {
        Object.assign(summary, countStates(plan));
        if (this.window.pane.planned !== undefined) {
            this.window.pane.planned(plan);
        }
    }

    // Names without a plan behind them are removed.
    refused() {
        this.ids.filter((id) => !this.isFinal(id)).forEach((id) => {
            this.window.pictures.setPlan(id, "", "");
            this.window.pictures.setStatus(id, "none", "", "");
        });
    }
}
