import { cNSStringHandling } from "quorlin";
import { itemOf, planMoves, readyItems, shownName } from "../../../interface/runs/move-plan.js";
import { stateOf } from "../../../interface/runs/move-words.js";
import { newStep } from "../../../interface/actions/rename/name-steps.js";
import { splitPath } from "../../../interface/lib/names.js";
import * as rename from "../../../interface/actions/rename/rename-step.js";
import { drain, equal, finish, isTrue, test } from "../check.js";
import { FakeFiles } from "../fakes.js";
import { FakeMoves } from "../fake-moves.js";

const DATES = { "/p/dated.jpg": "2026-08-14T10:20:30" };

function services(entries, refused) {
    const files = new FakeFiles(entries || {});
    const facts = { asked: 0, of: (path) => { facts.asked += 1; return { taken: DATES[path] || "", bytes: 1 }; } };
    return { files: files, names: new cNSStringHandling(), facts: facts, moves: new FakeMoves(refused) };
}

function settings(steps, changes) {
    return Object.assign({}, rename.defaults, { steps: steps }, changes || {});
}

function planned(paths, steps, changes, own) {
    const used = own || services();
    const plan = drain(planMoves(paths, rename, settings(steps, changes), used)).result;
    const states = plan.rows
        .map((row, i) => stateOf(row, itemOf(plan, i), row.goesWith >= 0 ? splitPath(paths[row.goesWith]).name : ""));
    return { plan: plan, names: plan.rows.map((row, i) => shownName(row, itemOf(plan, i))), states: states,
             texts: states.map((state) => state.text) };
}

function readyOf(plan) {
    return drain(readyItems(plan)).result;
}

const lower = newStep("case", { part: "both" });

test("showsNewNamesAndWhatIsReady", () => {
    const made = planned(["/p/A.JPG", "/p/b.jpg"], [lower]);
    equal(made.names, ["a.jpg", "b.jpg"]);
    equal(made.states.map((state) => state.state), ["ready", "same"]);
    equal(readyOf(made.plan), [{ kind: "move", from: "/p/A.JPG", to: "/p/a.jpg", row: 0, along: false, leader: -1 }]);
});

test("takesSidecarsAlong", () => {
    const own = services({ "/p/A.JPG": 1, "/p/A.xmp": 1, "/p/A.JPG.xmp": 1, "/p/B.JPG": 1 });
    const made = planned(["/p/A.JPG", "/p/B.JPG"], [lower], {}, own);
    equal(made.texts, ["ready, with its .xmp", "ready"]);
    equal(readyOf(made.plan).map((item) => item.to), ["/p/a.jpg", "/p/a.jpg.xmp", "/p/a.xmp", "/p/b.jpg"]);
    equal(readyOf(made.plan).map((item) => item.along), [false, true, true, false]);
    equal(readyOf(made.plan).map((item) => item.leader), [-1, 0, 0, -1]);
});

test("leavesSidecarsAloneWhereThatIsWished", () => {
    const own = services({ "/p/A.JPG": 1, "/p/A.xmp": 1 });
    equal(readyOf(planned(["/p/A.JPG"], [lower], { sidecars: false }, own).plan).length, 1);
});

test("aSidecarOfTheListGoesWithItsPicture", () => {
    const own = services({ "/p/A.JPG": 1, "/p/A.xmp": 1, "/p/C.xmp": 1 });
    const made = planned(["/p/A.xmp", "/p/A.JPG", "/p/C.xmp"], [newStep("text", { pattern: "x{counter}" })], {}, own);
    equal(made.names, ["x1.xmp", "x1.JPG", "x2.xmp"]);
    equal(made.states.map((state) => state.state), ["along", "ready", "ready"]);
    equal(made.texts[0], "sidecar file of A.JPG");
});

test("aPictureStaysWhereItsSidecarMust", () => {
    const own = services({ "/p/A.JPG": 1, "/p/A.xmp": 1 }, { "/p/a.xmp": "taken" });
    const made = planned(["/p/A.JPG", "/p/B.JPG"], [lower], {}, own);
    equal(made.states.map((state) => state.state), ["attention", "ready"]);
    equal(readyOf(made.plan).map((item) => item.from), ["/p/B.JPG"]);
});

// [code, words]
const REFUSED = [
    ["taken", "name in use by a file that is not in this list"], ["long", "the name is too long"],
    ["gone", "the file no longer exists"],
    ["locked", "the folder is read-only"], ["case", "differs only by case or accents from "],
];

