// Gives a preset one name after the other until it is killed, or lists the presets: quorlin-script rename-presets.js make|rename|list

import { dbViewController } from "quorlin";
import { files } from "quorlin/files";
import { PresetStore } from "../../../interface/presets/preset-store.js";
import { KINDS } from "./kinds.js";

const store = new PresetStore(() => new dbViewController(), files, KINDS);
const [work] = scriptArguments;
if (work === "make") {
    store.list("resize");
    store.save("resize", "Name 0", Object.assign(JSON.parse(JSON.stringify(KINDS.resize.standard)), { longest: 77 }));
}
for (let i = 1; work === "rename" && i < 100000; i += 1) {
    const [preset] = store.list("resize");
    const problem = store.rename(preset, preset.name.replace(/\d+$/, (number) => Number(number) + 1));
    if (problem !== "") {
        throw new Error(problem);
    }
    if (i === 1) {
        files.writeText(scriptArguments[1], "begun");
    }
}
print(JSON.stringify(store.list("resize").map((preset) => [preset.name, preset.settings.longest])));
