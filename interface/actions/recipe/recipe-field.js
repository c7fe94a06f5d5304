// One setting of a card: its label and the control of its kind. See field-kinds.js.

import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { splitPath } from "../../lib/names.js";
import { insertAtCursor } from "../shared/token-menu.js";

// The control of each kind; other controls of the form are hidden.
const CONTROLS = { number: "fieldNumber", text: "fieldText", lines: "fieldLines", choice: "fieldChoice",
                   color: "fieldColor", position: "fieldPosition", check: "fieldCheck", file: "fieldText",
                   folder: "fieldText" };
const OTHERS = ["fieldTokens", "fieldChoose"];
const BARE = ["check"];

function placeNames() {
    return [
        qsTr("Top left"), qsTr("Top"), qsTr("Top right"), qsTr("Left"), qsTr("Centre"), qsTr("Right"),
        qsTr("Bottom left"), qsTr("Bottom"), qsTr("Bottom right")
    ];
}

export class RecipeField {
    /**
     * @param handlers  changed(field): a field has a new value; offerTokens(taker, button): a value is to be inserted
     */
    constructor(handlers) {
        this.handlers = handlers;
        this.field = null;
        this.filling = false;
        this.form = shell.loadForm("actions/recipe/recipe-field.ui");
        // A row with every control would widen the settings until the field is shown.
        Object.values(CONTROLS).concat(OTHERS).forEach((name) => { this.control(name).visible = false; });
        this.connect();
    }

    control(name) {
        return this.form.control(name);
    }

    connect() {
        const control = (name) => this.form.control(name);
        control("fieldPosition").names = placeNames();
        control("fieldText").textChanged.connect(guard("field", () => this.typed(control("fieldText").text)));
        control("fieldLines").textChanged.connect(guard("field", () => this.typed(control("fieldLines").plainText)));
        control("fieldChoice").activated.connect(guard("field", () => this.set(this.form.value("fieldChoice"))));
        control("fieldNumber").valueChanged.connect(guard("field", () => this.set(control("fieldNumber").value)));
        control("fieldColor").chosen.connect(guard("field", (color) => this.set(color)));
        control("fieldPosition").chosen.connect(guard("field", (place) => this.set(place)));
        control("fieldCheck").toggled.connect(guard("field", () => this.set(control("fieldCheck").checked)));
        control("fieldTokens")
            .clicked.connect(guard("field", () => this.handlers.offerTokens(this, control("fieldTokens"))));
        control("fieldChoose").clicked.connect(guard("field", () => this.choose()));
    }

    set(value) {
        if (!this.filling && this.field !== null && this.field.get() !== value) {
            this.field.set(value);
            this.handlers.changed(this.field);
        }
    }

    typed(text) {
        this.set(text);
    }

    /** A file or a folder of the user's choice. */
    choose() {
        const own = this.field.get() || "";
        const path = this.field.kind === "folder"
            ? shell.chooseFolder(qsTr("Save results to"), own.startsWith("/") ? own : "")
            : shell.chooseFile(this.field.label, own === "" ? "" : splitPath(own).folder, this.field.types);
        if (path !== null) {
            this.control("fieldText").text = this.field.kind === "folder" ? path.split("{").join("{{") : path;
        }
    }

    /** Inserts a token where the cursor is. */
    insert(text) {
        const name = CONTROLS[this.field.kind];
        if (this.field.kind === "lines") {
            this.control(name).insertPlainText(text);
            this.control(name).setFocus();
        } else {
            insertAtCursor(this.control(name), text);
        }
    }

    /** Shows a field; null hides the form. */
    show(field) {
        this.field = field;
        if (field === null) {
            this.form.shown = false;
            return;
        }
        this.filling = true;
        const own = CONTROLS[field.kind];
        Object.keys(CONTROLS).map((kind) => CONTROLS[kind]).concat(OTHERS)
            .forEach((name) => { this.control(name).visible = name === own; });
        this.control("fieldTokens").visible = field.tokens === true;
        this.control("fieldChoose").visible = field.kind === "file" || field.kind === "folder";
        this.control("fieldLabel").text = BARE.indexOf(field.kind) >= 0 ? "" : field.label;
        this.control(own).accessibleName = field.label;
        this.control(own).toolTip = field.tip || "";
        this.showValue(field, own);
        this.filling = false;
        this.form.shown = true;
    }

    showValue(field, name) {
        const control = this.control(name);
        const value = field.get();
        if (field.kind === "number") {
            control.decimals = field.decimals;
            control.minimum = field.least;
            control.maximum = field.most;
            control.suffix = field.suffix === "" ? "" : " " + field.suffix;
            control.value = Number(value) || 0;
        } else if (field.kind === "choice") {
            this.form.setItems(name, field.choices.map((each) => each[1]), field.choices.map((each) => each[0]));
            this.form.chooseValue(name, value);
        } else if (field.kind === "check") {
            control.text = field.label;
            control.checked = value === true;
        } else if (field.kind === "color") {
            control.color = value;
        } else if (field.kind === "position") {
            control.selectedSegment = value;
        } else if (field.kind === "lines") {
            this.showText(control, "plainText", value);
        } else {
            this.showText(control, "text", value);
        }
    }

    // Text being typed is left alone, and so is the cursor.
    showText(control, property, value) {
        const text = typeof value === "string" ? value : "";
        if (control[property] !== text) {
            control[property] = text;
        }
    }

    setFocus() {
        this.control(CONTROLS[this.field.kind]).setFocus();
    }
}
