import {
    changeWords, defaults, describe, disputeWords, REPLACE, shiftSeconds, validate, withWord, workMaker,
} from "../../../interface/actions/metadata/metadata-fields-step.js";
import { presets } from "../../../interface/actions/metadata/metadata-fields-presets.js";
import { presetOf, rowOf } from "../../../interface/presets/presets.js";
import { equal, finish, isTrue, test } from "../check.js";

function settings(own) {
    return Object.assign({}, defaults, own);
}

function workOf(own, path, facts, index) {
    return workMaker(settings(own)).make(path || "/p/lake.jpg", facts || null, index || 0);
}

const NOTHING = { fields: {}, remove: [] };

test("whatIsEmptyStaysAsItIs", () => {
    equal(workOf({}), NOTHING);
    equal(workOf({ title: "  ", keywords: " , ;", creator: ";" }), NOTHING);
    equal(workOf({ keywordsMode: REPLACE }), NOTHING);
});

test("clearingIsAChoiceOfItsOwn", () => {
    equal(workOf({ cleared: "title rating" }).fields, { title: { clear: true }, rating: { clear: true } });
    equal(workOf({ cleared: "keywords", keywords: "a", removedKeywords: "b" }).fields, { keywords: { clear: true } });
    equal(withWord(withWord("", "title", true), "city", true), "title city");
    equal(withWord("title city", "title", false), "city");
});

test("keywordsAreAddedReplacedAndTakenOut", () => {
    equal(workOf({ keywords: "sea, gull;\nrock" }).fields.keywords, { add: ["sea", "gull", "rock"], remove: [] });
    equal(workOf({ keywords: "sea", removedKeywords: "gull" }).fields.keywords, { add: ["sea"], remove: ["gull"] });
    equal(workOf({ keywords: "sea, o'clock|x", keywordsMode: REPLACE }).fields.keywords, { set: ["sea", "o'clock|x"] });
    equal(workOf({ removedKeywords: "gull", keywordsMode: REPLACE }).fields.keywords, { add: [], remove: ["gull"] });
});

test("tokensAreFilledInForEachPicture", () => {
    const facts = { taken: "2026-08-14T10:20:30" };
    equal(workOf({ title: "{name} {counter:001}" }, "/p/lake.jpg", null, 4).fields.title, { set: ["lake 005"] });
    equal(workOf({ copyright: "© {taken:yyyy} Ana" }, "/p/a.jpg", facts).fields.copyright, { set: ["© 2026 Ana"] });
    equal(workOf({ keywords: "{folder}, sea" }, "/Trips, old/a.jpg").fields.keywords.add, ["Trips, old", "sea"]);
    isTrue(workMaker(settings({ caption: "{camera}" })).needsFacts);
});

test("aTokenWithoutValueLeavesTheField", () => {
    equal(workOf({ title: "{lens}" }, "/p/a.jpg", { lens: "" }), NOTHING);
});

test("datesAreSetOrShifted", () => {
    equal(workOf({ dateTaken: "2026-08-14 10:20" }).fields.dateTaken, { set: ["2026-08-14 10:20"] });
    equal(workOf({ shift: "−0:05", zone: "+02:00" }).fields.dateTaken, { shift: -300, zone: "+02:00" });
    equal([["+1:30"], ["2:00"], ["-0:00:07"], ["1:60"], ["an hour"], ["-"]].map(([text]) => shiftSeconds(text)),
          [5400, 7200, -7, null, null, null]);
});

test("saysWhatIsWrong", () => {
    equal(validate(defaults), []);
    equal(validate(settings({ dateTaken: "2026-08-14T10:20:30.25+02:00", countryCode: "PRT" })), []);
    [{ dateTaken: "yesterday" }, { shift: "1" }, { zone: "CET" }, { countryCode: "Portugal" }, { title: "{nothing}" },
     { dateTaken: "2026-08-14", shift: "1:00" }].forEach((own) =>
        isTrue(validate(settings(own)).length > 0, JSON.stringify(own)));
});

test("theLogSaysFieldsAndNotWhatTheySay", () => {
    equal(describe(settings({ title: "secret", cleared: "city", removed: "places" })),
          "Title, City cleared, Places removed");
});

test("saysWhatChanges", () => {
    const item = { stated: { caption: { value: ["a\nb"] }, keywords: { value: ["sea", "gull"] },
                             city: { value: ["Rome"] } },
                   planned: { title: ["New"], caption: ["c"], keywords: ["sea", "rock"], city: [], rating: ["4"] },
                   inPlace: true, work: { remove: ["places"] } };
    equal(changeWords(item), ["Title: “New”", "Caption: “a b” → “c”", "Keywords: +rock, −gull",
                              "City: cleared, was “Rome”", "Rating: “4 stars”", "without Places"]);
    equal(changeWords(Object.assign(item, { inPlace: false })).length, 5);
});

test("saysAllThreeValuesOfADispute", () => {
    const stated = { caption: { exif: ["a"], iptc: [], xmp: ["b"], disputed: true },
                     title: { exif: [], iptc: ["t"], xmp: ["t"], disputed: false } };
    equal(disputeWords(stated), ["Caption: EXIF “a”, IPTC nothing, XMP “b”"]);
});

test("aTemplateKeepsEverySetting", () => {
    const own = settings({ simulation: true, keywordsMode: REPLACE, cleared: "city", removed: "places faces",
                           rating: "-1" });
    Object.keys(defaults).filter((name) => defaults[name] === "" && own[name] === "")
        .forEach((name) => { own[name] = name + " it's | 100 %\nline – 日本"; });
    const kinds = { fields: Object.assign({ standard: defaults }, presets) };
    const row = rowOf(presets.form, "Press", own);
    isTrue(row.length === 62 && row.every((text) => !/['|]/.test(text)), "no such characters");
    equal(presetOf(row.join("|"), kinds).settings, own);
});

finish();
