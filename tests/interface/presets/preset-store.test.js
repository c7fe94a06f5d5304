import { copyOf } from "../../../interface/lib/copies.js";
import { PresetStore } from "../../../interface/presets/preset-store.js";
import { rowOf } from "../../../interface/presets/presets.js";
import { startingPresets, writeStartingPresets } from "../../../interface/presets/starting-presets.js";
import { equal, finish, isTrue, test } from "../check.js";
import { KINDS } from "./kinds.js";

// The actions that start with presets.
const STARTED = Object.keys(KINDS).filter((name) => KINDS[name].starting !== undefined);
const PATH = "/data/BrelmarkCom/QuorlinPS.sql";
const COLUMNS = { NameOfPreset: 0, Process: 1, Action: 2 };

function asData(text) {
    const bytes = new Uint8Array(text.length);
    for (let i = 0; i < text.length; i += 1) {
        bytes[i] = text.charCodeAt(i);
    }
    return bytes.buffer;
}

// The file that all services work on: rows with their IDs, and what is the matter with it.
class FakeFile {
    constructor() {
        this.rows = [];
        this.nextId = 1;
        this.exists = false;
        this.unreadable = false;
        this.withoutTable = false;
        this.sealed = false;
        this.text = "SQLite format 3\u0000";
    }

    add(row) {
        this.rows.push({ id: String(this.nextId), fields: row });
        this.nextId += 1;
    }

    matching(column, value) {
        return this.rows.filter((row) => (column === "ID" ? row.id : row.fields[COLUMNS[column]]) === value);
    }
}

function inconsistency(message) {
    return Object.defineProperty(new Error(message), "name", { value: "InternalInconsistency" });
}

// Answers as the service does, its old answers included.
class FakeDb {
    constructor(file) {
        this.file = file;
        this.myPresetsArray = null;
    }

    dbFilePath() {
        return PATH;
    }

    linkToPresetsDB() {
        if (this.file.exists) {
            return;
        }
        if (this.file.sealed) {
            throw inconsistency("Presets Db failed to open.");
        }
        this.file.exists = true;
    }

    fails(table, value) {
        return !this.file.exists || this.file.unreadable || value.indexOf("'") >= 0
            || (table === "Presets" && this.file.withoutTable);
    }

    checkForActionType(table, column, value) {
        if (this.fails(table, value)) {
            return null;
        }
        this.myPresetsArray = table === "Presets"
            ? this.file.matching(column, value).map((row) => row.fields.join("|")) : ["appSys"];
        return this.myPresetsArray.length > 0 ? this.myPresetsArray : null;
    }

    hGetBookMarkedFolders(table, columnA, valueA, columnB, valueB) {
        const found = this.fails(table, valueA)
            ? [] : this.file.matching(columnA, valueA).filter((row) => row.fields[COLUMNS[columnB]] === valueB);
        return found.length > 0 ? asData(found[found.length - 1].id) : null;
    }

    insertSortingPresetToDB01(values) {
        if (this.file.sealed || this.fails("Presets", values.join("|"))) {
            throw inconsistency("Error updating table.");
        }
        this.file.add(values.slice());
    }

    removePresetFromDatabase(table, column, value) {
        if (!this.file.sealed) {
            const gone = this.file.matching(column, value);
            this.file.rows = this.file.rows.filter((row) => gone.indexOf(row) < 0);
        }
        return "preset not found";
    }
}

class FakeDefaults {
    constructor() {
        this.kept = {};
    }

    get(key) {
        return this.kept[key] === undefined ? null : this.kept[key];
    }

    set(key, value) {
        this.kept[key] = value;
    }
}

function make(state) {
    const file = Object.assign(new FakeFile(), state);
    const texts = {};
    const files = {
        texts: texts,
        info: (path) => ({ exists: texts[path] !== undefined || file.exists, writable: file.writable !== false }),
        readText: (path) => path === PATH ? file.text : texts[path] || "",
        writeText: (path, text) => {
            texts[path] = text;
            return "";
        },
        setAsideUnusableDatabase: (path) => {
            if (!file.exists || !file.unusable) {
                return "";
            }
            Object.assign(file, { exists: false, unusable: false, unreadable: false, rows: [] });
            return path + ".unusable-1";
        },
    };
    return { file: file, files: files, store: new PresetStore(() => new FakeDb(file), files, KINDS) };
}

