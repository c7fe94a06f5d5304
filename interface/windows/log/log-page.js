// The log of all runs: newest first, searched, filtered by status, exported. Services used: files (through lib/log-file).

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { logPath } from "../../lib/log-file.js";
import { csvHead, csvLines } from "../../lib/report.js";
import { count, fill, statusText } from "../../lib/wording.js";

const STATES = ["OK", "Failed", "Not Supported", "Skipped"];
// So many rows are written at a time, and the window answers in between.
const BATCH = 400;

function shownStates() {
    const shown = {};
    STATES.forEach((state) => { shown[state] = statusText(state, ""); });
    return shown;
}

// The entries that are shown, as CSV, worked out in batches.
function* csvOf(table) {
    const parts = [csvHead()];
    for (let first = 0; first < table.shownCount; first += BATCH) {
        parts.push(csvLines(table.entries(first, BATCH)));
        yield first;
    }
    return parts.join("");
}

export class LogPage {
    /** @param window  the main window's parts: note(text) */
    constructor(window) {
        this.window = window;
        this.job = shell.job();
        this.form = shell.loadForm("windows/log/log.ui");
        this.table = this.form.control("logTable");
        this.table.setTexts([qsTr("Date"), qsTr("Deed"), qsTr("File"), qsTr("Status"), qsTr("Result"), qsTr("Folder")], shownStates());
        this.form.setItems("logStatus", [qsTr("All")].concat(STATES.map((state) => statusText(state, ""))), [""].concat(STATES));
        this.form.control("logSearch").textChanged.connect(guard("log.search", () => this.look()));
        this.form.control("logStatus").activated.connect(guard("log.status", () => this.look()));
        this.form.control("logExport").clicked.connect(guard("log.export", () => this.save()));
        this.form.control("logOpen").clicked.connect(guard("log.open", () => this.openFolder()));
        this.table.changed.connect(guard("log.chosen", () => this.showChoice()));
    }

    /** Reads what is new in the log. */
    show() {
        this.table.follow(logPath(files));
    }

    look() {
        this.table.look(this.form.control("logSearch").text, this.form.value("logStatus"));
    }

    showChoice() {
        const shown = this.table.shownCount;
        this.form.control("logCount").text = count(shown, qsTr("1 entry"), qsTr("%1 entries"));
        this.form.control("logExport").enabled = shown > 0 && !this.table.reading;
        this.form.control("logOpen").enabled = this.chosenPath() !== "";
    }

    // The result of the chosen entry, or the file that it was made of.
    chosenPath() {
        const entry = this.table.chosen();
        return entry === null ? "" : entry.outputPath || entry.inputPath;
    }

    openFolder() {
        shell.showInFolder(this.chosenPath());
    }

    save() {
        const path = shell.chooseNewFile(qsTr("Export the log"), "", qsTr("Log") + ".csv", "csv");
        if (path !== null) {
            this.job.start(csvOf(this.table), () => undefined, guard("log.exported", (how, text) => this.saved(how, path, text)));
        }
    }

    saved(how, path, text) {
        if (how !== "cancelled") {
            this.window.note(how === "failed" ? String(text) : files.writeText(path, text) || fill(qsTr("Log saved as %1"), path));
        }
    }
}