for (const entry of REFUSED) {
    test("says why a name is refused: " + entry[0], () => {
        const made = planned(["/p/A.JPG"], [lower], {}, services({}, { "/p/a.jpg": entry[0] }));
        equal([made.states[0].state, made.states[0].kind], ["attention", "bad"]);
        isTrue(made.texts[0].startsWith(entry[1]), made.texts[0]);
    });
}

test("dropsThePlanThatIsMadeNoMore", () => {
    const own = services();
    const planning = planMoves(["/p/A.JPG"], rename, settings([lower]), own);
    while (own.moves.wishes === undefined || own.moves.wishes.length === 0) {
        planning.next();
    }
    equal(own.moves.dropped, false);
    planning.return();
    equal(own.moves.dropped, true);
});

test("saysThatAPlaceIsChanged", () => {
    const row = { along: [], caution: "", notes: [], goesWith: -1 };
    equal(stateOf(row, { status: "ready", code: "aside", other: "/p/d.jpg", to: "/p/d.jpg" }, "").text,
          "swaps names with d.jpg");
});

test("saysThatANameIsEmpty", () => {
    const made = planned(["/p/abc.jpg"], [newStep("strip", { count: 3 })]);
    equal([made.names, made.texts], [["–"], ["the name is empty"]]);
});

test("saysThatNoDateIsThere", () => {
    const own = services();
    const made = planned(["/p/dated.jpg", "/p/scan.png"], [newStep("text", { pattern: "{taken} {counter:001}" })], {},
                         own);
    equal(made.names, ["2026-08-14 001.jpg", "undated 002.png"]);
    equal([made.states[1].state, made.states[1].kind, made.texts[1]], ["ready", "caution", "no date taken: “undated”"]);
    equal(own.facts.asked, 2);
});

test("readsNoFactsThatItDoesNotNeed", () => {
    const own = services();
    planned(["/p/dated.jpg"], [newStep("text", { pattern: "{name} {counter}" })], {}, own);
    equal(own.facts.asked, 0);
});

test("neverMakesHalfACharacter", () => {
    const made = planned(["/p/\ud83d\ude00a.jpg"], [newStep("strip", { count: 1 })]);
    equal([made.states[0].state, made.texts[0], readyOf(made.plan)],
          ["attention", "would split a character", []]);
});

test("warnsAndStillRenames", () => {
    const made = planned(["/p/a.jpg"], [newStep("around", { after: ":" })]);
    equal([made.states[0].state, made.states[0].kind, made.texts[0]],
          ["ready", "caution", "ready, but other systems do not allow :"]);
});

test("foldersKeepTheirDots", () => {
    equal(planned(["/p/2024.AUG"], [newStep("case", {})], { what: "folders" }).names, ["2024.aug"]);
});

test("countsTheNamesThatAreTooShort", () => {
    const made = planned(["/p/a.jpg", "/p/abcdef.jpg"], [newStep("strip", { count: 4 })]);
    equal([made.plan.rows.short, made.names], [[1], ["a.jpg", "ef.jpg"]]);
});

test("passesOverStepsThatItDoesNotKnow", () => {
    equal(planned(["/p/A.JPG"], [{ kind: "later" }, lower]).names, ["a.jpg"]);
});

test("saysWhatIsWrongWithTheChain", () => {
    equal(rename.validate(settings([newStep("text", { pattern: "" })])).length, 1);
    equal(rename.validate(settings([newStep("text", { pattern: "", on: false })])), []);
    equal(rename.validate(settings([])), []);
});

test("plansTenThousandNamesInSlices", () => {
    const paths = [];
    for (let i = 0; i < 10000; i += 1) {
        paths.push("/p/IMG_" + i + ".JPG");
    }
    const steps = [newStep("text", { pattern: "{name} lake {counter:00001}" }), lower,
                   newStep("replace", { search: "_", replacement: "-" })];
    const work = rename.rows(paths, settings(steps), services());
    let longest = 0;
    let since = Date.now();
    const started = since;
    let step = work.next();
    while (!step.done) {
        longest = Math.max(longest, Date.now() - since);
        since = Date.now();
        step = work.next();
    }
    equal(step.value[9999].shown, "img-9999 lake 10000.jpg");
    print("10000 names of three steps: " + (Date.now() - started) + " ms, longest slice " + longest + " ms");
});

finish();
