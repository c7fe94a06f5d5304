import { runItems } from "../../../interface/runs/making/job.js";
import { drain, equal, finish, isTrue, test } from "../check.js";
import { FakeFiles, photo } from "../fakes.js";

const SETTINGS = { output: { ifTaken: "number" } };

function item(name, changes) {
    return Object.assign({ photo: photo("/p/" + name, 40, 30), status: "ready", reason: "", folder: "/out", name: name,
                           path: "/out/" + name, replaces: false, replaced: "" }, changes || {});
}

// What was refused for want of memory: by somebody else before, and by the operation.
const memory = { told: "", takeMemoryRefusal() { const words = this.told; this.told = ""; return words; } };

// Writes a file of 5 bytes, but for names that say otherwise.
const step = {
    run(picture, settings, services) {
        if (picture.name.startsWith("bad")) {
            return { status: "Failed", reason: "not a readable picture", outputs: [] };
        }
        if (picture.name.startsWith("large")) {
            memory.told = "needs about 3.6 GB of memory, 1.2 GB is free";
            return { status: "Failed", reason: "the file could not be written", outputs: [] };
        }
        if (picture.name.startsWith("throws")) {
            throw new Error("a mistake of ours");
        }
        services.files.entries[settings.prefix + picture.name] = 5;
        return { status: "OK", reason: "", outputs: [settings.prefix + picture.name], width: 20, height: 15 };
    },
};

function run(items, files, settings) {
    return drain(runItems(items, step, settings || SETTINGS, { files: files, pictures: memory }));
}

test("bringsEveryResultIntoItsPlace", () => {
    const files = new FakeFiles({});
    const results = run([item("a.jpg"), item("b.jpg")], files).result;
    equal(results.map((result) => [result.status, result.path, result.bytes]),
          [["OK", "/out/a.jpg", 5], ["OK", "/out/b.jpg", 5]]);
    equal([files.entries["/out/a.jpg"], files.stagings], [5, []]);
});

test("takesEveryFolderAwayThatItMadeForNothing", () => {
    const files = new FakeFiles({ "/out": "folder" });
    files.makeFolder = (folder) => {
        for (let each = folder; files.entries[each] === undefined; each = each.slice(0, each.lastIndexOf("/"))) {
            files.entries[each] = "folder";
        }
        return "";
    };
    run([item("bad.jpg", { folder: "/out/x/y" }), item("bad2.jpg", { folder: "/out/x/z" })], files);
    equal(Object.keys(files.entries), ["/out"]);
    run([item("bad.jpg", { folder: "/out/x/y" }), item("a.jpg", { folder: "/out/x/z" })], files);
    equal(Object.keys(files.entries).sort(), ["/out", "/out/x", "/out/x/z", "/out/x/z/a.jpg"]);
});

test("goesOnAfterAFailure", () => {
    const results = run([item("bad.jpg"), item("throws.jpg"), item("c.jpg")], new FakeFiles({})).result;
    equal(results.map((result) => result.status), ["Failed", "Failed", "OK"]);
    equal(results[1].reason, "a mistake of ours");
});

test("saysThatMemoryIsShort", () => {
    memory.told = "needs 1 GB for a picture that was only looked at";
    const results = run([item("bad.jpg"), item("large.jpg"), item("c.jpg"), item("bad2.jpg")],
                        new FakeFiles({})).result;
    equal(results.map((result) => result.reason),
          ["not a readable picture", "needs about 3.6 GB of memory, 1.2 GB is free", "", "not a readable picture"]);
});

test("reportsExactlyOneEndPerPicture", () => {
    const events = run([item("a.jpg"), item("bad.jpg"), item("c.jpg", { status: "Skipped", reason: "x" })],
                       new FakeFiles({})).values;
    equal(events.map((event) => event.kind + event.index), ["start0", "end0", "start1", "end1", "start2", "end2"]);
    equal(events[5].result.status, "Skipped");
});

test("numbersWhenANameWasTakenMeanwhile", () => {
    const files = new FakeFiles({});
    files.appearing = ["/out/a.jpg"];
    const results = run([item("a.jpg")], files).result;
    equal([results[0].name, files.entries["/out/a.jpg"]], ["a (2).jpg", 1]);
});

test("skipsWhenANameWasTakenMeanwhileAndThatIsTheRule", () => {
    const files = new FakeFiles({});
    files.appearing = ["/out/a.jpg"];
    equal(run([item("a.jpg")], files, { output: { ifTaken: "skip" } }).result[0].status, "Skipped");
});

test("replacesOnlyWhatThePlanSays", () => {
    const files = new FakeFiles({ "/out": "folder", "/out/a.jpg": 9, "/out/b.jpg": 9 });
    run([item("a.jpg", { replaces: true, replaced: "id /out/a.jpg" }), item("b.jpg")], files);
    equal([files.entries["/out/a.jpg"], files.entries["/out/b.jpg"], files.entries["/out/b (2).jpg"]], [5, 9, 5]);
});

test("numbersWhereAnotherFileIsThereThanTheOneToBeReplaced", () => {
    const files = new FakeFiles({ "/out": "folder", "/out/a.jpg": 9 });
    const result = run([item("a.jpg", { replaces: true, replaced: "id of a file that was there" })], files).result[0];
    equal([result.name, files.entries["/out/a.jpg"]], ["a (2).jpg", 9]);
});

test("holdsOnlyAFewFoldersAtATime", () => {
    const files = new FakeFiles({});
    let most = 0;
    const many = Array(200).fill(0)
        .map((zero, i) => item("a.jpg", { folder: "/out" + i, path: "/out" + i + "/a.jpg" }));
    const work = runItems(many, step, SETTINGS, { files: files, pictures: memory });
    for (let next = work.next(); !next.done; next = work.next()) {
        most = Math.max(most, files.stagings.length);
    }
    equal([most, files.stagings, files.entries["/out0/a.jpg"], files.entries["/out199/a.jpg"]], [64, [], 5, 5]);
});

test("removesWhatIsUnfinishedWhenStopped", () => {
    const files = new FakeFiles({});
    const work = runItems([item("a.jpg"), item("b.jpg")], step, SETTINGS, { files: files, pictures: memory });
    work.next();
    work.next();
    equal(files.stagings.length, 1);
    isTrue(work.return().done);
    equal([files.stagings, files.entries["/out/a.jpg"], files.entries["/out/b.jpg"]], [[], 5, undefined]);
});

test("takesAwayAFolderInWhichNothingCameToBe", () => {
    const files = new FakeFiles({});
    run([item("bad.jpg")], files);
    equal([files.removed, files.entries["/out"]], [["/out"], undefined]);
});

test("leavesAFolderThatWasThere", () => {
    const files = new FakeFiles({ "/out": "folder" });
    run([item("bad.jpg")], files);
    equal(files.entries["/out"], "folder");
});

test("failsInWordsWhereTheFolderCannotBeMade", () => {
    const result = run([item("a.jpg", { folder: "/sealed", path: "/sealed/a.jpg" })], new FakeFiles({})).result[0];
    equal([result.status, result.reason], ["Failed", "the folder is sealed"]);
});

finish();
