import { Replacing } from "../../../interface/runs/making/replacing.js";
import { equal, finish, isTrue, test } from "../check.js";
import { FakeFiles } from "../fakes.js";

const ITEM = { folder: "/out", name: "a.jpg", replaced: "id /out/a.jpg" };

class World {
    constructor(answers) {
        this.files = new FakeFiles({ "/out": "folder", "/out/a.jpg": 9 });
        this.files.realFolder = (folder) => folder;
        this.files.copyPermissions = (from, to) => { this.told.push("permissions " + from + " " + to); };
        this.told = [];
        const moves = {
            open: (title) => { this.told.push("open " + title); return answers.open || { run: "run 1" }; },
            add: (run, wish) => {
                this.told.push(wish.kind);
                this.last = wish;
                return answers[wish.kind] || { status: "OK", message: "", path: "" };
            },
            takeBack: (run) => { this.told.push("takeBack " + run); },
            end: (run) => { this.told.push("end " + run); return ""; },
        };
        this.replacing = new Replacing({ files: this.files, moves: moves }, "Resize");
    }

    put() {
        return this.replacing.put("/out/.unfinished/0", ITEM);
    }
}

const NO = { status: "Failed", message: "no", path: "" };

test("trashesTheOldFileBeforeTheResultTakesItsPlace", () => {
    const world = new World({});
    equal(world.put(), { status: "OK", message: "" });
    equal(world.told, ["open Resize", "permissions /out/a.jpg /out/.unfinished/0", "trash", "copy"]);
    equal([world.last.from, world.last.to, world.replacing.count], ["/out/.unfinished/0", "/out/a.jpg", 1]);
    world.put();
    world.replacing.end();
    equal(world.told.filter((each) => /^(open|end)/.test(each)), ["open Resize", "end run 1"]);
});

test("movesTheOldFileAsideWhereThereIsNoTrash", () => {
    const world = new World({ trash: NO, copy: NO });
    equal(world.put(), { status: "Failed", message: "no" });
    equal(world.told.slice(2), ["trash", "move", "copy", "takeBack run 1"]);
    const other = new World({ trash: NO });
    equal(other.put().status, "OK");
    equal(other.replacing.count, 1);
});

test("putsTheOldFileBackWhereTheResultCannotTakeItsPlace", () => {
    const world = new World({ copy: NO });
    equal([world.put().status, world.replacing.count], ["Failed", 0]);
    equal(world.told[world.told.length - 1], "takeBack run 1");
});

test("touchesNothingWhereAnotherFileIsThere", () => {
    const world = new World({});
    equal(world.replacing.put("/x", Object.assign({}, ITEM, { replaced: "id of another" })).status, "Taken");
    equal(world.told, []);
    isTrue(world.replacing.end() === "");
});

test("touchesNothingWhereNoRunCanBegin", () => {
    const world = new World({ open: { problem: "no journal" } });
    equal(world.put(), { status: "Failed", message: "no journal" });
    equal(world.told, ["open Resize"]);
});

finish();
