import { HandSorting } from "../../../interface/actions/hand/hand-sorting.js";
import { KEYS, labelOf, MOST_SLOTS, slotProblem, withFolders, withLabel, withMoved,
         withoutSlot } from "../../../interface/actions/hand/hand-slots.js";
import { equal, finish, isTrue, test } from "../check.js";
import { FakeFiles } from "../fakes.js";
import { OneByOne } from "../one-by-one.js";

const LAKE = { path: "/s/Lake", label: "Lake" };
const SEA = { path: "/s/Sea", label: "By the sea" };
const SHUT = { path: "/shut", label: "Shut" };

function made(disk, along) {
    const moves = new OneByOne(Object.assign({ "/p/a.jpg": "A", "/p/b.jpg": "B" }, disk || {}),
                               ["/p", "/s/Lake", "/s/Sea"]);
    const rows = [];
    const sorting = new HandSorting(moves, along || (() => []), (added) => { rows.push(...added); return ""; });
    return { moves: moves, rows: rows, sorting: sorting, disk: () => moves.disk };
}

function picture(id, path) {
    return { id: id, name: path.slice(path.lastIndexOf("/") + 1), path: path };
}

const A = picture(1, "/p/a.jpg");
const B = picture(2, "/p/b.jpg");

const ACTS = [
    ["move", { "/p/b.jpg": "B", "/s/Lake/a.jpg": "A" }, "/s/Lake/a.jpg", "Moved to Lake", "Move to Lake"],
    ["copy", { "/p/a.jpg": "A", "/p/b.jpg": "B", "/s/Lake/a.jpg": "A" }, "/p/a.jpg", "Copied to Lake", "Copy to Lake"],
    ["link", { "/p/a.jpg": "A", "/p/b.jpg": "B", "/s/Lake/a.jpg": "-> /p/a.jpg" }, "/p/a.jpg", "Linked in Lake",
     "Link in Lake"],
];
for (const [kind, disk, place, words, logged] of ACTS) {
    test(kind + " puts a picture into a folder, and is taken back", () => {
        const { sorting, rows, moves } = made();
        const before = JSON.stringify(moves.disk);
        equal(sorting.put(A, kind, LAKE).status, "OK");
        equal(Object.keys(moves.disk).sort().map((path) => [path, moves.disk[path]]),
              Object.keys(disk).sort().map((path) => [path, disk[path]]));
        equal([sorting.placeOf(A), sorting.wordsFor(A), sorting.wordsFor(B), sorting.countIn("/s/Lake")],
              [place, words, "", 1]);
        equal([rows[0].status, rows[0].action, rows[0].inputPath, rows[0].outputPath, rows[0].run],
              ["OK", logged, "/p/a.jpg", "/s/Lake/a.jpg", "run 1"]);
        equal(sorting.takeBack().act.id, 1);
        equal(Object.keys(moves.disk).sort(), Object.keys(JSON.parse(before)).sort());
        equal([sorting.placeOf(A), sorting.wordsFor(A), sorting.countIn("/s/Lake"), sorting.takeBack()],
              ["/p/a.jpg", "", 0, null]);
        equal([rows.length, rows[1].action, rows[1].status], [2, "Undo: " + logged, "OK"]);
    });
}

test("neverReplacesAFile", () => {
    const { sorting, moves, rows } = made({ "/s/Lake/a.jpg": "another" });
    sorting.put(A, "move", LAKE);
    equal([moves.disk["/s/Lake/a.jpg"], moves.disk["/s/Lake/a (2).jpg"], rows[0].output],
          ["another", "A", "a (2).jpg"]);
    equal(sorting.placeOf(A), "/s/Lake/a (2).jpg");
    sorting.takeBack();
    equal([moves.disk["/s/Lake/a.jpg"], moves.disk["/s/Lake/a (2).jpg"], moves.disk["/p/a.jpg"]],
          ["another", undefined, "A"]);
});

