// The head of the Recipe pane: which recipe is shown, and what can be done with it as a file.
// Services used: files, recipes (through recipe-files.js).

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { copyOf } from "../../lib/copies.js";
import { guard } from "../../lib/guard.js";
import { splitPath } from "../../lib/names.js";
import { fill, shortPath } from "../../lib/wording.js";
import {
    allRecipes, freeName, nameProblem, ownFolder, ownPath, readRecipe, trashRecipe, writeRecipe,
} from "./recipe-files.js";
import { newRecipe, parsed, RECIPE_TYPE, textOf, withAbsolutePaths } from "./recipe-text.js";

const EDITING = ["recipeNameLabel", "recipeName", "recipeNameButtons"];

export class RecipeHead {
    /** @param pane  the Recipe pane: form, settings, recipe, showRecipe(file), takeFile(path, text), tell(text) */
    constructor(pane) {
        this.pane = pane;
        this.form = pane.form;
        this.editing = "";
        this.problem = "";
        this.menuState = "";
        this.fileText = null;
        /** The changed recipe that another one replaced, {text, folder, path}, or null. */
        this.left = null;
        this.all = [];
        this.connect();
    }

    connect() {
        const control = (name) => this.form.control(name);
        control("recipeChoice")
            .activated.connect(guard("recipeChoice", () => this.choose(this.form.value("recipeChoice"))));
        control("recipeName").textChanged.connect(guard("recipeName", () => this.showNameProblem()));
        control("recipeName").returnPressed.connect(guard("recipeName", () => this.endEditing()));
        control("recipeOk").clicked.connect(guard("recipeOk", () => this.endEditing()));
        control("recipeCancel").clicked.connect(guard("recipeCancel", () => this.cancelEditing()));
        control("recipeEscape").triggered.connect(guard("recipeCancel", () => this.cancelEditing()));
    }

    /** Reads which recipes there are, and lists them. */
    look() {
        this.all = allRecipes();
        const path = this.pane.settings.path;
        this.fileText = path === "" || !files.info(path).exists ? null : files.readText(path);
        this.show();
    }

    current() {
        return this.all.find((recipe) => recipe.path === this.pane.settings.path) || null;
    }

    isChanged() {
        return this.fileText === null || this.fileText !== this.pane.settings.text;
    }

    /** The name of what is shown. */
    name() {
        const known = this.current();
        const path = this.pane.settings.path;
        if (known !== null) {
            return known.name;
        }
        return path === "" ? qsTr("New recipe") : splitPath(path).base;
    }

    show() {
        this.showChoice();
        this.showMenu();
        this.showEditing();
    }

    showChoice() {
        const path = this.pane.settings.path;
        const supplied = this.all.filter((recipe) => !recipe.isOwn);
        const own = this.all.filter((recipe) => recipe.isOwn);
        const other = this.current() === null ? [{ name: this.name(), path: path }] : [];
        const groups = [other, own, supplied].filter((group) => group.length > 0);
        const entries = groups.reduce(
            (all, group) => (all.length === 0 ? group : all.concat([{ name: "-", path: "-" }], group)), []);
        // The dot precedes the name, so that it is visible even if a long name is cut off.
        const text = (recipe) => (recipe.path === path && this.isChanged() ? "• " + recipe.name : recipe.name);
        this.form.setItems("recipeChoice", entries.map(text), entries.map((recipe) => recipe.path));
        this.form.chooseValue("recipeChoice", path);
        const isChanged = path !== "" && this.isChanged();
        this.form.control("recipeChoice").toolTip = isChanged ? fill(qsTr("%1, changed"), this.name()) : this.name();
        this.form.control("recipeChoice").accessibleDescription = isChanged ? qsTr("changed") : "";
        this.label("recipeNote", this.problem === "" && path !== "" && other.length > 0
            ? fill(qsTr("Opened from %1"), shortPath(path, files.home)) : "");
        this.label("recipeProblem", this.problem);
    }

    label(name, text) {
        this.form.control(name).text = text;
        this.form.control(name).visible = text !== "";
    }

    // [text, what it does]; an entry without a function is disabled.
    menuEntries() {
        const current = this.current();
        const isOwn = current !== null && current.isOwn;
        const isFile = isOwn || (current === null && this.pane.settings.path !== "");
        const ifTrue = (condition, what) => (condition ? what : null);
        return [[qsTr("New Recipe"), "make"], ["-", null],
                [qsTr("Save"), ifTrue(isFile && this.isChanged(), "save")], [qsTr("Save As…"), "saveAs"],
                [qsTr("Rename…"), ifTrue(isOwn, "rename")], [qsTr("Delete…"), ifTrue(isOwn, "remove")],
                [qsTr("Restore Unsaved Changes"), ifTrue(this.left !== null, "restore")], ["-", null],
                [qsTr("Export…"), "saveFile"], [qsTr("Import…"), "bringIn"]];
    }

    showMenu() {
        const entries = this.menuEntries();
        const state = JSON.stringify(entries);
        if (state !== this.menuState) {
            this.menuState = state;
            this.form.setMenu("recipeMenu", entries.map((entry) => entry[0]), entries.map((entry) => entry[1]),
                              guard("recipes", (what) => this.act(what)));
        }
    }

    act(what) {
        this.problem = "";
        const doings = {
            make: () => this.make(),
            save: () => this.save(),
            saveAs: () => this.edit("saveAs"),
            rename: () => this.edit("rename"),
            remove: () => this.remove(),
            restore: () => this.restore(),
            saveFile: () => this.saveFile(),
            bringIn: () => this.bringIn()
        };
        doings[what]();
        this.show();
    }

