import * as turn from "../../../interface/actions/turn/turn-step.js";
import { equal, finish, test } from "../check.js";
import { fakeServices, photo, settingsOf } from "../fakes.js";

function source(name, width, height, orientation) {
    return Object.assign(photo("/p/" + name, width, height), { orientation: orientation || 1 });
}

function run(picture, changes, stored, status) {
    const written = {};
    written["/s/" + picture.name] = stored;
    const services = fakeServices(stored === null ? {} : written, status);
    return { result: turn.run(picture, settingsOf(turn, changes), services), calls: services.image.calls };
}

const ROADS = [
    ["a turn", source("a.jpg", 400, 300), { angle: 90 }, [["hRotatePicture", "/p/a.jpg", "/s/", 90]], [300, 400],
     [300, 400]],
    ["a flip", source("a.jpg", 400, 300), { angle: 0, flipHorizontal: true },
     [["hFlipHorizontalPicture", "/p/a.jpg", "/s/"]], [400, 300], [400, 300]],
    ["a flip down", source("a.png", 400, 300), { angle: 0, flipVertical: true },
     [["hFlipVerticalPicture", "/p/a.png", "/s/"]], [400, 300], [400, 300]],
    ["a flip and a turn, through the unfinished file", source("a.jpg", 400, 300), { angle: 90, flipHorizontal: true },
     [["hFlipHorizontalPicture", "/p/a.jpg", "/s/"], ["hRotatePicture", "/s/a.jpg", "/s/", 90]], [300, 400],
     [300, 400]],
    // Upright 300 x 400, stored 400 x 300 with the tag: across in the upright picture is down in the stored one.
    ["a flip of a turned JPEG", source("a.jpg", 300, 400, 6), { angle: 0, flipHorizontal: true },
     [["hFlipVerticalPicture", "/p/a.jpg", "/s/"]], [400, 300], [300, 400]],
    ["a turn of a turned PNG, whose tag is lost", source("a.png", 300, 400, 6), { angle: 90 },
     [["hRotatePicture", "/p/a.png", "/s/", 0]], [400, 300], [400, 300]],
    ["any angle", source("a.png", 100, 100), { angle: 45 }, [["hRotatePicture", "/p/a.png", "/s/", 45]], [141, 141],
     [141, 141]],
];

for (const row of ROADS) {
    test("asks for " + row[0], () => {
        const done = run(row[1], row[2], { width: row[4][0], height: row[4][1] });
        equal(done.calls, row[3]);
        equal([done.result.status, done.result.reason, done.result.width, done.result.height],
              ["OK", "", row[5][0], row[5][1]]);
    });
}

test("failsWhereThereIsNoPictureInTheFile", () => {
    const done = run(source("a.jpg", 400, 300), { angle: 90, flipHorizontal: true }, null, null);
    equal([done.result.status, done.calls.length], ["Failed", 1]);
});

test("failsWhereTheFileHasAnotherSize", () => {
    equal(run(source("a.jpg", 400, 300), { angle: 90 }, { width: 400, height: 300 }).result.status, "Failed");
});

test("saysWithoutLossOnlyWhereThatIsCertain", () => {
    const services = fakeServices({});
    const said = (picture) => turn.plan(picture, settingsOf(turn), services).notes.length;
    services.files.block = { width: 16, height: 8 };
    equal([said(source("a.jpg", 4000, 3000)), said(source("a.jpg", 4000, 3001)), said(source("a.png", 4000, 3000))],
          [1, 0, 0]);
    // Stored as 4008 x 3000 and shown standing: 4008 is no multiple of 16, but 3000 is one of 8.
    equal([said(source("a.jpg", 3000, 4008, 6)), said(source("a.jpg", 3000, 4000, 6))], [0, 1]);
    services.files.block = null;
    equal(said(source("a.jpg", 4000, 3000)), 0);
});

test("keepsTheNameAndTheTypeAndRefusesTypesThatCannotBeWritten", () => {
    equal(turn.plan(source("a.TIFF", 4, 3), settingsOf(turn), fakeServices({})).name, "a.TIFF");
    equal(turn.plan(source("a.heic", 4, 3), settingsOf(turn), fakeServices({})).status, "Not Supported");
    equal(turn.plan(source("a.jpg", 0, 0), settingsOf(turn), fakeServices({})).status, "Failed");
});

const VALID = [[{ angle: 90 }, 0], [{ angle: 0 }, 1], [{ angle: 0, flipVertical: true }, 0], [{ angle: 181 }, 1],
               [{ angle: 180, flipVertical: true, flipHorizontal: true }, 1]];

for (const row of VALID) {
    test("validates " + JSON.stringify(row[0]),
         () => { equal(turn.validate(settingsOf(turn, row[0])).length, row[1]); });
}

test("showsFlipsFirstAndThenTheTurn", () => {
    const settings = settingsOf(turn, { angle: -7.5, flipHorizontal: true });
    const picture = source("a.png", 100, 100, 6);
    equal(turn.preview(picture, settings, turn.plan(picture, settings, fakeServices({}))).deeds,
          [{ do: "flip", axis: "horizontal" }, { do: "turn", degrees: -7.5 }]);
});

finish();
