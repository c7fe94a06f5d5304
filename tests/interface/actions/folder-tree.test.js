import { endsWithFolders, FolderBook, rowsBelow, treeRows } from "../../../interface/actions/sort/folder-tree.js";
import { equal, finish, test } from "../check.js";
import { FakeFiles } from "../fakes.js";

function book(entries) {
    return new FolderBook(new FakeFiles(entries || {}));
}

function shown(filled) {
    return treeRows(filled).map((row) => [row.path, row.above, row.name, row.count, row.total, row.isNew]);
}

test("countsIntoFoldersAndThoseAbove", () => {
    const filled = book({ "/p": "folder", "/p/2026": "folder" });
    const day = filled.place("/p", ["2026", "08-14"]);
    const year = filled.place("/p", ["2026"]);
    filled.place("/p", ["2025"]);
    filled.count(day, 0);
    filled.count(day, 1);
    filled.count(year, 2);
    equal(shown(filled), [["/p", "", "/p", 0, 3, false], ["/p/2026", "/p", "2026", 1, 3, false],
                          ["/p/2026/08-14", "/p/2026", "08-14", 2, 2, true]]);
    equal([rowsBelow(filled, "/p"), rowsBelow(filled, "/p/2026/08-14"), rowsBelow(filled, "/else")],
          [[2, 0, 1], [0, 1], []]);
});

test("takesTheSpellingOfTheDiskThenTheFirstOne", () => {
    const filled = book({ "/p": "folder", "/p/canon": "folder" });
    equal([filled.place("/p", ["Canon"]).path, filled.place("/p", ["CANON", "Mine"]).path,
           filled.place("/p", ["canon", "mine"]).path],
          ["/p/canon", "/p/canon/Mine", "/p/canon/Mine"]);
    equal(filled.place("/p", ["e\u0301"]).path === filled.place("/p", ["\u00e9"]).path, true);
});

test("tellsAFileThatHasTheNameOfAFolder", () => {
    const filled = book({ "/p": "folder", "/p/JPEG": 12, "/q": 3 });
    equal(filled.place("/p", ["JPEG", "x"]).inTheWay, "/p/JPEG");
    equal(filled.place("/p", ["png"]).inTheWay, "");
    equal(filled.place("/q", ["x"]).inTheWay, "/q");
});

test("joinsABaseToTheTreeAboveIt", () => {
    for (const order of [["/p", "/p/2026"], ["/p/2026", "/p"]]) {
        const filled = book({ "/p": "folder", "/p/2026": "folder" });
        const places = { "/p": ["2026", "a"], "/p/2026": ["b"] };
        const folders = order.map((base) => filled.place(base, places[base]));
        folders.forEach((folder, i) => filled.count(folder, i));
        equal(shown(filled).map((row) => row[0] + " " + row[4]).sort(),
              ["/p 2", "/p/2026 2", "/p/2026/a 1", "/p/2026/b 1"], order.join());
    }
});

test("asksTheDiskOnceForEachFolder", () => {
    const files = new FakeFiles({ "/p": "folder" });
    let asked = 0;
    files.folders = () => { asked += 1; return []; };
    const filled = new FolderBook(files);
    for (let i = 0; i < 100; i += 1) {
        filled.place("/p", ["x" + i % 10, "y"]);
    }
    equal(asked, 1);
});

const ENDS = [
    ["/p/2026/08", ["2026", "08"], true], ["/p/2026/08", ["08"], true], ["/p/2026/08", ["2026"], false],
    ["/2026/08", ["2026", "08"], true],
    ["/p/CANON", ["Canon"], true], ["/p", [], false], ["/08", ["2026", "08"], false],
];
for (const row of ENDS) {
    test("knows whether " + row[0] + " ends with " + row[1].join("/"),
         () => equal(endsWithFolders(row[0], row[1]), row[2]));
}

test("placesTenThousandInLittleTime", () => {
    const filled = book({ "/p": "folder" });
    const start = Date.now();
    for (let i = 0; i < 10000; i += 1) {
        filled.count(filled.place("/p", ["20" + i % 30, "day " + i % 900]), i);
    }
    print("10,000 files placed in " + (Date.now() - start) + " ms, " + treeRows(filled).length + " folders");
    equal(treeRows(filled)[0].total, 10000);
});

finish();
