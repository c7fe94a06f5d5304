// The settings of the Recipe action: which recipe, its operations as cards, and its outputs below them.

import { copyOf } from "../../lib/copies.js";
import { guard } from "../../lib/guard.js";
import { Pane } from "../shared/pane.js";
import { fillTokens } from "../shared/token-menu.js";
import { CardColumn } from "./card-column.js";
import { RecipeBase } from "./recipe-base.js";
import { allRecipes, ownFolder } from "./recipe-files.js";
import { RecipeHead } from "./recipe-head.js";
import { allow, allowChanges, isAllowed, reachOf } from "./recipe-reach.js";
import { newRecipe, parsed, textOf, withAbsolutePaths } from "./recipe-text.js";
import { operationMenu } from "./recipe-words.js";
import * as step from "./recipe-step.js";

// About the height of a closed card and the gap after it.
const CARD_PX = 78;

export class RecipePane extends Pane {
    /** @param parts  what panes get of the window: services and sayBeside are used */
    constructor(settings, changed, parts) {
        super("actions/recipe/recipe-pane.ui", step, settings, changed);
        this.sayBeside = parts.sayBeside;
        this.recipe = null;
        /** The operation or output whose settings are shown, or null. */
        this.open = null;
        this.dragged = null;
        this.adding = null;
        /** @type {any} */
        this.taker = null;
        const handlers = this.cardHandlers();
        this.operations = new CardColumn(this.form, "operationCards", handlers);
        this.outputs = new CardColumn(this.form, "outputCards", handlers);
        this.head = new RecipeHead(this);
        this.base = new RecipeBase(this);
        this.join();
        this.begin();
        this.fill();
    }

    /** A message to show beside the settings. */
    tell(text) {
        this.sayBeside(text);
    }

    // The recipe of the last session, or the first of all.
    begin() {
        this.recipe = parsed(this.settings.text);
        if (this.recipe === null) {
            const all = allRecipes();
            const first = all.find((recipe) => recipe.path.endsWith("/Web gallery.quorlin")) || all[0];
            this.showRecipe({ text: textOf(newRecipe(qsTr("Results"))), folder: ownFolder(), path: "" });
            if (first !== undefined) {
                this.head.choose(first.path);
            }
        }
    }

    join() {
        const control = (name) => this.form.control(name);
        control("paneTitle").text = qsTr("Recipe");
        const menu = control("operationMenu");
        const entries = operationMenu();
        menu.setPlaceholder(qsTr("Search operations"));
        menu.setEntries(entries.map((entry) => entry.title), entries.map((entry) => entry.explanation),
                        entries.map((entry) => entry.words), entries.map((entry, i) => i));
        menu.chosen.connect(guard("operationMenu", (i) => this.add(copyOf(operationMenu()[i].operation))));
        control("addOperation").clicked.connect(guard("addOperation", () => {
            this.adding = this.recipe.operations;
            menu.popUp(control("addOperation"));
        }));
        control("addOutput").clicked.connect(guard("addOutput", () => this.addOutput()));
        control("reachAllow").clicked.connect(guard("reachAllow", () => this.allowAll()));
        fillTokens(control("tokenMenu"), () => true, (text) => this.taker.insert(text));
    }

    cardHandlers() {
        return {
            changed: () => this.note(), toggle: (card) => this.toggle(card),
            move: (card, by) => this.move(card, by), drag: (card, by) => this.drag(card, by),
            drop: () => { this.dragged = null; },
            remove: (card) => this.remove(card), copy: (card) => this.copy(card),
            showOutput: (card) => this.showOutput(card.entry.index),
            addTo: (card, button) => this.addTo(card, button),
            offerTokens: (field, button) => {
                this.taker = field;
                this.form.control("tokenMenu").popUp(button);
            },
        };
    }

