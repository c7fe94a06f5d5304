// The main window: its parts, what of them can be used, and how an action or a page is chosen.

import { defaults } from "quorlin/defaults";
import { program } from "quorlin/program";
import { shell } from "quorlin/shell";
import { actionNamed } from "../../actions/actions.js";
import { guard } from "../../lib/guard.js";
import { commonFolder } from "../../lib/names.js";
import { keep, recall } from "../../lib/store.js";
import { fill } from "../../lib/wording.js";
import { Ratings } from "../../runs/fields/ratings.js";
import { KeptList } from "../../runs/making/kept-list.js";
import { makeServices } from "../../services.js";
import { SaveAs } from "../save-as/save-as.js";
import { ActionPage, fillSideBar, lockSideBar } from "./action-page.js";
import { Controllers } from "./controllers.js";
import { Escape } from "./escape.js";
import { Help } from "./help.js";
import { History } from "./history.js";
import { Input } from "./input.js";
import { InterruptedBar } from "./interrupted-bar.js";
import { ListEstimate } from "./list-estimate.js";
import { ListTools } from "./list-tools.js";
import { PageHost } from "./page-host.js";
import { PreviewSide } from "./preview-side.js";
import { Printing } from "./printing.js";
import { Repeating } from "./repeating.js";
import { percentDone, RunSigns } from "./run-signs.js";
import { showProgress, showStatusBar } from "./status-bar.js";
import { SupportBar } from "./support-bar.js";
import { Watching } from "./watching.js";

const SAID_MS = 8000;
// If there are more folders than these, the one that contains them all is opened.
const MOST_OPENED = 3;
// Controls that add to the list or change settings.
const ADDING = [
    "addPicturesButton", "addFolderButton", "addPicturesAction", "addFolderAction", "pasteAction", "emptyAddPictures",
    "emptyAddFolder", "emptyAddSamples",
];
const SETTINGS = ["renameAction", "headHost", "actionHost", "outputHost", "moveSimulation"];
// Controls that act on rows.
const ROWS = ["removeAction", "selectAllAction", "tickAction", "tickAllAction", "moveUpAction", "moveDownAction"];

export class MainWindow {
    constructor() {
        this.form = shell.loadForm("windows/main/main.ui");
        /** The list. */
        this.pictures = this.form.control("pictures");
        this.services = makeServices();
        this.controllers = new Controllers(this.form);
        /** The action that works on the list, its settings and its pane, or null; all three are set by ActionPage. */
        this.action = null;
        this.settings = null;
        this.pane = null;
        /** Of the manner of that action: the object that runs it and the one that shows its plan. */
        this.manner = null;
        this.run = null;
        this.livePlan = null;
        this.madeParts = [];
        this.wasBusy = null;
        /** The summary of the newest plan. */
        this.planned = {};
        /** The action whose page is shown instead of list and settings, or null. */
        this.shownPage = null;
        /** A temporary message in the status bar; "" for nothing. */
        this.said = "";
        this.saidTimer = shell.timer(guard("said", () => this.endSaying()));
        this.saving = null;
        this.drop = shell.dropTarget(this.form);
        this.drop.setMessage(qsTr("Drop to add pictures and folders"));
        this.makeParts();
    }

    // Ordered so that each finds those that it needs.
    makeParts() {
        this.escape = new Escape(this);
        this.pageHost = new PageHost(this);
        this.preview = new PreviewSide(this);
        this.help = new Help(this);
        this.printing = new Printing(this);
        this.actionPage = new ActionPage(this, () => this.settingsChanged());
        this.input = new Input(this);
        this.history = new History(this);
        this.support = new SupportBar(this);
        this.signs = new RunSigns(this);
        this.repeating = new Repeating(this);
        this.watching = new Watching(this);
        this.interrupted = new InterruptedBar(this);
        this.keptList = new KeptList(this);
        this.tools = new ListTools(this);
        this.ratings = new Ratings(this);
        this.estimate = new ListEstimate(this, () => this.showStart());
        this.shownPage = this.action.page === undefined ? null : this.action;
        this.pageHost.show(this.shownPage);
        this.support.show();
        fillSideBar(this, (name) => this.chooseAction(name));
        this.form.control("fitFill").segments = [qsTr("Fit"), qsTr("Fill"), "1:1"];
    }