function changed(action, changes) {
    return Object.assign(copyOf(KINDS[action].standard), changes);
}

test("listsWhatWasSaved", () => {
    const { store } = make({});
    equal([store.list("resize"), store.problem], [[], ""]);
    equal(store.save("resize", "Größe 🙂", changed("resize", { longest: 77 })), "");
    equal(store.save("crop", "Other", changed("crop", {})), "");
    const [preset] = store.list("resize");
    equal([preset.name, preset.settings.longest, preset.fields.length, store.list("resize").length],
          ["Größe 🙂", 77, 62, 1]);
    equal(store.names().sort(), ["Größe 🙂", "Other"]);
});

test("replacesItsOwnPresetOnly", () => {
    const { file, store } = make({});
    store.list("resize");
    file.add(["Web", "Sorting", "ByHand"].concat(Array(59).fill("Loc")));
    store.save("resize", "Web", changed("resize", { longest: 1 }));
    store.save("resize", "Web", changed("resize", { longest: 2 }));
    equal([file.rows.length, file.rows[0].fields[1], store.list("resize")[0].settings.longest], [2, "Sorting", 2]);
    equal(store.remove("resize", "Web"), "");
    equal(file.rows.map((row) => row.fields[1]), ["Sorting"]);
});

test("givesADatabaseThatCanHoldNothingAway", () => {
    const { file, store } = make({ exists: true, unusable: true, unreadable: true, text: "" });
    equal([store.list("resize"), store.problem, file.exists], [[], "", true]);
    isTrue(/QuorlinPS\.sql\.unusable-1/.test(store.notice), store.notice);
    equal([store.save("resize", "Web", changed("resize", {})), store.list("resize").length], ["", 1]);
});

test("endsWhatWasCutOffBetweenStoringAndRemoving", () => {
    const { file, store } = make({});
    store.list("resize");
    file.add(["Web", "Sorting", "ByHand"].concat(Array(59).fill("Loc")));
    [1, 2, 3].forEach((longest) => file.add(rowOf(KINDS.resize.form, "Web", changed("resize", { longest: longest }))));
    file.add(rowOf(KINDS.crop.form, "Web", changed("crop", {})));
    equal(store.list("resize").map((preset) => preset.settings.longest), [3]);
    equal(file.rows.map((row) => [row.id, row.fields[1]]), [["1", "Sorting"], ["4", "Resize"], ["5", "Crop"]]);
});

// How long it takes to bring in so many presets of one name, and what came of it.
function manyOfOneName(count) {
    const { file, store } = make({});
    store.list("turn");
    // Looking for a name in the database costs what it costs there, and is nothing of this test.
    file.matching = (column, value) => column === "NameOfPreset"
        ? [] : file.rows.filter((row) => row.fields[COLUMNS[column]] === value);
    const start = Date.now();
    const done = store.bringIn(Array(count).fill(rowOf(KINDS.turn.form, "Web", changed("turn", {}))));
    return { ms: Date.now() - start, done: done, listed: store.list("turn").length };
}

test("bringsInThousandsOfOneName", () => {
    const { done, listed } = manyOfOneName(3000);
    equal([done.names.length, done.names[0], done.names[2999], done.problem], [3000, "Web", "Web 3000", ""]);
    equal(listed, 3000);
});

// Four times as many take four times as long; sixteen times would be a search through all names for each, in every try.
// Whatever else the machine does, it leaves one of them alone.
test("bringsInMoreOfOneNameInProportion", () => {
    const found = [];
    while (found.length < 12 && found.every((ratio) => ratio >= 8)) {
        const few = manyOfOneName(750).ms;
        found.push(manyOfOneName(3000).ms / Math.max(few, 1));
    }
    isTrue(found.some((ratio) => ratio < 8), "for four times as many so many times as long: " + found.join(", "));
});

