// A run that puts all pictures of the list on pages: one file, and a line in the log for each picture on it.

import { files } from "quorlin/files";
import { runRecords } from "quorlin/records";
import { guard } from "../../lib/guard.js";
import { splitPath } from "../../lib/names.js";
import { fill, fillNumbers, statusKind, statusText } from "../../lib/wording.js";
import { Replacing } from "../making/replacing.js";
import { forgetUnfinished, noteUnfinished } from "../making/unfinished.js";
import { clockText, Progress } from "../progress.js";
import { logRow } from "../report.js";
import { BaseRun } from "../run-base.js";
import { askAboutName } from "../write-run.js";
import { makeSheet } from "./sheet-making.js";
import { forOneFile, sheetPlan } from "./sheet-plan.js";

const TELL_MS = 100;

export class SheetRun extends BaseRun {
    reset(ids) {
        super.reset(ids);
        this.plan = null;
        this.made = null; // the file
        this.replacing = null;
        this.toldMs = 0;
        this.steppedMs = 0;
    }

    folders() {
        return this.made !== null && this.made.status === "OK" ? [this.made.folder] : [];
    }

    /** The file that it wrote. */
    resultPaths() {
        return this.made !== null && this.made.status === "OK" ? [this.made.path] : [];
    }

    start() {
        this.begin(this.window.pictures.tickedIds());
    }

    /** The file is made again, with all its pictures. */
    retry() {
        this.failedIds().filter((id) => this.window.pictures.photo(id) !== null)
            .forEach((id) => this.window.pictures.forget(id));
        this.start();
    }

    begin(ids) {
        const { window } = this;
        this.startPlanning(ids);
        const services = Object.assign({}, window.services, { ask: askAboutName });
        const work = sheetPlan(window, ids, this.settings, services);
        this.job.start(work, () => undefined, guard("run.planEnd", (how, value) => this.planEnded(how, value)));
        this.changed();
    }

    planEnded(how, plan) {
        const isCancelled = how !== "done" || plan.cancelled || plan.item === null;
        if (isCancelled) {
            this.finish(qsTr("Cancelled before the first page. Nothing was written."));
            return;
        }
        this.plan = plan;
        if (plan.item.status !== "ready") {
            this.finish(statusText(plan.item.status, plan.item.reason));
        } else if (this.settings.output.simulation) {
            this.finish([fill(qsTr("Dry run: %1 would be written"), plan.item.name),
                         qsTr("%n pages", "", plan.pages), qsTr("nothing was written")].join(" · "));
        } else {
            this.carryOut();
        }
    }

    carryOut() {
        const { window, plan } = this;
        this.phase = "running";
        this.progress = new Progress(this.ids.map(() => 1));
        this.ids.forEach((id) => window.pictures.setStatus(id, "waiting", qsTr("waiting"), ""));
        this.replacing = new Replacing(window.services, window.action.title());
        const services = Object.assign({}, window.services, { replacing: this.replacing });
        this.steppedMs = Date.now();
        const pages = window.action.step.workFor(this.settings, plan.paths);
        const rule = forOneFile(this.settings).output.ifTaken;
        this.note = noteUnfinished(plan.item.folder, runRecords, files);
        const work = makeSheet(pages, plan.item, rule, services, () => this.job.wake());
        this.job.start(work, guard("run.step", (event) => this.takePicture(event)),
                       guard("run.end", (how, value) => this.runEnded(how, value)));
        this.showProgress();
    }

    takePicture(event) {
        const id = this.ids[event.index];
        const { result } = event;
        const now = Date.now();
        this.results[event.index] = result;
        this.problems += result.status === "OK" ? 0 : 1;
        this.progress.add(1, now - this.steppedMs);
        this.steppedMs = now;
        this.window.pictures.setStatus(id, statusKind(result.status), statusText(result.status, result.reason), "");
        if (now - this.toldMs >= TELL_MS) {
            this.toldMs = now;
            this.showShare();
        }
    }

    runEnded(how, value) {
        this.made = how === "done" ? value
            : { status: how === "failed" ? "Failed" : "Skipped",
                reason: how === "failed" ? String(value) : qsTr("cancelled") };
        this.isComplete = this.made.status === "OK";
        forgetUnfinished(this.note, runRecords);
        this.endWith(this.ending());
    }

    // Finished pictures are on no page if there is no file.
    resultOf(index) {
        const own = this.results[index];
        const { made } = this;
        const failedBefore = own !== undefined && own.status !== "OK";
        const isOn = made.status === "OK" && own !== undefined;
        return failedBefore || isOn ? own : { status: made.status, reason: made.reason };
    }

    * ending() {
        const { window, made } = this;
        const about = window.action.step.describe(this.settings);
        const now = new Date().toISOString();
        const isMade = made.status === "OK";
        this.problems = 0;
        for (let i = 0; i < this.ids.length; i += 1) {
            const path = this.plan.paths[i];
            const result = Object.assign({}, this.resultOf(i),
                                         { photo: { name: splitPath(path).name, path: path } });
            const isOn = result.status === "OK" && isMade;
            Object.assign(result, isOn ? { name: made.name, path: made.path } : {},
                          // The bytes of the file are counted once.
                          { bytes: isOn && i === 0 ? made.bytes : 0 });
            this.noteInLog(result, logRow(result, window.action.title(), about, now), i);
            window.livePlan.keepFinal(this.ids[i]);
            window.pictures.setStatus(this.ids[i], statusKind(result.status),
                                      statusText(result.status, result.reason), "");
            if (isOn) {
                window.pictures.setResults(this.ids[i], [made.path]);
            }
            yield i;
        }
        const unended = this.endReplacing();
        const unkept = yield* this.keepLog();
        const problem = [unended, unkept].filter((text) => text).join(" · ");
        return this.summaryText() + (problem ? " · " + problem : "");
    }

    // The rows of the log belong to the run that can be undone, if there is one.
    endReplacing() {
        const { run } = this.replacing;
        const problem = this.replacing.end();
        this.id = this.replacing.count > 0 ? run : this.id;
        return problem;
    }

    undoOffer() {
        const isThere = this.phase === "ended" && this.replacing !== null && this.replacing.count > 0;
        return isThere && this.window.services.moves.undoable(this.id).can ? { id: this.id, text: qsTr("Undo") } : null;
    }

    summaryText() {
        const { made } = this;
        if (made.status !== "OK") {
            return made.status === "Skipped" ? qsTr("Cancelled. Nothing was written.")
                : statusText(made.status, made.reason);
        }
        const parts = [fill(qsTr("%1: %2"), made.name, qsTr("%n pages", "", made.pages))];
        if (this.problems > 0) {
            parts.push(fillNumbers(qsTr("%1 failed"), this.problems));
        }
        return parts.concat([fill(qsTr("%1 written"), files.byteText(made.bytes)),
                             clockText(Date.now() - this.startedMs)]).join(" · ");
    }
}
