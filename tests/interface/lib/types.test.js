import { lostText, targetNamed } from "../../../interface/actions/convert/targets.js";
import { CONVERTED_INPUT, keepsProfile, PHOTO_INPUT, READ_INPUT, typeOfExtension, WRITTEN,
         writtenType } from "../../../interface/lib/types.js";
import { equal, finish, isTrue, test } from "../check.js";
import { photo } from "../fakes.js";

// The engine does not tell a module where it lies, but a stack does.
const PICTURES = new Error("").stack.match(/(?:file:\/\/)?(\/[^\n]*)\/interface\/lib\//)[1] + "/pictures/";

const fitting = photo(PICTURES + "formats/profile.jpg", 60, 40);
const unreadable = photo("/nowhere/a.jpg", 60, 40);

test("knowsWhatIsWrittenAndUnderWhichNames", () => {
    equal(WRITTEN.map((type) => type.id + type.extension),
          ["public.jpeg.jpg", "public.png.png", "public.tiff.tiff", "public.bmp.bmp", "com.compuserve.gif.gif",
           "public.jp2.jp2"]);
    equal(WRITTEN.map((type) => type.profile), ["yes", "yes", "yes", "no", "no", "ifItFits"]);
    equal(WRITTEN.map((type) => [type.alpha, type.quality]),
          [[false, true], [true, false], [true, false], [false, false], [true, false], [true, false]]);
    equal(["JPE", "tif", "heif", "xyz", ""].map(typeOfExtension),
          ["public.jpeg", "public.tiff", "public.heif", "", ""]);
});

test("takesEveryPictureThatCanBeRead", () => {
    const read = ["jpg", "jpeg", "jpe", "tif", "tiff", "png", "jp2", "gif", "bmp", "heic", "heif", "webp", "avif",
                  "jxl", "psd", "dng", "nef", "cr2"];
    equal(read.filter((extension) => READ_INPUT.indexOf(extension) < 0), []);
    // Pages and drawings are converted first, and raw files without a preview can only be looked at.
    equal(["pdf", "svg"].map((extension) => [READ_INPUT, CONVERTED_INPUT].map((all) => all.indexOf(extension) >= 0)),
          [[false, true], [false, true]]);
    for (const all of [READ_INPUT, CONVERTED_INPUT, PHOTO_INPUT]) {
        equal(all.filter((extension, i) => all.indexOf(extension) !== i), []);
    }
    isTrue(PHOTO_INPUT.length > CONVERTED_INPUT.length);
});

test("saysOfAJpeg2000WhatItKeepsOfThisPicture", () => {
    const jp2 = writtenType("public.jp2");
    equal([keepsProfile(fitting.path, jp2), keepsProfile(unreadable.path, jp2)], [true, false]);
    isTrue(!/sRGB/.test(lostText(fitting, targetNamed("jp2"))));
    isTrue(/sRGB/.test(lostText(unreadable, targetNamed("jp2"))));
});

test("asksNoPictureWhereTheTypeTellsItAll", () => {
    equal([keepsProfile(unreadable.path, writtenType("public.jpeg")),
           keepsProfile(fitting.path, writtenType("public.bmp"))], [true, false]);
});

finish();
