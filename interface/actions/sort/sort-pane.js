// The settings of the Sort into Folders action, and the tree of folders beside the list.

import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { tokens } from "quorlin/tokens";
import { guard } from "../../lib/guard.js";
import { foldersFor, levelChoices, levelsOf, patternOf, prepared, UNDATED } from "./sorting.js";
import { keep, recall, withNewest } from "../../lib/store.js";
import { fill, shortPath } from "../../lib/wording.js";
import * as sort from "./sort-step.js";
import { Pane } from "../shared/pane.js";
import { SortTree } from "./sort-tree.js";

const LEVELS = ["sortLevel1", "sortLevel2", "sortLevel3"];
const OWN = "own";
const FOLDER = "folder:";
const KEPT_FOLDERS = 5;
const KEY = "SortFolders";

// The formats of a token that its menu offers.
const MOST_FORMS = 3;

function tokenEntries() {
    const entries = [];
    tokens.offered().filter((each) => each.name !== "counter").forEach((each) => {
        each.forms.slice(0, MOST_FORMS).forEach((form) => {
            const written = "{" + each.name + (form === "" ? "" : ":" + form) + "}";
            entries.push({ text: each.words + "   " + written, value: written });
        });
    });
    return entries;
}

export class SortPane extends Pane {
    /** @param parts  what panes get of the window: list is used */
    constructor(settings, changed, parts) {
        super("actions/sort/sort-pane.ui", sort, settings, changed);
        this.recent = recall(defaults, KEY, { folders: [] }).folders;
        this.tree = new SortTree(parts.list);
        this.beside = this.tree.form;
        this.services = null;
        this.caret = 0;
        this.join();
        this.fill();
    }

    join() {
        LEVELS.forEach((name, at) =>
            this.form.control(name).activated.connect(guard(name, () => this.levelChosen(at))));
        const pattern = this.form.control("sortPattern");
        pattern.textEdited.connect(guard("sortPattern", () => this.set("pattern", pattern.text)));
        pattern.cursorPositionChanged.connect(guard("sortPattern.caret",
                                                    () => this.caretMoved(pattern.cursorPosition)));
        const entries = tokenEntries();
        this.form.setMenu("sortToken", entries.map((entry) => entry.text), entries.map((entry) => entry.value),
                          guard("sortToken", (token) => this.insert(token)));
        this.form.setItems("sortUndated",
                           [qsTr("Put in folder"), qsTr("Use date created"), qsTr("Use date changed"),
                                           qsTr("Do not move")], UNDATED);
        this.choice("sortUndated", "undated");
        const name = this.form.control("sortUndatedName");
        name.textEdited.connect(guard("sortUndatedName", () => this.set("undatedName", name.text)));
        this.form.control("sortKind").segments = [qsTr("Move"), qsTr("Copy"), qsTr("Link")];
        this.segments("sortKind", "kind", sort.KINDS);
        this.form.setItems("sortTaken", [qsTr("Keep both (add a number)"), qsTr("Skip")], ["number", "skip"]);
        this.choice("sortTaken", "ifTaken");
        this.form.control("sortDestination").activated.connect(guard("sortDestination",
                                                                     () => this.destinationChosen()));
    }

    showValues() {
        this.showPattern(this.settings.pattern);
        this.form.control("sortUndatedName").text = this.settings.undatedName;
        this.form.chooseValue("sortUndated", this.settings.undated);
        this.form.control("sortKind").selectedSegment = sort.KINDS.indexOf(this.settings.kind);
        this.form.chooseValue("sortTaken", this.settings.ifTaken);
        this.showDestinations();
    }

    showState() {
        this.showLevels();
        const isDated = prepared(this.settings.pattern).isDated;
        this.visible(["sortUndatedLabel", "sortUndated"], isDated);
        this.visible(["sortUndatedName"], isDated && this.settings.undated === "folder");
        this.say("sortKindNote", { move: "", copy: qsTr("The originals stay where they are."),
                                   link: qsTr("Links point to the files where they are now.") }[this.settings.kind]);
        this.showExample();
    }

    // A pattern that cannot be chosen level by level is described in the first box.
    showLevels() {
        const chosen = levelsOf(this.settings.pattern);
        const texts = [];
        const values = [];
        levelChoices().forEach((group) => {
            texts.push("-");
            values.push("-");
            group.forEach((choice) => { texts.push(choice.text); values.push(choice.value); });
        });
        const first = chosen === null || chosen[0] === "" ? [[qsTr("Custom pattern")], [OWN]] : [[], []];
        this.form.setItems("sortLevel1", first[0].concat(texts.slice(first[0].length > 0 ? 0 : 1)),
                           first[1].concat(values.slice(first[0].length > 0 ? 0 : 1)));
        LEVELS.slice(1)
            .forEach((name) => this.form.setItems(name, [qsTr("No more folders")].concat(texts), [""].concat(values)));
        const levels = chosen === null || chosen[0] === "" ? [OWN, "", ""] : chosen;
        LEVELS.forEach((name, at) => this.form.chooseValue(name, levels[at]));
        this.visible(["sortLevel2Label", "sortLevel2"], levels[0] !== OWN);
        this.visible(["sortLevel3Label", "sortLevel3"], levels[0] !== OWN && levels[1] !== "");
    }

