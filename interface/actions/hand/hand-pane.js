// The settings of Sort by Hand: what a key does, and the folders with their keys.

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { MODES } from "./hand-sorting.js";
import { KEYS, labelOf, MOST_SLOTS, slotProblem, withFolders, withLabel, withMoved,
         withoutSlot } from "./hand-slots.js";
import { joinPath, splitPath } from "../../lib/names.js";
import { fill, shortPath } from "../../lib/wording.js";
import * as hand from "./hand-step.js";
import { Pane } from "../shared/pane.js";

export class HandPane extends Pane {
    /** @param parts  what panes get of the window: sayBeside is used */
    constructor(settings, changed, parts) {
        super("actions/hand/hand-pane.ui", hand, settings, changed);
        this.sayBeside = parts.sayBeside;
        this.list = this.form.control("handSlots");
        this.countIn = (_folder) => 0;
        this.chosen = (_slot, _row) => undefined;
        this.picture = "";
        this.problems = [];
        this.join();
        this.fill();
    }

    /**
     * @param countIn  how many pictures were put into a folder; @param chosen  called with {path, label} of a slot and
     * its row
     */
    use(countIn, chosen) {
        this.countIn = countIn;
        this.chosen = chosen;
        this.look();
    }

    join() {
        const control = (name) => this.form.control(name);
        control("handMode").segments = [qsTr("Move"), qsTr("Copy"), qsTr("Link")];
        control("handMode").tips = [qsTr("Moves the picture to the folder. (Alt+1)"),
                                    qsTr("Copies the picture to the folder. (Alt+2)"),
                                    qsTr("Puts a link to the picture into the folder. (Alt+3)")];
        this.segments("handMode", "mode", MODES);
        control("handAdd").clicked.connect(guard("hand.add", () => this.addFolder()));
        control("handNew").clicked.connect(guard("hand.new", () => this.askName(true)));
        control("handNewCancel").clicked.connect(guard("hand.new", () => this.askName(false)));
        control("handNewMake").clicked.connect(guard("hand.new", () => this.makeFolder()));
        control("handNewName").returnPressed.connect(guard("hand.new", () => this.makeFolder()));
        control("handNewName").textChanged.connect(guard("hand.new", () => this.showNew()));
        this.list.slotChosen.connect(guard("hand.slot", (row) => this.chosen(this.slotAt(row), row)));
        this.list.labelEdited.connect(guard("hand.label",
                                            (row, label) => this.change(withLabel(this.settings.slots, row, label))));
        this.list.slotMoved.connect(guard("hand.move",
                                          (from, to) => this.change(withMoved(this.settings.slots, from, to))));
        this.list.foldersDropped.connect(guard("hand.drop", (paths) => this.addFolders(paths)));
        this.list.menuChosen.connect(guard("hand.menu", (row, action) => this.act(row, action)));
        this.list.currentSlotChanged.connect(guard("hand.current", () => this.showMore()));
        this.list.setMenu(this.menuTexts(), this.menuActions().map((action) => action || ""));
        this.askName(false);
    }

    slotAt(row) {
        const slot = this.settings.slots[row];
        return { path: slot.path, label: labelOf(slot) };
    }

    menuTexts() {
        return [qsTr("Rename Label"), qsTr("Show Folder"), "-", qsTr("Move Up"), qsTr("Move Down"), "-",
                qsTr("Remove from List"), qsTr("Remove All…")];
    }

    menuActions() {
        return ["label", "open", null, "up", "down", null, "remove", "clear"];
    }

    act(row, action) {
        const slots = this.settings.slots;
        if (action === "label") {
            this.list.editLabel(row);
        } else if (action === "open") {
            shell.openFolder(slots[row].path);
        } else if (action === "up" || action === "down") {
            const to = row + (action === "up" ? -1 : 1);
            this.change(withMoved(slots, row, to));
            this.list.choose(Math.max(0, Math.min(slots.length - 1, to)));
        } else if (action === "remove") {
            this.change(withoutSlot(slots, row));
        } else if (action === "clear" && this.mayClear()) {
            this.change([]);
        }
    }

    mayClear() {
        const answer = shell.ask({
            title: qsTr("Remove all folders"),
            text: qsTr("Remove all %n folders from the list?", "", this.settings.slots.length),
            detail: qsTr("The folders and your presets are not changed."),
            buttons: [qsTr("Remove"), qsTr("Keep")], initial: 1, escape: 1, check: "",
        });
        return answer.button === 0;
    }

