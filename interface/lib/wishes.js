// What the user chose in the preferences that no service keeps. The user's defaults are handed in.

import { copyOf } from "./copies.js";
import { keep, recall } from "./store.js";

const KEY = "Preferences";
// processors: 0 is all there are.
const STANDARD = { ifTaken: "number", logRows: 100000, processors: 0 };

/** What an action does at first where a name is taken. */
export const TAKEN = ["number", "replace", "skip", "ask"];
/** How many rows of the log may be kept. */
export const LOG_ROWS = [1000, 10000, 100000];

/** {ifTaken, logRows, processors}; what is not known is as it is for everybody. */
export function wishes(defaults) {
    const kept = recall(defaults, KEY, STANDARD);
    return {
        ifTaken: TAKEN.indexOf(kept.ifTaken) >= 0 ? kept.ifTaken : STANDARD.ifTaken,
        logRows: LOG_ROWS.indexOf(kept.logRows) >= 0 ? kept.logRows : STANDARD.logRows,
        processors: Number.isInteger(kept.processors) && kept.processors > 0 ? kept.processors : STANDARD.processors,
    };
}

export function keepWish(defaults, field, value) {
    const all = wishes(defaults);
    all[field] = value;
    keep(defaults, KEY, all);
}

/** The settings that an action starts with when it is used for the first time; a copy. */
export function firstSettings(defaults, standard) {
    const first = copyOf(standard);
    if (first.output !== undefined && first.output.ifTaken !== undefined) {
        first.output.ifTaken = wishes(defaults).ifTaken;
    }
    return first;
}
