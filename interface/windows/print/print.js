// Prints pictures on pages: their layout, with a preview of the pages, and the print itself, which can be cancelled.
// The pages are those of the action Contact Sheet; they become a PDF that goes to the print system, or is kept if that
// was chosen.

import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { program } from "quorlin/program";
import { runRecords } from "quorlin/records";
import { shell } from "quorlin/shell";
import { ContactPane } from "../../actions/contact/contact-pane.js";
import * as contact from "../../actions/contact/contact-step.js";
import { guard } from "../../lib/guard.js";
import { splitPath } from "../../lib/names.js";
import { keep, recall } from "../../lib/store.js";
import { fill, fillNumbers } from "../../lib/wording.js";
import { Workshop } from "../../runs/making/job.js";
import { forgetUnfinished, noteUnfinished } from "../../runs/making/unfinished.js";
import { makePages } from "../../runs/sheets/sheet-making.js";

const KEY = "PrintedPages";
// Rows of the pane that apply only to a named file.
const OF_FILES = ["contactNameLabel", "contactName"];
const NEAR_MM = 1;

/** One picture per page, at the size of its resolution, centred and without margins. */
function usual() {
    return Object.assign({}, contact.defaults, {
        rows: 1, columns: 1, fit: "size", caption: "", footer: "", gap: 0,
        marginTop: 0, marginRight: 0, marginBottom: 0, marginLeft: 0,
    });
}

/** The settings with paper as {width, height, landscape}. */
function onPaper(settings, paper) {
    const isNear = (one, other) => Math.abs(one - other) <= NEAR_MM;
    const known = contact.workFor(settings, []).papers
        .find((each) => isNear(each.width, paper.width) && isNear(each.height, paper.height));
    return Object.assign(settings, {
        paper: known === undefined ? contact.CUSTOM : known.word, paperWidth: paper.width, paperHeight: paper.height,
        landscape: paper.landscape,
    });
}

export class Print {
    /** @param window  the main window's parts: form, forPanes() */
    constructor(window) {
        this.host = shell.sheetHost(window.form);
        this.form = shell.loadForm("windows/print/print.ui");
        this.settings = recall(defaults, KEY, onPaper(usual(), program.paper()));
        this.pane = new ContactPane(this.settings, guard("print.settings", () => this.settingsChanged()),
                                    window.forPanes());
        this.form.place("printPages", this.pane.above);
        this.form.place("printSettings", this.pane.form);
        OF_FILES.forEach((name) => { this.pane.form.control(name).visible = false; });
        shell.alignFields([this.pane.form]);
        this.job = shell.job();
        this.paths = [];
        this.done = 0;
        this.failed = 0;
        const control = (name) => this.form.control(name);
        control("printStart").clicked.connect(guard("print.start", () => this.start()));
        control("printClose").clicked.connect(guard("print.close", () => this.closeOrCancel()));
        this.form.onClose(guard("print.closing", () => this.mayClose()));
        this.form.remember("PrintWindow");
    }

    open(paths) {
        this.paths = paths;
        this.say(qsTr("%n pictures", "", paths.length));
        this.showAll();
        this.host.sheet = this.form.control("printWindow");
        this.form.control("printStart").setFocus();
    }

    /** Other paper was chosen in the menu of the window. */
    paperChosen() {
        onPaper(this.settings, program.paper());
        this.pane.fill();
        this.settingsChanged();
    }

    settingsChanged() {
        keep(defaults, KEY, this.settings);
        this.showAll();
    }

    showAll() {
        const busy = this.job.running;
        const control = (name) => this.form.control(name);
        this.pane.show(null, null);
        this.pane.showPages(this.paths);
        const isSound = contact.workFor(this.settings, []).problem === "";
        control("printStart").enabled = !busy && isSound && this.paths.length > 0;
        control("printSettingsScroll").enabled = !busy;
        control("printProgress").visible = busy;
        control("printClose").text = busy ? qsTr("Cancel") : qsTr("Close");
    }

    say(text) {
        this.form.control("printText").text = text;
    }

    // If the panel is cancelled, nothing has happened.
    start() {
        const work = contact.workFor(this.settings, this.paths);
        const choice = program.choosePrinter(work.pages, work.pageWidth, work.pageHeight);
        if (!choice.accepted) {
            return;
        }
        this.done = 0;
        this.failed = 0;
        const making = this.printing(work, choice);
        this.job.start(making, guard("print.step", (event) => this.take(event)),
                       guard("print.end", (how, value) => this.ended(how, value)));
        this.showProgress();
        this.showAll();
    }

    // Returns a message.
    * printing(work, choice) {
        const workshop = new Workshop(files);
        const folder = choice.file === "" ? files.dataFolder : splitPath(choice.file).folder;
        const note = noteUnfinished(folder, runRecords, files);
        try {
            const place = workshop.open(folder);
            if (place.problem) {
                return place.problem;
            }
            const target = place.staging + "pages.pdf";
            const made = yield* makePages(work, target, choice.order, () => this.job.wake());
            if (made.problem !== "") {
                return made.problem;
            }
            if (choice.file !== "") {
                return this.keepFile(target, choice.file, made);
            }
            const problem = yield* this.sent(target, choice.printer);
            return problem || fill(qsTr("Printing: %1"), qsTr("%n pages", "", made.pages));
        } finally {
            workshop.close();
            forgetUnfinished(note, runRecords);
        }
    }

    // The panel has asked about an existing file.
    keepFile(target, path, made) {
        const placed = files.place(target, path, files.info(path).exists ? files.identity(path) : "");
        return placed.status === "OK" ? fill(qsTr("%1: %2"), splitPath(path).name, qsTr("%n pages", "", made.pages))
            : placed.message || qsTr("The file could not be written.");
    }

    * sent(path, printer) {
        let answer = null;
        program.sendToPrinter(path, printer, guard("print.sent", (problem) => {
            answer = problem;
            this.job.wake();
        }));
        while (answer === null) {
            yield null;
        }
        return answer;
    }

    take(event) {
        this.done += 1;
        this.failed += event.result.status === "OK" ? 0 : 1;
        this.showProgress();
    }

    showProgress() {
        const control = (name) => this.form.control(name);
        control("printProgress").maximum = Math.max(1, this.paths.length);
        control("printProgress").value = this.done;
        this.say(fillNumbers(qsTr("%1 of %2"), this.done, this.paths.length));
    }

    ended(how, value) {
        const cancelled = qsTr("Cancelled. Nothing was printed.");
        const said = how === "done" ? String(value) : String(how === "failed" ? value : cancelled);
        const isMissed = how === "done" && this.failed > 0;
        const missed = isMissed ? [qsTr("%n pictures could not be read", "", this.failed)] : [];
        this.say([said].concat(missed).join(" · "));
        this.showAll();
    }

    closeOrCancel() {
        if (this.job.running) {
            this.job.cancel();
        } else {
            this.form.close();
        }
    }

    // Closing the window does not start anything.
    mayClose() {
        if (this.job.running) {
            this.job.cancel();
        }
        return true;
    }
}
