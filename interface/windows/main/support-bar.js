// The bar of Background & Border that offers to choose the support folder, until it was chosen or declined.

import { defaults } from "quorlin/defaults";
import { guard } from "../../lib/guard.js";
import { keep, recall } from "../../lib/store.js";
import { Preferences } from "../preferences/preferences.js";

const PUT_OFF = "SupportFolderPutOff";

export class SupportBar {
    /** @param window  the main window's parts: form, page */
    constructor(window) {
        this.window = window;
        this.preferences = new Preferences(window.form, window.form.control("pictures"), () => this.folderChosen());
        window.form.control("preferencesAction").triggered.connect(guard("preferences", () => this.preferences.open()));
        window.form.control("supportChoose").clicked.connect(guard("support.choose",
                                                                   () => this.preferences.chooseFirst()));
        window.form.control("supportLater").clicked.connect(guard("support.later", () => this.putOff()));
        this.show();
    }

    // A cancelled panel changes nothing: the bar stays.
    folderChosen() {
        this.show();
        this.window.actionPage.filesChanged();
    }

    putOff() {
        keep(defaults, PUT_OFF, { on: true });
        this.show();
    }

    /** Only if a pattern can be chosen. */
    show() {
        const isAsked = defaults.get("SupportFilesDestination") === null
            && !recall(defaults, PUT_OFF, { on: false }).on;
        const window = this.window;
        window.form.control("supportBar").visible = isAsked && window.shownPage === null
            && window.action.name === "background";
    }
}
