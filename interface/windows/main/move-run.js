// A run that moves files through the move engine: plan anew, carry out one after the other or only show, and undo.
// Services used: those of the step, moves.

import { guard } from "../../lib/guard.js";
import { readyItems } from "../../lib/move-plan.js";
import { splitPath } from "../../lib/names.js";
import { clockText, Progress } from "../../lib/progress.js";
import { logRow, undoing } from "../../lib/report.js";
import { undoAction } from "../../lib/undo-run.js";
import { count, fill, statusKind, statusText } from "../../lib/wording.js";
import { showPlan } from "./live-moves.js";
import { BaseRun } from "./run-base.js";

// The window is told at most this often.
const TELL_MS = 100;

function problemsText(number) {
    return count(number, qsTr("1 problem"), qsTr("%1 problems"));
}

// Carries out what was begun; whatever happens the engine is told the end.
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

    // The pane may want to know when a run begins and ends.
    tellPane(deed) {
        const pane = this.window.pane;
        if (pane !== null && pane[deed] !== undefined) {
            pane[deed]();
        }
    }

    start() {
        const window = this.window;
        this.tellPane("starting");
        this.startPlanning(window.pictures.ids());
        this.title = window.action.title();
        this.undoes = "";
        this.takenBack = null;
        this.toldMs = 0;
        this.paths = window.pictures.paths();
        const work = this.plan();
        this.job.start(work, () => undefined, guard("moves.planEnd", (how, plan) => this.planEnded(how, plan)));
        this.changed();
    }

    * plan() {
        const window = this.window;
        const plan = yield* showPlan(window.pictures, this.ids, this.paths, window.action.step, this.settings, window.services, () => false);
        plan.ready = yield* readyItems(plan);
        return plan;
    }

    // A chain with a counter would count the failed ones from the start: what is left is planned like any list.
    failedIds() {
        return [];
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
        } else {
            this.begin();
        }
    }

    endSimulation(plan) {
        const ready = plan.states.filter((state) => state === "ready").length;
        const parts = [fill(qsTr("Simulation: %1"), this.window.action.deed(ready, this.settings))];
        if (this.leftOut > 0) {
            parts.push(fill(qsTr("%1 left out"), this.leftOut));
        }
        this.finish(parts.concat([qsTr("nothing was moved")]).join(" · "));
    }

    begin() {
        const moves = this.window.services.moves;
        const begun = moves.begin({ title: this.title, items: this.items.map((item) => ({ kind: item.kind, from: item.from, to: item.to, leader: item.leader })) });
        if (begun.problem) {
            this.finish(begun.problem);
        } else {
            this.carryOut(begun.run);
        }
    }

    carryOut(run) {
        this.id = run;
        this.phase = "running";
        this.done = [];
        this.moved = 0;
        this.progress = new Progress(this.items.map(() => 1));
        this.steppedMs = Date.now();
        this.job.start(carriedOut(this.window.services.moves, run), guard("moves.step", (result) => this.takeResult(result)),
                       guard("moves.end", (how, value) => this.runEnded(how, value)));
        this.showProgress();
    }

    takeResult(result) {
        const now = Date.now();
        const item = this.items[result.index];
        this.done[result.index] = true;
        this.noteResult(item, { status: result.status, reason: result.message, path: result.path || item.to });
        this.progress.add(1, now - this.steppedMs);
        this.steppedMs = now;
        if (now - this.toldMs >= TELL_MS) {
            this.toldMs = now;
            this.showProgress();
        }
    }

    noteResult(item, result) {
        const window = this.window;
        const isDone = result.status === "OK";
        const parts = { status: result.status, reason: result.reason, photo: { name: splitPath(item.from).name, path: item.from },
                        name: isDone ? splitPath(result.path).name : "", path: isDone ? result.path : "" };
        this.noteRow(parts);
        this.moved += isDone && !item.along ? 1 : 0;
        const id = this.idOf(item);
        if (id > 0 && !item.along) {
            window.livePlan.keepFinal(id);
            window.pictures.setStatus(id, statusKind(result.status), isDone ? qsTr("done") : statusText(result.status, result.reason), "");
            if (isDone && item.kind === "move") {
                window.pictures.setPath(id, result.path);
            }
        }
        if (isDone && item.kind === "move" && item.along) {
            this.followed(item.from, result.path);
        }
    }

    noteRow(parts) {
        const back = this.takenBack;
        const action = back === null ? this.window.action.step.describe(this.settings) : undoAction(back.undoes !== "");
        const row = logRow(parts, this.title, action, new Date().toISOString());
        this.note(parts, back === null ? row : undoing(row, back.id));
    }

    // The row that an item belongs to; in an undo, rows are found by where their files are.
    idOf(item) {
        return item.row === undefined ? this.rowAt[item.from] || 0 : this.ids[item.row];
    }

    // A file that went along may have a row of its own.
    followed(from, to) {
        if (this.rowAt === undefined || this.rowAt === null) {
            this.rowAt = this.rowsByPath();
        }
        const id = this.rowAt[from];
        if (id !== undefined) {
            this.window.livePlan.keepFinal(id);
            this.window.pictures.setPath(id, to);
            this.window.pictures.setStatus(id, "good", qsTr("done"), "");
        }
    }

    rowsByPath() {
        const table = Object.create(null);
        const ids = this.window.pictures.ids();
        this.window.pictures.paths().forEach((path, i) => { table[path] = ids[i]; });
        return table;
    }

    runEnded(how, value) {
        const reason = how === "failed" ? String(value) : qsTr("cancelled before its turn");
        this.items.forEach((item, i) => {
            if (!this.done[i]) {
                this.noteResult(item, { status: "Skipped", reason: reason, path: "" });
            }
        });
        const told = [how === "done" && value ? value : "", this.keepLog()].filter((text) => text);
        this.last = null;
        this.rowAt = null;
        this.window.planned = {};
        // Facts are known by path, and other files are at these paths now.
        this.window.services.facts.forget();
        this.finish([this.summaryText(how)].concat(told).join(" · "));
        this.tellPane("runEnded");
        this.window.reloadPreview();
    }

    summaryText(how) {
        const action = this.window.action;
        const done = this.undoes === "" ? action.done(this.moved, this.settings) : action.undone(this.moved, this.settings);
        const parts = [done + ", " + problemsText(this.problems)];
        if (this.undoes === "" && this.leftOut > 0) {
            parts.push(fill(qsTr("%1 left out"), this.leftOut));
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

    /** Forgets what it knows of the newest run, because another one was made elsewhere. */
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
        const words = run.title !== action.title() ? fill(qsTr("%1, %2"), run.title, count(run.done, qsTr("1 file"), qsTr("%1 files")))
            : run.undoes ? action.undone(run.done, null) : action.done(run.done, null);
        return fill(qsTr("Last run: %1, %2"), words, problemsText(Math.max(0, run.count - run.done)));
    }

    /** Takes back the newest run, or does again what was taken back. */
    undo() {
        const offer = this.undoOffer();
        if (offer === null) {
            return;
        }
        const moves = this.window.services.moves;
        const newest = this.lastRun().run;
        this.startPlanning(this.window.pictures.ids());
        this.title = newest.title;
        this.undoes = newest.undoes ? "" : offer.id;
        this.takenBack = newest;
        this.toldMs = 0;
        this.leftOut = 0;
        const begun = moves.undo(offer.id);
        if (begun.problem) {
            this.finish(begun.problem);
            return;
        }
        this.rowAt = this.rowsByPath();
        this.items = begun.items.map((item) => ({ kind: "move", from: item.from, to: item.to, row: undefined, along: false }));
        begun.problems.forEach((problem) => this.noteUnable(problem));
        this.carryOut(begun.run);
    }

    // A file that cannot go back stays where it is.
    noteUnable(problem) {
        this.noteRow({ status: "Failed", reason: problem.reason, photo: { name: splitPath(problem.path).name, path: problem.path } });
    }

    /** Takes the summary away; the rows then show what the settings would make of them now. */
    dismiss() {
        if (this.phase === "ended") {
            super.dismiss();
            this.window.livePlan.forgetFinal();
            this.window.livePlan.refresh();
        }
    }
}
