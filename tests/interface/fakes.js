// A file service that works on a table of names, and pictures for it.

import { copyOf } from "../../interface/lib/copies.js";
import { splitPath } from "../../interface/lib/names.js";

export class FakeFiles {
    /** @param entries  {path: bytes or "folder"} */
    constructor(entries) {
        this.entries = Object.assign({}, entries);
        this.stagings = [];
        this.removed = [];
        this.appearing = [];
        this.dataFolder = "/data";
        this.texts = {};
    }

    info(path) {
        const entry = this.entries[path];
        return { exists: entry !== undefined, isFolder: entry === "folder", isLink: false,
                 bytes: typeof entry === "number" ? entry : -1, writable: true };
    }

    // The caller leaves out what does not end so.
    namesEndingIn(folder) {
        return this.names(folder);
    }

    names(spelling) {
        const folder = this.folderIdentity(spelling);
        return Object.keys(this.entries).filter((path) => splitPath(path).folder === folder)
            .map((path) => splitPath(path).name);
    }

    folders(folder) {
        return this.names(folder).filter((name) => this.entries[folder + "/" + name] === "folder");
    }

    makeFolder(folder) {
        if (folder.startsWith("/sealed")) {
            return "the folder is sealed";
        }
        this.entries[folder] = "folder";
        return "";
    }

    removeEmptyFolder(folder) {
        if (this.names(folder).length === 0) {
            delete this.entries[folder];
            this.removed.push(folder);
        }
    }

    sweep() {
        return undefined;
    }

    makeStaging(folder) {
        const staging = folder + "/.unfinished/";
        this.stagings.push(staging);
        return staging;
    }

    removeStaging(staging) {
        this.stagings = this.stagings.filter((other) => other !== staging);
        Object.keys(this.entries).filter((path) => path.startsWith(staging))
            .forEach((path) => { delete this.entries[path]; });
    }

    // Folders that are other spellings of one are listed in `same`: {spelling: folder}.
    folderIdentity(folder) {
        return (this.same || {})[folder] || folder;
    }

    identity(path) {
        const parts = splitPath(path);
        const real = this.folderIdentity(parts.folder) + "/" + parts.name;
        return this.entries[real] === undefined ? "" : "id " + real;
    }

    owners(paths) {
        const table = {};
        for (const path of paths) {
            const identity = this.identity(path);
            table[identity] = (table[identity] || []).concat([path]);
        }
        return table;
    }

    place(from, to, replaced) {
        if (this.appearing.indexOf(to) >= 0) {
            this.entries[to] = 1;
            this.appearing = [];
        }
        if (this.entries[to] !== undefined && this.identity(to) !== replaced) {
            return { status: "Taken", message: "" };
        }
        this.entries[to] = this.entries[from];
        delete this.entries[from];
        return { status: "OK", message: "" };
    }

    storedSize(path) {
        const size = (this.sizes || {})[path];
        return size === undefined ? null : size;
    }

    jpegBlock() {
        return this.block === undefined ? { width: 16, height: 16 } : this.block;
    }

    markUpright(path) {
        this.marked = (this.marked || []).concat([path]);
        return this.markProblem || "";
    }

    readText(path) {
        return this.texts[path] === undefined ? null : this.texts[path];
    }

    appendLines(path, text) {
        this.texts[path] = (this.texts[path] || "") + text;
        this.entries[path] = this.texts[path].length;
        return "";
    }

    keepNewestLines(path, most, limit) {
        const lines = this.texts[path].split("\n").slice(0, -1);
        if (lines.length > limit) {
            this.texts[path] = lines.slice(-most).join("\n") + "\n";
        }
        return "";
    }

    writeText(path, text) {
        this.texts[path] = text;
        return "";
    }
}

export function photo(path, width, height) {
    return { path: path, name: splitPath(path).name, type: "JPEG", bytes: 1000, width: width, height: height,
             orientation: 1 };
}

/**
 * Stands for the image service: remembers every call as [operation, ...values] and what the outlets said at that moment,
 * and lets the files appear that a real one would write.
 */
