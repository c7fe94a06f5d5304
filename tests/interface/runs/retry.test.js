import { row } from "../../../interface/runs/move-plan.js";
import { retryRows } from "../../../interface/runs/retry.js";
import { equal, finish, test } from "../check.js";

const XMP = { from: "/p/a.xmp", to: "/q/a.xmp" };
const AAE = { from: "/p/a.aae", to: "/q/a.aae" };
const WISHED = [row({ to: "/q/b.jpg" }), row({ to: "/q/a.jpg", kind: "copy", number: true, along: [XMP, AAE] })];

function item(from, to, at, along) {
    return { kind: WISHED[at].kind, from: from, to: to, row: at, along: along, leader: -1 };
}

test("wishesForTheSameOnceMore", () => {
    const again = retryRows([item("/p/b.jpg", "/q/b.jpg", 0, false)], WISHED);
    equal(again.map((each) => [each.from, each.of, each.isAlong, each.wish.to, each.wish.kind, each.wish.number]),
          [["/p/b.jpg", 0, false, "/q/b.jpg", "move", false]]);
});

test("keepsCompanionsThatWait", () => {
    const again = retryRows([item("/p/a.jpg", "/q/a (2).jpg", 1, false), item("/p/a.aae", "/q/a (2).aae", 1, true)],
                            WISHED);
    equal(again.length, 1);
    equal([again[0].wish.to, again[0].wish.number, again[0].wish.along], ["/q/a.jpg", true, [AAE]]);
});

test("wishesForACompanionWhoseLeaderWentUnderItsPlannedName", () => {
    const again = retryRows([item("/p/a.xmp", "/q/a (2).xmp", 1, true)], WISHED);
    equal(again.map((each) =>
        [each.from, each.of, each.isAlong, each.wish.to, each.wish.kind, each.wish.number, each.wish.along]),
          [["/p/a.xmp", 1, true, "/q/a (2).xmp", "copy", false, []]]);
});

test("wishesForNothingWhereNothingFailed", () => equal(retryRows([], WISHED), []));

finish();
