import * as resize from "../../../interface/actions/resize/resize-step.js";
import { equal, finish, test } from "../check.js";
import { photo, recipeServices, settingsOf } from "../fakes.js";

const settings = (changes, output) => settingsOf(resize, changes, output);
const lake = photo("/p/lake.JPG", 400, 300);
const recipe = (changes, output) => resize.recipe(settings(changes, output));
const operation = (changes) => recipe(changes).operations[0];

test("isAnOperationOfARecipe", () => {
    equal(operation({}), { do: "resize", longest: 1600 });
    equal(operation({ mode: "width", width: 12.5, unit: "cm", neverEnlarge: false }),
          { do: "resize", enlarge: true, unit: "cm", width: 12.5 });
    equal(operation({ mode: "percent", percent: 30, unit: "inch" }), { do: "resize", percent: 30 });
    equal(operation({ mode: "box", boxWidth: 1000, boxHeight: 900, boxFit: "fill" }),
          { box: [1000, 900], do: "resize", fit: "fill" });
    equal(operation({ mode: "box", boxWidth: 10, boxHeight: 9, boxFit: "inside" }),
          { box: [10, 9], do: "resize", fit: "inside" });
    equal(operation({ mode: "box", boxWidth: 10, boxHeight: 9, boxFit: "pad", padColor: "#102030" }),
          { box: [10, 9], color: "#102030", do: "resize", fit: "pad" });
});

test("takesLengthsAtTheChosenResolution", () => {
    const printed = { mode: "width", width: 10, unit: "cm", dpi: 300 };
    equal(operation(printed), { do: "resize", dpi: 300, unit: "cm", width: 10 });
    equal(operation(Object.assign({}, printed, { dpi: 0 })), { do: "resize", unit: "cm", width: 10 });
    // Pixels and per cent are no lengths, so no resolution is chosen with them.
    equal(operation({ mode: "width", width: 10, unit: "pixel", dpi: 300 }), { do: "resize", width: 10 });
    equal(operation({ mode: "percent", percent: 30, unit: "cm", dpi: 300 }), { do: "resize", percent: 30 });
});

for (const [dpi, unit, messages] of [[0, "cm", 0], [1, "cm", 0], [10000, "mm", 0], [10001, "mm", 1], [-1, "inch", 1],
                                     [72.5, "cm", 1], [10001, "pixel", 0]]) {
    test("validates " + dpi + " dpi in " + unit, () => {
        equal(resize.validate(settings({ mode: "width", width: 10, unit: unit, dpi: dpi })).length, messages);
    });
}

test("asksForTheOutputOfTheOutputBlock", () => {
    const output = (changes) => recipe({}, changes).outputs;
    equal(output({}), [{ quality: 80, type: "original" }]);
    equal(output({ fileType: "public.tiff" }), [{ type: "tiff" }]);
    equal(output({ fileType: "public.tiff", metadata: "copyright", removeLocation: true }),
          [{ location: false, metadata: "copyright", type: "tiff" }]);
    equal(output({ fileType: "public.tiff", removeLocation: true }), [{ location: false, type: "tiff" }]);
    // Where nothing is kept no place is either.
    equal(output({ fileType: "public.tiff", metadata: "none", removeLocation: true }),
          [{ metadata: "none", type: "tiff" }]);
});

test("asksForNameDateAndColourWhereTheyAreNotAsUsual", () => {
    const output = (changes) => recipe({}, Object.assign({ fileType: "public.tiff" }, changes)).outputs[0];
    equal(output({ namePattern: "{name}-{counter:01}" }), { name: "{name}-{counter:01}", type: "tiff" });
    equal(output({ dates: "keep" }), { dates: "keep", type: "tiff" });
    equal(output({ matte: "#102030" }), { matte: "#102030", type: "tiff" });
    // The destination of results is another matter.
    equal(output({ keepSubfolders: true, destination: { kind: "folder", name: "", path: "/out" } }), { type: "tiff" });
});

test("namesResultsByThePattern", () => {
    const planned = resize.plan(Object.assign({ index: 4 }, lake), settings({}, { namePattern: "{name}-web" }),
                                recipeServices());
    equal(planned.name, "{name}-web of /p/lake.JPG 4 400 300 .jpg");
});