export class FakeImage {
    /** @param written  {path: {width, height}} */
    constructor(files, outlets, written, status) {
        this.files = files;
        this.outlets = outlets;
        this.written = written;
        this.status = status === undefined ? "OK" : status;
        this.calls = [];
        this.said = [];
    }

    note(operation, values) {
        this.calls.push([operation].concat(values));
        this.said.push(copyOf(this.outlets));
        this.files.sizes = this.written;
        return this.status;
    }

    resizeImage(...values) { return this.note("resizeImage", values); }
    resizeImage2(...values) { return this.note("resizeImage2", values); }
    cropImage(...values) { return this.note("cropImage", values); }
    hFlipHorizontalPicture(...values) { return this.note("hFlipHorizontalPicture", values); }
    hFlipVerticalPicture(...values) { return this.note("hFlipVerticalPicture", values); }
    hRotatePicture(...values) { return this.note("hRotatePicture", values); }
    roundCornersOfImage(...values) { return this.note("roundCornersOfImage", values); }
    addOverlayColor(...values) { return this.note("addOverlayColor", values); }
    hSaveToNewImageFile(...values) { return this.note("hSaveToNewImageFile", values); }

    imageFromCGImageRef(bitmap) {
        this.calls.push(["imageFromCGImageRef", bitmap]);
        return new FakePicture("pointwise " + bitmap);
    }

    addBorderToImage(picture) {
        this.calls.push(["addBorderToImage", picture.name]);
        return new FakePicture("framed " + picture.name);
    }
}

export class FakePicture {
    constructor(name) {
        this.name = name;
        this.released = false;
        FakePicture.all.push(this);
    }

    bitmap() { return "bitmap of " + this.name; }
    release() { this.released = true; }
}
FakePicture.all = [];

/** Services for which every file has that size; status is the answer of the image service. */
export function fakeServices(written, status) {
    const files = new FakeFiles({});
    const outlets = {
        cropType: {}, position: {}, xOffset: {}, yOffset: {}, width: {}, height: {}, percentage: {}, pixels: {},
        backgroundCheck: {}, backgroundColor: {}, bandWidth: {},
    };
    const services = {
        files: files, outlets: outlets, image: new FakeImage(files, outlets, written, status), unitCache: {}, laid: [],
        openPicture: (path) => new FakePicture(path),
        pictures: {
            layOnPattern: (...values) => {
                services.laid.push(values);
                files.sizes = written;
                return services.patternProblem || "";
            },
            // 254 dots per inch: ten to the millimetre.
            asked: 0,
            resolution: () => 254,
            inPixels: (value, unit) => {
                services.pictures.asked += 1;
                return Math.trunc(value * { mm: 10, cm: 100, inch: 254 }[unit]);
            },
        },
    };
    return services;
}

/**
 * Services that plan and make recipes: `asked` and `made` remember their calls. `plan` and `made` are laid over what goes well, a JPEG
 * of 400 x 300 pixels.
 */
export function recipeServices(plan, made) {
    const services = fakeServices({});
    services.asked = [];
    services.made = [];
    services.recipes = {
        planOutput: (path, recipe) => {
            services.asked.push([path, recipe]);
            return Object.assign({ problem: "", isNotSupported: false, type: "jpeg", width: 400, height: 300,
                                   extension: ".jpg", lossless: false, leftOut: 0, losses: [], cut: {} }, plan || {});
        },
        nameFor: (path, pattern, ...others) => pattern + " of " + [path].concat(others).join(" "),
        make: (path, recipe, target) => {
            services.made.push([path, recipe, target]);
            services.files.sizes = {};
            services.files.sizes[target] = { width: 400, height: 300 };
            return Object.assign({ outcome: "OK", reason: "", path: target, width: 400, height: 300, losses: [] },
                                 made || {});
        },
    };
    return services;
}

/** A copy of a step's own settings with changes; fields of `output` go into its output settings. */
export function settingsOf(step, changes, output) {
    const made = Object.assign(copyOf(step.defaults), { prefix: "/s/" }, changes || {});
    Object.assign(made.output, output || {});
    return made;
}
