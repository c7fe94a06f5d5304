import { copyOf } from "../../../interface/lib/copies.js";
import { decoded, encoded, fileText, freeName, nameProblem, newestVersion, presetOf, rowOf, rowsOfFile,
         storedName, typedName } from "../../../interface/presets/presets.js";
import { KINDS as STEP_KINDS, newStep } from "../../../interface/actions/rename/name-steps.js";
import { defaults as rename } from "../../../interface/actions/rename/rename-step.js";
import { defaults as resize } from "../../../interface/actions/resize/resize-step.js";
import { defaults as turn } from "../../../interface/actions/turn/turn-step.js";
import { dbViewController } from "quorlin";
import { equal, finish, isTrue, test } from "../check.js";
import { KINDS } from "./kinds.js";

// Those with a value for each setting: a preset of folders has none.
const ACTIONS = Object.keys(KINDS).filter((name) => KINDS[name].form.slots === undefined);
const FORMS = {};
const STANDARD = {};
Object.keys(KINDS).forEach((name) => {
    FORMS[name] = KINDS[name].form;
    STANDARD[name] = KINDS[name].standard;
});
const TEXTS = [
    "", " ", "plain", "it's", "a|b", "100 %", "%27", "%u0041", "%", "%%", "Größe – “x”", "日本語", "🙂🏔️", "e\u0301",
    "\ud83d", "\ude42x", "a\nb\tc\r",
    "\u0000", "\u007f", "\u2028", "\\'\"`", "0050", "1e3", "'; DROP TABLE Presets; --",
];

function leaves(value, path) {
    if (value === null || typeof value !== "object") {
        return [path];
    }
    return Object.keys(value)
        .reduce((all, key) => all.concat(leaves(value[key], path === "" ? key : path + "." + key)), []);
}

function readBack(action, settings) {
    return presetOf(rowOf(FORMS[action], "n", settings).join("|"), KINDS);
}