test("plansNameTypeSizeAndLosses", () => {
    const services = recipeServices({ width: 160, height: 120, losses: ["No maker notes"] });
    const planned = resize.plan(lake, settings({}), services);
    equal([planned.status, planned.name, planned.type, planned.width, planned.height, planned.losses, planned.notes],
          ["ready", "lake.jpg", "public.jpeg", 160, 120, ["No maker notes"], ["No maker notes"]]);
    equal(services.asked, [["/p/lake.JPG", recipe({})]]);
});

test("saysWhatCannotBeWritten", () => {
    const refused = resize.plan(lake, settings({}), recipeServices({ problem: "no", isNotSupported: true }));
    equal([refused.status, refused.reason], ["Not Supported", "JPEG cannot be written, choose another file type"]);
    equal(resize.plan(lake, settings({}), recipeServices({ problem: "too large" })),
          { status: "Failed", reason: "too large" });
    equal(resize.plan(photo("/p/a.jpg", 0, 0), settings({}), recipeServices()).status, "Failed");
});

test("saysWhatIsNotAllOfTheFile", () => {
    const remarks = (changes, told) => resize.plan(Object.assign({}, lake, changes), settings({}),
                                                   recipeServices(told)).remarks;
    equal(remarks({}, {}), []);
    equal(remarks({ type: "RAW" }, {}), ["preview of 400×300"]);
    equal(remarks({ type: "GIF" }, { leftOut: 2 }), ["2 more pictures left out"]);
});

test("makesTheFileThatItPlanned", () => {
    const services = recipeServices();
    const result = resize.run(lake, settings({}), services);
    equal([result.status, result.outputs, result.width, result.height], ["OK", ["/s/lake.jpg"], 400, 300]);
    equal(services.made, [["/p/lake.JPG", recipe({}), "/s/lake.jpg"]]);
});

test("failsWhereTheFileIsNotAsPlanned", () => {
    equal(resize.run(lake, settings({}), recipeServices({ width: 401 })).status, "Failed");
    // A picture that is not encoded again may stay stored sideways, but no other.
    const turned = (isLossless) => resize.run(lake, settings({}), recipeServices({ width: 300, height: 400,
                                                                                   lossless: isLossless }));
    equal([turned(true).status, turned(true).width, turned(true).height], ["OK", 300, 400]);
    equal(turned(false).status, "Failed");
});

test("handsOnWhyNothingWasMade", () => {
    const result = resize.run(lake, settings({}), recipeServices({}, { outcome: "Failed", reason: "no room",
                                                                       path: "" }));
    equal(result, { status: "Failed", reason: "no room", outputs: [] });
});

const RANGES = [
    ["longest", 0, 1], ["longest", 1, 0], ["longest", 100000, 0], ["longest", 100001, 1], ["longest", 1.5, 1],
    ["percent", 1000, 0], ["percent", 1001, 1], ["width", -1, 1],
];

for (const row of RANGES) {
    test("validates " + row[0] + " " + row[1], () => {
        const chosen = settings({ mode: row[0] });
        chosen[row[0]] = row[1];
        equal(resize.validate(chosen).length, row[2]);
    });
}

test("validatesBothSidesOfABox", () => {
    equal(resize.validate(settings({ mode: "box", boxWidth: 0, boxHeight: 0 })).length, 2);
});

test("wantsAFolderWhereOneIsToBeChosen", () => {
    const chosen = settings();
    chosen.output.destination = { kind: "folder", name: "", path: "" };
    equal(resize.validate(chosen).length, 1);
});

test("showsWhatIsMade", () => {
    const shown = (type) => resize.preview(lake, settings({}), { width: 400, height: 300, type: type });
    const edit = { do: "recipe", operations: recipe({}).operations, path: "/p/lake.JPG" };
    equal(shown("public.png").edits, [edit]);
    equal(shown("public.jpeg").edits, [edit, { do: "lay", color: "#ffffff" }]);
    const onBlue = resize.preview(lake, settings({}, { matte: "#0000ff" }),
                                  { width: 4, height: 3, type: "public.jpeg" });
    equal(onBlue.edits[1], { do: "lay", color: "#0000ff" });
    equal([shown("public.jpeg").width, shown("public.jpeg").height, shown("public.jpeg").quality], [400, 300, "8"]);
});

finish();
