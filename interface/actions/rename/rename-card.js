// One step of a chain of names as a card: switched on and off, moved, removed, edited in place, explained by an example.

import { shell } from "quorlin/shell";
import { tokens } from "quorlin/tokens";
import { guard } from "../../lib/guard.js";
import { hasParts, PARTS, stepProblems } from "./name-steps.js";
import { kindWords, summaryOf } from "./step-words.js";

// Which field of the form shows which setting, by kind: [field, setting, label, texts of the choices].
function fieldsOf(step) {
    const text = (setting, label) => ["firstText", setting, label];
    const counter = step.kind === "text" && tokens.parts(step.pattern).some((part) => part.token === "counter");
    const tables = {
        text: () => [text("pattern", qsTr("Text"))].concat(counter ? [
            ["firstNumber", "counterStep", qsTr("Increment")],
            ["firstChoice", "counterScope", qsTr("Restart counter"),
             [["run", qsTr("Never")], ["folder", qsTr("For each folder")], ["date", qsTr("For each date taken")]]],
        ] : []),
        "case": () =>
            [["firstChoice", "mode", qsTr("Case"),
              [["1", qsTr("lower case")], ["2", qsTr("UPPER CASE")], ["3", qsTr("Words With Capitals")]]]],
        replace: () => [text("search", qsTr("Replace")), ["secondText", "replacement", qsTr("With")]],
        insert: () => [text("text", qsTr("Insert")), ["firstNumber", "position", qsTr("After")],
                       ["firstChoice", "from", qsTr("Characters"),
                        [["start", qsTr("from the start")], ["end", qsTr("from the end")]]]],
        around: () => [text("before", qsTr("Before")), ["secondText", "after", qsTr("After")]],
        strip: () =>
            [["firstNumber", "count", qsTr("Characters")],
             ["firstChoice", "side", qsTr("From"), [["fLeft", qsTr("the left")], ["fRight", qsTr("the right")]]]],
        section: () => [["firstNumber", "start", qsTr("From the")], ["secondNumber", "length", qsTr("Characters")]],
        split: () =>
            [text("separator", qsTr("Separator")), ["secondText", "pieces", qsTr("Pieces")],
             ["thirdText", "joiner", qsTr("Join with")]],
        letters: () =>
            [["firstChoice", "keep", qsTr("Keep"), [["NA", qsTr("letters and digits")], ["OL", qsTr("letters only")]]]],
        spaces: () => [],
        fold: () => [text("other", qsTr("Others"))],
        utf8: () => [["firstChoice", "form", qsTr("Accents"),
                      [["NFC", qsTr("as one letter (NFC)")], ["NFD", qsTr("as separate marks (NFD)")]]]],
        only: () => [["firstChoice", "where", qsTr("Names that"),
                      [["contains", qsTr("contain")], ["begins", qsTr("begin with")], ["ends", qsTr("end with")]]],
                     text("text", qsTr("Text"))],
    };
    return tables[step.kind]();
}

// Numbers that count positions start at 1.
const LEAST = { start: 1, counterStep: 1 };
const ALL_FIELDS = ["firstText", "secondText", "thirdText", "firstChoice", "firstNumber", "secondNumber"];
const PLACEHOLDERS = { pieces: () => qsTr("all, or 2,1 or -1"), pattern: () => qsTr("{taken} lake {counter:001}") };

export class RenameCard {
    /**
     * @param handlers  what the pane does: changed(index), toggle(index), move(index, by), drag(index, by), drop(), remove(index),
     *               offerTokens(index, control)
     */
    constructor(index, handlers) {
        this.index = index;
        this.handlers = handlers;
        this.step = null;
        this.filling = false;
        this.shownFields = [];
        this.form = shell.loadForm("actions/rename/rename-card.ui");
        this.connect();
    }

    control(name) {
        return this.form.control(name);
    }

