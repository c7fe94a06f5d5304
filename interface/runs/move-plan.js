// The plan of a run that moves files: the step says for every row of the list which path it wants, the engine says
// which of these are possible, and both are combined here. Pure; the engine is passed in.

import { splitPath } from "../lib/names.js";

// So many requests are passed to the engine at once, and it works for so long, before the window gets control again.
const AT_ONCE = 50;
const WORK_MS = 1;

const NONE = Object.freeze([]);

// Rows only have what differs from this: with all of it, ten thousand of them would keep the engine busy.
const USUAL = { to: "", kind: "move", number: false, skips: false, isLeft: false, caution: "", notes: NONE, along: NONE,
                goesWith: -1, shown: "", status: "", reason: "" };

/**
 * What a step's rows() says about one row; see row() for the defaults.
 *
 *   to       the wanted path, or "" if there is none: then status and reason say why
 *   kind     "move", "copy" or "link"
 *   number   give it a number if the path is taken
 *   skips    the user chose to leave it in place if the path is taken
 *   isLeft   the user chose to leave it alone
 *   caution  what replaces a missing value, in words: shown as the status of a row that is ready
 *   notes    further remarks, for the tooltip
 *   along    [{from, to}]: files that move with this one; if one of them cannot, this one stays too
 *   goesWith the index of the row that this one moves with, or -1; such a row has no separate request
 *   shown    what the column of new names shows; the name of `to` if this is ""
 */
export function row(changes) {
    const made = Object.assign(Object.create(USUAL), changes);
    if (made.along.length === 0) {
        made.along = NONE;
    }
    return made;
}

/** The same for the most frequent row: a path without remarks, and what is shown for it. */
export function plainRow(to, shown) {
    const made = Object.create(USUAL);
    made.to = to;
    made.shown = shown;
    return made;
}

// The requests of a row. What is as usual is not told: all of it is converted for the engine.
function tellWish(told, path, wish, at) {
    const { kind, number, along } = wish;
    told.push(kind === USUAL.kind && !number ? { from: path, to: wish.to }
                                             : { kind: kind, from: path, to: wish.to, number: number });
    along.forEach((other) => told.push({ kind: kind, from: other.from, to: other.to, number: number, leader: at }));
}

// Passes the requests of all rows that are not left out to the engine. {ofRow, count}: ofRow is the position of a row's
// request, and the requests after it move with it.
function* tellWishes(tell, paths, rows, leftOut, part) {
    const ofRow = [];
    let count = 0;
    let told = [];
    for (let i = 0; i < rows.length; i += 1) {
        const wish = rows[i];
        const isAsked = wish.to !== "" && leftOut[i] === undefined;
        ofRow.push(isAsked ? count : -1);
        if (isAsked) {
            tellWish(told, paths[i], wish, count);
            count += 1 + wish.along.length;
        }
        if (told.length >= AT_ONCE || i === rows.length - 1) {
            tell(told);
            told = [];
            yield part;
        }
    }
    return { ofRow: ofRow, count: count };
}

// Has the engine plan once: {paths, rows, items, ofRow, leftOut}. An item is null if a request is ready exactly as
// made.
function* plannedOnce(paths, rows, leftOut, moves, part) {
    const name = moves.beginPlan();
    try {
        const told = yield* tellWishes((wishes) => moves.addWishes(name, wishes), paths, rows, leftOut, part);
        while (!moves.workOut(name, WORK_MS)) {
            yield part;
        }
        const items = [];
        while (items.length < told.count) {
            moves.planned(name, items.length, Math.min(told.count, items.length + AT_ONCE))
                .forEach((item) => items.push(item));
            yield part;
        }
        return { paths: paths, rows: rows, items: items, ofRow: told.ofRow, leftOut: leftOut };
    } finally {
        moves.dropPlan(name);
    }
}

function isReady(item) {
    return item === null || item.status === "ready";
}

// A file is not separated from its companions: the first companion that cannot move, or null.
function stayingCompanion(items, first, count) {
    for (let i = first; i < first + count; i += 1) {
        if (items[i] !== null && items[i].status === "refused" && items[i].code !== "leader") {
            return items[i];
        }
    }
    return null;
}

