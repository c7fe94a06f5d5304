import { copyOf } from "../../../interface/lib/copies.js";
import * as sort from "../../../interface/actions/sort/sort-step.js";
import { treeRows } from "../../../interface/actions/sort/folder-tree.js";
import { KnownFacts } from "../../../interface/lib/known-facts.js";
import { stateOf } from "../../../interface/runs/move-words.js";
import { equal, finish, isTrue, test } from "../check.js";
import { FakeFiles } from "../fakes.js";

const DAY = "2026-08-14T10:20:30";

// Files that state a date, or none for "".
function servicesWith(dates, others) {
    const entries = Object.assign({ "/in": "folder" }, others || {});
    Object.keys(dates).forEach((path) => { entries[path] = 1000; });
    const files = new FakeFiles(entries);
    files.facts = (path) => (dates[path] === undefined ? null : {
        taken: dates[path], created: "2020-01-01T00:00:00", changed: "2021-01-01T00:00:00", camera: "", lens: "",
        bytes: 1000,
        width: 3, height: 2, type: "JPEG", isFolder: false,
    });
    return { files: files, facts: new KnownFacts(files) };
}

function rowsOf(dates, changes, others) {
    const settings = Object.assign(copyOf(sort.defaults), changes || {});
    const work = sort.rows(Object.keys(dates), settings, servicesWith(dates, others));
    let part = work.next();
    let upTo = 0;
    while (!part.done) {
        equal(part.value.from, upTo);
        upTo = part.value.to;
        part = work.next();
    }
    equal(upTo, Object.keys(dates).length);
    return part.value;
}

function paths(rows) {
    return rows.map((row) => row.to);
}

test("sortsBesideThePictures", () => {
    const rows = rowsOf({ "/in/a.jpg": DAY, "/in/x/b.jpg": DAY });
    equal(paths(rows), ["/in/2026/2026-08-14/a.jpg", "/in/x/2026/2026-08-14/b.jpg"]);
    equal([rows[0].kind, rows[0].number, rows[0].shown, rows[0].notes, rows[0].base],
          ["move", true, "2026/2026-08-14", [], "/in"]);
});

test("sortsIntoAChosenFolder", () => {
    const rows = rowsOf({ "/in/a.jpg": DAY, "/in/x/b.jpg": DAY },
                        { destination: { kind: "folder", path: "/out" }, kind: "copy", ifTaken: "skip" });
    equal(paths(rows), ["/out/2026/2026-08-14/a.jpg", "/out/2026/2026-08-14/b.jpg"]);
    equal([rows[0].kind, rows[0].number, rows[0].bytes], ["copy", false, 1000]);
});

const UNDATED = [
    ["folder", "/in/Undated/a.jpg", "no date taken"], ["created", "/in/2020/2020-01-01/a.jpg", "by date created"],
    ["changed", "/in/2021/2021-01-01/a.jpg", "by date changed"],
];
for (const row of UNDATED) {
    test("has a rule for undated files: " + row[0], () => {
        const rows = rowsOf({ "/in/a.jpg": "" }, { undated: row[0] });
        equal(paths(rows), [row[1]]);
        equal(rows[0].caution, row[2]);
    });
}

test("leavesUndatedFilesWithTheReason", () => {
    const rows = rowsOf({ "/in/a.jpg": "", "/in/b.jpg": DAY }, { undated: "leave" });
    equal([rows[0].to, rows[0].status, rows[0].reason], ["", "Skipped", "no date taken: not moved"]);
    const state = stateOf(rows[0], null, "");
    equal([state.state, state.kind, state.text], ["same", "caution", "no date taken: not moved"]);
    equal(rows[1].to, "/in/2026/2026-08-14/b.jpg");
});

test("leavesFilesThatLieRightAlready", () => {
    const rows = rowsOf({ "/in/2026/2026-08-14/a.jpg": DAY, "/in/2026/b.jpg": DAY });
    equal(paths(rows), ["/in/2026/2026-08-14/a.jpg", "/in/2026/2026/2026-08-14/b.jpg"]);
});

test("takesSidecarsAlong", () => {
    const rows = rowsOf({ "/in/a.jpg": DAY, "/in/a.png": DAY }, {}, { "/in/a.xmp": 1, "/in/a.png.xmp": 1 });
    equal(rows[0].along, [{ from: "/in/a.xmp", to: "/in/2026/2026-08-14/a.xmp" }]);
    equal(rows[1].along, [{ from: "/in/a.png.xmp", to: "/in/2026/2026-08-14/a.png.xmp" }]);
});

