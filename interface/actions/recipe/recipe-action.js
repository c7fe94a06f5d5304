// Recipe: several operations in sequence from one decoding, one or more outputs.

import { recipes } from "quorlin/recipes";
import { onPictures } from "../shared/on-pictures.js";
import { RECIPES } from "../../runs/recipes/recipes.js";
import { RecipePane } from "./recipe-pane.js";
import * as step from "./recipe-step.js";

export const recipe = Object.assign(onPictures({
    name: "recipe",
    title: () => qsTr("Recipe"),
    doing: () => qsTr("Work on the recipe"),
    step: step,
    pane: RecipePane,
    startText: (number) => qsTr("Run Recipe on %n Pictures", "", number),
}), { manner: RECIPES, takes: recipes.takes() });
