// Works off one task of the benchmark: quorlin-script resize.js TASK OUTDIR FILE...
//   a  longest side 1000 pixels    b  half of both sides    c  1000 x 1000, filled and cut in the middle
// Each as JPEG of quality 80. Ends with an error when a picture did not come out well, so that speed never hides a failure.
import { ZtImageHandling } from "quorlin";

const LONGEST_SIDE = 2;
const PER_CENT = 3;
const FILL = 1;
const [task, folder, ...files] = scriptArguments;
const images = new ZtImageHandling();

const edits = {
    a: file => images.resizeImage(file, 1000, LONGEST_SIDE, folder + "/", "public.jpeg", "8"),
    b: file => images.resizeImage(file, 50, PER_CENT, folder + "/", "public.jpeg", "8"),
    c: file => images.resizeImage2(file, 1000, 1000, FILL, folder + "/", "public.jpeg", "8"),
};
if (!edits[task] || !folder)
    throw new TypeError("Expected a task (a, b or c), a folder and files but received: " + scriptArguments.join(" "));
for (const file of files) {
    const status = edits[task](file);
    if (status !== "OK")
        throw new Error(file + ": " + status);
}
