// A run that writes pictures: plan, carry out or only show, and the outcome.

import { files } from "quorlin/files";
import { runRecords } from "quorlin/records";
import { shell } from "quorlin/shell";
import { guard } from "../lib/guard.js";
import { Flow } from "./making/flow.js";
import { askForRoom } from "./making/full-disk.js";
import { replacedFolder, Replacing } from "./making/replacing.js";
import { RunRecord } from "./making/run-record.js";
import { runByWorkers } from "./making/worker-job.js";
import { emptyTable, splitPath } from "../lib/names.js";
import { planMemory, planRun } from "./plan.js";
import { clockText, costOf, Progress } from "./progress.js";
import { countRows } from "./log-file.js";
import { logRow, summaryOf } from "./report.js";
import { fill, fillNumbers, pixels, statusKind, statusText } from "../lib/wording.js";
import { BaseRun } from "./run-base.js";
import { photosOf, rowsByPath } from "./list-rows.js";
import { showItem } from "./write-plan.js";
import { Joining } from "./joining.js";

/** Asks what to do with a file whose name is taken: {rule, forAll}. */
export function askAboutName(question) {
    const answer = shell.ask({
        title: qsTr("File exists"),
        text: fill(qsTr("“%1” already exists in this folder."), question.name),
        detail: question.folder,
        buttons: [qsTr("Keep Both"), qsTr("Replace"), qsTr("Skip"), qsTr("Cancel Run")],
        initial: 0,
        escape: 3,
        check: qsTr("Do this for all"),
    });
    return { rule: ["number", "replace", "skip", "cancel"][answer.button], forAll: answer.checked };
}

// The button said so already; the question repeats it, with the number, before originals are replaced; tell(bytes) says
// where they go.
function mayReplace(items, tell) {
    const originals = items.filter((item) => item.replacesOriginal).length;
    if (originals === 0) {
        return true;
    }
    const answer = shell.ask({
        title: qsTr("Replace originals"),
        text: qsTr("%n originals will be replaced by their results.", "", originals),
        detail: tell(files.byteText(items.filter((item) => item.replacesOriginal)
            .reduce((sum, item) => sum + (item.photo.bytes || 0), 0))),
        buttons: [qsTr("Replace"), qsTr("Cancel")], initial: 1, escape: 1, check: "",
    });
    return answer.button === 0;
}

// Results arrive quickly if many workers make small ones.
const TELL_MS = 100;

export class WriteRun extends BaseRun {
    reset(ids) {
        super.reset(ids);
        this.flow = null; // of a run with workers
        this.replacing = null;
        this.record = null; // of what is done so far
        this.joining = null; // of pictures that are added meanwhile
        this.interrupted = ""; // the record of a run that this one continues
        this.earlierReplacing = ""; // the run of the move engine that it had
        this.inWork = 0;
        this.toldMs = 0;
        this.steppedMs = 0;
    }

    folders() {
        return summaryOf(this.results).folders;
    }

    /** The files that it wrote. */
    resultPaths() {
        return this.results.filter((result) => result.status === "OK").map((result) => result.path);
    }

    /** Plans, then carries out or shows the plan of all pictures in the list. */
    start() {
        this.begin(this.window.pictures.tickedIds());
    }

    /** Does the same to these rows as was done to others. */
    repeat(ids) {
        this.begin(ids);
    }

    retry() {
        const failed = this.failedIds().filter((id) => this.window.pictures.photo(id) !== null);
        failed.forEach((id) => this.window.pictures.forget(id));
        this.begin(failed);
    }

    begin(ids) {
        const window = this.window;
        this.startPlanning(ids);
        window.services.unitCache = emptyTable();
        this.simulated = this.settings.output.simulation;
        this.joining = new Joining(this, window.pictures);
        this.memory = planMemory(window.services);
        const work = this.planOf(ids);
        this.job.start(work, guard("run.plan", (item) => this.takeItem(item)),
                       guard("run.planEnd", (how, value) => this.planEnded(how, value)));
        this.changed();
    }

