// The action that is shown: its settings, its pane, and the output block under it. Panes are created when first shown;
// each action has separate settings.

import { defaults } from "quorlin/defaults";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { keep, recall } from "../../lib/store.js";
import { firstSettings } from "../../lib/wishes.js";
import { AddToRecipe } from "../../actions/recipe/add-to-recipe.js";
import { OutputPane } from "../../actions/shared/output-pane.js";
import { PresetPane } from "../../presets/preset-pane.js";
import { WRITES } from "../../runs/writes.js";
import { actionNamed, allActions, GROUPS, presetKinds } from "../../actions/actions.js";

const SHOWN = "ShownAction";
const SORTING = "ListOrder";

// Actions of one manner share their columns.
function columnsKey(manner) {
    return "Columns-" + manner.columns.join("-");
}

/** Sets action, settings and pane of the main window's parts; changed() is called after each change of a setting. */
export class ActionPage {
    constructor(window, changed) {
        this.window = window;
        this.changed = guard("settings", () => {
            this.presets.settingsChanged();
            changed();
        });
        this.made = {};
        this.input = "";
        this.saveFolders = recall(defaults, "SaveFolders", { folders: [] }).folders;
        this.output = new OutputPane(this.saveFolders, this.changed);
        window.form.place("outputHost", this.output.form);
        this.addTo = new AddToRecipe((made, path) => this.addToRecipe(made, path));
        this.presets = new PresetPane(presetKinds(), (settings) => this.take(settings), (text) => window.say(text), {
            text: () => qsTr("Add to a Recipe…"), act: () => this.addTo.open(),
            isFor: (name) => name !== "" && actionNamed(name).manner === WRITES,
        });
        window.form.place("headHost", this.presets.form);
        window.form.place("headHost", this.addTo.form);
        [this.output.form, this.presets.form].forEach((form) => window.help.join(form));
        const simulation = window.form.control("moveSimulation");
        window.pictures.sorting = recall(defaults, SORTING, { sorting: "" }).sorting;
        window.pictures.layoutChanged.connect(guard("columns", () => this.keepColumns()));
        simulation.toggled.connect(guard("simulation", () => this.simulationToggled(simulation.checked)));
        this.choose(recall(defaults, SHOWN, { name: "" }).name);
    }

    /** Shows an action that works on the list and makes it the one that plans and runs. */
    choose(name) {
        const window = this.window;
        const named = actionNamed(name);
        const page = this.pageOf(named.usesList ? named : allActions()[0]);
        const action = page.action;
        Object.keys(this.made).forEach((other) => this.showPane(this.made[other], this.made[other] === page));
        window.action = action;
        window.settings = page.settings;
        window.pane = page.pane;
        window.use(action.manner);
        this.showParts(page);
        shell.alignFields([this.presets.form].concat(page.pane === null ? [] : [page.pane.form], [this.output.form]));
        window.form.arrangeTabs();
        keep(defaults, SHOWN, { name: action.name });
    }

    // Which parts of the window the action uses.
    showParts(page) {
        const window = this.window;
        const action = page.action;
        const manner = action.manner;
        const control = (name) => window.form.control(name);
        control("outputHost").visible = manner.output;
        control("headHost").visible = action.presets !== undefined;
        control("moveSimulationHost").visible = page.settings.simulation !== undefined;
        control("moveSimulation").text = manner.simulationText();
        control("moveSimulation").checked = page.settings.simulation === true;
        control("preview").visible = manner.preview;
        control("aboveHost").visible = page.pane !== null && page.pane.above !== undefined;
        control("besideHost").visible = page.pane !== null && page.pane.beside !== undefined;
        if (manner.output) {
            this.output.use(page.settings.output, action.step.offer);
        }
        this.addTo.use(action, page.settings);
        if (action.presets !== undefined) {
            this.presets.use(action.name, action.title(), page.pane);
        }
        // While pictures are viewed one by one, keys belong to what is done with them.
        window.pictures.keysRate = manner.columns.length > 0;
        if (manner.columns.length > 0) {
            const own = action.headings === undefined ? {} : action.headings();
            window.pictures.setColumns(manner.columns, Object.assign(manner.headings(), own), manner.stressed);
            window.pictures.layout = recall(defaults, columnsKey(manner), { layout: "" }).layout;
        }
        this.showInput();
    }

