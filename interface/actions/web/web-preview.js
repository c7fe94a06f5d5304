// The preview of a page in the browser: its first pictures, made in a temporary folder that is removed when the program
// ends. Services used: shell, recipes (the batch), what pages are made with.

import { program } from "quorlin/program";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { joinPath } from "../../lib/names.js";
import { Flow } from "../../runs/making/flow.js";
import { makeByWorkers } from "../../runs/recipes/recipe-making.js";
import { batchOf, itemOf } from "../../runs/recipes/recipe-plan.js";
import { picturesOf } from "../../runs/site/site-files.js";
import { PAGE, PageFolder } from "./web-folder.js";
import { finishPage } from "./web-making.js";
import * as step from "./web-step.js";

const MOST = 12;

export class WebPreview {
    /** @param told  called with a sentence, "" for none, when a preview begins or has ended */
    constructor(services, told) {
        this.services = services;
        this.told = told;
        this.job = shell.job();
        this.isBusy = false;
        this.flow = null;
    }

    /** Makes the page of the first of these and opens it. */
    open(paths, settings) {
        if (this.isBusy || paths.length === 0) {
            return;
        }
        this.isBusy = true;
        this.told(qsTr("Making the preview…"));
        this.flow = new Flow(() => this.job.wake());
        const work = this.work(paths.slice(0, MOST), settings);
        this.job.start(work, () => undefined, guard("web.preview", (how, value) => this.ended(how, value)));
    }

    /** Cancels the preview that is being made. */
    stop() {
        this.job.cancel();
    }

    * work(paths, settings) {
        const folder = new PageFolder(this.services, { parent: shell.temporaryFolder(),
                                                       name: step.folderNameOf(settings), ifTaken: "number" });
        try {
            const refused = folder.open();
            if (refused !== "") {
                return { problem: refused, path: "" };
            }
            const pictures = yield* this.made(folder, paths, settings);
            if (pictures.length === 0) {
                return { problem: qsTr("no picture could be processed"), path: "" };
            }
            const ended = yield* finishPage(folder, pictures, settings, this.services, program.language);
            return ended;
        } finally {
            folder.close();
        }
    }

    * made(folder, paths, settings) {
        const batch = batchOf({ text: JSON.stringify(step.recipeOf(settings, folder.pictures)), folder: "/",
                                base: folder.folder, keepSubfolders: false }, paths);
        const items = [];
        for (let i = 0; i < paths.length; i += 1) {
            items.push(Object.assign(itemOf({ path: paths[i] }, batch.plan(i, "")), { number: i }));
            yield i;
        }
        const outputs = [];
        for (const event of makeByWorkers(batch, items, this.services, this.flow)) {
            if (event !== null && event.kind === "full") {
                this.flow.stop();
            } else if (event !== null && event.kind === "end") {
                outputs[event.index] = event.result.outputs;
            }
            yield event;
        }
        return picturesOf(items, outputs, folder.folder);
    }

    ended(how, value) {
        this.isBusy = false;
        const made = how === "done" ? value : { problem: String(value || ""), path: "" };
        if (made.path === "") {
            this.told(made.problem);
        } else {
            const isOpen = shell.openFile(joinPath(made.path, PAGE));
            this.told(isOpen ? "" : qsTr("The page could not be opened in a browser."));
        }
    }
}
