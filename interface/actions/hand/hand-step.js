// Sort by Hand: the folders and what a key does. What a key does is in hand-sorting. Pure but for translation.

import { MODES } from "./hand-sorting.js";

export const defaults = {
    mode: MODES[0],
    // [{path, label}, ...] in the order of their keys; an empty label is the folder's own name.
    slots: [],
};

export function validate() {
    return [];
}

/** The settings in a few words. */
export function describe(settings) {
    return { move: qsTr("move"), copy: qsTr("copy"), link: qsTr("link") }[settings.mode];
}