    planOf(ids) {
        const services = Object.assign({}, this.window.services, { ask: askAboutName });
        const step = this.window.action.step;
        const work = planRun(photosOf(this.window, ids), step, this.settings, services, this.memory);
        return work;
    }

    takeItem(item) {
        this.items.push(item);
        showItem(this.window.pictures, this.ids[this.items.length - 1], item, this.simulated);
    }

    // The list was planned with the current settings: what the button says is valid until they change.
    notePlan() {
        const count = (is) => this.items.filter(is).length;
        this.window.planned = {
            ready: count((item) => item.status === "ready"), originals: count((item) => item.replacesOriginal),
            replaced: count((item) => item.replaces), all: this.items.length,
        };
    }

    planEnded(how, value) {
        if (how === "done" && !value.cancelled) {
            this.notePlan();
        }
        if (how !== "done" || value.cancelled) {
            this.finish(this.nothingText());
        } else if (this.simulated) {
            this.endSimulation();
        } else if (this.mayReplace(this.items)) {
            this.carryOut();
        } else {
            this.finish(qsTr("Cancelled. Nothing was written."));
        }
    }

    mayReplace(items) {
        return mayReplace(items, (bytes) => this.replacedText(bytes));
    }

    nothingText() {
        return qsTr("Cancelled before the first picture. Nothing was written.");
    }

    /** What happens to originals that are replaced. */
    replacedText(bytes) {
        return fill(qsTr("The replaced files (%1) go to the trash. Undo brings them back."), bytes) + "\n"
            + fill(qsTr("On a disk without a trash they are kept in the folder “%1”."), replacedFolder());
    }

    endSimulation() {
        const ready = this.items.filter((item) => item.status === "ready").length;
        const parts = [qsTr("Dry run: %n pictures would be written", "", ready)];
        if (ready < this.items.length) {
            parts.push(fillNumbers(qsTr("%1 left out"), this.items.length - ready));
        }
        this.finish(parts.concat([qsTr("nothing was written")]).join(" · "));
    }

    carryOut() {
        this.phase = "running";
        this.progress = new Progress(this.items.map((item) => costOf(item.photo)));
        this.items.forEach((item, i) => this.showWaiting(item, this.ids[i]));
        const work = this.work();
        this.steppedMs = Date.now();
        this.job.start(work, guard("run.step", (event) => this.stepDone(event)),
                       guard("run.end", (how, value) => this.runEnded(how, value)));
        this.showProgress();
    }

    showWaiting(item, id) {
        if (item.status === "ready") {
            this.window.pictures.setStatus(id, "waiting", qsTr("waiting"), "");
        }
    }

    takesMore() {
        const isStopping = this.flow !== null && this.flow.isStopping;
        return this.isBusy() && !this.simulated && this.joining !== null && !isStopping;
    }

    listGrew() {
        if (!this.takesMore()) {
            super.listGrew();
        }
        if (this.joining !== null) {
            this.joining.look();
        }
    }

    /**
     * A generator that plans added pictures; it returns their items, or null if they are not included.
     *
     * @return {Generator<number, any[], any>}
     */
    * planMore(ids) {
        const items = [];
        const planning = this.planOf(ids);
        let part = planning.next();
        for (; !part.done; part = planning.next()) {
            showItem(this.window.pictures, ids[items.length], part.value, false);
            items.push(part.value);
            yield items.length;
        }
        if (part.value.cancelled || !this.mayReplace(items)) {
            return null;
        }
        if (this.record !== null) {
            yield* this.record.grow(items, this.items.length);
        }
        return items;
    }

    /** They join the end. */
    joined(ids, items) {
        ids.forEach((id, i) => {
            this.ids.push(id);
            this.items.push(items[i]);
            this.showWaiting(items[i], id);
        });
        this.progress.grow(items.map((item) => costOf(item.photo)));
        this.notePlan();
        this.showProgress();
    }

    work() {
        this.replacing = new Replacing(this.window.services, this.window.action.title(), this.earlierReplacing);
        this.flow = new Flow(() => this.job.wake());
        const services = Object.assign({}, this.window.services, { replacing: this.replacing });
        // The engine loses a generator that is returned by the call that creates it.
        const work = this.recorded(services);
        return work;
    }

