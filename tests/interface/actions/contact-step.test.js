import { PageWork } from "quorlin/pages";
import * as contact from "../../../interface/actions/contact/contact-step.js";
import { presets } from "../../../interface/actions/contact/contact-presets.js";
import { equal, finish, isTrue, test } from "../check.js";
import { photo, settingsOf } from "../fakes.js";

const lake = photo("/p/lake.JPG", 400, 300);

function settings(changes, output) {
    return settingsOf(contact, changes, output);
}

test("saysHowManyPagesThereAre", () => {
    const pages = (count, changes) =>
        contact.workFor(settings(changes), Array(count).fill("/p/a.jpg")).pages;
    equal([pages(0, {}), pages(20, {}), pages(21, {})], [0, 1, 2]);
    equal(pages(5, { rows: 1, columns: 2 }), 3);
    equal(pages(5, { repeat: true }), 5);
    equal(pages(5, { rows: 0 }), 0);
});

test("saysWhatIsWrong", () => {
    equal(contact.validate(settings({})), []);
    equal(contact.validate(settings({ columns: 21 })), ["Enter 1 to 20 rows and columns."]);
    isTrue(contact.validate(settings({ header: "{nothing}" }))[0].indexOf("{nothing}") >= 0);
    equal(contact.validate(settings({ header: "{page}" })), []);
    equal(contact.validate(settings({ caption: "{page}" })).length, 1);
    equal(contact.validate(settings({}, { namePattern: " " })).length, 1);
});

test("plansOneFileBesideTheFirstPicture", () => {
    const asked = [];
    const services = { recipes: { nameFor: (...all) => { asked.push(all); return "Contact sheet.pdf"; } } };
    const planned = contact.plan(lake, settings({}), services);
    equal([planned.status, planned.name, planned.type], ["ready", "Contact sheet.pdf", "com.adobe.pdf"]);
    equal(asked, [["/p/lake.JPG", "Contact sheet", 0, 0, 0, ".pdf"]]);
});

test("offersPresetsThatCanBeRun", () => {
    presets.starting().forEach(([name, changes]) => {
        equal(contact.validate(settings(changes)), [], name);
        equal(Object.keys(changes).filter((key) => contact.defaults[key] === undefined), [], name);
    });
});

test("knowsThePapersOfTheService", () => {
    const papers = new PageWork().papers;
    equal(contact.PAPERS, papers.map((paper) => paper.word));
    const sizes = papers.map((paper) => {
        const work = contact.workFor(settings({ paper: paper.word }), []);
        return [work.pageWidth, work.pageHeight];
    });
    sizes.forEach((size, i) => isTrue(size[0] < size[1] && size[0] === Math.round(size[0]), papers[i].word));
    const lying = contact.workFor(settings({ landscape: true }), []);
    equal([lying.pageWidth, lying.pageHeight], [842, 595]);
});

finish();
