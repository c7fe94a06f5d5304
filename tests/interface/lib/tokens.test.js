import {
    TOKENS, dateText, expand, namePart, needsFacts, orientationText, parse, problems, tokens,
} from "../../../interface/lib/tokens.js";
import { equal, finish, isTrue, test } from "../check.js";

const FACTS = {
    taken: "2026-08-14T10:20:30", created: "2025-01-02T03:04:05", changed: "2024-12-31T23:59:58",
    camera: "Canon EOS 40D",
    lens: "EF 50mm", bytes: 2440000, size: "2.4 MB", width: 4032, height: 3024, type: "JPEG", isFolder: false,
};
const PATH = "/photos/Holiday/IMG_4711.JPG";

function expanded(pattern, context) {
    return expand(parse(pattern), Object.assign({ path: PATH, facts: FACTS }, context || {}));
}

const PARSED = [
    ["", []],
    ["plain", [{ text: "plain" }]],
    ["{name}", [{ token: "name", form: "" }]],
    ["a{taken:yyyy}b", [{ text: "a" }, { token: "taken", form: "yyyy" }, { text: "b" }]],
    ["{a}{b}", [{ token: "a", form: "" }, { token: "b", form: "" }]],
    ["{{name}", [{ text: "{name}" }]],
    ["{{{name}", [{ text: "{" }, { token: "name", form: "" }]],
    ["{{{{", [{ text: "{{" }]],
    ["open {name", [{ text: "open {name" }]],
    ["} {", [{ text: "} {" }]],
    ["{}", [{ token: "", form: "" }]],
    ["{taken:HH:mm}", [{ token: "taken", form: "HH:mm" }]],
    ["{ name }", [{ token: "name", form: "" }]],
    ["ends {{", [{ text: "ends {" }]],
];

for (const row of PARSED) {
    test("takes apart “" + row[0] + "”", () => equal(parse(row[0]), row[1]));
}

const EXPANDED = [
    ["{name}.{extension}", "IMG_4711.JPG"], ["{folder}", "Holiday"], ["{taken}", "2026-08-14"],
    ["{taken:yyyy}/{taken:MM}", "2026/08"], ["{taken:yyMMdd HHmmss}", "260814 102030"],
    ["{taken:dd. MMM yyyy}", "14. Aug 2026"],
    ["{taken:EEE}", "Fri"], ["{date:yyyyMMdd}", "20260814"], ["{created:yyyy-MM-dd}", "2025-01-02"],
    ["{changed:EEE HH:mm:ss}", "Tue 23:59:58"],
    ["{camera}, {lens}", "Canon EOS 40D, EF 50mm"], ["{width}x{height}", "4032x3024"], ["{size}", "2.4 MB"],
    ["{size:class}", "1 to 5 MB"], ["{size:MB}", "2.4"], ["{type}", "JPEG"], ["{orientation}", "Landscape"],
    ["{counter}", "1"], ["{counter:001}", "001"], ["{counter:0098}", "0098"], ["{{name}", "{name}"],
    ["{name:3}", "IMG"], ["{name:word}", "IMG"], ["{name:~dsc, img}", "img"],
];

for (const row of EXPANDED) {
    test("expands “" + row[0] + "”", () => equal(expanded(row[0]), { text: row[1], missing: [] }));
}

test("countsOnFromTheFirstNumber", () => {
    equal([0, 1, 9, 99, 999].map((index) => expanded("{counter:01}", { index: index }).text),
          ["01", "02", "10", "100", "1000"]);
    equal(expanded("{counter:098}", { index: 2 }).text, "100");
});

test("tellsWhatIsMissingAndPutsInWhatStandsForIt", () => {
    const facts = Object.assign({}, FACTS, { taken: "", camera: "", width: 0, height: 0 });
    equal(expanded("{taken:yyyy}-{camera}-{width}-{orientation}-{name}", { facts: facts }),
          { text: "----IMG_4711", missing: ["taken", "camera", "width", "orientation"] });
    equal(expanded("{taken:yyyy}", { facts: facts, standIn: (name, form) => "no " + name + " " + form }),
          { text: "no taken yyyy", missing: ["taken"] });
});

test("expandsWithoutFactsWhatThePathTells", () => {
    equal(expanded("{name} {extension} {folder} {taken} {size}", { facts: null }),
          { text: "IMG_4711 JPG Holiday  ", missing: ["taken", "size"] });
    equal([needsFacts(parse("a{name}{counter}{folder}")), needsFacts(parse("{size}")), needsFacts(parse(""))],
          [false, true, false]);
});

test("cleansValuesAndLeavesThePatternAsItIs", () => {
    const facts = Object.assign({}, FACTS, { camera: "A/B" });
    equal(expanded("x/{camera}", { facts: facts, clean: (value) => value.split("/").join("-") }).text, "x/A-B");
});

test("isNotMisledByValuesThatLookLikeTokens", () => {
    equal(expanded("{name}", { path: "/a/{taken}{{.jpg" }).text, "{taken}{{");
    equal(expand(parse("{{taken} {{"), { path: PATH, facts: FACTS }).text, "{taken} {");
});

