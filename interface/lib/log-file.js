// The log of all runs: one line of JSON per picture, in the program's own folder. The file service is handed in.
//
// A row is {date (ISO), process, action, status, reason, input, output, inputPath, outputPath, bytes, run}; run names the run that it
// belongs to, the same for all its rows. Rows with the keys LogDate, LogProcess, LogAction, LogStatus, LogI, LogO, LogIpath and
// LogOpath are kept and read as well.

const NAME = "/log.jsonl";

/** So many of the newest rows are kept, for good, where the user wants no other number. */
export const KEPT_ROWS = 100000;
// The file is cut back when it has grown by this part beyond them.
const SLACK = 0.1;
// No row is shorter than this: a smaller file need not be counted.
const SHORTEST_ROW = 100;

let mostRows = KEPT_ROWS;

/** Says how many rows are kept from now on. */
export function limitRows(most) {
    mostRows = most;
}

export function rowLimit() {
    return mostRows;
}

export function logPath(files) {
    return files.dataFolder + NAME;
}

/** Adds rows to the log; returns a message if that failed. The oldest go when the log has grown too large. */
export function keepRows(files, rows) {
    if (rows.length === 0) {
        return "";
    }
    const path = logPath(files);
    const problem = files.appendLines(path, rows.map((row) => JSON.stringify(row)).join("\n") + "\n");
    const limit = Math.round(mostRows * (1 + SLACK));
    const mayBeLarge = problem === "" && files.info(path).bytes > limit * SHORTEST_ROW;
    return mayBeLarge ? files.keepNewestLines(path, mostRows, limit) : problem;
}

/** Takes all rows away; returns a message if that failed. */
export function clearRows(files) {
    return files.writeText(logPath(files), "");
}

/** A name for a run that starts now, for its rows. Runs that the move engine keeps have names of their own. */
export function newRunName() {
    return new Date().toISOString() + "-" + Math.floor(Math.random() * 1e6);
}
