// Works off one task of the benchmark: quorlin-script mask.js TASK OUTDIR FILE...
//   f  cut to the middle 3000 x 2250, JPEG of quality 90    h  corners rounded by 200 pixels, transparent, as PNG
//   frame  the crop frame of each, and how long one took, in milliseconds
// Ends with an error when a picture did not come out well, so that speed never hides a failure.
import { ZtImageHandling } from "quorlin";
import { SegmentedControl, TabView } from "quorlin/controls";

const CENTRE = 4;
const [task, folder, ...files] = scriptArguments;
const images = new ZtImageHandling();
images.tvCropType = new TabView({ selectedLabel: "Pixels" });
images.scImageCropPos = new SegmentedControl({ selectedSegment: CENTRE });

function frameOf(file) {
    const begin = Date.now();
    const frame = images.hShowCropBox(file);
    print(file + ": " + (Date.now() - begin) + " ms");
    if (frame)
        frame.release();
    return frame ? "OK" : "no frame";
}

function cutOf(file) {
    images.tvCropType.selectedLabel = "W x H";
    return images.cropImage(file, 3000, 2250, folder + "/", "public.jpeg", "9");
}

const edits = {
    f: cutOf,
    h: file => images.roundCornersOfImage(file, folder + "/", 200, "0", "0"),
    frame: frameOf,
};
if (!edits[task] || !folder)
    throw new TypeError("Expected a task (f, h or frame), a folder and files but received: " + scriptArguments.join(" "));
for (const file of files) {
    const status = edits[task](file);
    if (status !== "OK")
        throw new Error(file + ": " + status);
}
