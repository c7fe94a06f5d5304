// Converts one picture with the step of the window and prints what it says: quorlin-script convert-one.js PICTURE FOLDER TARGET

import { copyOf } from "../../interface/lib/copies.js";
import { mMeta } from "quorlin";
import { files } from "quorlin/files";
import { makeServices } from "../../interface/services.js";
import * as convert from "../../interface/actions/convert/convert-step.js";

const [path, folder, target] = scriptArguments;
if (target === "comment") {
    new mMeta().hSetExifData(path, "a long comment ".repeat(4000));
} else {
    const settings = Object.assign(copyOf(convert.defaults), { target: target, prefix: folder + "/" });
    print(JSON.stringify(convert.run(files.picture(path), settings, makeServices())));
}
