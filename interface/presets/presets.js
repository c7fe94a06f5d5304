// Presets: an action's settings as the 62 texts of a row of the presets database, and vice versa; names; exported
// files. Pure but for translation; no service is used. docs/presets.md has the layout.

import { copyOf } from "../lib/copies.js";
import { emptyTable } from "../lib/names.js";
import { FIRST_SLOT, SLOTS } from "./preset-forms.js";
import { fill } from "../lib/wording.js";

export const FIELDS = 62;
export const LONGEST_NAME = 100;

const MARK = "Quorlin ";
// Of the forms. A form whose columns change their meaning, or get new words, gets a higher version.
const FIRST_VERSION = 1;
const FILE_MARK = "Quorlin presets";

/** The place of a column in a row: NameOfPreset, Process and Action are 0 to 2, StrField3 is 3. */
export function placeOf(column) {
    return Number(column.slice("StrField".length));
}

const HEX = "0123456789ABCDEF";

function hex(code, digits) {
    let text = "";
    for (let shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        text += HEX[(code >> shift) & 15];
    }
    return text;
}

function isHalf(code) {
    return code >= 0xd800 && code <= 0xdfff;
}

function isPair(text, i) {
    const first = text.charCodeAt(i);
    const second = text.charCodeAt(i + 1);
    return first >= 0xd800 && first <= 0xdbff && second >= 0xdc00 && second <= 0xdfff;
}

/** Any text without what a value must not contain: an apostrophe, a bar, a control character, half a surrogate pair. */
export function encoded(text) {
    let result = "";
    for (let i = 0; i < text.length; i += 1) {
        const code = text.charCodeAt(i);
        if (isPair(text, i)) {
            result += text.substr(i, 2);
            i += 1;
        } else if (isHalf(code)) {
            result += "%u" + hex(code, 4);
        } else {
            result += code < 32 || code === 127 || "%'|".indexOf(text[i]) >= 0 ? "%" + hex(code, 2) : text[i];
        }
    }
    return result;
}

/** The argument of encoded(); null for a text that it never returns. */
export function decoded(text) {
    const result = text.replace(/%u([0-9A-F]{4})|%([0-9A-F]{2})/g,
                                (all, four, two) => String.fromCharCode(parseInt(four || two, 16)));
    return encoded(result) === text ? result : null;
}

const WRITERS = {
    text: (value) => (typeof value === "string" ? encoded(value) : null),
    word: (value) => (typeof value === "string" && value !== "" ? encoded(value) : null),
    color: (value) => (typeof value === "string" ? encoded(value) : null),
    number: (value) => (typeof value === "number" && isFinite(value) ? String(value) : null),
    whole: (value) => (Number.isSafeInteger(value) ? String(value) : null),
    flag: (value) => (typeof value === "boolean" ? String(Number(value)) : null),
};

