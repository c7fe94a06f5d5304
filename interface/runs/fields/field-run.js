// A run that changes the metadata of pictures, and the revert of one.

import { files } from "quorlin/files";
import { runRecords } from "quorlin/records";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { splitPath } from "../../lib/names.js";
import { fill, problemsText, statusKind, statusText } from "../../lib/wording.js";
import { rowsByPath } from "../list-rows.js";
import { appendRows, trimRows } from "../log-file.js";
import { clockText, Progress } from "../progress.js";
import { logRow } from "../report.js";
import { BaseRun } from "../run-base.js";
import { idsInScope, isReady, planningFields, showItem } from "./field-plan.js";
import { revertingFields, revertSummary } from "./field-reverting.js";
import { FieldAsker } from "./field-work.js";
import { KeptRun } from "./kept-run.js";
import { forgetUnlogged, valuesOf } from "./kept-values.js";

const TELL_MS = 100;
// The question names so many pictures that disagree with themselves.
const MOST_NAMED = 4;

// The fields that a run changed, with their texts.
function changedFields(planned, stated) {
    const texts = {};
    Object.keys(planned).forEach((name) => {
        texts[name] = stated !== undefined && stated[name] !== undefined ? stated[name].value : [];
    });
    return texts;
}

export class FieldRun extends BaseRun {
    reset(ids) {
        super.reset(ids);
        this.asker = null;
        this.isStopping = false;
        this.isReverting = false;
        this.reverted = 0;
        this.kept = "";
        this.keptRun = null;
        this.toldMs = 0;
        this.steppedMs = 0;
    }

    // Other actions may have changed files meanwhile.
    look() {
        if (!this.isBusy()) {
            this.filesChanged();
        }
    }

    start() {
        this.begin(idsInScope(this.window, this.window.settings));
    }

    retry() {
        this.begin(this.failedIds().filter((id) => this.window.pictures.photo(id) !== null));
    }

    begin(ids) {
        const { window } = this;
        this.startPlanning(ids);
        this.asker = new FieldAsker(() => this.job.wake());
        const work = planningFields(window, ids, this.settings, this.asker,
                                    { known: () => null, keep: () => undefined });
        this.job.start(work, guard("run.plan", (item) => this.takeItem(item)),
                       guard("run.planEnd", (how, value) => this.planEnded(how, value)));
        this.changed();
    }

    takeItem(item) {
        this.items.push(item);
        showItem(this.window, item);
    }

    planEnded(how, value) {
        if (how !== "done") {
            this.over(how === "failed"
                ? String(value) : qsTr("Cancelled before the first picture. Nothing was written."));
            return;
        }
        this.ids = this.items.map((item) => item.id);
        const ready = this.items.filter(isReady).length;
        if (this.settings.simulation) {
            this.over([qsTr("Dry run: %n pictures would be changed", "", ready), qsTr("nothing was written")]
                .join(" · "));
        } else if (this.mayWrite(ready)) {
            this.carryOut();
        } else {
            this.over(qsTr("Cancelled. Nothing was written."));
        }
    }

    over(text) {
        if (this.asker !== null) {
            this.asker.end();
            this.asker = null;
        }
        this.finish(text);
    }

    // Disagreements between EXIF, IPTC and XMP are shown before they all get the same value.
    mayWrite(ready) {
        const step = this.window.action.step;
        const disputed = this.items.filter((item) => isReady(item) && step.disputeWords(item.stated).length > 0);
        const beside = this.items.filter((item) => isReady(item) && !item.inPlace).length;
        const named = disputed.slice(0, MOST_NAMED)
            .map((item) => fill(qsTr("%1: %2"), item.name, step.disputeWords(item.stated).join("; ")));
        const rest = disputed.length - named.length;
        const answer = shell.ask({
            title: qsTr("Write metadata"), text: qsTr("Write metadata into %n pictures?", "", ready),
            detail: [qsTr("This changes the metadata inside your originals. Their pictures are not touched.")]
                .concat(beside > 0 ? [qsTr("For %n of them, it is written into a sidecar file.", "", beside)] : [])
                .concat(disputed.length > 0 ? [qsTr("EXIF, IPTC and XMP disagree:")].concat(named) : [])
                .concat(rest > 0 ? [qsTr("%n more pictures: see their rows in the list.", "", rest)] : []).join("\n"),
            check: "", initial: 0, escape: 1, buttons: [qsTr("Write"), qsTr("Cancel")],
        });
        return answer.button === 0;
    }

    carryOut() {
        const { window } = this;
        this.phase = "running";
        this.progress = new Progress(this.items.map(() => 1));
        this.items.filter(isReady)
            .forEach((item) => window.pictures.setStatus(item.id, "waiting", qsTr("waiting"), ""));
        this.steppedMs = Date.now();
        this.keptRun = new KeptRun(files, runRecords, { run: this.id, process: window.action.title(),
                                                        action: window.action.step.describe(this.settings) });
        const work = this.writing();
        this.job.start(work, guard("run.step", (event) => this.takeResult(event)),
                       guard("run.end", (how, value) => this.runEnded(how, value)));
        this.showProgress();
    }

