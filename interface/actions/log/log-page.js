// The log of all runs: the newest first, searched, filtered by run, status and kind, sorted, exported; runs are undone and
// comments reverted from here.

import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { editWords, reverting } from "../../runs/comment-run.js";
import { revertFieldsWords } from "../../runs/fields/field-reverting.js";
import { forgetAllValues, forgetUnlogged } from "../../runs/fields/kept-values.js";
import { guard } from "../../lib/guard.js";
import { clearRows, keepRowsInParts, logPath, rowLimit } from "../../runs/log-file.js";
import { rowsByPathInParts } from "../../runs/list-rows.js";
import { clearSettings, settingsOf } from "../../runs/making/run-settings.js";
import { csvHead, csvLines } from "../../runs/report.js";
import { keep, recall } from "../../lib/store.js";
import { fill, fillNumbers, problemsText, statusText } from "../../lib/wording.js";
import { CommentJob, commentsReverted, commentSummary } from "../../runs/comment-job.js";
import { LogFields } from "./log-fields.js";
import { beginUndo, revertWords, undoAction, undoing, undoWords, unableSteps } from "../../runs/undo-run.js";

const STATES = ["OK", "Failed", "Not Supported", "Skipped"];
// So many rows are written at a time; the window stays responsive in between.
const BATCH = 400;
const COLUMNS = "LogColumns";
const COMMENTS = "comments";

function shownStates() {
    const shown = {};
    STATES.forEach((state) => { shown[state] = statusText(state, ""); });
    shown.edit = editWords("%1", "%2");
    shown.newEdit = editWords("", "%1");
    shown.lastEdit = editWords("%1", "");
    return shown;
}

// The shown entries as CSV, produced in batches.
function* csvOf(table) {
    const parts = [csvHead(table.comments)];
    for (let first = 0; first < table.shownCount; first += BATCH) {
        parts.push(csvLines(table.entries(first, BATCH), table.comments));
        yield first;
    }
    return parts.join("");
}

export class LogPage {
    /** @param window  the main window's parts: services, pictures, preview, note(text) */
    constructor(window) {
        this.window = window;
        this.job = shell.job();
        this.undo = null;
        this.runIsBusy = false;
        this.words = null;
        this.kept = null; // the settings of the chosen run
        this.reverting = new CommentJob();
        this.fields = new LogFields(this);
        this.form = shell.loadForm("actions/log/log-page.ui");
        /** @type {import("quorlin/shell").LogTable} */
        this.table = this.form.control("logTable");
        /** @type {import("quorlin/shell").RunList} */
        this.runs = this.form.control("logRuns");
        this.table.setTexts([qsTr("Date"), qsTr("Action"), qsTr("File"), qsTr("Status"), qsTr("Result"), qsTr("Folder"),
                             qsTr("Old comment"), qsTr("New comment")],
                            shownStates());
        this.table.columns = recall(defaults, COLUMNS, { columns: "" }).columns;
        this.runs.follow(this.table, { all: qsTr("All runs"), undo: qsTr("Undo of %1"), redo: qsTr("Redo of %1"),
                                       of: qsTr("%1 (run of %2)") });
        this.form.setItems("logKind", [qsTr("All actions"), qsTr("Comments only")], ["", COMMENTS]);
        this.form.setItems("logStatus", [qsTr("All statuses")].concat(STATES.map((state) => statusText(state, ""))),
                           [""].concat(STATES));
        this.form.setSplit("logSplitter", [230, 800]);
        this.connect();
    }

