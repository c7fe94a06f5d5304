// The form of metadata fields: typed fields are written, empty ones stay unchanged, and × clears. Empty fields show the
// current values of the pictures. Services used: defaults (which groups are open), files and shell (the list of
// keywords).

import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { keep, recall } from "../../lib/store.js";
import { fill } from "../../lib/wording.js";
import { Pane } from "../shared/pane.js";
import { insertAtCursor, joinTokens } from "../shared/token-menu.js";
import * as step from "./metadata-fields-step.js";
import { labels, ratingText, valueText } from "../shared/metadata-fields-words.js";
import { addKeywords, keepKeywords, keywordsIn, keywordsText, listedKeywords } from "./metadata-keyword-list.js";

const KEPT = "MetadataGroups";
const MULTILINE = ["caption", "usageTerms", "instructions"];
const OTHERS = ["removedKeywords", "shift", "zone"];
const SCOPES = ["all", "selected"];
const MODES = [step.ADD, step.REPLACE];
const CLEAR = "clear";
// The groups of the form with the settings in each.
const SECTIONS = [
    { name: "Description", fields: step.GROUPS[0].fields.concat(["removedKeywords"]),
      title: () => qsTr("Description") },
    { name: "Rights", fields: step.GROUPS[1].fields, title: () => qsTr("Creator and Rights") },
    { name: "Place", fields: step.GROUPS[2].fields, title: () => qsTr("Place") },
    { name: "Date", fields: step.GROUPS[3].fields.concat(["shift", "zone"]), title: () => qsTr("Date and Rating") },
    { name: "Private", fields: [], title: () => qsTr("Remove Private Data") },
];

function controlOf(name) {
    return "mf" + name[0].toUpperCase() + name.slice(1);
}

function boxOf(group) {
    return "mfPrivate" + group[0].toUpperCase() + group.slice(1);
}

export class FieldsPane extends Pane {
    constructor(settings, changed, parts) {
        super("actions/metadata/metadata-fields-pane.ui", step, settings, changed);
        this.parts = parts;
        this.open = recall(defaults, KEPT, { open: ["Description"] }).open;
        this.together = null;
        this.statedOf = (_path) => null;
        this.last = "caption";
        this.join();
        this.joinTyped();
        this.fill();
    }

    join() {
        const control = (name) => this.form.control(name);
        control("mfScope").segments = [qsTr("All"), qsTr("Selected")];
        control("mfKeywordsMode").segments = [qsTr("Added"), qsTr("All there are")];
        this.segments("mfScope", "scope", SCOPES);
        this.segments("mfKeywordsMode", "keywordsMode", MODES);
        control("mfProperties").clicked.connect(guard("fields.properties", () => this.parts.showAction("metadata")));
        SECTIONS.forEach((section) => {
            control("mf" + section.name + "Head").clicked
                .connect(guard("fields.group", () => this.toggleGroup(section.name)));
        });
        step.PRIVATE.forEach((name) => {
            const box = control(boxOf(name));
            box.toggled.connect(guard(name, () => this.boxToggled(name, box.checked)));
        });
        ["rating", "label"].forEach((name) => {
            control(controlOf(name)).activated
                .connect(guard(name, () => this.chosen(name, this.form.value(controlOf(name)))));
        });
        this.showKeywordList();
        joinTokens(this.form, { menu: "mfTokenMenu", button: "mfToken" }, () => true, (text) => this.insert(text));
        this.parts.list.currentPictureChanged.connect(guard("fields.current", () => this.currentMoved()));
    }

    joinTyped() {
        step.TYPED.concat(OTHERS).forEach((name) => {
            const field = this.form.control(controlOf(name));
            field.textChanged.connect(guard(name, () => this.typed(name, this.textIn(name))));
            if (MULTILINE.indexOf(name) < 0) {
                field.cursorPositionChanged.connect(guard(name + ".at", () => { this.last = name; }));
            }
        });
        step.TYPED.forEach((name) => {
            const button = this.form.control(controlOf(name) + "Clear");
            button.toggled.connect(guard(name + ".clear", () => this.cleared(name, button.checked)));
        });
    }

