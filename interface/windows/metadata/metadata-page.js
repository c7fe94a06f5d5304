// Metadata: the properties of one picture as a tree, and the user comment of one or of all pictures of the list.
// Services used: mMeta, files, and those of lib/comment-run.

import { mMeta } from "quorlin";
import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { commentMaker, commentProblem, editRow, editsOf, takingBack, writeComment, writing } from "../../lib/comment-run.js";
import { guard } from "../../lib/guard.js";
import { keepRows, newRunName } from "../../lib/log-file.js";
import { count, fill } from "../../lib/wording.js";

const TIFF = /\.tiff?$/i;

export class MetadataPage {
    /** @param window  the main window's parts: form, pictures, input, note(text) */
    constructor(window) {
        this.window = window;
        this.list = window.pictures;
        this.meta = new mMeta();
        this.job = shell.job();
        this.shown = false;
        // What was read from the picture that is shown, to tell whether the field was changed.
        this.read = "";
        this.path = "";
        // The edits of the last run, which can be taken back.
        this.edits = [];
        this.form = shell.loadForm("windows/metadata/metadata.ui");
        this.tree = this.form.control("metaTree");
        this.view = this.form.control("metaView");
        this.view.showsResult = false;
        this.connect();
    }

    connect() {
        const join = (signal, name, deed) => signal.connect(guard("metadata." + name, deed));
        const control = (name) => this.form.control(name);
        join(control("metaAddPictures").clicked, "add", () => this.window.input.addPictures());
        join(control("metaAddFolder").clicked, "add", () => this.window.input.addFolder());
        join(control("metaSearch").textChanged, "search", () => this.look());
        join(control("metaCopy").clicked, "copy", () => this.copy());
        join(control("metaComment").textChanged, "comment", () => this.showButtons());
        join(control("metaApply").clicked, "apply", () => this.apply());
        join(control("metaApplyAll").clicked, "applyAll", () => this.applyAll());
        join(control("metaTakeBack").clicked, "takeBack", () => this.takeBack());
        join(control("metaStop").clicked, "stop", () => this.job.cancel());
        join(this.view.largePreviewRequested, "large", () => this.window.form.control("largeAction").trigger());
        join(control("metaFind").triggered, "find", () => this.find());
        join(this.list.currentPictureChanged, "current", () => this.showCurrent());
    }

    show() {
        this.shown = true;
        this.path = "";
        this.showCurrent();
    }

    leave() {
        this.shown = false;
    }

    mayLeave() {
        if (this.job.running) {
            this.window.note(qsTr("Comments are being written. Stop it first, or wait."));
        }
        return !this.job.running;
    }

    listChanged() {
        this.showCurrent();
    }

    find() {
        this.form.control("metaSearch").setFocus();
        this.form.control("metaSearch").selectAll();
    }

    showCurrent() {
        if (this.shown) {
            this.showPhoto(this.list.currentId > 0 ? this.list.photo(this.list.currentId) : null);
        }
    }

    showPhoto(photo) {
        this.form.control("metaPage").currentIndex = photo === null ? 0 : 1;
        if (photo !== null && photo.path !== this.path) {
            this.showPicture(photo);
        }
        this.showButtons();
    }

    showPicture(photo) {
        const control = (name) => this.form.control(name);
        this.path = photo.path;
        const isPicture = this.tree.showFile(photo.path);
        const comment = this.meta.hGetExifUc(photo.path);
        this.read = comment;
        this.view.showPicture(photo.path);
        this.view.setTitles("", "");
        this.view.setCaptions("", "");
        control("metaComment").plainText = comment;
        control("metaName").text = photo.name;
        control("metaName").toolTip = photo.path;
        control("metaProblem").text = isPicture ? "" : qsTr("This file is not a picture that can be read.");
        control("metaProblem").visible = !isPicture;
    }

    look() {
        this.tree.look(this.form.control("metaSearch").text);
        this.showButtons();
    }

    copy() {
        const lines = this.tree.copyChosen();
        this.window.note(lines > 0 ? count(lines, qsTr("1 line copied"), qsTr("%1 lines copied")) : qsTr("Choose a property to copy first."));
    }