    connect() {
        const control = (name) => this.form.control(name);
        control("logSearch").textChanged.connect(guard("log.search", () => this.look()));
        control("logStatus").activated.connect(guard("log.status", () => this.look()));
        control("logKind").activated.connect(guard("log.kind", () => this.look()));
        control("logRevert").clicked.connect(guard("log.revert", () => this.revert(this.table.chosenEdits())));
        control("logExport").clicked.connect(guard("log.export", () => this.save()));
        control("logOpen").clicked.connect(guard("log.open", () => shell.showInFolder(this.chosenPath())));
        control("logPicture").clicked.connect(guard("log.picture", () => this.showPicture()));
        control("logUndo").clicked.connect(guard("log.undo", () => this.takeRunBack()));
        control("logForget").clicked.connect(guard("log.forget", () => this.fields.forget(this.runs.run)));
        control("logSettings").clicked.connect(guard("log.settings", () => this.useSettings()));
        control("logStop").clicked.connect(guard("log.stop", () => this.stop()));
        control("logCancel").triggered.connect(guard("log.stop", () => this.stop()));
        control("logFind").triggered.connect(guard("log.find", () => this.find()));
        this.table.changed.connect(guard("log.chosen", () => this.showState()));
        this.table.openRequested.connect(guard("log.picture", () => this.showPicture()));
        this.runs.runChosen.connect(guard("log.run", () => this.showRun()));
    }

    /** Reads what is new in the log. */
    show() {
        this.runIsBusy = this.window.run.isBusy();
        forgetUnlogged(files);
        this.table.follow(logPath(files));
        this.showRun();
    }

    // A run writes its entries when it ends.
    runChanged() {
        if (this.runIsBusy !== this.window.run.isBusy() && !this.isBusy()) {
            this.show();
        }
    }

    /** Shows what was written into comments, and nothing else. */
    showComments() {
        this.form.chooseValue("logKind", COMMENTS);
        this.form.control("logSearch").text = "";
        this.form.chooseValue("logStatus", "");
        this.runs.chooseAll();
        this.look();
    }

    leave() {
        keep(defaults, COLUMNS, { columns: this.table.columns });
    }

    mayLeave() {
        if (this.isBusy()) {
            this.window.sayBeside(qsTr("A run is being undone. Stop it first, or wait."));
        }
        this.leave();
        return !this.isBusy();
    }

    isBusy() {
        return this.undo !== null || this.fields.running || this.reverting.running;
    }

    stop() {
        if (this.fields.running) {
            this.fields.stop();
        } else {
            (this.undo === null ? this.reverting : this.job).cancel();
        }
    }

    find() {
        this.form.control("logSearch").setFocus();
        this.form.control("logSearch").selectAll();
    }

    look() {
        this.showColumns();
        this.table.look(this.form.control("logSearch").text, String(this.form.value("logStatus")),
                        this.form.value("logKind") === COMMENTS);
    }

    // Old and new comments are shown if there are any.
    showColumns() {
        const chosen = this.runs.chosen();
        this.table.comments = this.form.value("logKind") === COMMENTS || (chosen !== null && chosen.areEdits);
    }

    showState() {
        const control = (name) => this.form.control(name);
        const shown = this.table.shownCount;
        const total = this.table.totalCount;
        control("logCount").text = shown === total
            ? qsTr("%Ln entries", "", total)
            : fill(qsTr("%1 of %Ln entries", "", total), this.table.shownText);
        control("logExport").enabled = shown > 0 && !this.table.reading && !this.job.running;
        control("logOpen").enabled = this.chosenPath() !== "";
        control("logPicture").enabled = this.picturePath() !== "";
        control("logTable").visible = shown > 0;
        control("logEmpty").visible = shown === 0;
        control("logEmpty").text = this.table.reading ? "" : this.emptyText(total);
        const chosen = this.table.chosenCount;
        this.form.setMenu("logMore",
                          [qsTr("Copy %n Rows", "", Math.max(1, chosen)), "-", qsTr("Clear Log…")],
                          [chosen > 0 ? "copy" : null, null, total > 0 && !this.isBusy() ? "clear" : null],
                          guard("log.more", (what) => (what === "copy" ? this.table.copyChosen() : this.clear())));
        this.showChosenEdits();
    }

