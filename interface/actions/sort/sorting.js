// Where a file is sorted to: the folders that a pattern of tokens gives it. Pure but for translation; no service is used.
//
// A pattern is a text with tokens (lib/tokens.js) and "/" between its levels: "{taken:yyyy}/{taken:yyyy-MM-dd}".

import { expand, needsFacts, parse, problems } from "../../lib/tokens.js";

/** What becomes of a file without a date taken. */
export const UNDATED = ["folder", "created", "changed", "leave"];

export const MOST_LEVELS = 3;

const LONGEST_BYTES = 180;

function level(value, text) {
    return { value: value, text: text };
}

/** The levels to choose from, in groups: {value: the pattern of one level, text}. */
export function levelChoices() {
    return [
        [level("{taken:yyyy}", qsTr("Year taken")), level("{taken:yyyy-MM}", qsTr("Month taken")),
         level("{taken:yyyy-MM-dd}", qsTr("Day taken"))],
        [level("{created:yyyy}", qsTr("Year created")), level("{created:yyyy-MM}", qsTr("Month created")),
         level("{created:yyyy-MM-dd}", qsTr("Day created"))],
        [level("{changed:yyyy}", qsTr("Year changed")), level("{changed:yyyy-MM}", qsTr("Month changed")),
         level("{changed:yyyy-MM-dd}", qsTr("Day changed"))],
        [level("{type}", qsTr("File type")), level("{size:class}", qsTr("File size")),
         level("{orientation}", qsTr("Orientation")),
         level("{camera}", qsTr("Camera")), level("{lens}", qsTr("Lens"))],
        [level("{name:word}", qsTr("Name up to a number")), level("{name:1}", qsTr("First letter")),
         level("{name:3}", qsTr("First 3 letters"))],
    ];
}

function isChoice(value) {
    return levelChoices().some((group) => group.some((choice) => choice.value === value));
}

/** The levels that make up a pattern, as many as there can be chosen, "" for none; null where they cannot be chosen. */
export function levelsOf(pattern) {
    const levels = pattern.split("/");
    if (pattern === "" || levels.length > MOST_LEVELS || !levels.every(isChoice)) {
        return pattern === "" ? ["", "", ""] : null;
    }
    return levels.concat(["", "", ""]).slice(0, MOST_LEVELS);
}

export function patternOf(levels) {
    return levels.filter((value) => value !== "").join("/");
}

// The parts of each level; a "/" in a text parts levels, empty ones are passed over.
function levelsOfParts(parts) {
    const levels = [[]];
    for (const part of parts) {
        if (part.token !== undefined) {
            levels[levels.length - 1].push(part);
            continue;
        }
        part.text.split("/").forEach((text, index) => {
            if (index > 0) {
                levels.push([]);
            }
            if (text !== "") {
                levels[levels.length - 1].push({ text: text });
            }
        });
    }
    return levels.filter((each) => each.length > 0);
}

function plainText(parts) {
    return parts.every((part) => part.token === undefined) ? parts.map((part) => part.text).join("").trim() : null;
}

function utf8Length(text) {
    return encodeURIComponent(text).replace(/%../g, "x").length;
}

/** What is wrong with a pattern of folders, as sentences; empty if nothing is. */
export function patternProblems(pattern) {
    const levels = levelsOfParts(parse(pattern));
    if (levels.length === 0) {
        return [qsTr("Choose a rule, or write a pattern of folders.")];
    }
    const found = problems(pattern);
    const texts = levels.map(plainText);
    if (texts.indexOf(".") >= 0 || texts.indexOf("..") >= 0) {
        found.push(qsTr("A folder cannot be called “.” or “..”."));
    }
    if (texts.some((text) => text === "")) {
        found.push(qsTr("A folder cannot have a name of blanks only."));
    }
    if (texts.some((text) => text !== null && utf8Length(text) > 255)) {
        found.push(qsTr("The name of a folder is too long."));
    }
    if (/[\u0000-\u001f\u007f]/.test(pattern)) {
        found.push(qsTr("A pattern cannot hold control characters."));
    }
    return found;
}

