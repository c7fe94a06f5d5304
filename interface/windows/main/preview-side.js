// The preview of the current picture and what the settings make of it.

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { madeType } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";

function pixelsText(size) {
    return fill(qsTr("%1 × %2 px"), size.width, size.height);
}

function originalCaption(photo) {
    const parts = photo.width > 0 ? [pixelsText(photo)] : [];
    if (photo.bytes >= 0) {
        parts.push(files.byteText(photo.bytes));
    }
    parts.push(photo.type);
    const profile = photo.width > 0 ? files.profileName(photo.path) : "";
    return parts.concat(profile ? [profile] : []).join(" · ");
}

// bytes: what the file will have, -1 while that is not known.
function resultCaption(planned, shown, bytes) {
    const type = madeType(planned.type);
    const parts = [pixelsText(planned), type.word];
    if (type.hasQuality && shown.quality) {
        parts.push(fill(qsTr("quality %1"), shown.quality));
    }
    if (bytes >= 0) {
        parts.push(files.byteText(bytes));
    }
    return parts.join(" · ");
}

// No result, and why.
function nothing(message) {
    return { edits: [], width: 0, height: 0, type: "", quality: "", message: message };
}

export class PreviewSide {
    /** @param window  the main window's parts: form, pictures, settings */
    constructor(window) {
        this.window = window;
        this.view = window.form.control("preview");
        this.large = shell.largePreview(window.form);
        this.shownPath = "";
        this.from = null;
        this.caption = "";
        this.shown = null;
        this.view.setTitles(qsTr("Original"), qsTr("Result"));
        this.large.accessibleName = qsTr("Large preview");
        this.view.resultEstimated.connect(guard("estimate", (bytes) => this.showCaptions(bytes)));
        this.view.cropFrameEdited.connect(guard("frame", (x, y, width, height) => {
            if (window.pane.takeFrame !== undefined) {
                window.pane.takeFrame({ x: x, y: y, width: width, height: height });
            }
        }));
    }

    /** Shows a picture (or null) and what is planned for it (or null). */
    show(photo, planned) {
        this.showOriginal(photo);
        const ready = planned !== null && planned.status === "ready";
        const shown = ready
            ? this.window.action.step.preview(photo, this.window.settings, planned, this.window.services) : null;
        this.shown = ready ? { planned: planned, result: shown } : null;
        this.showFrame(planned);
        this.view.setNotes(ready ? planned.losses.join(" · ") : "");
        this.view.showResult(ready
                             ? Object.assign({ message: "" }, shown) : nothing(planned === null ? "" : planned.reason));
        this.showCaptions(this.view.estimatedBytes);
    }

    showCaptions(bytes) {
        const shown = this.shown;
        const known = shown === null || shown.result.bytes === undefined ? bytes : shown.result.bytes;
        this.view.setCaptions(this.caption, shown === null ? "" : resultCaption(shown.planned, shown.result, known));
    }

    // The frame of an action that has one.
    showFrame(planned) {
        const pane = this.window.pane;
        const ready = planned !== null && planned.status === "ready" && pane.frame !== undefined;
        this.view.setCropFrame(ready ? pane.frame(planned) : null);
    }

    showOriginal(photo) {
        const path = photo === null ? "" : photo.path;
        if (path === this.shownPath) {
            return;
        }
        this.shownPath = path;
        this.caption = photo === null ? "" : originalCaption(photo);
        this.view.showPicture(path);
        if (this.large.visible) {
            this.showLarge();
        }
    }

    /** Reads the current file again, because it was replaced. */
    reload() {
        this.shownPath = "";
        this.view.reload();
    }

    showLarge() {
        const id = this.window.pictures.currentId;
        const photo = id > 0 ? this.window.pictures.photo(id) : null;
        if (photo === null) {
            return;
        }
        this.large.setTitles(photo.name, "");
        this.large.setCaptions(this.caption, "");
        this.large.showPicture(photo.path);
        if (!this.large.visible) {
            shell.cover(this.large);
        }
    }

    /** Shows a file that is not in the list; `from` is the control that has the focus again afterwards. */
    showFile(path, from) {
        const photo = files.picture(path);
        this.from = from;
        this.large.setTitles(photo.name, "");
        this.large.setCaptions(originalCaption(photo), "");
        this.large.showPicture(path);
        shell.cover(this.large);
        this.window.showAll();
    }

    closeLarge() {
        this.large.visible = false;
        (this.from || this.window.pictures).setFocus();
        this.from = null;
    }

    toggleLarge() {
        if (this.large.visible) {
            this.closeLarge();
        } else {
            this.showLarge();
        }
    }
}
