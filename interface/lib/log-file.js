// The log of all runs: one line of JSON per picture, in the program's own folder. The file service is handed in.

const NAME = "/log.jsonl";
const MOST_BYTES = 20000000;

/** Adds rows to the log; returns a message if that failed. The older half goes when the log has grown too large. */
export function keepRows(files, rows) {
    if (rows.length === 0) {
        return "";
    }
    const path = files.dataFolder + NAME;
    const lines = rows.map((row) => JSON.stringify(row)).join("\n") + "\n";
    if (files.info(path).bytes + lines.length > MOST_BYTES) {
        const old = files.readText(path) || "";
        const kept = old.slice(old.indexOf("\n", Math.floor(old.length / 2)) + 1);
        return files.writeText(path, kept + lines);
    }
    return files.appendText(path, lines);
}

/** All rows, oldest first; lines that cannot be understood are passed over. */
export function readRows(files) {
    const rows = [];
    for (const line of (files.readText(files.dataFolder + NAME) || "").split("\n")) {
        try {
            if (line) {
                rows.push(JSON.parse(line));
            }
        } catch (error) {
            continue;
        }
    }
    return rows;
}
