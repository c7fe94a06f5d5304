// The presets of all actions in the presets database: listed, stored, renamed, removed, imported. Pure: the database
// service and the files are passed in. Each query uses a new service object, since a failed query returns the result of
// the previous one.

import { emptyTable, splitPath } from "../lib/names.js";
import { FIELDS, nameProblem, presetOf, rowOf, storedName, TakenNames } from "./presets.js";
import { fill } from "../lib/wording.js";

const TABLE = "Presets";
const NAME = "NameOfPreset";
const HEADER = "SQLite format 3";
// No name has more rows than this.
const MOST_COPIES = 100;
// An older row of a name is searched no further back than this.
const MOST_LOOKS = 2000;

function textOf(data) {
    return data === null ? "" : String.fromCharCode.apply(null, Array.from(new Uint8Array(data)));
}

// The note of a rename; null if the text is no such note.
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
        /** What happened to the database, to be reported once; empty for nothing. */
        this.notice = "";
    }

    // The rows that match, as texts; null if the database did not answer.
    rows(column, value, table) {
        const db = this.makeDb();
        const found = db.checkForActionType(table || TABLE, column, value);
        if (db.myPresetsArray === null) {
            return null;
        }
        return found === null ? [] : found.slice();
    }

    // Creates the database if there is none yet.
    link() {
        try {
            this.makeDb().linkToPresetsDB();
        } catch (error) {
            // Errors show when it is read.
        }
    }

    /**
     * The presets of an action, in the order in which they were stored: presetOf() of each, with its `fields`. Of several ready ones
     * with one name, which two processes at once can create, the newest.
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

    // A database that can hold nothing is moved out of the way, so that the service creates a new one; the service
    // itself repairs none.
    setAside() {
        const name = this.files.setAsideUnusableDatabase(this.path());
        if (name !== "") {
            this.notice = fill(qsTr("The presets database was empty. It was renamed to %1, and a new one was created."),
                               splitPath(name).name);
        }
        return name !== "";
    }

    // Completes what was interrupted between storing a preset again and removing the old row. The service returns only
    // the number of the newest row of a name; those below it are searched.
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

    // The preset with that number, if it is ready; else null.
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

    /** What is wrong with a name, in a sentence; also if a preset of another program has it. */
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

    /** Gives a preset another name. Returns a problem, or "". The next list() completes what is interrupted. */
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

    // A row of the database cannot be marked for removal; a text beside it does that while there may be two.
    renamePath() {
        return this.path() + ".renaming";
    }

    // Removes the row of the old name if all of it exists under the new one. Returns whether there was something to
    // remove.
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

    /** Stores rows unchanged, under free names: {names, renamed (count), problem}. */
    bringIn(rows) {
        const work = this.bringingIn(rows);
        let step = work.next();
        while (!step.done) {
            step = work.next();
        }
        return step.value;
    }

    /** The same as a generator that yields the number of stored rows after each one: every row waits for the disk. */
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