    textIn(name) {
        const field = this.form.control(controlOf(name));
        return MULTILINE.indexOf(name) < 0 ? field.text : field.plainText;
    }

    typed(name, text) {
        if (!this.filling) {
            this.last = name;
        }
        this.set(name, text);
    }

    // What is offered while keywords are typed.
    showKeywordList() {
        const words = listedKeywords(files);
        ["mfKeywords", "mfRemovedKeywords"].forEach((name) => { this.form.control(name).words = words; });
        this.form.setMenu("mfKeywordList", [qsTr("Import…"), qsTr("Export…"), "-", qsTr("Clear List…")],
                          ["import", words.length > 0 ? "export" : null, null, words.length > 0 ? "clear" : null],
                          guard("fields.keywords", (what) => this.keywordList(what)));
    }

    keywordList(what) {
        const jobs = { import: () => this.importKeywords(), export: () => this.exportKeywords(),
                       clear: () => this.clearKeywords() };
        jobs[what]();
        this.showKeywordList();
    }

    importKeywords() {
        const path = shell.chooseFile(qsTr("Import keywords"), "", ["txt"]);
        const text = path === null ? null : files.readText(path);
        if (path !== null) {
            const words = keywordsIn(text || "");
            const problem = text === null ? fill(qsTr("%1 cannot be read."), path) : addKeywords(files, words);
            this.parts.sayBeside(problem || qsTr("%n keywords imported", "", words.length));
        }
    }

    exportKeywords() {
        const path = shell.chooseNewFile(qsTr("Export keywords"), "", qsTr("Keywords") + ".txt", "txt");
        if (path !== null) {
            const words = listedKeywords(files);
            const problem = files.writeText(path, keywordsText(words));
            this.parts.sayBeside(problem || qsTr("%n keywords exported", "", words.length));
        }
    }

    clearKeywords() {
        const answer = shell.ask({
            title: qsTr("Clear keyword list"), text: qsTr("Remove all keywords from the list?"),
            detail: qsTr("Your pictures are not changed."), buttons: [qsTr("Clear"), qsTr("Keep")],
            initial: 1, escape: 1, check: "",
        });
        if (answer.button === 0) {
            this.parts.sayBeside(keepKeywords(files, []));
        }
    }

    /** Called when the settings were written: typed keywords are offered from now on. */
    written(settings) {
        addKeywords(files, step.keywordsOf(settings.keywords).filter((word) => word.indexOf("{") < 0));
        this.showKeywordList();
    }

    boxToggled(group, isOn) {
        this.set("removed", step.withWord(this.settings.removed, group, isOn));
    }

    // A cleared field is not written as well.
    cleared(name, isOn) {
        if (this.filling || step.isCleared(this.settings, name) === isOn) {
            return;
        }
        if (isOn) {
            this.settings[name] = "";
        }
        this.settings.cleared = step.withWord(this.settings.cleared, name, isOn);
        this.fill();
        this.changed();
    }

    chosen(name, value) {
        const isClear = value === CLEAR;
        this.settings[name] = isClear ? "" : value;
        this.settings.cleared = step.withWord(this.settings.cleared, name, isClear);
        this.showState();
        this.changed();
    }

    toggleGroup(name) {
        this.open = this.open.indexOf(name) >= 0 ? this.open.filter((each) => each !== name) : this.open.concat([name]);
        keep(defaults, KEPT, { open: this.open });
        this.showState();
    }

    // The field with the keyboard focus, else the one typed in last.
    insert(text) {
        const focused = step.TYPED.find((name) => this.form.control(controlOf(name)).focus);
        const name = focused || this.last;
        const field = this.form.control(controlOf(name));
        if (name === "dateTaken" || OTHERS.indexOf(name) >= 0 || step.isCleared(this.settings, name)) {
            return;
        }
        if (MULTILINE.indexOf(name) < 0) {
            insertAtCursor(field, text);
        } else {
            field.insertPlainText(text);
            field.setFocus();
        }
    }

