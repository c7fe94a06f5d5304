// The settings of runs, stored beside their log: one line of JSON for each run, {run, action, settings}, newest last.
// The file service is passed in.

const NAME = "/run-settings.jsonl";
const MOST = 500;
const SLACK = 50;

function pathOf(files) {
    return files.dataFolder + NAME;
}

function lines(files) {
    return (files.readText(pathOf(files)) || "").split("\n").filter((line) => line !== "");
}

// A line that something else wrote into is ignored.
function read(line) {
    try {
        const kept = JSON.parse(line);
        const isSound = kept !== null && typeof kept === "object" && typeof kept.run === "string"
            && typeof kept.action === "string" && kept.settings !== null && typeof kept.settings === "object";
        return isSound ? kept : null;
    } catch (error) {
        return null;
    }
}

/** Stores the settings of a run under its name in the log; returns a message if that failed. */
export function keepSettings(files, run, action, settings) {
    const line = JSON.stringify({ run: run, action: action, settings: settings }) + "\n";
    return files.appendLines(pathOf(files), line) || files.keepNewestLines(pathOf(files), MOST, MOST + SLACK);
}

/** {run, action, settings} of a run; null if they were not stored. */
export function settingsOf(files, run) {
    const start = "{\"run\":" + JSON.stringify(run) + ",";
    const found = run === "" ? undefined : lines(files).reverse().find((line) => line.startsWith(start));
    return found === undefined ? null : read(found);
}

/** The same of the newest run. */
export function newestSettings(files) {
    const all = lines(files);
    return all.length === 0 ? null : read(all[all.length - 1]);
}

/** Deletes them all; returns a message if that failed. */
export function clearSettings(files) {
    return files.info(pathOf(files)).exists ? files.writeText(pathOf(files), "") : "";
}