for (const action of ACTIONS) {
    const form = FORMS[action];

    test("keepsEverySettingOf " + action, () => {
        const mapped = Object.keys(form.columns).map((column) => form.columns[column][0])
            .concat(form.mode === "" ? [] : [form.mode]);
        equal(mapped.sort(), leaves(STANDARD[action], "").sort());
    });

    test("keepsNumbersAwayFromColumnsThatChangeThem " + action, () => {
        for (const column of Object.keys(form.columns)) {
            const place = Number(column.slice(8));
            const isWholeColumn = place >= 21 && place <= 41;
            isTrue(place >= 4 && place <= 61, column);
            equal(["whole", "flag"].indexOf(form.columns[column][1]) >= 0, isWholeColumn, column);
        }
    });

    test("comesBackAsItWas " + action, () => {
        const preset = readBack(action, STANDARD[action]);
        equal([preset.name, preset.process, preset.action, preset.state, preset.note],
              ["n", form.process, action, "ready", ""]);
        equal(preset.settings, STANDARD[action]);
    });

    test("keepsOddTexts " + action, () => {
        for (const text of STANDARD[action].output === undefined ? [] : TEXTS) {
            const settings = copyOf(STANDARD[action]);
            settings.output.destination.path = text;
            settings.output.destination.name = text + text;
            const row = rowOf(FORMS[action], "n", settings);
            isTrue(row.length === 62 && row.every((value) => !/['|\u0000-\u001f]/.test(value)), JSON.stringify(text));
            equal(presetOf(row.join("|"), KINDS).settings, settings, JSON.stringify(text));
        }
    });

    test("takesWhatCameLaterFromTheStandard " + action, () => {
        const row = rowOf(FORMS[action], "n", STANDARD[action]);
        for (const column of Object.keys(form.columns).filter((name) => form.columns[name][1] !== "text")) {
            row[Number(column.slice(8))] = "";
        }
        equal(presetOf(row, KINDS).settings, STANDARD[action]);
    });
}

function chain(steps) {
    return Object.assign(copyOf(rename), { steps: steps });
}

test("keepsAChainOfSteps", () => {
    const settings = chain(STEP_KINDS.map((kind) => newStep(kind, { on: kind !== "case" }))
                               .concat(TEXTS.map((text) => newStep("around", { before: text })).slice(0, 17)));
    equal(settings.steps.length, 30);
    const row = rowOf(FORMS.rename, "n", settings);
    isTrue(row.length === 62 && row.every((value) => !/['|\u0000-\u001f]/.test(value)));
    equal(presetOf(row.join("|"), KINDS).settings, settings);
});

test("keepsOddTextsInAStep", () => {
    for (const text of TEXTS) {
        const settings = chain([newStep("replace", { search: text, replacement: text + text })]);
        equal(readBack("rename", settings).settings, settings, JSON.stringify(text));
    }
});

test("takesNoStepThatItDoesNotKnow", () => {
    for (const text of ["{}", "nothing", "{\"kind\":\"later\",\"on\":true}", "{\"kind\":\"case\",\"mode\":\"9\"}", "[",
                        "null", "%27"]) {
        const row = rowOf(FORMS.rename, "n", chain([newStep("case")]));
        row[12] = text;
        equal(presetOf(row, KINDS).state, "damaged", text);
    }
});

test("givesEveryActionAProcessOfItsOwn", () => {
    const words = Object.keys(FORMS).map((name) => FORMS[name].process);
    equal(words.filter((word, i) => words.indexOf(word) === i), words);
});

test("keepsNumbersInTheirForm", () => {
    for (const angle of [0, -180, 12.5, 0.1, -0.05, 1e-7, 123456.789]) {
        const settings = copyOf(turn);
        settings.angle = angle;
        equal(readBack("turn", settings).settings.angle, angle);
    }
});

test("refusesSettingsWithoutAForm", () => {
    for (const value of [NaN, Infinity, "90", null, undefined]) {
        const settings = copyOf(turn);
        settings.angle = value;
        let message = "none";
        try {
            rowOf(FORMS.turn, "n", settings);
        } catch (error) {
            message = error.message;
        }
        equal(message, "The setting angle of Rotate and Flip has no form for a preset");
    }
});

test("leavesOthersPresetsAlone", () => {
    const sample = ["myPresetName", "Sorting", "ByHand"].concat(Array(59).fill("").map((none, i) => "Loc" + (i + 1)));
    const preset = presetOf(sample.join("|"), KINDS);
    equal([preset.name, preset.process, preset.action, preset.state, preset.settings],
          ["myPresetName", "Sorting", "hand", "unknown", null]);
    isTrue(preset.note.length > 0);
    const row = rowOf(FORMS.resize, "n", resize);
    for (const mark of ["", "Quorlin", "Quorlin 0", "Quorlin 01", "Quorlin x", "quorlin 1", "Quorlin 1 ", "Other 1"]) {
        row[3] = mark;
        equal(presetOf(row, KINDS).state, "unknown", mark);
    }
});

test("knowsANewerForm", () => {
    const row = rowOf(FORMS.resize, "n", resize);
    row[3] = "Quorlin " + (newestVersion(FORMS.resize) + 1);
    const preset = presetOf(row, KINDS);
    equal([preset.state, preset.settings, preset.action], ["newer", null, "resize"]);
    isTrue(/newer/.test(preset.note));
});

test("hasTheLowestVersionThatCanSayIt", () => {
    const mark = (changes) => rowOf(FORMS.resize, "n", Object.assign(copyOf(resize), changes))[3];
    equal(["fill", "stretch", "inside", "pad"].map((fit) => mark({ boxFit: fit })),
          ["Quorlin 1", "Quorlin 1", "Quorlin 2", "Quorlin 2"]);
    // Settings without new words need none.
    equal(mark({ padColor: "#102030", dpi: 300 }), "Quorlin 1");
    equal(ACTIONS.filter((name) => newestVersion(FORMS[name]) === 1).indexOf("resize"), -1);
});

test("needsALaterVersionForLaterTypes", () => {
    const mark = (action, type) => {
        const settings = copyOf(STANDARD[action]);
        settings.output.fileType = type;
        const row = rowOf(FORMS[action], "n", settings);
        equal(presetOf(row, KINDS).settings, settings);
        return row[3];
    };
    for (const action of ["crop", "turn", "round", "background", "watermark"]) {
        equal(["public.jp2", "org.webmproject.webp", "public.avif", "public.jpeg-xl"].map((type) => mark(action, type)),
              ["Quorlin 1", "Quorlin 2", "Quorlin 2", "Quorlin 2"]);
    }
    // Each has a separate version for what is left unchanged.
    const current = (action) => {
        const settings = copyOf(STANDARD[action]);
        settings.output.ifTaken = "current";
        const row = rowOf(FORMS[action], "n", settings);
        equal(presetOf(row, KINDS).settings, settings);
        return row[3];
    };
    equal(["resize", "crop", "convert"].map(current), ["Quorlin 4", "Quorlin 3", "Quorlin 3"]);
    // Its second version knows other fits, but none of these.
    equal([mark("resize", "public.jp2"), mark("resize", "public.avif")], ["Quorlin 1", "Quorlin 3"]);
});

test("needsALaterVersionForLaterTargetsOfConversions", () => {
    const mark = (target) => {
        const settings = Object.assign(copyOf(STANDARD.convert), { target: target });
        const row = rowOf(FORMS.convert, "n", settings);
        equal(presetOf(row, KINDS).settings, settings);
        return row[3];
    };
    equal(["jpeg", "pdf", "webp", "avif", "jxl"].map(mark),
          ["Quorlin 1", "Quorlin 1", "Quorlin 3", "Quorlin 3", "Quorlin 3"]);
});

test("takesTheQualityOfPicturesWhereNoneWasChosen", () => {
    // These actions wrote a quality before it could be chosen, and none of their results had it.
    for (const [action, isOwn] of [["turn", true], ["round", true], ["background", true], ["resize", false],
                                   ["crop", false], ["watermark", false]]) {
        const row = rowOf(FORMS[action], "n", STANDARD[action]);
        row[39] = "";
        equal(presetOf(row, KINDS).settings.output.ownQuality, isOwn, action);
    }
});

test("cropsThatOlderProgramsHaveNoWordsForAreOfAHigherVersion", () => {
    const mark = (changes) => rowOf(FORMS.crop, "n", Object.assign(copyOf(KINDS.crop.standard), changes))[3];
    equal([{ mode: "size", ratio: "3:2" }, { position: 8, dpi: 300, turnsRatio: false }].map(mark),
          ["Quorlin 1", "Quorlin 1"]);
    const later = [{ mode: "ratio", ratio: "3:2" }, { mode: "size", ratio: "7:5" }, { ratio: "custom" },
                   { position: 9 }];
    equal(later.map(mark), ["Quorlin 2", "Quorlin 2", "Quorlin 2", "Quorlin 2"]);
});

test("takesARowOfAnotherLengthForUnknown", () => {
    const row = rowOf(FORMS.resize, "n", resize);
    equal([presetOf(row.concat(["x"]), KINDS).state, presetOf(row.slice(1), KINDS).state, presetOf("", KINDS).state],
          ["unknown", "unknown", "unknown"]);
});

test("saysWhenAPresetIsDamaged", () => {
    const damages = [["StrField11", "12px"], ["StrField11", "0x10"], ["StrField11", "1e999"], ["StrField11", " 5"],
                     ["StrField22", "2"],
                     ["StrField22", "true"], ["StrField4", "%zz"], ["StrField4", "it's"], ["StrField4", "%41"],
                     ["StrField4", "public.heic"],
                     ["StrField5", "11"], ["StrField6", ""], ["StrField9", "overwrite"], ["StrField17", "tile"],
                     ["StrField18", "mile"]];
    for (const [column, value] of damages) {
        const row = rowOf(FORMS.resize, "n", resize);
        row[Number(column.slice(8))] = value;
        const preset = presetOf(row, KINDS);
        equal([preset.state, preset.settings], ["damaged", null], column + " " + value);
        isTrue(preset.note.length > 0);
    }
});

test("takesOnlyWordsThatASettingCanHave", () => {
    for (const [action, place, value] of [["resize", 2, "depth"], ["crop", 2, "x"], ["crop", 18, "7:1"],
                                          ["crop", 22, "10"], ["round", 2, "star"],
                                          ["round", 12, "red"], ["background", 2, "fur"], ["background", 13, "gold"],
                                          ["background", 14, "#12345"], ["convert", 2, "jpg"], ["convert", 11, "10"]]) {
        const row = rowOf(FORMS[action], "n", STANDARD[action]);
        row[place] = value;
        equal(presetOf(row, KINDS).state, "damaged", action + " " + place + " " + value);
    }
});

test("writesTextsThatAreReadBack", () => {
    for (const text of TEXTS) {
        equal(decoded(encoded(text)), text);
    }
    equal([encoded("it's 5 % | 🙂\n"), encoded("\ud83d")], ["it%27s 5 %25 %7C 🙂%0A", "%uD83D"]);
    equal([decoded("%2a"), decoded("%2A"), decoded("100%"), decoded("|")], [null, null, null, null]);
});

test("saysWhatANameCannotBe", () => {
    const names = ["Web", "Größe", "Anna\u2019s", "a\u00a6b"];
    for (const good of ["a", "it's", "b|c", "Web 1600", "100 %", "日本語 🙂", "Print 10 x 15 cm", "%41", "\"x\"", "; --",
                        "x".repeat(100)]) {
        equal(nameProblem(good, names), "", good);
    }
    const problems = [["", /Enter/], ["  \t", /Enter/], ["Anna's", /named Anna\u2019s/], ["a|b", /named a\u00a6b/],
                      ["a\nb", /line breaks/],
                      ["a\u0000", /control/], ["a\u007f", /control/], ["a\ud83d", /control/], ["x".repeat(101), /100/],
                      ["Web", /named Web already/],
                      [" wEB ", /named Web already/], ["Gro\u0308ße", /named Größe already/]];
    for (const [name, words] of problems) {
        isTrue(words.test(nameProblem(name, names)), JSON.stringify(name));
    }
});

test("replacesWhatTheDatabaseCannotTakeInAName", () => {
    equal([typedName("it's a|b"), storedName(" it's ")], ["it\u2019s a\u00a6b", "it\u2019s"]);
    equal(freeName("Anna's", ["Anna\u2019s"]), "Anna\u2019s 2");
    const row = ["it's a|b"].concat(rowOf(FORMS.resize, "a", resize).slice(1));
    const read = rowsOfFile(JSON.stringify({ format: "Quorlin presets", version: 1, presets: [row] }));
    equal(read, { rows: [["it\u2019s a\u00a6b"].concat(row.slice(1))], problem: "" });
});

test("findsAFreeName", () => {
    equal([freeName(" Web ", []), freeName("Web", ["web"]), freeName("Web", ["Web", "WEB 2", "Web 3"]),
           storedName("e\u0301 ")],
          ["Web", "Web 2", "Web 4", "é"]);
});

test("exportsAndImportsRowsAsTheyStand", () => {
    const rows = ACTIONS.map((action) => rowOf(FORMS[action], "Größe 🙂 " + action, STANDARD[action]));
    rows.push(["other", "Sorting", "ByHand"].concat(Array(59).fill("x")));
    equal(rowsOfFile(fileText(rows)), { rows: rows, problem: "" });
});

test("takesFromAFileOnlyWhatARowCanBe", () => {
    const good = rowOf(FORMS.resize, "a", resize);
    const bad = [good.slice(1), good.concat(["x"]), ["x".repeat(101)].concat(good.slice(1)), [""].concat(good.slice(1)),
                 good.slice(0, 61).concat(["a|b"]),
                 good.slice(0, 61).concat([3]), null, "text", {}];
    const read = rowsOfFile(JSON.stringify({ format: "Quorlin presets", version: 1, presets: bad.concat([good]) }));
    equal(read.rows, [good]);
    equal(read.problem, "9 of 10 presets in this file cannot be used.");
    for (const text of ["", "x", "null", "[]", "{}", "{\"format\": \"Quorlin presets\"}", "{\"presets\": []}"]) {
        equal(rowsOfFile(text), { rows: [], problem: "This file contains no presets." }, text);
    }
    isTrue(/newer/.test(rowsOfFile(JSON.stringify({ format: "Quorlin presets", version: 2, presets: [] })).problem));
});

test("keepsANumberedNameWithinItsLength", () => {
    for (const long of ["x".repeat(100), "🙂".repeat(50), "x" + "🙂".repeat(49)]) {
        const free = freeName(long, [long, freeName(long, [long])]);
        equal([nameProblem(free, [long]), free.endsWith(" 3"), free.length > 96], ["", true, true]);
    }
});

test("comesBackFromTheDatabase", () => {
    const db = new dbViewController();
    db.linkToPresetsDB();
    const name = "Größe 🙂 \u2019 " + Date.now();
    for (const action of ACTIONS) {
        const settings = copyOf(STANDARD[action]);
        const odd = "/Bilder/Anna's 100 % | 🙂/\u0001";
        if (settings.output === undefined) {
            settings.simulation = true;
            if (settings.steps === undefined) {
                settings.destination.path = odd;
            } else {
                settings.steps = [newStep("replace", { search: odd }), newStep("case")];
            }
        } else {
            settings.output.destination.path = odd;
            settings.output.simulation = true;
        }
        db.insertSortingPresetToDB01(rowOf(FORMS[action], name + action, settings));
        const rows = db.checkForActionType("Presets", "NameOfPreset", name + action).slice();
        db.removePresetFromDatabase("Presets", "NameOfPreset", name + action);
        equal(rows.length, 1);
        const preset = presetOf(rows[0], KINDS);
        equal([preset.name, preset.state], [name + action, "ready"]);
        equal(preset.settings, settings);
    }
});

finish();
