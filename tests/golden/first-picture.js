// Does something with pictures in one process: quorlin-script first-picture.js OUTPREFIX (EDIT FILE)...
// EDIT is one of the names below. Prints one line for each; whatever the answers are, there must be one.
import { cNSFileHandling, mMeta, Picture, ZtImageHandling } from "quorlin";

const [prefix, ...rest] = scriptArguments;
const images = new ZtImageHandling();
const handling = new cNSFileHandling();
const meta = new mMeta();
const edits = {
    size: file => images.hGetPixelSize(file),
    thumbnail: file => images.resizeImage(file, 120, 2, prefix, "public.png", "8"),
    handle: file => images.hStringToCGImageRef(file) !== null,
    preview: file => { const picture = Picture.open(file); return picture === null ? "none" : picture.pixelsWide; },
    properties: file => meta.hGetPixelFormat(file).join(" ") + " " + meta.hGetColorProfile(file),
    conversion: file => handling.hConvertFileType(file, "bmp", "8", prefix + "converted.bmp").length,
};

for (let at = 0; at + 1 < rest.length; at += 2) {
    print(rest[at] + " " + edits[rest[at]](rest[at + 1]));
}
