import { tokens } from "quorlin/tokens";
import {
    folderNameProblems, foldersFor, levelChoices, levelsOf, patternOf, missingValues, patternProblems, prepared,
} from "../../../interface/actions/sort/sorting.js";
import { equal, finish, isTrue, test } from "../check.js";

const FACTS = {
    taken: "2026-08-14T10:20:30", created: "2025-01-02T03:04:05", changed: "2024-12-31T23:59:58",
    camera: "Canon EOS 40D", lens: "",
    bytes: 2440000, size: "2.4 MB", width: 3024, height: 4032, type: "JPEG", isFolder: false,
};
const RULE = { undated: "folder", undatedName: "No date" };

function sorted(pattern, facts, rule, path) {
    const ready = prepared(pattern);
    return foldersFor(ready, path || "/in/IMG_4711.JPG", facts === null ? null : Object.assign({}, FACTS, facts),
                      Object.assign({}, RULE, rule || {}), 0);
}

const FOLDERS = [
    ["{taken:yyyy}/{taken:yyyy-MM-dd}", {}, ["2026", "2026-08-14"]],
    ["{created:yyyy}/{changed:yyyy}", {}, ["2025", "2024"]],
    ["{type}", {}, ["JPEG"]], ["{size:class}", {}, ["1 to 5 MB"]], ["{orientation}", {}, ["Portrait"]],
    ["{name:word}", {}, ["IMG"]], ["{name:2}/{name:~4711,x}", {}, ["IM", "4711"]], ["{folder}", {}, ["in"]],
    ["Photos/{type} of {taken:yyyy}", {}, ["Photos", "JPEG of 2026"]],
    ["/{type}", {}, ["JPEG"]], ["//{type}//x/", {}, ["JPEG", "x"]],
    ["{camera}", { camera: "A/B" }, ["A-B"]], ["{camera}", { camera: "/etc/passwd" }, ["-etc-passwd"]],
    ["{camera}", { camera: ".." }, ["-"]], ["{camera}", { camera: "../../x" }, ["-..-x"]],
    ["{camera}/x", { camera: "..." }, ["-", "x"]],
    ["{camera}", { camera: ".hidden" }, ["hidden"]], ["{camera}", { camera: "x. " }, ["x"]],
    ["{camera}", { camera: "a\nb\u0000c" }, ["a b c"]],
    ["{camera}", { camera: "" }, ["Unknown camera"]], ["{lens}", {}, ["Unknown lens"]],
    ["{camera}.{lens}", { camera: "." }, ["Unknown lens"]], ["a{camera}", { camera: "." }, ["a"]],
    ["{taken:yyyy/MM}", {}, ["2026-08"]], ["{taken:HH:mm}", {}, ["10-20"]],
    ["{camera}", { camera: "<Digimax i50 MP3, Samsung #1 MP3>" }, ["-Digimax i50 MP3, Samsung #1 MP3-"]],
    ["{orientation}", { width: 0, height: 0 }, ["Unknown orientation"]],
    ["{rating}", { rating: 0 }, ["Not rated"]], ["{rating}", { rating: 3 }, ["3"]],
    ["{name:word}", {}, ["Other names"], "/in/4711.jpg"], ["{extension}", {}, ["Without extension"], "/in/4711"],
    ["{name}", {}, ["-"], "/in/....jpg"],
];

for (const row of FOLDERS) {
    test("sorts by " + row[0] + " with " + JSON.stringify(row[1]), () => {
        equal(sorted(row[0], row[1], {}, row[3]), { folders: row[2], isUndated: false, stays: false });
    });
}

const UNDATED = [
    ["{taken:yyyy}/{taken:yyyy-MM-dd}", "folder", ["No date"]],
    ["{camera}/{taken:yyyy}/{type}/{taken:MM}", "folder", ["Canon EOS 40D", "No date", "JPEG"]],
    ["{taken:yyyy}/{taken:yyyy-MM-dd}", "created", ["2025", "2025-01-02"]],
    ["{taken:yyyy}/{taken:yyyy-MM-dd}", "changed", ["2024", "2024-12-31"]],
];

for (const row of UNDATED) {
    test("sorts undated files by " + row[0] + " with the rule " + row[1], () => {
        equal(sorted(row[0], { taken: "" }, { undated: row[1] }), { folders: row[2], isUndated: true, stays: false });
    });
}

