import { interruptedPictures } from "../../../interface/runs/interrupted.js";
import { equal, finish, test } from "../check.js";
import { FakeFiles } from "../fakes.js";

// Records by their paths, and their outcome.
class FakeRecords {
    constructor(texts) {
        this.texts = texts;
        this.ended = [];
        this.added = [];
    }

    interrupted() {
        return Object.keys(this.texts);
    }

    add(path, lines, isKept) {
        this.added.push([path, JSON.parse(lines), isKept]);
        return true;
    }

    end(path) {
        this.ended.push(path);
    }
}

function textOf(head, items, others) {
    return [{ run: Object.assign({ action: "resize", title: "Resize", settings: {}, startedMs: 5 }, head) }]
        .concat(items.map((name, i) => ({ item: i, of: "/p/" + name, folder: "/out", path: "/out/" + name })),
                [{ begun: items.length }], others || [])
        .map((line) => JSON.stringify(line) + "\n").join("");
}

function found(texts, files, opened) {
    const records = new FakeRecords(texts);
    const moves = { reopen: () => opened || { problem: "no" }, takeBack: () => null, end: () => "" };
    files.readText = (path) => texts[path];
    files.sweep = () => undefined;
    return { records: records, works: interruptedPictures(records, files, moves) };
}

test("asksOnceAboutARunThatWasGoneOnWith", () => {
    const { records, works } = found({ "/r/1": textOf({}, ["a.jpg"]), "/r/2": textOf({ continues: "/r/1" }, ["a.jpg"]),
                                       "/r/3": "{\"run\": {" }, new FakeFiles({ "/out": "folder" }));
    equal(works.map((work) => work.path), ["/r/2"]);
    equal(records.ended, ["/r/1", "/r/3"]);
    // It counts once it has all that the other one says.
    const cut = textOf({ continues: "/r/1" }, ["a.jpg"]).split("\n").slice(0, 2).join("\n");
    const early = found({ "/r/1": textOf({}, ["a.jpg"]), "/r/2": cut }, new FakeFiles({ "/out": "folder" }));
    equal([early.works.map((work) => work.path), early.records.ended], [["/r/1"], ["/r/2"]]);
});

test("knowsResultsThatTookThePlaceOfFiles", () => {
    const files = new FakeFiles({ "/out": "folder", "/out/a.jpg": 5, "/out/b.jpg": 6 });
    const about = (index, name) => ({ about: index, path: "/out/" + name, identity: "of the unfinished file" });
    const text = textOf({}, ["a.jpg", "b.jpg"], [{ replacing: "run 1" }, about(0, "a.jpg"), about(1, "b.jpg")]);
    const done = [{ kind: "trash", from: "/out/a.jpg", to: "", path: "/t/a" },
                  { kind: "copy", from: "/u/0", to: "/out/a.jpg", path: "/out/a.jpg" }];
    const { records, works } = found({ "/r/1": text }, files, { run: "run 1", done: done });
    equal([works[0].done, works[0].count], [1, 2]);
    const noted = Object.assign(about(0, "a.jpg"), { identity: files.identity("/out/a.jpg") });
    equal(records.added, [["/r/1", noted, true]]);
});

finish();
