// Resizes pictures without windows, one after the other, through the same step as the window:
//     quorlin-script interface/batch.js OUTDIR FILE...
// Every file gets a longest side of 1600 pixels in its own type; a name that exists gets a number. Prints what was written
// and where. The exit status is 0 if every picture became a file, 1 if not, 2 for a bad command line.

import { files } from "quorlin/files";
import { copyOf } from "./lib/copies.js";
import { runItems } from "./runs/making/job.js";
import { planRun } from "./runs/plan.js";
import { logRow, summaryOf } from "./runs/report.js";
import { keepRows, newRunName } from "./runs/log-file.js";
import { pixels, statusText } from "./lib/wording.js";
import { makeServices } from "./services.js";
import * as resize from "./actions/resize/resize-step.js";

// Runs a generator to its end; each yielded value is passed on.
function carryOut(generator, onValue) {
    let step = generator.next();
    while (!step.done) {
        onValue(step.value);
        step = generator.next();
    }
    return step.value;
}

function settingsFor(folder) {
    const settings = copyOf(resize.defaults);
    settings.output.destination = { kind: "folder", name: "", path: folder };
    return settings;
}

function tell(event) {
    if (event.kind !== "end") {
        return;
    }
    const result = event.result;
    const what = result.status === "OK"
        ? "-> " + result.path + " (" + pixels(result.photo) + " -> " + pixels(result) + ", "
        + files.byteText(result.bytes) + ")"
        : "";
    print(statusText(result.status, result.reason) + "  " + result.photo.path + " " + what);
}

function main(folder, paths) {
    const settings = settingsFor(folder);
    const services = makeServices();
    const photos = paths.map((path) => files.picture(path));
    const input = { count: photos.length, at: (i) => photos[i], paths: paths };
    const planned = carryOut(planRun(input, resize, settings, services), () => undefined);
    const results = carryOut(runItems(planned.items, resize, settings, services), tell);
    const run = newRunName();
    const problem = keepRows(files,
                             results.map((result) =>
                                 logRow(result, "Resize", resize.describe(settings), new Date().toISOString(), run)));
    const sum = summaryOf(results);
    print(sum.done + " done, " + (sum.failed + sum.unsupported) + " failed, " + sum.skipped + " skipped, "
          + files.byteText(sum.bytes) + " written to " + folder
          + (problem ? "; the log was not written: " + problem : ""));
    quit(sum.done === results.length ? 0 : 1);
}

if (scriptArguments.length < 2) {
    console.error("Usage: quorlin-script interface/batch.js OUTDIR FILE...");
    quit(2);
} else {
    main(files.absolute(scriptArguments[0]), scriptArguments.slice(1).map((path) => files.absolute(path)));
}
