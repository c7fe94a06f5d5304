// A run that moves files through the move engine: plan again, carry out one after the other or only show, and undo.

import { guard } from "../lib/guard.js";
import { isReadyRow, itemOf, readyItems, settled } from "./move-plan.js";
import { askForRoom, restIn } from "./making/full-disk.js";
import { Marks } from "../lib/marks.js";
import { MovedFolders } from "./moved-folders.js";
import { refusalText } from "./move-words.js";
import { splitPath } from "../lib/names.js";
import { clockText, Progress } from "./progress.js";
import { pathsInParts, rowsByPathInParts } from "./list-rows.js";
import { logRow } from "./report.js";
import { retryRows } from "./retry.js";
import { DiskNeeds, roomText } from "./room.js";
import { beginUndo, undoAction, undoing, undoRow, unableSteps } from "./undo-run.js";
import { fill, fillNumbers, problemsText, statusKind, statusText } from "../lib/wording.js";
import { showPlan } from "./live-moves.js";
import { BaseRun } from "./run-base.js";
import { shell } from "quorlin/shell";

// The window is told at most this often.
const TELL_MS = 100;
const ROWS_A_SLICE = 50;
const ITEMS_AT_ONCE = 50;
const WORK_MS = 1;
const SHOWN = Object.freeze({});

// Has the engine check everything and record what is to be done; returns {run} or {problem}.
function* prepared(moves, title, items) {
    const order = moves.beginOrder(title);
    try {
        for (let i = 0; i < items.length; i += ITEMS_AT_ONCE) {
            moves.addItems(order, items.slice(i, i + ITEMS_AT_ONCE)
                .map((item) => ({ kind: item.kind, from: item.from, to: item.to, leader: item.leader })));
            yield i;
        }
        while (!moves.prepare(order, WORK_MS)) {
            yield items.length;
        }
        return moves.carryOut(order);
    } finally {
        moves.dropOrder(order);
    }
}

// Carries out what was begun; whatever happens, the engine is told the end.
function* carriedOut(moves, run) {
    let problem = "";
    try {
        let result = moves.next(run);
        while (result !== null) {
            yield result;
            result = moves.next(run);
        }
    } finally {
        problem = moves.end(run);
    }
    return problem;
}

export class MoveRun extends BaseRun {
    constructor(window, changed) {
        super(window, changed);
        this.last = null;
    }

    reset(ids) {
        super.reset(ids);
        this.again = [];
        this.wished = null;
        this.filled = null;
        /** The folder in which a run goes on whose own is full; "" for none. */
        this.elsewhere = "";
        this.goesOn = false;
        this.unkept = "";
    }

    /** The folders that got files, if filling folders is what the action does. */
    folders() {
        return this.filled === null ? [] : this.filled.used;
    }

    // The pane may want to know when a run begins and ends.
    tellPane(event) {
        const pane = this.window.pane;
        if (pane !== null && pane[event] !== undefined) {
            pane[event]();
        }
    }

    start() {
        this.startWith(null, null);
    }

    /** Does the same to these rows alone; counters start again. */
    repeat(ids) {
        const list = this.window.pictures;
        this.startWith(ids, ids.map((id) => list.photo(id).path));
    }

    // Without ids all ticked rows are taken; of ten thousand they are not read where the button is clicked.
    startWith(ids, paths) {
        const window = this.window;
        this.tellPane("starting");
        this.startPlanning(ids || []);
        this.title = window.action.title();
        this.undoes = "";
        this.undone = null;
        this.toldMs = 0;
        this.paths = paths;
        const work = this.plan();
        this.job.start(work, () => undefined, guard("moves.planEnd", (how, plan) => this.planEnded(how, plan)));
        this.changed();
    }

