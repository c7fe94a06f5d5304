import * as background from "../../../interface/actions/background/background-step.js";
import * as round from "../../../interface/actions/round/round-step.js";
import { equal, finish, test } from "../check.js";
import { photo, recipeServices, settingsOf } from "../fakes.js";

const wide = photo("/p/a.jpg", 400, 300);
const high = photo("/p/a.jpg", 300, 400);
const clear = photo("/p/a.png", 400, 300);

const rounded = (changes, output) => round.recipe(settingsOf(round, changes, output));
const framed = (changes, output) => background.recipe(settingsOf(background, changes, output));

test("roundsByAnOperation", () => {
    equal(rounded({ shape: "rectangle", radius: 40, band: 5 }).operations,
          [{ do: "round", radius: 40, shape: "rectangle" }]);
    equal(rounded({ shape: "circle", radius: 40 }).operations, [{ do: "round", shape: "circle" }]);
    equal(rounded({ shape: "ellipse", background: true, color: "#102030", band: 20 }).operations,
          [{ band: { color: "#102030", width: 20 }, color: "#102030", do: "round", shape: "ellipse" }]);
});

test("laysAndFramesByOperations", () => {
    equal(framed({ color: "#ff0000" }).operations, [{ color: "#ff0000", do: "background" }]);
    equal(framed({ under: "pattern", pattern: "/t/dots.png", frame: "white" }).operations,
          [{ do: "background", pattern: "/t/dots.png" }, { do: "frame", width: 10 }]);
    equal(framed({ frame: "band", bandColor: "#0000ff", bandWidth: 12 }).operations[1],
          { band: { color: "#0000ff", width: 12 }, do: "round", radius: 0 });
});

test("asksForTheTypeAndLeavesTheQualityToIt", () => {
    equal([rounded({}, { fileType: "original file type" }).outputs, framed({}, { fileType: "public.tiff" }).outputs],
          [[{ type: "original" }], [{ type: "tiff" }]]);
});

test("keepsTheWholeNameWithTheType", () => {
    const jpeg = photo("/p/a.JPEG", 400, 300);
    const name = (step, fileType) =>
        step.plan(jpeg, settingsOf(step, {}, { fileType: fileType }), recipeServices({ extension: ".tiff" })).name;
    for (const step of [round, background]) {
        equal([name(step, "original file type"), name(step, "public.tiff")], ["a.JPEG", "a.tiff"]);
    }
});

test("makesTheFileThatItPlanned", () => {
    for (const step of [round, background]) {
        const services = recipeServices();
        const settings = settingsOf(step, {}, { fileType: "original file type" });
        const result = step.run(wide, settings, services);
        equal([result.status, result.outputs, result.width], ["OK", ["/s/a.jpg"], 400]);
        equal(services.made, [["/p/a.jpg", step.recipe(settings), "/s/a.jpg"]]);
    }
});

test("saysWhyNothingWasMade", () => {
    const services = recipeServices({ problem: "operations[0].pattern: there is no picture" });
    const settings = settingsOf(background, { under: "pattern", pattern: "/t/dots.png" });
    equal(background.run(clear, settings, services),
          { status: "Failed", reason: "operations[0].pattern: there is no picture", outputs: [] });
});

test("saysWhichSquareACircleIsCutFrom", () => {
    const notes = (picture) => round.plan(picture, settingsOf(round, { shape: "circle" }), recipeServices()).notes;
    const said = ["The circle is cut from the square in the middle."];
    equal([notes(wide), notes(high), notes(photo("/p/a.jpg", 5, 5))], [said, said, []]);
});

test("saysWhatIsLost", () => {
    const services = recipeServices({ losses: ["JPEG has no transparency"] });
    const planned = round.plan(wide, settingsOf(round, {}, { fileType: "original file type" }), services);
    equal([planned.notes, planned.losses], [["JPEG has no transparency"], ["JPEG has no transparency"]]);
});

test("refusesABandThatCoversAll", () => {
    equal(round.plan(wide, settingsOf(round, { background: true, band: 150 }), recipeServices()).status, "Failed");
    equal(background.plan(wide, settingsOf(background, { frame: "band", bandWidth: 150 }), recipeServices()).status,
          "Failed");
});

const VALID = [
    [round, { radius: -1 }, 1], [round, { shape: "circle", radius: -1 }, 0], [round, { background: true, band: -1 }, 1],
    [round, { band: -1 }, 0], [background, {}, 0], [background, { under: "pattern", pattern: "" }, 1],
    [background, { under: "pattern", pattern: "/no/such.png" }, 1],
    [background, { frame: "band", bandWidth: 0 }, 1],
    [background, { frame: "white", bandWidth: 0 }, 0],
];

for (const row of VALID) {
    test("validates " + JSON.stringify(row[1]),
         () => { equal(row[0].validate(settingsOf(row[0], row[1])).length, row[2]); });
}

test("showsWhatIsMade", () => {
    const shown = (step, type) => step.preview(clear, settingsOf(step, {}), { type: type, width: 4, height: 3 }).edits;
    for (const step of [round, background]) {
        const edit = { do: "recipe", operations: step.recipe(settingsOf(step, {})).operations, path: "/p/a.png" };
        equal([shown(step, "public.png"), shown(step, "public.jpeg")],
              [[edit], [edit, { do: "lay", color: "#ffffff" }]]);
    }
});

finish();
