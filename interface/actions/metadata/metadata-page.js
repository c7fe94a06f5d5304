// Metadata: the properties of one picture as a tree, its user comment, and the comments of many pictures: those of the list,
// chosen files, or a folder.

import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { tokens } from "quorlin/tokens";
import { commentExample, commentMaker, commentProblem, commentsOf, pagesAtStake, reverting,
         writing } from "../../runs/comment-run.js";
import { guard } from "../../lib/guard.js";
import { keep, recall } from "../../lib/store.js";
import { COMMENT_INPUT } from "../../lib/types.js";
import { fill, fillNumbers } from "../../lib/wording.js";
import { CommentJob, commentsReverted, commentSummary, commentsWritten } from "../../runs/comment-job.js";
import { askAboutTyped, mayWrite } from "./comment-questions.js";

const KEPT = "Comments";
const ONE = 0;
const MANY = 1;
// So many pictures fit beside one another.
const MOST_TOGETHER = 4;

export class MetadataPage {
    /** @param window  the main window's parts: form, pictures, input, pages, note(text) */
    constructor(window) {
        this.window = window;
        this.list = window.pictures;
        this.comments = commentsOf(files);
        this.job = new CommentJob();
        this.shown = false;
        // What was read from the shown picture, to tell whether the field was changed.
        this.read = "";
        this.id = 0;
        this.path = "";
        this.together = [];
        this.holds = false;
        this.moved = shell.timer(guard("metadata.moved", () => this.goOn()));
        // The edits of the last run, which can be reverted.
        this.edits = [];
        // The field shows the comment of one picture, or the text to be written into many.
        this.scope = ONE;
        this.wanted = ONE;
        this.texts = ["", recall(defaults, KEPT, { text: "" }).text ];
        this.form = shell.loadForm("actions/metadata/metadata-page.ui");
        this.tree = this.form.control("metaTree");
        this.view = this.form.control("metaView");
        this.view.showsResult = false;
        this.form.control("metaScope").segments = [qsTr("This Picture"), qsTr("Many Pictures")];
        this.connect();
        this.connectTokens();
    }

    connect() {
        const join = (signal, name, handler) => signal.connect(guard("metadata." + name, handler));
        const control = (name) => this.form.control(name);
        const clicks = {
            metaAddPictures: () => this.window.input.addPictures(), metaAddFolder: () => this.window.input.addFolder(),
            metaApply: () => this.apply(), metaFields: () => this.window.forPanes().showAction("fields"),
            metaApplyAll: () => this.writeInto(this.list.tickedPaths()), metaChooseFiles: () => this.writeIntoFiles(),
            metaChooseFolder: () => this.writeIntoFolder(), metaRevert: () => this.revert(),
            metaStop: () => this.job.cancel(), metaLog: () => this.showLog(),
        };
        Object.keys(clicks).forEach((name) => join(control(name).clicked, name, clicks[name]));
        join(control("metaSearch").textChanged, "search", () => this.look());
        join(control("metaComment").textChanged, "comment", () => this.showButtons());
        join(control("metaScope").chosen, "scope", (scope) => this.takeScope(scope));
        join(this.view.largePreviewRequested, "large", () => this.window.form.control("largeAction").trigger());
        join(control("metaFind").triggered, "find", () => this.find());
        join(control("metaCancel").triggered, "stop", () => this.job.cancel());
        join(control("metaApplyNext").triggered, "applyNext", () => this.applyAndStep());
        join(this.list.currentPictureChanged, "current", () => this.currentMoved());
    }

    connectTokens() {
        const control = (name) => this.form.control(name);
        const offered = [];
        tokens.offered().forEach((token) => token.forms.forEach((form) => {
            offered.push({ title: token.words + (form === "" ? "" : "  " + form),
                           text: "{" + token.name + (form === "" ? "" : ":" + form) + "}", example: token.example });
        }));
        const menu = control("metaTokenMenu");
        menu.setPlaceholder(qsTr("Search values"));
        menu.setEntries(offered.map((each) => each.title), offered.map((each) => each.text),
                        offered.map((each) => each.example), offered.map((each) => each.text));
        menu.chosen.connect(guard("metadata.token", (text) => {
            control("metaComment").insertPlainText(text);
            control("metaComment").setFocus();
        }));
        control("metaToken").clicked.connect(guard("metadata.tokens", () => menu.popUp(control("metaToken"))));
    }

