// Where a file is sorted to: the folders that result from a pattern of tokens. Pure but for translation.
//
// A pattern is a text with tokens and "/" between its levels: "{taken:yyyy}/{taken:yyyy-MM-dd}".

import { tokens, TokenText } from "quorlin/tokens";

/** What happens to a file without a date taken. */
export const UNDATED = ["folder", "created", "changed", "leave"];

export const MOST_LEVELS = 3;

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
        [level("{name:word}", qsTr("Name up to the first digit")), level("{name:1}", qsTr("First letter")),
         level("{name:3}", qsTr("First 3 letters"))],
    ];
}

function isChoice(value) {
    return levelChoices().some((group) => group.some((choice) => choice.value === value));
}

/** The levels that make up a pattern, as many as can be chosen, "" for none; null if they cannot be chosen. */
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

function plainText(parts) {
    return parts.every((part) => part.token === undefined) ? parts.map((part) => part.text).join("").trim() : null;
}

function utf8Length(text) {
    return encodeURIComponent(text).replace(/%../g, "x").length;
}

/** What is wrong with a folder pattern, as sentences; empty if nothing is. */
export function patternProblems(pattern) {
    const levels = tokens.levels(pattern);
    if (levels.length === 0) {
        return [qsTr("Choose a rule, or write a pattern of folders.")];
    }
    const found = tokens.problems(pattern);
    const texts = levels.map((each) => plainText(tokens.parts(each)));
    if (texts.indexOf(".") >= 0 || texts.indexOf("..") >= 0) {
        found.push(qsTr("A folder cannot be called “.” or “..”."));
    }
    if (texts.some((text) => text === "")) {
        found.push(qsTr("A folder name cannot consist of spaces only."));
    }
    if (texts.some((text) => text !== null && utf8Length(text) > 255)) {
        found.push(qsTr("A folder name is too long."));
    }
    if (/[\u0000-\u001f\u007f]/.test(pattern)) {
        found.push(qsTr("A pattern cannot contain control characters."));
    }
    return found;
}

/** What is wrong with a name for one folder, as sentences. */
export function folderNameProblems(name) {
    if (name.trim() === "") {
        return [qsTr("Enter a folder name for pictures without a date.")];
    }
    return tokens.folderName(name) === name.trim()
        ? [] : [qsTr("“%1” is not a valid folder name.").replace("%1", name)];
}

/**
 * Replacements for missing values, as names of folders: {standIns: by the names of tokens, standIn: for all others}.
 */
export function missingValues() {
    const words = {
        taken: qsTr("Undated"), created: qsTr("Undated"), changed: qsTr("Undated"), camera: qsTr("Unknown camera"),
        lens: qsTr("Unknown lens"), width: qsTr("Unknown size"), height: qsTr("Unknown size"),
        size: qsTr("Unknown size"),
        type: qsTr("Unknown type"), orientation: qsTr("Unknown orientation"), rating: qsTr("Not rated"),
        extension: qsTr("Without extension"),
        name: qsTr("Other names"), folder: qsTr("Other folders"),
    };
    return { standIns: words, standIn: qsTr("Other") };
}

// The folder names that one level of a pattern yields.
function levelOf(pattern) {
    return { text: new TokenText(Object.assign({ pattern: pattern, values: "folder" }, missingValues())),
             isDated: tokens.parts(pattern).some((part) => part.token === "taken") };
}

/** A pattern prepared for many files. */
export function prepared(pattern) {
    const levels = tokens.levels(pattern).map(levelOf);
    return {
        levels: levels,
        needsFacts: levels.some((each) => each.text.needsFacts),
        isDated: levels.some((each) => each.isDated),
    };
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
 * A file without a date gets one folder for all the levels with dates. If it is to be left, `stays` is true.
 */
export function foldersFor(ready, path, facts, rule, index) {
    const isUndated = ready.isDated && (facts === null || facts.taken === "");
    if (isUndated && rule.undated === "leave") {
        return { folders: [], isUndated: true, stays: true };
    }
    const dated = isUndated ? withDate(facts, rule) : facts;
    const hasNoDate = isUndated && (dated === null || dated.taken === "");
    // The levels with a date become one folder if there is none.
    const levels = hasNoDate ? withoutLaterDates(ready.levels) : ready.levels;
    const folderOf = (each) => (each.isDated && hasNoDate ? tokens.folderName(rule.undatedName) || qsTr("Undated")
                                                          : each.text.expand(path, dated, index)[0]);
    return { folders: levels.map(folderOf), isUndated: isUndated, stays: false };
}
