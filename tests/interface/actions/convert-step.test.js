import { KEYWORDS, targetNamed, targetText } from "../../../interface/actions/convert/targets.js";
import * as convert from "../../../interface/actions/convert/convert-step.js";
import { typeWords } from "../../../interface/actions/recipe/output-fields.js";
import { WRITTEN } from "../../../interface/lib/types.js";
import { equal, finish, isTrue, test } from "../check.js";
import { photo, recipeServices, settingsOf } from "../fakes.js";

function source(name, type) {
    return Object.assign(photo("/p/" + name, 400, 300), { type: type || "JPEG" });
}

function settings(target, changes, output) {
    return settingsOf(convert, Object.assign({ target: target }, changes || {}), output);
}

// Services that plan a file of that type.
function planning(keyword, plan) {
    return recipeServices(Object.assign({ type: keyword, extension: targetNamed(keyword).extension }, plan || {}));
}

const NAMES = { jpeg: "a.b.jpg", png: "a.b.png", tiff: "a.b.tiff", pdf: "a.b.pdf", jp2: "a.b.jp2", gif: "a.b.gif",
                bmp: "a.b.bmp", webp: "a.b.webp", avif: "a.b.avif", jxl: "a.b.jxl" };
const WITH_QUALITY = ["jpeg", "webp", "avif", "jxl"];

test("offersEveryTypeThatIsWrittenInTheOrderOfRecipes", () => {
    equal(KEYWORDS.slice().sort(), Object.keys(NAMES).sort());
    equal(["original"].concat(KEYWORDS), typeWords().map(([word]) => word));
    equal(KEYWORDS.map((keyword) => targetNamed(keyword).word), typeWords().slice(1).map(([, word]) => word));
    // Other actions offer them in the same order, but for the page.
    equal(KEYWORDS.filter((keyword) => keyword !== "pdf"), WRITTEN.map((type) => type.keyword));
});

test("saysOfEachTypeWhatItIs", () => {
    const texts = KEYWORDS.map(targetText);
    isTrue(texts.every((text, i) => text.length > 20 && texts.indexOf(text) === i));
});

test("namesResultsByTheirType", () => {
    equal(KEYWORDS.map((keyword) => convert.plan(source("a.b.heic"), settings(keyword), planning(keyword)).name),
          KEYWORDS.map((keyword) => NAMES[keyword]));
});

test("isARecipeWithNothingButAnOutput", () => {
    equal(convert.recipe(settings("jpeg", { quality: "3" })),
          { quorlin: 1, operations: [], outputs: [{ quality: 30, type: "jpeg" }] });
    equal(KEYWORDS.map((keyword) => convert.recipe(settings(keyword, { quality: "3" })).outputs),
          KEYWORDS.map((keyword) => (WITH_QUALITY.indexOf(keyword) < 0 ? [{ type: keyword }]
              : [{ quality: 30, type: keyword }])));
    equal(KEYWORDS.filter((keyword) => targetNamed(keyword).quality), WITH_QUALITY);
    equal(convert.recipe(settings("gif", {}, { metadata: "copyright", removeLocation: true, dates: "keep",
                                               matte: "#102030", namePattern: "{name}-x" })).outputs,
          [{ dates: "keep", location: false, matte: "#102030", metadata: "copyright", name: "{name}-x", type: "gif" }]);
});

test("makesWhatItPlanned", () => {
    for (const keyword of KEYWORDS) {
        const services = planning(keyword);
        const result = convert.run(source("a.b.png"), settings(keyword), services);
        equal([result.status, result.outputs, result.width], ["OK", ["/s/" + NAMES[keyword]], 400]);
        equal(services.made, [["/p/a.b.png", convert.recipe(settings(keyword)), "/s/" + NAMES[keyword]]]);
        equal(services.asked[0][1], services.made[0][1]);
    }
});

test("takesAPageAsLargeAsItSays", () => {
    const services = planning("pdf");
    const make = services.recipes.make;
    services.recipes.make = (...values) => {
        const made = make(...values);
        services.files.sizes[values[2]] = { width: 96, height: 72 };
        return made;
    };
    const result = convert.run(source("a.b.png"), settings("pdf"), services);
    equal([result.status, result.width, result.height], ["OK", 400, 300]);
});

test("saysInThePlanWhatGoesWrong", () => {
    const refused = convert.plan(source("a.pdf"), settings("png"), planning("png", { problem: "It is locked" }));
    equal([refused.status, refused.reason], ["Failed", "It is locked"]);
    const services = planning("png");
    const result = convert.run(photo("/p/a.jpg", 0, 0), settings("png"), services);
    equal([result.status, services.asked.length, services.made.length], ["Failed", 0, 0]);
});

