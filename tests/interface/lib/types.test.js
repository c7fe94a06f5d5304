import { lostText, targetNamed } from "../../../interface/actions/convert/targets.js";
import { keepsProfile, resultType, typeOfExtension, WRITTEN, writtenType } from "../../../interface/lib/types.js";
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
    equal([resultType("tif", "original file type").id, resultType("heic", "original file type")],
          ["public.tiff", null]);
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
