// The preferences: a sheet of the main window.

import { cSheetControl } from "quorlin";
import { defaults } from "quorlin/defaults";
import { recipes } from "quorlin/recipes";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { limitRows } from "../../runs/log-file.js";
import { keep, recall } from "../../lib/store.js";
import { KEY as UPDATE, STANDARD as UPDATE_STANDARD } from "../../lib/update.js";
import { fill } from "../../lib/wording.js";
import { DESTINATIONS, keepWish, LOG_ROWS, MEMORY, TAKEN, wishes } from "../../lib/wishes.js";

// The key that services read as well. Languages have the names that their speakers use.
const LANGUAGE = "Language";
const LANGUAGES = [["en", "English"], ["nl", "Nederlands"], ["de", "Deutsch"], ["fr", "Français"]];

// So many of the processors that this process may use; all of them if the user did not choose, or chose on a larger
// machine.
function processorsOf(chosen) {
    return chosen >= 1 && chosen <= recipes.processors() ? chosen : recipes.processors();
}

function processorWords(number) {
    return number === recipes.processors() ? fill(qsTr("all %1 processors"), number)
        : fill(qsTr("%1 of %2 processors"), number, recipes.processors());
}

function memoryWords(megabytes) {
    return megabytes === 0 ? qsTr("all free memory") : fill(qsTr("%1 GB at most"), megabytes / 1024);
}

export class Preferences {
    /**
     * @param mainForm  the form of the main window
     * @param pictures  the list of the main window
     * @param chosen    called after the user was asked for the support folder
     */
    constructor(mainForm, pictures, chosen) {
        this.chosen = chosen;
        this.form = shell.loadForm("windows/preferences/preferences.ui");
        this.pictures = pictures;
        this.pictures.sharesThumbnails = wishes(defaults).sharesThumbnails;
        this.sheets = new cSheetControl();
        this.sheets.wwMainWindow = shell.sheetHost(mainForm);
        this.sheets.wwPreferencesWindow = this.form.control("preferencesWindow");
        this.sheets.tfLibraryFilePath = this.form.control("libraryFilePath");
        limitRows(wishes(defaults).logRows);
        recipes.useProcessors(processorsOf(wishes(defaults).processors));
        recipes.useMemory(wishes(defaults).memory);
        this.fillMenus();
        this.connect();
        this.form.control("libraryChange").clicked.connect(guard("library", () => this.change()));
        this.form.control("preferencesDone").clicked.connect(guard("preferences", () => this.form.close()));
    }

    fillMenus() {
        this.form.setItems("wishLanguage", [qsTr("System")].concat(LANGUAGES.map((each) => each[1])),
                           ["system"].concat(LANGUAGES.map((each) => each[0])));
        this.form.setItems("wishAppearance", [qsTr("System"), qsTr("Light"), qsTr("Dark")],
                           ["system", "light", "dark"]);
        this.form.setItems("wishTaken",
                           [qsTr("Keep both (add a number)"), qsTr("Replace"), qsTr("Skip"), qsTr("Skip if up to date"),
                            qsTr("Ask")], TAKEN);
        this.form.setItems("wishLogRows",
                           [qsTr("the last 1,000 files"), qsTr("the last 10,000 files"),
                            qsTr("the last 100,000 files")], LOG_ROWS);
        this.form.setItems("wishDestination",
                           [qsTr("A folder next to the originals"), qsTr("The folder of the originals")],
                           DESTINATIONS);
        this.form.setItems("wishMemory", MEMORY.map(memoryWords), MEMORY);
        const numbers = Array(recipes.processors()).fill(0).map((_zero, i) => i + 1);
        this.form.setItems("wishProcessors", numbers.map(processorWords), numbers);
    }

    connect() {
        const choices = {
            wishLanguage: (value) => this.chooseLanguage(value),
            wishAppearance: (value) => shell.theme.choose(value),
            wishTaken: (value) => keepWish(defaults, "ifTaken", value),
            wishDestination: (value) => keepWish(defaults, "destination", value),
            wishMemory: (value) => { keepWish(defaults, "memory", value); recipes.useMemory(value); },
            wishLogRows: (value) => { keepWish(defaults, "logRows", value); limitRows(value); },
            wishProcessors: (value) => {
                keepWish(defaults, "processors", value);
                recipes.useProcessors(value);
            },
        };
        Object.keys(choices).forEach((name) => {
            this.form.control(name).activated.connect(guard("preferences", () => choices[name](this.form.value(name))));
        });
        const thumbnails = this.form.control("wishThumbnails");
        thumbnails.toggled.connect(guard("preferences", () => {
            keepWish(defaults, "sharesThumbnails", thumbnails.checked);
            this.pictures.sharesThumbnails = thumbnails.checked;
        }));
        const list = this.form.control("wishList");
        list.toggled.connect(guard("preferences", () => keepWish(defaults, "keepsList", list.checked)));
        const update = this.form.control("wishUpdate");
        update.toggled.connect(guard("preferences", () => keep(defaults, UPDATE, { onStart: update.checked })));
    }

    chooseLanguage(code) {
        if (code === "system") {
            defaults.remove(LANGUAGE);
        } else {
            defaults.set(LANGUAGE, code);
        }
    }

    showWishes() {
        const language = defaults.get(LANGUAGE);
        this.form.chooseValue("wishLanguage", LANGUAGES.some((each) => each[0] === language) ? language : "system");
        this.form.chooseValue("wishAppearance", shell.theme.choice());
        this.form.chooseValue("wishTaken", wishes(defaults).ifTaken);
        this.form.chooseValue("wishDestination", wishes(defaults).destination);
        this.form.chooseValue("wishMemory", wishes(defaults).memory);
        this.form.chooseValue("wishLogRows", wishes(defaults).logRows);
        this.form.chooseValue("wishProcessors", processorsOf(wishes(defaults).processors));
        this.form.control("wishThumbnails").checked = wishes(defaults).sharesThumbnails;
        this.form.control("wishList").checked = wishes(defaults).keepsList;
        this.form.control("wishUpdate").checked = recall(defaults, UPDATE, UPDATE_STANDARD).onStart;
    }

    open() {
        this.showWishes();
        this.sheets.hCallPreferencesWw(null);
        this.form.control("libraryChange").setFocus();
    }

    /** Asks for another support folder. */
    change() {
        this.sheets.chooseLibraryDestination(null);
        this.chosen();
    }

    /** Asks for the first support folder. */
    chooseFirst() {
        this.sheets.setLibraryDestination();
        this.chosen();
    }
}
