// The action that is shown: its settings, its pane, and the output block under it. Panes are made when they are first
// shown; each action keeps settings of its own. Services used: defaults.

import { defaults } from "quorlin/defaults";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { keep, recall } from "../../lib/store.js";
import { carriedBy } from "../../lib/written.js";
import { OutputPane } from "../../panes/output-pane.js";
import { PresetPane } from "../../panes/preset-pane.js";
import { actionNamed, GROUPS, standardSettings } from "./actions.js";

const SHOWN = "ShownAction";

export const LOG = "log";

/** Sets action, settings and pane of the main window's parts; changed() is called after each change of a setting. */
export class ActionPage {
    constructor(window, changed) {
        this.window = window;
        this.changed = guard("settings", () => {
            this.showCarried();
            this.presets.settingsChanged();
            changed();
        });
        this.pages = {};
        this.saveFolders = recall(defaults, "SaveFolders", { folders: [] }).folders;
        this.output = new OutputPane(this.saveFolders, this.changed);
        window.form.place("outputHost", this.output.form);
        this.presets = new PresetPane(standardSettings(), (settings) => this.take(settings), (text) => window.say(text));
        window.form.place("headHost", this.presets.form);
        this.choose(recall(defaults, SHOWN, { name: "" }).name);
    }

    /** Shows an action and makes it the one that plans and runs. */
    choose(name) {
        const window = this.window;
        const page = this.pageOf(actionNamed(name));
        Object.keys(this.pages).forEach((other) => { this.pages[other].pane.form.shown = this.pages[other] === page; });
        window.action = page.action;
        window.settings = page.settings;
        window.pane = page.pane;
        this.output.use(page.settings.output, page.action.step.offer);
        this.showCarried();
        this.presets.use(page.action.name, page.action.title(), page.pane);
        shell.alignFields([this.presets.form, page.pane.form, this.output.form]);
        window.form.arrangeTabs();
        keep(defaults, SHOWN, { name: page.action.name });
    }

    /** Shows other settings of the action; they are worked on from now on. */
    take(settings) {
        const window = this.window;
        window.pane.take(settings);
        this.output.use(window.settings.output, window.action.step.offer);
        this.changed();
    }

    /** Called when files that a pane offers may have changed. */
    filesChanged() {
        const before = JSON.stringify(this.window.settings);
        Object.keys(this.pages).forEach((name) => this.pages[name].pane.fill());
        if (JSON.stringify(this.window.settings) !== before && !this.window.run.isBusy()) {
            this.changed();
        }
    }

    // What metadata goes along may hang on the settings.
    showCarried() {
        this.output.showNote(carriedBy(this.window.action.step, this.window.settings));
    }

    pageOf(action) {
        if (this.pages[action.name] === undefined) {
            const settings = recall(defaults, "Settings-" + action.name, action.step.defaults);
            const pane = new action.pane(settings, this.changed);
            this.window.form.place("actionHost", pane.form);
            this.pages[action.name] = { action: action, settings: settings, pane: pane };
        }
        return this.pages[action.name];
    }

    keepSettings() {
        keep(defaults, "Settings-" + this.window.action.name, this.window.settings);
        keep(defaults, "SaveFolders", { folders: this.saveFolders });
    }
}

/** Fills the sidebar; chosen(name) is called with the name of an action, or LOG. */
export function fillSideBar(window, chosen) {
    const bar = window.form.control("sideBar");
    for (const group of GROUPS) {
        bar.addGroup(group.title());
        group.actions.forEach((action) => bar.addEntry(action.name, action.title(), action.name));
    }
    bar.addGroup(qsTr("Information"));
    bar.addEntry(LOG, qsTr("Log"), LOG);
    bar.currentAction = window.action.name;
    bar.actionChosen.connect(guard("sidebar", chosen));
}

/** While a run is under way only its own action and the log can be shown. */
export function lockSideBar(window, locked) {
    const bar = window.form.control("sideBar");
    for (const group of GROUPS) {
        group.actions.forEach((action) => bar.setEntryEnabled(action.name, !locked || action.name === window.action.name));
    }
}