    connect() {
        const control = (name) => this.form.control(name);
        const handlers = this.handlers;
        control("cardOn").toggled.connect(guard("cardOn", () => this.set("on", control("cardOn").checked)));
        control("cardTitle").clicked.connect(guard("cardTitle", () => handlers.toggle(this.index)));
        control("cardDelete").clicked.connect(guard("cardDelete", () => handlers.remove(this.index)));
        control("cardRemove").triggered.connect(guard("cardRemove", () => handlers.remove(this.index)));
        control("cardUp").triggered.connect(guard("cardUp", () => handlers.move(this.index, -1)));
        control("cardDown").triggered.connect(guard("cardDown", () => handlers.move(this.index, 1)));
        control("cardHandle").stepped.connect(guard("cardHandle", (by) => handlers.move(this.index, by)));
        control("cardHandle").dragged.connect(guard("cardHandle", (by) => handlers.drag(this.index, by)));
        control("cardHandle").released.connect(guard("cardHandle", () => handlers.drop()));
        control("cardTokens").clicked.connect(guard("cardTokens",
                                                    () => handlers.offerTokens(this.index, control("cardTokens"))));
        for (const name of ["firstText", "secondText", "thirdText"]) {
            control(name).textChanged.connect(guard(name, () => this.setField(name, control(name).text)));
        }
        for (const name of ["firstNumber", "secondNumber"]) {
            control(name).valueChanged.connect(guard(name, () => this.setField(name, control(name).value)));
        }
        control("firstChoice").activated.connect(guard("firstChoice",
                                                       () => this.setField("firstChoice",
                                                                           this.form.value("firstChoice"))));
        control("part").activated.connect(guard("part", () => this.set("part", this.form.value("part"))));
    }

    setField(name, value) {
        const field = this.shownFields.find((each) => each[0] === name);
        if (field !== undefined) {
            this.set(field[1], value);
        }
    }

    set(setting, value) {
        if (!this.filling && this.step !== null && this.step[setting] !== value) {
            this.step[setting] = value;
            this.handlers.changed(this.index);
        }
    }

    /** Shows a step, whose settings are changed in place; null hides the card. */
    show(step, isOpen, areFolders) {
        this.step = step;
        this.form.shown = step !== null;
        if (step === null) {
            return;
        }
        this.filling = true;
        const words = kindWords()[step.kind];
        this.control("cardTitle").text = words.title;
        this.control("cardTitle").accessibleName = words.title + ": " + summaryOf(step).map((part) => part.text)
            .join("");
        this.control("cardOn").checked = step.on;
        this.form.setLook("renameCard", "open", String(isOpen));
        this.control("cardFields").visible = isOpen;
        this.showSummary();
        if (isOpen) {
            this.showFields(areFolders);
        }
        this.filling = false;
    }

    showSummary() {
        const parts = summaryOf(this.step);
        this.control("cardSummary").enabled = this.step.on;
        this.control("cardSummary").setParts(parts.map((part) => part.text), parts.map((part) => part.chip));
    }

    showFields(areFolders) {
        const step = this.step;
        this.shownFields = fieldsOf(step);
        ALL_FIELDS.forEach((name) => {
            const field = this.shownFields.find((each) => each[0] === name);
            this.control(name).visible = field !== undefined;
            this.control(name + "Label").visible = field !== undefined;
            if (field !== undefined) {
                this.showField(field);
            }
        });
        this.control("firstTextHost").visible = this.shownFields.some((each) => each[0] === "firstText");
        this.control("cardTokens").visible = step.kind === "text";
        const parts = hasParts(step.kind) && !areFolders;
        this.control("part").visible = parts;
        this.control("partLabel").visible = parts;
        if (parts) {
            this.form.setItems("part", [qsTr("Name"), qsTr("Extension"), qsTr("Name and extension")], PARTS);
            this.form.chooseValue("part", step.part);
        }
    }

    showField(field) {
        const [name, setting, label, choices] = field;
        const value = this.step[setting];
        this.control(name + "Label").text = label;
        this.control(name).accessibleName = label;
        if (choices !== undefined) {
            this.form.setItems(name, choices.map((choice) => choice[1]), choices.map((choice) => choice[0]));
            this.form.chooseValue(name, value);
        } else if (typeof value === "number") {
            this.control(name).minimum = LEAST[setting] || 0;
            this.control(name).value = value;
        } else {
            this.control(name).placeholderText = PLACEHOLDERS[setting] === undefined ? "" : PLACEHOLDERS[setting]();
            if (this.control(name).text !== value) {
                this.control(name).text = value;
            }
        }
    }

    /** Says what the step does to the example, and how many names are too short for it. */
    explain(before, after, short) {
        const problems = stepProblems(this.step);
        const tooShort = this.step.on && short > 0
            ? [qsTr("%n names are too short and stay unchanged.", "", short)] : [];
        this.say("cardExample", this.step.on && problems.length === 0 && after !== undefined && after !== before ? before + " → " + after : "");
        this.say("cardProblem", problems.concat(tooShort).join("\n"));
    }

    say(name, text) {
        this.control(name).text = text;
        this.control(name).visible = text !== "";
    }

    /** Puts the cursor into the first field, or on the title if there is none. */
    focusFirst() {
        const first = this.shownFields.length > 0 ? this.shownFields[0][0] : "cardTitle";
        this.control(first).setFocus();
        if (first.endsWith("Text")) {
            this.control(first).selectAll();
        }
    }
}
