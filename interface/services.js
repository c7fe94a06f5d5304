// The services that the steps use, made once for a window or a batch, with stand-ins on the outlets of the operations.

import { cMConversion, cNSFileHandling, cNSStringHandling, Picture, ZtImageHandling } from "quorlin";
import { CheckBox, ColorWell, SegmentedControl, TabView, TextField } from "quorlin/controls";
import { files } from "quorlin/files";
import { moves } from "quorlin/moves";
import { pictures } from "quorlin/pictures";
import { recipes } from "quorlin/recipes";
import { KnownFacts } from "./lib/known-facts.js";
import { emptyTable } from "./lib/names.js";

function makeOutlets() {
    return {
        cropType: new TabView({}), position: new SegmentedControl({}), xOffset: new TextField({}),
        yOffset: new TextField({}),
        width: new TextField({}), height: new TextField({}), percentage: new TextField({}), pixels: new TextField({}),
        backgroundCheck: new CheckBox({}), backgroundColor: new ColorWell({}), bandWidth: new TextField({}),
    };
}

function join(image, outlets) {
    image.tvCropType = outlets.cropType;
    image.scImageCropPos = outlets.position;
    image.tfCropXOffset = outlets.xOffset;
    image.tfCropYOffset = outlets.yOffset;
    image.tfCropXsize = outlets.width;
    image.tfCropYsize = outlets.height;
    image.tfCropPercentage = outlets.percentage;
    image.tfCropPixels = outlets.pixels;
    image.cbImageBgColorCheck = outlets.backgroundCheck;
    image.cwImageBackgroundColor = outlets.backgroundColor;
    image.tfBorderWidth = outlets.bandWidth;
}

/** {image, units, fileHandling, files, facts, names, moves, pictures, recipes, openPicture(path), outlets, unitCache}. */
export function makeServices() {
    const outlets = makeOutlets();
    const image = new ZtImageHandling();
    join(image, outlets);
    return {
        image: image, units: new cMConversion(), fileHandling: new cNSFileHandling(), files: files,
        facts: new KnownFacts(files), names: new cNSStringHandling(),
        pictures: pictures, recipes: recipes, moves: moves,
        openPicture: (path) => Picture.open(path), outlets: outlets, unitCache: emptyTable(),
    };
}
