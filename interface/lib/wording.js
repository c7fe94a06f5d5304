// Sentences with numbers in them. Pure but for translation; no service is used.

/** Puts values into the placeholders %1, %2 ... of a text. A value that looks like a placeholder stays as it is. */
export function fill(text, ...values) {
    return text.replace(/%([1-9])/g, (place, number) => (number <= values.length ? String(values[number - 1]) : place));
}

export function pictures(number) {
    return qsTr("%n pictures", "", number);
}

/** "4032×3024". */
export function pixels(size) {
    return size.width + "×" + size.height;
}

/** 10000 gives "10,000" in the reader's number format. */
export function numberText(number) {
    return number.toLocaleString();
}

/** fill() for numbers, in the reader's number format. */
export function fillNumbers(text, ...numbers) {
    return fill(text, ...numbers.map(numberText));
}

/** 39.68 gives "39.7%" in the reader's form, with a non-breaking space where there is one. */
export function percent(value) {
    return fill(qsTr("%1%"), (Math.round(value * 10) / 10).toLocaleString());
}

/** The path with the home folder written as "~". */
export function shortPath(path, home) {
    return path === home || path.startsWith(home + "/") ? "~" + path.slice(home.length) : path;
}

/** A status word and its reason as one text. */
export function statusText(status, reason) {
    const words = { "OK": qsTr("OK"), "Failed": qsTr("Failed"), "Not Supported": qsTr("Not Supported"),
                    "Skipped": qsTr("Skipped") };
    return reason ? fill(qsTr("%1: %2"), words[status], reason) : words[status];
}

/** How a final status is coloured in the list. */
export function statusKind(status) {
    return { "OK": "good", "Failed": "bad", "Not Supported": "bad", "Skipped": "caution" }[status];
}

/** "2 problems", "no problems". */
export function problemsText(number) {
    return number === 0 ? qsTr("no problems") : qsTr("%n problems", "", number);
}
