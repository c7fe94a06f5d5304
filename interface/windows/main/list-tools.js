// What can be done with the list as a whole, from the menus: the clocks of cameras, exporting the list, and recently
// used items.

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { tableOf, titlesOf } from "../../lib/list-table.js";
import { fill, numberText } from "../../lib/wording.js";
import { tableCsv } from "../../runs/report.js";
import { Clocks } from "../clocks/clocks.js";
import { ListProperties, restoreColumns } from "../list-properties/list-properties.js";
import { Recent } from "./recent.js";

const DESTINATIONS = "SaveFolders";
const RECIPES = "RecentRecipes";

export class ListTools {
    /** @param window  the main window's parts: form, pictures, services, settings, action, actionPage, livePlan, isBusy(), say() */
    constructor(window) {
        this.window = window;
        this.clocks = null;
        this.properties = null;
        this.job = shell.job();
        this.destinations = new Recent(window, "destinationsMenu", DESTINATIONS,
                                       (folder) => window.actionPage.output.useFolder(folder),
                                       window.actionPage.saveFolders);
        this.destinations.cleared = () => this.keepChosen();
        this.recipes = new Recent(window, "recipesMenu", RECIPES, (path) => window.input.addPaths([path]));
        const control = (name) => window.form.control(name);
        control("clocksAction").triggered.connect(guard("clocks", () => this.setClocks()));
        control("exportListAction").triggered.connect(guard("export", () => this.exportList()));
        restoreColumns(window.pictures);
        control("listPropertiesAction").triggered.connect(guard("properties", () => this.showProperties()));
        window.pictures.propertiesRequested.connect(guard("properties.asked", () => this.showProperties()));
        window.pictures.filterChanged.connect(guard("properties.filter", () => window.showFiltered()));
        window.pictures.propertiesProgress.connect(guard("properties.read", (done, count) => {
            window.sayBeside(done < count ? fill(qsTr("Reading properties: %1 of %2"), numberText(done),
                                                 numberText(count)) : "");
            window.showStart();
        }));
        window.pictures.copied.connect(guard("copied", (count) => this.copied(count)));
        window.pictures.ratingsChanged.connect(guard("ratings.changed", () => this.ratingsChanged()));
        window.pictures.leastRatingChanged.connect(guard("ratings.shown", () => window.showFiltered()));
        window.pictures.clocksChanged.connect(guard("clocks.changed", () => this.clocksChanged()));
    }

    show() {
        const busy = this.window.isBusy();
        const any = this.window.pictures.count > 0;
        this.window.form.control("clocksAction").enabled = any && !busy;
        this.window.form.control("exportListAction").enabled = any && !busy;
        this.destinations.open(!busy && this.window.action.manner.output);
        this.recipes.open(!busy);
    }

    /** Called after each change of the settings, which may introduce new folders and recipes. */
    settingsChanged() {
        const settings = this.window.settings;
        if (this.window.action.name === "recipe" && settings.path) {
            this.recipes.add(settings.path);
        }
        this.destinations.show();
    }

    // The folder that results go to stays available in the list.
    keepChosen() {
        const chosen = this.window.settings.output.destination;
        if (chosen.kind === "folder") {
            this.destinations.set([chosen.path]);
        }
        this.window.actionPage.output.showDestinations();
    }

    // Made when it is first used.
    setClocks() {
        if (this.clocks === null) {
            this.clocks = new Clocks(this.window.pictures);
        }
        this.clocks.open();
    }

    showProperties() {
        if (this.properties === null) {
            this.properties = new ListProperties(this.window);
        }
        this.properties.open();
    }

    // Facts are cached with the dates of the old clocks.
    clocksChanged() {
        this.window.services.facts.forget();
        this.window.livePlan.refresh();
        this.window.showCurrent();
    }

    // Names and folders may depend on ratings.
    ratingsChanged() {
        this.window.services.facts.forget();
        if (JSON.stringify(this.window.settings).indexOf("{rating") >= 0) {
            this.window.livePlan.refresh();
            this.window.showCurrent();
        }
        this.window.showFiltered();
        this.window.ratings.show();
    }

    copyFiles() {
        this.copied(this.window.pictures.copyFiles());
    }

    copied(count) {
        if (count > 0) {
            this.window.sayBeside(qsTr("%n files copied", "", count));
        }
    }

    exportList() {
        const path = shell.chooseNewFile(qsTr("Export the list"), "", qsTr("List") + ".csv", "csv");
        if (path === null) {
            return;
        }
        this.window.say(qsTr("Exporting the list…"));
        const work = tableOf(this.window.pictures, this.window.services.facts);
        this.job.start(work, () => undefined, guard("export.end", (how, rows) => {
            if (how === "done") {
                this.window.say(files.writeText(path, tableCsv(titlesOf(this.window.pictures), rows)) ||
                                fill(qsTr("The list was exported to %1"), path));
            }
        }));
    }
}