test("removesAllCopiesAndShowsTheNewest", () => {
    const { file, store } = make({});
    store.list("resize");
    [1, 2, 3].forEach((longest) => file.add(rowOf(KINDS.resize.form, "Web", changed("resize", { longest: longest }))));
    equal(store.list("resize").map((preset) => preset.settings.longest), [3]);
    equal([store.remove("resize", "Web"), file.rows.length], ["", 0]);
});

test("leavesRowsOfAnUnknownOrNewerFormAlone", () => {
    const { file, store } = make({});
    store.list("resize");
    const newer = rowOf(KINDS.resize.form, "New", changed("resize", {}));
    newer[3] = "Quorlin 99";
    const foreign = rowOf(KINDS.resize.form, "Old", changed("resize", {}));
    foreign[3] = "";
    file.add(newer);
    file.add(foreign);
    equal(store.list("resize").map((preset) => preset.state), ["newer", "unknown"]);
    equal([store.remove("resize", "New"), store.remove("resize", "Old"), file.rows.length], ["", "", 2]);
    store.save("resize", "New", changed("resize", {}));
    equal(file.rows.map((row) => row.fields[3]), ["Quorlin 99", "", "Quorlin 1"]);
});

test("renamesAndKeepsTheSettings", () => {
    const { store } = make({});
    store.list("resize");
    store.save("resize", "Web", changed("resize", { longest: 5 }));
    equal(store.rename(store.list("resize")[0], "Größe"), "");
    equal(store.list("resize").map((preset) => [preset.name, preset.settings.longest]), [["Größe", 5]]);
    equal([store.rename(store.list("resize")[0], "Größe"), store.list("resize").length], ["", 1]);
});

// The note of a rename, in which the first `done` of its three steps were done before the end.
function cutOffRename(done) {
    const made = make({});
    made.store.list("resize");
    made.store.save("resize", "Web", changed("resize", { longest: 5 }));
    made.files.texts[PATH + ".renaming"] = JSON.stringify({ action: "resize", from: "Web", to: "Größe" });
    if (done > 0) {
        made.file.add(["Größe"].concat(made.file.rows[0].fields.slice(1)));
    }
    if (done > 1) {
        made.file.rows.shift();
    }
    return made;
}

test("endsARenameThatWasCutOff", () => {
    [["Web"], ["Größe"], ["Größe"]].forEach((names, done) => {
        const { store, files } = cutOffRename(done);
        equal(store.list("crop"), []);
        equal(store.list("resize").map((preset) => preset.name), names, String(done));
        equal([store.list("resize").length, files.texts[PATH + ".renaming"]], [1, ""]);
    });
});

test("leavesAPresetThatWasChangedSinceARenameWasCutOff", () => {
    const { store } = cutOffRename(1);
    store.save("resize", "Web", changed("resize", { longest: 6 }));
    equal(store.list("resize").map((preset) => preset.name), ["Größe", "Web"]);
    for (const text of ["no note", "null", "[]", JSON.stringify({ action: "resize", from: 1, to: "Web" })]) {
        const { store: other, files } = cutOffRename(1);
        files.texts[PATH + ".renaming"] = text;
        equal(other.list("resize").length, 2, text);
    }
});

test("saysWhenAnotherProgramHasThatName", () => {
    const { file, store } = make({});
    store.list("resize");
    file.add(["Mine", "Sorting", "ByHand"].concat(Array(59).fill("Loc")));
    isTrue(/named Mine already/.test(store.nameProblem(" Mine ", [])));
    equal(store.nameProblem("Free", []), "");
});

