// What comes of an update check. Pure; no service is used.

export const KEY = "UpdateCheck";
export const STANDARD = { onStart: false };

/**
 * Asks once.
 *
 * @param updater  getAppVersion(build) and err, as cAppUpdater has them
 * @return {kind: "newer", version, notes}, {kind: "current"}, or {kind: "failed"} where nobody could be asked or the answer
 *         made no sense
 */
export function look(updater, build) {
    let fields = null;
    try {
        fields = updater.getAppVersion(build);
    } catch (error) {
        if (!(error instanceof RangeError)) {
            throw error;
        }
        return { kind: "failed" };
    }
    if (fields === null) {
        return { kind: updater.err === null ? "current" : "failed" };
    }
    return { kind: "newer", version: fields[0].trim(), notes: [fields[1], fields[2]].map((text) => text.trim()).filter((text) => text !== "").join("\n\n") };
}
