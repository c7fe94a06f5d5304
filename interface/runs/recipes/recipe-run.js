// A run of a recipe: plan, carry out or only show, and the outcome. Each picture is decoded once and makes all its
// outputs; each output has its line in the log.

import { files } from "quorlin/files";
import { guard } from "../../lib/guard.js";
import { emptyTable, splitPath } from "../../lib/names.js";
import { fill, fillNumbers, statusKind, statusText } from "../../lib/wording.js";
import { Joining } from "../joining.js";
import { rowsByPath } from "../list-rows.js";
import { outputsNow } from "../making/run-record.js";
import { clockText } from "../progress.js";
import { logRow, summaryOf } from "../report.js";
import { WriteRun } from "../write-run.js";
import { makeByWorkers } from "./recipe-making.js";
import { batchOf, countItem, itemAgain, namesOf, planOfBatch, recipePlan, showRecipeItem,
         sizesOf } from "./recipe-plan.js";

// Of several outputs the first of these statuses applies to the whole picture.
const ORDER = ["Failed", "Not Supported", "OK", "Skipped"];

function finalOf(photo, output) {
    const parts = splitPath(output.path);
    return { status: output.status, reason: output.reason, photo: photo,
             name: output.path === "" ? "" : parts.name, path: output.path,
             folder: output.status === "OK" ? parts.folder : "", bytes: output.status === "OK" ? output.bytes : 0,
             width: output.width, height: output.height };
}

function joined(lists) {
    return lists.reduce((all, list) => all.concat(list), []);
}

export class RecipeRun extends WriteRun {
    reset(ids) {
        super.reset(ids);
        this.finals = []; // the results of each picture's outputs
        this.batch = null;
    }

    /** Whether pictures may join, and whether the next start continues if this process ends before the run. */
    canGrow() {
        return true;
    }

    folders() {
        return summaryOf(joined(this.finals)).folders;
    }

    resultPaths() {
        return joined(this.finals).filter((final) => final.status === "OK").map((final) => final.path);
    }

    // All are planned, so that names and numbers are those of the whole list; the wanted ones are made.
    begin(wanted) {
        const all = this.window.pictures.tickedIds();
        const isWanted = emptyTable();
        wanted.forEach((id) => { isWanted[id] = true; });
        this.startPlanning(all.filter((id) => isWanted[id]));
        this.isWanted = all.map((id) => isWanted[id] === true);
        this.simulated = this.settings.simulation;
        this.joining = this.canGrow() ? new Joining(this, this.window.pictures) : null;
        const work = recipePlan(this.window, all, this.planned(this.settings));
        this.job.start(work, guard("run.plan", (item) => this.takeItem(item)),
                       guard("run.planEnd", (how, value) => this.planEnded(how, value)));
        this.changed();
    }

    /** The recipe of the settings: {text, folder, base}. */
    planned(settings) {
        return settings;
    }

    takeItem(item) {
        if (this.isWanted[item.number]) {
            this.items.push(item);
            showRecipeItem(this.window.pictures, this.ids[this.items.length - 1], item, this.simulated);
        }
    }

    planEnded(how, value) {
        this.batch = how === "done" ? value.batch : null;
        super.planEnded(how, value);
    }

    notePlan() {
        const summary = this.window.livePlan.nothing();
        this.items.forEach((item) => countItem(summary, item));
        summary.all = this.items.length;
        this.window.planned = summary;
    }

    endSimulation() {
        const number = this.window.planned.files;
        this.finish(
            [qsTr("Dry run: %n files would be written", "", number), qsTr("nothing was written")].join(" · "));
    }

    * makeAll(services) {
        yield* makeByWorkers(this.batch, this.items, services, this.flow);
    }

    inputPaths() {
        return this.batch.paths;
    }

    /** Continues an interrupted run; done: the existing results, see doneResults(). */
    continueRun(record, done, path) {
        const rows = rowsByPath(this.window.pictures);
        this.startPlanning(record.items.map((item) => rows[item.of] || 0));
        this.takeOver(record, path);
        this.joining = new Joining(this, this.window.pictures);
        const work = this.planRest(record, done);
        this.job.start(work, guard("run.plan", (item) => this.items.push(item)),
                       guard("run.planEnd", (how, value) => this.restPlanned(how, value)));
        this.changed();
    }

