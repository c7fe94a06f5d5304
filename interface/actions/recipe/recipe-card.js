// One operation or output of a recipe as a card: switched on and off, moved, removed, its settings edited in place.

import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { operationFields } from "./operation-fields.js";
import { outputFields } from "./output-fields.js";
import { RecipeField } from "./recipe-field.js";
import { operationSummary, operationWords, outputSummary, outputTitle } from "./recipe-words.js";

// After a change of these the card has other fields.
const DECIDES = ["choice", "check"];

/** What a card shows: an operation {list, index, isNested}, or an output {list, index, isOutput}; the thing is list[index]. */
function thingOf(entry) {
    return entry.list[entry.index];
}

export class RecipeCard {
    /**
     * @param handlers  what the pane does with a card: changed(card), toggle(card), move(card, by), drag(card, by), drop(), remove(card),
     *                  copy(card), showOutput(card), addTo(card, button), offerTokens(field, button)
     */
    constructor(handlers) {
        this.handlers = handlers;
        this.entry = null;
        this.filling = false;
        this.fields = [];
        this.form = shell.loadForm("actions/recipe/recipe-card.ui");
        this.connect();
    }

    control(name) {
        return this.form.control(name);
    }

    connect() {
        const control = (name) => this.form.control(name);
        const handlers = this.handlers;
        const clicks = { cardTitle: "toggle", cardDelete: "remove", cardShow: "showOutput" };
        Object.keys(clicks).forEach((name) => {
            control(name).clicked.connect(guard(name, () => handlers[clicks[name]](this)));
        });
        control("cardOn").toggled.connect(guard("cardOn", () => this.switched(control("cardOn").checked)));
        control("cardRemove").triggered.connect(guard("cardRemove", () => handlers.remove(this)));
        control("cardCopy").triggered.connect(guard("cardCopy", () => handlers.copy(this)));
        control("cardUp").triggered.connect(guard("cardUp", () => handlers.move(this, -1)));
        control("cardDown").triggered.connect(guard("cardDown", () => handlers.move(this, 1)));
        control("cardHandle").stepped.connect(guard("cardHandle", (by) => handlers.move(this, by)));
        control("cardHandle").dragged.connect(guard("cardHandle", (by) => handlers.drag(this, by)));
        control("cardHandle").released.connect(guard("cardHandle", () => handlers.drop()));
        control("cardAdd").clicked.connect(guard("cardAdd", () => handlers.addTo(this, control("cardAdd"))));
    }

    switched(on) {
        const operation = this.entry === null ? null : thingOf(this.entry);
        if (this.filling || operation === null || on === (operation.off !== true)) {
            return;
        }
        if (on) {
            delete operation.off;
        } else {
            operation.off = true;
        }
        this.handlers.changed(this);
    }

    /** Shows an entry, whose thing is changed in place; null hides the card. isShown: an output whose result the preview shows. */
    show(entry, isOpen, isShown, mayRemove) {
        this.entry = entry;
        this.form.shown = entry !== null;
        if (entry === null) {
            return;
        }
        this.filling = true;
        const isOutput = entry.isOutput === true;
        const thing = thingOf(entry);
        this.control("cardOn").visible = !isOutput;
        this.control("cardOnSpace").visible = !isOutput;
        this.control("cardOn").checked = thing.off !== true;
        this.control("cardShow").visible = isOutput && !isShown;
        this.control("cardDelete").enabled = mayRemove;
        this.control("cardAdd").visible = isOutput && isOpen;
        this.control("cardPicture").visible = !isOutput;
        this.form.setLook("recipeCard", "open", String(isOpen));
        this.form.setLook("recipeCard", "nested", String(entry.isNested === true));
        this.showSummary();
        this.say("");
        this.control("cardFields").visible = isOpen;
        if (isOpen) {
            this.showFields();
        }
        this.filling = false;
    }

    /** Shows the picture at that path after the operations; nothing for "". */
    showPicture(path, operations) {
        this.control("cardPicture").showEdits(path, path === "" ? [] : [
            { do: "recipe", operations: operations, path: path }
        ]);
    }

    showSummary() {
        const thing = thingOf(this.entry);
        const isOutput = this.entry.isOutput === true;
        const words = operationWords()[thing.do] || { title: String(thing.do) };
        const title = isOutput ? outputTitle(thing, this.entry.index) : words.title;
        const summary = isOutput ? outputSummary(thing) : operationSummary(thing);
        this.control("cardTitle").text = title;
        this.control("cardTitle").accessibleName = title + ": " + summary;
        this.control("cardSummary").enabled = thing.off !== true;
        this.control("cardSummary").setParts([summary], [false]);
    }

    /** A sentence about what is wrong with the operation or output. */
    say(problem) {
        this.control("cardProblem").text = problem;
        this.control("cardProblem").visible = problem !== "";
    }

    showFields() {
        const thing = thingOf(this.entry);
        const fields = this.entry.isOutput ? outputFields(thing) : operationFields(thing);
        while (this.fields.length < fields.length) {
            const field = new RecipeField({ changed: (which) => this.fieldChanged(which),
                                            offerTokens: (taker, button) => this.handlers.offerTokens(taker, button) });
            this.form.place("cardFields", field.form);
            this.fields.push(field);
        }
        this.fields.forEach((field, i) => field.show(i < fields.length ? fields[i] : null));
        shell.alignFields(this.fields.slice(0, fields.length).map((field) => field.form));
    }

    fieldChanged(field) {
        if (DECIDES.indexOf(field.kind) >= 0) {
            this.showFields();
        }
        this.showSummary();
        this.handlers.changed(this);
    }

    /** Puts the cursor into the first field, or on the title if there is none. */
    focusFirst() {
        const first = this.fields.find((field) => field.field !== null);
        if (first === undefined) {
            this.control("cardTitle").setFocus();
        } else {
            first.setFocus();
        }
    }
}