test("staysWhereNamesAreTakenIfThatIsTheRule", () => {
    const dates = { "/in/a.jpg": DAY };
    const item = { status: "refused", code: "taken", other: "/in/2026/2026-08-14/a.jpg",
                   to: "/in/2026/2026-08-14/a.jpg" };
    const skipping = stateOf(rowsOf(dates, { ifTaken: "skip" })[0], item, "");
    equal([skipping.state, skipping.kind, skipping.text], ["same", "caution", "stays: file already exists"]);
    equal(stateOf(rowsOf(dates, { ifTaken: "skip" })[0], Object.assign({}, item, { code: "locked" }), "").state,
          "attention");
    equal(stateOf(rowsOf(dates, { ifTaken: "number" })[0], item, "").state, "attention");
});

test("tellsAFileThatHasTheNameOfAFolder", () => {
    const rows = rowsOf({ "/in/a.jpg": DAY }, {}, { "/in/2026": 5 });
    equal([rows[0].to, rows[0].status, rows[0].reason],
          ["", "Skipped", "a file already has this folder name: /in/2026"]);
});

test("joinsFoldersThatDifferInCaseOnly", () => {
    const rows = rowsOf({ "/in/abc1.jpg": DAY, "/in/ABC2.jpg": DAY }, { pattern: "{name:word}" });
    equal(paths(rows), ["/in/abc/abc1.jpg", "/in/abc/ABC2.jpg"]);
});

test("countsFilesThatAreGoneAsUnknown", () => {
    const services = servicesWith({});
    const work = sort.rows(["/in/gone.jpg"], sort.defaults, services);
    work.next();
    equal(work.next().value[0].to, "/in/Undated/gone.jpg");
});

test("hasTheFoldersForTheTree", () => {
    const rows = rowsOf({ "/in/a.jpg": DAY, "/in/b.jpg": "2025-01-01T00:00:00" }, {}, { "/in/2026": "folder" });
    rows.forEach((row, i) => rows.book.count(row.node, i));
    equal(treeRows(rows.book).map((row) => row.path + " " + row.total + (row.isNew ? " new" : "")).sort(),
          ["/in 2", "/in/2025 1 new", "/in/2025/2025-01-01 1 new", "/in/2026 1", "/in/2026/2026-08-14 1 new"]);
});

const VALID = [
    [{}, 0], [{ pattern: "" }, 1], [{ pattern: "../x" }, 1], [{ undatedName: "" }, 1], [{ undatedName: "a/b" }, 1],
    [{ undatedName: "", undated: "leave" }, 0], [{ undatedName: "", pattern: "{type}" }, 0],
    [{ destination: { kind: "folder", path: "" } }, 1], [{ destination: { kind: "folder", path: "/x" } }, 0],
];
for (const row of VALID) {
    test("finds " + row[1] + " faults in " + JSON.stringify(row[0]), () => {
        equal(sort.validate(Object.assign({}, sort.defaults, row[0])).length, row[1]);
    });
}

test("describesItself", () => {
    equal([sort.describe(sort.defaults),
           sort.describe(Object.assign({}, sort.defaults,
                                       { kind: "copy", destination: { kind: "folder", path: "/x" } }))],
          ["move into {taken:yyyy}/{taken:yyyy-MM-dd}", "copy into {taken:yyyy}/{taken:yyyy-MM-dd} in /x"]);
});

test("sortsTenThousandFilesInSlices", () => {
    const dates = {};
    for (let i = 0; i < 10000; i += 1) {
        dates["/in/IMG_" + i + ".jpg"] = "20" + (10 + i % 15) + "-0" + (1 + i % 9) + "-1" + i % 10 + "T00:00:00";
    }
    const services = servicesWith(dates);
    const names = Object.keys(dates).map((path) => path.slice("/in/".length));
    services.files.namesEndingIn = () => names;
    services.files.folders = () => [];
    for (const round of ["first", "next"]) {
        const work = sort.rows(Object.keys(dates), sort.defaults, services);
        const start = Date.now();
        let longest = 0;
        let since = start;
        for (let part = work.next(); !part.done; part = work.next()) {
            longest = Math.max(longest, Date.now() - since);
            since = Date.now();
        }
        print("10,000 files, " + round + " time: " + (Date.now() - start) + " ms, the longest slice " + longest
              + " ms");
        // However busy the machine is: no slice is a large part of the whole.
        isTrue(longest < 100 || longest * 4 < Date.now() - start, longest + " ms");
    }
});

finish();
