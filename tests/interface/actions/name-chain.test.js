import { copyOf } from "../../../interface/lib/copies.js";
import { cNSStringHandling } from "quorlin";
import { NameChain } from "../../../interface/actions/rename/name-chain.js";
import { chosenPieces, KINDS, newStep, stepFrom, stepProblems,
         WORDS } from "../../../interface/actions/rename/name-steps.js";
import { riskOf } from "../../../interface/actions/rename/risky-names.js";
import { cutAt, hasHalf } from "../../../interface/actions/rename/text-cuts.js";
import { equal, finish, isTrue, test } from "../check.js";

const names = new cNSStringHandling();
const FACTS = { taken: "2026-08-14T10:20:30", created: "", changed: "", camera: "", lens: "", type: "JPEG",
                bytes: 2400000, size: "2.4 MB", width: 40, height: 30 };

function made(steps, path, isFolder, facts) {
    return new NameChain(steps, names, { standIns: {}, standIn: "undated" }).apply(path, isFolder === true,
                                                              facts === undefined ? FACTS : facts, true);
}

// [what, steps, old name, new name]
const ROWS = [
    ["nothing to do", [], "IMG_2041.JPG", "IMG_2041.JPG"],
    ["lower case of the extension", [["case", { part: "extension" }]], "IMG_2041.JPG", "IMG_2041.jpg"],
    ["upper case of both", [["case", { mode: "2", part: "both" }]], "été.jpg", "ÉTÉ.JPG"],
    ["words", [["case", { mode: "3" }]], "JOHN smith.jpg", "John Smith.jpg"],
    ["letters and digits", [["letters", {}]], "Été 2019!.tif", "Été2019.tif"],
    ["letters only", [["letters", { keep: "OL" }]], "Été 2019!.tif", "Été.tif"],
    ["strip from the left", [["strip", { count: 4 }]], "IMG_2041.JPG", "2041.JPG"],
    ["strip from the right", [["strip", { side: "fRight", count: 2 }]], "Photo01.jpg", "Photo.jpg"],
    ["strip all", [["strip", { count: 7 }]], "Photo01.jpg", ""],
    ["strip more than there is", [["strip", { count: 8 }]], "Photo01.jpg", "Photo01.jpg"],
    ["a section", [["section", { start: 5, length: 4 }]], "IMG_1234.jpg", "1234.jpg"],
    ["a section beyond the end", [["section", { start: 7, length: 4 }]], "IMG_1234.jpg", "IMG_1234.jpg"],
    ["insert at the start", [["insert", { text: "a ", position: 0 }]], "b.jpg", "a b.jpg"],
    ["insert from the end", [["insert", { text: "-", from: "end", position: 2 }]], "abcd.jpg", "ab-cd.jpg"],
    ["insert beyond the end", [["insert", { text: "-", position: 9 }]], "abcd.jpg", "abcd.jpg"],
    ["replace", [["replace", { search: "_", replacement: " " }]], "a_b_c.jpg", "a b c.jpg"],
    ["replace by case", [["replace", { search: "A", replacement: "x" }]], "aA.jpg", "ax.jpg"],
    ["replace nothing", [["replace", { search: "", replacement: "x" }]], "a.jpg", "a.jpg"],
    ["replace in the whole", [["replace", { search: ".jpeg", replacement: ".jpg", part: "both" }]], "a.jpeg", "a.jpg"],
    ["fold accents", [["fold", {}]], "Été über.jpg", "Ete uber.jpg"],
    ["fold what has no plain form", [["fold", {}]], "日本.jpg", "??.jpg"],
    ["fold with something else", [["fold", { other: "_" }]], "日本?.jpg", "__?.jpg"],
    ["remove spaces", [["spaces", {}]], "a b\tc.jpg", "ab\tc.jpg"],
    ["split and take the last", [["split", { pieces: "-1" }]], "a_b_c.jpg", "c.jpg"],
    ["split and turn round", [["split", { pieces: "2,1", joiner: "-" }]], "a_b.jpg", "b-a.jpg"],
    ["split and join", [["split", { joiner: " " }]], "a_b_c.jpg", "a b c.jpg"],
    ["split without that piece", [["split", { pieces: "7" }]], "a_b.jpg", "a_b.jpg"],
    ["before and after", [["around", { before: "x ", after: " y" }]], "a.jpg", "x a y.jpg"],
    ["one writing of accents", [["utf8", {}]], "e\u0301.jpg", "\u00e9.jpg"],
    ["the other writing of accents", [["utf8", { form: "NFD" }]], "\u00e9.jpg", "e\u0301.jpg"],
    ["only names that contain", [["only", { text: "img" }], ["around", { before: "x" }]], "IMG_1.jpg", "xIMG_1.jpg"],
    ["not names that begin otherwise", [["only", { where: "begins", text: "img" }], ["around", { before: "x" }]],
     "IMG_1.jpg", "IMG_1.jpg"],
    ["an ending longer than the name", [["only", { where: "ends", text: "longer" }], ["around", { before: "x" }]],
     "a.jpg", "a.jpg"],
    ["an ending", [["only", { where: "ends", text: "PG", part: "extension" }], ["around", { before: "x" }]], "a.JPG",
     "xa.JPG"],
    ["a text with tokens", [["text", { pattern: "{taken} lake {counter:001}" }], ["case", { part: "extension" }]],
     "IMG.JPG", "2026-08-14 lake 001.jpg"],
    ["a text with the name so far", [["case", {}], ["text", { pattern: "{name}-x" }]], "IMG.JPG", "img-x.JPG"],
    ["a step that is off", [["around", { before: "x", on: false }]], "a.jpg", "a.jpg"],
    ["a hidden file", [["around", { after: "x" }]], ".hidden", ".hiddenx"],
    ["no extension", [["case", { part: "extension" }]], "README", "README"],
    ["an extension that came with the text", [["text", { pattern: "a.b" }]], "x.jpg", "a.b.jpg"],
];

