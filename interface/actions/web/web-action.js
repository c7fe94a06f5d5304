// Web Page: a folder with one page and its pictures in two or three sizes.

import { recipes } from "quorlin/recipes";
import { SITES } from "../../runs/site/sites.js";
import { onPictures } from "../shared/on-pictures.js";
import { PAGE, PageFolder } from "./web-folder.js";
import { finishPage } from "./web-making.js";
import { WebPane } from "./web-pane.js";
import { presets } from "./web-presets.js";
import * as step from "./web-step.js";

export const web = Object.assign(onPictures({
    name: "web",
    title: () => qsTr("Web Page"),
    doing: () => qsTr("Making a web page"),
    step: step,
    pane: WebPane,
    presets: presets,
    startText: (number) => qsTr("Make Page of %n Pictures", "", number),
}), {
    manner: SITES, takes: recipes.takes(),
    site: { folder: (services, place) => new PageFolder(services, place), finish: finishPage, page: PAGE },
});