    /** What a pane gets from the window: the list, the services, sayBeside(), showAction(name) and planAgain(). */
    forPanes() {
        return { list: this.pictures, services: this.services, sayBeside: (text) => this.sayBeside(text),
                 showAction: (name) => { this.form.control("sideBar").currentAction = name; },
                 planAgain: () => this.livePlan.refresh() };
    }

    /** Shows everything as stored in the settings, and the window itself. */
    open() {
        this.setFill(recall(defaults, "Preview", { fill: false }).fill);
        this.form.onClose(guard("close", () => this.mayClose()));
        this.form.setSplit("bodySplitter", [196, 884, 346]);
        this.form.setSplit("centreSplitter", [560, 560, 300]);
        this.form.setSplit("listSplitter", [600, 284]);
        this.form.remember("MainWindow");
        shell.setMainForm(this.form);
        this.showTitle();
        this.showCurrent();
        this.showAll();
    }

    /**
     * Adopts the run and the plan of a manner. Actions of one manner share them; they are created when the first of
     * these is shown.
     */
    use(manner) {
        let parts = this.madeParts.find((each) => each.manner === manner);
        if (parts === undefined) {
            parts = { manner: manner, run: null, livePlan: null };
            parts.run = manner.makeRun(this, () => this.runChanged());
            parts.run.progressed = () => this.runProgressed();
            parts.livePlan = manner.makePlan(this, (summary) => { this.planned = summary; this.showStart(); });
            this.madeParts.push(parts);
        }
        if (this.livePlan !== null) {
            this.livePlan.stop();
        }
        this.manner = manner;
        this.run = parts.run;
        this.livePlan = parts.livePlan;
        this.planned = parts.livePlan.nothing();
        this.run.look();
    }

    /** Reads the current file again, because it was replaced. */
    reloadPreview() {
        this.preview.reload();
        this.showCurrent();
    }

    endSaying() {
        this.said = "";
        showStatusBar(this);
    }

    showStart() {
        const busy = this.isBusy();
        const manner = this.manner;
        const ready = manner.isReady(this) && this.shownPage === null
            && this.action.step.validate(this.settings).length === 0;
        const control = (name) => this.form.control(name);
        const note = manner.startNote(this);
        control("startButton").text = manner.startText(this);
        control("startButton").enabled = ready && !busy;
        control("startAction").enabled = ready && !busy;
        control("startAction").text = manner.startText(this);
        this.form.setLook("startButton", "replaces", String(manner.replaces(this)));
        control("startNote").text = note;
        control("startNote").visible = note !== "";
    }

    // A page that works on the list has its settings beside it, if it has a pane.
    showCentre(any) {
        const page = this.shownPage;
        const listed = page === null;
        const control = (name) => this.form.control(name);
        control("centre").currentIndex = listed ? Number(any) : 2;
        control("settings").visible = listed || (page.usesList && this.pane !== null);
        control("startHost").visible = listed;
        control("fitFill").visible = listed && this.manner.preview;
    }

    // What can be done with the list.
    showInputState() {
        const busy = this.isBusy();
        const any = this.pictures.count > 0;
        const onList = this.shownPage === null || this.shownPage.usesList;
        const enable = (names, on) => names.forEach((name) => { this.form.control(name).enabled = on; });
        this.showCentre(any || this.pictures.filtered); // a filter that nothing matches has its bar over the list
        const listed = any && this.shownPage === null;
        enable(ADDING, this.mayAdd());
        enable(SETTINGS, !busy);
        enable(ROWS, listed && !busy);
        enable(["copyFilesAction", "columnsAction"], listed);
        enable(["clearButton", "clearAction", "saveAsAction"], any && !busy && onList);
        enable(["nextAction", "previousAction", "largeAction"], any && onList);
        this.drop.open = this.mayAdd();
        this.repeating.show();
        this.input.showWords();
        lockSideBar(this, busy);
        if (busy !== this.wasBusy) {
            this.wasBusy = busy;
            this.history.show();
        }
    }

    /** Whether list and settings are locked: a run is in progress, or a folder is watched. */
    isBusy() {
        return this.run.isBusy() || this.watching.isOn();
    }

