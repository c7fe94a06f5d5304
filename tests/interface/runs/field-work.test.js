import { FieldAsker } from "../../../interface/runs/fields/field-work.js";
import { equal, finish, isTrue, test } from "../check.js";

// What happened to prepared edits, in order.
let placing = [];

// Stand-ins for the work of workers: each is told to answer, in any order.
class Work {
    constructor() {
        this.asked = [];
        this.said = {};
    }

    write(path) {
        this.asked.push(path);
    }

    answer() {
        this.said = { problem: "", path: this.asked[this.asked.length - 1] };
    }

    // An edit that is made and waits for its place.
    prepare(placed) {
        this.said = { problem: "", isReady: true, changed: false, undo: "u" };
        this.placed = placed;
    }

    place() {
        placing.push("place");
        return this.placed;
    }

    take() {
        const said = this.said;
        this.said = {};
        return said;
    }

    close() {
        this.asked = [];
    }
}

function askerOf(most) {
    const asker = new FieldAsker(() => undefined);
    const made = [];
    asker.most = most;
    asker.work = () => {
        if (asker.idle.length > 0) {
            return asker.idle.pop();
        }
        made.push(new Work());
        return made[made.length - 1];
    };
    return { asker: asker, made: made };
}

function* tasks(names, files) {
    for (let i = 0; i < names.length; i += 1) {
        const name = names[i];
        yield { name: name, file: files[i], ask: (work) => work.write(name) };
    }
}

const always = () => true;

function at(made, path) {
    return made.find((work) => work.asked[work.asked.length - 1] === path);
}

test("asks as many at a time as it may, and takes answers as they come", () => {
    const { asker, made } = askerOf(3);
    const steps = asker.each(tasks(["a", "b", "c", "d"], ["a", "b", "c", "d"]), always);
    equal(steps.next().value, null);
    equal(made.map((work) => work.asked.join("")).join(" "), "a b c");
    at(made, "c").answer();
    equal(steps.next().value.task.name, "c");
    equal(steps.next().value, null);
    equal(made.length, 3); // the free one is asked again
    at(made, "d").answer();
    at(made, "a").answer();
    equal(steps.next().value.task.name, "a");
    equal(steps.next().value.task.name, "d");
    at(made, "b").answer();
    equal(steps.next().value.task.name, "b");
    isTrue(steps.next().done);
});

test("gives answers in the order of asking where that is wanted", () => {
    const { asker, made } = askerOf(3);
    const steps = asker.inOrder(tasks(["a", "b", "c"], ["", "", ""]));
    equal(steps.next().value, null);
    at(made, "b").answer();
    at(made, "c").answer();
    equal(steps.next().value, null);
    at(made, "a").answer();
    equal([steps.next(), steps.next(), steps.next()].map((step) => step.value.task.name).join(""), "abc");
    isTrue(steps.next().done);
});

test("never has two write one file", () => {
    const { asker, made } = askerOf(4);
    const steps = asker.each(tasks(["a.bmp", "a.gif", "b.gif"], ["a.xmp", "a.xmp", "b.xmp"]), always);
    equal(steps.next().value, null);
    equal(made.length, 1);
    at(made, "a.bmp").answer();
    equal(steps.next().value.task.name, "a.bmp");
    equal(steps.next().value, null);
    isTrue(at(made, "a.gif") !== undefined && at(made, "b.gif") !== undefined);
});

test("begins nothing more when it is stopped, and waits for what is begun", () => {
    const { asker, made } = askerOf(2);
    let goesOn = true;
    const steps = asker.each(tasks(["a", "b", "c", "d"], ["a", "b", "c", "d"]), () => goesOn);
    equal(steps.next().value, null);
    goesOn = false;
    at(made, "b").answer();
    equal(steps.next().value.task.name, "b");
    equal(steps.next().value, null);
    at(made, "a").answer();
    equal(steps.next().value.task.name, "a");
    isTrue(steps.next().done);
    equal(made.map((work) => work.asked.length).join(" "), "1 1");
});

test("passes on what is known without asking", () => {
    const { asker, made } = askerOf(2);
    const known = function* () {
        yield { name: "a", file: "", said: { problem: "it cannot be read" } };
    };
    equal(asker.each(known(), always).next().value.said.problem, "it cannot be read");
    equal(made.length, 0);
});

// The answer for one picture whose edit is prepared; problem: of storing its old values.
function afterPreparing(problem, placed) {
    const { asker, made } = askerOf(1);
    const task = { file: "a", ask: (work) => work.write("a"),
                   keep: (said) => { placing.push("keep " + said.undo); return problem; },
                   unwritten: () => { placing.push("unwritten"); } };
    placing = [];
    const answers = asker.each([task][Symbol.iterator](), always);
    answers.next();
    made[0].prepare(placed);
    return answers.next().value.said;
}

test("stores old values before an edit takes its place", () => {
    const said = afterPreparing("", { problem: "", changed: true, file: "a" });
    equal(placing, ["keep u", "place"]);
    equal([said.problem, said.changed, said.file], ["", true, "a"]);
});

test("writes nothing whose old values cannot be stored", () => {
    const said = afterPreparing("the disk is full", { problem: "", changed: true, file: "a" });
    equal(placing, ["keep u"]);
    equal(said.problem, "its old values cannot be kept: the disk is full");
    isTrue(said.changed === false);
});

test("says where an edit did not take its place", () => {
    const said = afterPreparing("", { problem: "the file is write-protected", changed: false, file: "a" });
    equal(placing, ["keep u", "place", "unwritten"]);
    equal([said.problem, said.changed], ["the file is write-protected", false]);
});

finish();
