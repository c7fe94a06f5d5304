import { Flow } from "../../../interface/runs/making/flow.js";
import { runByWorkers } from "../../../interface/runs/making/worker-job.js";
import { equal, finish, isTrue, test } from "../check.js";
import { FakeFiles, photo } from "../fakes.js";

const SETTINGS = { output: { ifTaken: "number" } };

function item(name, changes) {
    return Object.assign({ photo: photo("/p/" + name, 40, 30), status: "ready", reason: "", folder: "/out", name: name,
                           path: "/out/" + name, width: 20, height: 15, replaces: false, replaced: "" }, changes || {});
}

const step = {
    recipeFor(picture) {
        if (picture.name.startsWith("throws")) {
            throw new Error("a mistake of ours");
        }
        return { of: picture.name };
    },
};

// Makes results on request: begin() queues, make(number) finishes one.
class FakeWork {
    constructor(files, room) {
        this.files = files;
        this.most = room;
        this.waiting = [];
        this.begun = [];
        this.results = [];
        this.tasks = {};
        this.places = {};
        this.isClosed = false;
        this.arrived = { connect: (handler) => { this.tell = handler; } };
    }

    get room() {
        return this.most - this.inWork;
    }

    get inWork() {
        return this.waiting.length + this.begun.length;
    }

    give(number, task) {
        this.tasks[number] = task;
        this.waiting.push(number);
    }

    begin() {
        this.begun.push(this.waiting.shift());
    }

    make(number, changes) {
        this.begun = this.begun.filter((each) => each !== number);
        this.waiting = this.waiting.filter((each) => each !== number);
        const made = Object.assign({ number: number, outcome: "OK", cause: "", reason: "", width: 20, height: 15,
                                     bytes: 5, lossless: false, losses: [], ms: 7 }, changes || {});
        if (made.outcome === "OK") {
            this.files.entries[this.tasks[number].target] = 5;
        }
        this.results.push(made);
        this.tell();
    }

    take() {
        return this.results.length > 0 ? this.results.shift() : {};
    }

    placed(number, path) {
        this.places[number] = path;
    }

    takeBack() {
        return this.waiting.splice(0);
    }

    close() {
        this.isClosed = true;
    }
}

class World {
    constructor(items, room) {
        this.files = new FakeFiles({});
        this.work = new FakeWork(this.files, room || 2);
        this.woken = 0;
        this.flow = new Flow(() => { this.woken += 1; });
        this.told = [];
        this.results = {};
        const services = { files: this.files, recipes: { work: () => this.work } };
        const job = runByWorkers(items, step, SETTINGS, services, this.flow);
        this.job = job;
        this.isOver = false;
    }

    // Until it waits or is over; what it said since.
    go() {
        const from = this.told.length;
        for (let next = this.job.next(); ; next = this.job.next()) {
            this.isOver = next.done;
            if (next.done || next.value === null) {
                return this.told.slice(from);
            }
            this.told.push(next.value.kind + next.value.index);
            if (next.value.kind === "full") {
                this.answer();
            }
            if (next.value.kind === "end") {
                this.results[next.value.index] = next.value.result;
            }
        }
    }
}

test("handsOverAsManyAsThereIsRoomForAndTakesThemAsTheyCome", () => {
    const world = new World([item("a.jpg"), item("b.jpg"), item("c.jpg")]);
    equal(world.go(), ["start0", "start1"]);
    equal(world.work.tasks[1], { path: "/p/b.jpg", target: "/out/.unfinished/1", recipe: { of: "b.jpg" }, width: 40,
                                 height: 30, noted: true });
    world.work.make(1);
    isTrue(world.woken > 0);
    equal(world.go(), ["end1", "start2"]);
    equal(world.files.entries["/out/b.jpg"], 5);
    world.work.make(2);
    world.work.make(0);
    equal([world.go(), world.isOver], [["end2", "end0"], true]);
    equal([world.results[0].path, world.results[0].bytes, world.results[0].ms], ["/out/a.jpg", 5, 7]);
    equal([world.files.stagings, world.work.isClosed], [[], true]);
});

test("oneFailureIsOnePicture", () => {
    const world = new World([item("a.jpg"), item("throws.jpg"), item("c.jpg", { status: "Skipped", reason: "x" }),
                             item("d.jpg"), item("e.jpg"), item("f.jpg", { folder: "/sealed" })], 9);
    equal(world.go(), ["start0", "start1", "end1", "start2", "end2", "start3", "start4", "start5", "end5"]);
    world.work.make(0, { outcome: "Failed", reason: "its reader crashed" });
    world.work.make(3, { outcome: "Failed", cause: "vanished", reason: "/p/d.jpg: no such file" });
    world.work.make(4, { width: 21 });
    world.go();
    equal([0, 1, 2, 3, 4, 5].map((i) => world.results[i].reason),
          ["its reader crashed", "a mistake of ours", "x", "the picture no longer exists",
           "the result is 21×15 instead of 20×15", "the folder is sealed"]);
    equal([world.isOver, world.files.entries], [true, {}]);
});

