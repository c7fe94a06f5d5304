// The preview of the current picture and of what the settings make of it.

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

// bytes: the expected size of the file, -1 while unknown.
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
        this.told = nothing("");
        this.view.setTitles(qsTr("Original"), qsTr("Result"));
        this.large.accessibleName = qsTr("Large preview");
        this.view.resultEstimated.connect(guard("estimate", (bytes) => this.showCaptions(bytes)));
        this.view.cropFrameEdited.connect(guard("frame", (x, y, width, height) => {
            if (window.pane.takeFrame !== undefined) {
                window.pane.takeFrame({ x: x, y: y, width: width, height: height });
            }
        }));
    }

    /** The view in use: the large one, that of a page, or the one beside the settings. */
    looked() {
        const page = this.window.pageHost === undefined ? null : this.window.pageHost.shown;
        const paged = page !== null && page.view !== undefined && page.view.zoom !== undefined ? page.view : this.view;
        return this.large.visible ? this.large : paged;
    }

    /** Each pixel of the picture is one of the screen. */
    showActual() {
        this.looked().zoom = 1;
        this.window.showZoom();
    }

    toggleActual() {
        const view = this.looked();
        view.zoom = view.zoom > 0 ? 0 : 1;
        this.window.showZoom();
    }

    /** Shows a picture (or null) and what is planned for it (or null). */
    show(photo, planned) {
        this.showOriginal(photo);
        const ready = planned !== null && planned.status === "ready";
        const shown = ready
            ? this.window.action.step.preview(photo, this.window.settings, planned, this.window.services) : null;
        this.shown = ready ? { planned: planned, result: shown } : null;
        this.showFrame(planned);
        this.view.setNotes(ready ? (planned.losses || []).join(" · ") : "");
        this.told = ready ? Object.assign({ message: "" }, shown) : nothing(planned === null ? "" : planned.reason);
        this.view.showResult(this.told);
        this.showCaptions(this.view.estimatedBytes);
        if (this.large.visible) {
            this.showLargeResult();
        }
    }

    showCaptions(bytes) {
        const shown = this.shown;
        const known = shown === null || shown.result.bytes === undefined ? bytes : shown.result.bytes;
        const caption = shown === null ? "" : resultCaption(shown.planned, shown.result, known);
        [this.view, this.large].forEach((view) => view.setCaptions(this.caption, caption));
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
        this.large.setTitles(photo.name, fill(qsTr("%1: the result. Hold F to see the original."), photo.name));
        this.large.showPicture(photo.path);
        this.showLargeResult();
        this.showCaptions(this.view.estimatedBytes);
        if (!this.large.visible) {
            shell.cover(this.large);
        }
    }

    // The result, if the picture has one; pages show pictures as they are.
    showLargeResult() {
        const hasResult = this.window.manner.preview && this.window.pageHost.shown === null && this.shown !== null;
        this.large.showsResult = hasResult;
        this.large.showResult(hasResult ? this.told : nothing(""));
        this.large.setNotes(hasResult ? (this.shown.planned.losses || []).join(" · ") : "");
    }

    /** Shows a file that is not in the list; `from` is the control that gets the focus back afterwards. */
    showFile(path, from) {
        const photo = files.picture(path);
        this.from = from;
        this.large.showsResult = false;
        this.large.setTitles(photo.name, "");
        this.large.setCaptions(originalCaption(photo), "");
        this.large.showPicture(path);
        shell.cover(this.large);
        this.window.showAll();
    }

    closeLarge() {
        this.large.visible = false;
        this.large.zoom = 0;
        this.window.showZoom();
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
