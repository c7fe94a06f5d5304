// Prints the rows of all presets that actions start with: quorlin-script starting-rows.js

import { rowOf } from "../../../interface/presets/presets.js";
import { startingPresets } from "../../../interface/presets/starting-presets.js";
import { KINDS } from "./kinds.js";

const rows = [];
// The command puts the path of its patterns into a recipe. The engine does not tell a module its path, but a stack
// does.
const PATTERNS = new Error("").stack.match(/(?:file:\/\/)?(\/[^\n]*)\/tests\/interface\/presets\//)[1]
    + "/interface/patterns";

for (const name of Object.keys(KINDS)) {
    for (const [preset, settings] of startingPresets(KINDS[name], PATTERNS)) {
        rows.push(rowOf(KINDS[name].form, preset, settings));
    }
}
print(JSON.stringify(rows));
