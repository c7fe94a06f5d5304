import * as background from "../../../interface/actions/background/background-step.js";
import * as round from "../../../interface/actions/round/round-step.js";
import { equal, finish, isTrue, test } from "../check.js";
import { FakePicture, fakeServices, photo, settingsOf } from "../fakes.js";

const wide = photo("/p/a.jpg", 400, 300);
const turned = Object.assign(photo("/p/a.jpg", 300, 400), { orientation: 6 });
const clear = photo("/p/a.png", 400, 300);

// What a step makes of a picture; `made` is the size of the file that the service writes, where it is another one, and what it answers.
function run(step, picture, settings, name, made) {
    const written = {};
    const { size, status } = made || {};
    written["/s/" + name] = size || { width: picture.width, height: picture.height };
    const services = fakeServices(written, status);
    const result = step.run(picture, settings, services);
    return { result: result, services: services, calls: services.image.calls, said: services.image.said };
}

const SHAPES = [
    [{ shape: "rectangle", radius: 40 }, "public.png", ["/p/a.jpg", "/s/", 40, "0", "0"], "a.png", null],
    [{ shape: "circle", radius: 40 }, "public.tiff", ["/p/a.jpg", "/s/", 40, "1", "1"], "a.tiff",
     { width: 300, height: 300 }],
    [{ shape: "ellipse", radius: 40 }, "com.compuserve.gif", ["/p/a.jpg", "/s/", 40, "2", "2"], "a.gif", null],
    [{ shape: "rectangle", radius: 0 }, "original file type", ["/p/a.jpg", "/s/", 0, "0", "9"], "a.jpg", null],
];

for (const row of SHAPES) {
    test("rounds as " + JSON.stringify(row[0]) + " into " + row[1], () => {
        const done = run(round, wide, settingsOf(round, row[0], { fileType: row[1] }), row[3], { size: row[4] });
        equal(done.calls, [["roundCornersOfImage"].concat(row[2])]);
        equal([done.result.status, done.result.outputs], ["OK", ["/s/" + row[3]]]);
        equal(done.said[0].backgroundCheck.state, 0);
    });
}

test("tellsColourAndBand", () => {
    const said = run(round, wide, settingsOf(round, { background: true, color: "#102030", band: 20 }, {}),
                     "a.png").said[0];
    equal([said.backgroundCheck.state, said.backgroundColor.color, said.bandWidth.stringValue], [1, "#102030", "20"]);
});

test("marksRoundedJpegAndTiffUprightAndNoOther", () => {
    equal(run(round, turned, settingsOf(round, {}, { fileType: "original file type" }), "a.jpg").services.files.marked,
          ["/s/a.jpg"]);
    equal(run(round, turned, settingsOf(round, {}, { fileType: "public.tiff" }), "a.tiff").services.files.marked,
          ["/s/a.tiff"]);
    equal(run(round, turned, settingsOf(round, {}, {}), "a.png").services.files.marked, undefined);
});

test("failsWhereTheMarkCannotBeSet", () => {
    const services = fakeServices({ "/s/a.jpg": { width: 300, height: 400 } });
    services.files.markProblem = "no room";
    equal(round.run(turned, settingsOf(round, {}, { fileType: "original file type" }), services).reason, "no room");
});

test("saysWhichSquareACircleIsCutFrom", () => {
    const note = (picture) => round.plan(picture, settingsOf(round, { shape: "circle" })).notes.join();
    isTrue(note(wide).includes("left") && note(turned).includes("bottom") && note(photo("/p/a.jpg", 5, 5)) === "");
});

test("saysWhatBecomesBlack", () => {
    const notes = (changes) =>
        round.plan(wide, settingsOf(round, changes, { fileType: "original file type" })).notes.length;
    equal([notes({}), notes({ background: true })], [1, 0]);
});

test("refusesABandThatCoversAll", () => {
    equal(round.plan(wide, settingsOf(round, { background: true, band: 150 })).status, "Failed");
    equal(background.plan(wide, settingsOf(background, { frame: "band", bandWidth: 150 })).status, "Failed");
});

test("laysOnAColour", () => {
    const done = run(background, clear, settingsOf(background, { color: "#ff0000" }, {}), "a.png");
    equal(done.calls, [["addOverlayColor", "/p/a.png", "/s/", "", "", "9"]]);
    equal([done.said[0].backgroundColor.color, done.result.status], ["#ff0000", "OK"]);
});