    /** Shows another recipe: {text, folder, path}. */
    showRecipe(file) {
        Object.assign(this.settings, file, { shown: 0 });
        this.recipe = parsed(file.text);
        this.open = null;
        this.fill();
        this.changed();
    }

    /** The shown recipe was written to a file, or no longer belongs to one. Its permissions stay. */
    takeFile(path, text) {
        const isFree = isAllowed(this.settings);
        Object.assign(this.settings, {
            path: path,
            text: text,
            folder: path === "" ? this.settings.folder : path.slice(0, path.lastIndexOf("/"))
        });
        this.recipe = parsed(text);
        this.open = null;
        if (isFree) {
            allow(this.settings);
        }
        this.fill();
        this.changed();
    }

    /** Opens a recipe file without running it. Answers the problem. */
    openFile(path) {
        return this.head.choose(path);
    }

    /**
     * Adds the operations of another action to the own recipe of that path, or to a new one for "". It is not saved.
     * Answers the problem.
     */
    addFrom(recipe, path) {
        if (path === "") {
            this.head.makeOf(recipe);
            allow(this.settings);
            this.fill();
            this.changed();
            return "";
        }
        const problem = path === this.settings.path ? "" : this.openFile(path);
        if (problem !== "") {
            return problem;
        }
        if (recipe.operations.length === 0) {
            recipe.outputs.forEach((output) => this.recipe.outputs.push(output));
        }
        recipe.operations.forEach((operation) => this.recipe.operations.push(operation));
        this.listChanged();
        return "";
    }

    take(settings) {
        this.head.keepChanges();
        Object.assign(this.settings, settings);
        this.recipe = parsed(this.settings.text);
        this.fill();
    }

    showValues() {
        this.head.look();
        this.base.show();
    }

    showState() {
        this.showCards();
        this.showReach();
    }

    // The outputs, each with its own operations behind it.
    outputEntries() {
        const outputs = this.recipe.outputs;
        return outputs.reduce(
            (entries, output, i) =>
                entries.concat([{ list: outputs, index: i, isOutput: true }],
                               (output.operations ||
                                []).map((operation, at) => ({ list: output.operations, index: at, isNested: true }))),
            []);
    }

    showCards() {
        if (this.recipe === null) {
            return;
        }
        const recipe = this.recipe;
        const shown = Math.min(this.settings.shown, recipe.outputs.length - 1);
        const look = (entry) => ({
            isOpen: entry.list[entry.index] === this.open,
            isShown: entry.isOutput === true && (recipe.outputs.length === 1 || entry.index === shown),
            mayRemove: entry.isOutput !== true || recipe.outputs.length > 1,
        });
        this.operations.show(recipe.operations.map((operation, i) => ({ list: recipe.operations, index: i })), look);
        this.outputs.show(this.outputEntries(), look);
        this.form.control("noOperations").visible = recipe.operations.length === 0;
        this.form.arrangeTabs();
    }

    show(photo, services) {
        const planned = super.show(photo, services);
        const isSound = photo !== null && this.form.control("problemText").text === "";
        this.showPictures(isSound ? photo.path : "");
        return planned;
    }

    // On each card of an operation the picture after it.
    showPictures(path) {
        const recipe = withAbsolutePaths(this.recipe, this.settings.folder);
        const upTo = (list, entry) => list.slice(0, entry.index + 1);
        let own = [];
        this.operations.cards.filter((card) => card.entry !== null)
            .forEach((card) => card.showPicture(path, upTo(recipe.operations, card.entry)));
        this.outputs.cards.filter((card) => card.entry !== null).forEach((card) => {
            if (card.entry.isOutput) {
                own = recipe.outputs[card.entry.index].operations || [];
            } else {
                card.showPicture(path, recipe.operations.concat(upTo(own, card.entry)));
            }
        });
    }

