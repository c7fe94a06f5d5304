// Which properties of pictures are columns of the list, and which pictures it shows: rows of property, comparison and
// value, a typed text, and named filters.
// Services used: defaults (saved filters and columns).

import { defaults } from "quorlin/defaults";
import { shell } from "quorlin/shell";
import { fieldTitle } from "../../actions/shared/metadata-fields-words.js";
import { guard } from "../../lib/guard.js";
import { keep, recall } from "../../lib/store.js";
import { fill, numberText } from "../../lib/wording.js";

const COLUMNS_KEY = "PropertyColumns";
const FILTERS_KEY = "ListFilters";
const ROWS = [1, 2, 3, 4, 5, 6];
const FIELDS = ["title", "headline", "caption", "keywords", "creator", "jobTitle", "contactAddress", "contactPhone",
                "contactEmail", "contactWeb", "copyright", "usageTerms", "credit", "source", "instructions",
                "jobIdentifier", "sublocation", "city", "state", "country", "countryCode", "dateTaken", "rating",
                "label"];

function comparisons() {
    return [["is", qsTr("is")], ["isNot", qsTr("is not")], ["contains", qsTr("contains")], ["above", qsTr("above")],
            ["below", qsTr("below")], ["empty", qsTr("is empty")], ["stated", qsTr("is not empty")]];
}

function needsValue(comparison) {
    return comparison !== "empty" && comparison !== "stated";
}

/** The rules of rows that are complete. */
export function rulesOf(rows) {
    return rows.filter((row) => row.property !== "" && (row.value.trim() !== "" || !needsValue(row.comparison)))
        .map((row) => ({ property: row.property, comparison: row.comparison, value: row.value }));
}

function emptyRow() {
    return { property: "", comparison: "is", value: "" };
}

// Saved settings may have been written by another version, or by hand.
function keptFilters() {
    return recall(defaults, FILTERS_KEY, { filters: [] }).filters.filter((each) => each !== null &&
        typeof each === "object" && typeof each.name === "string" && typeof each.text === "string" &&
        (each.join === "all" || each.join === "any") && Array.isArray(each.rules) &&
        each.rules.every((rule) => rule !== null && typeof rule === "object" && typeof rule.property === "string" &&
            typeof rule.value === "string" && comparisons().some((one) => one[0] === rule.comparison)));
}

/** Gives the list the saved columns. */
export function restoreColumns(list) {
    const names = recall(defaults, COLUMNS_KEY, { names: [] }).names.filter((name) => typeof name === "string");
    const words = {};
    FIELDS.forEach((name) => { words[name] = fieldTitle(name); });
    list.setFieldNames(words);
    list.propertyColumns = names;
    list.propertyColumnsChanged.connect(guard("properties.columns", () => {
        keep(defaults, COLUMNS_KEY, { names: list.propertyColumns });
    }));
}

export class ListProperties {
    /** @param window  the main window's parts: pictures, isBusy() */
    constructor(window) {
        this.window = window;
        this.list = window.pictures;
        this.form = shell.loadForm("windows/list-properties/list-properties.ui");
        this.rows = [emptyRow()];
        this.words = {};
        this.asked = 0;
        this.isShowing = false;
        this.control = (name) => this.form.control(name);
        this.form.setItems("propJoin", [qsTr("All conditions apply"), qsTr("At least one condition applies")],
                           ["all", "any"]);
        ROWS.forEach((row) => this.connectRow(row));
        this.connect();
    }

    connect() {
        const clicks = { propAdd: () => this.addRow(), propAddColumn: () => this.ask("propAddColumn", 0),
                         propNoColumns: () => { this.list.propertyColumns = []; }, propKeep: () => this.keepFilter(),
                         propForget: () => this.forgetFilter(), propShowAll: () => this.showAll(),
                         propClose: () => this.form.close() };
        Object.keys(clicks).forEach((name) => this.control(name).clicked.connect(guard(name, clicks[name])));
        this.control("propText").textChanged.connect(guard("propText", () => this.apply()));
        this.control("propName").textChanged.connect(guard("propName", () => this.showButtons()));
        this.control("propJoin").activated.connect(guard("propJoin", () => this.apply()));
        this.control("propKept").activated.connect(guard("propKept", () => this.choose(this.form.value("propKept"))));
        this.control("propMenu").setPlaceholder(qsTr("Search properties"));
        this.control("propMenu").chosen.connect(guard("propMenu", (name) => this.take(name)));
        this.list.propertyColumnsChanged.connect(guard("properties.shown", () => this.showColumns()));
        this.list.countChanged.connect(guard("properties.count", () => this.showCount()));
        this.list.filterChanged.connect(guard("properties.filter", () => this.filterChanged()));
    }

    connectRow(row) {
        const comparison = "propComparison" + row;
        const part = (name) => this.control(name + row);
        this.form.setItems(comparison, comparisons().map((each) => each[1]), comparisons().map((each) => each[0]));
        part("propProperty").clicked.connect(guard("propProperty", () => this.ask("propProperty" + row, row)));
        part("propRemove").clicked.connect(guard("propRemove", () => this.removeRow(row)));
        part("propComparison").activated.connect(guard("propComparison", () => {
            this.rows[row - 1].comparison = String(this.form.value(comparison));
            this.show();
            this.apply();
        }));
        part("propValue").textChanged.connect(guard("propValue", () => {
            if (!this.isShowing) {
                this.rows[row - 1].value = part("propValue").text;
                this.apply();
            }
        }));
    }

    open() {
        this.show();
        this.form.show();
        this.control("propText").setFocus();
    }

