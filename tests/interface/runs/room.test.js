import { FakeFiles } from "../fakes.js";
import {
    DiskNeeds, guessedBytes, roomProblem, roomText, tooMuchText, WriteNeeds,
} from "../../../interface/runs/room.js";
import { equal, finish, test } from "../check.js";

const SPACES = { "/a": { disk: 1, free: 100 }, "/b": { disk: 1, free: 100 }, "/c": { disk: 2, free: 50 },
                 "/unknown": { disk: -1, free: -1 } };

function space(path) {
    return SPACES[path.startsWith("/unknown") ? "/unknown" : path.slice(0, 2)];
}

// Rows that are ready: [base, bytes, kind, code].
function needs(rows) {
    const plan = {
        paths: [], leftOut: [], ofRow: rows.map((row, i) => i),
        rows: rows.map((row) => ({ base: row[0], bytes: row[1], kind: row[2], to: row[0] + "/x" })),
        items: rows.map((row) =>
            (row[3] === "" ? null : { status: "ready", code: row[3], other: "", to: row[0] + "/x" })),
    };
    const sum = new DiskNeeds(space);
    rows.forEach((row, i) => sum.add(plan, i));
    return sum.disks();
}

const words = (bytes) => bytes + " B";

const ROWS = [
    [[["/a", 60, "copy", ""], ["/b", 50, "copy", ""]], "The files need 110 B, but /a has only 100 B free."],
    [[["/a", 60, "copy", ""], ["/c", 50, "copy", ""]], ""],
    [[["/a", 60, "copy", ""], ["/c", 51, "copy", "numbered"]], "The files need 51 B, but /c has only 50 B free."],
    [[["/a", 900, "move", ""], ["/a", 900, "link", ""]], ""],
    [[["/c", 900, "move", "disk"]], "The files need 900 B, but /c has only 50 B free."],
    [[["/unknown", 900, "copy", ""]], ""],
    [[], ""],
];

for (const row of ROWS) {
    test("tells too little room: " + JSON.stringify(row[0]),
         () => equal(roomText(needs(row[0]), words).problem, row[1]));
}

test("tellsWhatIsFreeWhereThereIsRoom", () => {
    equal(roomText(needs([["/a", 60, "copy", ""]]), words).note, "60 B to be written; 100 B free");
    equal(roomText(needs([["/a", 60, "copy", ""], ["/c", 6, "copy", ""]]), words).note, "66 B to be written");
});

// [path, folder, kind, whether there is room]
const SINGLE = [
    ["/a/x", "/b", "copy", false], ["/a/x", "/b", "move", true], ["/a/x", "/c", "move", false],
    ["/a/x", "/c", "link", true],
    ["/a/y", "/c", "move", true], ["/a/x", "/unknown", "copy", true],
];

for (const row of SINGLE) {
    test("knows whether " + row.slice(0, 3).join(" ") + " finds room", () => {
        const files = new FakeFiles({ "/a/x": 101, "/a/y": 50 });
        files.space = space;
        files.byteText = words;
        const free = row[1] === "/c" ? 50 : 100;
        equal(roomProblem(row[0], row[1], row[2], files),
              row[3] ? "" : "not enough space (needs 101 B, " + free + " B free)");
    });
}

// The trash of /a is on its own disk, that of /c on the one of /a.
function writes(rows) {
    const files = new FakeFiles({ "/a/old": 90, "/c/old": 45 });
    files.space = space;
    files.trashSpace = () => SPACES["/a"];
    const sum = new WriteNeeds(files);
    rows.forEach((row) => {
        sum.add(row[0], row[1]);
        if (row[2] !== undefined) {
            sum.addReplaced(row[0], row[2]);
        }
    });
    return sum;
}

const tooMuch = (bytes, free, folder) => "This run needs about " + bytes + " B, but " + folder + " has only " + free +
    " B free.";

// [rows: path, bytes of the result, bytes of what it replaces], bytes of all results as measured, the text
const WRITTEN = [
    [[["/a/x", 60], ["/a/y", 40]], -1, ""],
    [[["/a/x", 60], ["/b/y", 41]], -1, tooMuch(101, 100, "/a")],
    [[["/a/x", 60], ["/b/y", 41]], 90, ""],
    [[["/a/x", 6], ["/b/y", 4]], 150, tooMuch(150, 100, "/a")],
    // What stays on the same disk frees nothing there.
    [[["/a/old", 60, 0], ["/a/y", 41, 80]], -1, tooMuch(101, 100, "/a")],
    // What leaves it does, but not before its result is finished.
    [[["/c/old", 40, 0], ["/c/y", 45, 40]], -1, ""],
    [[["/c/old", 51, 0]], -1, tooMuch(51, 50, "/c")],
    [[["/c/old", 40, 0], ["/c/y", 40, 56]], -1, tooMuch(101, 100, "the disk of the trash")],
    [[["/a/x", 60], ["/c/old", 40, 0]], -1, tooMuch(105, 100, "/a")],
    [[["/unknown/x", 900]], -1, ""],
    [[], -1, ""],
];

for (const row of WRITTEN) {
    test("tells too little room for results: " + JSON.stringify(row.slice(0, 2)),
         () => equal(tooMuchText(writes(row[0]), row[1], words), row[2]));
}

test("guessesFromThePixels", () => {
    const photo = { width: 100, height: 50, bytes: 1000 };
    equal(guessedBytes(photo, { width: 50, height: 25 }), 250);
    const guessed = (from, to) => guessedBytes(Object.assign({ type: from }, photo),
                                               { width: 50, height: 20, type: to });
    equal(["jpeg", "webp", "png", "tiff", "bmp", "gif"].map((to) => guessed("JPEG", to)),
          [200, 200, 1200, 3000, 3000, 700]);
    // A drawing may be packed well without loss.
    equal(["png", "gif", "tiff"].map((to) => guessed("PNG", to)), [200, 200, 3000]);
    equal(guessedBytes(Object.assign({}, photo, { width: 0 }), { width: 50, height: 25 }), 0);
});

finish();
