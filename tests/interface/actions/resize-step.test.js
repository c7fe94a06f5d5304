import * as resize from "../../../interface/actions/resize/resize-step.js";
import { equal, finish, test } from "../check.js";
import { fakeServices, photo, settingsOf } from "../fakes.js";

const settings = (changes) => settingsOf(resize, changes);

function run(chosen, written, status) {
    const services = fakeServices(written === null ? {} : { "/s/a.jpg": written }, status);
    return { result: resize.run(photo("/p/a.jpg", 4000, 3000), chosen, services), calls: services.image.calls };
}

test("asksForTheLongestSideInTheOriginalType", () => {
    const done = run(settings(), { width: 1600, height: 1200 });
    equal(done.calls, [["resizeImage", "/p/a.jpg", 1600, 2, "/s/", "original file type", "8"]]);
    equal([done.result.status, done.result.outputs, done.result.width, done.result.height],
          ["OK", ["/s/a.jpg"], 1600, 1200]);
});

test("asksForABoxThatIsFilled", () => {
    const done = run(settings({ mode: "box", boxWidth: 1000, boxHeight: 900, boxFit: "fill" }),
                     { width: 1000, height: 900 });
    equal([done.calls, done.result.status],
          [[["resizeImage2", "/p/a.jpg", 1000, 900, 1, "/s/", "original file type", "8"]], "OK"]);
});

test("failsWhereTheServiceSaysOkWithoutAFile", () => {
    const done = run(settings(), null);
    equal([done.result.status, done.result.reason], ["Failed", "not a readable picture"]);
});

test("failsWhereTheFileHasAnotherSize", () => {
    equal(run(settings(), { width: 1600, height: 1199 }).result.status, "Failed");
});

test("handsOnWhatTheServiceRefuses", () => {
    equal([run(settings(), null, "Failed").result.status, run(settings(), null, "Not Supported").result.status],
          ["Failed", "Not Supported"]);
});

const RANGES = [
    ["longest", 0, 1], ["longest", 1, 0], ["longest", 100000, 0], ["longest", 100001, 1], ["longest", 1.5, 1],
    ["percent", 1000, 0], ["percent", 1001, 1], ["width", -1, 1],
];

for (const row of RANGES) {
    test("validates " + row[0] + " " + row[1], () => {
        const chosen = settings({ mode: row[0] });
        chosen[row[0]] = row[1];
        equal(resize.validate(chosen).length, row[2]);
    });
}

test("validatesBothSidesOfABox", () => {
    equal(resize.validate(settings({ mode: "box", boxWidth: 0, boxHeight: 0 })).length, 2);
});

test("wantsAFolderWhereOneIsToBeChosen", () => {
    const chosen = settings();
    chosen.output.destination = { kind: "folder", name: "", path: "" };
    equal(resize.validate(chosen).length, 1);
});

test("cutsBeforeItScalesInThePreview", () => {
    const shown = (changes) => {
        const chosen = settings(changes);
        return resize.preview(photo("/p/a.png", 4000, 3000), chosen,
                              resize.plan(photo("/p/a.png", 4000, 3000), chosen, fakeServices({}))).deeds;
    };
    equal(shown({}), [{ do: "scale", width: 1600, height: 1200 }]);
    equal(shown({ mode: "box", boxWidth: 1000, boxHeight: 1000 }),
          [{ do: "cut", x: 498, y: 0, width: 3001, height: 3000 }, { do: "scale", width: 1000, height: 1000 }]);
});

finish();
