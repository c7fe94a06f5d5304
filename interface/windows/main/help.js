// What the main window says about the program: the Help menu, the info buttons of the panes, and new versions.

import { cSheetControl } from "quorlin";
import { defaults } from "quorlin/defaults";
import { program } from "quorlin/program";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { recall } from "../../lib/store.js";
import { KEY, outcome, STANDARD } from "../../lib/update.js";
import { About } from "../about/about.js";
import { Info, INFO_BUTTONS } from "../info/info.js";
import { Manual } from "../manual/manual.js";
import { NewVersion } from "../new-version/new-version.js";

const AFTER_START_MS = 1500;

// The views of an action share a page.
function pageOf(action) {
    return action.within || action.name;
}

/** Sheets are loaded when they are first shown. */
export class Help {
    /** @param window  the main window's parts: form, say, page */
    constructor(window) {
        this.window = window;
        this.host = shell.sheetHost(window.form);
        this.sheets = new cSheetControl();
        this.sheets.wwMainWindow = this.host;
        this.parts = {};
        this.found = null; // the outcome of a check that nobody has been told yet
        this.asked = false;
        this.join(window.form);
        const handlers = { about: () => this.about(), update: () => this.check(true), manual: () => this.manual() };
        Object.keys(handlers)
            .forEach((name) => window.form.control(name + "Action").triggered.connect(guard(name, handlers[name])));
        this.started = shell.timer(guard("update", () => this.check(false)));
        if (recall(defaults, KEY, STANDARD).onStart) {
            this.started.start(AFTER_START_MS);
        }
    }

    part(name, make) {
        if (this.parts[name] === undefined) {
            this.parts[name] = make();
        }
        return this.parts[name];
    }

    about() {
        this.part("about", () => new About(this.host)).open();
    }

    /** Opens the manual at the page of what is shown. */
    manual() {
        if (program.manual === "") {
            this.window.say(qsTr("The manual is not installed."));
        } else {
            this.part("manual", () => new Manual()).open(pageOf(this.window.shownPage || this.window.action));
        }
    }

    /** Connects the info buttons of a pane. */
    join(form) {
        form.names().filter((name) => INFO_BUTTONS[name] !== undefined).forEach((name) => {
            form.control(name).clicked.connect(guard("info",
                                                     () => this.part("info", () => new Info(this.sheets)).open(name)));
        });
    }

    /**
     * Checks for a new version; only a user who asked is told that there is none, or that the server does not answer.
     */
    check(asked) {
        this.asked = this.asked || asked;
        if (asked) {
            this.window.say(qsTr("Checking for updates…"));
        }
        program.lookForUpdate(guard("update", (fields, problem) => {
            this.found = outcome(fields, problem);
            this.tell();
        }));
    }

    /** Reports the outcome of the check; after the run if there is one. */
    tell() {
        const found = this.found;
        if (found === null || (this.window.run !== null && this.window.run.isBusy())) {
            return;
        }
        const asked = this.asked;
        this.found = null;
        this.asked = false;
        if (found.kind === "newer") {
            this.part("version", () => new NewVersion(this.sheets)).open(found.version, found.notes);
        } else if (asked) {
            this.window.say(found.kind === "current" ? qsTr("Quorlin is up to date.") : this.unanswered());
        }
    }

    unanswered() {
        return program.hasUpdateHost ? qsTr("Could not reach the update server.")
                                     : qsTr("No update server is set in this installation.");
    }
}
