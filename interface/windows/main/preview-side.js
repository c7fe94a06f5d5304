// The preview of the current picture and what the settings make of it. Services used: files (profileName, byteText).

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { ORIGINAL, resultType } from "../../lib/types.js";
import { splitPath } from "../../lib/names.js";
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

function resultCaption(photo, planned, output) {
    if (planned === null || planned.status !== "ready") {
        return "";
    }
    const type = resultType(splitPath(photo.path).extension, output.fileType || ORIGINAL);
    const parts = [pixelsText(planned), type.word];
    if (type.quality) {
        parts.push(fill(qsTr("quality %1"), output.quality));
    }
    return parts.join(" · ");
}

export class PreviewSide {
    /** @param window  the main window's parts: form, pictures, settings */
    constructor(window) {
        this.window = window;
        this.view = window.form.control("preview");
        this.large = shell.largePreview(window.form);
        this.shownPath = "";
        this.caption = "";
        this.view.setTitles(qsTr("Original"), qsTr("Result"));
        this.large.accessibleName = qsTr("Large preview");
    }

    /** Shows a picture (or null) and what is planned for it (or null). */
    show(photo, planned) {
        this.showOriginal(photo);
        const output = this.window.settings.output;
        this.view.setCaptions(this.caption, photo === null ? "" : resultCaption(photo, planned, output));
        if (planned !== null && planned.status === "ready") {
            const part = planned.part;
            this.view.showResult(part.left, part.top, part.width, part.height, planned.width, planned.height, "");
        } else {
            this.view.showResult(0, 0, 1, 1, 0, 0, planned === null ? "" : planned.reason);
        }
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

    closeLarge() {
        this.large.hide();
        this.window.pictures.setFocus();
    }

    toggleLarge() {
        if (this.large.visible) {
            this.closeLarge();
        } else {
            this.showLarge();
        }
    }
}