    * plan() {
        const window = this.window;
        if (this.paths === null) {
            yield 0;
            this.ids = window.pictures.tickedIds();
            yield this.ids.length;
            this.paths = yield* pathsInParts(window.pictures, this.ids);
        }
        const plan = yield* showPlan(window, { ids: this.ids, paths: this.paths }, this.settings, () => false);
        plan.ready = yield* readyItems(plan);
        plan.needs = new DiskNeeds((folder) => window.services.files.space(folder));
        for (let i = 0; i < plan.rows.length; i += 1) {
            if (plan.rows[i].bytes > 0 && isReadyRow(plan, i)) {
                plan.needs.add(plan, i);
            }
            if (i % ROWS_A_SLICE === ROWS_A_SLICE - 1) {
                yield i;
            }
        }
        return plan;
    }

    // More than the free space is copied only if the user insists: the engine stops by itself when there is no room.
    mayFill(disks) {
        const files = this.window.services.files;
        const problem = roomText(disks, (bytes) => files.byteText(bytes)).problem;
        if (problem === "") {
            return true;
        }
        const answer = shell.ask({
            title: qsTr("Not enough space"), text: problem, detail: qsTr("Files that do not fit stay where they are."),
            buttons: [qsTr("Start Anyway"), qsTr("Cancel")], initial: 1, escape: 1, check: "",
        });
        return answer.button === 0;
    }

    /** Of the rows whose files could not be carried out. */
    failedIds() {
        return this.again.map((row) => this.ids[row.of]);
    }

    /** Only what failed before, under the names planned then: a counter does not start again. */
    retry() {
        const again = this.again.filter((row) => this.window.pictures.photo(this.ids[row.of]) !== null);
        const others = this.ids.filter((id) => again.every((row) => this.ids[row.of] !== id));
        this.tellPane("starting");
        this.startPlanning(this.ids);
        others.forEach((id) => this.window.livePlan.keepFinal(id));
        this.undoes = "";
        this.leftOut = 0;
        this.job.start(this.planAgain(again), () => undefined,
                       guard("moves.retryEnd", (how, plan) => this.plannedAgain(how, plan, again)));
        this.changed();
    }

    * planAgain(again) {
        const plan = yield* settled(again.map((row) => row.from), again.map((row) => row.wish),
                                    this.window.services.moves);
        plan.ready = yield* readyItems(plan);
        return plan;
    }

    plannedAgain(how, plan, again) {
        if (how !== "done") {
            this.again = again;
            this.finish(how === "failed" ? String(plan) : qsTr("Cancelled before the first file. Nothing was moved."));
            return;
        }
        this.startMoving();
        this.beginAgain(plan, again);
    }

    beginAgain(plan, again) {
        this.wished = this.wished || [];
        again.forEach((row) => { this.wished[row.of] = row.wish; });
        this.done = new Marks();
        this.items = plan.ready
            .map((item) =>
                Object.assign({}, item, { row: again[item.row].of, along: item.along || again[item.row].isAlong }));
        again.forEach((row, i) => {
            if (!isReadyRow(plan, i)) {
                this.noteFailed({ kind: row.wish.kind, from: row.from, to: row.wish.to, row: row.of,
                                  along: row.isAlong },
                                { status: "Failed", reason: refusalText(itemOf(plan, i)), path: "" });
            }
        });
        if (this.items.length > 0) {
            this.begin();
        } else {
            this.runEnded("done", "");
        }
    }

    planEnded(how, plan) {
        if (how !== "done") {
            this.finish(how === "failed" ? String(plan) : qsTr("Cancelled before the first file. Nothing was moved."));
            return;
        }
        this.items = plan.ready;
        this.leftOut = plan.states.filter((state) => state === "attention").length;
        if (this.settings.simulation) {
            this.endSimulation(plan);
        } else if (this.items.length === 0) {
            this.finish(qsTr("There is nothing to do."));
        } else if (this.mayFill(plan.needs.disks())) {
            this.wished = plan.rows;
            this.startMoving();
            this.begin();
        } else {
            this.finish(qsTr("Cancelled. Nothing was moved."));
        }
    }

    endSimulation(plan) {
        const ready = plan.states.filter((state) => state === "ready").length;
        const parts = [fill(qsTr("Dry run: %1"), this.window.action.startText(ready, this.settings))];
        if (this.leftOut > 0) {
            parts.push(fillNumbers(qsTr("%1 left out"), this.leftOut));
        }
        this.finish(parts.concat([qsTr("nothing was moved")]).join(" · "));
    }