test("leavesUndatedFilesWhereThatIsTheRule", () => {
    equal(sorted("{taken:yyyy}", { taken: "" }, { undated: "leave" }), { folders: [], isUndated: true, stays: true });
    equal(sorted("{type}", { taken: "" }, { undated: "leave" }).stays, false, "a pattern without a date");
});

test("hasAFolderForFilesOfWhichNothingIsKnown", () => {
    equal(sorted("{taken:yyyy}", null, { undated: "created" }).folders, ["No date"]);
    equal(sorted("{type}/{size:class}", null).folders, ["Unknown type", "Unknown size"]);
});

test("neverGivesANameThatLeadsElsewhere", () => {
    const signs = ["/", ".", " ", "\\", "a", "\u0000", ":", "\ud83d", "\ud83d\ude00", "\u00e9"];
    let state = 12345;
    for (let round = 0; round < 3000; round += 1) {
        let value = "";
        for (let i = 0; i < 1 + round % 9; i += 1) {
            state = (state * 1103515245 + 12345) % 2147483648;
            value += signs[Math.floor(state / 65536) % signs.length];
        }
        for (const name of sorted("{camera}/x{lens}y/{camera}{lens}", { camera: value, lens: value }).folders) {
            isTrue(name !== "" && name !== "." && name !== ".." && !/[/\u0000\\]/.test(name) && !name.startsWith(".")
                   && name === name.trim(),
                   JSON.stringify([value, name]));
        }
    }
});

const LONG = "x".repeat(400);
test("cutsLongValues", () => {
    equal(sorted("{camera}-{lens}", { camera: LONG, lens: LONG }).folders[0].length, 180);
});

const PATTERN_PROBLEMS = [
    ["{taken:yyyy}", 0], ["Photos of mine/{type}", 0], ["/absolute/{type}", 0], ["a//b", 0], ["{{x}", 0],
    ["{name:~a,b}", 0],
    ["", 1], ["/", 1], ["//", 1], ["../{type}", 1], ["./{type}", 1], ["{type}/..", 1], ["{type}/ /x", 1], ["{foo}", 1],
    ["{type", 1],
    ["{taken:YYYY}", 1], ["a\u0001b", 1], [LONG, 1], ["{foo}/..", 2],
];
for (const row of PATTERN_PROBLEMS) {
    test("finds " + row[1] + " problems with the pattern “" + row[0].slice(0, 30) + "”",
         () => equal(patternProblems(row[0]).length, row[1]));
}

for (const row of [["Undated", 0], [" No date ", 0], ["", 1], ["  ", 1], ["a/b", 1], ["..", 1], [".x", 1]]) {
    test("finds " + row[1] + " problems with the folder name “" + row[0] + "”",
         () => equal(folderNameProblems(row[0]).length, row[1]));
}

test("choosesLevelsAndReadsThemBack", () => {
    for (const group of levelChoices()) {
        for (const choice of group) {
            equal(tokens.problems(choice.value), []);
            equal(levelsOf(choice.value), [choice.value, "", ""]);
        }
    }
    equal(levelsOf("{taken:yyyy}/{taken:yyyy-MM-dd}"), ["{taken:yyyy}", "{taken:yyyy-MM-dd}", ""]);
    equal(patternOf(["{taken:yyyy}", "", "{type}"]), "{taken:yyyy}/{type}");
    equal(levelsOf(""), ["", "", ""]);
    equal([levelsOf("x/{type}"), levelsOf("{type}/{type}/{type}/{type}"), levelsOf("{type}/")], [null, null, null]);
});

test("hasWordsForEveryMissingValue", () => {
    const { standIns, standIn } = missingValues();
    const path = tokens.offered().map((each) => each.name).filter((name) => standIns[name] === undefined);
    equal(path, ["date", "counter"], "tokens without a word of their own");
    for (const words of Object.values(standIns).concat([standIn])) {
        equal(tokens.folderName(words), words);
        isTrue(words.length > 0);
    }
});

test("sortsTenThousandInLittleTime", () => {
    const ready = prepared("{taken:yyyy}/{taken:yyyy-MM-dd}");
    const start = Date.now();
    for (let i = 0; i < 10000; i += 1) {
        foldersFor(ready, "/in/IMG_4711.JPG", FACTS, RULE, i);
    }
    const ms = Date.now() - start;
    print("10,000 files sorted in " + ms + " ms");
    isTrue(ms < 5000, ms + " ms");
});

finish();
