// Prints the rows of all presets that actions start with: quorlin-script starting-rows.js

import { rowOf } from "../../../interface/presets/presets.js";
import { startingPresets } from "../../../interface/presets/starting-presets.js";
import { KINDS } from "./kinds.js";

const rows = [];
for (const name of Object.keys(KINDS)) {
    for (const [preset, settings] of startingPresets(KINDS[name], "/patterns")) {
        rows.push(rowOf(KINDS[name].form, preset, settings));
    }
}
print(JSON.stringify(rows));
