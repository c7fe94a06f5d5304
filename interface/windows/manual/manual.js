// The window of the manual: contents at the left, the page at the right.

import { program } from "quorlin/program";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { fill } from "../../lib/wording.js";

export class Manual {
    constructor() {
        this.form = shell.loadForm("windows/manual/manual.ui");
        this.view = this.form.control("manualView");
        this.list = this.form.control("manualPages");
        this.search = this.form.control("manualSearch");
        this.view.setFolder(program.manual, program.language);
        this.pages = this.view.pages();
        this.list.setPages(this.pages.map((page) => page.name), this.pages.map((page) => page.title));
        this.connect();
        this.form.setSplit("manualSplitter", [220, 840]);
        this.form.remember("Manual");
    }

    connect() {
        const handlers = {
            manualBack: () => this.view.goBack(),
            manualForward: () => this.view.goForward(),
            manualFind: () => this.search.setFocus(),
            manualFindNext: () => this.findNext(),
            manualClose: () => this.form.close(),
        };
        Object.keys(handlers).forEach((name) => this.form.control(name).triggered.connect(guard(name, handlers[name])));
        this.form.control("manualBackButton").clicked.connect(guard("manual", handlers.manualBack));
        this.form.control("manualForwardButton").clicked.connect(guard("manual", handlers.manualForward));
        this.search.returnPressed.connect(guard("manualSearch", () => this.findNext()));
        this.search.textEdited.connect(guard("manualSearch", () => this.note("")));
        this.list.chosen.connect(guard("manualPages", (name) => this.view.open(name, "")));
        this.view.pageShown.connect(guard("manual", () => this.showState()));
        shell.theme.changed.connect(guard("manual", () => this.view.redraw()));
    }

    /** Shows the page of that name; the first if there is none. */
    open(name) {
        this.view.open(this.pages.some((page) => page.name === name) ? name : this.pages[0].name, "");
        this.form.show();
        this.form.raise();
        this.view.setFocus();
    }

    showState() {
        this.list.current = this.view.page;
        this.form.control("manualBackButton").enabled = this.view.canGoBack;
        this.form.control("manualForwardButton").enabled = this.view.canGoForward;
        this.note("");
    }

    note(text) {
        this.form.control("manualNote").text = text;
    }

    findNext() {
        const text = this.search.text;
        const found = text === "" || this.view.findNext(text);
        this.note(found ? "" : fill(qsTr("“%1” was not found in the manual."), text));
    }
}
