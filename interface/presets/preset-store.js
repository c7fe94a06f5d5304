// The presets of all actions in the presets database: listed, stored, renamed, removed, brought in. Pure: the database service and the
// files are handed in. Every answer is a fresh one, since the service answers a failed query with the result of the one before.

import { emptyTable, splitPath } from "../lib/names.js";
import { FIELDS, nameProblem, presetOf, rowOf, storedName, TakenNames } from "./presets.js";
import { fill } from "../lib/wording.js";

const TABLE = "Presets";
const NAME = "NameOfPreset";
const HEADER = "SQLite format 3";
// No more rows than this bear one name.
const MOST_COPIES = 100;
// And an older row of a name is not looked for further back than this.
const MOST_LOOKS = 2000;

function textOf(data) {
    return data === null ? "" : String.fromCharCode.apply(null, Array.from(new Uint8Array(data)));
}

// What a rename noted; null if the text is not such a note.
function noteIn(text) {
    try {
        const note = JSON.parse(text);
        return [note.action, note.from, note.to].every((each) => typeof each === "string") ? note : null;
    } catch (error) {
        return null;
    }
}

export class PresetStore {
    /**
     * @param makeDb    makes a dbViewController
     * @param files     readText, writeText, info and setAsideUnusableDatabase are used
     * @param kinds     what presets are kept of: see presetKinds() of actions.js
     */
    constructor(makeDb, files, kinds) {
        this.makeDb = makeDb;
        this.files = files;
        this.kinds = kinds;
        /** Why the presets cannot be read, in a sentence; empty while they can. */
        this.problem = "";
        /** What happened to the database, to be said once; empty for nothing. */
        this.notice = "";
    }

    // The rows that match, as texts; null where the database did not answer.
    rows(column, value, table) {
        const db = this.makeDb();
        const found = db.checkForActionType(table || TABLE, column, value);
        if (db.myPresetsArray === null) {
            return null;
        }
        return found === null ? [] : found.slice();
    }

    // Makes the database where there is none yet.
    link() {
        try {
            this.makeDb().linkToPresetsDB();
        } catch (error) {
            // What is wrong shows when it is read.
        }
    }

    /**
     * The presets of an action, in the order in which they were stored: presetOf() of each, with its `fields`. Of several ready ones
     * with one name, which two programs at once can make, the newest.
     */
    list(action) {
        this.link();
        let rows = this.rows("Process", this.kinds[action].form.process);
        if (rows === null && this.setAside()) {
            this.link();
            rows = this.rows("Process", this.kinds[action].form.process);
        }
        this.problem = rows === null ? this.readProblem() : "";
        if (rows !== null && this.endRename(action)) {
            rows = this.rows("Process", this.kinds[action].form.process);
        }
        const all = (rows || []).map((row) => Object.assign({ fields: row.split("|") }, presetOf(row, this.kinds)));
        const newest = emptyTable();
        all.filter((preset) => preset.state === "ready").forEach((preset) => { newest[preset.name] = preset; });
        const older = all.filter((preset) => preset.state === "ready" && newest[preset.name] !== preset);
        if (older.length > 0) {
            this.removeOlder(action, older.map((preset) => preset.name));
        }
        return all.filter((preset) => preset.state !== "ready" || newest[preset.name] === preset);
    }

    // A database that can hold nothing gives way, so that the service makes a new one; the service itself repairs none.
    setAside() {
        const name = this.files.setAsideUnusableDatabase(this.path());
        if (name !== "") {
            this.notice = fill(qsTr("The presets database was empty. It was renamed to %1, and a new one was created."),
                               splitPath(name).name);
        }
        return name !== "";
    }

    // What was cut off between storing a preset again and removing the old row is completed. The service tells the
    // number of the newest row of a name only: those below it are looked through.
    removeOlder(action, names) {
        for (const name of names.filter((each, i) => names.indexOf(each) === i)) {
            let left = names.filter((each) => each === name).length;
            const newest = Number(this.idOf(action, name));
            for (let id = newest - 1; id > 0 && id > newest - MOST_LOOKS && left > 0; id -= 1) {
                const preset = this.readyAt(String(id));
                if (preset !== null && preset.action === action && preset.name === name) {
                    this.removeId(String(id));
                    left -= 1;
                }
            }
        }
    }

    // The preset with that number, if it is a ready one; else null.
    readyAt(id) {
        const rows = this.rows("ID", id) || [];
        const preset = rows.length === 1 ? presetOf(rows[0], this.kinds) : null;
        return preset !== null && preset.state === "ready" ? preset : null;
    }

    /** The names of the presets of all actions. */
    names() {
        return Object.keys(this.kinds).reduce((names, action) => {
            const rows = this.rows("Process", this.kinds[action].form.process) || [];
            return names.concat(rows.map((row) => row.split("|")[0]));
        }, []);
    }

    /** What is wrong with a name, in a sentence; also a name that a preset of another program has. */
    nameProblem(text, names) {
        const name = storedName(text);
        const problem = nameProblem(name, names);
        return problem !== "" ? problem : nameProblem(name, (this.rows(NAME, name) || []).map((row) => row.split("|")[0]));
    }

    /** Stores settings under a name; a ready preset of this action with that name is replaced. Returns a problem, or "". */
    save(action, name, settings) {
        const replaced = this.idOf(action, name);
        const problem = this.insert(rowOf(this.kinds[action].form, name, settings));
        if (problem === "" && replaced !== "") {
            this.removeId(replaced);
        }
        return problem;
    }