test("bringsRowsInUnderFreeNames", () => {
    const { file, store } = make({});
    store.list("resize");
    file.add(["Web 2", "Sorting", "ByHand"].concat(Array(59).fill("Loc")));
    store.save("resize", "Web", changed("resize", {}));
    const rows = [rowOf(KINDS.crop.form, "Web", changed("crop", {})),
                  rowOf(KINDS.turn.form, "Free", changed("turn", {}))];
    equal(store.bringIn(rows), { names: ["Web 3", "Free"], renamed: 1, problem: "" });
    equal(file.rows.map((row) => row.fields[0]), ["Web 2", "Web", "Web 3", "Free"]);
});

test("saysWhyPresetsCannotBeRead", () => {
    const cases = [
        [{ sealed: true }, /could not be created/],
        [{ exists: true, unreadable: true }, /in use by another program or damaged/],
        [{ exists: true, unreadable: true, text: "Dear diary" }, /damaged/],
        [{ exists: true, unreadable: true, text: null }, /cannot be read/],
        [{ exists: true, withoutTable: true }, /no table for presets/],
        [{ exists: true, withoutTable: true, text: "" }, /no table for presets/],
    ];
    for (const [state, words] of cases) {
        const { store } = make(state);
        equal(store.list("resize"), []);
        isTrue(words.test(store.problem), JSON.stringify(state) + store.problem);
    }
});

test("saysWhyAPresetCannotBeWrittenAndKeepsTheOldOne", () => {
    const { file, store } = make({});
    store.list("resize");
    store.save("resize", "Web", changed("resize", { longest: 1 }));
    file.sealed = true;
    for (const [writable, words] of [[false, /read-only. It was not changed/],
                                     [true, /in use by another program, or the disk is full/]]) {
        file.writable = writable;
        const problems = [store.save("resize", "Web", changed("resize", { longest: 2 })), store.remove("resize", "Web"),
                          store.rename(store.list("resize")[0], "New"),
                          store.bringIn([rowOf(KINDS.turn.form, "t", changed("turn", {}))]).problem];
        problems.forEach((problem) => isTrue(words.test(problem), problem));
    }
    equal([file.rows.length, store.list("resize")[0].settings.longest], [1, 1]);
});

// The engine does not tell a module its path, but a stack does.
const PATTERNS = new Error("").stack.match(/(?:file:\/\/)?(\/[^\n]*)\/tests\/interface\/presets\//)[1]
    + "/interface/patterns";

for (const action of STARTED) {
    test("startsWithPresetsThatWork " + action, () => {
        const list = startingPresets(KINDS[action], PATTERNS);
        isTrue(list.length >= 4);
        for (const [name, settings] of list) {
            equal(KINDS[action].step.validate(settings), [], name);
            const { store } = make({});
            store.list(action);
            equal([store.nameProblem(name, []), store.save(action, name, settings)], ["", ""]);
            equal(store.list(action)[0].settings, settings, name);
        }
    });
}

test("givesEveryStartingPresetANameOfItsOwn", () => {
    const names = STARTED
        .reduce((all, action) => all.concat(startingPresets(KINDS[action], "").map((entry) => entry[0])), []);
    isTrue(names.length > 30);
    equal(names.filter((name, i) => names.indexOf(name) !== i), []);
});

test("writesStartingPresetsOnce", () => {
    const { file, store } = make({});
    const defaults = new FakeDefaults();
    store.list("background");
    writeStartingPresets("background", "/p", store, defaults);
    const written = file.rows.length;
    store.remove("background", "Black border");
    writeStartingPresets("background", "/p", store, defaults);
    equal([written - file.rows.length, store.list("background").some((preset) => preset.name === "Black border")],
          [1, false]);
});

test("writesStartingPresetsLaterWhereTheyCannotBeWrittenNow", () => {
    const { file, store } = make({ exists: true, sealed: true });
    const defaults = new FakeDefaults();
    writeStartingPresets("turn", "/p", store, defaults);
    equal([file.rows.length, defaults.kept], [0, {}]);
    file.sealed = false;
    store.save("resize", "Mirrored", changed("resize", {}));
    writeStartingPresets("turn", "/p", store, defaults);
    equal(store.list("turn").map((preset) => preset.name), ["90° anticlockwise", "90° clockwise", "Upside down"]);
});

finish();