    * tasks() {
        for (let i = 0; i < this.items.length; i += 1) {
            const item = this.items[i];
            yield { index: i, file: isReady(item) ? item.sidecar || item.path : "",
                    said: isReady(item) ? undefined : { problem: item.problem, changed: false, file: item.path },
                    ask: (work) => work.write(item.path, item.work), keep: (said) => this.keep(item, said),
                    unwritten: () => this.keptRun.unwritten(item.path) };
        }
    }

    * writing() {
        for (const answer of this.asker.each(this.tasks(), () => !this.isStopping)) {
            yield answer === null ? null : { index: answer.task.index, said: answer.said };
        }
    }

    // An edit that is in the file is logged, whatever happens to this program afterwards.
    takeResult(event) {
        const { said } = event;
        const item = this.items[event.index];
        const result = { status: "OK", reason: "", photo: { name: item.name, path: item.path },
                         name: splitPath(said.file).name, path: said.file, bytes: 0, folder: "" };
        if (said.problem !== "") {
            Object.assign(result, { status: "Failed", reason: said.problem });
        } else if (!said.changed) {
            Object.assign(result, { status: "Skipped", reason: qsTr("already has these values") });
        } else {
            result.reason = said.file === item.path ? "" : fill(qsTr("in %1"), result.name);
        }
        const row = logRow(result, this.window.action.title(), this.window.action.step.describe(this.settings),
                           new Date().toISOString(), this.id);
        this.kept = this.kept || appendRows(files, [row]);
        this.noteInLog(result, row, event.index);
        this.show(item.id, result);
    }

    keep(item, said) {
        return this.keptRun.keep({
            path: item.path, file: said.file, before: changedFields(item.planned, said.before),
            after: changedFields(item.planned, said.after), undo: said.undo,
        });
    }

    show(id, result) {
        const { pictures } = this.window;
        const now = Date.now();
        this.progress.add(1, now - this.steppedMs);
        this.steppedMs = now;
        if (id > 0) {
            if (result.status === "OK") {
                pictures.forget(id);
            }
            pictures.setStatus(id, statusKind(result.status), statusText(result.status, result.reason), "");
            pictures.reveal(id);
            this.window.livePlan.keepFinal(id);
        }
        if (now - this.toldMs >= TELL_MS) {
            this.toldMs = now;
            this.showShare();
        }
    }

    runEnded(how, value) {
        this.isComplete = how === "done" && !this.isStopping;
        this.keptRun.end();
        this.filesChanged();
        this.window.pane.written(this.settings);
        const problem = this.kept || trimRows(files) || forgetUnlogged(files) || this.keepSettings()
            || (how === "failed" ? String(value) : "");
        this.over(this.summaryText() + (problem ? " · " + problem : ""));
        this.window.livePlan.refresh();
    }

    filesChanged() {
        this.window.livePlan.forgetFiles();
        this.window.services.facts.forget();
    }

    summaryText() {
        const done = this.results.filter((result) => result.status === "OK").length;
        const skipped = this.results.filter((result) => result.status === "Skipped").length;
        const parts = [qsTr("%n pictures changed", "", done)]
            .concat(skipped > 0 ? [qsTr("%n unchanged", "", skipped)] : [])
            .concat(this.problems > 0 ? [problemsText(this.problems)] : [])
            .concat([clockText(Date.now() - this.startedMs)]);
        return (this.isStopping ? qsTr("Stopped:") + " " : "") + parts.join(" · ");
    }

    /** Nothing more is written after the picture that is in progress. */
    cancel() {
        if (this.phase === "running") {
            this.isStopping = true;
            this.job.resume();
        } else {
            super.cancel();
        }
    }

    undoOffer() {
        const isThere = this.phase === "ended" && !this.isReverting && this.rows.length > 0
            && valuesOf(files, this.id).length > 0;
        return isThere ? { id: this.id, text: qsTr("Revert") } : null;
    }

    /** Gives pictures back the metadata that a run replaced. */
    revert(undone) {
        const { window } = this;
        const ids = rowsByPath(window.pictures);
        window.livePlan.stop();
        window.livePlan.forgetFinal();
        this.reset([]);
        this.undoes = undone;
        this.isReverting = true;
        this.phase = "running";
        this.progress = new Progress(valuesOf(files, undone).map(() => 1));
        this.steppedMs = Date.now();
        window.pictures.busy = true;
        this.asker = new FieldAsker(() => this.job.wake());
        const work = revertingFields(this.asker, files, undone, () => !this.isStopping);
        this.job.start(work, guard("run.reverted", (event) => this.takeReverted(event, ids[event.path] || 0)),
                       guard("run.revertEnd", (how, value) => this.revertEnded(how, value)));
        this.showProgress();
    }

    takeReverted(event, id) {
        this.rows.push(event.row);
        this.reverted += event.status === "OK" ? 1 : 0;
        this.problems += event.status === "OK" ? 0 : 1;
        this.show(id, { status: event.status, reason: event.reason || qsTr("reverted") });
    }

    revertEnded(how, value) {
        this.filesChanged();
        const problem = (how === "failed" ? String(value) : value) || trimRows(files);
        const stopped = this.isStopping ? qsTr("Stopped:") + " " : "";
        this.over(stopped + revertSummary(this.reverted, this.problems, problem));
        this.window.livePlan.refresh();
    }
}
