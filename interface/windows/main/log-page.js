// The log of all runs: newest first, searched, filtered by status, exported. Services used: files (through lib/log-file).

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { readRows } from "../../lib/log-file.js";
import { splitPath } from "../../lib/names.js";
import { toCsv } from "../../lib/report.js";
import { count, fill, statusText } from "../../lib/wording.js";

const MOST_ROWS = 5000;
const STATUS_COLUMN = 3;
const STATES = ["OK", "Failed", "Not Supported", "Skipped"];

function twoDigits(number) {
    return (number < 10 ? "0" : "") + number;
}

// Local time in a form that sorts.
function timeText(date) {
    const time = new Date(date);
    return time.getFullYear() + "-" + twoDigits(time.getMonth() + 1) + "-" + twoDigits(time.getDate()) + " "
        + twoDigits(time.getHours()) + ":" + twoDigits(time.getMinutes()) + ":" + twoDigits(time.getSeconds());
}

export class LogPage {
    /** @param window  the main window's parts: form, note(text) */
    constructor(window) {
        this.window = window;
        this.rows = [];
        this.table = window.form.control("logTable");
        window.form.setItems("logStatus", [qsTr("All")].concat(STATES.map((state) => statusText(state, ""))), [""].concat(STATES));
        window.form.control("logSearch").textChanged.connect(guard("log.search", () => this.look()));
        window.form.control("logStatus").activated.connect(guard("log.status", () => this.look()));
        window.form.control("logExport").clicked.connect(guard("log.export", () => this.save()));
        window.form.control("logOpen").clicked.connect(guard("log.open", () => this.openFolder()));
        this.table.rowChosen.connect(guard("log.chosen", () => this.showChoice()));
    }

    /** Reads the log anew. */
    show() {
        this.rows = readRows(files).slice(-MOST_ROWS).reverse();
        const headings = [qsTr("Date"), qsTr("Action"), qsTr("Input"), qsTr("Status"), qsTr("Reason"), qsTr("Output")];
        this.table.setRows(headings, this.rows.map((row) => [timeText(row.date), row.process + ", " + row.action, row.input, row.status,
                                                             row.reason, row.outputPath]));
        this.look();
    }

    look() {
        this.table.look(this.window.form.control("logSearch").text.trim(), STATUS_COLUMN, this.window.form.value("logStatus"));
    }

    showChoice() {
        const shown = this.table.shownRows().length;
        this.window.form.control("logCount").text = count(shown, qsTr("1 entry"), qsTr("%1 entries"));
        this.window.form.control("logExport").enabled = shown > 0;
        this.window.form.control("logOpen").enabled = this.chosenFolder() !== "";
    }

    chosenFolder() {
        const row = this.rows[this.table.chosenRow()];
        return row === undefined || !(row.outputPath || row.inputPath) ? "" : splitPath(row.outputPath || row.inputPath).folder;
    }

    openFolder() {
        shell.openFolder(this.chosenFolder());
    }

    save() {
        const path = shell.chooseNewFile(qsTr("Export the log"), "", qsTr("Log") + ".csv", "csv");
        if (path !== null) {
            const rows = this.table.shownRows().map((index) => this.rows[index]);
            this.window.note(files.writeText(path, toCsv(rows)) || fill(qsTr("Log saved as %1"), path));
        }
    }
}
