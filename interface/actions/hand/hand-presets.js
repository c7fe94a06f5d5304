// A preset of Sort by Hand is nothing but folders; docs/presets.md has the layout. Pure data.

import { MODES } from "./hand-sorting.js";

export const presets = {
    // All other columns are folders, so the mark is in Action, between the sub-mode of the process and the mode.
    form: { process: "Sorting", subMode: "ByHand", mode: "mode", modes: MODES, slots: "slots", columns: {} },
};
