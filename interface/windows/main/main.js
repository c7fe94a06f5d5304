// The main window: puts its parts together and joins controls to deeds.
// Services used: cToolBox, the controllers and views of the window, and what the parts of the window use.

import { cToolBox, mainViewController, mainWindowClass, my2ndPhotoView, myMainPhotoView } from "quorlin";
import { defaults } from "quorlin/defaults";
import { shell } from "quorlin/shell";
import { guard, onProblem } from "../../lib/guard.js";
import { keep, recall } from "../../lib/store.js";
import { makeServices } from "../../services.js";
import { ActionPage, fillSideBar, lockSideBar } from "./action-page.js";
import { actionNamed } from "../../actions/actions.js";
import { Help } from "./help.js";
import { Input } from "./input.js";
import { Pages } from "./page-host.js";
import { PreviewSide } from "./preview-side.js";
import { Printing } from "./printing.js";
import { recoverRuns } from "../../runs/recover-runs.js";
import { watchSettings } from "./settings-watch.js";
import { SaveAs } from "../save-as/save-as.js";
import { showStatusBar } from "./status-bar.js";
import { SupportBar } from "./support-bar.js";

const SAID_MS = 8000;

function tellProblem(where, error) {
    console.error(where + ": " + error + "\n" + (error && error.stack ? error.stack : ""));
    shell.ask({ title: qsTr("Something went wrong"), text: String(error), detail: where, buttons: [qsTr("Continue")],
                initial: 0, escape: 0, check: "" });
}

function makeWindow() {
    const form = shell.loadForm("windows/main/main.ui");
    return {
        form: form,
        pictures: form.control("pictures"),
        services: makeServices(),
        action: null,
        settings: null,
        pane: null,
        said: "",
        manner: null,
        run: null,
        livePlan: null,
        shownPage: null,
        planned: {},
    };
}

// Actions of one manner share a run and a plan, which are made when the first of them is shown.
function useManner(window, made, manner) {
    let parts = made.find((each) => each.manner === manner);
    if (parts === undefined) {
        parts = { manner: manner, run: null, livePlan: null };
        parts.run = manner.makeRun(window, () => showAll(window));
        parts.livePlan = manner.makePlan(window, (summary) => { window.planned = summary; showDeed(window); });
        made.push(parts);
    }
    if (window.livePlan !== null) {
        window.livePlan.stop();
    }
    window.manner = manner;
    window.run = parts.run;
    window.livePlan = parts.livePlan;
    window.planned = parts.livePlan.nothing();
    window.run.look();
}

function showDeed(window) {
    const busy = window.run.isBusy();
    const manner = window.manner;
    const ready = manner.isReady(window) && window.shownPage === null
        && window.action.step.validate(window.settings).length === 0;
    const control = (name) => window.form.control(name);
    const note = manner.deedNote(window);
    control("startButton").text = manner.deedText(window);
    control("startButton").enabled = ready && !busy;
    control("startAction").enabled = ready && !busy;
    control("startAction").text = manner.deedText(window);
    window.form.setLook("startButton", "replaces", String(manner.replaces(window)));
    control("deedNote").text = note;
    control("deedNote").visible = note !== "";
}

// A page that works on the list has its settings beside it, if it has a pane.
function showCentre(window, any) {
    const page = window.shownPage;
    const listed = page === null;
    const control = (name) => window.form.control(name);
    control("centre").currentIndex = listed ? (any ? 1 : 0) : 2;
    control("settings").visible = listed || (page.usesList && window.pane !== null);
    control("deedHost").visible = listed;
    control("fitFill").visible = listed && window.manner.preview;
}

function showInputState(window) {
    const busy = window.run.isBusy();
    const any = window.pictures.count > 0;
    const control = (name) => window.form.control(name);
    showCentre(window, any);
    for (const name of ["addPicturesButton", "addFolderButton", "addPicturesAction", "addFolderAction", "pasteAction",
                        "renameAction",
                        "headHost", "actionHost", "outputHost", "moveSimulation", "emptyAddPictures",
                        "emptyAddFolder"]) {
        control(name).enabled = !busy;
    }
    for (const name of ["removeAction", "selectAllAction"]) {
        control(name).enabled = any && !busy && window.shownPage === null;
    }
    for (const name of ["clearButton", "clearAction"]) {
        control(name).enabled = any && !busy && (window.shownPage === null || window.shownPage.usesList);
    }
    control("saveAsAction").enabled = any && !busy && (window.shownPage === null || window.shownPage.usesList);
    for (const name of ["nextAction", "previousAction", "largeAction"]) {
        control(name).enabled = any && (window.shownPage === null || window.shownPage.usesList);
    }
    window.drop.open = !busy;
    window.input.showWords();
    lockSideBar(window, busy);
}

function showAll(window) {
    showInputState(window);
    showDeed(window);
    showStatusBar(window);
    window.help.tell();
}

function showCurrent(window) {
    const id = window.pictures.currentId;
    const photo = id > 0 ? window.pictures.photo(id) : null;
    if (window.pane === null) {
        return;
    }
    const planned = window.pane.show(photo, window.services);
    if (window.manner.preview) {
        window.preview.show(photo, planned);
    }
}

