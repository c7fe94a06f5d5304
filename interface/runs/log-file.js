// The log of all runs: one line of JSON per picture, in the program's own folder. The file service is passed in.
//
// A row is {date (ISO), process, action, status, reason, input, output, inputPath, outputPath, bytes, run}; run names the run that it
// belongs to, the same for all its rows. Rows of a run that undoes another one have undoes, the name of that run; those
// of comments have before and after. Rows with the keys LogDate, LogProcess, LogAction, LogStatus, LogI, LogO, LogIpath
// and LogOpath are read and preserved as well.

const NAME = "/log.jsonl";

/** So many of the newest rows are kept permanently, unless the user wants another number. */
export const KEPT_ROWS = 100000;
// The file is trimmed when it exceeds that number by this share.
const SLACK = 0.1;
// No row is shorter than this: a smaller file need not be counted.
const SHORTEST_ROW = 100;
const ROWS_AT_ONCE = 50;

let mostRows = KEPT_ROWS;

/** Sets how many rows are kept from now on. */
export function limitRows(most) {
    mostRows = most;
}

export function rowLimit() {
    return mostRows;
}

export function logPath(files) {
    return files.dataFolder + NAME;
}

/** Adds rows to the log; returns a message if that failed. The oldest are removed when the log is too large. */
export function keepRows(files, rows) {
    return appendRows(files, rows) || (rows.length === 0 ? "" : trimRows(files));
}

/** A generator that does the same, some rows at a time; if stopped, it still writes the remaining ones. */
export function* keepRowsInParts(files, rows) {
    let next = 0;
    let problem = "";
    try {
        for (; next < rows.length && problem === ""; next += ROWS_AT_ONCE) {
            problem = appendRows(files, rows.slice(next, next + ROWS_AT_ONCE));
            yield next;
        }
    } finally {
        problem = problem || appendRows(files, rows.slice(next + ROWS_AT_ONCE));
    }
    return problem || (rows.length === 0 ? "" : trimRows(files));
}

/** Adds rows to the log without trimming: for rows that arrive one by one, until trimRows() is called. */
export function appendRows(files, rows) {
    return rows.length === 0 ? "" : files.appendLines(logPath(files), rows.map((row) => JSON.stringify(row)).join("\n") + "\n");
}

/** How many rows the log has of runs with these names. */
export function countRows(files, runs) {
    const ends = runs.filter((run) => run !== "").map((run) => "\"run\":" + JSON.stringify(run) + "}");
    return (files.readText(logPath(files)) || "").split("\n").filter((line) => ends.some((end) => line.endsWith(end)))
        .length;
}

/** Removes the oldest rows if there are too many; returns a message if that failed. */
export function trimRows(files) {
    const limit = Math.round(mostRows * (1 + SLACK));
    return files.info(logPath(files)).bytes > limit * SHORTEST_ROW
        ? files.keepNewestLines(logPath(files), mostRows, limit) : "";
}

/** Removes all rows; returns a message if that failed. */
export function clearRows(files) {
    return files.writeText(logPath(files), "");
}

/** Names a run that starts now, for its rows in the log. The move engine names its runs itself. */
export function newRunName() {
    return new Date().toISOString() + "-" + Math.floor(Math.random() * 1e6);
}