    show() {
        this.shown = true;
        this.path = "";
        this.showCurrent();
    }

    leave() {
        this.keepText();
        this.shown = false;
    }

    mayLeave() {
        if (this.job.running) {
            this.window.sayBeside(qsTr("Comments are being written. Cancel this first, or wait."));
        }
        this.keepText();
        return !this.job.running && this.settle();
    }

    listChanged() {
        this.currentMoved();
    }

    // A question cannot be asked in the middle of what moved the list, such as a mouse press.
    currentMoved() {
        if (this.shown && this.isUnwritten() && this.list.currentId !== this.id) {
            this.moved.start(0);
        } else {
            this.showCurrent();
        }
    }

    goOn() {
        if (this.shown && (this.list.currentId === this.id || this.settle())) {
            this.showCurrent();
        } else if (this.shown) {
            this.list.selectId(this.id);
            this.form.control("metaComment").setFocus();
        }
    }

    find() {
        this.form.control("metaSearch").setFocus();
        this.form.control("metaSearch").selectAll();
    }

    showLog() {
        this.window.form.control("sideBar").currentAction = "log";
        if (this.window.pageHost.shown !== null && this.window.pageHost.shown.showComments !== undefined) {
            this.window.pageHost.shown.showComments();
        }
    }

    showCurrent() {
        if (this.shown) {
            this.showPhoto(this.list.currentId > 0 ? this.list.photo(this.list.currentId) : null);
        }
    }

    showPhoto(photo) {
        this.form.control("metaPage").currentIndex = photo === null ? 0 : 1;
        if (photo === null) {
            this.showNone();
        } else if (photo.path !== this.path) {
            this.showPicture(photo);
        }
        this.useScope(photo === null ? MANY : this.wanted);
    }

    showNone() {
        this.id = 0;
        this.path = "";
        this.read = "";
        this.texts[ONE] = "";
    }

    // A comment typed for the picture is kept when its file is read again.
    showPicture(photo) {
        const control = (name) => this.form.control(name);
        const typed = photo.id === this.id && this.isUnwritten() ? this.typedText() : null;
        this.id = photo.id;
        this.path = photo.path;
        this.together = this.chosenTogether(photo);
        const isPicture = this.tree.showFiles(this.together);
        const found = files.readComment(photo.path);
        this.read = found.comment;
        this.holds = found.problem === "" && files.holdsComment(photo.path);
        this.view.showPicture(photo.path);
        this.view.setTitles("", "");
        this.view.setCaptions("", "");
        this.showText(typed === null ? this.read : typed);
        control("metaName").text = photo.name;
        control("metaName").toolTip = photo.path;
        control("metaProblem").text = isPicture ? found.problem : qsTr("This file is not a picture that can be read.");
        control("metaProblem").visible = !isPicture || found.problem !== "";
        this.showCopyMenu();
    }

    // The pictures selected in the list, if they are few: they are shown beside one another, the current one first.
    chosenTogether(photo) {
        const ids = this.list.selectedIds();
        const others = ids.length <= MOST_TOGETHER && ids.indexOf(photo.id) >= 0
            ? ids.filter((id) => id !== photo.id) : [];
        return [photo.path].concat(others.map((id) => this.list.photo(id).path));
    }

    showText(text) {
        this.texts[ONE] = text;
        if (this.scope === ONE && this.text() !== text) {
            this.form.control("metaComment").plainText = text;
        }
    }

    showCopyMenu() {
        const texts = [qsTr("Copy Value or Branch"), "-", qsTr("Copy Location in Degrees, 48.85840, 2.29450"),
                       qsTr("Copy Location in Minutes, 48° 51′ 30″ N")];
        const place = this.tree.hasPlace;
        this.form.setMenu("metaCopy", texts, ["", null, place ? "degrees" : null, place ? "minutes" : null],
                          guard("metadata.copy", (form) => (form === "" ? this.copy() : this.copyPlace(form))));
    }

    takeScope(scope) {
        this.wanted = scope;
        this.useScope(scope);
        this.form.control("metaComment").setFocus();
    }

