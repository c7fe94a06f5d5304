// Texts with tokens in them, such as "{taken:yyyy-MM-dd} {name}", for names, folders, comments and watermarks. Pure but for
// translation; no service is used.

import { splitPath } from "./names.js";

const DATE_FORMS = ["yyyy-MM-dd", "yyyy", "yyyy-MM", "yyyyMMdd", "MM", "MMM", "dd", "EEE", "HH-mm-ss", "HHmmss"];
const DATE_PARTS = ["yyyy", "MMM", "EEE", "yy", "MM", "dd", "HH", "mm", "ss"];

export const FORMS = { none: "none", date: "date", counter: "counter", name: "name", size: "size" };

function token(name, words, kind, forms, example) {
    return { name: name, words: words, kind: kind, forms: forms, example: example };
}

/**
 * All tokens: {name, words (what it stands for), kind (of its forms), forms (those to offer), example (of the plain one)}.
 *
 * Forms of a date are made of yyyy yy MM MMM dd EEE HH mm ss and any signs between them; without one it is yyyy-MM-dd. The form
 * of a counter is its first number, with as many figures as the others get. The forms of a name: a number, for so many letters
 * of its beginning; "word", for what stands before the first figure, blank, hyphen, underscore or dot; "~a,b", for the first of
 * these words that stands in it. Forms of a size: "class", "MB".
 */
export function tokens() {
    return [
        token("name", qsTr("Name without extension"), FORMS.name, ["", "3", "word"], "IMG_4711"),
        token("extension", qsTr("Extension"), FORMS.none, [""], "jpg"),
        token("date", qsTr("Date taken, or else changed"), FORMS.date, DATE_FORMS, "2026-08-14"),
        token("taken", qsTr("Date taken"), FORMS.date, DATE_FORMS, "2026-08-14"),
        token("created", qsTr("Date created"), FORMS.date, DATE_FORMS, "2026-08-14"),
        token("changed", qsTr("Date changed"), FORMS.date, DATE_FORMS, "2026-08-15"),
        token("counter", qsTr("Counter"), FORMS.counter, ["1", "001", "0001"], "1"),
        token("camera", qsTr("Camera"), FORMS.none, [""], "Canon EOS 40D"),
        token("lens", qsTr("Lens"), FORMS.none, [""], "EF 50mm f/1.4"),
        token("width", qsTr("Width in pixels"), FORMS.none, [""], "4032"),
        token("height", qsTr("Height in pixels"), FORMS.none, [""], "3024"),
        token("size", qsTr("File size"), FORMS.size, ["", "class", "MB"], "2.4 MB"),
        token("type", qsTr("File type"), FORMS.none, [""], "JPEG"),
        token("orientation", qsTr("Landscape, portrait or square"), FORMS.none, [""], qsTr("Landscape")),
        token("folder", qsTr("Name of its folder"), FORMS.none, [""], qsTr("Holiday")),
    ];
}

export const TOKENS = tokens();

const KINDS = TOKENS.reduce((table, each) => {
    table[each.name] = each.kind;
    return table;
}, Object.create(null));

/** Names of the tokens that need no look into the file. */
const BY_PATH = ["name", "extension", "counter", "folder"];

/**
 * Takes a text apart: [{text} | {token, form}, ...], in order. "{{" is a brace; a brace that is not closed is text. What stands in
 * braces is a token whether there is one of that name or not; problems() tells.
 */
export function parse(pattern) {
    const parts = [];
    let text = "";
    let at = 0;
    while (at < pattern.length) {
        const end = pattern[at] === "{" && pattern[at + 1] !== "{" ? pattern.indexOf("}", at) : -1;
        if (end < 0) {
            at += pattern.startsWith("{{", at) ? 1 : 0;
            text += pattern[at];
            at += 1;
            continue;
        }
        if (text !== "") {
            parts.push({ text: text });
            text = "";
        }
        const inside = pattern.slice(at + 1, end);
        const colon = inside.indexOf(":");
        parts.push(colon < 0 ? { token: inside.trim(), form: "" }
                             : { token: inside.slice(0, colon).trim(), form: inside.slice(colon + 1) });
        at = end + 1;
    }
    return text === "" ? parts : parts.concat([{ text: text }]);
}

/** True if the facts of the file (files.facts) are needed for these parts. */
export function needsFacts(parts) {
    return parts.some((part) => part.token !== undefined && BY_PATH.indexOf(part.token) < 0);
}

