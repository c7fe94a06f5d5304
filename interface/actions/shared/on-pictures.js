// What actions share that write a new picture for each one of the list.

import { READ_INPUT } from "../../lib/types.js";
import { WRITES } from "../../runs/writes.js";

/** An entry of actions.js for an action on pictures that writes new ones; `own` are name, title, step, pane, presets, startText. */
export function onPictures(own) {
    return Object.assign({ manner: WRITES, usesList: true, lists: () => "pictures", takes: READ_INPUT }, own);
}