    // What was typed for the other scope is kept.
    useScope(scope) {
        if (scope !== this.scope) {
            this.texts[this.scope] = this.text();
            this.scope = scope;
            this.form.control("metaComment").plainText = this.texts[scope];
        }
        this.form.control("metaScope").selectedSegment = scope;
        this.showButtons();
    }

    keepText() {
        this.texts[this.scope] = this.text();
        keep(defaults, KEPT, { text: this.texts[MANY] });
    }

    look() {
        this.tree.look(this.form.control("metaSearch").text);
        this.showButtons();
    }

    copy() {
        const lines = this.tree.copyChosen();
        this.window.sayBeside(lines > 0
                         ? qsTr("%n lines copied", "", lines)
                         : qsTr("Select a property to copy first."));
    }

    copyPlace(form) {
        this.window.sayBeside(fill(qsTr("Copied: %1"), this.tree.copyPlace(form)));
    }

    text() {
        return this.form.control("metaComment").plainText;
    }

    // The comment of the one picture, as it is or would be.
    typedText() {
        return this.scope === ONE ? this.text() : this.texts[ONE];
    }

    isUnwritten() {
        return this.id > 0 && this.holds && this.typedText() !== this.read;
    }

    // Asks what to do with a typed comment that is not in its file; false if the picture is to stay.
    settle() {
        if (!this.isUnwritten()) {
            return true;
        }
        const canStay = this.list.photo(this.id) !== null;
        const answer = askAboutTyped(this.path, canStay);
        if (answer === "write") {
            return this.applyOne() || !canStay;
        }
        if (answer === "discard") {
            this.showText(this.read);
        }
        return answer === "discard";
    }

    // The line under the field while nothing runs.
    note(problem) {
        if (this.scope === ONE) {
            return this.holds ? "" : qsTr("Files of this type cannot hold a comment.");
        }
        if (problem !== "" || this.text() === "") {
            return problem || qsTr("Tokens such as {name}, {date} and {counter} are filled in for each picture. To write a brace, type {{.");
        }
        const example = commentExample(this.text(), this.path, files);
        return fill(qsTr("For example %1: “%2”"), example.name, example.comment.replace(/\s+/g, " "));
    }

    showButtons() {
        const control = (name) => this.form.control(name);
        const busy = this.job.running;
        const isOne = this.scope === ONE;
        const problem = isOne ? "" : commentProblem(this.text());
        this.showPlace();
        if (!busy) {
            control("metaNote").text = this.note(problem);
        }
        const holds = !isOne || this.holds;
        control("metaComment").readOnly = busy || !holds;
        this.form.setLook("metaComment", "holds", String(holds));
        control("metaToken").visible = !isOne;
        control("metaScope").enabled = !busy && this.path !== "";
        this.showWriting(!isOne && !busy, problem === "");
        this.showApply(isOne && !busy);
        this.showRevert(!busy);
        control("metaLog").enabled = !busy;
        for (const name of ["metaStop", "metaProgress"]) {
            control(name).visible = busy;
        }
        control("metaCancel").enabled = busy;
    }

    // Which picture it is, and how many of its properties are shown.
    showPlace() {
        this.form.control("metaPlace").text = fillNumbers(qsTr("%1 of %2"), this.list.currentPlace, this.list.count);
        const found = qsTr("%n properties", "", this.tree.shownCount);
        const differ = this.together.length > 1
            ? fill(qsTr("%n pictures, differences: %1", "", this.together.length), this.tree.differenceCount()) : "";
        this.form.control("metaFound").text = this.form.control("metaSearch").text.trim() === "" ? differ : found;
    }

    showApply(on) {
        this.form.control("metaApply").visible = on;
        this.form.control("metaApply").enabled = this.path !== "" && this.holds && this.text() !== this.read;
    }

    showRevert(on) {
        const many = this.edits.length;
        this.form.control("metaRevert").visible = on;
        this.form.control("metaRevert").enabled = many > 0;
        this.form.control("metaRevert").text = qsTr("Revert %n", "", Math.max(1, many));
    }