test("aPictureThatWasMovedGoesOnFromWhereItIs", () => {
    const { sorting, moves } = made();
    sorting.put(A, "move", LAKE);
    sorting.put(A, "copy", SEA);
    equal(sorting.wordsFor(A), "Moved to Lake · Copied to By the sea");
    sorting.put(A, "move", SEA);
    equal([sorting.placeOf(A), sorting.countIn("/s/Lake"), sorting.countIn("/s/Sea")], ["/s/Sea/a (2).jpg", 0, 2]);
    sorting.takeBack();
    equal([sorting.placeOf(A), sorting.countIn("/s/Lake"), sorting.countIn("/s/Sea")], ["/s/Lake/a.jpg", 1, 1]);
    sorting.takeBack();
    sorting.takeBack();
    equal([Object.keys(moves.disk).sort(), sorting.countIn("/s/Lake"), sorting.countIn("/s/Sea")],
          [["/p/a.jpg", "/p/b.jpg"], 0, 0]);
});

test("whatIsInTheTrashComesBackOnlyByUndo", () => {
    const { sorting, moves } = made();
    sorting.put(A, "move", LAKE);
    equal(sorting.trash(A).status, "OK");
    equal([sorting.isTrashed(A), sorting.wordsFor(A), sorting.countIn("/s/Lake")],
          [true, "Moved to Lake · In the trash", 0]);
    equal([sorting.put(A, "move", SEA).status, sorting.trash(A).status, moves.trashed], ["Failed", "Failed", ["A"]]);
    sorting.takeBack();
    equal([sorting.isTrashed(A), sorting.placeOf(A), sorting.countIn("/s/Lake")], [false, "/s/Lake/a.jpg", 1]);
});

test("doesNothingWhereThePictureIsInThatFolderAlready", () => {
    const { sorting, moves, rows } = made();
    equal(sorting.put(A, "move", { path: "/p", label: "Here" }).status, "Same");
    equal([moves.opened, rows.length], [0, 0]);
    sorting.put(A, "copy", LAKE);
    sorting.put(A, "copy", LAKE);
    equal(moves.disk["/s/Lake/a (2).jpg"], "A");
});

test("aFailureIsToldAndLoggedAndChangesNothing", () => {
    const { sorting, rows, moves } = made();
    const result = sorting.put(A, "move", SHUT);
    equal([result.status, result.message, sorting.wordsFor(A), sorting.countIn("/shut")], ["Failed", "locked", "", 0]);
    equal([rows[0].status, rows[0].reason, rows[0].outputPath, moves.disk["/p/a.jpg"]], ["Failed", "locked", "", "A"]);
    equal(sorting.takeBack(), null);
});

test("anUndoThatFailsLeavesTheActStanding", () => {
    const { sorting, moves, rows } = made();
    sorting.put(A, "move", LAKE);
    moves.stuck = true;
    equal(sorting.takeBack().message, "stuck");
    equal([sorting.wordsFor(A), sorting.placeOf(A), rows[1].status], ["Moved to Lake", "/s/Lake/a.jpg", "Failed"]);
    moves.stuck = false;
    equal(sorting.takeBack().status, "OK");
});

test("filesThatGoAlongGoAndComeBackWithTheirPicture", () => {
    const disk = { "/p/a.xmp": "settings", "/s/Lake/a.jpg": "another", "/p/a.jpg.thm": "small" };
    const { sorting, moves } = made(disk,
                                    (path) => (path === "/p/a.jpg"
                                               ? [{ name: "a.xmp", ending: ".xmp" },
                                                  { name: "a.jpg.thm", ending: ".jpg.thm" }] : []));
    const before = JSON.stringify(Object.keys(moves.disk).sort());
    sorting.put(A, "move", LAKE);
    equal([moves.disk["/s/Lake/a (2).jpg"], moves.disk["/s/Lake/a (2).xmp"], moves.disk["/s/Lake/a (2).jpg.thm"]],
          ["A", "settings", "small"]);
    equal(sorting.countIn("/s/Lake"), 1);
    sorting.takeBack();
    equal(JSON.stringify(Object.keys(moves.disk).sort()), before);
    sorting.put(A, "link", SEA);
    equal(moves.disk["/s/Sea/a.xmp"], undefined);
});