test("pausesAfterThePicturesInProgress", () => {
    const world = new World([item("a.jpg"), item("b.jpg"), item("c.jpg")], 3);
    world.go();
    world.work.begin();
    world.flow.pause();
    equal(world.go(), ["back1", "back2"]);
    world.work.make(0);
    equal([world.go(), world.isOver], [["end0"], false]);
    world.flow.resume();
    equal(world.go(), ["start1", "start2"]);
    world.work.make(1);
    world.work.make(2);
    equal([world.go(), world.isOver], [["end1", "end2"], true]);
});

test("stopsAfterThePicturesInProgress", () => {
    const world = new World([item("a.jpg"), item("b.jpg"), item("c.jpg")]);
    world.go();
    world.work.begin();
    world.flow.stop();
    equal([world.go(), world.isOver], [["back1"], false]);
    world.work.make(0);
    equal([world.go(), world.isOver], [["end0"], true]);
    equal(world.files.entries["/out/a.jpg"], 5);
});

test("asksOnceWhereADiskIsFull", () => {
    const world = new World([item("a.jpg"), item("b.jpg"), item("c.jpg")]);
    world.go();
    world.work.begin();
    world.work.begin();
    const full = { outcome: "Failed", cause: "full", reason: "a.jpg cannot be written: no space" };
    world.work.make(0, full);
    equal(world.go(), ["back0"]);
    world.answer = () => undefined;
    world.work.make(1, full);
    equal(world.go(), ["back1", "full1", "start1", "start0"]);
    world.work.make(0);
    world.work.make(1);
    world.go();
    world.work.make(2);
    world.go();
    equal([world.isOver, Object.keys(world.files.entries).length], [true, 4]);
});

test("goesOnInAnotherFolderWhereADiskIsFull", () => {
    const world = new World([item("a.jpg"), item("b.jpg", { replaces: true, replaced: "id /out/b.jpg" })]);
    world.answer = () => world.flow.answerRoom("/other");
    world.files.entries["/other/a.jpg"] = 1;
    world.go();
    world.work.make(1);
    world.work.make(0, { outcome: "Failed", cause: "full", reason: "x" });
    equal(world.go(), ["end1", "back0", "full0", "start0"]);
    world.work.make(0);
    world.go();
    equal([world.isOver, world.results[0].path, world.results[1].path], [true, "/other/a (2).jpg", "/out/b.jpg"]);
});

test("stopsWhereADiskIsFullAndSaysWhy", () => {
    const world = new World([item("a.jpg"), item("b.jpg"), item("c.jpg")]);
    world.answer = () => world.flow.stop();
    world.go();
    world.work.make(0, { outcome: "Failed", cause: "full", reason: "no space" });
    equal(world.go(), ["back0", "back1", "full0", "end0"]);
    equal([world.isOver, world.results[0].reason, world.results[1]], [true, "no space", undefined]);
});

test("givesUpWhatIsInProgress", () => {
    const world = new World([item("a.jpg")]);
    world.go();
    world.job.return();
    equal([world.work.isClosed, world.files.stagings, world.files.entries["/out/a.jpg"]], [true, [], undefined]);
});

test("keepsFoldersOpenThatSomethingIsUnfinishedIn", () => {
    const items = Array(200).fill(0)
        .map((zero, i) => item("a.jpg", { folder: "/out" + i, path: "/out" + i + "/a.jpg" }));
    const world = new World(items, 2);
    world.go();
    for (let i = 1; i < 200; i += 1) {
        world.work.make(i);
        world.go();
        isTrue(world.files.stagings.length <= 65);
        isTrue(world.files.stagings.indexOf("/out0/.unfinished/") >= 0);
    }
    world.work.make(0);
    world.go();
    equal([world.isOver, world.files.entries["/out0/a.jpg"], world.files.entries["/out199/a.jpg"]], [true, 5, 5]);
});

test("takesInWhatJoinsBeforeItIsOver", () => {
    const items = [item("a.jpg")];
    const world = new World(items);
    world.go();
    world.flow.isGrowing = true;
    world.work.make(0);
    equal([world.go(), world.isOver], [["end0"], false]);
    items.push(item("b.jpg"));
    world.flow.isGrowing = false;
    equal(world.go(), ["start1"]);
    world.work.make(1);
    equal([world.go(), world.isOver], [["end1"], true]);
});

test("doesNotWaitForWhatJoinsWhereItIsStopped", () => {
    const world = new World([item("a.jpg")]);
    world.go();
    world.flow.isGrowing = true;
    world.flow.stop();
    world.work.make(0);
    equal([world.go(), world.isOver], [["end0"], true]);
});

finish();