    change(slots) {
        this.settings.slots = slots;
        this.look();
        this.changed();
    }

    addFolder() {
        const last = this.settings.slots[this.settings.slots.length - 1];
        const folder = shell.chooseFolder(qsTr("Choose a folder to sort into"),
                                          last === undefined ? "" : splitPath(last.path).folder);
        if (folder !== null) {
            this.addFolders([folder]);
        }
    }

    addFolders(paths) {
        const result = withFolders(this.settings.slots, paths);
        this.change(result.slots);
        this.list.reveal(result.slots.length - 1);
        const parts = result.known > 0
            ? [qsTr("%n folders are already in the list.", "", result.known)] : [];
        if (result.full > 0) {
            parts.push(qsTr("Only %n folders can have a key.", "", MOST_SLOTS));
        }
        if (parts.length > 0) {
            this.sayBeside(parts.join(" "));
        }
    }

    // A new folder is suggested beside the last one of the list, or beside the picture.
    parentFolder() {
        const last = this.settings.slots[this.settings.slots.length - 1];
        const beside = last !== undefined ? last.path : this.picture;
        return beside === "" ? files.home : splitPath(beside).folder;
    }

    askName(on) {
        this.form.control("handNewHost").visible = on;
        this.form.control("handNewName").text = "";
        this.showNew();
        if (on) {
            this.form.control("handNewName").setFocus();
        }
    }

    nameProblem(name) {
        if (name.indexOf("/") >= 0 || name === "." || name === "..") {
            return qsTr("This is not a valid folder name.");
        }
        return files.info(joinPath(this.parentFolder(), name)).exists
            ? qsTr("This name is already in use.") : "";
    }

    showNew() {
        const name = this.form.control("handNewName").text.trim();
        const problem = name === "" ? "" : this.nameProblem(name);
        this.form.control("handNewMake").enabled = name !== "" && problem === "";
        this.form.control("handNewNote").text = problem
            || fill(qsTr("In %1"), shortPath(this.parentFolder(), files.home));
        this.form.setLook("handNewNote", "role", problem ? "problem" : "note");
    }

    makeFolder() {
        const name = this.form.control("handNewName").text.trim();
        if (!this.form.control("handNewMake").enabled) {
            return;
        }
        const path = joinPath(this.parentFolder(), name);
        const problem = files.makeFolder(path);
        this.askName(false);
        if (problem) {
            this.sayBeside(problem);
        } else {
            this.addFolders([path]);
        }
    }

    // The folders of a preset replace all present ones.
    take(settings) {
        this.settings.mode = settings.mode;
        this.settings.slots = settings.slots.map((slot) => ({ path: slot.path, label: slot.label }));
        this.fill();
    }

    showValues() {
        this.form.control("handMode").selectedSegment = MODES.indexOf(this.settings.mode);
        this.problems = this.settings.slots.map((slot) => slotProblem(slot.path, files));
        this.showSlots();
    }

    /** Checks the folders again: one may have appeared or disappeared. */
    look() {
        this.problems = this.settings.slots.map((slot) => slotProblem(slot.path, files));
        this.showSlots();
    }

    /** Shows the folders and how many pictures were put there. */
    showSlots() {
        const slots = this.settings.slots;
        this.list.setSlots(slots
                               .map((slot, i) =>
                                   ({ key: KEYS[i], label: labelOf(slot), note: shortPath(slot.path, files.home),
                                      problem: this.problems[i],
                                                     count: this.countIn(slot.path) })));
        this.list.visible = slots.length > 0;
        this.form.control("handSlotsEmpty").visible = slots.length === 0;
        this.form.control("handAdd").enabled = slots.length < MOST_SLOTS;
        this.form.control("handNew").enabled = slots.length < MOST_SLOTS;
        this.showMore();
    }

    showMore() {
        const row = this.list.currentRow;
        const actions = this.menuActions().map((action) => (row >= 0 || action === "clear" ? action : null));
        this.form.setMenu("handMore", this.menuTexts(), actions, guard("hand.more", (action) => this.act(row, action)));
        this.form.control("handMore").enabled = this.settings.slots.length > 0;
    }

    /** Sets what the keys do, as if the user had pressed Alt and a digit. */
    chooseMode(mode) {
        this.form.control("handMode").selectedSegment = MODES.indexOf(mode);
        this.set("mode", mode);
    }

    show(photo) {
        this.picture = photo === null ? "" : photo.path;
        return null;
    }
}
