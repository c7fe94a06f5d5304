// Changes fields of metadata, and removes private data. Plain data in, plain data out. An empty setting leaves its
// field as it is; a separate setting lists the fields to be cleared.
// Services used: tokens, files (plannedFields).

import { files } from "quorlin/files";
import { tokens, TokenText } from "quorlin/tokens";
import { fill } from "../../lib/wording.js";
import { changeText, disputeText, fieldTitle, privateTitle } from "../shared/metadata-fields-words.js";

/** The groups of the form, and their fields in their order. */
export const GROUPS = [
    { name: "description", fields: ["title", "headline", "caption", "keywords"] },
    { name: "rights", fields: ["creator", "jobTitle", "contactAddress", "contactPhone", "contactEmail", "contactWeb",
                               "copyright", "usageTerms", "credit", "source", "instructions", "jobIdentifier"] },
    { name: "place", fields: ["sublocation", "city", "state", "country", "countryCode"] },
    { name: "date", fields: ["dateTaken", "rating", "label"] },
];
export const PRIVATE = files.privateDataNames();
export const FIELDS = GROUPS.reduce((all, group) => all.concat(group.fields), []);
/** The typed ones, which may contain tokens unless a format is required. */
export const TYPED = FIELDS.filter((name) => name !== "rating" && name !== "label");
const PLAIN = ["dateTaken"];
export const ADD = "add";
export const REPLACE = "replace";

function emptySettings() {
    const settings = { scope: "all", keywordsMode: ADD, removedKeywords: "", shift: "", zone: "", cleared: "",
                       removed: "", simulation: false };
    FIELDS.forEach((name) => { settings[name] = ""; });
    return settings;
}

export const defaults = emptySettings();

/** The words of a setting that is a list of words. */
export function wordsOf(text) {
    return text.split(" ").filter((word) => word !== "");
}

export function isCleared(settings, name) {
    return wordsOf(settings.cleared).indexOf(name) >= 0;
}

/** The settings with a word in such a list, or without it. */
export function withWord(text, word, isOn) {
    const others = wordsOf(text).filter((each) => each !== word);
    return (isOn ? others.concat([word]) : others).join(" ");
}

/** Keywords as they are typed: separated by commas, semicolons or line breaks. */
export function keywordsOf(text) {
    return text.split(/[,;\n]/).map((word) => word.trim()).filter((word) => word !== "");
}

// Names are separated by semicolons or line breaks: one may contain a comma.
function namesOf(text) {
    return text.split(/[;\n]/).map((word) => word.trim()).filter((word) => word !== "");
}

/** "+1:30", "-0:05:30" or "2:00" in seconds; null for what is none. */
export function shiftSeconds(text) {
    const match = /^([+\-−]?)(\d{1,5}):([0-5]\d)(?::([0-5]\d))?$/.exec(text.trim());
    if (match === null) {
        return null;
    }
    const seconds = Number(match[2]) * 3600 + Number(match[3]) * 60 + Number(match[4] || 0);
    return match[1] === "" || match[1] === "+" ? seconds : -seconds;
}

function textsOf(name, text) {
    if (name === "keywords") {
        return keywordsOf(text);
    }
    return name === "creator" ? namesOf(text) : [text];
}

// What the settings do to the keywords before tokens are filled in: {set} or {add, remove}.
function keywordsEdit(settings) {
    const words = keywordsOf(settings.keywords);
    const removed = keywordsOf(settings.removedKeywords);
    if (words.length === 0 && removed.length === 0) {
        return null;
    }
    return settings.keywordsMode === REPLACE && words.length > 0 ? { set: words } : { add: words, remove: removed };
}

function dateEdit(settings) {
    if (settings.dateTaken.trim() !== "") {
        return { set: [settings.dateTaken.trim()] };
    }
    const seconds = settings.shift.trim() === "" ? 0 : shiftSeconds(settings.shift);
    const zone = settings.zone.trim().replace("−", "-");
    return seconds === 0 && zone === "" ? null : { shift: seconds, zone: zone };
}

function editOf(name, settings) {
    if (isCleared(settings, name)) {
        return { clear: true };
    }
    if (name === "keywords") {
        return keywordsEdit(settings);
    }
    if (name === "dateTaken") {
        return dateEdit(settings);
    }
    return settings[name].trim() === "" ? null : { set: textsOf(name, settings[name]) };
}

/** What is to be done to each changed field, by its name, before tokens are filled in. */
export function editsOf(settings) {
    const edits = {};
    FIELDS.forEach((name) => {
        const edit = editOf(name, settings);
        if (edit !== null) {
            edits[name] = edit;
        }
    });
    return edits;
}

