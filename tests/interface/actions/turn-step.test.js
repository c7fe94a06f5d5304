import * as turn from "../../../interface/actions/turn/turn-step.js";
import { equal, finish, isTrue, test } from "../check.js";
import { photo, recipeServices, settingsOf } from "../fakes.js";

function source(name, width, height, orientation) {
    return Object.assign(photo("/p/" + name, width, height), { orientation: orientation || 1 });
}

const operations = (changes) => turn.recipe(settingsOf(turn, changes)).operations;

test("flipsFirstAndThenTurnsClockwise", () => {
    equal(operations({ angle: 90 }), [{ degrees: -90, do: "turn" }]);
    equal(operations({ angle: -7.5, flipHorizontal: true, flipVertical: true }),
          [{ direction: "horizontal", do: "flip" }, { direction: "vertical", do: "flip" },
           { degrees: 7.5, do: "turn" }]);
});

test("makesTheFileUnderItsOwnName", () => {
    const services = recipeServices();
    const result = turn.run(source("a.JPEG", 300, 400), settingsOf(turn, { angle: 90 }), services);
    equal([result.status, result.outputs, services.made.length], ["OK", ["/s/a.JPEG"], 1]);
    equal(services.made[0][1].outputs, [{ type: "original" }]);
});

test("saysWithoutLossWhereThatIsSo", () => {
    const said = (changes, isLossless) => turn.plan(source("a.jpg", 400, 300), settingsOf(turn, changes),
                                                    recipeServices({ lossless: isLossless })).notes;
    equal([said({ angle: 90 }, true), said({ angle: 90 }, false)], [["Rotated without loss."], []]);
    isTrue(said({ angle: 12 }, false)[0].endsWith("The new corners become white."));
});

test("keepsTheNameWhereTheTypeStays", () => {
    equal(turn.plan(source("a.TIFF", 4, 3), settingsOf(turn), recipeServices()).name, "a.TIFF");
    equal(turn.plan(source("a.TIFF", 4, 3), settingsOf(turn, {}, { fileType: "public.jpeg" }), recipeServices()).name,
          "a.jpg");
    equal(turn.plan(source("a.heic", 4, 3), settingsOf(turn),
                    recipeServices({ problem: "no", isNotSupported: true })).status, "Not Supported");
    equal(turn.plan(source("a.jpg", 0, 0), settingsOf(turn), recipeServices()).status, "Failed");
});

const VALID = [[{ angle: 90 }, 0], [{ angle: 0 }, 1], [{ angle: 0, flipVertical: true }, 0], [{ angle: 181 }, 1],
               [{ angle: 180, flipVertical: true, flipHorizontal: true }, 1],
               [{ angle: -180, flipVertical: true, flipHorizontal: true }, 1],
               [{ angle: 0, flipVertical: true, flipHorizontal: true }, 0],
               [{ angle: 180, flipHorizontal: true }, 0], [{ angle: -180 }, 0], [{ angle: 0.1 }, 0]];

for (const row of VALID) {
    test("validates " + JSON.stringify(row[0]),
         () => { equal(turn.validate(settingsOf(turn, row[0])).length, row[1]); });
}

test("showsWhatIsMade", () => {
    const settings = settingsOf(turn, { angle: -7.5, flipHorizontal: true });
    equal(turn.preview(source("a.png", 100, 100, 6), settings, { type: "public.png", width: 4, height: 3 }),
          { edits: [{ do: "recipe", operations: operations({ angle: -7.5, flipHorizontal: true }), path: "/p/a.png" }],
            width: 4, height: 3, type: "public.png", quality: "", recipe: turn.recipe(settings) });
});

finish();
