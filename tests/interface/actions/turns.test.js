import { isNothing, shortestTurn, wanted } from "../../../interface/actions/turn/turns.js";
import { equal, finish, test } from "../check.js";

const wish = (angle, across, down) => wanted({ angle: angle, flipHorizontal: across, flipVertical: down });

test("twoFlipsAreHalfATurn", () => {
    equal(wish(0, true, true), { mirror: false, angle: 180 });
    equal([isNothing(wish(180, true, true)), isNothing(wish(-180, true, true)), isNothing(wish(0, true, true))],
          [true, true, false]);
});

test("aFlipIsNeverNothing", () => {
    equal([0, 90, 180, -90].map((angle) => isNothing(wish(angle, true, false)) || isNothing(wish(angle, false, true))),
          [false, false, false, false]);
    equal([isNothing(wish(0, false, false)), isNothing(wish(0.1, false, false))], [true, false]);
});

const ANGLES = [[0, 0], [90, 90], [-90, -90], [270, -90], [180, 180], [-180, 180], [360, 0], [450, 90], [-7.5, -7.5],
                [352.5, -7.5], [180.1, -179.9]];

for (const row of ANGLES) {
    test("the shortest way to " + row[0] + " degrees", () => { equal(shortestTurn(row[0]), row[1]); });
}

finish();
