// Works off one task of the benchmark: quorlin-script preview.js TASK OUTDIR FILE...
//   j  each picture through the view of the window at 1200 x 800, what it shows written as TIFF without compression
// Ends with an error when a picture did not come out well, so that speed never hides a failure.
import { ZtImageHandling, myMainPhotoView } from "quorlin";

const [task, folder, ...files] = scriptArguments;
if (task !== "j" || !folder)
    throw new TypeError("Expected the task j, a folder and files but received: " + scriptArguments.join(" "));
const images = new ZtImageHandling();
const view = new myMainPhotoView();
view.frame = { x: 0, y: 0, width: 1200, height: 800 };
view.pImageToFit = true;
for (const file of files) {
    view.setImageWithPath2(file);
    const name = file.slice(file.lastIndexOf("/") + 1, file.lastIndexOf("."));
    const shown = view.pImage;
    const middle = shown.pixel(600, 400)[3];
    const status = images.hSaveToNewImageFile(folder + "/" + name + ".tiff", "public.tiff", shown.bitmap(), null);
    shown.release();
    if (middle !== 255 || status !== "OK")
        throw new Error(file + ": " + status);
}