    /** A generator that makes what is planned. */
    * makeAll(services) {
        yield* runByWorkers(this.items, this.window.action.step, this.settings, services, this.flow);
    }

    /** All inputs, if names also depend on those that are not made. */
    inputPaths() {
        return [];
    }

    // The run waits until there is room.
    askAboutRoom(item) {
        this.roomAnswered(askForRoom(item.folder, qsTr("Finished pictures are kept."), true));
    }

    roomAnswered(answer) {
        if (answer.isStopped) {
            this.flow.stop();
        } else {
            this.flow.answerRoom(answer.folder);
        }
    }

    // If this process ends before the run, the next one knows how far it got.
    * recorded(services) {
        const record = new RunRecord(runRecords, files);
        const action = this.window.action;
        const head = { action: action.name, title: action.title(), settings: this.settings, startedMs: this.startedMs,
                       id: this.id, replacing: this.earlierReplacing, continues: this.interrupted };
        this.record = record;
        this.replacing.record = record;
        for (const part of record.begin(head, this.items, this.inputPaths())) {
            yield { kind: "recorded", index: part, item: this.items[part] };
        }
        runRecords.end(this.interrupted); // its contents are in this one
        this.joining.open(this.flow);
        yield* this.makeAll(Object.assign({}, services, { record: record }));
    }

    /** It continues an interrupted run, with the same name in the log; path: of the record of that. */
    takeOver(record, path) {
        this.interrupted = path;
        this.id = record.head.id || this.id;
        this.earlierReplacing = record.replacing;
        this.keptRows = record.isLogging ? countRows(files, [this.id, this.earlierReplacing]) : 0;
        this.settings = record.head.settings;
        this.simulated = false;
    }

    /**
     * Continues an interrupted run as it was planned; done: the existing results, by index; path: of the record, which
     * is removed when this run has its own.
     */
    continueRun(record, done, path) {
        const window = this.window;
        const rows = rowsByPath(window.pictures);
        this.startPlanning(record.items.map((item) => rows[item.of] || 0));
        this.takeOver(record, path);
        this.memory = planMemory(window.services);
        this.joining = new Joining(this, window.pictures);
        this.items = record.items.map((item, i) => {
            const photo = this.ids[i] > 0 ? window.pictures.photo(this.ids[i]) : null;
            return Object.assign({ asks: false, numbered: false }, item,
                                 { photo: photo || { path: item.of, name: splitPath(item.of).name } },
                                 done[i] === undefined ? {} : { done: done[i] });
        });
        this.carryOut();
    }

    stepDone(event) {
        if (event.kind === "recorded") {
            return;
        }
        if (event.kind === "full") {
            this.askAboutRoom(event.item);
            return;
        }
        const id = this.ids[event.index];
        if (event.item.status === "ready") {
            this.inWork += event.kind === "start" ? 1 : -1;
        }
        if (event.kind === "end") {
            this.takeResult(event.index, event.result);
        } else if (event.kind === "back") {
            this.window.pictures.setStatus(id, "waiting", qsTr("waiting"), "");
        } else if (event.item.status === "ready") {
            this.window.pictures.setStatus(id, "busy", qsTr("working…"), "");
            this.window.pictures.reveal(id);
        }
        this.tell();
    }

    tell() {
        const now = Date.now();
        if (now - this.toldMs >= TELL_MS || this.inWork === 0) {
            this.toldMs = now;
            this.showShare();
        }
    }

    // With several workers none takes as long as all of them together.
    countOne(item) {
        const now = Date.now();
        this.progress.add(costOf(item.photo), now - this.steppedMs);
        this.steppedMs = now;
    }

    timeText() {
        if (this.flow !== null && this.flow.isStopping) {
            return qsTr("stopping after the current pictures");
        }
        return this.paused && this.flow !== null && this.inWork > 0
            ? qsTr("pausing after the current pictures") : super.timeText();
    }