    /** Called when rows of the list change their kind. */
    showInput() {
        const action = this.window.action;
        const kind = action.lists(this.window.settings);
        const taken = kind === "pictures" ? action.takes : ["*"];
        // The whole list is searched: not at every typed key.
        const now = JSON.stringify([kind, taken]);
        if (now !== this.input) {
            this.input = now;
            this.window.pictures.setInput(taken, kind === "folders");
        }
    }

    showPane(page, on) {
        if (page.pane !== null) {
            if (!on && page.pane.left !== undefined) {
                page.pane.left();
            }
            page.pane.form.shown = on;
            ["above", "beside"].filter((part) => page.pane[part] !== undefined)
                .forEach((part) => { page.pane[part].shown = on; });
        }
    }

    simulationToggled(on) {
        const settings = this.window.settings;
        if (settings.simulation !== undefined && settings.simulation !== on) {
            settings.simulation = on;
            this.changed();
        }
    }

    /** Shows other settings of the action, which are used from now on. */
    take(settings) {
        const window = this.window;
        window.pane.take(settings);
        this.showParts(this.pageOf(window.action));
        this.changed();
    }

    /** Opens a recipe file in its action; nothing is run. */
    openRecipe(path) {
        this.window.chooseAction("recipe");
        this.window.form.control("sideBar").currentAction = "recipe";
        return this.window.pane.openFile(path);
    }

    addToRecipe(made, path) {
        this.window.chooseAction("recipe");
        this.window.form.control("sideBar").currentAction = "recipe";
        const problem = this.window.pane.addFrom(made, path);
        this.window.say(problem || qsTr("Added. The recipe is not saved yet."));
    }

    /** Called when files offered by a pane may have changed. */
    filesChanged() {
        const before = JSON.stringify(this.window.settings);
        Object.keys(this.made).filter((name) => this.made[name].pane !== null)
            .forEach((name) => this.made[name].pane.fill());
        if (JSON.stringify(this.window.settings) !== before && !this.window.run.isBusy()) {
            this.changed();
        }
    }

    pageOf(action) {
        if (this.made[action.name] === undefined) {
            const settings = action.step === undefined
                ? {} : recall(defaults, "Settings-" + action.name, firstSettings(defaults, action.step.defaults));
            const pane = action.pane === undefined
                ? null : new action.pane(settings, this.changed, this.window.forPanes());
            if (pane !== null) {
                this.window.form.place("actionHost", pane.form);
                this.window.help.join(pane.form);
            }
            ["above", "beside"].filter((part) => pane !== null && pane[part] !== undefined)
                .forEach((part) => this.window.form.place(part + "Host", pane[part]));
            this.made[action.name] = { action: action, settings: settings, pane: pane };
        }
        return this.made[action.name];
    }

    keepColumns() {
        const list = this.window.pictures;
        keep(defaults, columnsKey(this.window.manner), { layout: list.layout });
        keep(defaults, SORTING, { sorting: list.sorting });
    }

    keepSettings() {
        keep(defaults, "Settings-" + this.window.action.name, this.window.settings);
        keep(defaults, "SaveFolders", { folders: this.saveFolders });
    }
}

/** Fills the sidebar; chosen(name) is called with the name of an action. */
export function fillSideBar(window, chosen) {
    const bar = window.form.control("sideBar");
    for (const group of GROUPS.filter((each) => each.actions.length > 0)) {
        bar.addGroup(group.title());
        group.actions.filter((action) => action.within === undefined)
            .forEach((action) => bar.addEntry(action.name, action.title(), action.name));
        group.actions.filter((action) => action.within !== undefined)
            .forEach((action) => bar.addFace(action.name, action.within));
    }
    bar.currentAction = window.action.name;
    bar.actionChosen.connect(guard("sidebar", chosen));
}

/** During a run only its own action and pages that do not use the list can be shown. */
export function lockSideBar(window, locked) {
    const bar = window.form.control("sideBar");
    const mayShow = (action) => !locked || !action.usesList || action.name === window.action.name;
    const entries = allActions().filter((action) => action.within === undefined);
    entries.forEach((entry) => {
        const faces = allActions().filter((action) => action === entry || action.within === entry.name);
        bar.setEntryEnabled(entry.name, faces.some(mayShow));
    });
}
