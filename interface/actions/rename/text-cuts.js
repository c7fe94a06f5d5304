// Where a text may be cut: not between the halves of a surrogate pair, and not before a mark that belongs to the
// preceding letter. Positions are in UTF-16, as the text operations count them. Pure; no service is used.

// Combining marks, joiners, and modifiers of the preceding character.
const MARKS = [
    [0x300, 0x36f], [0x483, 0x489], [0x591, 0x5bd], [0x610, 0x61a], [0x64b, 0x65f], [0x6d6, 0x6dc], [0x900, 0x903],
    [0x93a, 0x94f],
    [0x981, 0x983], [0x9bc, 0x9cd], [0xe31, 0xe31], [0xe34, 0xe3a], [0xe47, 0xe4e], [0x1ab0, 0x1aff], [0x1dc0, 0x1dff],
    [0x200d, 0x200d],
    [0x20d0, 0x20ff], [0x302a, 0x302f], [0x3099, 0x309a], [0xfe00, 0xfe0f], [0xfe20, 0xfe2f], [0x1f3fb, 0x1f3ff],
];

const JOINER = 0x200d;

function isHigh(code) {
    return code >= 0xd800 && code <= 0xdbff;
}

function isLow(code) {
    return code >= 0xdc00 && code <= 0xdfff;
}

function isMark(code) {
    return code >= MARKS[0][0] && MARKS.some((range) => code >= range[0] && code <= range[1]);
}

/**
 * What a cut before the character at that position would do: "" nothing, "half" split a pair, "mark" separate a letter
 * from its mark.
 */
export function cutAt(text, position) {
    if (position <= 0 || position >= text.length) {
        return "";
    }
    const before = text.charCodeAt(position - 1);
    if (isHigh(before) && isLow(text.charCodeAt(position))) {
        return "half";
    }
    return isMark(text.codePointAt(position)) || before === JOINER ? "mark" : "";
}

const HALVES = /[\ud800-\udfff]/;

/** True for a text with half of a pair in it, which no file system accepts. */
export function hasHalf(text) {
    for (let i = HALVES.test(text) ? 0 : text.length; i < text.length; i += 1) {
        const code = text.charCodeAt(i);
        if (isHigh(code) && isLow(text.charCodeAt(i + 1))) {
            i += 1;
        } else if (isHigh(code) || isLow(code)) {
            return true;
        }
    }
    return false;
}
