// The steps that a chain of names is made of: what each is called, which settings it has and what it does to a text.
// Text operations are passed in. Pure but for translation; texts with tokens are left to their module.

import { tokens, TokenText } from "quorlin/tokens";
import { cutAt } from "./text-cuts.js";

/** What a step can work on. */
export const PARTS = ["name", "extension", "both"];

/** Whether a counter continues, or restarts with each folder or each day. */
export const SCOPES = ["run", "folder", "date"];

// Marks a text that the step could not change: it stays as it is, and the step reports it.
function unchanged(text) {
    return { text: text, short: true };
}

// Characters below these never combine with another one.
const MAY_BELONG = /[\u0300-\uffff]/;

// The first damage that a cut at one of the positions does.
function harm(text, positions) {
    return !MAY_BELONG.test(text)
        ? "" : positions.map((position) => cutAt(text, position)).find((each) => each !== "") || "";
}

function strip(step, text, names) {
    if (step.count > text.length) {
        return unchanged(text);
    }
    const at = step.side === "fLeft" ? step.count : text.length - step.count;
    return { text: names.hStripString(text, step.side, step.count), cut: harm(text, [at]) };
}

function section(step, text, names) {
    const start = step.start - 1;
    if (start + step.length > text.length) {
        return unchanged(text);
    }
    return { text: names.hSubsectionString(text, start, step.length), cut: harm(text, [start, start + step.length]) };
}

function insert(step, text, names) {
    const at = step.from === "end" ? text.length - step.position : step.position;
    return at < 0 || at > text.length ? unchanged(text)
                                      : { text: names.hInsertStringInString(text, step.text, at),
                                          cut: harm(text, [at]) };
}

// Question marks of the original text differ from those that replace letters without a plain form.
function fold(step, text, names) {
    const pieces = names.hSplitString(text, "?").map((piece) => {
        const folded = names.hConvertAccentLetters(piece);
        return step.other === "?" ? folded : names.hReplaceStringInString(folded, "?", step.other);
    });
    return { text: pieces.join("?") };
}

/** The pieces that a list such as "2,1,-1" names, counted from 1, or from the end for less than 0; all of them for "". */
export function chosenPieces(pieces, list) {
    if (list.trim() === "") {
        return pieces;
    }
    return list.split(",").map((entry) => Number(entry))
        .map((number) => pieces[number > 0 ? number - 1 : pieces.length + number])
        .filter((piece) => piece !== undefined);
}

function split(step, text, names) {
    const chosen = chosenPieces(names.hSplitString(text, step.separator), step.pieces);
    if (chosen.length === 0) {
        return unchanged(text);
    }
    return { text: chosen.reduce((joined, piece) => names.hConcatString(joined, step.joiner, piece)) };
}

// Only characters outside ASCII can be written in two ways or be damaged.
function utf8(step, text, names) {
    return { text: /^[\x00-\x7f]*$/.test(text) ? text : names.hUTF8toNSString(text.normalize(step.form)) };
}

function fits(step, text, names) {
    if (step.where === "contains") {
        return names.hStringContainsString(text, step.text) === "YES";
    }
    if (step.where === "begins") {
        return names.hStringBeginsWith(text, step.text) === "YES";
    }
    // The operation raises an error for an ending that is longer than the text.
    return step.text.length <= text.length && names.hStringEndWith(text, step.text) === "YES";
}

/**
 * By the name of the kind: standard, the settings of a new step; parts, whether it can be restricted to a part of the
 * name; apply(step, text, names) gives {text, short: unchanged because it is too short, cut: "half" or "mark" if a
 * character was split, stop: the following steps are skipped}. names has the operations.
 */
const STEPS = {
    text: { standard: { pattern: "{name}", counterStep: 1, counterScope: "run" }, parts: false },
    "case": { standard: { mode: "1" }, parts: true,
              apply: (step, text, names) => ({ text: names.hChangeCaseFiles(text, step.mode) }) },
    replace: { standard: { search: "", replacement: "" }, parts: true,
               apply: (step, text, names) =>
                   ({ text: names.hReplaceStringInString(text, step.search, step.replacement) }) },
    insert: { standard: { text: "", from: "start", position: 0 }, parts: true, apply: insert },
    around: { standard: { before: "", after: "" }, parts: true,
              apply: (step, text, names) => ({ text: names.hConcatString(step.before, text, step.after) }) },
    strip: { standard: { side: "fLeft", count: 1 }, parts: true, apply: strip },
    section: { standard: { start: 1, length: 8 }, parts: true, apply: section },
    split: { standard: { separator: "_", pieces: "", joiner: " " }, parts: false, apply: split },
    letters: { standard: { keep: "NA" }, parts: true,
               apply: (step, text, names) => ({ text: names.hRemoveNonLetters(text, step.keep) }) },
    spaces: { standard: {}, parts: true, apply: (step, text, names) => ({ text: names.hRemoveWhiteSpace(text) }) },
    fold: { standard: { other: "?" }, parts: true, apply: fold },
    utf8: { standard: { form: "NFC" }, parts: true, apply: utf8 },
    only: { standard: { where: "contains", text: "" }, parts: true,
            apply: (step, text, names) => (fits(step, text, names) ? { text: text } : { text: text, stop: true }) },
};