function datePieces(form) {
    const pieces = [];
    let at = 0;
    while (at < form.length) {
        const part = DATE_PARTS.find((each) => form.startsWith(each, at));
        pieces.push(part ? { part: part } : { text: form[at] });
        at += part ? part.length : 1;
    }
    return pieces;
}

// Forms are few and dates are many.
const PIECES = Object.create(null);

function piecesOf(form) {
    if (PIECES[form] === undefined) {
        PIECES[form] = datePieces(form);
    }
    return PIECES[form];
}

function isFormKnown(kind, form) {
    switch (kind) {
    case FORMS.date:
        return datePieces(form).every((piece) => piece.part !== undefined || !/[A-Za-z]/.test(piece.text));
    case FORMS.counter:
        return /^[0-9]{0,9}$/.test(form);
    case FORMS.name:
        return form === "" || form === "word" || /^[1-9][0-9]{0,2}$/.test(form) || wordsOf(form).length > 0;
    case FORMS.size:
        return ["", "class", "MB"].indexOf(form) >= 0;
    default:
        return form === "";
    }
}

function formHint(kind, written, form) {
    switch (kind) {
    case FORMS.date:
        return qsTr("“%1” is no form of a date: write it with yyyy, yy, MM, MMM, dd, EEE, HH, mm, ss").replace("%1",
                                                                                                               form);
    case FORMS.counter:
        return qsTr("“%1” is no first number of a counter").replace("%1", form);
    case FORMS.name:
        return qsTr("“%1” takes no part of a name: write a number of letters, “word”, or “~” and words with commas between them")
            .replace("%1", form);
    case FORMS.size:
        return qsTr("“%1” is no form of a size: write “class” or “MB”").replace("%1", form);
    default:
        return qsTr("{%1} has no forms: leave out what stands behind its colon").replace("%1", written);
    }
}

function partProblem(part) {
    const kind = KINDS[part.token];
    if (kind === undefined) {
        return part.token === "" ? qsTr("There is no token between the braces; a brace of its own is written {{")
                                 : qsTr("There is no token {%1}").replace("%1", part.token);
    }
    return isFormKnown(kind, part.form) ? "" : formHint(kind, part.token, part.form);
}

/** What is wrong with a text, as sentences; empty if nothing is. */
export function problems(pattern) {
    const found = parse(pattern).map((part) => (part.token === undefined ? "" : partProblem(part)))
        .filter((each) => each !== "");
    const plain = parse(pattern).map((part) => part.text || "").join("");
    const written = pattern.split("{{").join("");
    if (plain.indexOf("{") >= 0 && written.lastIndexOf("{") > written.lastIndexOf("}")) {
        found.push(qsTr("A brace is not closed; a brace of its own is written {{"));
    }
    return found.filter((each, index) => found.indexOf(each) === index);
}

const NAMES = { months: null, days: null };

function calendarNames() {
    if (NAMES.months === null) {
        NAMES.months = qsTr("Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec").split(" ");
        NAMES.days = qsTr("Sun Mon Tue Wed Thu Fri Sat").split(" ");
    }
    return NAMES;
}

function datePiece(date, part) {
    switch (part) {
    case "yyyy":
        return date.slice(0, 4);
    case "yy":
        return date.slice(2, 4);
    case "MM":
        return date.slice(5, 7);
    case "MMM":
        return calendarNames().months[Number(date.slice(5, 7)) - 1];
    case "dd":
        return date.slice(8, 10);
    case "EEE":
        return calendarNames().days[new Date(date.slice(0, 10) + "T12:00:00Z").getUTCDay()];
    case "HH":
        return date.slice(11, 13);
    case "mm":
        return date.slice(14, 16);
    default:
        return date.slice(17, 19);
    }
}

/** A date as files.facts gives it ("2026-08-14T10:20:30") in a form. */
export function dateText(date, form) {
    return piecesOf(form || "yyyy-MM-dd").map((piece) => (piece.part ? datePiece(date, piece.part) : piece.text))
        .join("");
}

function counterText(form, index) {
    const number = String(Number(form || "1") + index);
    return "0".repeat(Math.max(0, form.length - number.length)) + number;
}

/** The words of the form "~a,b". */
function wordsOf(form) {
    return form.startsWith("~")
        ? form.slice(1).split(",").map((word) => word.trim()).filter((word) => word !== "") : [];
}

