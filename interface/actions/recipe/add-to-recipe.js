// "Add to a Recipe…" of the actions that write pictures: their settings become operations of a new recipe or of one of the user's own.
// Services used: recipes (recipeFor), files (through recipe-files.js).

import { recipes } from "quorlin/recipes";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { copyOf } from "../../lib/copies.js";
import { allRecipes } from "./recipe-files.js";

const NEW = "";

export class AddToRecipe {
    /** @param add  called with the recipe of the settings, and the path of the user's recipe to extend, or "" */
    constructor(add) {
        this.add = add;
        this.action = null;
        this.settings = null;
        this.form = shell.loadForm("actions/recipe/add-to-recipe.ui");
        this.form.control("addToOk").clicked.connect(guard("addTo", () => this.end()));
        this.form.control("addToCancel").clicked.connect(guard("addTo", () => this.close()));
        this.form.control("addToEscape").triggered.connect(guard("addTo", () => this.close()));
        this.close();
    }

    /** Another action is shown. */
    use(action, settings) {
        this.action = action;
        this.settings = settings;
        this.close();
    }

    open() {
        const own = allRecipes().filter((recipe) => recipe.isOwn);
        this.form.setItems("addToChoice", [qsTr("A new recipe")].concat(own.map((recipe) => recipe.name)),
                           [NEW].concat(own.map((recipe) => recipe.path)));
        this.form.shown = true;
        this.form.control("addToEscape").enabled = true;
        this.form.control("addToChoice").setFocus();
    }

    close() {
        this.form.shown = false;
        // The window handles Escape again.
        this.form.control("addToEscape").enabled = false;
    }

    end() {
        const path = this.form.value("addToChoice");
        const made = copyOf(recipes.recipeFor(this.action.presets.form.process, this.settings));
        this.close();
        this.add({ quorlin: made.quorlin, name: "", operations: made.operations, outputs: made.outputs }, path);
    }
}
