// Converts every picture to every target: quorlin-script conversion-matrix.js OUTDIR FILE...
// Writes OUTDIR/NUMBER.TARGET, NUMBER counting the files from 0, and the first of them as JPEG in every quality as
// OUTDIR/quality-CODE.jpeg. Prints one line of JSON for each answer.
import { cNSFileHandling } from "quorlin";

const [out, ...files] = scriptArguments;
const service = new cNSFileHandling();

function convert(file, target, code, path) {
    print(JSON.stringify({ path: path, answer: service.hConvertFileType(file, target, code, path) }));
}

files.forEach((file, number) => {
    for (const target of ["pdf", "png", "tiff", "bmp", "gif", "jpeg", "jp2"]) {
        convert(file, target, "8", out + "/" + number + "." + target);
    }
});
for (const code of ["1", "2", "3", "4", "5", "6", "7", "8", "9", "10", ""]) {
    convert(files[0], "jpeg", code, out + "/quality-" + code + ".jpeg");
}