/** The first letters of a text; one that takes two places is one letter (the engine's own iterator would cut it in two). */
function firstLetters(text, count) {
    let end = 0;
    for (let letters = 0; letters < count && end < text.length; letters += 1) {
        end += text.codePointAt(end) > 0xffff ? 2 : 1;
    }
    return text.slice(0, end);
}

/** The part of a name (without extension) that a form of {name} names; "" where there is none. */
export function namePart(name, form) {
    if (form === "") {
        return name;
    }
    if (form === "word") {
        const end = name.search(/[0-9\s\-_.]/);
        return end < 0 ? name : name.slice(0, end);
    }
    if (form.startsWith("~")) {
        const folded = name.normalize("NFC").toLowerCase();
        return wordsOf(form).find((word) => folded.indexOf(word.normalize("NFC").toLowerCase()) >= 0) || "";
    }
    return firstLetters(name, Number(form)).trim();
}

/** The classes of file sizes, smallest first: {below (bytes), text}. */
export function sizeClasses() {
    return [
        { below: 1e6, text: qsTr("Under 1 MB") }, { below: 5e6, text: qsTr("1 to 5 MB") },
        { below: 20e6, text: qsTr("5 to 20 MB") }, { below: Infinity, text: qsTr("20 MB and more") },
    ];
}

function sizeText(facts, form) {
    switch (form) {
    case "class":
        return sizeClasses().find((each) => facts.bytes < each.below).text;
    case "MB":
        return String(Math.round(facts.bytes / 1e5) / 10);
    default:
        return facts.size;
    }
}

/** Landscape, portrait or square, in words; "" for no picture. */
export function orientationText(size) {
    if (size.width <= 0 || size.height <= 0) {
        return "";
    }
    if (size.width === size.height) {
        return qsTr("Square");
    }
    return size.width > size.height ? qsTr("Landscape") : qsTr("Portrait");
}

function dateOrNothing(date, form) {
    return date ? dateText(date, form) : "";
}

function lengthText(pixels) {
    return pixels > 0 ? String(pixels) : "";
}

// What tokens stand for; those that are missing here stand for the fact of their name.
const VALUES = {
    name: (form, path) => namePart(path.base, form),
    extension: (form, path) => path.extension,
    folder: (form, path) => path.folder.slice(path.folder.lastIndexOf("/") + 1),
    counter: (form, path, facts, index) => counterText(form, index),
    date: (form, path, facts) => dateOrNothing(facts.taken || facts.changed, form),
    taken: (form, path, facts) => dateOrNothing(facts.taken, form),
    created: (form, path, facts) => dateOrNothing(facts.created, form),
    changed: (form, path, facts) => dateOrNothing(facts.changed, form),
    width: (form, path, facts) => lengthText(facts.width),
    height: (form, path, facts) => lengthText(facts.height),
    size: (form, path, facts) => (facts.bytes >= 0 ? sizeText(facts, form) : ""),
    orientation: (form, path, facts) => orientationText(facts),
};

/** What a token stands for; "" where that is missing. */
function valueOf(part, path, facts, index) {
    const value = VALUES[part.token];
    return value === undefined ? facts[part.token] || "" : value(part.form, path, facts, index);
}

const NO_FACTS = { taken: "", created: "", changed: "", camera: "", lens: "", type: "", bytes: -1, size: "", width: 0,
                   height: 0 };

/**
 * The text for one file.
 *
 * @param parts    of parse()
 * @param {any} context  path; facts: of files.facts, or null; index: how many files came before this one, 0 by default; standIn:
 *                 (token, form) => text for a missing value, "" by default; clean: (value) => text, what becomes of each value
 *                 before it is put in
 * @return the text, and missing: names of the tokens that this file has no value for
 */
export function expand(parts, context) {
    const path = splitPath(context.path);
    const facts = context.facts || NO_FACTS;
    const missing = [];
    const text = parts.map((part) => {
        if (part.token === undefined) {
            return part.text;
        }
        let value = KINDS[part.token] === undefined ? "" : valueOf(part, path, facts, context.index || 0);
        if (value === "") {
            missing.push(part.token);
            value = context.standIn ? context.standIn(part.token, part.form) : "";
        }
        return context.clean ? context.clean(value) : value;
    });
    return { text: text.join(""), missing: missing };
}
