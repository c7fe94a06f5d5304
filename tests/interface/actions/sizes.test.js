import { newSize, scalePercent } from "../../../interface/actions/resize/sizes.js";
import { defaults } from "../../../interface/actions/resize/resize-step.js";
import { equal, finish, isTrue, test } from "../check.js";

function sized(w, h, changes) {
    return newSize({ width: w, height: h }, Object.assign({}, defaults, { neverEnlarge: false }, changes));
}

const ROWS = [
    ["width", 4000, 3000, { mode: "width", width: 1000 }, 1000, 750, 1000, 0],
    ["height", 4000, 3000, { mode: "height", height: 1000 }, 1333, 1000, 1000, 1],
    ["longest of a wide picture", 4000, 3000, { mode: "longest", longest: 1000 }, 1000, 750, 1000, 2],
    ["longest of a high picture", 3000, 4000, { mode: "longest", longest: 1000 }, 750, 1000, 1000, 2],
    ["longest of a square", 3000, 3000, { mode: "longest", longest: 800 }, 800, 800, 800, 2],
    ["per cent", 4000, 3000, { mode: "percent", percent: 25 }, 1000, 750, 25, 3],
    ["fractions are cut off", 3, 3, { mode: "percent", percent: 50 }, 1, 1, 50, 3],
    ["a side may vanish", 10000, 5, { mode: "width", width: 100 }, 100, 0, 100, 0],
    ["larger than the picture", 100, 50, { mode: "width", width: 300 }, 300, 150, 300, 0],
    ["never larger: width", 100, 50, { mode: "width", width: 300, neverEnlarge: true }, 100, 50, 100, 0],
    ["never larger: height", 100, 50, { mode: "height", height: 300, neverEnlarge: true }, 100, 50, 50, 1],
    ["never larger: longest", 50, 100, { mode: "longest", longest: 300, neverEnlarge: true }, 50, 100, 100, 2],
    ["never larger: per cent", 50, 100, { mode: "percent", percent: 300, neverEnlarge: true }, 50, 100, 100, 3],
];

for (const row of ROWS) {
    test(row[0], () => {
        const size = sized(row[1], row[2], row[3]);
        equal([size.width, size.height, size.n, size.mode, size.box], [row[4], row[5], row[6], row[7], false]);
    });
}

test("fillsABoxAndCutsTheMiddle", () => {
    const size = sized(4000, 3000, { mode: "box", boxWidth: 1000, boxHeight: 1000, boxFit: "fill" });
    equal([size.width, size.height, size.mode, size.box], [1000, 1000, 1, true]);
    equal(size.part, { left: 166 / 1333, top: 0, width: 1000 / 1333, height: 1 });
});

test("stretchesToABox", () => {
    const size = sized(4000, 3000, { mode: "box", boxWidth: 1000, boxHeight: 1000, boxFit: "stretch" });
    equal([size.width, size.height, size.mode], [1000, 1000, 0]);
    equal(size.part, { left: 0, top: 0, width: 1, height: 1 });
});

test("shrinksABoxThatThePictureCannotFill", () => {
    const size = sized(400, 300, { mode: "box", boxWidth: 1000, boxHeight: 500, boxFit: "fill", neverEnlarge: true });
    equal([size.width, size.height], [400, 200]);
});

test("keepsEverySizeOfItsOwnWhenNeverEnlarging", () => {
    for (let w = 1; w < 400; w += 7) {
        for (let h = 1; h < 400; h += 11) {
            const size = sized(w, h, { mode: "longest", longest: 100000, neverEnlarge: true });
            isTrue(size.width === w && size.height === h, w + "x" + h);
        }
    }
});

test("tellsTheScaleInPerCent", () => {
    const size = sized(4032, 3024, { mode: "longest", longest: 1600 });
    equal(Math.round(scalePercent({ width: 4032, height: 3024 }, size) * 10) / 10, 39.7);
});

finish();
