// The head of every pane: the action's name, and its presets to choose, save, rename, remove, export and import.

import { dbViewController } from "quorlin";
import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { guard } from "../lib/guard.js";
import { emptyTable, splitPath } from "../lib/names.js";
import { PresetStore } from "./preset-store.js";
import { FIELDS, fileText, freeName, placeOf, rowOf, rowsOfFile, storedName, typedName } from "./presets.js";
import { writeStartingPresets } from "./starting-presets.js";
import { keep, recall } from "../lib/store.js";
import { fill } from "../lib/wording.js";

const SIMULATION = placeOf("StrField21");
const FILE_TYPE = "c-action";

/** Those of the paths that are files of presets. */
export function presetFilesAmong(paths) {
    return paths.filter((path) => splitPath(path).extension.toLowerCase() === FILE_TYPE && !files.info(path).isFolder);
}
// Each waits for the disk: a few are imported at once, many while the window stays responsive.
const MOST_AT_ONCE = 20;
// What precedes the name of a usable preset, and the number of an unusable one.
const READY = "=";
const OTHER = "?";

function keyOf(action) {
    return "Preset-" + action;
}

function stateWord(preset) {
    const words = { newer: qsTr("%1 (newer version)"), unknown: qsTr("%1 (unknown)"), damaged: qsTr("%1 (damaged)") };
    return fill(words[preset.state] || "%1", preset.name);
}

export class PresetPane {
    /**
     * @param kinds     what presets are kept of: see presetKinds() of actions.js
     * @param take      called with the settings of a preset that was chosen
     * @param say       called with messages for the user
     * @param more      a further entry of the menu: {text(), act(), isFor(action)}
     */
    constructor(kinds, take, say, more) {
        this.more = more;
        this.store = new PresetStore(() => new dbViewController(), files, kinds);
        this.kinds = kinds;
        this.take = take;
        this.say = say;
        this.action = "";
        this.pane = null;
        this.settings = null;
        this.presets = [];
        this.chosen = null;
        this.editing = "";
        this.taken = [];
        this.isReplaced = false; // whether the typed name lost a character that the database does not accept
        this.problem = "";
        this.importing = shell.job();
        this.menuState = "";
        this.form = shell.loadForm("presets/preset-pane.ui");
        this.connect();
    }

    connect() {
        const control = (name) => this.form.control(name);
        control("preset").activated.connect(guard("preset", () => this.choiceMade(this.form.value("preset"))));
        control("presetName").textChanged.connect(guard("presetName", () => this.nameTyped()));
        control("presetName").returnPressed.connect(guard("presetName", () => this.endEditing()));
        control("presetOk").clicked.connect(guard("presetOk", () => this.endEditing()));
        control("presetCancel").clicked.connect(guard("presetCancel", () => this.cancelEditing()));
        control("presetEscape").triggered.connect(guard("presetCancel", () => this.cancelEditing()));
    }

    /** Shows the presets of an action and compares them with its settings, those of the pane. */
    use(action, title, pane) {
        this.action = action;
        this.pane = pane;
        this.settings = pane.settings;
        this.editing = "";
        this.problem = "";
        this.form.control("paneTitle").text = title;
        this.presets = this.store.list(action);
        if (this.store.problem === ""
            && writeStartingPresets(action, shell.interfaceFolder + "/patterns", this.store, defaults)) {
            this.presets = this.store.list(action);
        }
        this.showChosen(recall(defaults, keyOf(action), { name: "" }).name);
        if (this.store.notice !== "") {
            this.say(this.store.notice);
            this.store.notice = "";
        }
    }

    /** Called after a change of the settings. */
    settingsChanged() {
        this.showChoice();
        this.showMenu();
    }

    // Reads the presets again; the ready one of that name becomes the chosen one.
    look(name) {
        this.presets = this.store.list(this.action);
        this.showChosen(name);
    }

    showChosen(name) {
        this.chosen = this.presets.find((preset) => preset.state === "ready" && preset.name === name) || null;
        this.showAll();
    }

    remember() {
        keep(defaults, keyOf(this.action), { name: this.chosen === null ? "" : this.chosen.name });
    }

    isReady() {
        return this.chosen !== null && this.chosen.state === "ready";
    }

    isChanged() {
        // A dry run is how a preset is tried; it does not change the preset.
        const text = (settings) => rowOf(this.kinds[this.action].form, "", settings)
            .filter((field, i) => i !== SIMULATION).join("|");
        return this.isReady() && text(this.settings) !== text(this.pane.resolved(this.chosen.settings));
    }

    choiceMade(value) {
        this.problem = "";
        if (value.startsWith(READY)) {
            this.choose(value.slice(READY.length));
        } else if (value.startsWith(OTHER)) {
            // A preset that cannot be used says what it is and can be exported; the settings stay.
            this.chosen = this.presets[Number(value.slice(OTHER.length))];
            this.showAll();
        } else {
            // The settings stay, but no longer belong to a preset.
            this.chosen = null;
            this.remember();
            this.showAll();
        }
    }

