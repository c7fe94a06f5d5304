// The plan of a run that moves files: the step says for every row of the list which path it wishes for, the engine says
// which of the wishes can be had, and both are put together here. Pure; the engine is handed in.

import { splitPath } from "./names.js";

/**
 * What a step's rows() says of one row; see row() for the standard values.
 *
 *   to       the path that is wished for, or "" where there is none: then status and reason say why
 *   kind     "move", "copy" or "link"
 *   number   give it a number where the path is taken
 *   skips    staying where the path is taken is what the user chose
 *   isLeft   having no wish is what the user chose
 *   caution  what stands in for a thing that is missing, in words: shown as the status of a row that is ready
 *   notes    what else is to be known, for the tool tip
 *   along    [{from, to}]: files that go with this one; if one of them cannot, this one stays too
 *   goesWith the index of the row that takes this one along, or -1; then it has no wish of its own
 *   shown    what the column of new names shows; the name of `to` where it is ""
 */
export function row(changes) {
    return Object.assign({ to: "", kind: "move", number: false, skips: false, isLeft: false, caution: "", notes: [], along: [], goesWith: -1, shown: "",
                           status: "", reason: "" }, changes);
}

// The wishes of all rows that are not left out; ofRow is where the wish of a row stands, and those behind it go along.
function wishesOf(paths, rows, leftOut) {
    const wishes = [];
    const ofRow = [];
    rows.forEach((row, i) => {
        ofRow.push(row.to === "" || leftOut[i] !== undefined ? -1 : wishes.length);
        if (ofRow[i] < 0) {
            return;
        }
        wishes.push({ kind: row.kind, from: paths[i], to: row.to, number: row.number, leader: -1 });
        row.along.forEach((other) => {
            wishes.push({ kind: row.kind, from: other.from, to: other.to, number: row.number, leader: ofRow[i] });
        });
    });
    return { wishes: wishes, ofRow: ofRow };
}

// A file is not parted from those that go with it: the first of its companions that cannot go, or null.
function stayingCompanion(items, first, count) {
    for (let i = first; i < first + count; i += 1) {
        if (items[i].status === "refused" && items[i].code !== "leader") {
            return items[i];
        }
    }
    return null;
}

// Leaves out the rows whose companions cannot go along; returns how many were found.
function leaveOutParted(plan) {
    let found = 0;
    plan.rows.forEach((row, i) => {
        const at = plan.ofRow[i];
        const item = at >= 0 && row.along.length > 0 && plan.items[at].status === "ready"
            ? stayingCompanion(plan.items, at + 1, row.along.length) : null;
        if (item !== null) {
            plan.leftOut[i] = { status: "refused", code: "along", other: item.other, to: row.to, why: item.code };
            found += 1;
        }
    });
    return found;
}

// How often the rest is planned anew without those whose companions cannot go along.
const MOST_ROUNDS = 5;

// Settles the wishes of rows, in parts: {paths, rows, wishes, items, ofRow, leftOut}; see planMoves().
function* settled(paths, rows, moves) {
    const leftOut = [];
    const part = { rows: rows, from: rows.length, to: rows.length };
    let plan = null;
    let found = 1;
    const anyAlong = rows.some((row) => row.along.length > 0);
    // Those that the last round finds are left out too, only without a plan made anew.
    for (let round = 0; round < MOST_ROUNDS && found > 0; round += 1) {
        const asked = wishesOf(paths, rows, leftOut);
        yield part;
        plan = { paths: paths, rows: rows, wishes: asked.wishes, items: moves.plan(asked.wishes), ofRow: asked.ofRow, leftOut: leftOut };
        yield part;
        found = anyAlong ? leaveOutParted(plan) : 0;
    }
    return plan;
}

/** What the engine says of a row: an item, or null where the row has no wish. */
export function itemOf(plan, i) {
    if (plan.leftOut[i] !== undefined) {
        return plan.leftOut[i];
    }
    return plan.ofRow[i] >= 0 ? plan.items[plan.ofRow[i]] : null;
}

/**
 * The items that are to be carried out, with the row each belongs to and whether it goes along with that row's own file, which is
 * then its leader, by its index among the items; -1 for none.
 */
export function readyOf(plan) {
    const ready = [];
    plan.rows.forEach((row, i) => {
        const at = plan.ofRow[i];
        let leader = -1;
        for (let k = at; at >= 0 && plan.leftOut[i] === undefined && k <= at + row.along.length; k += 1) {
            const item = plan.items[k];
            if (item.status === "ready") {
                const wish = plan.wishes[k];
                ready.push({ kind: wish.kind, from: wish.from, to: item.to, row: i, along: k > at, leader: k > at ? leader : -1 });
            }
            if (k === at) {
                leader = ready.length - 1;
            }
        }
    });
    return ready;
}

/** What the column of new names shows. */
export function shownName(row, item) {
    return row.shown || (item === null ? "" : splitPath(item.to || row.to).name);
}

/**
 * A generator that plans. The step's rows(paths, settings, services) is a generator too: it yields {rows, from, to} as the
 * rows from..to-1 are known, which is handed on, and returns all of them.
 *
 * Returns {paths, rows, wishes, items (of the wishes), ofRow (index of a row's wish, or -1), leftOut}. Nothing is touched.
 */
export function* planMoves(paths, step, settings, services) {
    const rows = yield* step.rows(paths, settings, services);
    const plan = yield* settled(paths, rows, services.moves);
    return plan;
}