// A text whose tokens have no value for a picture leaves the field there unchanged.
function filledIn(edit, expand) {
    if (edit.set === undefined && edit.add === undefined) {
        return edit;
    }
    const filled = (texts) => texts.map(expand).filter((text) => text.trim() !== "");
    if (edit.set !== undefined) {
        const texts = filled(edit.set);
        return texts.length === 0 ? null : { set: texts };
    }
    return { add: filled(edit.add), remove: filled(edit.remove) };
}

function makersOf(edits) {
    const makers = {};
    const take = (text) => { makers[text] = makers[text] || new TokenText({ pattern: text }); };
    Object.keys(edits).filter((name) => PLAIN.indexOf(name) < 0)
        .forEach((name) => (edits[name].set || edits[name].add || []).concat(edits[name].remove || []).forEach(take));
    return makers;
}

/**
 * What the settings mean for each picture: {needsFacts, make(path, facts, index)}, which gives the work that workers
 * do, {fields, remove}.
 */
export function workMaker(settings) {
    const edits = editsOf(settings);
    const makers = makersOf(edits);
    const removed = wordsOf(settings.removed);
    return {
        needsFacts: Object.keys(makers).some((text) => makers[text].needsFacts),
        make: (path, facts, index) => {
            const expand = (text) => (makers[text] === undefined ? text : makers[text].expand(path, facts, index)[0]);
            const fields = {};
            Object.keys(edits).forEach((name) => {
                const edit = filledIn(edits[name], expand);
                if (edit !== null) {
                    fields[name] = edit;
                }
            });
            return { fields: fields, remove: removed };
        },
    };
}

/** The settings in a few words, for the log: never the values themselves, since users can delete those. */
export function describe(settings) {
    const edits = editsOf(settings);
    const words = (name) => (edits[name].clear ? fill(qsTr("%1 cleared"), fieldTitle(name)) : fieldTitle(name));
    return Object.keys(edits).map(words)
        .concat(wordsOf(settings.removed).map((name) => fill(qsTr("%1 removed"), privateTitle(name)))).join(", ");
}

function tokenMessages(settings) {
    const texts = TYPED.filter((name) => PLAIN.indexOf(name) < 0).concat(["removedKeywords"])
        .map((name) => settings[name]);
    const problems = texts.reduce((all, text) => all.concat(tokens.problems(text)), []);
    return problems.filter((each, i) => problems.indexOf(each) === i);
}

function isDate(text) {
    return files.plannedFields({}, { fields: { dateTaken: { set: [text] } } }).problem === "";
}

function isZone(text) {
    return files.plannedFields({}, { fields: { dateTaken: { zone: text.replace("−", "-") } } }).problem === "";
}

function dateMessages(settings) {
    const date = settings.dateTaken.trim();
    const shift = settings.shift.trim();
    const zone = settings.zone.trim();
    const messages = [];
    if (date !== "" && !isDate(date)) {
        messages.push(qsTr("Date taken: write it as 2026-08-14, 2026-08-14 10:20:30 or 2026-08-14 10:20:30+02:00."));
    }
    if (shift !== "" && shiftSeconds(shift) === null) {
        messages.push(qsTr("Shift: write hours and minutes, such as +1:00 or −0:05:30."));
    }
    if (zone !== "" && !isZone(zone)) {
        messages.push(qsTr("Time zone: write it as +02:00."));
    }
    if (date !== "" && (shift !== "" || zone !== "")) {
        messages.push(qsTr("A date taken that you set is not shifted: add its time zone at the end."));
    }
    return messages;
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const code = settings.countryCode.trim();
    const isCode = code === "" || /^[A-Za-z]{2,3}$/.test(code) || code.indexOf("{") >= 0;
    return tokenMessages(settings).concat(dateMessages(settings))
        .concat(isCode ? [] : [qsTr("Country code: two or three letters, such as PT or PRT.")]);
}

/** What a run changes in a picture, in a line each. @param item  of planningFields() */
export function changeWords(item) {
    const before = (name) => (item.stated[name] === undefined ? [] : item.stated[name].value);
    return FIELDS.filter((name) => item.planned[name] !== undefined)
        .map((name) => changeText(name, before(name), item.planned[name]))
        .concat(item.inPlace ? item.work.remove.map((name) => fill(qsTr("without %1"), privateTitle(name))) : []);
}

/** Where EXIF, IPTC and XMP of a picture disagree, all three values, in a line each. */
export function disputeWords(stated) {
    return FIELDS.filter((name) => stated[name] !== undefined && stated[name].disputed)
        .map((name) => disputeText(name, stated[name]));
}
