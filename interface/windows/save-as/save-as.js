// Saves the current picture under another name, type and quality, through a panel with a view of what comes out.

import { cToolBox } from "quorlin";
import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { splitPath } from "../../lib/names.js";
import { keep, recall } from "../../lib/store.js";
import { CONVERSION_QUALITIES } from "../../lib/types.js";
import { isTarget, KEYWORDS, targetNamed, targetText } from "../../actions/convert/targets.js";
import { fill } from "../../lib/wording.js";

const KEY = "SaveAs";
// The panel writes the title itself as the type and as the extension, so it is no word that is translated.
const BEST = "9";

export class SaveAs {
    /** @param window  the main window's parts: pictures, note(text), reloadPreview() */
    constructor(window) {
        this.window = window;
        this.form = shell.loadForm("windows/save-as/save-as.ui");
        this.photo = null;
        this.box = new cToolBox();
        this.fillMenus();
        this.connect();
    }

    fillMenus() {
        this.form.setItems("pubFileType", KEYWORDS, KEYWORDS);
        this.form.setItems("pubJPEGcompression", CONVERSION_QUALITIES, CONVERSION_QUALITIES);
        const kept = recall(defaults, KEY, { type: "jpeg", quality: "8" });
        this.form.chooseValue("pubFileType", isTarget(kept.type) ? kept.type : "jpeg");
        this.form.chooseValue("pubJPEGcompression",
                              CONVERSION_QUALITIES.indexOf(kept.quality) >= 0 ? kept.quality : BEST);
        this.box.pubFileType = this.form.control("pubFileType");
        this.box.pubJPEGcompression = this.form.control("pubJPEGcompression");
        this.box.wwFormats = this.form.control("wwFormats");
    }

    connect() {
        this.view = this.form.control("saveAsPreview");
        this.view.setTitles(qsTr("Original"), qsTr("Saved"));
        this.form.control("pubFileType").activated.connect(guard("pubFileType", () => {
            this.box.hChooseFileType(null);
            this.show();
        }));
        this.form.control("pubJPEGcompression").activated.connect(guard("pubJPEGcompression", () => {
            this.box.hChooseCompType(null);
            this.show();
        }));
        this.view.resultEstimated.connect(guard("saveAs.estimate", (bytes) => this.showSize(bytes)));
    }

    target() {
        return targetNamed(this.form.value("pubFileType"));
    }

    /** Asks where to save the current picture, and as what, and saves it. */
    open() {
        const id = this.window.pictures.currentId;
        this.photo = id > 0 ? this.window.pictures.photo(id) : null;
        if (this.photo === null || !this.photo.width) {
            this.window.say(qsTr("Choose a picture to save"));
            return;
        }
        this.view.showPicture(this.photo.path);
        this.box.hChooseFileType(null);
        this.show();
        const saved = this.box.hSaveDialogFile(this.photo.path);
        this.view.showPicture("");
        if (saved !== null) {
            keep(defaults, KEY,
                 { type: this.form.value("pubFileType"), quality: this.form.value("pubJPEGcompression") });
            this.tell(decodeURIComponent(saved[0].replace(/^file:\/\//, "")));
        }
    }

    show() {
        const target = this.target();
        const isPlainPage = target.keyword === "pdf" && this.photo.type === "JPEG"
            && (this.photo.orientation || 1) === 1;
        this.knownBytes = isPlainPage ? this.photo.bytes : -1;
        this.form.control("saveAsNote").text = targetText(target.keyword);
        this.view.showResult({ edits: target.alpha ? [] : [{ do: "flatten" }], width: this.photo.width,
                               height: this.photo.height,
                               type: target.id, quality: target.quality
                                   ? String(this.form.value("pubJPEGcompression")) : "", message: "" });
        this.showSize(this.view.estimatedBytes);
    }

    showSize(estimated) {
        const target = this.target();
        const bytes = this.knownBytes >= 0 ? this.knownBytes : estimated;
        const size = bytes >= 0 ? files.byteText(bytes) : "";
        this.form.control("saveAsSize").text = size;
        this.view.setCaptions([this.photo.type, files.byteText(this.photo.bytes)].join(" · "),
                              [target.word].concat(size ? [size] : []).join(" · "));
    }

    // The service answers the same whatever becomes of the file: only the file itself tells.
    tell(path) {
        const written = files.info(path).exists ? files.picture(path) : { width: 0, type: "", bytes: 0 };
        if (written.width > 0 && written.type === this.target().word) {
            this.window.say(fill(qsTr("Saved %1, %2"), splitPath(path).name, files.byteText(written.bytes)));
            if (path === this.photo.path) {
                this.window.reloadPreview();
            }
            return;
        }
        shell.ask({ title: qsTr("Not saved"), text: fill(qsTr("“%1” could not be written."), splitPath(path).name),
                    detail: fill(qsTr("The folder may be locked, the disk full, or “%1” damaged."), this.photo.name),
                    buttons: [qsTr("Close")], initial: 0, escape: 0, check: "" });
    }
}
