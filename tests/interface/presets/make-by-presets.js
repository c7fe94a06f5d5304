// Makes pictures by settings that no supplied preset has, as the window does, and prints their presets:
//     quorlin-script make-by-presets.js FOLDER PICTURE...
//     Results go to a folder beside each picture, named after the preset; those of the preset "Tree" to the folder
//     FOLDER-tree.

import { files } from "quorlin/files";
import { copyOf } from "../../../interface/lib/copies.js";
import { rowOf } from "../../../interface/presets/presets.js";
import { runItems } from "../../../interface/runs/making/job.js";
import { planRun } from "../../../interface/runs/plan.js";
import { makeServices } from "../../../interface/services.js";
import { KINDS } from "./kinds.js";

function box(fit, changes) {
    return Object.assign({ mode: "box", boxWidth: 60, boxHeight: 40, boxFit: fit }, changes || {});
}

const [FOLDER] = scriptArguments;
const PATHS = scriptArguments.slice(1);

const CASES = [
    ["resize", "Tree", { longest: 30 },
     { destination: { kind: "folder", name: "", path: FOLDER + "-tree" }, keepSubfolders: true }],
    ["resize", "Fit", box("inside")],
    ["resize", "Fit, enlarged", box("inside", { boxWidth: 400, boxHeight: 100, neverEnlarge: false })],
    ["resize", "Fill", box("fill")],
    ["resize", "Stretch", box("stretch")],
    ["resize", "Pad", box("pad", { padColor: "#306090" })],
    ["resize", "Print", box("pad", { boxWidth: 2, boxHeight: 1.5, unit: "cm", dpi: 300 })],
    ["resize", "Own resolution", { mode: "width", width: 5, unit: "mm", dpi: 0 }],
    ["resize", "Named", { longest: 30 }, { namePattern: "{name}-{counter:01} {taken:MMM} {width}" }],
    ["turn", "Rotated", { angle: 90 }, { namePattern: "{name} {height}" }],
    ["convert", "To JPEG", { target: "jpeg", quality: "5" }, { matte: "#204080" }],
    ["convert", "To PDF", { target: "pdf" }],
    ["convert", "To TIFF", { target: "tiff" }, { metadata: "copyright", removeLocation: true }],
    ["turn", "Web", { angle: 180 }, { fileType: "org.webmproject.webp", quality: "6", ownQuality: false }],
    ["turn", "Finest", { angle: 180 }, { quality: "10", ownQuality: false }],
    ["resize", "Small", { longest: 30 }, { fileType: "public.avif", quality: "5" }],
    ["resize", "Newest", { longest: 30 }, { fileType: "public.jpeg-xl", ownQuality: true }],
    ["resize", "Matte", { longest: 30 }, { fileType: "public.jpeg", matte: "#a02040", dates: "keep" }],
];

function end(generator) {
    let step = generator.next();
    while (!step.done) {
        step = generator.next();
    }
    return step.value;
}

function settingsOf(kind, name, changes, output) {
    const settings = Object.assign(copyOf(kind.standard), changes);
    settings.output.destination.name = name;
    Object.assign(settings.output, output || {});
    return settings;
}

const services = makeServices();
const photos = PATHS.map((path, i) => Object.assign(files.picture(path), { index: i, root: FOLDER }));
const input = { count: photos.length, at: (i) => photos[i], paths: PATHS };
const rows = [];
for (const [action, name, changes, output] of CASES) {
    const kind = KINDS[action];
    const settings = settingsOf(kind, name, changes, output);
    const planned = end(planRun(input, kind.step, settings, services));
    const results = end(runItems(planned.items, kind.step, settings, services));
    const bad = results.filter((result) => result.status !== "OK");
    if (bad.length > 0) {
        throw new Error(name + ": " + JSON.stringify(bad));
    }
    rows.push(rowOf(kind.form, name, settings));
}
print(JSON.stringify(rows));
