import { KeptRun, settleKeptRuns } from "../../../interface/runs/fields/kept-run.js";
import { forgetUnlogged, valuesOf, valuesPath } from "../../../interface/runs/fields/kept-values.js";
import { equal, finish, isTrue, test } from "../check.js";

const HEAD = { run: "r1", process: "Metadata", action: "Title" };

// A data folder, and pictures with identities, in memory.
function world() {
    const texts = {};
    const identities = {};
    const files = {
        dataFolder: "/d",
        identity: (path) => identities[path] || "",
        readText: (path) => (texts[path] === undefined ? null : texts[path]),
        names: (folder) => Object.keys(texts).filter((path) => path.startsWith(folder + "/"))
            .map((path) => path.slice(folder.length + 1)),
        appendPrivate: (path, lines) => { texts[path] = (texts[path] || "") + lines; return ""; },
        appendLines: (path, lines) => { texts[path] = (texts[path] || "") + lines; return ""; },
        removePrivate: (path) => { delete texts[path]; return ""; },
    };
    const records = {
        begin: (folder) => { texts[folder + "/1.jsonl"] = ""; return folder + "/1.jsonl"; },
        add: (path, lines) => { texts[path] += lines; return true; },
        end: (path) => { delete texts[path]; },
        interrupted: (folder) => files.names(folder).map((name) => folder + "/" + name),
    };
    return { files: files, records: records, texts: texts, identities: identities };
}

function keep(run, path) {
    return run.keep({ path: path, file: path, before: {}, after: {}, undo: "{}" });
}

function loggedPaths(texts) {
    return (texts["/d/log.jsonl"] || "").split("\n").filter((line) => line !== "")
        .map((line) => JSON.parse(line).inputPath);
}

// "a" was written and logged, "b" written, and "c" was about to be written.
function interruptedWorld() {
    const all = world();
    const run = new KeptRun(all.files, all.records, HEAD);
    ["/p/a", "/p/b", "/p/c"].forEach((path, i) => {
        all.identities[path] = "1:" + i;
        keep(run, path);
    });
    all.identities["/p/a"] = "1:10";
    all.identities["/p/b"] = "1:11";
    all.files.appendLines("/d/log.jsonl", JSON.stringify({ inputPath: "/p/a", run: "r1" }) + "\n");
    return all;
}

test("a run that ends in order leaves no record", () => {
    const { files, records, texts } = world();
    const run = new KeptRun(files, records, HEAD);
    equal(keep(run, "/p/a"), "");
    equal(Object.keys(texts).length, 2);
    run.end();
    equal(Object.keys(texts), [valuesPath(files, "r1")]);
});

test("what was written before a kill is logged, and what was not is not reverted", () => {
    const { files, records, texts } = interruptedWorld();
    equal(settleKeptRuns(files, records), [2]);
    equal(loggedPaths(texts), ["/p/a", "/p/b"]);
    equal(valuesOf(files, "r1").map((each) => each.path), ["/p/b", "/p/a"]);
    const row = JSON.parse(texts["/d/log.jsonl"].split("\n")[1]);
    equal([row.process, row.action, row.status, row.run], ["Metadata", "Title", "OK", "r1"]);
    equal(files.names("/d/metadata-runs"), []);
    equal(settleKeptRuns(files, records), []);
});

test("a sidecar that was to be made and was not is not reverted", () => {
    const { files, records, identities } = world();
    const run = new KeptRun(files, records, HEAD);
    run.keep({ path: "/p/a", file: "/p/a.xmp", before: {}, after: {}, undo: "{}" });
    run.keep({ path: "/p/b", file: "/p/b.xmp", before: {}, after: {}, undo: "{}" });
    identities["/p/b.xmp"] = "1:1";
    equal(settleKeptRuns(files, records), [1]);
    equal(valuesOf(files, "r1").map((each) => each.path), ["/p/b"]);
});

test("a run that could not log what it wrote keeps its record", () => {
    const { files, records } = interruptedWorld();
    files.appendLines = () => "the disk is full";
    settleKeptRuns(files, records);
    equal(files.names("/d/metadata-runs").length, 1);
});

test("old values of a run that is not in the log yet stay while it is under way", () => {
    const { files, records, texts } = world();
    const run = new KeptRun(files, records, HEAD);
    keep(run, "/p/a");
    equal(forgetUnlogged(files), "");
    isTrue(texts[valuesPath(files, "r1")] !== undefined);
    run.end();
    forgetUnlogged(files);
    isTrue(texts[valuesPath(files, "r1")] === undefined);
});

test("an edit that failed is not reverted", () => {
    const { files, records } = world();
    const run = new KeptRun(files, records, HEAD);
    keep(run, "/p/a");
    keep(run, "/p/b");
    run.unwritten("/p/a");
    equal(valuesOf(files, "r1").map((each) => each.path), ["/p/b"]);
});

finish();
