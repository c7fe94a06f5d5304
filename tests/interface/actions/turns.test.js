import { forStored, inverse, isNothing, operations, shortestTurn, then, turnedSize, upright,
         wanted } from "../../../interface/actions/turn/turns.js";
import { equal, finish, isTrue, test } from "../check.js";

// A picture of 3 x 2 letters, and the operations done to it letter by letter, so that nothing is taken from what is tested.
const PICTURE = ["abc", "def"];
const flipHorizontal = (rows) => rows.map((row) => row.split("").reverse().join(""));
const flipVertical = (rows) => rows.slice().reverse();
const turnLeft = (rows) => rows[0].split("").map((letter, x) => rows.map((row) => row[row.length - 1 - x]).join(""));

function turned(rows, degrees) {
    let result = rows;
    for (let quarter = ((degrees / 90) % 4 + 4) % 4; quarter > 0; quarter -= 1) {
        result = turnLeft(result);
    }
    return result;
}

// How a picture with that tag is shown: which side of the stored rows is the top, and which is the left.
const SHOWN = {
    1: (rows) => rows,
    2: flipHorizontal,
    3: (rows) => turned(rows, 180),
    4: flipVertical,
    5: (rows) => turnLeft(flipHorizontal(rows)),
    6: (rows) => turned(rows, -90),
    7: (rows) => turned(flipHorizontal(rows), -90),
    8: turnLeft,
};

function carriedOut(rows, steps) {
    return steps.reduce((now, step) => {
        if (step.turn !== undefined) {
            return turned(now, step.turn);
        }
        return step.flip === "horizontal" ? flipHorizontal(now) : flipVertical(now);
    }, rows);
}

function asWanted(rows, settings) {
    const across = settings.flipHorizontal ? flipHorizontal(rows) : rows;
    return turned(settings.flipVertical ? flipVertical(across) : across, settings.angle);
}

const WISHES = [];
for (const angle of [0, 90, 180, -90]) {
    for (const flips of [[false, false], [true, false], [false, true], [true, true]]) {
        WISHES.push({ flipHorizontal: flips[0], flipVertical: flips[1], angle: angle });
    }
}

test("knowsTheTransposedOrientations", () => {
    equal([SHOWN[5](PICTURE), SHOWN[7](PICTURE)], [["ad", "be", "cf"], ["fc", "eb", "da"]]);
});

for (let orientation = 1; orientation <= 8; orientation += 1) {
    for (const wish of WISHES) {
        const name = "orientation " + orientation + " " + JSON.stringify(wish);
        const seen = asWanted(SHOWN[orientation](PICTURE), wish);
        test("shows what was wanted where the tag is kept: " + name, () => {
            const steps = operations(forStored(wanted(wish), orientation, true));
            equal(SHOWN[orientation](carriedOut(PICTURE, steps)), seen);
        });
        test("shows what was wanted where the tag is lost: " + name, () => {
            equal(carriedOut(PICTURE, operations(forStored(wanted(wish), orientation, false))), seen);
        });
        test("needs one flip and one turn at most: " + name, () => {
            for (const keeps of [true, false]) {
                const steps = operations(forStored(wanted(wish), orientation, keeps));
                isTrue(steps.length === 1
                       || (steps.length === 2 && steps[0].flip !== undefined && steps[1].turn !== undefined));
            }
        });
    }
}

test("turnsTheOtherWayInAMirroredPicture", () => {
    equal(operations(forStored(wanted({ flipHorizontal: false, flipVertical: false, angle: 7.3 }), 2, true)),
          [{ turn: -7.3 }]);
    equal(operations(forStored(wanted({ flipHorizontal: false, flipVertical: false, angle: 7.3 }), 6, true)),
          [{ turn: 7.3 }]);
    equal(operations(forStored(wanted({ flipHorizontal: false, flipVertical: false, angle: 7.3 }), 6, false)),
          [{ turn: -82.7 }]);
});

test("twoFlipsAreHalfATurn", () => {
    equal(operations(wanted({ flipHorizontal: true, flipVertical: true, angle: 0 })), [{ turn: 180 }]);
});

test("anElementAndItsInverseAreNothing", () => {
    for (let orientation = 1; orientation <= 8; orientation += 1) {
        isTrue(isNothing(then(upright(orientation), inverse(upright(orientation)))), "orientation " + orientation);
    }
});

const ANGLES = [[0, 0], [90, 90], [-90, -90], [270, -90], [180, 180], [-180, 180], [360, 0], [450, 90], [-7.5, -7.5],
                [352.5, -7.5], [180.1, -179.9]];

for (const row of ANGLES) {
    test("the shortest way to " + row[0] + " degrees", () => { equal(shortestTurn(row[0]), row[1]); });
}

const SIZES = [[4000, 3000, 90, 3000, 4000], [4000, 3000, 0, 4000, 3000], [4000, 3000, 180, 4000, 3000],
               [100, 100, 45, 141, 141], [200, 100, 30, 223, 186]];

for (const row of SIZES) {
    test("the canvas of " + row[0] + "x" + row[1] + " turned by " + row[2], () => {
        const size = turnedSize({ width: row[0], height: row[1] }, { mirror: false, angle: row[2] });
        equal([size.width, size.height], [row[3], row[4]]);
    });
}

finish();
