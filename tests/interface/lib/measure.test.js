import { converted, decimalsOf, inPixels, toPixels, UnitMemory, UNITS } from "../../../interface/lib/measure.js";
import { equal, finish, test } from "../check.js";
import { fakeServices, photo } from "../fakes.js";

const picture = photo("/p/a.jpg", 4000, 3000);

test("leavesPixelsAlone", () => {
    const services = fakeServices({});
    equal([toPixels(picture, "pixel", 1600, services), services.pictures.asked], [1600, 0]);
});

test("changesOnlyTheNamedLengths", () => {
    const settings = { unit: "cm", width: 2.5, height: 2.5, percent: 7 };
    equal(inPixels(picture, settings, ["width"], fakeServices({})),
          { unit: "cm", width: 250, height: 2.5, percent: 7 });
    equal(settings.width, 2.5);
});

const LENGTHS = [[300, "pixel", "inch", 300, 1], [1, "inch", "cm", 300, 2.54], [25.4, "mm", "pixel", 300, 300],
                 [72, "punt", "inch", 72, 1],
                 [1600, "pixel", "mm", 300, 135.5], [135.5, "mm", "pixel", 300, 1600], [10, "cm", "cm", 300, 10]];

for (const row of LENGTHS) {
    test("shows " + row[0] + " " + row[1] + " in " + row[2],
         () => { equal(converted(row[0], row[1], row[2], row[3]), row[4]); });
}

test("aTypedLengthComesBackWithItsUnit", () => {
    const lengths = new UnitMemory();
    const inCm = lengths.inUnit("width", 1600, "pixel", "cm", 72);
    equal([inCm, lengths.inUnit("width", inCm, "cm", "mm", 72)], [56.44, 564.4]);
    equal(lengths.inUnit("width", 564.4, "mm", "pixel", 72), 1600);
});

test("aLengthThatWasChangedIsTheNewOne", () => {
    const lengths = new UnitMemory();
    lengths.inUnit("width", 1600, "pixel", "cm", 72);
    equal([lengths.inUnit("width", 50, "cm", "pixel", 72), lengths.inUnit("width", 1417, "pixel", "cm", 72)],
          [1417, 50]);
});

test("everyUnitHasItsDecimals", () => {
    equal(UNITS.map((unit) => decimalsOf(unit)), [0, 1, 2, 2, 1, 0]);
});

finish();