test("refusesOtherTypesAndQualities", () => {
    equal(convert.validate(settings("png")), []);
    equal(["jpg", "", "tif", "psd"].map((target) => convert.validate(settings(target)).length), [1, 1, 1, 1]);
    equal(["0", "10", "", "best"].map((quality) => convert.validate(settings("jpeg", { quality: quality })).length),
          [1, 1, 1, 1]);
});

// What the table of types and the plans of recipes say too.
test("saysOfEachTargetWhatItCannotHold", () => {
    const says = (keyword, words) => words.forEach((word) => isTrue(targetText(keyword).indexOf(word) >= 0));
    says("jpeg", ["Transparent parts get a colour", "16 bits become 8", "metadata are kept"]);
    says("bmp", ["Colours become sRGB", "transparent parts get a colour", "16 bits become 8"]);
    says("gif", ["256 colours", "Colours become sRGB", "transparent or not", "XMP"]);
    says("jp2", ["metadata are kept", "most colour profiles"]);
    says("pdf", ["XMP"]);
    says("webp", ["16 bits become 8", "Transparency, colour profile and metadata are kept"]);
    says("avif", ["16 bits become 8", "Transparency, colour profile and metadata are kept"]);
    says("jxl", ["Transparency, 16 bits, colour profile and metadata are kept"]);
    says("png", ["Nothing is lost"]);
    says("tiff", ["Nothing is lost"]);
});

// The sentences are written, the facts in them are those of the program's table of formats.
test("saysOfEachTargetWhatTheTableSays", () => {
    KEYWORDS.filter((keyword) => keyword !== "pdf").forEach((keyword) => { // a page is no format
        const type = targetNamed(keyword), text = targetText(keyword);
        const kept = (text.match(/[^.]* (?:is|are) kept[^.]*\./g) || []).join(" ");
        const says = (fact, pattern, within) => equal([keyword, fact, pattern.test(within)], [keyword, fact, true]);
        // A GIF keeps whole transparency only.
        says("transparency", type.alpha ? /ransparency|either transparent/ : /^((?!ransparency).)*$/,
             keyword === "gif" ? text : kept);
        says("colour", type.alpha ? /^((?!parts get a colour).)*$/ : /parts get a colour/, text);
        says("16 bits", type.depth16 ? /16 bits/ : /^((?!16 bits).)*$/, kept);
        says("8 bits", type.depth16 || keyword === "gif" ? /^((?!become 8).)*$/ : /16 bits become 8/, text);
        says("profile", { yes: /olour profile and metadata are kept/, ifItFits: /most colour profiles/,
                          no: /Colours become sRGB/ }[type.profile], text);
        equal(keyword + " " + (/resolution/.test(text) && !type.resolution), keyword + " false");
    });
});

test("saysWhatAPictureLosesAndWhatItIs", () => {
    const notes = (name, target, plan) =>
        convert.plan(source(name), settings(target), planning(target, plan)).notes.join(" ");
    isTrue(/first page/.test(notes("a.pdf", "png")));
    isTrue(/Layers/.test(notes("a.psd", "png")));
    isTrue(/Already JPEG: it will be encoded again/.test(notes("a.jpeg", "jpeg")));
    isTrue(/Already PNG: no pixel/.test(notes("a.png", "png", { lossless: true })));
    equal(notes("a.heic", "jpeg"), "");
    equal(notes("a.heic", "gif", { losses: ["256 colours"] }), "256 colours");
    equal(convert.plan(source("a.nef", "RAW"), settings("jpeg"), planning("jpeg", { leftOut: 2 })).remarks,
          ["preview of 400×300", "2 more pictures left out"]);
});

test("showsWhatItMakes", () => {
    const shown = (target, output) => {
        const own = settings(target, {}, output);
        const picture = source("a.png", "PNG");
        return convert.preview(picture, own, convert.plan(picture, own, planning(target)));
    };
    equal(shown("jpeg").edits[1], { do: "lay", color: "#ffffff" });
    equal(shown("jpeg", { matte: "#102030" }).edits[1], { do: "lay", color: "#102030" });
    equal(shown("png").edits.length, 1);
    equal([shown("jpeg").quality, shown("png").quality], ["8", ""]);
    equal(shown("pdf").recipe, convert.recipe(settings("pdf")));
});

finish();