function settingsChanged(window) {
    window.page.keepSettings();
    window.page.showInput();
    planAnew(window);
}

// What a run made of the pictures is the past now: the list shows what the settings would make of them.
function planAnew(window) {
    window.livePlan.forgetFinal();
    window.run.dismiss();
    window.pictures.problemsOnly = false;
    showCurrent(window);
    window.livePlan.refresh();
    showAll(window);
}

function listChanged(window) {
    if (window.pictures.count > 0 && (window.shownPage === null || !window.shownPage.usesList)) {
        window.form.control("sideBar").currentAction = window.action.name;
    }
    window.pages.listChanged();
    if (!window.run.isBusy()) {
        window.livePlan.refresh();
    }
    if (window.pictures.count === 0) {
        window.run.dismiss();
    }
    showAll(window);
}

// Counters count in the order shown.
function orderChanged(window) {
    if (!window.run.isBusy()) {
        window.livePlan.refresh();
    }
}

function say(window, text) {
    window.said = text;
    window.saidTimer.start(SAID_MS);
    if (window.run.phase === "ended" && window.pictures.count > 0) {
        window.run.dismiss();
    }
    showStatusBar(window);
}

function showTitle(window) {
    window.form.control("windowTitle").text = "Quorlin – " + (window.shownPage || window.action).title();
}

// A page takes the place of list and settings. The list stays when another action is chosen; adding to it leads back from
// a page that does not work on it.
function chooseAction(window, name) {
    const action = actionNamed(name);
    if (action === (window.shownPage || window.action)) {
        return;
    }
    if (!window.pages.mayLeave()) {
        window.form.control("sideBar").currentAction = (window.shownPage || window.action).name;
        return;
    }
    window.shownPage = action.page === undefined ? null : action;
    if (action.usesList && name !== window.action.name) {
        window.page.choose(name);
        planAnew(window);
    } else {
        window.run.look();
    }
    window.pages.show(window.shownPage);
    showTitle(window);
    showAll(window);
}

function setFill(window, on) {
    window.preview.view.fill = on;
    window.form.control("fitFill").selectedSegment = on ? 1 : 0;
    window.form.control(on ? "fillAction" : "fitAction").checked = true;
    keep(defaults, "Preview", { fill: on });
}

function showProblemsOnly(window, on) {
    window.pictures.problemsOnly = on;
    showStatusBar(window);
}

function mayClose(window) {
    if (!window.run.isBusy()) {
        window.livePlan.stop();
        return window.pages.mayLeave();
    }
    const answer = shell.ask({ title: qsTr("A run is under way"), text: qsTr("Stop the run and close the window?"),
        detail: qsTr("What is finished stays; nothing half written is left."),
        buttons: [qsTr("Stop and Close"), qsTr("Keep Running")], initial: 1, escape: 1, check: "" });
    if (answer.button === 0) {
        window.run.cancel();
    }
    return answer.button === 0;
}

function cancel(window) {
    if (window.preview.large.visible) {
        window.preview.closeLarge();
    } else if (window.run.isBusy()) {
        window.run.cancel();
    }
    showStatusBar(window);
}

function toggleLarge(window) {
    window.preview.toggleLarge();
    showStatusBar(window);
}

function dismiss(window) {
    window.run.dismiss();
    window.said = "";
    showProblemsOnly(window, false);
}

function openFolders(window) {
    window.run.folders().slice(0, 3).forEach((folder) => shell.openFolder(folder));
}

// Made when it is first used.
function saveAs(window) {
    if (window.saving === undefined) {
        window.saving = new SaveAs(window);
    }
    window.saving.open();
}

function deedsOf(window) {
    return {
        addPictures: () => window.input.addPictures(),
        addFolder: () => window.input.addFolder(),
        clear: () => window.pictures.removeAll(),
        start: () => window.run.start(),
        pause: () => window.run.togglePause(),
        cancel: () => cancel(window),
        retry: () => window.run.retry(),
        fullScreen: () => shell.toggleFullScreen(),
        report: () => note(window, window.run.saveReport()),
        saveAs: () => saveAs(window),
        showFailed: () => showProblemsOnly(window, !window.pictures.problemsOnly),
        openFolders: () => openFolders(window),
        dismiss: () => dismiss(window),
        undo: () => window.run.undo(),
        rename: () => { window.form.control("sideBar").currentAction = "rename"; },
        quit: () => window.form.close(),
        paste: () => window.input.paste(),
        remove: () => window.pictures.removeSelected(),
        selectAll: () => window.pictures.selectAll(),
        next: () => window.pictures.step(1),
        previous: () => window.pictures.step(-1),
        large: () => toggleLarge(window),
        fit: () => setFill(window, false),
        fill: () => setFill(window, true),
    };
}

