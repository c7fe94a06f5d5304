// The settings of the Contact Sheet action, and the pages that result from them.

import { recipes } from "quorlin/recipes";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { splitPath } from "../../lib/names.js";
import { fill } from "../../lib/wording.js";
import { Pane } from "../shared/pane.js";
import { insertAtCursor, joinTokens } from "../shared/token-menu.js";
import * as contact from "./contact-step.js";

const CHOOSE = "choose";
const NUMBERS = ["paperWidth", "paperHeight", "rows", "columns", "gap", "marginTop", "marginRight", "marginBottom",
                 "marginLeft", "captionSize", "lineSize", "dpi", "quality"];
const CHECKS = ["turn", "repeat", "cropMarks", "frames"];
const LINES = ["header", "footer"];
// Controls whose names mean something else elsewhere have another name here.
const CONTROLS = { quality: "pageQuality", dpi: "pageDpi", font: "pageFont", paper: "pagePaper" };
const RARE = ["pageFont", "lineSize", "paperColor", "pageDpi", "pageQuality", "pageProfile"];

function controlOf(name) {
    return CONTROLS[name] || name;
}

// "A4" is the same everywhere; papers of photographs are known by their sizes.
function paperText(word) {
    const texts = {
        "10x15": "10 × 15 cm", "13x18": "13 × 18 cm", "20x30": "20 × 30 cm", Letter: qsTr("Letter"),
        Legal: qsTr("Legal"), Tabloid: qsTr("Tabloid"), custom: qsTr("Other…"),
    };
    return texts[word] || word;
}

export class ContactPane extends Pane {
    constructor(settings, changed, parts) {
        super("actions/contact/contact-pane.ui", contact, settings, changed);
        this.list = parts.list;
        this.showsMore = false;
        this.above = shell.loadForm("actions/contact/contact-pages.ui");
        this.view = this.above.control("pagesView");
        this.join();
        this.joinPages();
        this.fill();
    }

    join() {
        const control = (name) => this.form.control(name);
        control("orientation").segments = [qsTr("Portrait"), qsTr("Landscape")];
        control("pageFit").segments = [qsTr("Fit"), qsTr("Fill"), qsTr("Own size")];
        control("orientation").chosen.connect(guard("orientation", (index) => this.set("landscape", index === 1)));
        this.segments("pageFit", "fit", contact.FITS);
        NUMBERS.forEach((name) => this.number(controlOf(name), name));
        CHECKS.forEach((name) => this.check(name, name));
        this.color("paperColor", "paperColor");
        control("pagePaper").activated.connect(guard("paper", () => this.set("paper", this.form.value("pagePaper"))));
        control("pageFont").activated.connect(guard("font", () => this.set("font", this.form.value("pageFont"))));
        control("pageProfile").activated.connect(guard("profile", () => this.profileChosen()));
        control("contactMore").clicked.connect(guard("contact.more", () => {
            this.showsMore = !this.showsMore;
            this.showState();
        }));
        this.joinTexts();
    }

    joinTexts() {
        const control = (name) => this.form.control(name);
        const caption = control("caption");
        caption.textChanged.connect(guard("caption", () => this.set("caption", caption.plainText)));
        joinTokens(this.form, { menu: "captionTokenMenu", button: "captionTokens" }, () => true,
                   (value) => { caption.insertPlainText(value); caption.setFocus(); });
        LINES.forEach((name) => {
            const field = control(name);
            control(name + "Side").segments = [qsTr("Left"), qsTr("Centre"), qsTr("Right")];
            field.textChanged.connect(guard(name, () => this.set(name, field.text)));
            this.segments(name + "Side", name + "Side", contact.SIDES);
            control(name + "Page").clicked
                .connect(guard(name + ".page", () => insertAtCursor(field, "{page} / {pages}")));
        });
        const file = control("contactName");
        file.textChanged.connect(guard("contactName", () => this.nameChosen(file.text)));
    }