export const KINDS = Object.keys(STEPS);

/** Settings of steps that have a fixed set of values. */
export const WORDS = {
    part: PARTS, mode: ["1", "2", "3"], side: ["fLeft", "fRight"], from: ["start", "end"], keep: ["NA", "OL"],
    form: ["NFC", "NFD"],
    where: ["contains", "begins", "ends"], counterScope: SCOPES,
};

/** A new step of a kind, with some settings given. */
export function newStep(kind, changes) {
    return Object.assign({ kind: kind, on: true }, STEPS[kind].parts ? { part: "name" } : {}, STEPS[kind].standard,
                         changes || {});
}

export function hasParts(kind) {
    return STEPS[kind].parts;
}

function isValue(field, value, standard) {
    if (typeof value !== typeof standard || (WORDS[field] !== undefined && WORDS[field].indexOf(value) < 0)) {
        return false;
    }
    return typeof value !== "number" || (Number.isInteger(value) && Math.abs(value) <= 999999);
}

/** A step that was stored somewhere, or null if it is invalid: unknown kinds and values are not guessed at. */
export function stepFrom(kept) {
    if (kept === null || typeof kept !== "object" || STEPS[kept.kind] === undefined) {
        return null;
    }
    const step = newStep(kept.kind);
    for (const field of Object.keys(step)) {
        if (kept[field] !== undefined) {
            if (!isValue(field, kept[field], step[field])) {
                return null;
            }
            step[field] = kept[field];
        }
    }
    return step;
}

/** What is wrong with the settings of a step, in sentences. */
export function stepProblems(step) {
    if (step.kind === "text") {
        return step.pattern === "" ? [qsTr("Enter a text.")] : tokens.problems(step.pattern);
    }
    if (step.kind === "split" && !/^\s*(-?[1-9][0-9]*\s*(,\s*-?[1-9][0-9]*\s*)*)?$/.test(step.pieces)) {
        return [qsTr("Enter piece numbers separated by commas, such as 2,1. Use -1 for the last piece.")];
    }
    return [];
}

// What makes a counter restart.
function counterKey(step, context) {
    if (step.counterScope === "folder") {
        return context.folder;
    }
    return step.counterScope === "date" ? (context.facts && context.facts.taken || "").slice(0, 10) : "";
}

function nextIndex(step, counters, context) {
    const key = counterKey(step, context);
    const index = counters[key] || 0;
    counters[key] = index + 1;
    return index * step.counterStep;
}

/**
 * A step, prepared to be applied to many names: apply(text, context) as in STEPS; see NameChain. A slash or a NUL in a
 * value cannot be part of a name; one that the user typed is reported.
 */
export function prepared(step, names, missing) {
    if (step.kind !== "text") {
        return { step: step, needsFacts: false, counts: false, digits: () => 0,
                 apply: (text) => STEPS[step.kind].apply(step, text, names) };
    }
    const made = new TokenText(Object.assign({ pattern: step.pattern, values: "name" }, missing));
    const counters = Object.create(null);
    const counts = tokens.parts(step.pattern).some((part) => part.token === "counter");
    let most = 0;
    const apply = (text, context) => {
        const path = context.folder + "/" + text + (context.extension ? "." + context.extension : "");
        const index = counts ? nextIndex(step, counters, context) : 0;
        most = Math.max(most, index);
        const expanded = made.expand(path, context.facts, index);
        return expanded.length === 1 ? { text: expanded[0] } : { text: expanded[0], missing: expanded.slice(1) };
    };
    return { step: step, needsFacts: made.needsFacts || (counts && step.counterScope === "date"), counts: counts,
             apply: apply, digits: () => digitsFor(step.pattern, most) };
}

/** The digits that the counters of a pattern need if they advance by that much; 0 if all of them are wide enough. */
function digitsFor(pattern, most) {
    const widths = tokens.parts(pattern).filter((part) => part.token === "counter" && part.form.length > 1)
        .map((part) => ({ has: part.form.length, needs: String(Number(part.form) + most).length }));
    return widths.reduce((digits, each) => (each.needs > each.has ? Math.max(digits, each.needs) : digits), 0);
}

/** The pattern with counters of so many digits; those without leading zeros stay as they are. */
export function withDigits(pattern, digits) {
    return tokens.parts(pattern).reduce((text, part) => {
        const isShort = part.token === "counter" && part.form.length > 1 && part.form.length < digits;
        return isShort ? text.replace("{counter:" + part.form + "}",
                                      "{counter:" + part.form.padStart(digits, "0") + "}") : text;
    }, pattern);
}
