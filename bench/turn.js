// Works off one task of the benchmark: quorlin-script turn.js TASK OUTDIR FILE...
//   d90  turned by 90 degrees    d7  turned by 7.5 degrees    e  left and right swapped
// Each into its own type. Ends with an error when a picture did not come out well, so that speed never hides a failure.
import { ZtImageHandling } from "quorlin";

const [task, folder, ...files] = scriptArguments;
const images = new ZtImageHandling();

const edits = {
    d90: file => images.hRotatePicture(file, folder + "/", 90),
    d7: file => images.hRotatePicture(file, folder + "/", 7.5),
    e: file => images.hFlipHorizontalPicture(file, folder + "/"),
};
if (!edits[task] || !folder)
    throw new TypeError("Expected a task (d90, d7 or e), a folder and files but received: " + scriptArguments.join(" "));
for (const file of files) {
    const status = edits[task](file);
    if (status !== "OK")
        throw new Error(file + ": " + status);
}
