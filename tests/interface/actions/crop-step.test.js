import * as crop from "../../../interface/actions/crop/crop-step.js";
import { equal, finish, isTrue, test } from "../check.js";
import { photo, recipeServices, settingsOf } from "../fakes.js";

const picture = photo("/p/a.JPG", 4000, 3000);

const operation = (changes) => crop.recipe(picture, settingsOf(crop, changes), recipeServices()).operations[0];

test("isAnOperationOfARecipe", () => {
    equal(operation({ mode: "size", width: 1000, height: 500, position: 5, offsetX: -3, offsetY: 4 }),
          { do: "crop", height: 500, offset: [-3, 4], position: "right", width: 1000 });
    equal(operation({ mode: "percent", percent: 25 }), { do: "crop", percent: 25, position: "center" });
    equal(operation({ mode: "pixels", pixels: 100, position: 8 }), { do: "crop", position: "bottom right", trim: 100 });
});

test("cutsByRatioForEveryPicture", () => {
    equal(operation({ mode: "ratio", ratio: "7:5" }), { do: "crop", position: "center", ratio: "7:5" });
    const typed = { mode: "ratio", ratio: "custom", ratioWidth: 8.5, ratioHeight: 11, turnsRatio: false, offsetX: 3 };
    equal(operation(typed),
          { do: "crop", offset: [3, 0], position: "center", ratio: "8.5:11", turn: false });
});

test("looksForWhatDrawsTheEyeAndMovesNothingThen", () => {
    equal(operation({ mode: "ratio", ratio: "1:1", position: crop.ATTENTION, offsetX: 9 }),
          { do: "crop", position: "attention", ratio: "1:1" });
});

test("leavesLengthsInTheirUnitToTheRecipe", () => {
    equal(operation({ mode: "size", unit: "mm", width: 100.5, height: 50, offsetX: 1, position: 0, dpi: 300 }),
          { do: "crop", dpi: 300, height: 50, offset: [1, 0], position: "top left", unit: "mm", width: 100.5 });
    equal(operation({ mode: "percent", percent: 5, unit: "inch", offsetY: 1 }),
          { do: "crop", offset: [0, 1], percent: 5, position: "center", unit: "in" });
    // What is cut away stays in pixels, and what it is moved by does not.
    equal(operation({ mode: "pixels", pixels: 100, unit: "mm", offsetX: 1 }),
          { do: "crop", offset: [10, 0], position: "center", trim: 100 });
});

function cutTo(width) {
    return { frame: { x: -500, y: 0, width: 5000, height: 100 }, part: { x: 0, y: 0, width: width, height: 100 },
             isPlaced: true };
}

test("aFrameThatReachesOutsideIsCutAndItsRowSaysSo", () => {
    const settings = settingsOf(crop, { mode: "size", width: 5000, height: 100, position: 4 });
    const planned = crop.plan(picture, settings, recipeServices({ cut: cutTo(4000) }));
    equal([planned.status, planned.cut.part.width, planned.remarks],
          ["ready", 4000, ["smaller than asked for"]]);
    equal(crop.plan(picture, settings, recipeServices({ cut: cutTo(5000) })).remarks, []);
});

test("plansAFailureWhereNothingIsLeft", () => {
    const planned = crop.plan(picture, settingsOf(crop, { mode: "pixels", pixels: 3000 }),
                              recipeServices({ problem: "Nothing of the picture is left" }));
    equal([planned.status, planned.reason], ["Failed", "Nothing of the picture is left"]);
});

test("makesTheFileThatItPlanned", () => {
    const services = recipeServices();
    const settings = settingsOf(crop, {});
    const result = crop.run(picture, settings, services);
    equal([result.status, result.outputs, result.width, result.height], ["OK", ["/s/a.jpg"], 400, 300]);
    equal(services.made, [["/p/a.JPG", crop.recipe(picture, settings, services), "/s/a.jpg"]]);
    equal(crop.run(picture, settings, recipeServices({ width: 401 })).status, "Failed");
});

const VALID = [
    [{ mode: "percent", percent: 99 }, 0], [{ mode: "percent", percent: 100 }, 1],
    [{ mode: "percent", percent: -1 }, 1],
    [{ mode: "pixels", pixels: 0 }, 0], [{ mode: "pixels", pixels: 1.5 }, 1],
    [{ mode: "size", width: 0, height: 5 }, 1], [{ mode: "size", width: 1.5, height: 5 }, 1],
    [{ mode: "size", width: 1.5, height: 5, unit: "mm" }, 0], [{ position: 9 }, 0], [{ position: 10 }, 1],
    [{ offsetX: 100001 }, 1], [{ unit: "ell" }, 1],
    [{ mode: "ratio", ratio: "4:5" }, 0], [{ mode: "ratio", ratio: "free" }, 1],
    [{ mode: "ratio", ratio: "original" }, 1],
    [{ mode: "ratio", ratio: "custom", ratioWidth: 0 }, 1], [{ mode: "ratio", ratio: "custom" }, 0],
    [{ mode: "size", unit: "mm", dpi: 10001 }, 1],
];

for (const row of VALID) {
    test("validates " + JSON.stringify(row[0]),
         () => { equal(crop.validate(settingsOf(crop, row[0])).length, row[1]); });
}

test("showsWhatIsMade", () => {
    const settings = settingsOf(crop, { mode: "percent", percent: 25 });
    const services = recipeServices();
    const shown = crop.preview(picture, settings, crop.plan(picture, settings, services), services);
    equal(shown.edits, [{ do: "recipe", operations: [operation({ mode: "percent", percent: 25 })], path: "/p/a.JPG" },
                        { do: "lay", color: "#ffffff" }]);
    equal([shown.type, shown.quality], ["public.jpeg", "9"]);
});

test("saysInTheLogWhatWasCut", () => {
    isTrue(crop.describe(settingsOf(crop, { mode: "size", width: 10, height: 5, unit: "cm" })).startsWith("10×5 cm"));
    const typed = { mode: "ratio", ratio: "custom", ratioWidth: 8.5, ratioHeight: 11, position: crop.ATTENTION };
    equal(crop.describe(settingsOf(crop, typed)),
          "ratio 8.5:11, at the focus of attention");
});

finish();
