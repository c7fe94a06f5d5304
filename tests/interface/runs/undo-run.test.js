import { revertWords, undoAction, undoing, undoWords, unableSteps } from "../../../interface/runs/undo-run.js";
import { drain, equal, finish, isTrue, test } from "../check.js";

// Runs as the move engine reports them, and an undo of three files of which the second fails.
function engine(changes) {
    const results = [{ index: 0, status: "OK", message: "", path: "/p/a.jpg" },
                     { index: 1, status: "Failed", message: "locked", path: "" },
                     { index: 2, status: "OK", message: "", path: "" }];
    const moves = {
        ended: [],
        runs: () => [{ id: "r2", undoes: "r1" }, { id: "r1", undoes: "" }],
        undoable: (id) =>
            (id === "r1"
             ? { can: false, count: 0, reason: "It was undone already" } : { can: true, count: 2, reason: "" }),
        next: () => results.shift() || null,
        end: (run) => { moves.ended.push(run); return "end"; },
    };
    return Object.assign(moves, changes || {});
}

const BEGUN = {
    run: "r3",
    items: [{ from: "/p/x 1.jpg", to: "/p/a.jpg" }, { from: "/p/x 2.jpg", to: "/p/b.jpg" },
            { from: "/p/x 3.jpg", to: "/p/c.jpg" }],
    problems: [{ path: "/p/x 4.jpg", reason: "it is not there any more" }],
};

const UNDONE = { id: "r1", process: "Rename", action: undoAction(false) };

// Comments that a run changed, how many of them were reverted since, and the message about it.
const REVERTS = [
    [3, 0, true, "3 comments can be reverted."], [1, 0, true, "1 comment can be reverted."],
    [3, 1, true, "2 comments can be reverted. 1 has already been reverted."],
    [2, 2, false, "All its comments have already been reverted."],
    [0, 0, false, "No comment was changed."],
];
for (const row of REVERTS) {
    test("says of " + row[0] + " comments with " + row[1] + " reverted: " + row[3], () => {
        const words = revertWords({ edits: row[0], undone: row[1] });
        equal([words.can, words.note], [row[2], row[3]]);
    });
}

test("saysWhatCanBeUndone", () => {
    const words = undoWords(engine(), "r2");
    equal([words.can, words.button, words.isRedo, words.note], [true, "Redo", true, "2 files can be restored."]);
});

test("saysWhyNot", () => {
    equal(undoWords(engine(), "r1"),
          { can: false, button: "Undo This Run", isRedo: false, note: "It was undone already." });
    for (const run of ["", "2026-11-21T10:00:00.000Z"]) {
        const words = undoWords(engine(), run);
        equal(words.can, false);
        isTrue(/wrote new files/.test(words.note));
    }
    const gone = undoWords(engine({ undoable: () =>
        ({ can: false, count: 0, reason: "Nothing is known of it any more" }) }), "r9");
    equal(gone, { can: false, button: "Undo This Run", isRedo: false, note: "Nothing is known of it any more." });
});

test("carriesAnUndoOutAndLogsEachFile", () => {
    const moves = engine();
    const done = drain(undoing(moves, BEGUN, UNDONE));
    const steps = unableSteps(BEGUN, UNDONE).concat(done.values);
    equal(steps.map((step) => [step.from, step.to]),
          [["/p/x 4.jpg", ""], ["/p/x 1.jpg", "/p/a.jpg"], ["/p/x 2.jpg", ""], ["/p/x 3.jpg", "/p/c.jpg"]]);
    equal(steps.map((step) => [step.row.status, step.row.reason, step.row.input, step.row.output]),
          [["Failed", "it is not there any more", "x 4.jpg", ""], ["OK", "", "x 1.jpg", "a.jpg"],
           ["Failed", "locked", "x 2.jpg", ""],
           ["OK", "", "x 3.jpg", "c.jpg"]]);
    isTrue(steps.every((step) => step.row.run === "r3" && step.row.process === "Rename" && step.row.action === "Undo"
                       && step.row.undoes === "r1"));
    equal([done.result, moves.ended], ["end", ["r3"]]);
});

test("anUndoThatIsStoppedIsEnded", () => {
    const moves = engine();
    const work = undoing(moves, BEGUN, UNDONE);
    work.next();
    work.return();
    equal(moves.ended, ["r3"]);
});

finish();
