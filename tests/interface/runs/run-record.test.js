import { doneCount, doneResults, outputsNow, recordFrom,
         RunRecord } from "../../../interface/runs/making/run-record.js";
import { drain, equal, finish, isTrue, test } from "../check.js";
import { FakeFiles, photo } from "../fakes.js";

const HEAD = { action: "resize", title: "Resize", settings: { longest: 20 }, startedMs: 5 };

class FakeRecords {
    constructor() {
        this.text = "";
        this.kept = 0;
        this.isEnded = false;
    }

    begin(folder) {
        this.folder = folder;
        return folder + "/1.jsonl";
    }

    add(path, lines, isKept) {
        this.text += lines;
        this.kept = isKept ? this.text.length : this.kept;
        return true;
    }

    end() {
        this.isEnded = true;
    }
}

function item(name, changes) {
    return Object.assign({ photo: photo("/p/" + name, 40, 30), status: "ready", reason: "", notes: [],
                           remarks: ["small"], folder: "/out", name: name, path: "/out/" + name, width: 20,
                           height: 15, replaces: false, replaced: "", replacesOriginal: false }, changes || {});
}

function recorded(files, items) {
    const records = new FakeRecords();
    const record = new RunRecord(records, files);
    drain(record.begin(HEAD, items));
    return { records: records, record: record };
}

test("saysWhatWasPlannedAndWhatIsDone", () => {
    const files = new FakeFiles({ "/out": "folder", "/out/.unfinished/0": 5, "/out/a.jpg": 5, "/out/b.jpg": 7 });
    const world = recorded(files, [item("a.jpg"), item("b.jpg"), item("c.jpg", { status: "Skipped", reason: "x" })]);
    equal(world.records.folder, "/data/runs");
    world.record.placed(0, "/out/a.jpg", 5);
    const read = recordFrom(world.records.text);
    equal([read.head, read.items.length, read.items[2].reason], [HEAD, 3, "x"]);
    equal([read.items[0].of, read.items[0].remarks], ["/p/a.jpg", ["small"]]);
    const done = doneResults(read, files);
    equal(Object.keys(done), ["0"]);
    equal(done[0], { status: "OK", reason: "", name: "a.jpg", path: "/out/a.jpg", folder: "/out", bytes: 5, width: 20,
                     height: 15 });
    delete files.entries["/out/a.jpg"];
    equal(Object.keys(doneResults(read, files)), []);
});

test("whatWasAboutToBePlacedIsDoneWhereItIsThere", () => {
    const files = new FakeFiles({ "/out": "folder", "/out/.unfinished/0": 5 });
    const identity = files.identity.bind(files);
    // The same file has the same identity wherever it is.
    files.identity = (path) => (identity(path) === "" ? "" : "id");
    const world = recorded(files, [item("a.jpg")]);
    world.record.about(0, "/out/.unfinished/0", "/out/a.jpg");
    equal(world.records.kept, world.records.text.length);
    const read = recordFrom(world.records.text);
    equal(Object.keys(doneResults(read, files)), []);
    files.place("/out/.unfinished/0", "/out/a.jpg", "");
    equal(doneResults(read, files)[0].bytes, 5);
});

test("isReadWhereverItWasCutOff", () => {
    const files = new FakeFiles({ "/out": "folder", "/out/a.jpg": 5, "/out/b.jpg": 7 });
    const world = recorded(files, [item("a.jpg"), item("b.jpg")]);
    const planned = world.records.text.length;
    world.record.placed(0, "/out/a.jpg", 5);
    const first = world.records.text.length;
    world.record.placed(1, "/out/b.jpg", 7);
    for (let length = 0; length <= world.records.text.length; length += 1) {
        const read = recordFrom(world.records.text.slice(0, length));
        isTrue(length >= planned - 1 ? read !== null : read === null);
        if (read !== null) {
            const count = Object.keys(doneResults(read, files)).length;
            equal(count, length >= world.records.text.length - 1 ? 2 : Number(length >= first - 1));
        }
    }
});