    // The bar below the table is about the chosen run, or the chosen edits.
    showChosenEdits() {
        const control = (name) => this.form.control(name);
        const edits = this.table.chosenEditCount;
        const busy = this.isBusy();
        this.showRunButtons(busy);
        this.showFieldChanges(busy);
        control("logRevert").visible = edits > 0 && !busy;
        control("logRevert").text = qsTr("Revert %n Comments", "", edits);
        control("logRunBar").visible = this.words !== null || edits > 0 || busy;
        control("logStop").visible = busy;
        control("logCancel").enabled = busy;
        control("logRuns").enabled = !busy;
        if (this.words === null && !busy && edits > 0) {
            const edit = this.table.chosen();
            control("logRunTitle").text = qsTr("%n comments selected", "", edits);
            control("logRunNote").text = edits === 1 && edit.after !== edit.before ? editWords(edit.before, edit.after) : "";
        }
    }

    isOfFields() {
        return this.words !== null && this.words.isOfFields === true;
    }

    // For a run that wrote fields the bar says what happened to those of the chosen picture.
    showFieldChanges(busy) {
        if (this.isOfFields() && !busy) {
            const entry = this.table.chosenCount === 1 ? this.table.chosen() : null;
            this.form.control("logRunNote").text = this.fields.changesOf(this.runs.run, entry) || this.words.note;
        }
    }

    showRunButtons(busy) {
        this.form.control("logUndo").visible = this.words !== null && !busy;
        this.form.control("logForget").visible = this.isOfFields() && !busy;
        this.form.control("logSettings").visible = this.kept !== null && !busy;
    }

    // Why the table is empty.
    emptyText(total) {
        if (total === 0 && this.runIsBusy) {
            return qsTr("A run is in progress. Its entries appear here when it is finished.");
        }
        return total > 0 ? qsTr("No entry matches.")
            : qsTr("No entries yet. Each run is recorded here, and the last %Ln entries are kept.", "",
                   rowLimit());
    }

    wordsFor(run) {
        const ofFields = revertFieldsWords(files, this.runs.run, run);
        if (ofFields !== null) {
            return ofFields;
        }
        return run.areEdits ? revertWords(run) : undoWords(this.window.services.moves, this.runs.run);
    }

    // The chosen run, and whether it can be undone.
    showRun() {
        const control = (name) => this.form.control(name);
        const chosen = this.runs.chosen();
        const words = chosen === null ? null : this.wordsFor(chosen);
        this.words = words;
        this.kept = chosen === null ? null : settingsOf(files, this.runs.run);
        this.showColumns();
        if (!this.isBusy() && words !== null) {
            const entries = qsTr("%Ln entries", "", chosen.count);
            const problems = chosen.problems > 0
                ? " · " + qsTr("%n problems", "", chosen.problems) : "";
            control("logRunTitle").text = chosen.title + " · " + entries + problems;
            control("logRunNote").text = words.note;
            control("logUndo").enabled = words.can;
            control("logUndo").text = words.button;
        }
        this.showState();
    }

    // The result of the chosen entry, or the file that it was made of.
    chosenPath() {
        const entry = this.table.chosen();
        return entry === null ? "" : entry.outputPath || entry.inputPath;
    }

    // The first of result and source that still exists.
    picturePath() {
        const entry = this.table.chosen();
        const paths = entry === null ? [] : [entry.outputPath, entry.inputPath];
        return paths.find((path) => path !== "" && files.info(path).exists && !files.info(path).isFolder) || "";
    }

    useSettings() {
        if (this.kept !== null && !this.window.repeating.take(this.kept)) {
            this.window.sayBeside(qsTr("These settings cannot be used now."));
        }
    }

    showPicture() {
        const path = this.picturePath();
        if (path !== "") {
            this.window.preview.showFile(path, this.table);
        }
    }

    save() {
        const path = shell.chooseNewFile(qsTr("Export the log"), "", qsTr("Log") + ".csv", "csv");
        if (path !== null) {
            this.job.start(csvOf(this.table), () => undefined,
                           guard("log.exported", (how, text) => this.saved(how, path, text)));
            this.showState();
        }
    }

    saved(how, path, text) {
        if (how !== "cancelled") {
            this.window.sayBeside(how === "failed"
                             ? String(text) : files.writeText(path, text) || fill(qsTr("Log saved as %1"), path));
        }
        this.showState();
    }

