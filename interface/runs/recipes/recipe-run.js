// A run of a recipe: plan, carry out or only show, and what came of it. Each picture is decoded once and makes all its outputs; each
// output has its line in the log.

import { files } from "quorlin/files";
import { guard } from "../../lib/guard.js";
import { emptyTable, splitPath } from "../../lib/names.js";
import { fill, statusKind, statusText } from "../../lib/wording.js";
import { clockText, costOf, Progress } from "../progress.js";
import { logRow, summaryOf } from "../report.js";
import { BaseRun } from "../run-base.js";
import { countItem, namesOf, recipePlan, showRecipeItem, sizesOf } from "./recipe-plan.js";
import { mayReplace } from "../write-run.js";

// Of several outputs the first of these is what is said of all.
const ORDER = ["Failed", "Not Supported", "OK", "Skipped"];

function finalOf(photo, output) {
    const parts = splitPath(output.path);
    return { status: output.status, reason: output.reason, photo: photo,
             name: output.path === "" ? "" : parts.name, path: output.path,
             folder: output.status === "OK" ? parts.folder : "", bytes: output.status === "OK" ? output.bytes : 0,
             width: output.width, height: output.height };
}

// A generator that makes what is ready of the pictures with these numbers.
function* making(batch, items, numbers) {
    for (const number of numbers) {
        yield { kind: "start", number: number };
        const started = Date.now();
        let outputs;
        try {
            outputs = items[number].status === "ready" ? batch.make(number) : items[number].outputs;
        } catch (error) {
            outputs =
                [{ status: "Failed", reason: String(error.message || error), path: "", bytes: 0, width: 0, height: 0 }];
        }
        yield { kind: "end", number: number, outputs: outputs, ms: Date.now() - started };
    }
}

export class RecipeRun extends BaseRun {
    folders() {
        return summaryOf(this.results).folders;
    }

    start() {
        this.begin(this.window.pictures.ids());
    }

    /** The rows of which nothing came, or not all. */
    failedIds() {
        return this.ids.filter((id, i) => this.failed[i] === true);
    }

    retry() {
        const failed = this.failedIds().filter((id) => this.window.pictures.photo(id) !== null);
        failed.forEach((id) => this.window.pictures.forget(id));
        this.begin(failed);
    }

    // All are planned, so that names and numbers are those of the whole list; those that are wanted are made.
    begin(wanted) {
        const ids = this.window.pictures.ids();
        this.startPlanning(ids);
        const isWanted = emptyTable();
        wanted.forEach((id) => { isWanted[id] = true; });
        this.isWanted = ids.map((id) => isWanted[id] === true);
        this.wanted = ids.map((id, i) => i).filter((i) => this.isWanted[i]);
        this.failed = [];
        this.done = 0;
        this.simulated = this.settings.simulation;
        const work = recipePlan(this.window.pictures, ids, this.settings);
        this.job.start(work, guard("run.plan", (item) => this.takeItem(item)),
                       guard("run.planEnd", (how, value) => this.planEnded(how, value)));
        this.changed();
    }

    takeItem(item) {
        const number = this.items.length;
        this.items.push(item);
        if (this.isWanted[number]) {
            showRecipeItem(this.window.pictures, this.ids[number], item, this.simulated);
        }
    }

    planEnded(how, batch) {
        if (how !== "done") {
            this.finish(qsTr("Cancelled before the first picture. Nothing was written."));
            return;
        }
        const wanted = this.wanted.map((number) => this.items[number]);
        const summary = this.window.livePlan.nothing();
        wanted.forEach((item) => countItem(summary, item));
        summary.all = this.items.length;
        this.window.planned = summary;
        if (this.simulated) {
            this.finish([qsTr("Simulation: %n files would be written", "", summary.files), qsTr("nothing was written")]
                .join(" · "));
        } else if (mayReplace(wanted)) {
            this.carryOut(batch);
        } else {
            this.finish(qsTr("Cancelled. Nothing was written."));
        }
    }

    carryOut(batch) {
        this.phase = "running";
        this.progress = new Progress(this.wanted.map((number) => costOf(this.items[number].photo)));
        const list = this.window.pictures;
        this.wanted.filter((number) => this.items[number].status === "ready")
            .forEach((number) => list.setStatus(this.ids[number], "waiting", qsTr("waiting"), ""));
        const work = making(batch, this.items, this.wanted);
        this.job.start(work, guard("run.step", (event) => this.stepDone(event)),
                       guard("run.end", (how, value) => this.runEnded(how, value)));
        this.showProgress();
    }

    stepDone(event) {
        if (event.kind === "end") {
            this.takeOutputs(event.number, event.outputs, event.ms);
            this.showProgress();
        } else if (this.items[event.number].status === "ready") {
            this.window.pictures.setStatus(this.ids[event.number], "busy", qsTr("working…"), "");
            this.window.pictures.reveal(this.ids[event.number]);
        }
    }

    takeOutputs(number, outputs, ms) {
        const window = this.window;
        const item = this.items[number];
        const id = this.ids[number];
        const about = window.action.step.describe(this.settings);
        outputs.forEach((output) => {
            const result = finalOf(item.photo, output);
            this.noteInLog(result, logRow(result, window.action.title(), about, new Date().toISOString()));
        });
        this.done += 1;
        this.progress.add(costOf(item.photo), ms);
        window.livePlan.keepFinal(id);
        this.showFinal(id, item, outputs);
        this.failed[number] = outputs.some((output) => output.status === "Failed");
        if (item.replacesOriginal && outputs.some((output) => output.status === "OK")) {
            window.pictures.forget(id);
        }
    }

    showFinal(id, item, outputs) {
        const list = this.window.pictures;
        const made = outputs.filter((output) => output.status === "OK");
        const status = ORDER.find((word) => outputs.some((output) => output.status === word)) || "Failed";
        const reason = outputs.filter((output) => output.status === status && output.reason !== "")
            .map((output) => output.reason).filter((text, i, all) => all.indexOf(text) === i).join(" · ");
        if (made.length > 0) {
            list.setPlan(id, namesOf(made), sizesOf(made));
        }
        const text = status === "OK" || made.length === 0
            ? statusText(status, reason) : fill(qsTr("%1 of %2 files: %3"), made.length, outputs.length, reason);
        list.setStatus(id, statusKind(status), text, item.notes.join("\n"));
    }

    // Each picture has one final state, also those whose turn never came.
    runEnded(how, value) {
        const reason = how === "failed" ? String(value) : qsTr("cancelled before its turn");
        this.wanted.slice(this.done).forEach((number) => {
            const outputs = this.items[number].outputs
                .map((output) => Object.assign({}, output, { status: "Skipped", reason: reason, path: "" }));
            this.takeOutputs(number, outputs, 0);
        });
        const problem = this.keepLog();
        this.finish(this.summaryText(how) + (problem ? " · " + problem : ""));
        if (this.items.some((item) => item.replacesOriginal)) {
            this.window.reloadPreview();
        }
    }

    summaryText(how) {
        const sum = summaryOf(this.results);
        const parts = [qsTr("%n files made", "", sum.done)];
        const add = (number, text) => number > 0 && parts.push(fill(text, number));
        add(sum.failed, qsTr("%1 failed"));
        add(sum.unsupported, qsTr("%1 not supported"));
        add(sum.skipped, qsTr("%1 skipped"));
        parts.push(fill(qsTr("%1 written"), files.byteText(sum.bytes)), clockText(Date.now() - this.startedMs));
        return (how === "done" ? "" : qsTr("Cancelled:") + " ") + parts.join(" · ");
    }
}