    // While only the chosen rows are written, the selection is a setting like any other.
    currentMoved() {
        if (this.settings.scope === "selected" && this.form.shown) {
            this.parts.planAgain();
        }
    }

    showValues() {
        const control = (name) => this.form.control(name);
        control("mfScope").selectedSegment = SCOPES.indexOf(this.settings.scope);
        control("mfKeywordsMode").selectedSegment = MODES.indexOf(this.settings.keywordsMode);
        step.TYPED.concat(OTHERS).forEach((name) => {
            const field = control(controlOf(name));
            const isLine = MULTILINE.indexOf(name) < 0;
            if (this.textIn(name) !== this.settings[name]) {
                field[isLine ? "text" : "plainText"] = this.settings[name];
            }
        });
        step.PRIVATE.forEach((name) => {
            control(boxOf(name)).checked = step.wordsOf(this.settings.removed).indexOf(name) >= 0;
        });
    }

    showState() {
        const before = this.filling;
        this.filling = true;
        this.showGroups();
        step.TYPED.forEach((name) => this.showField(name));
        this.showChoice("rating", ["5", "4", "3", "2", "1", "-1"].map((each) => [each, ratingText(each)]));
        this.showChoice("label", labels());
        this.filling = before;
    }

    showGroups() {
        SECTIONS.forEach((section) => {
            const isOpen = this.open.indexOf(section.name) >= 0;
            const used = this.usedIn(section);
            const head = this.form.control("mf" + section.name + "Head");
            head.text = (isOpen ? "▾ " : "▸ ") + section.title() + (used > 0 ? " · " + used : "");
            head.checked = isOpen;
            head.accessibleName = used > 0 ? fill(qsTr("%1, %n used", "", used), section.title()) : section.title();
            this.form.control("mf" + section.name + "Rows").visible = isOpen;
        });
    }

    // How many of its settings are not empty.
    usedIn(section) {
        const says = (name) => this.settings[name] !== "" || step.isCleared(this.settings, name);
        return section.name === "Private"
            ? step.wordsOf(this.settings.removed).length : section.fields.filter(says).length;
    }

    showField(name) {
        const field = this.form.control(controlOf(name));
        const isCleared = step.isCleared(this.settings, name);
        field.readOnly = isCleared;
        field.placeholderText = isCleared ? qsTr("(cleared)") : this.statedText(name);
        this.form.control(controlOf(name) + "Clear").checked = isCleared;
    }

    // The current values of a field in the pictures.
    statedText(name) {
        const stated = this.together === null ? { several: false, value: [] } : this.together.of(name);
        return stated.several ? qsTr("(several values)") : valueText(name, stated.value);
    }

    showChoice(name, values) {
        const stated = this.statedText(name);
        const leave = stated === "" ? qsTr("Leave as it is") : fill(qsTr("Leave: %1"), stated);
        this.form.setItems(controlOf(name), [leave, "-"].concat(values.map((each) => each[1]), ["-", qsTr("Clear")]),
                           ["", "-"].concat(values.map((each) => each[0]), ["-", CLEAR]));
        this.form.chooseValue(controlOf(name), step.isCleared(this.settings, name) ? CLEAR : this.settings[name]);
    }

    /** Called when the values of the pictures are known: together, and each by its path (see FieldPlan). */
    showStated(together, statedOf) {
        this.together = together;
        this.statedOf = statedOf;
        this.showState();
    }

    /** What prevents a run, and where the current picture disagrees with itself. */
    show(photo, _services) {
        this.photo = photo;
        const known = photo === null ? null : this.statedOf(photo.path);
        const disputes = known === null ? [] : step.disputeWords(known.fields || {});
        this.say("mfDisputed", disputes.length === 0 ? ""
            : [fill(qsTr("EXIF, IPTC and XMP of %1 disagree. What is written makes them agree."), photo.name)]
                .concat(disputes).join("\n"));
        this.say("problemText", step.validate(this.settings).join("\n"));
        return null;
    }
}
