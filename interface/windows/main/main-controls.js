// What the controls of the main window do: buttons, entries of menus, the list, the views and the appearance.

import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";

function doingsOf(window) {
    return {
        addPictures: () => window.input.addPictures(),
        addFolder: () => window.input.addFolder(), addSamples: () => window.input.addSamples(),
        clear: () => window.clearList(),
        start: () => window.run.start(),
        pause: () => window.run.togglePause(),
        cancel: () => window.closeLast(),
        cancelRun: () => window.cancelRun(),
        retry: () => window.run.retry(),
        fullScreen: () => window.toggleFullScreen(),
        report: () => window.sayBeside(window.run.saveReport()),
        saveAs: () => window.saveAs(),
        showFailed: () => window.showProblemsOnly(!window.pictures.problemsOnly),
        openFolders: () => window.openFolders(),
        dismiss: () => window.dismiss(),
        undo: () => window.history.undo(),
        redo: () => window.history.redo(),
        undoRun: () => window.undoRun(),
        rename: () => { window.form.control("sideBar").currentAction = "rename"; },
        quit: () => window.form.close(),
        paste: () => window.input.paste(),
        remove: () => window.removeChosen(),
        selectAll: () => window.pictures.selectAll(),
        copyFiles: () => window.tools.copyFiles(),
        moveUp: () => window.moveChosen(-1),
        moveDown: () => window.moveChosen(1),
        tick: () => window.pictures.toggleTicks(),
        tickAll: () => window.pictures.tickAll(),
        columns: () => window.pictures.showColumnMenu(),
        next: () => window.pictures.step(1),
        previous: () => window.pictures.step(-1),
        large: () => window.toggleLarge(),
        fit: () => window.setFill(false),
        fill: () => window.setFill(true),
        actual: () => window.preview.toggleActual(),
        showAllRows: () => window.showAllRows(),
        showHidden: () => window.input.showHidden(),
        addOwn: () => window.input.addOwn(),
        convertHidden: () => { window.form.control("sideBar").currentAction = "convert"; },
    };
}

const BUTTONS = {
    addPicturesButton: "addPictures", emptyAddPictures: "addPictures", addFolderButton: "addFolder",
    emptyAddFolder: "addFolder", emptyAddSamples: "addSamples", clearButton: "clear", startButton: "start",
    pauseButton: "pause",
    cancelButton: "cancelRun", retryButton: "retry", fullScreenButton: "fullScreen", reportButton: "report",
    openFolderButton: "openFolders",
    filterShowAll: "showAllRows", hiddenShow: "showHidden", hiddenConvert: "convertHidden",
    ownAdd: "addOwn", emptyOwnAdd: "addOwn",
    showFailedButton: "showFailed", dismissButton: "dismiss", undoButton: "undoRun",
};

const ENTRIES = [
    "addPictures", "addFolder", "clear", "start", "pause", "cancel", "retry", "fullScreen", "report", "saveAs", "quit",
    "paste", "remove", "selectAll", "copyFiles", "moveUp", "moveDown", "tick", "tickAll", "columns", "next",
    "previous", "large", "fit", "fill", "actual", "showFailed", "undo", "redo", "rename",
];

function connectControls(window) {
    const doings = doingsOf(window);
    for (const name of Object.keys(BUTTONS)) {
        window.form.control(name).clicked.connect(guard(name, doings[BUTTONS[name]]));
    }
    for (const name of ENTRIES) {
        window.form.control(name + "Action").triggered.connect(guard(name, doings[name]));
    }
}

// The segment behind Fit and Fill.
const ACTUAL = 2;

function connectViews(window) {
    const list = window.pictures;
    const large = guard("large", () => window.toggleLarge());
    const step = guard("step", (rows) => list.step(rows));
    list.countChanged.connect(guard("list", () => window.listChanged()));
    list.ticksChanged.connect(guard("ticks", () => window.ticksChanged()));
    list.orderChanged.connect(guard("order", () => window.orderChanged()));
    list.currentPictureChanged.connect(guard("current", () => window.showCurrent()));
    list.largePreviewRequested.connect(large);
    for (const view of [window.preview.view, window.preview.large]) {
        view.stepRequested.connect(step);
        view.largePreviewRequested.connect(large);
        view.zoomChanged.connect(guard("zoom", () => window.showZoom()));
    }
    window.preview.large.closeRequested.connect(guard("large.close", () => window.closeLarge()));
    window.drop.dropped.connect(guard("drop", (paths) => window.input.addPaths(paths)));
    window.form.control("fitFill").chosen.connect(guard("fit", (index) => {
        if (index === ACTUAL) {
            window.preview.showActual();
        } else {
            window.setFill(index === 1);
        }
    }));
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

/** Connects all controls of the window to their functions. */
export function connect(window) {
    connectControls(window);
    connectViews(window);
    connectAppearance(window);
}