    showReach() {
        const reach = reachOf(this.settings);
        const isHeld = !isAllowed(this.settings);
        this.form.control("reachBar").visible = isHeld;
        const part = (title, paths) => (paths.length === 0 ? [] : [title + "\n" + paths.join("\n")]);
        this.form.control("reachText").text = isHeld
            ? part(qsTr("It reads:"), reach.reads).concat(part(qsTr("It writes to:"), reach.writes)).join("\n\n") : "";
    }

    allowAll() {
        allow(this.settings);
        this.showReach();
        this.changed();
    }

    cardOf(thing) {
        return this.operations.cardOf(thing) || this.outputs.cardOf(thing);
    }

    // What the user does to the recipe here is allowed without asking.
    note() {
        const before = reachOf(this.settings);
        this.settings.text = textOf(this.recipe);
        allowChanges(before, this.settings);
        this.head.show();
        this.showReach();
        this.changed();
    }

    listChanged() {
        this.recipe.outputs.filter((output) => output.operations !== undefined && output.operations.length === 0)
            .forEach((output) => { delete output.operations; });
        this.showCards();
        this.note();
    }

    toggle(card) {
        const thing = card.entry.list[card.entry.index];
        this.open = this.open === thing ? null : thing;
        this.showCards();
        if (this.open !== null) {
            this.cardOf(thing).focusFirst();
        }
    }

    add(operation) {
        this.adding.push(operation);
        this.open = operation;
        this.listChanged();
        this.cardOf(operation).focusFirst();
    }

    addTo(card, button) {
        const output = card.entry.list[card.entry.index];
        output.operations = output.operations || [];
        this.adding = output.operations;
        this.form.control("operationMenu").popUp(button);
    }

    addOutput() {
        const outputs = this.recipe.outputs;
        const output = copyOf(outputs[outputs.length - 1]);
        outputs.push(output);
        this.settings.shown = outputs.length - 1;
        this.open = output;
        this.listChanged();
        this.cardOf(output).focusFirst();
    }

    showOutput(index) {
        this.settings.shown = index;
        this.showCards();
        this.changed();
    }

    copy(card) {
        const entry = card.entry;
        const copied = copyOf(entry.list[entry.index]);
        entry.list.splice(entry.index + 1, 0, copied);
        this.listChanged();
        this.cardOf(copied).control("cardTitle").setFocus();
    }

    remove(card) {
        const entry = card.entry;
        if (entry.isOutput && entry.list.length === 1) {
            return;
        }
        const list = entry.list;
        const gone = list.splice(entry.index, 1)[0];
        this.open = this.open === gone ? null : this.open;
        if (entry.isOutput) {
            this.settings.shown = Math.min(this.settings.shown, list.length - 1);
        }
        const next = list[Math.min(entry.index, list.length - 1)];
        this.listChanged();
        (next === undefined ? this.form.control("addOperation") : this.cardOf(next).control("cardTitle")).setFocus();
    }

    move(card, by) {
        const thing = card.entry.list[card.entry.index];
        if (this.swap(card.entry.list, card.entry.index, card.entry.index + by)) {
            this.cardOf(thing).control("cardHandle").setFocus();
        }
    }

    swap(list, from, to) {
        if (to < 0 || to >= list.length) {
            return false;
        }
        const thing = list[from];
        list[from] = list[to];
        list[to] = thing;
        this.listChanged();
        return true;
    }

    // The pressed card keeps the pointer; its content moves from card to card, one for each height of a closed card.
    drag(card, by) {
        if (this.dragged === null) {
            this.dragged = { list: card.entry.list, from: card.entry.index, at: card.entry.index };
            this.open = null;
            this.showCards();
        }
        const drag = this.dragged;
        const wanted = Math.max(0, Math.min(drag.list.length - 1, drag.from + Math.round(by / CARD_PX)));
        while (drag.at !== wanted) {
            const next = drag.at + (wanted > drag.at ? 1 : -1);
            this.swap(drag.list, drag.at, next);
            drag.at = next;
        }
    }
}