    clear() {
        const answer = shell.ask({
            title: qsTr("Clear log"), text: qsTr("Remove all %Ln entries from the log?", "", this.table.totalCount),
            detail: qsTr("Your files are not changed. Runs can then no longer be undone from here."),
            buttons: [qsTr("Clear"), qsTr("Keep")], initial: 1, escape: 1, check: "",
        });
        if (answer.button === 0) {
            const problem = clearRows(files) || clearSettings(files) || forgetAllValues(files);
            this.runs.chooseAll();
            this.show();
            if (problem) {
                this.window.sayBeside(problem);
            }
        }
    }

    takeRunBack() {
        if (this.isOfFields()) {
            this.fields.revert(this.runs.run);
        } else if (this.runs.chosen().areEdits) {
            this.revert(this.runs.edits());
        } else {
            this.undoRun();
        }
    }

    // Gives pictures back their old comments.
    revert(edits) {
        this.reverting.start((comments) => {
            const work = reverting(comments, edits);
            return work;
        }, qsTr("Revert comment"), (work) => {
            this.form.control("logRunTitle").text = fillNumbers(qsTr("Reverting: %1 of %2"), work.tried, edits.length);
            this.form.control("logRunNote").text = "";
        }, (work) => {
            this.window.sayBeside(commentSummary(work, commentsReverted(work.done)));
            this.show();
        });
        this.showState();
    }

    undoRun() {
        this.undo = { run: "", rows: [], done: 0, problems: 0, count: 0, places: {} };
        const work = this.beginningUndo();
        this.job.start(work, () => undefined, guard("log.undoBegun", (end, begun) => this.undoBegun(end, begun)));
        this.showRun();
    }

    * beginningUndo() {
        this.undo.places = yield* rowsByPathInParts(this.window.pictures);
        const begun = yield* beginUndo(this.window.services.moves, this.runs.run);
        return begun;
    }

    undoBegun(how, begun) {
        if (how !== "done" || begun.problem) {
            this.undo = null;
            this.window.sayBeside(how === "failed" ? String(begun) : begun && begun.problem || "");
            this.show();
            return;
        }
        this.undo.run = begun.run;
        this.undo.count = begun.items.length + begun.problems.length;
        const undone = { id: this.runs.run, process: this.runs.chosen().process,
                         action: undoAction(this.words.isRedo) };
        unableSteps(begun, undone).forEach((step) => this.tookBack(step));
        this.job.start(undoing(this.window.services.moves, begun, undone),
                       guard("log.undone", (step) => this.tookBack(step)),
                       guard("log.undoEnd", (end, value) => this.undoEnded(end, value)));
        this.showRun();
    }

    tookBack(step) {
        this.undo.rows.push(step.row);
        this.undo.done += step.row.status === "OK" ? 1 : 0;
        this.undo.problems += step.row.status === "OK" ? 0 : 1;
        const id = this.undo.places[step.from];
        if (step.row.status === "OK" && id !== undefined && step.to !== "") {
            this.window.pictures.setPath(id, step.to);
        }
        const done = this.undo.rows.length;
        this.form.control("logRunTitle").text = fillNumbers(qsTr("Undoing: %1 of %2"), done, this.undo.count);
        this.form.control("logRunNote").text = "";
    }

    undoEnded(how, value) {
        const work = keepRowsInParts(files, this.undo.rows);
        const said = how === "failed" ? String(value) : value || "";
        this.job.start(work, () => undefined, guard("log.undoKept", (kept, problem) =>
            this.undoKept(how, (kept === "failed" ? String(problem) : problem) || said)));
    }

    undoKept(how, problem) {
        const undo = this.undo;
        this.undo = null;
        const run = this.window.services.moves.runs().find((each) => each.id === undo.run);
        const done = qsTr("%n files restored", "", run === undefined ? undo.done : run.files);
        const parts = [done]
            .concat(undo.problems > 0 ? [problemsText(undo.problems)] : [], problem ? [problem] : []);
        this.window.sayBeside((how === "cancelled" ? qsTr("Stopped:") + " " : "") + parts.join(" · "));
        this.window.run.look();
        this.window.history.lookForRun();
        this.show();
    }
}