    choose(name) {
        this.chosen = this.presets.find((preset) => preset.state === "ready" && preset.name === name) || null;
        this.remember();
        if (this.isReady()) {
            this.take(this.chosen.settings);
        }
        this.showAll();
    }

    valueOf(preset) {
        return preset.state === "ready" ? READY + preset.name : OTHER + this.presets.indexOf(preset);
    }

    showAll() {
        this.showChoice();
        this.showMenu();
        this.showEditing();
    }

    showChoice() {
        const changed = this.isChanged();
        const none = this.chosen === null;
        // The dot precedes the name, so that it is visible even if a long name is cut off.
        const texts = this.presets
            .map((preset) => (changed && preset === this.chosen ? "• " + preset.name : stateWord(preset)));
        const values = this.presets.map((preset) => this.valueOf(preset));
        this.form.setItems("preset", [qsTr("No preset")].concat(texts), [""].concat(values));
        this.form.chooseValue("preset", none ? "" : this.valueOf(this.chosen));
        this.form.control("preset").enabled = this.store.problem === "" && this.presets.length > 0;
        const name = none ? "" : this.chosen.name;
        this.form.control("preset").toolTip = changed ? fill(qsTr("%1, changed"), name) : name;
        this.form.control("preset").accessibleDescription = changed ? qsTr("changed") : "";
        this.label("presetProblem", this.problem || this.store.problem);
        this.label("presetNote", none ? "" : this.chosen.note);
    }

    label(name, text) {
        this.form.control(name).text = text;
        this.form.control(name).visible = text !== "";
    }

    // [text, what it does]; an entry without a function is disabled.
    menuEntries() {
        const works = this.store.problem === "";
        const ready = works && this.isReady();
        const ifTrue = (condition, what) => (condition ? what : null);
        return [
            [qsTr("Save"), ifTrue(ready && this.isChanged(), "save")],
            [qsTr("Save As…"), ifTrue(works, "saveAs")],
            [qsTr("Rename…"), ifTrue(ready, "rename")],
            [qsTr("Delete…"), ifTrue(ready, "remove")],
            ["-", null],
            [qsTr("Export…"), ifTrue(this.chosen !== null && this.chosen.fields.length === FIELDS, "save as file")],
            [qsTr("Import…"), ifTrue(works, "bring in")],
        ].concat(this.more.isFor(this.action) ? [["-", null], [this.more.text(), "more"]] : [])
            .concat(works ? [] : [["-", null], [qsTr("Try Again"), "look"]]);
    }

    showMenu() {
        const entries = this.menuEntries();
        const state = JSON.stringify(entries);
        if (state !== this.menuState) {
            this.menuState = state;
            this.form.setMenu("presetMenu", entries.map((entry) => entry[0]), entries.map((entry) => entry[1]),
                              guard("presets", (what) => this.act(what)));
        }
    }

    act(what) {
        this.problem = "";
        const doings = {
            save: () => this.save(), saveAs: () => this.edit("saveAs"), rename: () => this.edit("rename"),
            remove: () => this.remove(),
            "save as file": () => this.saveFile(), "bring in": () => this.bringIn(), look: () => this.lookAgain(),
            more: () => this.more.act(),
        };
        doings[what]();
        this.showAll();
    }

    // Shows the outcome: the preset of that name is chosen, or the problem is reported.
    ended(problem, name) {
        this.problem = problem;
        this.look(problem === "" || this.chosen === null ? name : this.chosen.name);
        this.remember();
    }

    lookAgain() {
        this.use(this.action, this.form.control("paneTitle").text, this.pane);
    }

    save() {
        this.ended(this.store.save(this.action, this.chosen.name, this.settings), this.chosen.name);
    }

    edit(what) {
        this.editing = what;
        this.isReplaced = false;
        this.taken = this.store.names();
        const name = what === "rename"
            ? this.chosen.name : freeName(this.isReady() ? this.chosen.name : qsTr("My preset"), this.taken);
        if (what === "rename") {
            this.taken = this.taken.filter((other) => other !== name);
        }
        this.form.control("presetOk").text = what === "rename" ? qsTr("Rename") : qsTr("Save");
        this.form.control("presetName").text = name;
        this.showEditing();
        this.form.control("presetName").setFocus();
        this.form.control("presetName").selectAll();
    }

    showEditing() {
        const on = this.editing !== "";
        this.form.control("presetRows").visible = on;
        for (const name of ["preset", "presetMenu", "infoPresets"]) {
            this.form.control(name).visible = !on;
        }
        this.form.control("presetEscape").enabled = on;
        this.showNameProblem();
    }

