// Works off one task of the benchmark: quorlin-script comment.js FILE...
// Writes a user comment into each file, in place. Ends with an error when one could not be written, so that speed never hides
// a failure.
import { mMeta } from "quorlin";

const comment = "Written by the contender";
const meta = new mMeta();
for (const file of scriptArguments) {
    const status = meta.hSetExifData(file, comment);
    if (status !== "OK")
        throw new Error(file + ": " + status);
}
if (scriptArguments.length === 0 || meta.hGetExifUc(scriptArguments[0]) !== comment)
    throw new Error("Nothing was written");