/** What is wrong with a name for one folder, as sentences. */
export function folderNameProblems(name) {
    if (name.trim() === "") {
        return [qsTr("Enter a name for the folder of pictures without a date.")];
    }
    return safeName(name) === name.trim() ? [] : [qsTr("“%1” cannot be the name of a folder.").replace("%1", name)];
}

// The engine's own cutting may part a letter that takes two places. No letter has more than three bytes a place.
function cutToBytes(text, most) {
    let cut = text;
    while (cut.length * 3 > most && utf8Length(cut) > most) {
        const last = cut.charCodeAt(cut.length - 1);
        cut = cut.slice(0, last >= 0xdc00 && last <= 0xdfff ? -2 : -1);
    }
    return cut;
}

// Half a pair of places cannot be written as a name.
function withoutHalves(text) {
    return text.replace(/[\ud800-\udbff][\udc00-\udfff]|[\ud800-\udfff]/g,
                        (found) => (found.length === 2 ? found : "-"));
}

/**
 * A value as the name of one folder, or a part of one: signs that part folders, or that other disks refuse, become "-"; dots and
 * blanks around it go; "" where nothing is left.
 */
export function safeName(value) {
    const text = withoutHalves(value).replace(/[\u0000-\u001f\u007f]+/g, " ").replace(/[/\\:*?"<>|]+/g, "-");
    const trimmed = text.replace(/^[\s.]+|[\s.]+$/g, "");
    return cutToBytes(trimmed, LONGEST_BYTES).trim();
}

/** What stands for a missing value, in words that name a folder. */
export function standInFor(token) {
    const words = {
        taken: qsTr("Undated"), created: qsTr("Undated"), changed: qsTr("Undated"), camera: qsTr("Unknown camera"),
        lens: qsTr("Unknown lens"), width: qsTr("Unknown size"), height: qsTr("Unknown size"),
        size: qsTr("Unknown size"),
        type: qsTr("Unknown type"), orientation: qsTr("Unknown orientation"), extension: qsTr("Without extension"),
        name: qsTr("Other names"), folder: qsTr("Other folders"),
    };
    return words[token] || qsTr("Other");
}

/** A pattern made ready for many files. */
export function prepared(pattern) {
    const levels = levelsOfParts(parse(pattern));
    return {
        levels: levels.map((parts) => ({ parts: parts, isDated: parts.some((part) => part.token === "taken") })),
        needsFacts: levels.some(needsFacts),
        isDated: levels.some((parts) => parts.some((part) => part.token === "taken")),
    };
}

function nameOfLevel(parts, path, facts, index) {
    const expanded = expand(parts, { path: path, facts: facts, index: index, clean: safeName, standIn: standInFor });
    return safeName(expanded.text) || "-";
}

function withDate(facts, rule) {
    return facts !== null && facts.taken === "" && (rule.undated === "created" || rule.undated === "changed")
        ? Object.assign({}, facts, { taken: facts[rule.undated] }) : facts;
}

function withoutLaterDates(levels) {
    const first = levels.findIndex((each) => each.isDated);
    return levels.filter((each, i) => !each.isDated || i === first);
}

/**
 * The folders that a file is sorted into: {folders: [name, ...], isUndated, stays}.
 *
 * @param ready  of prepared()
 * @param facts  of files.facts; may be null where needsFacts is false
 * @param rule   has undated, one of UNDATED, and undatedName
 * @param index  how many files came before this one
 *
 * A file without a date has one folder for all the levels that name one. Where it is to be left, `stays` is true.
 */
export function foldersFor(ready, path, facts, rule, index) {
    const isUndated = ready.isDated && (facts === null || facts.taken === "");
    if (isUndated && rule.undated === "leave") {
        return { folders: [], isUndated: true, stays: true };
    }
    const dated = isUndated ? withDate(facts, rule) : facts;
    const hasNoDate = isUndated && (dated === null || dated.taken === "");
    // The levels that name a date are one folder where there is none.
    const levels = hasNoDate ? withoutLaterDates(ready.levels) : ready.levels;
    const folders = levels.map((each) => (each.isDated && hasNoDate ? safeName(rule.undatedName) || standInFor("taken")
                                                                    : nameOfLevel(each.parts, path, dated, index)));
    return { folders: folders, isUndated: isUndated, stays: false };
}