const READERS = {
    text: decoded,
    word: decoded,
    color: (text) => (/^#[0-9a-f]{6}$/i.test(text) ? text : null),
    number: (text) => (/^-?\d+(\.\d+)?(e[-+]?\d+)?$/.test(text) && isFinite(Number(text)) ? Number(text) : null),
    whole: (text) => (/^-?\d+$/.test(text) && Number.isSafeInteger(Number(text)) ? Number(text) : null),
    flag: (text) => (text === "1" || text === "0" ? text === "1" : null),
};

function valueAt(settings, path) {
    return path.split(".")
        .reduce((part, key) => (part === null || part === undefined ? undefined : part[key]), settings);
}

function setAt(settings, path, value) {
    const keys = path.split(".");
    const last = keys.pop();
    const owner = keys.reduce((part, key) => part[key], settings);
    owner[last] = value;
}

// A folder and its label, if that is not its own name.
function slotText(slot) {
    return encoded(slot.path + (slot.label === "" ? "" : "\n" + slot.label));
}

function slotIn(text) {
    const parts = (decoded(text) || "").split("\n");
    return parts[0].startsWith("/") && parts.length <= 2 ? { path: parts[0], label: parts[1] || "" } : null;
}

function writeSlots(row, slots) {
    if (!Array.isArray(slots) || slots.length > SLOTS) {
        throw new Error("A preset has up to " + SLOTS + " folders");
    }
    slots.forEach((slot, i) => { row[FIRST_SLOT + i] = slotText(slot); });
}

// The settings of a form with words of a later version, which come last in each: {word: version}.
function newWordsOf(form) {
    const mode = [form.mode, "text", form.modes, form.laterModes];
    const columns = Object.keys(form.columns).map((column) => form.columns[column]).concat([mode]);
    return columns.filter((column) => column[3] !== undefined);
}

/** The newest version of a form. */
export function newestVersion(form) {
    return newWordsOf(form).reduce((newest, [, , , words]) => Object.keys(words).reduce(
        (highest, word) => Math.max(highest, words[word]), newest), FIRST_VERSION);
}

// The lowest version that has words for all these settings: older programs can then still read them.
function versionFor(form, settings) {
    return newWordsOf(form).reduce(
        (version, [path, , , words]) => Math.max(version, words[valueAt(settings, path)] || FIRST_VERSION),
        FIRST_VERSION);
}

/**
 * The 62 texts for a preset. Settings that the form does not list, or of another type than it says, are an error of the
 * program.
 */
export function rowOf(form, name, settings) {
    const row = Array(FIELDS).fill("");
    row[0] = name;
    row[1] = form.process;
    const mode = form.mode === "" ? "" : encoded(String(settings[form.mode]));
    if (form.slots === undefined) {
        row[2] = mode;
        row[3] = MARK + versionFor(form, settings);
    } else {
        row[2] = form.subMode + " " + MARK + FIRST_VERSION + " " + mode;
        writeSlots(row, settings[form.slots]);
    }
    for (const column of Object.keys(form.columns)) {
        const [path, kind] = form.columns[column];
        const text = WRITERS[kind](valueAt(settings, path));
        if (text === null) {
            throw new Error("The setting " + path + " of " + form.process + " has no form for a preset");
        }
        row[placeOf(column)] = text;
    }
    if (form.list !== undefined) {
        valueAt(settings, form.list.path)
            .forEach((part, i) => { row[placeOf(form.list.columns[i])] = encoded(JSON.stringify(part)); });
    }
    return row;
}

function versionOf(mark) {
    const found = new RegExp("^" + MARK + "([1-9][0-9]{0,5})$").exec(mark);
    return found === null ? 0 : Number(found[1]);
}

// The mark and the mode of a row: {version, mode}.
function headOf(row, form) {
    if (form.slots === undefined) {
        return { version: versionOf(row[3]), mode: row[2] };
    }
    const found = new RegExp("^" + form.subMode + " (" + MARK + "[0-9]+) (.*)$").exec(row[2]);
    return found === null ? { version: 0, mode: "" } : { version: versionOf(found[1]), mode: found[2] };
}

// The settings of a row of folders, or null if a value is invalid.
function slotSettings(row, form, standard) {
    const settings = copyOf(standard);
    const texts = row.slice(FIRST_SLOT).filter((text) => text !== "");
    const mode = headOf(row, form).mode;
    settings[form.mode] = mode;
    settings[form.slots] = texts.map(slotIn);
    return form.modes.indexOf(mode) < 0 || settings[form.slots].indexOf(null) >= 0 ? null : settings;
}

// The list of a row, or null if one of its parts is invalid.
function listIn(row, list) {
    const parts = [];
    for (const column of list.columns.filter((each) => row[placeOf(each)] !== "")) {
        const text = decoded(row[placeOf(column)]);
        let part = null;
        try {
            part = text === null ? null : list.read(JSON.parse(text));
        } catch (error) {
            part = null;
        }
        if (part === null) {
            return null;
        }
        parts.push(part);
    }
    return parts;
}

// Puts the values of the columns into the settings; false if one of them is invalid.
function readColumns(row, form, settings) {
    for (const column of Object.keys(form.columns)) {
        const [path, kind, values] = form.columns[column];
        const text = row[placeOf(column)];
        // A setting newer than the preset has an empty column; no word, number or flag is written like that.
        const value = text === "" && kind !== "text" ? valueAt(settings, path) : READERS[kind](text);
        if (value === null || (values !== undefined && values.indexOf(value) < 0)) {
            return false;
        }
        setAt(settings, path, value);
    }
    return true;
}

// Puts the list of a row into the settings; false if one of its parts is invalid.
function readList(row, form, settings) {
    const list = form.list === undefined ? null : listIn(row, form.list);
    if (list !== null) {
        setAt(settings, form.list.path, list);
    }
    return form.list === undefined || list !== null;
}

// Puts the value in Action into the settings; false if it is not one of the values of that setting.
function readMode(row, form, settings) {
    const mode = decoded(row[2]);
    if (form.mode === "" || mode === "") {
        return mode !== null;
    }
    settings[form.mode] = mode;
    return form.modes.indexOf(mode) >= 0;
}

// The settings of a row, or null if a value is invalid.
function settingsIn(row, form, standard) {
    const settings = copyOf(standard);
    const isRead = readColumns(row, form, settings) && readList(row, form, settings) && readMode(row, form, settings);
    return isRead ? settings : null;
}

/**
 * A row of the database as an object: {name, process, action, state, settings, note}. `kinds` has {form, standard} by
 * the action's name, standard being the settings of a new pane; `action` is that name, or "" for a process that is not
 * ours.
 *
 * state: "ready" with settings; "newer", a form of a later version; "unknown", of another kind; "damaged", with an
 * invalid value. Only a ready one has settings, and the others must not be changed; note says so in a sentence.
 */
export function presetOf(row, kinds) {
    const fields = typeof row === "string" ? row.split("|") : row;
    const action = Object.keys(kinds).find((name) => kinds[name].form.process === fields[1]) || "";
    const version = fields.length === FIELDS && action !== "" ? headOf(fields, kinds[action].form).version : 0;
    const preset = { name: fields[0], process: fields[1] || "", action: action };
    return Object.assign(preset,
                         action === "" || version === 0
                             ? stateOf("unknown", null) : readState(fields, version, kinds[action]));
}

function stateOf(state, settings) {
    const notes = {
        unknown: qsTr("This preset was not made by Quorlin. It was not changed."),
        newer: qsTr("This preset was made by a newer version of Quorlin. It was not changed."),
        damaged: qsTr("This preset is damaged and cannot be used."),
    };
    return { state: state, settings: settings, note: notes[state] || "" };
}

// The contents of one of our rows.
function readState(fields, version, kind) {
    if (version > newestVersion(kind.form)) {
        return stateOf("newer", null);
    }
    const read = kind.form.slots === undefined ? settingsIn : slotSettings;
    const settings = read(fields, kind.form, kind.standard);
    return stateOf(settings === null ? "damaged" : "ready", settings);
}

/** A name with look-alikes of the two characters that the database does not accept. */
export function typedName(text) {
    return /['|]/.test(text) ? text.replace(/'/g, "\u2019").replace(/\|/g, "\u00a6") : text;
}

/** A name as it is stored: trimmed, with normalised accents. */
export function storedName(text) {
    return typedName(text).trim().normalize("NFC");
}

function sameName(a, b) {
    return storedName(a).toLowerCase() === storedName(b).toLowerCase();
}

/** What is wrong with a name, in a sentence; "" if nothing is. `taken` are the names of all presets of every action. */
export function nameProblem(text, taken) {
    const name = storedName(text);
    if (name === "") {
        return qsTr("Enter a name.");
    }
    // The only characters left to escape: control characters, and half a surrogate pair.
    if (encoded(name.replace(/%/g, "")).indexOf("%") >= 0) {
        return qsTr("A name cannot contain line breaks or control characters.");
    }
    if (name.length > LONGEST_NAME) {
        return qsTr("A name can have up to %n characters.", "", LONGEST_NAME);
    }
    const other = taken.find((known) => sameName(known, name));
    return other === undefined ? "" : fill(qsTr("A preset named %1 already exists."), other);
}

// What two names share if they count as the same.
function keyOf(name) {
    return storedName(name).toLowerCase();
}

/** Taken names, and the nearest free ones. Works for thousands. */
export class TakenNames {
    constructor(names) {
        this.taken = emptyTable();
        this.next = emptyTable();
        names.forEach((name) => this.take(name));
    }

    take(name) {
        this.taken[keyOf(name)] = true;
    }

    /**
     * The name with the lowest number appended that makes it free: "Web", "Web 2" ... A long name is shortened for it.
     */
    free(text) {
        const name = storedName(text);
        if (!this.taken[keyOf(name)]) {
            return name;
        }
        const key = keyOf(name);
        let number = this.next[key] || 2;
        let candidate = numbered(name, number);
        while (this.taken[keyOf(candidate)]) {
            number += 1;
            candidate = numbered(name, number);
        }
        this.next[key] = number;
        return candidate;
    }
}

// "Web", 2 gives "Web 2", no longer than a name may be, and without cutting a character in two.
function numbered(name, number) {
    const ending = " " + number;
    let kept = name.slice(0, LONGEST_NAME - ending.length);
    if (kept.length < name.length && isPair(name, kept.length - 1)) {
        kept = kept.slice(0, -1);
    }
    return kept + ending;
}

/** The name with the lowest number appended that makes it free. */
export function freeName(text, taken) {
    return new TakenNames(taken).free(text);
}

/** The text of an exported file with these rows, unchanged, of whatever form. */
export function fileText(rows) {
    return JSON.stringify({ format: FILE_MARK, version: 1, presets: rows }, null, 1) + "\n";
}

function isRow(row) {
    return Array.isArray(row) && row.length === FIELDS
        && row.every((value) => typeof value === "string" && !/['|\u0000]/.test(value));
}

function withTypedName(row) {
    return Array.isArray(row) && typeof row[0] === "string" ? [typedName(row[0])].concat(row.slice(1)) : row;
}

/** What a file holds: {rows, problem}; problem is a sentence if it is not a preset file, or contains invalid presets. */
export function rowsOfFile(text) {
    let content = null;
    try {
        content = JSON.parse(text);
    } catch (error) {
        content = null;
    }
    if (content === null || typeof content !== "object" || content.format !== FILE_MARK
        || !Array.isArray(content.presets)) {
        return { rows: [], problem: qsTr("This file contains no presets.") };
    }
    if (content.version !== 1) {
        return { rows: [], problem: qsTr("This file was made by a newer version of Quorlin.") };
    }
    const rows = content.presets.map(withTypedName).filter((row) => isRow(row) && nameProblem(row[0], []) === "");
    const lost = content.presets.length - rows.length;
    return { rows: rows,
             problem: lost === 0
                 ? "" : fill(qsTr("%1 of %n presets in this file cannot be used.", "", content.presets.length), lost) };
}
