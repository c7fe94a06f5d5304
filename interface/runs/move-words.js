// What the plan of a run that moves files says, in words. Pure but for translation; no service is used.

import { splitPath } from "../lib/names.js";
import { fill } from "../lib/wording.js";

function nameOf(path) {
    return path ? splitPath(path).name : "";
}

const REFUSED = {
    empty: () => qsTr("the name is empty"),
    illegal: () => qsTr("a name cannot contain “/” or be “.” or “..”"),
    long: () => qsTr("the name is too long"),
    gone: () => qsTr("the file no longer exists"),
    twice: (other) => fill(qsTr("same new name as %1"), other),
    taken: (other) => (other ? fill(qsTr("name in use by %1, which keeps its name"), other)
                             : qsTr("name in use by a file that is not in this list")),
    "case": (other) => fill(qsTr("differs only by case or accents from %1"), other),
    inside: () => qsTr("a folder cannot be moved into itself"),
    locked: () => qsTr("the folder is read-only"),
    leader: () => qsTr("the picture of this sidecar file stays"),
    along: (other) => (other ? fill(qsTr("a sidecar file cannot be moved: its name is in use by %1"), other)
                             : qsTr("a sidecar file cannot be moved")),
};

/** Why a request cannot be met. */
export function refusalText(item) {
    const words = REFUSED[item.code];
    const other = nameOf(item.other);
    // The taken name is the wanted one: repeating it would add nothing.
    return words === undefined
        ? qsTr("not possible") : words(item.code === "taken" && other === nameOf(item.to) ? "" : other);
}

function companions(row) {
    const seen = [];
    row.along.forEach((other) => {
        const ending = "." + splitPath(other.from).extension.toLowerCase();
        if (seen.indexOf(ending) < 0) {
            seen.push(ending);
        }
    });
    return seen.join(", ");
}

function readyText(row, item) {
    if (item.code === "aside") {
        return fill(qsTr("swaps names with %1"), nameOf(item.other));
    }
    if (item.code === "case" && row.along.length > 0) {
        return fill(qsTr("ready, with its %1"), companions(row));
    }
    const words = { numbered: qsTr("ready, numbered because the file exists"), disk: qsTr("ready, to another disk"),
                    "case": qsTr("ready, only the case changes") };
    return words[item.code]
        || (row.along.length > 0 ? fill(qsTr("ready, with its %1"), companions(row)) : qsTr("ready"));
}

function ready(row, item) {
    const isPlainMove = item.code === "" || item.code === "case";
    const notes = row.notes
        .concat(row.along.length > 0 && !isPlainMove ? [fill(qsTr("Includes its %1."), companions(row))] : []);
    if (row.caution !== "") {
        const text = readyText(row, item);
        return { state: "ready", kind: "caution", text: row.caution,
                 detail: [row.caution, text].concat(notes).join("\n") };
    }
    const isPlain = isPlainMove && row.notes.length === 0;
    const text = isPlainMove && row.notes.length > 0 ? fill(qsTr("ready, but %1"), row.notes[0]) : readyText(row, item);
    const other = item.code === "aside" ? "waiting" : "caution";
    return { state: "ready", kind: isPlain ? "good" : other, text: text,
             detail: [text].concat(notes).join("\n") };
}

const TAKEN = ["taken", "twice", "case"];

// The rule for taken names is to leave such files where they are.
function skipped(item) {
    const text = item.code === "twice"
        ? fill(qsTr("stays: %1 gets this name"), nameOf(item.other)) : qsTr("stays: file already exists");
    return { state: "same", kind: "caution", text: text, detail: fill(qsTr("Existing file: %1"), item.other) };
}

/**
 * The state of a row: {state: "ready", "same", "along" or "attention", kind, text, detail}; kind is that of the list's
 * statuses, detail is for the tooltip. leaderName: of the row that this one moves with.
 */
export function stateOf(row, item, leaderName) {
    if (row.goesWith >= 0) {
        return { state: "along", kind: "waiting", text: fill(qsTr("sidecar file of %1"), leaderName), detail: "" };
    }
    if (item === null) {
        return { state: row.isLeft ? "same" : "attention", kind: row.isLeft ? "caution" : "bad", text: row.reason,
                 detail: row.notes.join("\n") };
    }
    if (item.status === "same") {
        return { state: "same", kind: "none", text: qsTr("unchanged"), detail: row.notes.join("\n") };
    }
    if (item.status === "refused" && row.skips && TAKEN.indexOf(item.code) >= 0) {
        return skipped(item);
    }
    if (item.status === "refused") {
        const text = refusalText(item);
        return { state: "attention", kind: "bad", text: text, detail: [text].concat(row.notes).join("\n") };
    }
    return ready(row, item);
}
