// Saves the current picture under another name, type and quality, through a panel with a preview of the result. A
// worker makes the file, as in a run of Convert.

import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import * as convert from "../../actions/convert/convert-step.js";
import { KEYWORDS, isTarget, qualityText, targetNamed, targetText } from "../../actions/convert/targets.js";
import { copyOf } from "../../lib/copies.js";
import { guard } from "../../lib/guard.js";
import { splitPath } from "../../lib/names.js";
import { keep, recall } from "../../lib/store.js";
import { CONVERSION_QUALITIES } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { Flow } from "../../runs/making/flow.js";
import { Replacing } from "../../runs/making/replacing.js";
import { runByWorkers } from "../../runs/making/worker-job.js";

const KEY = "SaveAs";
const USUAL = { type: convert.defaults.target, quality: convert.defaults.quality, folder: "" };
// The system version, in the services' form, whose panels ask for tags.
const WITH_TAGS = "109+";

export class SaveAs {
    /** @param window  the main window's parts: pictures, services, history, say(text), reloadPreview() */
    constructor(window) {
        this.window = window;
        this.form = shell.loadForm("windows/save-as/save-as.ui");
        this.panel = shell.saveChoice();
        this.job = shell.job();
        this.photo = null;
        this.kept = recall(defaults, KEY, USUAL);
        this.fillMenus();
        this.connect();
    }

    fillMenus() {
        this.form.setItems("pubFileType", KEYWORDS.map((keyword) => targetNamed(keyword).word), KEYWORDS);
        this.form.setItems("pubJPEGcompression", CONVERSION_QUALITIES.map(qualityText), CONVERSION_QUALITIES);
        this.form.chooseValue("pubFileType", isTarget(this.kept.type) ? this.kept.type : USUAL.type);
        this.form.chooseValue("pubJPEGcompression",
                              CONVERSION_QUALITIES.indexOf(this.kept.quality) >= 0 ? this.kept.quality : USUAL.quality);
    }

    connect() {
        this.view = this.form.control("saveAsPreview");
        this.view.setTitles(qsTr("Original"), qsTr("Saved"));
        this.form.control("pubFileType").activated.connect(guard("pubFileType", () => {
            this.panel.setExtension(this.settings().target);
            this.show();
        }));
        this.form.control("pubJPEGcompression").activated.connect(guard("pubJPEGcompression", () => this.show()));
        this.view.resultEstimated.connect(guard("saveAs.estimate", (bytes) => this.showSize(bytes)));
    }

    /** The choice, as settings of Convert. */
    settings() {
        return Object.assign(copyOf(convert.defaults), { target: this.form.value("pubFileType"),
                                                         quality: this.form.value("pubJPEGcompression") });
    }

    /** Whether a picture is being saved. */
    isBusy() {
        return this.job.running;
    }

    /** Abandons that. */
    abandon() {
        this.job.cancel();
    }

    /** Asks where to save the current picture, and as what, and saves it. */
    open() {
        const id = this.window.pictures.currentId;
        this.photo = id > 0 ? this.window.pictures.photo(id) : null;
        if (this.photo === null || !this.photo.width || this.isBusy()) {
            this.window.say(this.isBusy() ? qsTr("Wait until the picture has been saved.")
                                          : qsTr("Choose a picture to save."));
            return;
        }
        this.view.showPicture(this.photo.path);
        this.show();
        const chosen = this.panel.choose(this.form, splitPath(this.photo.path).base, this.kept.folder,
                                         this.settings().target, defaults.get("MOS") === WITH_TAGS);
        this.view.showPicture("");
        if (chosen !== null) {
            this.save(chosen);
        }
    }

    show() {
        const settings = this.settings();
        const target = targetNamed(settings.target);
        this.form.control("pubJPEGcompression").enabled = target.quality;
        this.form.control("saveAsNote").text = targetText(settings.target);
        const planned = convert.plan(this.photo, settings, this.window.services);
        const isReady = planned.status === "ready";
        this.view.setNotes(isReady ? planned.losses.join(" · ") : "");
        this.view.showResult(isReady
            ? Object.assign({ message: "" }, convert.preview(this.photo, settings, planned))
            : { edits: [], width: 0, height: 0, type: "", quality: "", message: planned.reason });
        this.showSize(this.view.estimatedBytes);
    }

    showSize(bytes) {
        const size = bytes >= 0 ? files.byteText(bytes) : "";
        this.form.control("saveAsSize").text = size;
        this.view.setCaptions([this.photo.type, files.byteText(this.photo.bytes)].join(" · "),
                              [targetNamed(this.settings().target).word].concat(size ? [size] : []).join(" · "));
    }

    // One picture, in the form of a run. The file that the panel asked about may be replaced, but nothing that appeared
    // there since.
    itemFor(path) {
        const place = splitPath(path);
        const replaced = files.identity(path);
        return { photo: this.photo, status: "ready", reason: "", folder: place.folder, name: place.name, path: path,
                 width: this.photo.width, height: this.photo.height, replaces: replaced !== "", replaced: replaced,
                 replacesOriginal: replaced !== "" && replaced === files.identity(this.photo.path),
                 isNoted: false }; // the user saving it there may well add that folder
    }

    save(chosen) {
        const settings = this.settings();
        this.kept = { type: settings.target, quality: settings.quality, folder: splitPath(chosen.path).folder };
        keep(defaults, KEY, this.kept);
        const item = this.itemFor(chosen.path);
        const replacing = new Replacing(this.window.services, qsTr("Save Picture As"));
        const flow = new Flow(() => this.job.wake());
        const work = runByWorkers([item], convert, settings,
                                  Object.assign({}, this.window.services, { replacing: replacing }), flow);
        let result = null;
        this.window.say(fill(qsTr("Saving %1…"), item.name));
        this.job.start(work, guard("saveAs.step", (event) => {
            if (event.kind === "full") {
                flow.stop(); // reported like any other reason
            }
            result = event.kind === "end" ? event.result : result;
        }), guard("saveAs.end", (how, problem) => {
            const unended = replacing.end();
            this.window.history.lookForRun();
            if (how === "cancelled") {
                return;
            }
            this.tell(item, result || { status: "Failed", reason: String(problem) }, chosen.tags, unended);
        }));
    }

    tell(item, result, tags, problem) {
        if (result.status !== "OK") {
            shell.ask({ title: qsTr("Not saved"), text: fill(qsTr("“%1” could not be written."), item.name),
                        detail: result.reason, buttons: [qsTr("Close")], initial: 0, escape: 0, check: "" });
            return;
        }
        if (tags.length > 0) {
            this.panel.tag(result.path, tags);
        }
        const saved = fill(qsTr("Saved %1, %2"), result.name, files.byteText(result.bytes));
        this.window.say([saved].concat(problem ? [problem] : []).join(" · "));
        if (item.replacesOriginal) {
            this.window.reloadPreview();
        }
    }
}
