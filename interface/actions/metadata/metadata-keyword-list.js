// The list of keywords that the form completes: one per line, in a file of the data folder. Pure; the file service is
// handed in.

const NAME = "/keywords.txt";

function pathOf(files) {
    return files.dataFolder + NAME;
}

function sorted(words) {
    const keyOf = (word) => word.toLowerCase() + "\n" + word;
    return words.slice().sort((a, b) => (keyOf(a) < keyOf(b) ? -1 : 1));
}

/** The words of a text, separated by line breaks, commas or semicolons; each once. */
export function keywordsIn(text) {
    const words = text.split(/[\r\n,;]+/).map((word) => word.trim()).filter((word) => word !== "");
    return words.filter((word, i) => words.indexOf(word) === i);
}

/** The words of the list, in their order. */
export function listedKeywords(files) {
    return sorted(keywordsIn(files.readText(pathOf(files)) || ""));
}

/** Replaces the list; returns a message if that failed. */
export function keepKeywords(files, words) {
    return files.writeText(pathOf(files), keywordsText(words));
}

/** Adds words that are not in it; returns a message if that failed. */
export function addKeywords(files, words) {
    const known = listedKeywords(files);
    const added = words.filter((word) => known.indexOf(word) < 0);
    return added.length === 0 ? "" : keepKeywords(files, known.concat(added));
}

/** The list as it is exported. */
export function keywordsText(words) {
    return sorted(words).map((word) => word + "\n").join("");
}