test("knowsWhatAnEarlierRunHadDone", () => {
    const files = new FakeFiles({ "/out": "folder", "/out/a.jpg": 5 });
    const done = { status: "OK", path: "/out/a.jpg", bytes: 5 };
    const world = recorded(files, [item("a.jpg", { done: done }), item("b.jpg")]);
    equal(Object.keys(doneResults(recordFrom(world.records.text), files)), ["0"]);
});

test("carriesOnWithoutARecordWhereNoneCanBeWritten", () => {
    const records = new FakeRecords();
    records.begin = () => "";
    const record = new RunRecord(records, new FakeFiles({}));
    drain(record.begin(HEAD, [item("a.jpg")]));
    record.about(0, "/x", "/y");
    record.end();
    equal([records.text, records.isEnded], ["", false]);
});

test("saysHowFarTheEndHadCome", () => {
    const world = recorded(new FakeFiles({ "/out": "folder" }), [item("a.jpg")]);
    equal([recordFrom(world.records.text).replacing, recordFrom(world.records.text).isLogging], ["", false]);
    world.record.noteReplacing("run 1");
    world.record.noteLogging();
    equal(world.records.kept, world.records.text.length);
    equal([recordFrom(world.records.text).replacing, recordFrom(world.records.text).isLogging], ["run 1", true]);
    const records = new FakeRecords();
    const later = new RunRecord(records, new FakeFiles({}));
    drain(later.begin(Object.assign({ replacing: "run 1" }, HEAD), [item("a.jpg")]));
    equal(recordFrom(records.text).replacing, "run 1");
});

test("takesInWhatJoins", () => {
    const world = recorded(new FakeFiles({ "/out": "folder" }), [item("a.jpg"), item("b.jpg")]);
    const before = world.records.text;
    drain(world.record.grow([item("c.jpg")], 2));
    equal(recordFrom(world.records.text).items.map((each) => each.name), ["a.jpg", "b.jpg", "c.jpg"]);
    equal(world.records.kept, world.records.text.length);
    // Where it ended in the middle of that, the run is the one that was begun.
    const joining = world.records.text.slice(before.length).split("\n");
    equal(recordFrom(before + joining[0] + "\n").items.map((each) => each.name), ["a.jpg", "b.jpg"]);
    equal(recordFrom(before + joining[0].slice(0, 20)).items.length, 2);
});

// Of two outputs each its own line.
test("knowsEachOutputOfAPicture", () => {
    const files = new FakeFiles({ "/out": "folder", "/out/a.jpg": 5, "/out/a.png": 7, "/out/b.jpg": 5 });
    const output = (number, path, status) => ({ output: number, path: path, status: status || "ready" });
    const both = (name) => [output(0, "/out/" + name + ".jpg"), output(2, "/out/" + name + ".png")];
    const items = [item("a", { outputs: both("a"), number: 0 }), item("b", { outputs: both("b"), number: 3 }),
                   item("c", { outputs: [output(0, "", "Skipped")], status: "Skipped", number: 4 })];
    const records = new FakeRecords();
    const record = new RunRecord(records, files);
    drain(record.begin(HEAD, items, ["/p/a", "/p/x", "/p/y", "/p/b", "/p/c"]));
    record.placedOutputs(0, [{ output: 0, path: "/out/a.jpg", bytes: 5 }, { output: 2, path: "/out/a.png", bytes: 7 }]);
    record.placedOutputs(1, [{ output: 0, path: "/out/b.jpg", bytes: 5 }]);
    const read = recordFrom(records.text);
    equal([read.paths.length, read.items[1].number, doneCount(read, files)], [5, 3, 1]);
    const done = doneResults(read, files);
    equal(outputsNow(read.items[0], 0, done).map((each) => [each.status, each.bytes]), [["OK", 5], ["OK", 7]]);
    equal(outputsNow(read.items[1], 1, done).map((each) => each.status), ["OK", "ready"]);
    // A record that is continued says the same.
    const again = new FakeRecords();
    const now = read.items.map((each, i) => Object.assign({}, each, { photo: photo(each.of, 40, 30),
                                                                      outputs: outputsNow(each, i, done) }));
    drain(new RunRecord(again, files).begin(HEAD, now, read.paths));
    equal(doneCount(recordFrom(again.text), files), 1);
    delete files.entries["/out/a.png"];
    equal(doneCount(read, files), 0);
});

finish();