    /** Whether something can be added to the list: it joins the end of a running run, or waits for the next one. */
    mayAdd() {
        return !this.isBusy() || (this.shownPage === null && !this.watching.isOn());
    }

    /** The message about what is added now; "" if there is none. */
    addingNote() {
        return this.run.isBusy() && !this.run.takesMore() ? qsTr("What you add now is not part of this run.") : "";
    }

    showAll() {
        this.showTitle();
        this.showInputState();
        this.showStart();
        showStatusBar(this);
        this.watching.show();
        this.interrupted.show();
        this.tools.show();
        this.ratings.show();
        this.help.tell();
    }

    showCurrent() {
        const id = this.pictures.currentId;
        const photo = id > 0 ? this.pictures.photo(id) : null;
        program.noteWork((this.shownPage || this.action).name, String(Object(photo).path || ""));
        if (this.pane === null) {
            return;
        }
        const planned = this.pane.show(photo, this.services);
        if (this.manner.preview) {
            this.preview.show(photo, planned);
        }
    }

    settingsChanged() {
        this.actionPage.keepSettings();
        this.tools.settingsChanged();
        this.actionPage.showInput();
        this.planAgain();
    }

    runChanged() {
        if (this.run.phase === "ended") {
            this.history.lookForRun();
        }
        this.pageHost.runChanged();
        this.watching.runChanged();
        this.showAll();
        this.signs.runChanged();
        this.repeating.runChanged();
    }

    // Ten times a second: what only a beginning, a pause or an end changes is not looked at.
    runProgressed() {
        this.showTitle();
        showProgress(this);
        this.signs.runChanged();
    }

    // The results of a run are history now: the list shows what the settings would make of the pictures.
    planAgain() {
        this.livePlan.forgetFinal();
        this.run.dismiss();
        this.pictures.problemsOnly = false;
        this.showCurrent();
        this.livePlan.refresh();
        this.showAll();
    }

    listChanged() {
        this.keptList.listChanged();
        if (this.pictures.count > 0 && (this.shownPage === null || !this.shownPage.usesList)) {
            this.form.control("sideBar").currentAction = this.action.name;
        }
        this.pageHost.listChanged();
        if (this.run.isBusy()) {
            this.run.listGrew();
        } else {
            this.livePlan.refresh();
        }
        if (this.pictures.count === 0) {
            this.run.dismiss();
        }
        this.showAll();
    }

    // Counters follow the order shown. Nothing starts before that is known.
    orderChanged() {
        if (!this.run.isBusy()) {
            this.livePlan.refresh();
        }
        this.showStart();
        showStatusBar(this); // Esc cancels sorting that takes long
    }

    // Results of a run in the other rows stay visible.
    ticksChanged() {
        this.livePlan.refresh();
        this.showStart();
        showStatusBar(this);
    }

    /** Shows a temporary message instead of the summary of a run. */
    say(text) {
        this.said = text;
        this.saidTimer.start(SAID_MS);
        if (this.run.phase === "ended" && this.pictures.count > 0) {
            this.run.dismiss();
        }
        showStatusBar(this);
    }

    /** Shows a temporary message beside the summary of a run. */
    sayBeside(text) {
        this.said = text;
        this.saidTimer.start(SAID_MS);
        showStatusBar(this);
    }

    /** What the desktop offers besides the program itself. */
    openWith(opening) {
        if (opening === "recipe") {
            this.form.control("sideBar").currentAction = "recipe";
        } else if (opening === "watch") {
            if (this.shownPage !== null || !this.action.manner.watches) {
                this.form.control("sideBar").currentAction = "resize";
            }
            // Once the window exists and can be the parent of questions.
            this.openingTimer = shell.timer(guard("opening", () => this.watching.choose()));
            this.openingTimer.start(0);
        }
    }

    showTitle() {
        const name = (this.shownPage || this.action).title();
        const share = percentDone(this.run);
        this.form.control("windowTitle").text = "Quorlin – " + name;
        this.form.title = share < 0
            ? "Quorlin" : fill(qsTr("%1%"), share) + " – " + this.action.title() + " – Quorlin";
    }

