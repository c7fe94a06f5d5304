// A run that makes a page: workers make its pictures in an unfinished folder, then the page is written, and then the
// folder is moved to its destination. Before that no picture counts as done; if the page cannot be written, none does.
// The `site` of the action says how the page is made: folder(services, place), finish(folder, pictures, settings,
// services, language), page: the name of its file.

import { files } from "quorlin/files";
import { program } from "quorlin/program";
import { runRecords } from "quorlin/records";
import { joinPath } from "../../lib/names.js";
import { fill } from "../../lib/wording.js";
import { askForRoom } from "../making/full-disk.js";
import { forgetUnfinished, noteUnfinished } from "../making/unfinished.js";
import { RecipeRun } from "../recipes/recipe-run.js";
import { logRow } from "../report.js";
import { movedTo, picturesOf } from "./site-files.js";
import { parentOf } from "./site-place.js";

export class SiteRun extends RecipeRun {
    reset(ids) {
        super.reset(ids);
        this.folder = null;
        this.made = []; // what the batch says about each picture, until the page exists
        this.isSettled = true;
        this.pagePath = "";
        this.page = { status: "OK", reason: "" };
    }

    // A page is planned as a whole, and its folder is moved into place at the end.
    canGrow() {
        return false;
    }

    // The next start removes the unfinished folder, and with it everything made so far.
    * recorded(services) {
        yield* this.makeAll(services);
    }

    folders() {
        return this.pagePath === "" ? [] : [this.pagePath];
    }

    // Failed pictures can only be added to the page together with all the others.
    failedIds() {
        return [];
    }

    begin(wanted) {
        const window = this.window;
        const step = window.action.step;
        this.place = { parent: parentOf(window.settings, window.pictures.tickedPaths()),
                       name: step.folderNameOf(window.settings), ifTaken: window.settings.ifTaken };
        const folder = window.settings.simulation ? null : window.action.site.folder(window.services, this.place);
        const problem = folder === null ? "" : this.open(folder);
        this.opened = problem === "" ? folder : null;
        if (problem === "") {
            super.begin(wanted);
            return;
        }
        folder.close();
        forgetUnfinished(this.note, runRecords);
        this.startPlanning(wanted);
        this.finish(problem);
    }

    open(folder) {
        this.note = noteUnfinished(this.place.parent, runRecords, files);
        return folder.open();
    }

    startPlanning(ids) {
        super.startPlanning(ids);
        this.folder = this.opened;
        this.isSettled = this.folder === null;
    }

    // The recipe that the settings imply; names are those of a new folder.
    planned(settings) {
        const step = this.window.action.step;
        const below = this.folder === null ? "new" : this.folder.pictures;
        return { text: JSON.stringify(step.recipeOf(settings, below)), folder: "/", keepSubfolders: false,
                 base: this.folder === null ? joinPath(this.place.parent, this.place.name) : this.folder.folder };
    }

    planEnded(how, value) {
        if (how !== "done") {
            this.closeFolder();
        }
        super.planEnded(how, value);
    }

    askAboutRoom() {
        this.roomAnswered(askForRoom(this.place.parent, "", false));
    }

    takeResult(index, result) {
        if (this.isSettled) {
            super.takeResult(index, result);
            return;
        }
        this.made[index] = result;
        this.countOne(this.items[index]);
        const isMade = (result.outputs || []).some((output) => output.status === "OK");
        this.window.pictures.setStatus(this.ids[index], isMade ? "waiting" : "bad",
                                       isMade ? qsTr("done, waiting for the page") : qsTr("not on the page"), "");
    }

    * ending(how, value) {
        if (this.folder !== null) {
            const isStopped = how !== "done" || (this.flow !== null && this.flow.isStopping);
            const made = isStopped ? { problem: how === "failed" ? String(value) : "", path: "" }
                                   : yield* this.finishPage();
            const isCancelled = isStopped && how !== "failed";
            yield* this.settle(made, isCancelled);
            this.closeFolder();
        }
        const text = yield* super.ending(how, value);
        return text;
    }

    * finishPage() {
        const made = this.made.map((result) => result.outputs);
        const pictures = picturesOf(this.items, made, this.folder.folder);
        if (pictures.length === 0) {
            return { problem: qsTr("no picture could be processed"), path: "" };
        }
        const window = this.window;
        const ended =
            yield* window.action.site.finish(this.folder, pictures, this.settings, window.services, program.language);
        return ended;
    }

    // Now the outcome of each is known.
    * settle(page, isCancelled) {
        this.isSettled = true;
        this.pagePath = page.path;
        for (let i = 0; i < this.made.length; i += 1) {
            const result = this.made[i];
            if (result !== undefined) {
                super.takeResult(i, this.settled(result, page, isCancelled));
                yield i;
            }
        }
        const unmade = isCancelled ? "Skipped" : "Failed";
        this.page = { status: page.path === "" ? unmade : "OK",
                      reason: isCancelled ? qsTr("cancelled, the page was not made") : page.problem };
    }

    settled(result, page, isCancelled) {
        const outputs = result.outputs === undefined ? [] : result.outputs;
        if (page.path !== "") {
            return Object.assign({}, result, { outputs: movedTo(outputs, this.folder.folder, page.path) });
        }
        const undone = { status: isCancelled ? "Skipped" : "Failed", path: "",
                         reason: isCancelled ? qsTr("cancelled, the page was not made")
                                             : fill(qsTr("the page was not made: %1"), page.problem) };
        return Object.assign({}, result, {
            outputs: outputs.map((output) => (output.status === "OK" ? Object.assign({}, output, undone) : output)),
        });
    }

    // One more line for the page itself.
    logRows() {
        const name = this.window.action.site.page;
        const path = this.pagePath === "" ? "" : joinPath(this.pagePath, name);
        const final = { status: this.page.status, reason: this.page.reason, photo: { name: "", path: "" },
                        name: path === "" ? "" : name, path: path,
                        bytes: path === "" ? 0 : Math.max(0, files.info(path).bytes) };
        const action = this.window.action;
        return super.logRows().concat([logRow(final, action.title(), action.step.describe(this.settings),
                                              new Date().toISOString())]);
    }

    closeFolder() {
        if (this.folder !== null) {
            this.folder.close();
            forgetUnfinished(this.note, runRecords);
            this.folder = null;
        }
    }

    summaryText(how) {
        if (this.page.status === "Failed") {
            return fill(qsTr("The page was not made: %1"), this.page.reason);
        }
        return super.summaryText(how);
    }
}
