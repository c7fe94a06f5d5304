import { replacedFolder, Replacing, settleReplaced } from "../../../interface/runs/making/replacing.js";
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
                this.moved = wish.kind === "move" ? wish.to : this.moved;
                return answers[wish.kind] || { status: "OK", message: "", path: "" };
            },
            takeBack: (run) => { this.told.push("takeBack " + run); },
            reopen: (run) => { this.told.push("reopen " + run); return answers.reopen || { problem: "no" }; },
            end: (run) => { this.told.push("end " + run); return ""; },
        };
        this.moves = moves;
        this.replacing = new Replacing({ files: this.files, moves: moves }, "Resize", answers.earlier);
        this.replacing.record = { noteReplacing: (run) => { this.told.push("note " + run); } };
    }

    put() {
        return this.replacing.put("/out/.unfinished/0", ITEM);
    }
}

const NO = { status: "Failed", message: "no", path: "" };

test("trashesTheOldFileBeforeTheResultTakesItsPlace", () => {
    const world = new World({});
    equal(world.put(), { status: "OK", message: "" });
    equal(world.told, ["open Resize", "note run 1", "permissions /out/a.jpg /out/.unfinished/0", "trash", "copy",
                       "permissions /out/.unfinished/0 /out/a.jpg"]);
    equal([world.last.from, world.last.to, world.replacing.count], ["/out/.unfinished/0", "/out/a.jpg", 1]);
    world.put();
    world.replacing.end();
    equal(world.told.filter((each) => /^(open|end)/.test(each)), ["open Resize", "end run 1"]);
});

test("movesTheOldFileAsideWhereThereIsNoTrash", () => {
    const world = new World({ trash: NO, copy: NO });
    equal(world.put(), { status: "Failed", message: "no" });
    equal(world.told.slice(3), ["trash", "move", "copy", "takeBack run 1"]);
    const other = new World({ trash: NO });
    equal(other.put().status, "OK");
    equal(other.replacing.count, 1);
    // The folder that the question before the run names.
    equal(other.moved, "/out/" + replacedFolder() + "/a.jpg");
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

test("goesOnWithTheRunThatWasInterrupted", () => {
    const world = new World({ earlier: "run 0", reopen: { run: "run 0", done: [] } });
    equal(world.replacing.undoable(), "run 0"); // also where nothing more is replaced
    equal([world.put().status, world.told.slice(0, 2)], ["OK", ["reopen run 0", "note run 0"]]);
    equal(world.replacing.undoable(), "run 0");
    const other = new World({ earlier: "run 0" }); // which was undone since
    equal([other.put().status, other.told.slice(0, 3)], ["OK", ["reopen run 0", "open Resize", "note run 1"]]);
    equal(other.replacing.undoable(), "run 1");
});

function done(kind, from, path) {
    return { kind: kind, from: from, to: kind === "trash" ? "" : path, path: path };
}

test("putsBackWhatHasNoResultAfterAnInterruption", () => {
    const whole = [done("trash", "/out/a", "/trash/a"), done("copy", "/u/0", "/out/a")];
    const half = whole.concat([done("trash", "/out/b", "/trash/b")]);
    const world = new World({ reopen: { run: "run 0", done: half } });
    equal(settleReplaced("run 0", world.moves), ["/out/a"]);
    equal(world.told, ["reopen run 0", "takeBack run 0", "end run 0"]);
    const aside = new World({ reopen: { run: "run 0", done: whole.concat([done("move", "/out/b", "/out/r/b")]) } });
    settleReplaced("run 0", aside.moves);
    equal(aside.told, ["reopen run 0", "takeBack run 0", "end run 0"]);
    const ended = new World({ reopen: { run: "run 0", done: whole } });
    equal([settleReplaced("run 0", ended.moves), ended.told], [["/out/a"], ["reopen run 0", "end run 0"]]);
});

test("leavesAloneWhatCannotBeOpenedAgain", () => {
    const world = new World({});
    equal([settleReplaced("run 0", world.moves), world.told], [[], ["reopen run 0"]]);
    equal([settleReplaced("", world.moves), world.told.length], [[], 1]);
});

finish();
