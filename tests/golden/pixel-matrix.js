// Converts one picture to every target at the best quality: quorlin-script pixel-matrix.js OUTDIR FILE
import { cNSFileHandling } from "quorlin";

const [out, file] = scriptArguments;
const service = new cNSFileHandling();
for (const target of ["pdf", "png", "tiff", "bmp", "gif", "jpeg", "jp2"]) {
    service.hConvertFileType(file, target, "9", out + "/made." + target);
}