    togglePause() {
        if (this.flow === null || this.phase !== "running" || this.isEnding) {
            super.togglePause();
            return;
        }
        this.window.said = "";
        this.paused = !this.paused;
        this.steppedMs = Date.now();
        if (this.paused) {
            this.flow.pause();
        } else {
            this.flow.resume();
        }
        this.showProgress();
    }

    // Called once, pictures in progress are finished; called again, they are abandoned.
    cancel() {
        if (this.flow === null || this.phase !== "running" || this.flow.isStopping) {
            super.cancel();
            return;
        }
        this.window.said = "";
        this.flow.stop();
        this.showProgress();
    }

    takeResult(index, result) {
        const id = this.ids[index];
        const item = this.items[index];
        const list = this.window.pictures;
        const action = this.window.action;
        this.noteInLog(result,
                       logRow(result, action.title(), action.step.describe(this.settings), new Date().toISOString()),
                       index);
        this.countOne(item);
        this.window.livePlan.keepFinal(id);
        if (result.status === "OK") {
            list.setPlan(id, result.name, pixels(result));
        }
        const words = [statusText(result.status, result.reason)].concat(result.status === "OK" ? item.remarks : []);
        list.setStatus(id, statusKind(result.status), words.join(", "), item.notes.join("\n"));
        if (result.status === "OK") {
            list.setResults(id, [result.path]);
        }
        if (result.status === "OK" && item.replacesOriginal) {
            list.forget(id);
        }
    }

    runEnded(how, value) {
        const work = this.ending(how, value);
        this.endWith(work);
    }

    // Each picture has one final state, including those that were never started.
    * ending(how, value) {
        const reason = how === "failed" ? String(value) : qsTr("cancelled");
        const isStopped = this.flow !== null && this.flow.isStopping;
        this.flow = null;
        for (let i = 0; i < this.items.length; i += 1) {
            if (this.results[i] === undefined) {
                this.takeResult(i, { status: "Skipped", reason: reason, photo: this.items[i].photo, ms: 0 });
                yield i;
            }
        }
        const unended = this.endReplacing();
        const unkept = yield* this.keepLog();
        this.endRecord();
        const problem = [unended, unkept].filter((text) => text).join(" · ");
        this.isComplete = how === "done" && !isStopped;
        return this.summaryText(isStopped ? "cancelled" : how) + (problem ? " · " + problem : "");
    }

    * keepLog() {
        if (this.record !== null) {
            this.record.noteLogging();
        }
        const problem = yield* super.keepLog();
        return problem;
    }

    // It is not over until its rows are in the log.
    endRecord() {
        if (this.record !== null) {
            this.record.end();
        }
    }

    hasEnded() {
        if (this.items.some((item) => item.replacesOriginal)) {
            this.window.reloadPreview();
        }
    }

    // Pictures that came too late are planned as after any other change.
    finish(text) {
        this.hasOthers = (this.joining !== null && this.joining.end()) || this.hasOthers;
        this.joining = null;
        super.finish(text);
    }

    // The rows of the log belong to the run that can be undone, if there is one.
    endReplacing() {
        const problem = this.replacing.end();
        this.id = this.replacing.undoable() || this.id;
        return problem;
    }

    undoOffer() {
        const isThere = this.phase === "ended" && this.replacing !== null && this.replacing.undoable() !== "";
        return isThere && this.window.services.moves.undoable(this.id).can ? { id: this.id, text: qsTr("Undo") } : null;
    }

    summaryText(how) {
        const sum = summaryOf(this.results);
        const parts = [qsTr("%n pictures done", "", sum.done)];
        const add = (number, text) => number > 0 && parts.push(fillNumbers(text, number));
        add(sum.failed, qsTr("%1 failed"));
        add(sum.unsupported, qsTr("%1 not supported"));
        add(sum.skipped, qsTr("%1 skipped"));
        parts.push(fill(qsTr("%1 written"), files.byteText(sum.bytes)), clockText(Date.now() - this.startedMs));
        return (how === "done" ? "" : qsTr("Cancelled:") + " ") + parts.join(" · ");
    }
}