test("laysOnAPattern", () => {
    const done = run(background, clear,
                     settingsOf(background, { under: "pattern", pattern: "/t/dots.png" }, { fileType: "public.tiff" }),
                     "a.tiff");
    equal([done.services.laid, done.calls, done.result.status], [[["/p/a.png", "/t/dots.png", "/s/a.tiff"]], [], "OK"]);
});

test("saysWhyAPatternFailed", () => {
    const services = fakeServices({});
    services.patternProblem = "the pattern cannot be read";
    const settings = settingsOf(background, { under: "pattern", pattern: "/t/dots.png" });
    const result = background.run(clear, settings, services);
    equal([result.status, result.reason], ["Failed", "the pattern cannot be read"]);
});

test("putsAWhiteFrameRoundAndLetsGoOfThePictures", () => {
    const done = run(background, wide, settingsOf(background, { frame: "white" }, {}), "a.jpg",
                     { size: { width: 420, height: 320 } });
    equal(done.calls,
          [["imageFromCGImageRef", "bitmap of /p/a.jpg"], ["addBorderToImage", "pointwise bitmap of /p/a.jpg"],
                       ["hSaveToNewImageFile", "/s/a.jpg", "public.jpeg",
                        "bitmap of framed pointwise bitmap of /p/a.jpg", {}]]);
    equal([done.result.status, done.result.width], ["OK", 420]);
    isTrue(FakePicture.all.every((picture) => picture.released));
});

test("laysAPictureThatMayBeTransparentBeforeItIsFramed", () => {
    const done = run(background, clear, settingsOf(background, { frame: "white", color: "#00ff00" }, {}), "a.png",
                     { size: { width: 420, height: 320 } });
    equal([done.calls[0][0], done.calls[1]], ["addOverlayColor", ["imageFromCGImageRef", "bitmap of /s/a.png"]]);
});

test("paintsABandOverTheEdge", () => {
    const done = run(background, turned,
                     settingsOf(background, { frame: "band", bandColor: "#0000ff", bandWidth: 12 }, {}), "a.jpg");
    equal(done.calls, [["roundCornersOfImage", "/p/a.jpg", "/s/", 0, "0", "9"]]);
    const said = done.said[0];
    equal([said.backgroundCheck.state, said.backgroundColor.color, said.bandWidth.stringValue], [1, "#0000ff", "12"]);
    equal(done.services.files.marked, ["/s/a.jpg"]);
});

test("laysAndBandsInTheUnfinishedFile", () => {
    const done = run(background, clear,
                     settingsOf(background, { frame: "band", bandWidth: 12 }, { fileType: "public.tiff" }), "a.tiff");
    equal(done.calls,
          [["addOverlayColor", "/p/a.png", "/s/", "", "", "1"],
           ["roundCornersOfImage", "/s/a.tiff", "/s/", 0, "0", "9"]]);
});

test("stopsAtTheFirstFailure", () => {
    const done = run(background, clear, settingsOf(background, { frame: "band" }, {}), "a.png", { status: "Failed" });
    equal([done.calls.length, done.result.status], [1, "Failed"]);
});

const VALID = [
    [round, { radius: -1 }, 1], [round, { shape: "circle", radius: -1 }, 0], [round, { background: true, band: -1 }, 1],
    [round, { band: -1 }, 0], [background, {}, 0], [background, { under: "pattern", pattern: "" }, 1],
    [background, { frame: "band", bandWidth: 0 }, 1],
    [background, { frame: "white", bandWidth: 0 }, 0],
];

for (const row of VALID) {
    test("validates " + JSON.stringify(row[1]),
         () => { equal(row[0].validate(settingsOf(row[0], row[1])).length, row[2]); });
}

test("showsWhatIsLaidAndFramed", () => {
    const shown = (picture, changes) => {
        const settings = settingsOf(background, changes);
        return background.preview(picture, settings, background.plan(picture, settings)).deeds.map((deed) => deed.do);
    };
    equal([shown(clear, {}), shown(clear, { under: "pattern", pattern: "/t" }), shown(clear, { frame: "white" }),
           shown(wide, { frame: "band" })],
          [["lay"], ["pattern"], ["lay", "frame"], ["round", "flatten"]]);
});

finish();
