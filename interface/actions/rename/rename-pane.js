// The settings of the Rename action: files or folders, and the chain of steps as cards. Services used: names, facts (through the
// step), for the example.

import { tokens } from "quorlin/tokens";
import { copyOf } from "../../lib/copies.js";
import { guard } from "../../lib/guard.js";
import { splitPath } from "../../lib/names.js";
import { menuEntries } from "./step-words.js";
import { withDigits } from "./name-steps.js";
import * as rename from "./rename-step.js";
import { Pane } from "../shared/pane.js";
import { RenameCard } from "./rename-card.js";
import { insertAtCursor } from "../shared/token-menu.js";

const WHAT = ["files", "folders"];
// The example file if the list is empty.
const SAMPLE = { path: "/IMG_2041.JPG",
                 facts: { taken: "2026-08-14T10:20:30", created: "2026-08-14T10:20:30", changed: "2026-08-15T09:00:00",
                                                 camera: "Canon EOS 40D", lens: "EF 50mm f/1.4", type: "JPEG",
                                                 bytes: 4100000, size: "4.1 MB",
                                                 width: 4032, height: 3024 } };
// Enough for ten thousand pictures and more.
const OFFERED_DIGITS = 5;
// About the height of a closed card and the gap after it.
const CARD_PX = 84;
const SAMPLE_FOLDER = "/" + qsTr("Holiday 2026");

export class RenamePane extends Pane {
    /** @param parts  what panes get of the window: services is used */
    constructor(settings, changed, parts) {
        super("actions/rename/rename-pane.ui", rename, settings, changed);
        this.services = parts.services;
        this.cards = [];
        this.open = -1;
        this.dragged = null;
        this.short = [];
        this.narrow = [];
        this.plan = null;
        this.plannedFor = "";
        settings.steps = rename.stepsOf(settings);
        this.join();
        this.fill();
    }

    join() {
        const control = (name) => this.form.control(name);
        control("what").segments = [qsTr("Files"), qsTr("Folders")];
        this.segments("what", "what", WHAT);
        this.check("sidecars", "sidecars");
        const entries = menuEntries();
        const steps = control("addMenu");
        steps.setPlaceholder(qsTr("Search steps"));
        steps.setEntries(entries.map((entry) => entry.title), entries.map((entry) => entry.explanation),
                         entries.map((entry) => entry.words),
                         entries.map((entry, i) => i));
        steps.chosen.connect(guard("addMenu", (i) => this.add(copyOf(menuEntries()[i].step))));
        control("addStep").clicked.connect(guard("addStep", () => steps.popUp(control("addStep"))));
        control("widenCounter").clicked.connect(guard("widenCounter", () => this.widen()));
        this.joinTokens(control("tokenMenu"));
    }

    // A counter that outgrows its width sorts wrongly: 999, 1000 and 1001 come before 99.
    showWidth() {
        const most = this.narrow.reduce((digits, each) => Math.max(digits, each.digits), 0);
        this.form.control("widthBar").visible = most > 0;
        this.form.control("widthNote").text = most > 0
            ? qsTr("The counter needs more digits: the last number has %n.", "", most) : "";
        this.form.control("widenCounter").text = qsTr("Use %n Digits", "", Math.max(most, OFFERED_DIGITS));
    }

    widen() {
        this.narrow.forEach((each) => {
            const step = this.settings.steps[each.index];
            step.pattern = withDigits(step.pattern, Math.max(each.digits, OFFERED_DIGITS));
        });
        this.stepsChanged();
    }

    joinTokens(menu) {
        const offered = [];
        tokens.offered().forEach((token) => token.forms.forEach((form) => {
            offered.push({ title: token.words + (form === "" ? "" : "  " + form),
                           text: "{" + token.name + (form === "" ? "" : ":" + form) + "}", example: token.example });
        }));
        menu.setPlaceholder(qsTr("Search values"));
        menu.setEntries(offered.map((each) => each.title), offered.map((each) => each.text),
                        offered.map((each) => each.example), offered.map((each) => each.text));
        menu.chosen.connect(guard("tokenMenu", (text) => this.insertToken(text)));
    }

    cardHandlers() {
        return {
            changed: (index) => this.stepChanged(index), toggle: (index) => this.toggle(index),
            move: (index, by) => this.move(index, by),
            drag: (index, by) => this.drag(index, by), drop: () => { this.dragged = null; },
            remove: (index) => this.remove(index),
            offerTokens: (index, button) => { this.tokensFor = index; this.form.control("tokenMenu").popUp(button); },
        };
    }

    /** The chain is a list: it is taken as a whole, not merged into the current one. */
    take(settings) {
        this.settings.steps = rename.stepsOf(settings).map(copyOf);
        const others = Object.assign({}, settings);
        delete others.steps;
        this.open = -1;
        super.take(others);
    }

    showValues() {
        this.form.control("what").selectedSegment = WHAT.indexOf(this.settings.what);
        this.form.control("sidecars").checked = this.settings.sidecars;
        this.showCards();
    }