    nameChosen(name) {
        if (!this.filling && this.settings.output.namePattern !== name) {
            this.settings.output.namePattern = name;
            this.changed();
        }
    }

    joinPages() {
        const control = (name) => this.above.control(name);
        this.view.turned.connect(guard("pages", () => this.showPlace()));
        control("pagesBack").clicked.connect(guard("pages.back", () => { this.view.first -= this.view.side; }));
        control("pagesOn").clicked.connect(guard("pages.on", () => { this.view.first += this.view.side; }));
    }

    profileChosen() {
        const value = this.form.value("pageProfile");
        if (value !== CHOOSE) {
            this.set("profile", value);
            return;
        }
        const path = shell.chooseFile(qsTr("Choose a colour profile"), "", ["icc", "icm"]);
        if (path !== null) {
            this.set("profile", path);
        }
        this.showProfiles();
    }

    showProfiles() {
        const own = this.settings.profile;
        const texts = ["sRGB", "Display P3", "Adobe RGB", qsTr("Grey")];
        const isFile = contact.PROFILES.indexOf(own) < 0;
        this.form.setItems("pageProfile", texts.concat(isFile ? [splitPath(own).name] : [], ["-", qsTr("Choose…")]),
                           contact.PROFILES.concat(isFile ? [own] : [], ["-", CHOOSE]));
        this.form.chooseValue("pageProfile", own);
    }

    showValues() {
        const control = (name) => this.form.control(name);
        const settings = this.settings;
        const papers = contact.PAPERS.concat([contact.CUSTOM]);
        const fonts = recipes.fonts();
        this.form.setItems("pagePaper", papers.map(paperText), papers);
        this.form.chooseValue("pagePaper", settings.paper);
        this.form.setItems("pageFont", [qsTr("Standard"), "-"].concat(fonts), ["", "-"].concat(fonts));
        this.form.chooseValue("pageFont", settings.font);
        this.showProfiles();
        control("orientation").selectedSegment = settings.landscape ? 1 : 0;
        control("pageFit").selectedSegment = contact.FITS.indexOf(settings.fit);
        NUMBERS.forEach((name) => { control(controlOf(name)).value = settings[name]; });
        CHECKS.forEach((name) => { control(name).checked = settings[name]; });
        control("caption").plainText = settings.caption;
        LINES.forEach((name) => {
            control(name).text = settings[name];
            control(name + "Side").selectedSegment = contact.SIDES.indexOf(settings[name + "Side"]);
        });
        control("paperColor").color = settings.paperColor;
        control("contactName").text = settings.output.namePattern;
    }

    showState() {
        this.visible(["paperSizeLabel", "paperSizeHost"], this.settings.paper === contact.CUSTOM);
        this.visible(["captionSizeLabel", "captionSizeHost"], this.settings.caption.trim() !== "");
        RARE.forEach((name) => this.visible([name + "Label", name + "Host"], this.showsMore));
        this.form.control("contactMore").text = this.showsMore ? qsTr("Less") : qsTr("More…");
    }

    /** Shows the pages of the pictures that are ticked. */
    showPages(paths) {
        this.view.showPages(contact.layoutOf(this.settings), paths);
        this.showPlace();
    }

    showPlace() {
        const { first, pages, side } = this.view;
        const last = Math.min(pages, first + side);
        const words = last - first > 1 ? qsTr("Pages %1–%2 of %3") : qsTr("Page %1 of %3");
        this.above.control("pagesPlace").text =
            pages === 0 ? qsTr("No pages") : fill(words, first + 1, last, pages);
        this.above.control("pagesBack").enabled = first > 0;
        this.above.control("pagesOn").enabled = last < pages;
    }

    /** The pages replace the preview; there is nothing to say about a single picture. */
    show(photo, _services) {
        this.photo = photo;
        this.say("problemText", contact.validate(this.settings).join("\n"));
        return null;
    }
}