for (const entry of ROWS) {
    test("names: " + entry[0], () => {
        equal(made(entry[1].map((step) => newStep(step[0], step[1])), "/p/" + entry[2]).name, entry[3]);
    });
}

test("takesTheWholeNameOfAFolder", () => {
    equal(made([newStep("case", {})], "/p/2024.AUG", true).name, "2024.aug");
    equal(made([newStep("case", { part: "extension" })], "/p/2024.AUG", true).name, "2024.AUG");
});

test("saysWhichStepsCouldNotChangeAShortName", () => {
    equal(made([newStep("case"), newStep("strip", { count: 8 }), newStep("section", { start: 3, length: 20 })],
               "/p/Photo01.jpg").short, [1, 2]);
});

test("saysWhatIsMissing", () => {
    const result = made([newStep("text", { pattern: "{taken} {camera}" })], "/p/a.jpg", false, null);
    equal([result.name, result.missing], ["undated undated.jpg", ["taken", "camera"]]);
});

test("makesNoFoldersOfValues", () => {
    const facts = Object.assign({}, FACTS, { camera: "Canon/EOS" });
    equal(made([newStep("text", { pattern: "{camera}" })], "/p/a.jpg", false, facts).name, "Canon-EOS.jpg");
});

test("leavesASlashThatWasTypedToBeToldOf", () => {
    equal(made([newStep("around", { after: "/x", part: "both" })], "/p/a.jpg").name, "a.jpg/x");
});

test("tellsTheNameAfterEachStep", () => {
    equal(made([newStep("strip", { count: 4 }), newStep("around", { before: "lake " })], "/p/IMG_2041.jpg").trace,
          { 0: "2041.jpg", 1: "lake 2041.jpg" });
});

// [scope, paths, numbers]
const COUNTERS = [
    ["run", ["/a/1.j", "/a/2.j", "/b/3.j"], ["05.j", "07.j", "09.j"]],
    ["folder", ["/a/1.j", "/b/2.j", "/a/3.j"], ["05.j", "05.j", "07.j"]],
    ["date", ["/a/14.j", "/a/15.j", "/a/14.j"], ["05.j", "05.j", "07.j"]],
];

