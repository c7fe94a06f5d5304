// Preferences of the user that no service stores. The user's defaults are passed in.

import { copyOf } from "./copies.js";
import { keep, recall } from "./store.js";

const KEY = "Preferences";
// processors: 0 is all there are; memory, in MB: 0 is what is free.
const STANDARD = { ifTaken: "number", logRows: 100000, processors: 0, memory: 0, destination: "beside",
                   sharesThumbnails: true, keepsList: false };

/** An action's initial choice for names that are taken. */
export const TAKEN = ["number", "replace", "skip", "current", "ask"];
/** How many rows of the log may be kept. */
export const LOG_ROWS = [1000, 10000, 100000];
/** How much memory runs may take, in MB; 0 is what is free. */
export const MEMORY = [0, 1024, 2048, 4096, 8192, 16384];
/** The initial destination of results. */
export const DESTINATIONS = ["beside", "source"];

function oneOf(values, kept, standard) {
    return values.indexOf(kept) >= 0 ? kept : standard;
}

/** {ifTaken, logRows, processors, memory, destination, sharesThumbnails, keepsList}; unknown values get the default. */
export function wishes(defaults) {
    const kept = recall(defaults, KEY, STANDARD);
    return {
        ifTaken: oneOf(TAKEN, kept.ifTaken, STANDARD.ifTaken),
        logRows: oneOf(LOG_ROWS, kept.logRows, STANDARD.logRows),
        memory: oneOf(MEMORY, kept.memory, STANDARD.memory),
        destination: oneOf(DESTINATIONS, kept.destination, STANDARD.destination),
        sharesThumbnails: kept.sharesThumbnails !== false,
        keepsList: kept.keepsList === true,
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
    if (first.output !== undefined && first.output.destination !== undefined) {
        first.output.destination.kind = wishes(defaults).destination;
    }
    return first;
}