    /** Gives a preset another name. Returns a problem, or "". What is cut off in the middle is ended by the next list(). */
    rename(preset, name) {
        if (name === preset.name) {
            return "";
        }
        const note = { action: preset.action, from: preset.name, to: name };
        if (this.files.writeText(this.renamePath(), JSON.stringify(note)) !== "") {
            return this.writeProblem();
        }
        const problem = this.insert([name].concat(preset.fields.slice(1))) || this.remove(preset.action, preset.name);
        this.files.writeText(this.renamePath(), "");
        return problem;
    }

    // A row of the database cannot say that it is to go; a text beside it does, for as long as there may be two.
    renamePath() {
        return this.path() + ".renaming";
    }

    // Removes the row of the old name if all of it is there under the new one. Whether there was something to remove.
    endRename(action) {
        const text = this.files.info(this.renamePath()).exists ? this.files.readText(this.renamePath()) : "";
        const note = text ? noteIn(text) : null;
        if (note === null || note.action !== action) {
            return false;
        }
        const ids = [note.from, note.to].map((name) => this.idOf(action, name));
        const [before, after] = ids.map((id) => id === "" ? "" : this.rows("ID", id)[0].split("|").slice(1).join("|"));
        const isCutOff = before !== "" && before === after;
        if (isCutOff) {
            this.removeId(ids[0]);
        }
        this.files.writeText(this.renamePath(), "");
        return isCutOff;
    }

    /** Removes the ready presets of an action with that name. Returns a problem, or "". */
    remove(action, name) {
        for (let i = 0; i < MOST_COPIES; i += 1) {
            const id = this.idOf(action, name);
            if (id === "") {
                return "";
            }
            this.removeId(id);
            if (this.idOf(action, name) === id) {
                return this.writeProblem();
            }
        }
        return "";
    }

    /** Stores rows as they stand, under free names: {names, renamed (count), problem}. */
    bringIn(rows) {
        const work = this.bringingIn(rows);
        let step = work.next();
        while (!step.done) {
            step = work.next();
        }
        return step.value;
    }

    /** The same as a generator that yields how many rows are stored, after each: every one waits for the disk. */
    *bringingIn(rows) {
        const taken = new TakenNames(this.names());
        const result = { names: [], renamed: 0, problem: "" };
        for (const row of rows) {
            let name = taken.free(row[0]);
            while ((this.rows(NAME, name) || []).length > 0) {
                taken.take(name);
                name = taken.free(row[0]);
            }
            result.problem = this.insert([name].concat(row.slice(1)));
            if (result.problem !== "") {
                break;
            }
            result.renamed += name === storedName(row[0]) ? 0 : 1;
            result.names.push(name);
            taken.take(name);
            yield result.names.length;
        }
        return result;
    }

    insert(row) {
        if (row.length !== FIELDS) {
            throw new Error("A preset has " + FIELDS + " values");
        }
        try {
            this.insertInto(this.makeDb(), row);
        } catch (error) {
            if (error.name !== "InternalInconsistency") {
                throw error;
            }
            return this.writeProblem();
        }
        return "";
    }

    // Each kind has its own operation, which all do the same.
    insertInto(db, row) {
        const isPage = Object.keys(this.kinds).some((name) => this.kinds[name].form.isPage === true
                                                              && this.kinds[name].form.process === row[1]);
        if (isPage) {
            db.insertHTMLPresetToDB01(row);
        } else {
            db.insertSortingPresetToDB01(row);
        }
    }

    // The number of the newest row with that name in the process of the action, if it is a ready preset; else "".
    idOf(action, name) {
        if ((this.rows(NAME, name) || []).length === 0) {
            return "";
        }
        const id = textOf(this.makeDb().hGetBookMarkedFolders(TABLE, NAME, name, "Process",
                                                              this.kinds[action].form.process, NAME + ", ID"));
        if (!/^[0-9]+$/.test(id)) {
            return "";
        }
        const preset = this.readyAt(id);
        return preset !== null && preset.name === name ? id : "";
    }

    removeId(id) {
        this.makeDb().removePresetFromDatabase(TABLE, "ID", id);
    }

    path() {
        return this.makeDb().dbFilePath();
    }

    readProblem() {
        const path = this.path();
        if (!this.files.info(path).exists) {
            return qsTr("Presets cannot be saved: the database could not be created.");
        }
        const text = this.files.readText(path);
        if (text === null) {
            return qsTr("The presets database cannot be read.");
        }
        if (text !== "" && !text.startsWith(HEADER)) {
            return qsTr("The presets database is damaged. It was not changed.");
        }
        return text === "" || this.rows("StrField0", "appSys", "AppResource") !== null
            ? qsTr("The presets database has no table for presets. It was not changed.")
            : qsTr("The presets database is in use by another program or damaged. It was not changed.");
    }

    writeProblem() {
        const path = this.path();
        const folder = path.slice(0, path.lastIndexOf("/"));
        if (!this.files.info(path).writable || !this.files.info(folder).writable) {
            return qsTr("The presets database is read-only. It was not changed.");
        }
        return this.rows(NAME, "") === null
            ? this.readProblem()
            : qsTr("The presets database is in use by another program, or the disk is full. It was not changed.");
    }
}