for (const entry of COUNTERS) {
    test("restarts for each " + entry[0], () => {
        const chain = new NameChain([newStep("text",
                                             { pattern: "{counter:05}", counterStep: 2, counterScope: entry[0] })],
                                             names, () => "");
        const facts = (path) => Object.assign({}, FACTS, { taken: "2026-08-" + path.slice(3, 5) + "T10:00:00" });
        equal(entry[1].map((path) => chain.apply(path, false, facts(path), false).name), entry[2]);
    });
}

// [text, position, harm]
const CUTS = [
    ["abc", 1, ""], ["abc", 0, ""], ["abc", 3, ""], ["a\ud83d\ude00b", 2, "half"], ["a\ud83d\ude00b", 1, ""],
    ["a\ud83d\ude00b", 3, ""], ["e\u0301x", 1, "mark"], ["e\u0301x", 2, ""], ["\u2764\ufe0f", 1, "mark"],
    ["\ud83d\udc69\u200d\ud83d\udcbb", 3, "mark"], ["\ud83d\udc4d\ud83c\udffd", 2, "mark"],
];

for (const entry of CUTS) {
    test("cuts " + JSON.stringify(entry[0]) + " at " + entry[1], () => equal(cutAt(entry[0], entry[1]), entry[2]));
}

test("knowsHalfACharacter", () => {
    equal(["a", "\ud83d\ude00", "\ud83d", "\ude00", "\ud83da"].map(hasHalf), [false, false, true, true, true]);
});

test("saysWhenACharacterIsParted", () => {
    equal(made([newStep("strip", { count: 1 })], "/p/\ud83d\ude00a.jpg").cut, "half");
    equal(made([newStep("strip", { count: 1 })], "/p/e\u0301a.jpg").cut, "mark");
    equal(made([newStep("section", { start: 1, length: 1 })], "/p/e\u0301a.jpg").cut, "mark");
    equal(made([newStep("insert", { text: "x", position: 1 })], "/p/\ud83d\ude00a.jpg").cut, "half");
    equal(made([newStep("strip", { count: 2 })], "/p/\ud83d\ude00a.jpg").cut, "");
});

test("choosesPieces", () => {
    const all = ["a", "b", "c"];
    equal(["", "2", "-1", "3,1", "9", "1,9,2", "-4"].map((list) => chosenPieces(all, list).join("")),
          ["abc", "b", "c", "ca", "", "ab", ""]);
});

test("warnsOfNamesThatOtherSystemsDoNotTake", () => {
    const risky = ["a:b.jpg", "a?.jpg", "a\\b", "a*", "a<", "a>", "a|", "a\"", "con", "COM1.txt", "a.", "a ", " a",
                   "a\u0001"];
    isTrue(risky.every((name) => riskOf(name) !== ""));
    isTrue(["a.jpg", "console.jpg", "été", "a b", "com10.txt", ".hidden"].every((name) => riskOf(name) === ""));
});

test("takesOnlyStepsThatItKnows", () => {
    const kept = KINDS.map((kind) => copyOf(newStep(kind)));
    equal(kept.map(stepFrom), kept);
    equal(stepFrom({ kind: "case" }), newStep("case"));
    equal([null, 1, {}, { kind: "nothing" }, { kind: "case", mode: "9" }, { kind: "case", mode: 1 },
           { kind: "strip", count: 1.5 }, { kind: "strip", side: "left" }, { kind: "case", part: "all" },
           { kind: "case", on: "yes" }].map(stepFrom).filter((step) => step !== null), []);
    equal(Object.keys(stepFrom({ kind: "case", other: 1 })).indexOf("other"), -1);
    isTrue(Object.keys(WORDS).length > 5);
});

test("saysWhatIsWrongWithAStep", () => {
    equal(stepProblems(newStep("text", { pattern: "" })).length, 1);
    equal(stepProblems(newStep("text", { pattern: "{nobody}" })).length, 1);
    equal(stepProblems(newStep("split", { pieces: "1;2" })).length, 1);
    equal(["", "1", "2, 1", "-1"].map((pieces) => stepProblems(newStep("split", { pieces: pieces })).length),
          [0, 0, 0, 0]);
});

finish();