    showState() {
        this.form.control("sidecars").visible = this.settings.what === "files";
        this.showCards();
    }

    showCards() {
        const steps = this.settings.steps;
        while (this.cards.length < steps.length) {
            const card = new RenameCard(this.cards.length, this.cardHandlers());
            this.form.place("steps", card.form);
            this.cards.push(card);
        }
        this.cards.forEach((card, i) =>
            card.show(i < steps.length ? steps[i] : null, i === this.open, this.settings.what === "folders"));
        this.form.control("noSteps").visible = steps.length === 0;
        this.form.control("steps").visible = steps.length > 0;
        this.form.control("addStep").enabled = steps.length < rename.MOST_STEPS;
        this.form.control("renameNote").text = steps.length < rename.MOST_STEPS
            ? "" : qsTr("You can use up to 30 steps.");
        this.form.control("renameNote").visible = steps.length >= rename.MOST_STEPS;
        this.form.arrangeTabs();
    }

    stepsChanged() {
        this.short = [];
        this.narrow = [];
        this.showWidth();
        this.showCards();
        this.changed();
    }

    stepChanged(index) {
        this.cards[index].show(this.settings.steps[index], index === this.open, this.settings.what === "folders");
        this.changed();
    }

    add(step) {
        this.settings.steps.push(step);
        this.open = this.settings.steps.length - 1;
        this.stepsChanged();
        this.cards[this.open].focusFirst();
    }

    toggle(index) {
        this.open = this.open === index ? -1 : index;
        this.showCards();
        if (this.open >= 0) {
            this.cards[index].focusFirst();
        }
    }

    remove(index) {
        this.settings.steps.splice(index, 1);
        if (this.open === index) {
            this.open = -1;
        } else if (this.open > index) {
            this.open -= 1;
        }
        this.stepsChanged();
        const next = Math.min(index, this.settings.steps.length - 1);
        (next >= 0 ? this.cards[next].control("cardTitle") : this.form.control("addStep")).setFocus();
    }

    move(index, by) {
        if (this.swap(index, index + by)) {
            this.cards[index + by].control("cardHandle").setFocus();
        }
    }

    swap(from, to) {
        const steps = this.settings.steps;
        if (to < 0 || to >= steps.length) {
            return false;
        }
        const step = steps[from];
        steps[from] = steps[to];
        steps[to] = step;
        if (this.open === from) {
            this.open = to;
        } else if (this.open === to) {
            this.open = from;
        }
        this.stepsChanged();
        return true;
    }

    // The pressed card keeps the pointer; its step moves from card to card, one for each height of a closed card.
    drag(index, by) {
        if (this.dragged === null) {
            this.dragged = { from: index, at: index };
            this.open = -1;
            this.showCards();
        }
        const drag = this.dragged;
        const wanted = Math.max(0, Math.min(this.settings.steps.length - 1, drag.from + Math.round(by / CARD_PX)));
        while (drag.at !== wanted) {
            const next = drag.at + (wanted > drag.at ? 1 : -1);
            this.swap(drag.at, next);
            drag.at = next;
        }
    }

    insertToken(text) {
        insertAtCursor(this.cards[this.tokensFor].control("firstText"), text);
    }

    /** Shows what each step makes of a file; photo may be null. */
    show(photo) {
        this.photo = photo;
        const messages = rename.validate(this.settings);
        this.say("renameProblem",
                 messages.length > 0 ? qsTr("Fix the marked step to see the new names.") : "");
        this.explain();
        return null;
    }

    factsOf(path) {
        return this.photo === null ? SAMPLE.facts : this.services.facts.of(path);
    }

    // A counter shows its first number, as on the first file.
    explain() {
        const areFolders = this.settings.what === "folders";
        const sample = areFolders ? SAMPLE_FOLDER : SAMPLE.path;
        const path = this.photo !== null ? this.photo.path : sample;
        const chain = rename.chainOf(this.settings, this.services);
        const facts = chain.needsFacts ? this.factsOf(path) : null;
        const made = chain.apply(path, areFolders, facts, true);
        let before = splitPath(path).name;
        this.settings.steps.forEach((step, i) => {
            this.cards[i].explain(before, made.trace[i], this.short[i] || 0);
            before = made.trace[i] === undefined ? before : made.trace[i];
        });
        this.form.control("exampleNow").text = splitPath(path).name;
        this.form.control("exampleNew").text = this.plannedName() || made.name || "–";
    }

    // The plan knows the counters; before that the example shows the first number.
    plannedName() {
        // A plan made with other settings is useless.
        const isOld = this.plan === null || this.plannedFor !== JSON.stringify(this.settings);
        const at = this.photo === null || isOld ? -1 : this.plan.paths.indexOf(this.photo.path);
        return at < 0 ? "" : this.plan.rows[at].shown;
    }

    /** Called with the plan of all files. */
    planned(plan) {
        this.short = plan.rows.short || [];
        this.narrow = plan.rows.digits || [];
        this.showWidth();
        this.plan = plan;
        this.plannedFor = JSON.stringify(this.settings);
        this.explain();
    }
}
