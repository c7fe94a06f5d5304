// Resizes every picture in many ways, as a batch does: quorlin-script corpus-batch.js OUTDIR FILE...
// Prints one line of JSON for each edit: the source's number in the list, the folder below OUTDIR, and the answer. A new
// file is OUTDIR/FOLDER/NUMBER-NAME.EXTENSION. The edits are the ones of EDITS in corpus_batch.py.
import { ZtImageHandling } from "quorlin";

const types = ["public.png", "public.tiff", "public.bmp", "com.compuserve.gif", "public.jpeg", "public.jp2"];
const [out, ...files] = scriptArguments;
const images = new ZtImageHandling();

function tell(number, folder, answer) {
    print(JSON.stringify({ number: number, folder: folder, answer: answer }));
}

files.forEach((file, number) => {
    const prefix = folder => out + "/" + folder + "/" + number + "-";
    tell(number, "size", images.hGetPixelSize(file));
    for (const type of types) {
        tell(number, type, images.resizeImage(file, 160, 2, prefix(type), type, "8"));
    }
    tell(number, "half", images.resizeImage(file, 50, 3, prefix("half"), "original file type", "9"));
    tell(number, "fill", images.resizeImage2(file, 120, 80, 1, prefix("fill"), "public.png", ""));
    tell(number, "stretch", images.resizeImage2(file, 90, 70, 0, prefix("stretch"), "public.jpeg", "5"));
});