// Leaves out the rows whose companions cannot move with them; returns how many were found.
function leaveOutParted(plan) {
    let found = 0;
    plan.rows.forEach(({ to, along }, i) => {
        const at = plan.ofRow[i];
        const mayPart = at >= 0 && along.length > 0 && isReady(plan.items[at]);
        const item = mayPart ? stayingCompanion(plan.items, at + 1, along.length) : null;
        if (item !== null) {
            plan.leftOut[i] = { status: "refused", code: "along", other: item.other, to: to, why: item.code };
            found += 1;
        }
    });
    return found;
}

// How often the rest is planned again without those whose companions cannot move with them.
const MOST_ROUNDS = 5;

/** A generator that settles the requests of rows, in parts; see planMoves(). */
export function* settled(paths, rows, moves) {
    const leftOut = [];
    const part = { rows: rows, from: rows.length, to: rows.length };
    let plan = null;
    let found = 1;
    const anyAlong = rows.some((each) => each.along.length > 0);
    // Those found in the last round are left out too, but without planning again.
    for (let round = 0; round < MOST_ROUNDS && found > 0; round += 1) {
        plan = yield* plannedOnce(paths, rows, leftOut, moves, part);
        found = anyAlong ? leaveOutParted(plan) : 0;
    }
    return plan;
}

/** What the engine says about a row: an item, or null if the row has no request. */
export function itemOf(plan, i) {
    if (plan.leftOut[i] !== undefined) {
        return plan.leftOut[i];
    }
    const at = plan.ofRow[i];
    return at < 0 ? null : plan.items[at] || { status: "ready", code: "", other: "", to: plan.rows[i].to };
}

/** True for a row without remarks whose request is ready exactly as made. */
export function isPlainlyReady(plan, i) {
    const at = plan.ofRow[i];
    const wish = plan.rows[i];
    return at >= 0 && plan.items[at] === null && plan.leftOut[i] === undefined && wish.along === NONE
        && wish.notes === NONE && wish.caution === "";
}

/** True if the file of a row is to be carried out. */
export function isReadyRow(plan, i) {
    return plan.ofRow[i] >= 0 && plan.leftOut[i] === undefined && isReady(plan.items[plan.ofRow[i]]);
}

// The items of one row; first is the index of the first of them among all.
function readyOfRow(plan, i, first) {
    const { kind, along } = plan.rows[i];
    const at = plan.ofRow[i];
    const ready = [];
    if (at < 0 || plan.leftOut[i] !== undefined) {
        return ready;
    }
    const hasLeader = isReady(plan.items[at]);
    if (hasLeader) {
        ready.push({ kind: kind, from: plan.paths[i], to: itemOf(plan, i).to, row: i, along: false, leader: -1 });
    }
    const leader = hasLeader ? first : -1;
    along.forEach((other, k) => {
        const item = plan.items[at + 1 + k];
        if (isReady(item)) {
            ready.push({ kind: kind, from: other.from, to: item === null ? other.to : item.to, row: i, along: true,
                         leader: leader });
        }
    });
    return ready;
}

/**
 * A generator that returns the items that are to be carried out, with the row of each and the index among the items of
 * its leader, the row's own file, if it moves with that; -1 for none.
 */
export function* readyItems(plan) {
    const ready = [];
    for (let i = 0; i < plan.rows.length; i += 1) {
        readyOfRow(plan, i, ready.length).forEach((item) => ready.push(item));
        if (i % AT_ONCE === AT_ONCE - 1) {
            yield plan.rows.length;
        }
    }
    return ready;
}

/** What the column of new names shows for a row of the step. */
export function shownName(wish, item) {
    return wish.shown || (item === null ? "" : splitPath(item.to || wish.to).name);
}

/**
 * A generator that plans. The step's rows(paths, settings, services) is a generator too: it yields {rows, from, to}
 * once the rows from..to-1 are known, which is passed on, and returns all of them.
 *
 * Returns {paths, rows, items (of the requests, null for one that is ready exactly as made), ofRow (index of a row's
 * request, or -1), leftOut}. Nothing is touched.
 */
export function* planMoves(paths, step, settings, services) {
    const rows = yield* step.rows(paths, settings, services);
    const plan = yield* settled(paths, rows, services.moves);
    return plan;
}
