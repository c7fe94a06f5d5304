import { cropFrame, insidePicture, largestOf, offsetsFor, ratioOf } from "../../../interface/actions/crop/crops.js";
import * as crop from "../../../interface/actions/crop/crop-step.js";
import { equal, finish, isTrue, test } from "../check.js";
import { photo, recipeServices, settingsOf } from "../fakes.js";

const picture = photo("/p/a.JPG", 4000, 3000);

function frameOf(changes) {
    const frame = cropFrame(picture, settingsOf(crop, changes));
    return [frame.x, frame.y, frame.width, frame.height];
}

const FRAMES = [
    ["a quarter away, in the centre", { mode: "percent", percent: 25, position: 4 }, [500, 375, 3000, 2250]],
    ["pixels away, at the bottom right", { mode: "pixels", pixels: 100, position: 8 }, [100, 100, 3900, 2900]],
    ["a size, top left", { mode: "size", width: 1000, height: 500, position: 0 }, [0, 0, 1000, 500]],
    ["a size, top centre", { mode: "size", width: 1000, height: 500, position: 1 }, [1500, 0, 1000, 500]],
    ["a size, middle right", { mode: "size", width: 1000, height: 500, position: 5 }, [3000, 1250, 1000, 500]],
    ["a size, bottom left, moved", { mode: "size", width: 1000, height: 500, position: 6, offsetX: 7, offsetY: -9 },
     [7, 2491, 1000, 500]],
    ["odd room is halved toward zero", { mode: "size", width: 1001, height: 4003, position: 4 },
     [1499, -501, 1001, 4003]],
];

for (const row of FRAMES) {
    test("the frame: " + row[0], () => { equal(frameOf(row[1]), row[2]); });
}

test("offsetsPutAnyRectangleBackWhereItWas", () => {
    for (let position = 0; position < 9; position += 1) {
        const rectangle = { x: 123, y: 77, width: 1001, height: 999 };
        const settings = Object.assign({ mode: "size", width: 1001, height: 999, position: position },
                                       offsetsFor(picture, rectangle, position));
        equal(cropFrame(picture, settings), rectangle, "position " + position);
    }
});

test("whatLiesInsideIsKept", () => {
    equal(insidePicture(picture, { x: -100, y: 2900, width: 300, height: 300 }),
          { x: 0, y: 2900, width: 200, height: 100 });
    equal(insidePicture(picture, { x: 4000, y: 0, width: 10, height: 10 }), null);
});

test("theLargestFrameOfARatio", () => {
    equal([largestOf(1, picture), largestOf(16 / 9, picture), largestOf(2 / 3, picture)],
          [{ width: 3000, height: 3000 }, { width: 4000, height: 2250 }, { width: 2000, height: 3000 }]);
    equal([ratioOf("free", picture), ratioOf("original", picture), ratioOf("original", null), ratioOf("3:2", null)],
          [0, 4 / 3, 0, 1.5]);
});

const operation = (changes) => crop.recipe(picture, settingsOf(crop, changes), recipeServices()).operations[0];

test("isAnOperationOfARecipe", () => {
    equal(operation({ mode: "size", width: 1000, height: 500, position: 5, offsetX: -3, offsetY: 4 }),
          { do: "crop", height: 500, offset: [-3, 4], position: "right", width: 1000 });
    equal(operation({ mode: "percent", percent: 25 }), { do: "crop", percent: 25, position: "center" });
    equal(operation({ mode: "pixels", pixels: 100, position: 8 }), { do: "crop", position: "bottom right", trim: 100 });
});

test("convertsLengthsToPixelsOfThePicture", () => {
    equal(operation({ mode: "size", unit: "mm", width: 100.5, height: 50, offsetX: 1, position: 0 }),
          { do: "crop", height: 500, offset: [10, 0], position: "top left", width: 1005 });
    // What is cut away stays in pixels, and what it is moved by does not.
    equal(operation({ mode: "pixels", pixels: 100, unit: "mm", offsetX: 1 }),
          { do: "crop", offset: [10, 0], position: "center", trim: 100 });
});

test("asksForTheSameLengthOnlyOnce", () => {
    const services = recipeServices();
    const settings = settingsOf(crop, { mode: "size", unit: "mm", width: 10, height: 10 });
    crop.plan(picture, settings, services);
    const asked = services.units.asked;
    crop.plan(picture, settings, services);
    equal(services.units.asked, asked);
});

test("aFrameThatReachesOutsideIsCutAndSaidSo", () => {
    const planned = crop.plan(picture, settingsOf(crop, { mode: "size", width: 5000, height: 100, position: 4 }),
                              recipeServices({ losses: ["no maker notes"] }));
    equal([planned.status, planned.inside.width, planned.inside.height], ["ready", 4000, 100]);
    equal(planned.notes, ["Cut off at the picture’s edge.", "no maker notes"]);
});

const REFUSED = [
    ["nothing would be left", { mode: "pixels", pixels: 3000 }, "Failed"],
    ["the frame is outside", { mode: "size", width: 10, height: 10, position: 0, offsetX: 5000 }, "Failed"],
];

for (const row of REFUSED) {
    test("plans a failure where " + row[0],
         () => { equal(crop.plan(picture, settingsOf(crop, row[1]), recipeServices()).status, row[2]); });
}

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
    [{ mode: "size", width: 1.5, height: 5, unit: "mm" }, 0], [{ position: 9 }, 1], [{ offsetX: 100001 }, 1],
    [{ unit: "ell" }, 1],
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
});

finish();
