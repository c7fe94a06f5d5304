// Works off one task of the benchmark: quorlin-script convert.js TASK OUTDIR FILE...
//   png, tiff, jp2, gif, bmp  converted to that type
// Ends with an error when a picture did not come out, so that speed never hides a failure.
import { cNSFileHandling } from "quorlin";

const [task, folder, ...files] = scriptArguments;
const service = new cNSFileHandling();

if (["png", "tiff", "jp2", "gif", "bmp"].indexOf(task) < 0 || !folder)
    throw new TypeError("Expected a task (png, tiff, jp2, gif or bmp), a folder and files but received: " + scriptArguments.join(" "));
for (const file of files) {
    const path = folder + file.slice(file.lastIndexOf("/")).replace(/[^.]*$/, task);
    service.hConvertFileType(file, task, "8", path);
    if (service.hCheckIfFileExist(path) !== "OK")
        throw new Error(file + " was not converted");
}
