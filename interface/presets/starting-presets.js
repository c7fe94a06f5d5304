// The presets that an action starts with. They are written once; if the user removes one, it does not come back. Pure.

import { keep, recall } from "../lib/store.js";

const KEY = "StartingPresets";

// The standard settings with some changes.
function laidOver(standard, changes) {
    const result = Object.assign({}, standard);
    for (const key of Object.keys(changes)) {
        const isGroup = typeof changes[key] === "object" && !Array.isArray(changes[key]);
        result[key] = isGroup ? laidOver(standard[key], changes[key]) : changes[key];
    }
    return result;
}

/**
 * The presets that an action starts with: [name, settings] each. `kind` is of presetKinds(); `patterns` is the folder of the
 * supplied patterns.
 */
export function startingPresets(kind, patterns) {
    return (kind.starting === undefined ? [] : kind.starting(patterns))
        .map((entry) => [entry[0], laidOver(kind.standard, entry[1])]);
}

/**
 * Writes the presets that an action starts with, if that was not done before. A name that is taken is skipped. If the
 * database cannot be written, the next time tries again. Returns whether the presets are to be read again.
 */
export function writeStartingPresets(action, patterns, store, defaults) {
    const done = recall(defaults, KEY, { actions: [] }).actions;
    if (done.indexOf(action) >= 0) {
        return false;
    }
    const names = store.names();
    for (const [name, settings] of startingPresets(store.kinds[action], patterns)) {
        if (store.nameProblem(name, names) === "" && store.save(action, name, settings) !== "") {
            return true;
        }
    }
    keep(defaults, KEY, { actions: done.concat([action]) });
    return true;
}
