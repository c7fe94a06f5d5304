import { Marks } from "../../../interface/lib/marks.js";
import { equal, finish, test } from "../check.js";

test("knowsWhatIsMarked", () => {
    const marks = new Marks();
    equal([0, 1, 255, 256, 100000].map((number) => marks.has(number)), [false, false, false, false, false]);
    [1, 256, 100000, 1].forEach((number) => marks.add(number));
    equal([0, 1, 2, 255, 256, 257, 99999, 100000, 100001].filter((number) => marks.has(number)), [1, 256, 100000]);
});

test("keepsEachMarkWhileItGrows", () => {
    const marks = new Marks();
    for (let i = 0; i < 5000; i += 3) {
        marks.add(i);
    }
    let wrong = 0;
    for (let i = 0; i < 6000; i += 1) {
        wrong += marks.has(i) === (i < 5000 && i % 3 === 0) ? 0 : 1;
    }
    equal(wrong, 0);
});

finish();
