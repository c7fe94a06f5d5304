import { recoveredText, recoveredWords } from "../../../interface/runs/recovered.js";
import { equal, finish, test } from "../check.js";

function run(counts) {
    return Object.assign({ id: "1", title: "Rename", done: 0, finished: 0, takenBack: 0, left: 0, problems: [] },
                         counts);
}

const ROWS = [
    [{}, "Rename was interrupted and has been cleaned up."],
    [{ done: 1 }, "Rename was interrupted and has been cleaned up: 1 file has its new name."],
    [{ done: 10, finished: 2 }, "Rename was interrupted and has been cleaned up: 12 files have their new names."],
    [{ takenBack: 1 }, "Rename was interrupted and has been cleaned up: 1 file restored."],
    [{ finished: 1, takenBack: 2, left: 30 },
     "Rename was interrupted and has been cleaned up: 1 file has its new name, 2 files restored, 30 files not started."],
];

for (const row of ROWS) {
    test("says " + JSON.stringify(row[0]), () => equal(recoveredText(run(row[0])), row[1]));
}

test("saysNothingWhereNothingWasInterrupted", () => equal(recoveredWords([]), null));

test("listsWhatCouldNotBePutRight", () => {
    equal(recoveredWords([run({ problems: ["a is gone"] }), run({ done: 1, problems: ["b too"] })]),
          { text: "Rename was interrupted and has been cleaned up. Rename was interrupted and has been cleaned up: 1 file has its new name.",
            detail: "a is gone\nb too" });
});

finish();