    /** Shows the recipe of a file; paths that it reads or writes elsewhere must be allowed first. Nothing is run. */
    choose(path) {
        const read = readRecipe(path);
        this.problem = read.problem;
        if (read.problem === "") {
            this.keepChanges();
            this.fileText = read.text;
            this.pane.showRecipe({ text: read.text, folder: splitPath(path).folder, path: path });
        }
        this.look();
        return read.problem;
    }

    make() {
        this.makeOf(newRecipe(qsTr("Results")));
    }

    /** Shows a recipe that no file holds. */
    makeOf(recipe) {
        this.keepChanges();
        this.fileText = null;
        this.pane.showRecipe({ text: textOf(recipe), folder: ownFolder(), path: "" });
    }

    /** Keeps what is shown, since another recipe takes its place, if no file holds it. */
    keepChanges() {
        const settings = this.pane.settings;
        const isNew = settings.path === "" && settings.text === textOf(newRecipe(qsTr("Results")));
        if (settings.text !== "" && !isNew && this.isChanged()) {
            this.left = { text: settings.text, folder: settings.folder, path: settings.path };
            this.pane.tell(fill(qsTr("The changes to “%1” were not saved. Its menu can restore them."), this.name()));
        }
    }

    /** Shows what another recipe replaced; that one is kept in turn if it has changes. */
    restore() {
        const left = this.left;
        this.left = null;
        this.keepChanges();
        this.pane.showRecipe(left);
        this.look();
    }

    save() {
        this.writeTo(this.pane.settings.path);
    }

    // Writes what is shown and shows that file.
    writeTo(path) {
        const recipe = copyOf(this.pane.recipe);
        recipe.name = splitPath(path).base;
        this.problem = writeRecipe(path, recipe, this.pane.settings.folder);
        if (this.problem === "") {
            this.pane.takeFile(path, files.readText(path));
        }
        this.look();
    }

    edit(what) {
        this.editing = what;
        const name =
            what === "rename"
                ? this.name()
                : freeName(this.current() === null && this.pane.settings.path === "" ? qsTr("My recipe") : this.name());
        this.form.control("recipeOk").text = what === "rename" ? qsTr("Rename") : qsTr("Save");
        this.form.control("recipeName").text = name;
        this.showEditing();
        this.form.control("recipeName").setFocus();
        this.form.control("recipeName").selectAll();
    }

    showEditing() {
        const on = this.editing !== "";
        EDITING.forEach((name) => { this.form.control(name).visible = on; });
        ["recipeHost", "recipeMenu"].forEach((name) => { this.form.control(name).visible = !on; });
        this.form.control("recipeEscape").enabled = on;
        this.showNameProblem();
    }

    typedName() {
        return this.form.control("recipeName").text.trim();
    }

    showNameProblem() {
        const problem = this.editing === ""
            ? "" : nameProblem(this.typedName(), this.editing === "rename" ? this.pane.settings.path : "");
        this.label("recipeNameProblem", problem);
        this.form.control("recipeOk").enabled = problem === "";
    }

    cancelEditing() {
        if (this.editing !== "") {
            this.editing = "";
            this.show();
            this.form.control("recipeChoice").setFocus();
        }
    }

    endEditing() {
        const what = this.editing;
        if (what === "" || !this.form.control("recipeOk").enabled) {
            return;
        }
        this.editing = "";
        const before = this.pane.settings.path;
        const path = ownPath(this.typedName());
        if (path !== before || what === "saveAs") {
            this.writeTo(path);
        }
        if (what === "rename" && path !== before && this.problem === "") {
            this.problem = trashRecipe(before);
            this.look();
        }
        this.show();
        this.form.control("recipeChoice").setFocus();
    }

    remove() {
        const name = this.name();
        const answer = shell.ask({
            title: qsTr("Delete recipe"), text: fill(qsTr("Move the recipe “%1” to the trash?"), name),
            detail: qsTr("Your current settings are kept."),
            buttons: [qsTr("Delete"), qsTr("Keep")], initial: 1, escape: 1, check: "",
        });
        if (answer.button === 0) {
            this.problem = trashRecipe(this.pane.settings.path);
            if (this.problem === "") {
                this.pane.takeFile("", this.pane.settings.text);
            }
            this.look();
        }
    }

    saveFile() {
        const offered = this.name().replace(/[\/\\:*?"<>|]/g, "-") + "." + RECIPE_TYPE;
        const path = shell.chooseNewFile(qsTr("Export the recipe"), "", offered, RECIPE_TYPE);
        if (path !== null) {
            const recipe = withAbsolutePaths(this.pane.recipe, this.pane.settings.folder);
            this.problem = files.writeText(path, textOf(recipe));
            this.pane.tell(this.problem || fill(qsTr("Recipe exported as %1"), path));
        }
    }

    // A copy among the user's own recipes; its paths do not depend on where it came from.
    bringIn() {
        const from = shell.chooseFile(qsTr("Import a recipe"), "", [RECIPE_TYPE]);
        if (from === null) {
            return;
        }
        const read = readRecipe(from);
        const path = ownPath(freeName(splitPath(from).base));
        this.problem = read.problem || writeRecipe(path, parsed(read.text), splitPath(from).folder);
        if (this.problem === "") {
            this.choose(path);
        }
    }
}
