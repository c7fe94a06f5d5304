// What a recipe accesses beyond its own folder and those of the pictures, and what the user has allowed of that. A
// recipe may come from a stranger: nothing is read or written there until the user has seen it.
// Services used: recipes (reachOf), defaults.

import { defaults } from "quorlin/defaults";
import { recipes } from "quorlin/recipes";
import { keep, recall } from "../../lib/store.js";

const KEY = "AllowedByRecipes";
const MOST_KEPT = 200;

function keyOf(settings, what) {
    return settings.path + "\n" + what;
}

/** {reads, writes}: lists of paths. */
export function reachOf(settings) {
    return recipes.reachOf(settings.text, settings.folder);
}

// One text for each path that is accessed.
function things(reach) {
    return reach.reads.map((path) => "read " + path).concat(reach.writes.map((path) => "write " + path));
}

function allowed() {
    return recall(defaults, KEY, { things: [] }).things;
}

/** Whether everything that the recipe accesses was allowed. */
export function isAllowed(settings) {
    const wanted = things(reachOf(settings));
    if (wanted.length === 0) {
        return true;
    }
    const known = allowed();
    return wanted.every((what) => known.indexOf(keyOf(settings, what)) >= 0);
}

function note(settings, whats) {
    const keys = whats.map((what) => keyOf(settings, what));
    const others = allowed().filter((key) => keys.indexOf(key) < 0);
    keep(defaults, KEY, { things: keys.concat(others).slice(0, MOST_KEPT) });
}

/** Allows everything that the recipe accesses. */
export function allow(settings) {
    note(settings, things(reachOf(settings)));
}

/** Allows what the user has chosen: everything that the recipe accesses now and did not before. */
export function allowChanges(before, settings) {
    const old = things(before);
    const news = things(reachOf(settings)).filter((what) => old.indexOf(what) < 0);
    if (news.length > 0) {
        note(settings, news);
    }
}