    begin() {
        if (this.window.action.fillsFolders) {
            this.filled = this.filled || new MovedFolders(this.window.services.files);
        }
        const work = this.preparing();
        this.job.start(work, () => undefined, guard("moves.begun", (how, begun) => this.begun(how, begun)));
    }

    * preparing() {
        this.rowAt = yield* rowsByPathInParts(this.window.pictures);
        for (let i = 0; i < this.items.length && this.filled !== null; i += 1) {
            this.filled.expect(this.items[i].to);
            if (i % ITEMS_AT_ONCE === ITEMS_AT_ONCE - 1) {
                yield i;
            }
        }
        const begun = yield* prepared(this.window.services.moves, this.title, this.items);
        return begun;
    }

    begun(how, begun) {
        const problem = how === "failed" ? String(begun) : begun && begun.problem;
        if (this.goesOn && (how !== "done" || problem)) {
            this.runEnded(problem ? "failed" : "cancelled", problem);
        } else if (how !== "done" || problem) {
            this.finish(problem || qsTr("Cancelled before the first file. Nothing was moved."));
        } else {
            this.carryOut(begun.run, carriedOut(this.window.services.moves, begun.run),
                          (result) => this.takeResult(result));
        }
    }

    /** Carries out the rest of an interrupted run as it was planned; items: those of moves.rest(). */
    finishRest(title, items) {
        this.tellPane("starting");
        this.startPlanning(this.window.pictures.ids());
        this.title = title;
        this.undoes = "";
        this.undone = null;
        this.toldMs = 0;
        this.leftOut = 0;
        this.startMoving();
        this.items = items.map((item) => ({ kind: item.kind, from: item.from, to: item.to, leader: item.leader,
                                            row: undefined, along: item.leader >= 0 }));
        this.begin();
    }

    startMoving() {
        this.done = new Marks();
        this.moved = 0;
        this.unfinished = [];
    }

    // Showing that a run has begun is a separate step, since it changes the whole window.
    * shownFirst(work) {
        this.showProgress();
        yield SHOWN;
        const value = yield* work;
        return value;
    }

    // work is a generator; take() gets what it yields for each file.
    carryOut(run, work, take) {
        this.id = run;
        this.phase = "running";
        this.progress = new Progress(this.items.map(() => 1));
        this.steppedMs = Date.now();
        this.job.start(this.shownFirst(work), guard("moves.step", (step) => step !== SHOWN && take(step)),
                       guard("moves.end", (how, value) => this.runEnded(how, value)));
    }

    takeResult(result) {
        const item = this.items[result.index];
        if (result.code === "full" && this.isTriedAgain(item)) {
            return;
        }
        const told = { status: result.status, reason: result.message, path: result.path || item.to };
        this.done.add(result.index);
        // Companions of a file that failed wait for it.
        if (result.status === "Failed" || result.code === "leader") {
            this.noteFailed(item, told);
        } else {
            this.noteResult(item, told);
        }
        this.countOne();
    }

    // A full disk is asked about. If the answer is to go on, the file has no result yet.
    isTriedAgain(item) {
        const wish = this.wished === null || item.row === undefined ? {} : this.wished[item.row];
        const answer = askForRoom(wish.base || splitPath(item.to).folder, qsTr("Finished files are kept."),
                                  wish.base !== undefined);
        this.steppedMs = Date.now();
        if (answer.isStopped || answer.folder !== null) {
            this.elsewhere = answer.folder || "";
            this.job.cancel();
            return answer.folder !== null;
        }
        return this.window.services.moves.again(this.id);
    }

    // What is not done goes to another folder, in a second run.
    goOnElsewhere() {
        const left = this.items.filter((_item, i) => !this.done.has(i));
        const rest = restIn(this.elsewhere, retryRows(left, this.wished), this.wished);
        this.elsewhere = "";
        this.goesOn = true;
        const work = this.planRest(rest);
        this.job.start(work, () => undefined, guard("moves.elsewhere", (how, plan) => {
            if (how === "done") {
                this.beginAgain(plan, rest);
            } else {
                this.runEnded(how, plan);
            }
        }));
    }