    // As it was planned, whatever the list contains now.
    * planRest(record, done) {
        const batch = batchOf(this.planned(this.settings), record.paths);
        const problem = batch.problem();
        for (let i = 0; i < record.items.length && problem === ""; i += 1) {
            const item = record.items[i];
            const photo = this.ids[i] > 0 ? this.window.pictures.photo(this.ids[i]) : null;
            yield itemAgain(batch, item, photo || { path: item.of, name: splitPath(item.of).name },
                            outputsNow(item, i, done));
        }
        return { batch: batch, problem: problem };
    }

    // If it does not continue, the user is asked about it again.
    restPlanned(how, value) {
        if (how !== "done" || value.problem !== "") {
            this.finish(how === "done" ? value.problem : this.nothingText());
            return;
        }
        this.batch = value.batch;
        this.carryOut();
    }

    * planMore(ids) {
        const paths = ids.map((id) => this.window.pictures.photo(id).path);
        const first = this.batch.join(paths);
        const items = [];
        for (const item of planOfBatch(this.window, this.batch, ids, first)) {
            showRecipeItem(this.window.pictures, ids[items.length], item, false);
            items.push(item);
            yield items.length;
        }
        const mayJoin = this.mayReplace(items);
        if (mayJoin && this.record !== null) {
            yield* this.record.grow(items, this.items.length, paths);
        }
        return mayJoin ? items : null;
    }

    // A picture that was never started has no outputs.
    takeResult(index, result) {
        const item = this.items[index];
        const outputs = result.outputs ||
                        item.outputs.map((output) => Object.assign(
                                             {}, output, { status: result.status, reason: result.reason, path: "" }));
        this.finals[index] = outputs.map((output) => finalOf(item.photo, output));
        this.problems += this.finals[index]
            .filter((final) => final.status === "Failed" || final.status === "Not Supported").length;
        this.results[index] = {
            status: ORDER.find((word) => outputs.some((output) => output.status === word)) || "Failed"
        };
        this.countOne(item);
        this.window.livePlan.keepFinal(this.ids[index]);
        this.showFinal(index, outputs);
    }

    showFinal(index, outputs) {
        const list = this.window.pictures;
        const id = this.ids[index];
        const made = outputs.filter((output) => output.status === "OK");
        const status = this.results[index].status;
        const reason = outputs.filter((output) => output.status === status && output.reason !== "")
            .map((output) => output.reason).filter((text, i, all) => all.indexOf(text) === i).join(" · ");
        if (made.length > 0) {
            list.setPlan(id, namesOf(made), sizesOf(made));
        }
        const text = status === "OK" || made.length === 0
            ? statusText(status, reason) : fill(qsTr("%1 of %2 files: %3"), made.length, outputs.length, reason);
        list.setStatus(id, statusKind(status), text, this.items[index].notes.join("\n"));
        if (status === "OK") {
            list.setResults(id, made.map((final) => final.path));
        }
        if (made.length > 0 && this.items[index].replacesOriginal) {
            list.forget(id);
        }
    }

    // In the order of the list, and of the outputs.
    logRows() {
        const action = this.window.action;
        const about = action.step.describe(this.settings);
        const now = new Date().toISOString();
        return joined(this.finals).map((final) => logRow(final, action.title(), about, now));
    }

    * keepLog() {
        this.rows = this.logRows();
        const problem = yield* super.keepLog();
        return problem;
    }

    summaryText(how) {
        const sum = summaryOf(joined(this.finals));
        const parts = [qsTr("%n files made", "", sum.done)];
        const add = (number, text) => number > 0 && parts.push(fillNumbers(text, number));
        add(sum.failed, qsTr("%1 failed"));
        add(sum.unsupported, qsTr("%1 not supported"));
        add(sum.skipped, qsTr("%1 skipped"));
        parts.push(fill(qsTr("%1 written"), files.byteText(sum.bytes)), clockText(Date.now() - this.startedMs));
        return (how === "done" ? "" : qsTr("Cancelled:") + " ") + parts.join(" · ");
    }
}