    wordsOf(name) {
        if (this.words[name] === undefined) {
            this.list.offeredProperties().forEach((each) => { this.words[each.name] = each.words; });
        }
        return this.words[name] || name.slice(name.lastIndexOf("|") + 1);
    }

    // The menu is that of the current picture, which may be another one now. Row 0 represents the columns.
    ask(control, row) {
        const offered = this.list.offeredProperties();
        offered.forEach((each) => { this.words[each.name] = each.words; });
        const paths = offered.map((each) => (each.name.indexOf("|") < 0 ? "" : each.name.split("|").join(" ").trim()));
        this.asked = row;
        this.control("propMenu").setEntries(offered.map((each) => each.words), paths, paths,
                                            offered.map((each) => each.name));
        this.control("propMenu").popUp(this.control(control));
    }

    take(name) {
        if (this.asked === 0) {
            this.list.propertyColumns = this.list.propertyColumns.concat([name]);
        } else {
            this.rows[this.asked - 1].property = name;
            this.show();
            this.apply();
            this.control("propComparison" + this.asked).setFocus();
        }
    }

    addRow() {
        this.rows.push(emptyRow());
        this.show();
        this.control("propProperty" + this.rows.length).setFocus();
    }

    removeRow(row) {
        this.rows.splice(row - 1, 1);
        this.rows = this.rows.length === 0 ? [emptyRow()] : this.rows;
        this.show();
        this.apply();
    }

    filter() {
        return { join: this.form.value("propJoin"), rules: rulesOf(this.rows), text: this.control("propText").text };
    }

    apply() {
        if (!this.isShowing) {
            this.list.setFilter(this.filter());
            this.showButtons();
        }
    }

    showAll() {
        this.rows = [emptyRow()];
        this.showFilter("all", "");
        this.apply();
    }

    // Esc and the bar above the list show all pictures too.
    filterChanged() {
        if (!this.list.filtered && (rulesOf(this.rows).length > 0 || this.control("propText").text !== "")) {
            this.rows = [emptyRow()];
            this.showFilter("all", "");
        }
        this.showCount();
    }

    showFilter(join, text) {
        this.isShowing = true;
        this.form.chooseValue("propJoin", join);
        this.control("propText").text = text;
        this.isShowing = false;
        this.show();
    }

    show() {
        this.isShowing = true;
        for (const row of ROWS) {
            const shown = this.rows[row - 1];
            this.control("propRow" + row).visible = shown !== undefined;
            if (shown !== undefined) {
                this.showRow(row, shown);
            }
        }
        this.isShowing = false;
        this.showColumns();
        this.showKept();
        this.showButtons();
        this.showCount();
    }

    showRow(row, shown) {
        const chosen = shown.property !== "";
        this.control("propProperty" + row).text = chosen ? this.wordsOf(shown.property).replace(/&/g, "&&")
            : qsTr("Choose Property…");
        this.form.chooseValue("propComparison" + row, shown.comparison);
        if (this.control("propValue" + row).text !== shown.value) {
            this.control("propValue" + row).text = shown.value;
        }
        this.control("propComparison" + row).enabled = chosen;
        this.control("propValue" + row).enabled = chosen && needsValue(shown.comparison);
    }

    showColumns() {
        const names = this.list.propertyColumns;
        this.control("propColumns").text = names.length === 0 ? qsTr("No columns")
            : names.map((name) => this.wordsOf(name)).join(", ");
        this.control("propNoColumns").enabled = names.length > 0;
    }

    showKept() {
        const names = keptFilters().map((each) => each.name);
        const now = this.control("propName").text;
        this.form.setItems("propKept", [qsTr("No filter")].concat(names), [""].concat(names));
        this.form.chooseValue("propKept", names.indexOf(now) >= 0 ? now : "");
    }

    showButtons() {
        const name = this.control("propName").text.trim();
        const any = rulesOf(this.rows).length > 0 || this.control("propText").text.trim() !== "";
        this.control("propKeep").enabled = name !== "" && any;
        this.control("propForget").enabled = this.form.value("propKept") !== "";
        this.control("propShowAll").enabled = this.list.filtered;
        this.control("propAdd").enabled = this.rows.length < ROWS.length;
    }

    showCount() {
        this.control("propCount").text = this.list.filtered
            ? fill(qsTr("Shown: %1"), numberText(this.list.count)) : qsTr("All pictures are shown");
        this.control("propShowAll").enabled = this.list.filtered;
    }

    choose(name) {
        const found = keptFilters().find((each) => each.name === name);
        this.control("propName").text = name;
        if (found === undefined) {
            this.showAll();
            return;
        }
        this.rows = found.rules.length === 0 ? [emptyRow()]
            : found.rules.slice(0, ROWS.length).map((rule) => Object.assign(emptyRow(), rule));
        this.showFilter(found.join, found.text);
        this.apply();
    }

    keepFilter() {
        const name = this.control("propName").text.trim();
        const others = keptFilters().filter((each) => each.name !== name);
        const filters = others.concat([Object.assign({ name: name }, this.filter())])
            .sort((a, b) => a.name.localeCompare(b.name));
        keep(defaults, FILTERS_KEY, { filters: filters });
        this.control("propName").text = name;
        this.showKept();
        this.showButtons();
    }

    forgetFilter() {
        const name = this.form.value("propKept");
        keep(defaults, FILTERS_KEY, { filters: keptFilters().filter((each) => each.name !== name) });
        this.control("propName").text = "";
        this.showKept();
        this.showButtons();
    }
}