    // The controls that write into several pictures.
    showWriting(on, enabled) {
        const pictures = this.list.tickedCount;
        for (const name of ["metaApplyAll", "metaChooseFiles", "metaChooseFolder"]) {
            this.form.control(name).visible = on;
            this.form.control(name).enabled = enabled;
        }
        this.form.control("metaApplyAll").visible = on && pictures > 0;
        this.form.control("metaApplyAll").text = qsTr("Write into All %n…", "", pictures);
    }

    // First finds out what would be lost.
    write(paths, comment, maker) {
        this.job.look((comments) => {
            const looking = pagesAtStake(comments, paths);
            return looking;
        }, (looked) => this.showLooking(looked, paths.length), (lost) => {
            this.showProgress(0, 0, paths.length);
            this.showButtons();
            const answer = lost === null ? { goesOn: false, pagesMayGo: false } : mayWrite(paths, comment, lost);
            if (answer.goesOn) {
                this.run(paths, (comments) => {
                    const work = writing(comments, paths, maker, answer.pagesMayGo);
                    return work;
                }, qsTr("Write comment"), commentsWritten);
            }
        });
        this.showButtons();
        this.showLooking(0, paths.length);
    }

    // Nothing is written yet.
    showLooking(looked, of) {
        this.form.control("metaProgress").maximum = 0;
        this.form.control("metaNote").text = fillNumbers(qsTr("%1 of %2"), looked, of);
    }

    showProgress(tried, done, of) {
        this.form.control("metaProgress").maximum = of;
        this.form.control("metaProgress").value = done;
        this.form.control("metaNote").text = fillNumbers(qsTr("%1 of %2"), tried, of);
    }

    // What one file would lose, at once.
    pagesOf(path) {
        const looking = pagesAtStake(this.comments, [path]);
        let step = looking.next();
        while (!step.done) {
            step = looking.next();
        }
        return step.value;
    }

    // One picture that loses nothing is written without a question. False if it was not written.
    applyOne() {
        const paths = [this.path];
        const comment = this.typedText();
        const lost = this.pagesOf(this.path);
        const answer = lost.files === 0 ? { goesOn: true, pagesMayGo: false } : mayWrite(paths, comment, lost);
        if (!answer.goesOn) {
            return false;
        }
        const work = this.job.carryOut(writing(this.comments, paths, () => comment, answer.pagesMayGo),
                                       qsTr("Write comment"));
        this.edits = work.edits;
        this.read = work.done > 0 ? comment : this.read;
        this.window.sayBeside(commentSummary(work, commentsWritten(work.done)));
        return work.done > 0;
    }

    apply() {
        this.applyOne();
        this.path = "";
        this.showCurrent();
        this.form.control("metaComment").setFocus();
    }

    // Moves from picture to picture without leaving the field.
    applyAndStep() {
        if (this.job.running || this.scope !== ONE || this.id <= 0) {
            return;
        }
        if (this.isUnwritten()) {
            this.apply();
        }
        if (!this.isUnwritten()) {
            this.list.step(1);
        }
        this.form.control("metaComment").setFocus();
    }

    writeInto(paths) {
        if (paths.length > 0) {
            this.write(paths, this.text(), commentMaker(this.text(), files));
        }
    }

    writeIntoFiles() {
        this.writeInto(shell.chooseFiles(qsTr("Write the comment into pictures"), "", COMMENT_INPUT));
    }

    writeIntoFolder() {
        const folder = shell.chooseFolder(qsTr("Write the comment into all pictures of a folder"), "");
        if (folder !== null) {
            this.writeInto(files.collect([folder], COMMENT_INPUT, [], []).paths);
        }
    }

    revert() {
        const edits = this.edits;
        this.run(edits, (comments) => {
            const work = reverting(comments, edits);
            return work;
        }, qsTr("Revert comment"), commentsReverted);
    }

    // The bar advances with each picture that has its comment.
    run(items, make, action, words) {
        const isRevert = words === commentsReverted;
        this.showProgress(0, 0, items.length);
        this.job.start(make, action, (work) => {
            this.showProgress(work.tried, work.done, items.length);
        }, (work) => this.ended(work, words(work.done), isRevert));
        this.showButtons();
    }

    ended(work, done, isRevert) {
        this.form.control("metaProgress").value = 0;
        this.edits = isRevert ? [] : work.edits;
        this.path = "";
        this.showCurrent();
        this.window.sayBeside(commentSummary(work, done));
    }
}
