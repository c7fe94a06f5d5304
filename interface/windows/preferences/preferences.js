// The preferences: a sheet of the main window. Services used: cSheetControl, for the support folder.

import { cSheetControl } from "quorlin";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";

export class Preferences {
    /**
     * @param mainForm  the form of the main window
     * @param chosen    called after the user was asked for the support folder
     */
    constructor(mainForm, chosen) {
        this.chosen = chosen;
        this.form = shell.loadForm("windows/preferences/preferences.ui");
        this.sheets = new cSheetControl();
        this.sheets.wwMainWindow = shell.sheetHost(mainForm);
        this.sheets.wwPreferencesWindow = this.form.control("preferencesWindow");
        this.sheets.tfLibraryFilePath = this.form.control("libraryFilePath");
        this.form.control("libraryChange").clicked.connect(guard("library", () => this.change()));
        this.form.control("preferencesDone").clicked.connect(guard("preferences", () => this.form.close()));
    }

    open() {
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
