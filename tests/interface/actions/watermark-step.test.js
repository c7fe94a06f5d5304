import * as watermark from "../../../interface/actions/watermark/watermark-step.js";
import { equal, finish, isTrue, test } from "../check.js";
import { photo, recipeServices, settingsOf } from "../fakes.js";

const lake = photo("/p/lake.JPG", 400, 300);

function settings(changes, output) {
    return settingsOf(watermark, changes, output);
}

const operation = (changes) => watermark.recipe(settings(changes)).operations[0];

test("standsForAnOperationOfARecipe", () => {
    equal(operation({}),
          { color: "#ffffff", do: "watermark", margin: 2, opacity: 70, position: "bottom right", size: 4,
            text: "© {date:yyyy}", tile: false });
    equal(operation({ font: "DejaVu Sans", position: 0, angle: 30, tile: true }),
          { angle: -30, color: "#ffffff", do: "watermark", font: "DejaVu Sans", margin: 2, opacity: 70,
            position: "top left", size: 4, text: "© {date:yyyy}", tile: true });
    equal(operation({ mark: "picture", picture: "/w/logo.png" }),
          { do: "watermark", margin: 2, opacity: 70, picture: "/w/logo.png", position: "bottom right", size: 20,
            tile: false });
});

test("asksForTheOutputOfTheOutputBlock", () => {
    const outputs = (fileType) => {
        const services = recipeServices();
        watermark.plan(lake, settings({}, { fileType: fileType, quality: "7" }), services);
        return services.asked[0][1].outputs;
    };
    equal(outputs("original file type"), [{ quality: 70, type: "original" }]);
    equal(outputs("public.jpeg"), [{ quality: 70, type: "jpeg" }]);
    equal(outputs("public.tiff"), [{ type: "tiff" }]);
    equal(outputs("public.jp2"), [{ quality: 70, type: "jp2" }]);
    equal(outputs("public.avif"), [{ quality: 70, type: "avif" }]);
});

test("plansNameTypeAndSize", () => {
    const planned = watermark.plan(lake, settings({}), recipeServices());
    equal([planned.status, planned.name, planned.type, planned.width, planned.height],
          ["ready", "lake.jpg", "public.jpeg", 400, 300]);
    // What is in the file counts, not what it is called.
    equal(watermark.plan(lake, settings({}), recipeServices({ type: "webp", extension: ".webp" })).name, "lake.webp");
});

test("asksOnceAboutAPictureWhileTextIsTyped", () => {
    const services = recipeServices();
    ["©", "© J", "© Jo"].forEach((text) => watermark.plan(lake, settings({ text: text }), services));
    equal(services.asked.length, 1);
    watermark.plan(lake, settings({}, { fileType: "public.png" }), services);
    equal(services.asked.length, 2);
});

test("asksAgainWhereThereWasAProblem", () => {
    const services = recipeServices({ problem: "operations[0].text: a text that is not empty" });
    equal(watermark.plan(lake, settings({}), services),
          { status: "Failed", reason: "operations[0].text: a text that is not empty" });
    watermark.plan(lake, settings({}), services);
    equal(services.asked.length, 2);
});

test("saysWhatCannotBeWritten", () => {
    const refused = watermark.plan(lake, settings({}), recipeServices({ problem: "no", isNotSupported: true }));
    equal([refused.status, refused.reason], ["Not Supported", "JPEG cannot be written, choose another file type"]);
    equal(watermark.plan(photo("/p/a.jpg", 0, 0), settings({}), recipeServices()).status, "Failed");
});

test("makesTheFileThatItPlanned", () => {
    const services = recipeServices();
    const result = watermark.run(lake, settings({ text: "Jane" }), services);
    equal([result.status, result.outputs, result.width, result.height], ["OK", ["/s/lake.jpg"], 400, 300]);
    equal(services.made.map((call) => [call[0], call[1].operations[0].text, call[2]]),
          [["/p/lake.JPG", "Jane", "/s/lake.jpg"]]);
});

test("handsOnWhyNothingWasMade", () => {
    const services = recipeServices({}, { outcome: "Failed", reason: "no room", path: "" });
    equal(watermark.run(lake, settings({}), services), { status: "Failed", reason: "no room", outputs: [] });
});

test("failsWhereTheFileIsNotAsPlanned", () => {
    const result = watermark.run(lake, settings({}), recipeServices({ width: 200 }));
    equal(result.status, "Failed");
    isTrue(result.reason.includes("400×300 instead of 200×300"));
});

test("showsWhatIsMade", () => {
    const shown = (type) => watermark.preview(lake, settings({}), { width: 400, height: 300, type: type });
    const edit = { do: "recipe", operations: [operation({})], path: "/p/lake.JPG" };
    equal(shown("public.png").edits, [edit]);
    equal(shown("public.jpeg").edits, [edit, { do: "lay", color: "#ffffff" }]);
    equal([shown("public.jpeg").width, shown("public.jpeg").height, shown("public.jpeg").quality], [400, 300, "9"]);
});

const MISTAKES = [
    [{ text: " \n " }, "Enter a text."],
    [{ text: "{nope}" }, "There is no token {nope}"],
    [{ text: "{taken:qqqq}" }, "is not a valid date format"],
    [{ text: "{counter:001}" }, "cannot contain {counter}"],
    [{ font: "No Such Font" }, "There is no font “No Such Font”"],
    [{ size: 0 }, "size from 0.1% to 100%"],
    [{ size: 101 }, "size from 0.1% to 100%"],
    [{ margin: -1 }, "margin from 0% to 100%"],
    [{ opacity: 0 }, "opacity from 1% to 100%"],
    [{ angle: 181 }, "angle from −180 to 180"],
    [{ mark: "picture" }, "Choose a picture."],
    [{ mark: "picture", picture: "/no/such.png" }, "“such.png” no longer exists"],
    [{ mark: "picture", picture: "/etc/hostname" }, "“hostname” cannot be read as a picture"],
];

for (const [changes, words] of MISTAKES) {
    test("refuses " + JSON.stringify(changes), () => {
        const messages = watermark.validate(settings(changes));
        equal(messages.length, 1);
        isTrue(messages[0].includes(words));
    });
}

test("takesWhatCanBeMade", () => {
    equal(watermark.validate(settings({})), []);
    equal(watermark.validate(settings({ text: "a\nb {name} {{", size: 0.1, margin: 0, opacity: 1, angle: -180 })), []);
    // What is not used is not looked at.
    equal(watermark.validate(settings({ picture: "/no/such.png", pictureSize: 0 })), []);
});

test("describesItself", () => {
    equal(watermark.describe(settings({ text: "a\nb" })), "text “a b”");
    equal(watermark.describe(settings({ mark: "picture", picture: "/w/l.png", tile: true })),
          "picture /w/l.png, tiled");
});

finish();