    // What is done belongs to the run that ends here.
    * planRest(rest) {
        this.unkept = yield* this.keepLog();
        this.keptRows = this.rows.length;
        this.window.history.lookForRun();
        const plan = yield* this.planAgain(rest);
        return plan;
    }

    // One more file is done.
    countOne() {
        const now = Date.now();
        this.progress.add(1, now - this.steppedMs);
        this.steppedMs = now;
        if (now - this.toldMs >= TELL_MS) {
            this.toldMs = now;
            this.showShare();
        }
    }

    noteFailed(item, result) {
        this.unfinished.push(item);
        this.noteResult(item, result);
    }

    noteResult(item, result) {
        const isDone = result.status === "OK";
        const parts = { status: result.status, reason: result.reason,
                        photo: { name: splitPath(item.from).name, path: item.from },
                        name: isDone ? splitPath(result.path).name : "", path: isDone ? result.path : "" };
        const isMoved = isDone && item.kind === "move";
        this.noteRow(parts);
        if (isDone && this.filled !== null) {
            this.filled.got(result.path);
        }
        if (!item.along) {
            this.moved += isDone ? 1 : 0;
            this.showResult(this.idOf(item), result, isMoved);
        } else if (isMoved) {
            this.followed(item.from, result.path);
        }
    }

    // In the row of the list, if the file has one.
    showResult(id, result, isMoved) {
        if (id <= 0) {
            return;
        }
        const list = this.window.pictures;
        const text = result.status === "OK" ? qsTr("done") : statusText(result.status, result.reason);
        this.window.livePlan.keepFinal(id);
        list.setStatus(id, statusKind(result.status), text, "");
        if (isMoved) {
            list.setPath(id, result.path);
        }
    }

    noteRow(parts) {
        const describe = () =>
            logRow(parts, this.title, this.window.action.step.describe(this.settings), new Date().toISOString());
        this.noteInLog(parts, this.undone === null ? describe() : undoRow(parts, this.undone, this.id));
    }

    // The list shows the results; nothing else asks for them.
    noteInLog(result, row) {
        this.countProblem(result);
        this.rows.push(row);
    }

    // The row of an item; in an undo, rows are found by the location of their files.
    idOf(item) {
        return item.row === undefined ? this.rowAt[item.from] || 0 : this.ids[item.row];
    }

    // A file that moved with another may have its own row in the list.
    followed(from, to) {
        const id = this.rowAt[from];
        if (id !== undefined) {
            this.window.livePlan.keepFinal(id);
            this.window.pictures.setPath(id, to);
            this.window.pictures.setStatus(id, "good", qsTr("done"), "");
        }
    }

    runEnded(how, value) {
        if (this.elsewhere !== "" && !this.isAbandoned) {
            this.goOnElsewhere();
            return;
        }
        const work = this.ending(how, value);
        this.endWith(work);
    }

    * ending(how, value) {
        const reason = how === "failed" ? String(value) : qsTr("cancelled");
        for (let i = 0; i < this.items.length; i += 1) {
            if (!this.done.has(i)) {
                this.noteResult(this.items[i], { status: "Skipped", reason: reason, path: "" });
                yield i;
            }
        }
        const problem = yield* this.keepLog();
        const told = [how === "done" && value ? value : "", problem || this.unkept].filter((text) => text);
        this.last = null;
        this.rowAt = null;
        this.again = this.undoes === "" && this.wished !== null ? retryRows(this.unfinished, this.wished) : [];
        this.wished = null;
        this.window.planned = {};
        // Facts are cached by path, and other files are at these paths now.
        this.window.services.facts.forget();
        yield this.items.length;
        return [this.summaryText(how)].concat(told).join(" · ");
    }

    hasEnded() {
        this.tellPane("runEnded");
        this.window.reloadPreview();
    }

    // What a run had put aside and what took its place are one file.
    filesDone() {
        const run = this.undone === null
            ? undefined : this.window.services.moves.runs().find((each) => each.id === this.id);
        return run === undefined ? this.moved : run.files;
    }