    levelChosen(at) {
        const value = this.form.value(LEVELS[at]);
        if (value === OWN) {
            this.form.control("sortPattern").setFocus();
            return;
        }
        const levels = levelsOf(this.settings.pattern) || ["", "", ""];
        levels[at] = value;
        // Without a second level there is no third one.
        this.setPattern(patternOf(levels[1] === "" ? levels.slice(0, 1) : levels));
    }

    // A long pattern is shown from its beginning; tokens are still appended.
    showPattern(pattern) {
        const field = this.form.control("sortPattern");
        const before = this.filling;
        this.filling = true;
        field.text = pattern;
        field.cursorPosition = 0;
        this.filling = before;
        this.caret = pattern.length;
    }

    caretMoved(to) {
        if (!this.filling) {
            this.caret = to;
        }
    }

    setPattern(pattern) {
        this.showPattern(pattern);
        this.set("pattern", pattern);
    }

    insert(token) {
        const field = this.form.control("sortPattern");
        const at = this.caret;
        const text = field.text;
        this.setPattern(text.slice(0, at) + token + text.slice(at));
        field.setFocus();
        field.cursorPosition = at + token.length;
    }

    showDestinations() {
        const chosen = this.settings.destination;
        const folders = chosen.kind === "folder" && this.recent.indexOf(chosen.path) < 0
            ? [chosen.path].concat(this.recent) : this.recent;
        const texts = [qsTr("Folder of each picture")].concat(folders.map((folder) => shortPath(folder, files.home)));
        const values = ["beside"].concat(folders.map((folder) => FOLDER + folder));
        this.form.setItems("sortDestination", texts.concat(["-", qsTr("Choose Folder…")]),
                           values.concat(["-", "choose"]));
        this.form.chooseValue("sortDestination", chosen.kind === "folder" ? FOLDER + chosen.path : "beside");
        this.form.control("sortDestination").toolTip = chosen.kind === "folder" ? chosen.path : "";
    }

    destinationChosen() {
        const value = this.form.value("sortDestination");
        if (value === "beside") {
            this.useDestination({ kind: "beside", path: this.settings.destination.path });
            return;
        }
        const folder = value === "choose"
            ? shell.chooseFolder(qsTr("Sort into"), this.settings.destination.path || files.home)
            : String(value).slice(FOLDER.length);
        if (folder === null) {
            this.showDestinations();
        } else {
            this.recent = withNewest(this.recent, folder, KEPT_FOLDERS);
            keep(defaults, KEY, { folders: this.recent });
            this.useDestination({ kind: "folder", path: folder });
        }
    }

    useDestination(destination) {
        Object.assign(this.settings.destination, destination);
        this.showDestinations();
        this.changed();
    }

    /** Shows what happens to the current file; there is nothing to preview. */
    show(photo, services) {
        this.photo = photo;
        this.services = services;
        const messages = this.step.validate(this.settings);
        this.say("sortProblem", messages.join("\n"));
        if (messages.length > 0) {
            this.tree.clear();
        }
        this.showExample();
        return null;
    }

    showExample() {
        if (this.photo === null || this.services === null || this.step.validate(this.settings).length > 0) {
            this.say("sortExample", "");
            return;
        }
        const sorted = foldersFor(prepared(this.settings.pattern), this.photo.path,
                                  this.services.facts.of(this.photo.path), this.settings, 0);
        this.say("sortExample", sorted.stays ? fill(qsTr("%1 has no date and stays."), this.photo.name)
                                             : fill(qsTr("%1 → %2"), this.photo.name,
                                                    sorted.folders.join("/")));
    }

    /** A generator that shows a plan of the whole list in the tree; ids are those of its rows. */
    showPlan(plan, ids) {
        const showing = this.tree.show(plan, ids);
        return showing;
    }

    /** Called when a run begins: it works on the whole list, with current facts about the files. */
    starting() {
        this.tree.showAll();
        this.services.facts.forget();
    }

    runEnded() {
        this.tree.lookAgain();
    }

    /** Called when the list belongs to another action. */
    left() {
        this.tree.clear();
    }
}
