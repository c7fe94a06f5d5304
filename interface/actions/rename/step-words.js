// The steps of a chain of names in words: titles, explanations, search words of the menu, and their settings in a line.
// Pure but for translation; tokens supply their own words.

import { tokens } from "quorlin/tokens";
import { newStep } from "./name-steps.js";
import { fill } from "../../lib/wording.js";

/** {title, explanation, words} by the name of the kind. */
export function kindWords() {
    return {
        text: { title: qsTr("New text"), explanation: qsTr("Text with dates, counters and other values"),
                words: qsTr("token pattern write template") },
        "case": { title: qsTr("Change case"), explanation: qsTr("lower case, UPPER CASE, Words"),
                  words: qsTr("capital small letters") },
        replace: { title: qsTr("Replace text"), explanation: qsTr("Replaces a text everywhere in the name"),
                   words: qsTr("search find substitute delete") },
        insert: { title: qsTr("Insert text"), explanation: qsTr("At a position counted from the start or the end"),
                  words: qsTr("add position") },
        around: { title: qsTr("Add before and after"), explanation: qsTr("Text before and after the name"),
                  words: qsTr("prefix suffix append join concatenate") },
        strip: { title: qsTr("Remove characters"),
                 explanation: qsTr("A number of characters from the left or the right"),
                 words: qsTr("strip cut trim shorten") },
        section: { title: qsTr("Keep a section"), explanation: qsTr("Only the characters at certain positions"),
                   words: qsTr("part substring range middle") },
        split: { title: qsTr("Split and join"), explanation: qsTr("Take pieces between separators, in any order"),
                 words: qsTr("pieces rearrange swap") },
        letters: { title: qsTr("Keep letters and digits"), explanation: qsTr("Removes all other characters"),
                   words: qsTr("remove signs non-letters clean punctuation digits") },
        spaces: { title: qsTr("Remove spaces"), explanation: qsTr("All spaces, also between words"),
                  words: qsTr("blanks whitespace") },
        fold: { title: qsTr("Remove accents (é → e)"), explanation: qsTr("é becomes e"),
                words: qsTr("fold ascii umlaut diacritics plain") },
        utf8: { title: qsTr("Normalise accents"), explanation: qsTr("For names that come from another system"),
                words: qsTr("unicode utf-8 normalise nfc nfd repair") },
        only: { title: qsTr("Only some names"), explanation: qsTr("The steps below apply only to matching names"),
                words: qsTr("filter condition contains begins ends if") },
    };
}

/** What the menu of steps offers, in order: [{title, explanation, words, step}]; some are ready-made texts. */
export function menuEntries() {
    const words = kindWords();
    const own = (kind, changes) => Object.assign({}, words[kind], { step: newStep(kind, changes) });
    const text = (title, explanation, more, pattern) =>
        ({ title: title, explanation: explanation, words: more, step: newStep("text", { pattern: pattern }) });
    return [
        own("text", {}),
        text(qsTr("Counter"), qsTr("001, 002, 003 after the name"), qsTr("number sequence"), "{name} {counter:001}"),
        text(qsTr("Date taken"), qsTr("Before the name"), qsTr("exif time shot"), "{taken:yyyy-MM-dd} {name}"),
        text(qsTr("Date changed or created"), qsTr("Before the name"), qsTr("modified file time"),
             "{changed:yyyy-MM-dd} {name}"),
        text(qsTr("Camera"), qsTr("After the name"), qsTr("model lens"), "{name} {camera}"),
        text(qsTr("Size in pixels"), qsTr("After the name"), qsTr("width height resolution"),
             "{name} {width}x{height}"),
        text(qsTr("Name of the folder"), qsTr("Before the name"), qsTr("directory parent"), "{folder} {name}"),
        own("case", {}), own("replace", {}), own("around", {}), own("insert", {}), own("strip", {}), own("section", {}),
        own("split", {}),
        own("letters", {}), own("spaces", {}), own("fold", {}), own("utf8", {}), own("only", {}),
    ];
}

function partWord(step) {
    return { name: qsTr("name"), extension: qsTr("extension"), both: qsTr("name and extension") }[step.part];
}

function quoted(text) {
    return text === "" ? qsTr("nothing") : fill(qsTr("“%1”"), text);
}

function tokenText(part) {
    const words = tokens.words(part.token);
    return part.form === "" ? words : words + " " + part.form;
}

const SUMMARIES = {
    "case": (step) =>
        fill({ "1": qsTr("%1 to lower case"), "2": qsTr("%1 to UPPER CASE"),
               "3": qsTr("%1 to Words With Capitals") }[step.mode], partWord(step)),
    replace: (step) => fill(qsTr("%1 becomes %2"), quoted(step.search), quoted(step.replacement)),
    insert: (step) =>
        fill(step.from === "end" ? qsTr("%1, %2 from the end") : qsTr("%1, %2 from the start"), quoted(step.text),
             step.position),
    around: (step) => fill(qsTr("%1 before, %2 after"), quoted(step.before), quoted(step.after)),
    strip: (step) => fill(step.side === "fLeft" ? qsTr("%1 from the left") : qsTr("%1 from the right"), step.count),
    section: (step) => fill(qsTr("%n characters from the %1.", "", step.length), step.start),
    split: (step) =>
        (step.pieces === "" ? fill(qsTr("at %1, joined by %2"), quoted(step.separator), quoted(step.joiner))
                                         : fill(qsTr("at %1, pieces %3, joined by %2"), quoted(step.separator),
                                                quoted(step.joiner), step.pieces)),
    letters: (step) => (step.keep === "OL" ? qsTr("only letters are kept") : qsTr("only letters and digits are kept")),
    spaces: () => qsTr("all spaces are removed"),
    fold: (step) =>
        (step.other === "?" ? qsTr("é becomes e") : fill(qsTr("é becomes e, others %1"), quoted(step.other))),
    utf8: (step) => (step.form === "NFD" ? qsTr("accents as separate marks (NFD)")
                                         : qsTr("accents and letters as one (NFC)")),
    only: (step) =>
        fill({ contains: qsTr("that contain %1"), begins: qsTr("that begin with %1"),
               ends: qsTr("that end with %1") }[step.where], quoted(step.text)),
};

/** The settings of a step in a line: [{text, chip}]; a chip stands for a value of the file. */
export function summaryOf(step) {
    if (step.kind !== "text") {
        return [{ text: SUMMARIES[step.kind](step), chip: false }];
    }
    return tokens.parts(step.pattern)
        .map((part) =>
            (part.token === undefined ? { text: part.text, chip: false } : { text: tokenText(part), chip: true }));
}