    summaryText(how) {
        const action = this.window.action;
        const folders = this.filled === null ? undefined : this.filled.sum();
        const number = this.filesDone();
        const done = this.undoes === ""
            ? action.done(number, this.settings, folders) : action.undone(number, this.settings);
        const parts = [done + ", " + problemsText(this.problems)];
        if (this.undoes === "" && this.leftOut > 0) {
            parts.push(fillNumbers(qsTr("%1 left out"), this.leftOut));
        }
        parts.push(clockText(Date.now() - this.startedMs));
        return (how === "done" ? "" : qsTr("Cancelled:") + " ") + parts.join(" · ");
    }

    // The newest run of all, with whether it can be undone; read once after each run.
    lastRun() {
        if (this.last === null) {
            const moves = this.window.services.moves;
            const newest = moves.runs()[0];
            this.last = newest === undefined || newest.state === "open" || newest.done === 0
                ? { run: null } : { run: newest, can: moves.undoable(newest.id).can };
        }
        return this.last;
    }

    /** Forgets the newest run, because another one was made elsewhere. */
    look() {
        this.last = null;
    }

    undoOffer() {
        const last = this.isBusy() ? { run: null } : this.lastRun();
        if (last.run === null || !last.can || (this.phase === "ended" && last.run.id !== this.id)) {
            return null;
        }
        return { id: last.run.id, text: last.run.undoes ? qsTr("Redo") : qsTr("Undo") };
    }

    idleText() {
        const last = this.lastRun();
        if (last.run === null || !last.can) {
            return "";
        }
        const run = last.run;
        const action = this.window.action;
        const isOther = run.title !== action.title();
        const own = () => (run.undoes ? action.undone(run.files, null) : action.done(run.files, null));
        const words = isOther
            ? fill(qsTr("%1, %2"), run.title, qsTr("%n files", "", run.files)) : own();
        return fill(qsTr("Last run: %1, %2"), words, problemsText(Math.max(0, run.count - run.done)));
    }

    /** Undoes a run of the move engine, or redoes what it undid. */
    undo(run) {
        this.startPlanning([]);
        this.title = run.title;
        this.undoes = run.undoes ? "" : run.id;
        this.undone = { id: run.id, process: run.title, action: undoAction(run.undoes !== "") };
        this.toldMs = 0;
        this.leftOut = 0;
        const work = this.beginningUndo(run.id);
        this.job.start(work, () => undefined,
                       guard("moves.undoBegun", (how, begun) => this.undoBegun(how, begun)));
        this.changed();
    }

    * beginningUndo(id) {
        yield 0;
        this.ids = this.window.pictures.ids();
        yield this.ids.length;
        this.rowAt = yield* rowsByPathInParts(this.window.pictures);
        const begun = yield* beginUndo(this.window.services.moves, id);
        return begun;
    }

    undoBegun(how, begun) {
        if (how !== "done" || begun.problem) {
            const problem = how === "failed" ? String(begun) : begun && begun.problem;
            this.finish(problem || qsTr("Cancelled before the first file. Nothing was moved."));
            return;
        }
        const moves = this.window.services.moves;
        this.startMoving();
        this.items = begun.items
            .map((item) => ({ kind: "move", from: item.from, to: item.to, row: undefined, along: false }));
        unableSteps(begun, this.undone).forEach((step) => this.noteInLog(step.result, step.row));
        this.carryOut(begun.run, undoing(moves, begun, this.undone), (step) => this.tookBack(step));
    }

    tookBack(step) {
        const { status, reason } = step.result;
        this.done.add(step.index);
        this.noteInLog(step.result, step.row);
        this.moved += status === "OK" ? 1 : 0;
        this.showResult(this.rowAt[step.from] || 0, { status: status, reason: reason, path: step.to }, status === "OK");
        this.countOne();
    }

    /** Removes the summary; the rows then show what the settings would make of them now. */
    dismiss() {
        if (this.phase === "ended") {
            super.dismiss();
            this.window.livePlan.forgetFinal();
            this.window.livePlan.refresh();
        }
    }
}
