// The info sheet: a short text on one thing.

import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";

// Names of buttons and the operations that show their texts.
export const INFO_BUTTONS = {
    infoSimulation: (sheets) => sheets.mySimulationMode(null),
    infoMoveSimulation: (sheets) => sheets.mySimulationMode(null),
    infoPresets: (sheets) => sheets.hTextWMPresetsInfo(null),
    infoFolder: (sheets) => sheets.hWMDestinationFolderInfo(null),
    infoPatterns: (sheets) => sheets.hLibCheckboxInfo(null),
    infoWatermarks: (sheets) => sheets.hLibCheckboxInfo(null),
};

export class Info {
    /** @param sheets  the sheets of the main window, a cSheetControl */
    constructor(sheets) {
        this.sheets = sheets;
        this.form = shell.loadForm("windows/info/info.ui");
        sheets.wwApplicationInfoSheet = this.form.control("infoSheet");
        sheets.tfInfoTitle = this.form.control("infoTitle");
        sheets.tvInfoDescription = this.form.control("infoDescription");
        this.form.control("infoClose").clicked.connect(guard("info", () => sheets.closeApplicationInfoSheetObjC(null)));
    }

    /** Shows the text of an info button. */
    open(button) {
        // The service replaces only as much of the old text as the title is long.
        this.form.control("infoDescription").plainText = "";
        INFO_BUTTONS[button](this.sheets);
        this.form.control("infoClose").setFocus();
    }
}
