// The new-version sheet.

import { program } from "quorlin/program";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";

export class NewVersion {
    /** @param sheets  the sheets of the main window, a cSheetControl */
    constructor(sheets) {
        this.sheets = sheets;
        this.form = shell.loadForm("windows/new-version/new-version.ui");
        sheets.wwApplicationVersionWindow = this.form.control("newVersionWindow");
        sheets.tfNewApplicationVersion = this.form.control("newApplicationVersion");
        sheets.tvWhatsNew = this.form.control("whatsNew");
        this.form.control("newVersionClose").clicked.connect(guard("version", () =>
            sheets.closeApplicationVersionSheetObjC(null)));
        this.form.control("productPage").clicked.connect(guard("version", () => sheets.goToProductPage(null)));
        this.form.control("productPage").visible = program.productPage !== "";
    }

    open(version, notes) {
        // The service appends to existing notes; each check has its own.
        this.form.control("whatsNew").plainText = "";
        this.sheets.hCallApplicationUpdate(qsTr("Quorlin"), version, notes);
        this.form.control(program.productPage === "" ? "newVersionClose" : "productPage").setFocus();
    }
}
