// The outcome of an update check. Pure; no service is used.

export const KEY = "UpdateCheck";
export const STANDARD = { onStart: false };

/**
 * @param fields   label, and two texts, of a newer version, or null
 * @param problem  why it is unknown whether there is one, or null
 * @return kind: "newer" with version and notes, "current", or "failed" if there was no answer, or it made no sense
 */
export function outcome(fields, problem) {
    if (fields === null) {
        return { kind: problem === null ? "current" : "failed" };
    }
    return { kind: "newer", version: fields[0].trim(), notes: [fields[1], fields[2]].map((text) => text.trim()).filter((text) => text !== "").join("\n\n") };
}
