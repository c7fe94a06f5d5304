import { KEYWORDS, targetNamed, targetText } from "../../../interface/actions/convert/targets.js";
import * as convert from "../../../interface/actions/convert/convert-step.js";
import { equal, finish, isTrue, test } from "../check.js";
import { FakeFiles, photo, settingsOf } from "../fakes.js";

// Services whose conversion leaves what `written` says: {type, width, height}, or nothing where it is null.
function servicesThatLeave(written) {
    const files = new FakeFiles({});
    const calls = [];
    files.picture = () => written;
    files.lostMetadata = () => ({ lost: written === null ? [] : written.lost || [],
                                  problem: written === null ? "" : written.problem || "" });
    return {
        calls: calls, files: files,
        fileHandling: {
            hConvertFileType: (...values) => {
                calls.push(values);
                if (written !== null) {
                    files.entries[values[3]] = 1;
                }
                return ["file:///anything", values[1], "a"];
            },
        },
    };
}

function source(name, type) {
    return Object.assign(photo("/p/" + name, 400, 300), { type: type || "JPEG" });
}

function settings(target, changes) {
    return Object.assign(settingsOf(convert, Object.assign({ target: target }, changes || {})), { prefix: "/s/" });
}

const NAMES = { jpeg: "a.b.jpg", png: "a.b.png", tiff: "a.b.tiff", pdf: "a.b.pdf", jp2: "a.b.jp2", gif: "a.b.gif",
                bmp: "a.b.bmp" };

test("offersTheSevenTypesEachWithWordsOfItsOwn", () => {
    equal(KEYWORDS.slice().sort(), Object.keys(NAMES).sort());
    const texts = KEYWORDS.map(targetText);
    isTrue(texts.every((text, i) => text.length > 20 && texts.indexOf(text) === i));
});

test("namesResultsByTheirType", () => {
    equal(KEYWORDS.map((keyword) => convert.plan(source("a.b.heic"), settings(keyword)).name),
          KEYWORDS.map((keyword) => NAMES[keyword]));
});

test("asksTheServiceAndLooksAtTheFile", () => {
    for (const keyword of KEYWORDS) {
        const services = servicesThatLeave({ type: targetNamed(keyword).word, width: 400, height: 300 });
        const result = convert.run(source("a.b.png"), settings(keyword, { quality: "3" }), services);
        equal(services.calls, [["/p/a.b.png", keyword, "3", "/s/" + NAMES[keyword]]]);
        equal([result.status, result.outputs, result.width], ["OK", ["/s/" + NAMES[keyword]], 400]);
    }
});

test("failsWhereMetadataThatWasPromisedIsNotThere", () => {
    const run = (target, word) =>
        convert.run(source("a.jpg"), settings(target),
                    servicesThatLeave({ type: word, width: 400, height: 300, lost: ["EXIF", "XMP"] }));
    for (const [target, word] of [["png", "PNG"], ["tiff", "TIFF"]]) {
        const result = run(target, word);
        equal([result.status, result.outputs], ["Failed", []]);
        isTrue(result.reason.indexOf("EXIF, XMP") >= 0, result.reason);
    }
    equal(run("jpeg", "JPEG").status, "OK"); // which promises none
});

test("believesTheFileAndNotTheAnswer", () => {
    const run = (target, written) => convert.run(source("a.jpg"), settings(target), servicesThatLeave(written)).status;
    equal(run("png", null), "Failed");
    equal(run("png", { type: "JPEG", width: 400, height: 300 }), "Failed");
    equal(run("png", { type: "PNG", width: 300, height: 400 }), "Failed");
    equal(run("png", { type: "PNG", width: 0, height: 0 }), "Failed");
    equal(run("pdf", { type: "PDF", width: 96, height: 72 }), "OK");
    equal(run("pdf", { type: "PDF", width: 0, height: 0 }), "Failed");
});

test("leavesOutWhatIsNoPicture", () => {
    const services = servicesThatLeave({ type: "PNG", width: 1, height: 1 });
    const result = convert.run(photo("/p/a.jpg", 0, 0), settings("png"), services);
    equal([result.status, services.calls.length], ["Failed", 0]);
});

test("refusesOtherTypesAndQualities", () => {
    equal(convert.validate(settings("png")), []);
    equal(["jpg", "", "tif", "psd"].map((target) => convert.validate(settings(target)).length), [1, 1, 1, 1]);
    equal(["0", "10", "", "best"].map((quality) => convert.validate(settings("jpeg", { quality: quality })).length),
          [1, 1, 1, 1]);
});

// The words of docs/formats.md, whose table is held against real files.
test("saysOfEachTargetWhatItCannotHold", () => {
    const says = (keyword, words) => words.forEach((word) => isTrue(targetText(keyword).indexOf(word) >= 0));
    for (const keyword of ["jpeg", "pdf", "jp2", "gif", "bmp"]) {
        says(keyword, ["EXIF, IPTC"]);
    }
    says("jpeg", ["transparent parts become black", "16 bits become 8", "profile is kept"]);
    says("bmp", ["colours become sRGB", "transparent parts black", "16 bits become 8"]);
    says("gif", ["256 colours", "resolution", "colours become sRGB", "transparent or not"]);
    says("jp2", ["resolution"]);
    says("png", ["Nothing is lost"]);
    says("tiff", ["Nothing is lost"]);
    isTrue(/resolution/.test(convert.lost(source("a.png"), settings("jp2")))
           && !/resolution/.test(convert.lost(source("a.png"), settings("bmp"))));
});

test("saysWhatGetsLostOfThisPicture", () => {
    const lost = (name, target) => convert.lost(source(name), settings(target));
    equal([lost("a.png", "png"), lost("a.heic", "tiff")], ["", ""]);
    isTrue(/transparent/.test(lost("a.png", "jpeg")) && !/transparent/.test(lost("a.jpg", "jpeg")));
    isTrue(/sRGB/.test(lost("a.jpg", "bmp")) && /256/.test(lost("a.jpg", "gif")) && /EXIF/.test(lost("a.jpg", "pdf")));
});

test("saysWhatASourceIs", () => {
    const notes = (name, target) => convert.plan(source(name), settings(target)).notes.join(" ");
    isTrue(/preview/.test(notes("a.NEF", "jpeg")));
    isTrue(/first page/.test(notes("a.pdf", "png")));
    isTrue(/animation/.test(notes("a.gif", "png")));
    isTrue(/JPEG already/.test(notes("a.jpeg", "jpeg")));
    equal(notes("a.heic", "jpeg"), "");
});

test("showsWhatTransparencyBecomesAndTheSizeOfAPageWithAJpeg", () => {
    const shown = (picture, target) =>
        convert.preview(picture, settings(target), convert.plan(picture, settings(target)));
    equal(shown(source("a.png", "PNG"), "jpeg").edits, [{ do: "flatten" }]);
    equal(shown(source("a.png", "PNG"), "png").edits, []);
    equal([shown(source("a.jpg"), "jpeg").quality, shown(source("a.jpg"), "png").quality], ["8", ""]);
    equal([shown(source("a.jpg"), "pdf").bytes, shown(source("a.png", "PNG"), "pdf").bytes], [1000, undefined]);
});

finish();
