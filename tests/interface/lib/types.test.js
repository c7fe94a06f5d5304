import { CONVERTED_INPUT, PHOTO_INPUT, READ_INPUT, typeOfExtension, WRITTEN } from "../../../interface/lib/types.js";
import { equal, finish, isTrue, test } from "../check.js";

test("knowsWhatIsWrittenAndUnderWhichNames", () => {
    equal(WRITTEN.map((type) => type.id + type.extension),
          ["public.jpeg.jpg", "public.png.png", "public.tiff.tiff", "org.webmproject.webp.webp", "public.avif.avif",
           "public.jpeg-xl.jxl", "public.jp2.jp2", "com.compuserve.gif.gif", "public.bmp.bmp"]);
    equal(WRITTEN.map((type) => type.profile), ["yes", "yes", "yes", "yes", "yes", "yes", "ifItFits", "no", "no"]);
    equal(WRITTEN.filter((type) => !type.alpha).map((type) => type.word), ["JPEG", "BMP"]);
    equal(WRITTEN.filter((type) => type.hasQuality).map((type) => type.word),
          ["JPEG", "WebP", "AVIF", "JPEG XL", "JPEG 2000"]);
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

finish();