    // Shows at once the name that will be stored.
    nameTyped() {
        const field = this.form.control("presetName");
        const shown = typedName(field.text);
        if (shown !== field.text) {
            const place = field.cursorPosition;
            this.isReplaced = true;
            field.text = shown;
            field.cursorPosition = place;
        }
        this.showNameProblem();
    }

    showNameProblem() {
        const name = this.newName();
        const isSame = this.editing === "rename" && name === this.chosen.name;
        const problem = this.editing === "" || isSame ? "" : this.store.nameProblem(name, this.taken);
        const note = name === this.typedText() || problem !== ""
            ? "" : fill(qsTr("This name is in use. The preset will be called \u201c%1\u201d."), name);
        this.label("nameProblem", problem || note);
        this.form.control("presetOk").enabled = problem === "";
    }

    typedText() {
        return storedName(this.form.control("presetName").text);
    }

    // A user who typed a name other than the stored one is not asked about an existing preset; the name gets a number.
    newName() {
        const name = this.typedText();
        const own = this.editing === "rename" ? this.chosen.name : null;
        return this.isReplaced && name !== "" && name !== own ? freeName(name, this.taken) : name;
    }

    cancelEditing() {
        this.editing = "";
        this.showAll();
        this.form.control("preset").setFocus();
    }

    endEditing() {
        const name = this.newName();
        const what = this.editing;
        if (what === "" || !this.form.control("presetOk").enabled) {
            return;
        }
        this.editing = "";
        if (what === "saveAs") {
            this.ended(this.store.save(this.action, name, this.settings), name);
        } else if (name !== this.chosen.name) {
            this.ended(this.store.rename(this.chosen, name), name);
        }
        this.showAll();
        this.form.control("preset").setFocus();
    }

    remove() {
        const name = this.chosen.name;
        const answer = shell.ask({
            title: qsTr("Delete preset"), text: fill(qsTr("Delete the preset “%1”?"), name),
            detail: qsTr("Your current settings are kept."),
            buttons: [qsTr("Delete"), qsTr("Keep")], initial: 1, escape: 1, check: "",
        });
        if (answer.button === 0) {
            const problem = this.store.remove(this.action, name);
            this.chosen = problem === "" ? null : this.chosen;
            this.ended(problem, "");
        }
    }

    saveFile() {
        const offered = this.chosen.name.replace(/[\/\\:*?"<>|]/g, "-") + "." + FILE_TYPE;
        const path = shell.chooseNewFile(qsTr("Export the preset"), "", offered, FILE_TYPE);
        if (path !== null) {
            this.problem = files.writeText(path, fileText([this.chosen.fields]));
            this.say(this.problem || fill(qsTr("Preset exported as %1"), path));
        }
    }

    bringIn() {
        if (this.importing.running) {
            return;
        }
        const path = shell.chooseFile(qsTr("Import presets"), "", [FILE_TYPE]);
        if (path !== null) {
            this.importFile(path);
        }
    }

    /** Stores the presets of a file, and chooses the first one of the shown action. */
    importFile(path) {
        if (this.importing.running) {
            return;
        }
        const text = files.readText(path);
        if (text === null) {
            this.problem = fill(qsTr("%1 cannot be read."), splitPath(path).name);
            return;
        }
        const read = rowsOfFile(text);
        if (read.rows.length <= MOST_AT_ONCE) {
            this.broughtIn(this.store.bringIn(read.rows), read);
            return;
        }
        const work = this.store.bringingIn(read.rows);
        this.importing.start(work,
                             guard("presets.import",
                                   (stored) => this.say(fill(qsTr("%1 of %n presets imported", "", read.rows.length),
                                                             stored))),
                             guard("presets.imported", (how, value) => this.importEnded(how, value, read)));
    }

    importEnded(how, value, read) {
        this.broughtIn(how === "done"
                       ? value : { names: [], renamed: 0, problem: how === "failed" ? String(value) : "" }, read);
    }

    // Shows what was stored; the first one of this action becomes the chosen one.
    broughtIn(done, read) {
        this.problem = done.problem || read.problem;
        this.look(this.chosen === null ? "" : this.chosen.name);
        const names = emptyTable();
        done.names.forEach((name) => { names[name] = true; });
        const own = this.presets.filter((preset) => preset.state === "ready" && names[preset.name]);
        if (own.length > 0) {
            this.choose(own[0].name);
        }
        if (done.names.length > 0) {
            this.say(this.broughtInText(done, own.length));
        }
    }

    broughtInText(done, own) {
        const parts = [qsTr("%n presets imported", "", done.names.length)];
        if (done.renamed > 0) {
            parts.push(qsTr("%n renamed because their names were in use", "", done.renamed));
        }
        if (own === 0) {
            parts.push(qsTr("none for this action"));
        }
        return parts.join(" · ");
    }
}
