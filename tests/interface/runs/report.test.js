import { appendRows, clearRows, keepRows, KEPT_ROWS, newRunName, trimRows } from "../../../interface/runs/log-file.js";
import { clockText, costOf, Progress } from "../../../interface/runs/progress.js";
import { csvHead, csvLines, logRow, summaryOf, toCsv } from "../../../interface/runs/report.js";
import { recall, withNewest } from "../../../interface/lib/store.js";
import { shortPath, statusText } from "../../../interface/lib/wording.js";
import { equal, finish, test } from "../check.js";
import { FakeFiles, photo } from "../fakes.js";

const done = { status: "OK", photo: photo("/p/a.jpg", 4, 3), name: "a.jpg", path: "/out/a.jpg", folder: "/out",
               bytes: 7 };
const broken = { status: "Failed", reason: 'no "picture", alas', photo: photo("/p/=b.jpg", 0, 0) };

test("countsTheFinalStates", () => {
    equal(summaryOf([done, broken, done]),
          { done: 2, failed: 1, unsupported: 0, skipped: 0, bytes: 14, folders: ["/out"] });
});

test("writesCsvThatKeepsQuotesAndIsNoFormula", () => {
    const text = toCsv([logRow(broken, "Resize", "longest 1600", "2026-11-21", "r")]);
    equal(text[0], "\uFEFF", "the mark by which spreadsheets know the letters");
    const lines = text.slice(1).split("\r\n");
    equal(lines.length, 3);
    equal(lines[1], '2026-11-21,Resize,longest 1600,Failed,"no ""picture"", alas","\'=b.jpg",,/p/=b.jpg,,0');
});

const FORMULAS = [["=1+1", '"\'=1+1"'], ["+cmd|x", '"\'+cmd|x"'], ["-a", '"\'-a"'], ["@SUM(A1)", '"\'@SUM(A1)"'],
                  ["\t=1", '"\'\t=1"'],
                  ["\r=1", '"\'\r=1"'], ["-5", "-5"], ["a=b", "a=b"], ["a,b", '"a,b"'], ['"', '""""'],
                  ["a\nb", '"a\nb"'], ["Été 日本", "Été 日本"]];
for (const row of FORMULAS) {
    test("cell " + JSON.stringify(row[0]), () => {
        const made = logRow({ status: "OK", reason: row[0], photo: photo("/p/a.jpg", 1, 1) }, "P", "A", "d", "r");
        equal(csvLines([made]), "d,P,A,OK," + row[1] + ",a.jpg,,/p/a.jpg,,0\r\n");
    });
}

test("editsHaveTwoColumnsMore", () => {
    const row = Object.assign(logRow(done, "P", "A", "d", "r"), { before: "a,b", after: "=1" });
    equal(csvHead(true).split(",").slice(-2), ["Before", "After\r\n"]);
    equal(csvLines([row], true), 'd,P,A,OK,,a.jpg,a.jpg,/p/a.jpg,/out/a.jpg,7,"a,b","\'=1"\r\n');
    equal([csvHead(false).indexOf("Before"), csvLines([row], false).split(",").length], [-1, 10]);
});

test("keepsTheLog", () => {
    const files = new FakeFiles({});
    const rows = [logRow(done, "Resize", "x", "d", "one"), logRow(broken, "Resize", "x", "d", "one")];
    equal(keepRows(files, []), "");
    equal(files.texts["/data/log.jsonl"], undefined);
    equal(keepRows(files, rows), "");
    equal(keepRows(files, rows.slice(0, 1)), "");
    equal(files.texts["/data/log.jsonl"].split("\n").slice(0, -1).map((line) => JSON.parse(line)),
          rows.concat(rows.slice(0, 1)));
    clearRows(files);
    equal(files.texts["/data/log.jsonl"], "");
});

test("cutsTheLogBackToTheNewestRowsWhenItHasGrownBeyondThem", () => {
    const files = new FakeFiles({});
    const line = JSON.stringify({ date: "2026-11-21T10:00:00.000Z", process: "Resize", input: "picture.jpg",
                                  inputPath: "/p/picture.jpg" });
    files.texts["/data/log.jsonl"] = (line + "\n").repeat(KEPT_ROWS + 10000);
    keepRows(files, [logRow(done, "Resize", "x", "d", "one")]);
    const lines = files.texts["/data/log.jsonl"].split("\n");
    equal(lines.length, KEPT_ROWS + 1);
    equal(JSON.parse(lines[KEPT_ROWS - 1]).run, "one");
});

test("rowsThatComeOneByOneLetTheLogGrowUntilItIsTrimmed", () => {
    const files = new FakeFiles({});
    const row = logRow(done, "Sort by Hand", "Move to Lake", "2026-11-21T10:00:00.000Z", "one");
    files.texts["/data/log.jsonl"] = (JSON.stringify(row) + "\n").repeat(KEPT_ROWS + 10000);
    appendRows(files, [row]);
    equal(files.texts["/data/log.jsonl"].split("\n").length, KEPT_ROWS + 10002);
    equal(trimRows(files), "");
    equal(files.texts["/data/log.jsonl"].split("\n").length, KEPT_ROWS + 1);
});

test("givesEachRunANameOfItsOwn", () => {
    const first = newRunName();
    equal(newRunName() === first, false);
});

const CLOCKS = [[0, "0:00"], [8000, "0:08"], [61000, "1:01"], [3700000, "1:01:40"]];
for (const row of CLOCKS) {
    test("clock " + row[0], () => equal(clockText(row[0]), row[1]));
}

test("saysNothingOfTheTimeLeftBeforeThereIsAMeasure", () => {
    const progress = new Progress([1, 1]);
    equal(progress.leftMs(), null);
    progress.add(1, 500);
    equal(progress.leftMs(), 500);
});

test("weighsPicturesByTheirPixels", () => {
    const costs = [costOf({ width: 1000, height: 1500 }), costOf({ width: 0, height: 0 })];
    const progress = new Progress(costs);
    progress.add(costs[0], 400);
    equal(progress.leftMs(), 100);
});

test("recallsKnownFieldsOfTheRightTypeOnly", () => {
    const kept = { get: () => '{"a": 5, "b": "x", "c": {"d": 2}, "z": 1}' };
    equal(recall(kept, "k", { a: 1, b: 2, c: { d: 1, e: 3 }, list: [] }), { a: 5, b: 2, c: { d: 2, e: 3 }, list: [] });
});

for (const text of ["", "{", "null", "[1]", "7"]) {
    test("recalls the standard values from " + text, () => equal(recall({ get: () => text }, "k", { a: 1 }), { a: 1 }));
}

test("putsTheNewestFirstOnce", () => equal(withNewest(["a", "b", "c"], "b", 2), ["b", "a"]));
test("shortensTheHomeFolderOnly", () => {
    equal([shortPath("/h/u/p", "/h/u"), shortPath("/h/user", "/h/u")], ["~/p", "/h/user"]);
});
test("saysStatusAndReason", () => equal(statusText("Failed", "why"), "Failed: why"));

finish();
