// The part of a file-moving run that failed, to be requested once more. Pure; no service is used.

import { row } from "./move-plan.js";
import { emptyTable } from "../lib/names.js";

/**
 * @param unfinished  the items that failed, and those that waited for them: see readyItems() of move-plan.js
 * @param wished      the rows of the plan that they come from
 * @return [{from, wish (a row as steps make them), of (the index of the row it comes from), isAlong}]: the same
 *         requests as before, each with those of its companions that are still where they were. A companion whose
 *         leader was moved is requested by itself, under the name planned for it.
 */
export function retryRows(unfinished, wished) {
    const waiting = emptyTable();
    unfinished.filter((item) => item.along).forEach((item) => { waiting[item.from] = item; });
    const leaders = unfinished.filter((item) => !item.along).map((item) => {
        const old = wished[item.row];
        const along = old.along.filter((other) => waiting[other.from] !== undefined);
        along.forEach((other) => { delete waiting[other.from]; });
        return { from: item.from, of: item.row, isAlong: false,
                 wish: row({ to: old.to, kind: old.kind, number: old.number, skips: old.skips, along: along,
                             shown: old.shown }) };
    });
    const lone = Object.keys(waiting).map((from) => waiting[from]).map((item) => ({
        from: item.from, of: item.row, isAlong: true, wish: row({ to: item.to, kind: item.kind }) }));
    return leaders.concat(lone);
}