const BUTTONS = {
    addPicturesButton: "addPictures", emptyAddPictures: "addPictures", addFolderButton: "addFolder",
    emptyAddFolder: "addFolder", clearButton: "clear", startButton: "start", pauseButton: "pause",
    cancelButton: "cancel",
    retryButton: "retry", fullScreenButton: "fullScreen", reportButton: "report", openFolderButton: "openFolders",
    showFailedButton: "showFailed", dismissButton: "dismiss", undoButton: "undo",
};

const ENTRIES = [
    "addPictures", "addFolder", "clear", "start", "pause", "cancel", "retry", "fullScreen", "report", "saveAs", "quit",
    "paste",
    "remove", "selectAll", "next", "previous", "large", "fit", "fill", "showFailed", "undo", "rename",
];

function connectControls(window) {
    const deeds = deedsOf(window);
    for (const name of Object.keys(BUTTONS)) {
        window.form.control(name).clicked.connect(guard(name, deeds[BUTTONS[name]]));
    }
    for (const name of ENTRIES) {
        window.form.control(name + "Action").triggered.connect(guard(name, deeds[name]));
    }
}

// Says something beside the summary of a run.
function note(window, text) {
    window.said = text;
    window.saidTimer.start(SAID_MS);
    showStatusBar(window);
}

function connectViews(window) {
    const list = window.pictures;
    const large = guard("large", () => toggleLarge(window));
    const step = guard("step", (rows) => list.step(rows));
    list.countChanged.connect(guard("list", () => listChanged(window)));
    list.orderChanged.connect(guard("order", () => orderChanged(window)));
    list.currentPictureChanged.connect(guard("current", () => showCurrent(window)));
    list.largePreviewRequested.connect(large);
    for (const view of [window.preview.view, window.preview.large]) {
        view.stepRequested.connect(step);
        view.largePreviewRequested.connect(large);
    }
    window.preview.large.closeRequested.connect(guard("large.close", () => cancel(window)));
    window.drop.dropped.connect(guard("drop", (paths) => window.input.addPaths(paths)));
    window.form.control("fitFill").chosen.connect(guard("fit", (index) => setFill(window, index === 1)));
}

function connectAppearance(window) {
    const names = { system: "systemAppearanceAction", light: "lightAppearanceAction", dark: "darkAppearanceAction" };
    window.form.group([names.system, names.light, names.dark]);
    window.form.group(["fitAction", "fillAction"]);
    for (const choice of Object.keys(names)) {
        const action = window.form.control(names[choice]);
        action.triggered.connect(guard("appearance", () => shell.theme.choose(choice)));
    }
    const show = () => {
        window.form.setIcon("emptyIcon", "pictures-large");
        window.form.control(names[shell.theme.choice()]).checked = true;
    };
    shell.theme.changed.connect(guard("theme", show));
    show();
}

// What a window and its views are told when they come out of their form.
function awake(window) {
    window.controllers = { window: new mainWindowClass(), view: new mainViewController() };
    window.photoViews = [new myMainPhotoView(), new my2ndPhotoView()];
    window.photoViews.forEach((view) => view.awakeFromNib());
    window.controllers.window.windowDidLoad();
    window.controllers.view.window = window.form.control("mainWindow");
}

/** Makes and shows the main window. */
export function openMainWindow() {
    onProblem(tellProblem);
    defaults.set("MOS", cToolBox.hGetMacOSVersion());
    const window = makeWindow();
    awake(window);
    window.say = (text) => say(window, text);
    window.showState = () => showAll(window);
    window.reloadPreview = () => { window.preview.reload(); showCurrent(window); };
    window.saidTimer = shell.timer(guard("said", () => { window.said = ""; showStatusBar(window); }));
    window.drop = shell.dropTarget(window.form);
    window.drop.setMessage(qsTr("Drop to add pictures and folders"));
    window.pages = new Pages(window);
    window.preview = new PreviewSide(window);
    window.note = (text) => note(window, text);
    const made = [];
    window.use = (manner) => useManner(window, made, manner);
    window.help = new Help(window);
    window.printing = new Printing(window);
    window.page = new ActionPage(window, () => settingsChanged(window));
    window.input = new Input(window);
    window.support = new SupportBar(window);
    window.shownPage = window.action.page === undefined ? null : window.action;
    window.pages.show(window.shownPage);
    fillSideBar(window, (name) => chooseAction(window, name));
    window.form.control("fitFill").segments = [qsTr("Fit"), qsTr("Fill")];
    connectControls(window);
    connectViews(window);
    connectAppearance(window);
    setFill(window, recall(defaults, "Preview", { fill: false }).fill);
    window.form.onClose(guard("close", () => mayClose(window)));
    window.form.setSplit("bodySplitter", [196, 884, 346]);
    window.form.setSplit("centreSplitter", [560, 300]);
    window.form.setSplit("listSplitter", [600, 284]);
    window.form.remember("MainWindow");
    shell.setMainForm(window.form);
    showTitle(window);
    showCurrent(window);
    showAll(window);
    window.controllers.view.viewWillAppear();
    window.form.show();
    window.form.control("central").setFocus();
    watchSettings(window.note);
    recoverRuns(window.note);
    if (shell.arguments.length > 0) {
        window.input.addPaths(shell.arguments);
    }
}
