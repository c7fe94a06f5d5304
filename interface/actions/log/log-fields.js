// What the log can do with runs that wrote metadata fields: revert them, and delete the data that reverting needs.
// Services used: files, shell (ask, job).

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { fill } from "../../lib/wording.js";
import { changeText } from "../shared/metadata-fields-words.js";
import { revertingFields, revertSummary } from "../../runs/fields/field-reverting.js";
import { FieldAsker } from "../../runs/fields/field-work.js";
import { forgetValues, valuesAt, valuesSize } from "../../runs/fields/kept-values.js";

export class LogFields {
    /** @param page  the page of the log */
    constructor(page) {
        this.page = page;
        this.job = shell.job();
        this.isStopping = false;
        this.done = 0;
        this.failed = 0;
        this.asker = null;
    }

    get running() {
        return this.asker !== null;
    }

    /** What the run changed in the picture of an entry, in one line; "" if that is not stored. */
    changesOf(run, entry) {
        const kept = entry === null ? null : valuesAt(files, run, entry.inputPath);
        return kept === null ? "" : Object.keys(kept.after)
            .map((name) => changeText(name, kept.before[name] || [], kept.after[name])).join(" · ");
    }

    /** Nothing more is reverted after the picture that is in progress. */
    stop() {
        this.isStopping = true;
    }

    /** Deletes what reverting a run needs, after a question. */
    forget(run) {
        const answer = shell.ask({
            title: qsTr("Forget old values"),
            text: fill(qsTr("Delete the old metadata of this run (%1) for good?"),
                       files.byteText(valuesSize(files, run))),
            detail: qsTr("The pictures are not changed. The run can then no longer be reverted."),
            buttons: [qsTr("Forget Old Values"), qsTr("Keep")], initial: 1, escape: 1, check: "",
        });
        if (answer.button === 0) {
            const problem = forgetValues(files, run);
            this.page.window.sayBeside(problem || qsTr("The old values were deleted."));
            this.page.showRun();
        }
    }

    /** Gives pictures back the metadata that a run replaced. */
    revert(run) {
        this.isStopping = false;
        this.done = 0;
        this.failed = 0;
        this.asker = new FieldAsker(() => this.job.wake());
        const work = revertingFields(this.asker, files, run, () => !this.isStopping);
        this.job.start(work, guard("log.fields", (step) => this.take(step)),
                       guard("log.fieldsEnd", (how, value) => this.ended(how, value)));
        this.page.showRun();
    }

    take(step) {
        this.done += step.status === "OK" ? 1 : 0;
        this.failed += step.status === "OK" ? 0 : 1;
        this.page.form.control("logRunTitle").text = qsTr("Reverting: %n pictures so far", "", this.done + this.failed);
        this.page.form.control("logRunNote").text = "";
    }

    ended(how, value) {
        this.asker.end();
        this.asker = null;
        const stopped = this.isStopping ? qsTr("Stopped:") + " " : "";
        const problem = how === "failed" ? String(value) : value || "";
        this.page.window.sayBeside(stopped + revertSummary(this.done, this.failed, problem));
        this.page.show();
    }
}