test("writesSizesAsTheFactsSayThem", () => {
    equal(expanded("{size}", { facts: { bytes: 123400000, size: "123.4 MB" } }).text, "123.4 MB");
    equal(expanded("{size}", { facts: { bytes: 0, size: "0 bytes" } }).text, "0 bytes");
    equal(expanded("{size}", { facts: { bytes: -1, size: "" } }), { text: "", missing: ["size"] });
});

const MEGABYTES = [[0, "0"], [49999, "0"], [50000, "0.1"], [2440000, "2.4"], [2450000, "2.5"], [3e6, "3"],
                   [123400000, "123.4"], [1.25e9, "1250"]];
for (const row of MEGABYTES) {
    test("writes " + row[0] + " bytes in megabytes",
         () => equal(expanded("{size:MB}", { facts: { bytes: row[0] } }).text, row[1]));
}

const CLASSES = [[0, "Under 1 MB"], [999999, "Under 1 MB"], [1e6, "1 to 5 MB"], [5e6, "5 to 20 MB"],
                 [20e6, "20 MB and more"]];
for (const row of CLASSES) {
    test("puts " + row[0] + " bytes into a class",
         () => equal(expanded("{size:class}", { facts: { bytes: row[0] } }).text, row[1]));
}

const NAME_PARTS = [
    ["IMG_4711", "word", "IMG"], ["Holiday 2026", "word", "Holiday"], ["Müller-Hof", "word", "Müller"],
    ["4711", "word", ""],
    ["plain", "word", "plain"], ["_x", "word", ""], ["ab", "3", "ab"], ["a\u{1F600}bc", "2", "a\u{1F600}"],
    ["a bc", "2", "a"], ["Party at sea", "~sea, party", "sea"], ["STRASSE", "~strasse", "strasse"],
    ["cafe\u0301", "~caf\u00e9", "caf\u00e9"],
    ["nothing", "~x", ""],
];
for (const row of NAME_PARTS) {
    test("takes " + row[1] + " of " + row[0], () => equal(namePart(row[0], row[1]), row[2]));
}

const SOUND = ["", "plain", "{name}", "{{", "{{name}", "{taken:yyyy}/{taken:yyyy-MM-dd}", "{taken:dd.MM.yyyy}",
               "{counter:007}", "{name:12}",
               "{name:word}", "{name:~a,b}", "{size:class}", "a } b", "{taken:yyyy年MM月}"];
for (const pattern of SOUND) {
    test("finds nothing wrong with “" + pattern + "”", () => equal(problems(pattern), []));
}

const WRONG = [
    ["{foo}", "{foo}"], ["{}", "between the braces"], ["{taken:YYYY}", "YYYY"], ["{taken:yyyy-mmm}", "yyyy-mmm"],
    ["{counter:x}", "x"],
    ["{counter:-1}", "-1"], ["{name:0}", "0"], ["{name:~}", "~"], ["{name:~ , }", "~"], ["{size:KB}", "KB"],
    ["{camera:3}", "camera"],
    ["{name", "not closed"], ["{name} {", "not closed"], ["{Name}", "{Name}"],
];
for (const row of WRONG) {
    test("says what is wrong with “" + row[0] + "”", () => {
        const found = problems(row[0]);
        equal(found.length, 1, "problems of " + row[0]);
        isTrue(found[0].indexOf(row[1]) >= 0, found[0]);
    });
}

test("saysTheSameProblemOnce", () => equal(problems("{foo}{foo}").length, 1));

test("hasAnExampleOfEveryToken", () => {
    for (const each of tokens()) {
        isTrue(each.words !== "" && each.example !== "" && each.forms.length > 0, each.name);
        for (const form of each.forms) {
            equal(problems("{" + each.name + (form ? ":" + form : "") + "}"), []);
        }
    }
    equal(TOKENS.map((each) => each.name).filter((name) => expanded("{" + name + "}").text === ""), []);
});

test("tellsHowAPictureLies", () => {
    equal([[3, 2], [2, 3], [2, 2], [0, 0]].map((s) => orientationText({ width: s[0], height: s[1] })),
          ["Landscape", "Portrait", "Square", ""]);
});

test("writesEachMonthAndDay", () => {
    equal(["2026-01-04", "2026-12-05"].map((d) => dateText(d + "T00:00:00", "EEE MMM")), ["Sun Jan", "Sat Dec"]);
});

test("expandsTenThousandInLittleTime", () => {
    const parts = parse("{taken:yyyy}/{taken:yyyy-MM-dd}/{name}");
    const start = Date.now();
    for (let i = 0; i < 10000; i += 1) {
        expand(parts, { path: PATH, facts: FACTS, index: i });
    }
    const ms = Date.now() - start;
    print("10,000 texts of three tokens in " + ms + " ms");
    isTrue(ms < 5000, ms + " ms");
});

finish();
