// The rows of a run: counted for the summary, written as CSV and as lines of the log. Pure; no service is used.

const COLUMNS = ["Date", "Process", "Action", "Status", "Reason", "Input", "Output", "InputPath", "OutputPath",
                 "Bytes"];
const EDIT_COLUMNS = ["Before", "After"];

// Without this mark spreadsheets assume an older encoding.
const MARK = "\uFEFF";

// An apostrophe turns a cell that a spreadsheet would take for a formula into plain text.
function cell(value) {
    const text = String(value === null || value === undefined ? "" : value);
    const plain = /^[=+\-@\t\r]/.test(text) && isNaN(Number(text)) ? "'" + text : text;
    return /[",\r\n]/.test(plain) || plain !== text ? '"' + plain.replace(/"/g, '""') + '"' : plain;
}

/** One row of the log from one final result of a run. */
export function logRow(result, process, action, date, run) {
    return {
        date: date, process: process, action: action, status: result.status, reason: result.reason || "",
        input: result.photo.name, output: result.name || "", inputPath: result.photo.path,
        outputPath: result.path || "", bytes: result.bytes || 0, run: run,
    };
}

const LINE_END = "\r\n";

/** The beginning of a CSV file: the byte order mark, and the names of the columns. Edits have two more. */
export function csvHead(areEdits) {
    return MARK + COLUMNS.concat(areEdits ? EDIT_COLUMNS : []).join(",") + LINE_END;
}

/** Rows as lines of a CSV file, with the required line ends CR LF. */
export function csvLines(rows, areEdits) {
    return rows.map((row) =>
        [row.date, row.process, row.action, row.status, row.reason, row.input, row.output, row.inputPath,
         row.outputPath,
                              row.bytes].concat(areEdits ? [row.before, row.after] : []).map(cell).join(",") + LINE_END)
                              .join("");
}

/** Cells of any kind as a CSV file with these heads. */
export function tableCsv(heads, rows) {
    return MARK + [heads].concat(rows).map((cells) => cells.map(cell).join(",") + LINE_END).join("");
}

/** All rows as a CSV file. */
export function toCsv(rows) {
    return csvHead() + csvLines(rows);
}

/** {done, failed, unsupported, skipped, bytes, folders} of the final results. */
export function summaryOf(results) {
    const summary = { done: 0, failed: 0, unsupported: 0, skipped: 0, bytes: 0, folders: [] };
    const field = { "OK": "done", "Failed": "failed", "Not Supported": "unsupported", "Skipped": "skipped" };
    for (const result of results) {
        summary[field[result.status]] += 1;
        summary.bytes += result.bytes || 0;
        if (result.folder && summary.folders.indexOf(result.folder) < 0) {
            summary.folders.push(result.folder);
        }
    }
    return summary;
}