    // A page replaces list and settings. The list stays when another action is chosen; adding to it leads back from a
    // page that does not use it.
    chooseAction(name) {
        const action = actionNamed(name);
        if (action === (this.shownPage || this.action)) {
            return;
        }
        if (!this.pageHost.mayLeave()) {
            this.form.control("sideBar").currentAction = (this.shownPage || this.action).name;
            return;
        }
        this.shownPage = action.page === undefined ? null : action;
        if (action.usesList && name !== this.action.name) {
            this.actionPage.choose(name);
            this.planAgain();
        } else {
            this.run.look();
        }
        this.pageHost.show(this.shownPage);
        this.support.show();
        this.showAll();
        this.history.lookForRun();
    }

    /** The undo of the status bar. */
    undoRun() {
        const offer = this.run.undoOffer();
        if (offer !== null && this.run.revert !== undefined) {
            this.run.revert(offer.id);
        } else if (offer !== null) {
            this.history.takeBack(offer.id);
        }
    }

    removeChosen() {
        this.history.edited("remove", this.pictures.removeSelected());
    }

    moveChosen(by) {
        this.history.edited("move", this.pictures.moveSelected(by));
    }

    clearList() {
        this.history.edited("clear", this.pictures.removeAll());
    }

    setFill(on) {
        this.preview.looked().zoom = 0;
        this.preview.view.fill = on;
        this.showZoom();
        this.form.control(on ? "fillAction" : "fitAction").checked = true;
        keep(defaults, "Preview", { fill: on });
    }

    /** Shows the zoom of the pictures. */
    showZoom() {
        const view = this.preview.view;
        const fitted = view.fill ? 1 : 0;
        this.form.control("fitFill").selectedSegment = view.zoom > 0 ? 2 : fitted;
        this.form.control("actualAction").checked = this.preview.looked().zoom > 0;
    }

    showProblemsOnly(on) {
        this.pictures.problemsOnly = on;
        showStatusBar(this);
    }

    /** Shows whether part of the list is hidden. */
    showFiltered() {
        showStatusBar(this);
    }

    showAllRows() {
        this.pictures.leastRating = 0;
        this.pictures.setFilter({});
        this.showProblemsOnly(false);
    }

    mayClose() {
        const mayClose = this.mayEnd();
        if (mayClose) {
            this.keptList.close();
        }
        return mayClose;
    }

    mayEnd() {
        const isSaving = this.saving !== null && this.saving.isBusy();
        if (!this.run.isBusy() && !isSaving) {
            this.livePlan.stop();
            return this.pageHost.mayLeave();
        }
        const answer = shell.ask({
            title: qsTr("A run is in progress"), text: qsTr("Stop the run and close the window?"),
            detail: qsTr("Finished pictures are kept. No half-written file is left behind."),
            buttons: [qsTr("Stop and Close"), qsTr("Keep Running")], initial: 1, escape: 1, check: "" });
        if (answer.button === 0) {
            this.run.abandon();
            if (isSaving) {
                this.saving.abandon();
            }
        }
        return answer.button === 0;
    }

    cancelRun() {
        if (this.run.isBusy()) {
            this.run.cancel();
        }
        showStatusBar(this);
    }

    /** Closes what was opened last: the large preview, a run, the list of failures, full screen. */
    closeLast() {
        this.escape.close();
        showStatusBar(this);
    }

    closeLarge() {
        this.preview.closeLarge();
        showStatusBar(this);
    }

    toggleFullScreen() {
        shell.toggleFullScreen();
        showStatusBar(this);
    }

    toggleLarge() {
        this.preview.toggleLarge();
        showStatusBar(this);
    }

    dismiss() {
        this.run.dismiss();
        this.said = "";
        this.showProblemsOnly(false);
    }

    openFolders() {
        const folders = this.run.folders();
        const shown = folders.length > MOST_OPENED ? [commonFolder(folders)] : folders;
        const refused = shown.filter((folder) => !shell.openFolder(folder));
        if (refused.length > 0) {
            this.sayBeside(fill(qsTr("No file manager could open the folder. It is %1"), refused.join(", ")));
        } else if (shown.length < folders.length) {
            this.sayBeside(fill(qsTr("Opened %1, which contains the %n folders", "", folders.length), shown[0]));
        }
    }

    // Made when it is first used.
    saveAs() {
        if (this.saving === null) {
            this.saving = new SaveAs(this);
        }
        this.saving.open();
    }
}