    text() {
        return this.form.control("metaComment").plainText;
    }

    showButtons() {
        const control = (name) => this.form.control(name);
        const busy = this.job.running;
        const problem = commentProblem(this.text());
        const pictures = this.list.count;
        control("metaPlace").text = fill(qsTr("%1 of %2"), this.list.currentPlace, pictures);
        control("metaFound").text = control("metaSearch").text.trim() === "" ? "" : count(this.tree.shownCount, qsTr("1 property"), qsTr("%1 properties"));
        control("metaNote").text = problem || qsTr("Tokens such as {name}, {taken} and {counter} stand for what each picture has; {{ is a brace.");
        control("metaComment").readOnly = busy;
        control("metaApply").enabled = !busy && problem === "" && this.path !== "" && this.text() !== this.read;
        control("metaApplyAll").visible = pictures > 1;
        control("metaApplyAll").enabled = !busy && problem === "";
        control("metaApplyAll").text = fill(qsTr("Write into All %1…"), pictures);
        control("metaTakeBack").enabled = !busy && this.edits.length > 0;
        control("metaTakeBack").text = this.edits.length > 1 ? fill(qsTr("Take Back %1"), this.edits.length) : qsTr("Take Back");
        control("metaStop").visible = busy;
    }

    // Other pages of a TIFF file are lost; whoever writes into one must know that before.
    mayWrite(paths, comment) {
        const hasTiff = paths.some((path) => TIFF.test(path));
        if (paths.length === 1 && !hasTiff) {
            return true;
        }
        const loss = hasTiff ? qsTr("Of TIFF files with several pages only the first page is kept.") : "";
        const answer = shell.ask({
            title: qsTr("Write comment"),
            text: comment === "" ? count(paths.length, qsTr("Empty the comment of this picture?"), qsTr("Empty the comments of %1 pictures?"))
                : count(paths.length, qsTr("Write the comment into this picture?"), qsTr("Write the comment into %1 pictures?")),
            detail: [qsTr("The originals themselves are changed: their comment, and nothing else in them."), loss].filter((each) => each !== "").join(" "),
            buttons: [qsTr("Write"), qsTr("Cancel")], initial: 1, escape: 1, check: "",
        });
        return answer.button === 0;
    }

    apply() {
        const comment = commentMaker(this.text(), files)(this.path, this.list.currentPlace - 1);
        if (this.mayWrite([this.path], comment)) {
            this.ended([writeComment(this.meta, this.path, comment)], qsTr("Write comment"), "");
        }
    }

    applyAll() {
        const paths = this.list.paths();
        if (this.mayWrite(paths, this.text())) {
            this.run(writing(this.meta, paths, commentMaker(this.text(), files)), paths.length, qsTr("Write comment"));
        }
    }

    takeBack() {
        const edits = this.edits;
        this.run(takingBack(this.meta, edits), edits.length, qsTr("Take back comment"));
    }

    run(generator, number, action) {
        const results = [];
        this.job.start(generator, guard("metadata.step", (result) => {
            results.push(result);
            this.form.control("metaNote").text = fill(qsTr("%1 of %2"), results.length, number);
        }), guard("metadata.end", (how, value) => this.ended(results, action, how === "failed" ? String(value) : "")));
        this.showButtons();
    }

    ended(results, action, failure) {
        const run = newRunName();
        const date = new Date().toISOString();
        const done = results.filter((result) => result.status === "OK").length;
        const first = results.find((result) => result.status !== "OK");
        const problem = keepRows(files, results.map((result) => editRow(result, action, date, run))) || failure;
        const parts = [count(done, qsTr("1 comment written"), qsTr("%1 comments written"))];
        if (first !== undefined) {
            parts.push(count(results.length - done, qsTr("1 problem"), qsTr("%1 problems")), first.reason);
        }
        this.edits = action === qsTr("Write comment") ? editsOf(results) : [];
        this.path = "";
        this.showCurrent();
        this.window.note(parts.concat(problem ? [problem] : []).join(" · "));
    }
}