test("anUndoThatFailsInTheMiddleIsTakenUpWhereItStopped", () => {
    const { sorting, moves } = made({ "/p/a.xmp": "settings" }, () => [{ name: "a.xmp", ending: ".xmp" }]);
    sorting.put(A, "move", LAKE);
    const takeBack = moves.takeBack.bind(moves);
    let calls = 0;
    moves.takeBack = (run) => { calls += 1; moves.stuck = calls === 2; return takeBack(run); };
    equal(sorting.takeBack().status, "Failed");
    equal(sorting.takeBack().status, "OK");
    equal(["/p/a.jpg", "/p/a.xmp", "/p/b.jpg"].map((path) => moves.disk[path]), ["A", "settings", "B"]);
});

test("aSessionIsOneRunAndItsEndBeginsAnother", () => {
    const { sorting, moves, rows } = made();
    equal([sorting.isOpen(), sorting.end()], [false, ""]);
    sorting.put(A, "move", LAKE);
    sorting.put(B, "move", LAKE);
    equal([moves.opened, moves.title, sorting.isOpen()], [1, "Sort by Hand", true]);
    sorting.end();
    equal([moves.ended, sorting.countIn("/s/Lake"), sorting.takeBack()], [["run 1"], 0, null]);
    sorting.put(picture(1, "/s/Lake/a.jpg"), "move", SEA);
    equal(rows.map((row) => row.run), ["run 1", "run 1", "run 2"]);
});

test("aRunThatCannotBeOpenedMovesNothing", () => {
    const { sorting, moves } = made();
    moves.refuses = "the disk is full";
    equal([sorting.put(A, "move", LAKE).message, moves.disk["/p/a.jpg"], sorting.isOpen()],
          ["the disk is full", "A", false]);
});

test("aLogThatCannotBeWrittenIsTold", () => {
    const sorting = new HandSorting(new OneByOne({ "/p/a.jpg": "A" }, ["/s/Lake"]), () => [], () => "no room");
    sorting.put(A, "move", LAKE);
    equal(sorting.logProblem, "no room");
});

test("hasAKeyForEachOfFiftyNineSlots", () => {
    equal([KEYS.length, KEYS[0], KEYS[9], KEYS[10], KEYS[35], KEYS[36], KEYS[58]],
          [MOST_SLOTS, "1", "0", "A", "Z", "Shift+A", "Shift+W"]);
    isTrue(KEYS.every((key, i) => KEYS.indexOf(key) === i));
});

test("addsFoldersOnceAndNoMoreThanThereAreKeys", () => {
    const one = withFolders([], ["/s/Lake", "/s/Lake/", "/"]);
    equal(one, { slots: [{ path: "/s/Lake", label: "" }, { path: "/", label: "" }], added: 2, known: 1, full: 0 });
    equal(one.slots.map(labelOf), ["Lake", "/"]);
    const many = withFolders([], KEYS.concat(["x", "y"]).map((name) => "/s/" + name));
    equal([many.slots.length, many.added, many.full], [59, 59, 2]);
});

const MOVES = [[0, 2, "bca"], [2, 0, "cab"], [1, 1, "abc"], [0, 9, "bca"], [2, -1, "cab"]];
for (const [from, to, result] of MOVES) {
    test("moves slot " + from + " to " + to, () => {
        const slots = Array.from("abc").map((name) => ({ path: name, label: "" }));
        equal(withMoved(slots, from, to).map((slot) => slot.path).join(""), result);
        equal(slots.map((slot) => slot.path).join(""), "abc");
    });
}

const LABELS = [["Holiday", "Holiday"], ["  By the sea ", "By the sea"], ["Lake", ""], ["", ""], ["a\nb", "a b"]];
for (const [text, label] of LABELS) {
    test("label " + JSON.stringify(text),
         () => equal(withLabel([{ path: "/s/Lake", label: "x" }], 0, text), [{ path: "/s/Lake", label: label }]));
}

test("removesASlot", () => equal(withoutSlot([LAKE, SEA], 0), [SEA]));

test("saysWhatIsWrongWithAFolder", () => {
    const files = new FakeFiles({ "/s/Lake": "folder", "/s/file": 5, "/s/sealed": "folder" });
    const info = files.info.bind(files);
    files.info = (path) => Object.assign(info(path), { writable: path !== "/s/sealed" });
    equal(["/s/Lake", "/none", "/s/file", "/s/sealed"].map((path) => slotProblem(path, files)),
          ["", "not found", "not a folder", "read-only"]);
});

finish();
