// Whether there is room for what is to be written: how many bytes each file system gets, and how many it has free. Pure but for
// translation; the services are passed in.

import { itemOf } from "./move-plan.js";
import { emptyTable, splitPath } from "../lib/names.js";
import { fill } from "../lib/wording.js";

function isWritten(plan, i) {
    const kind = plan.rows[i].kind;
    return kind === "copy" || (kind === "move" && itemOf(plan, i).code === "disk");
}

/** How many bytes each file system gets, as rows are added. */
export class DiskNeeds {
    /** @param space  function(folder): {free, disk} */
    constructor(space) {
        this.space = space;
        this.byBase = emptyTable();
    }

    add(plan, i) {
        if (isWritten(plan, i)) {
            const base = plan.rows[i].base;
            if (this.byBase[base] === undefined) {
                const found = this.space(base);
                this.byBase[base] = { disk: found.disk, bytes: 0, free: found.free, folder: base };
            }
            this.byBase[base].bytes += plan.rows[i].bytes;
        }
    }

    /** [{disk, bytes, free, folder}]; folders on one file system are one entry. */
    disks() {
        const joined = [];
        Object.keys(this.byBase).map((base) => this.byBase[base]).forEach((each) => {
            const same = joined.find((other) => other.disk === each.disk && each.disk >= 0);
            if (same === undefined) {
                joined.push(Object.assign({}, each));
            } else {
                same.bytes += each.bytes;
            }
        });
        return joined;
    }
}

/**
 * How many bytes each file system gets from a run that writes pictures, and from the trash that keeps what it replaces.
 * Sizes of results are guessed from their pixels until a few of them have been made.
 */
export class WriteNeeds {
    /** @param files  the service: space, trashSpace, info */
    constructor(files) {
        this.files = files;
        this.folders = emptyTable();
        this.written = 0;
    }

    add(path, bytes) {
        const { folder } = splitPath(path);
        if (this.folders[folder] === undefined) {
            this.folders[folder] = { here: this.files.space(folder), trash: null,
                                     bytes: 0, largest: 0, replaced: 0 };
        }
        const sum = this.folders[folder];
        sum.bytes += bytes;
        sum.largest = Math.max(sum.largest, bytes);
        this.written += bytes;
    }

    /** The file at the path is replaced; bytes: its size, if that is known. */
    addReplaced(path, bytes) {
        const { folder } = splitPath(path);
        const sum = this.folders[folder];
        sum.trash = sum.trash || this.files.trashSpace(folder);
        sum.replaced += bytes || Math.max(0, this.files.info(path).bytes);
    }

    /** [{disk, bytes, free, folder}] if all results have so many bytes together, -1: as guessed. */
    disks(all) {
        const scale = all >= 0 && this.written > 0 ? all / this.written : 1;
        const joined = [];
        const note = (found, bytes, folder) => {
            const same = joined.find((other) => other.disk === found.disk && found.disk >= 0);
            if (same === undefined) {
                joined.push({ disk: found.disk, free: found.free, bytes: bytes, folder: folder });
            } else {
                same.bytes += bytes;
            }
        };
        Object.keys(this.folders).forEach((folder) => {
            const sum = this.folders[folder];
            const { here, trash } = sum;
            // What is replaced leaves the disk only if another one has the trash; the result is finished before that.
            const isElsewhere = trash !== null && trash.disk !== here.disk && here.disk >= 0;
            const freed = isElsewhere ? sum.replaced : 0;
            note(here, Math.round(Math.max(sum.bytes * scale - freed, sum.largest * scale)), folder);
            if (isElsewhere) {
                note(trash, sum.replaced, qsTr("the disk of the trash"));
            }
        });
        return joined;
    }
}

// Bytes for each pixel of a photograph without loss; those of BMP and TIFF are not packed.
const LOSSLESS = { bmp: 3, tiff: 3, png: 1.2, gif: 0.7 };
const NEVER_PACKED = ["bmp", "tiff"];
const LOSSY = ["JPEG", "HEIC", "AVIF", "WebP", "JPEG 2000", "JPEG XL"];

/**
 * How large a result will be, roughly: as many bytes for each pixel as its picture has, but more where the picture is
 * packed with loss and the result is not.
 *
 * @param result  with width, height and type, which is that of recipes, if it is known
 */
export function guessedBytes(photo, result) {
    const pixels = photo.width * photo.height;
    const grows = NEVER_PACKED.indexOf(result.type) >= 0 || LOSSY.indexOf(photo.type) >= 0;
    const least = (grows && LOSSLESS[result.type]) || 0;
    return pixels > 0 ? Math.max(Math.max(0, photo.bytes) / pixels, least) * result.width * result.height : 0;
}

/** What the plan of a run that writes pictures says where they will not fit; "" if they do. */
export function tooMuchText(needs, all, byteText) {
    const tight = needs.disks(all).find((each) => each.free >= 0 && each.bytes > each.free);
    return tight === undefined ? ""
        : fill(qsTr("This run needs about %1, but %3 has only %2 free."), byteText(tight.bytes), byteText(tight.free),
               tight.folder);
}

/** A message about room: {note, problem}. */
export function roomText(disks, byteText) {
    const tight = disks.filter((each) => each.free >= 0 && each.bytes > each.free);
    const sum = disks.reduce((bytes, each) => bytes + each.bytes, 0);
    if (tight.length > 0) {
        return { note: "",
                 problem: fill(qsTr("The files need %1, but %3 has only %2 free."), byteText(tight[0].bytes),
                                         byteText(tight[0].free), tight[0].folder) };
    }
    if (sum === 0) {
        return { note: "", problem: "" };
    }
    const free = disks.length === 1 && disks[0].free >= 0
        ? "; " + fill(qsTr("%1 free"), byteText(disks[0].free)) : "";
    return { note: fill(qsTr("%1 to be written"), byteText(sum)) + free, problem: "" };
}

/**
 * Why a file does not fit in a folder, in words; "" if it does. kind: "move", "copy" or "link". Services used: files
 * (space, info, byteText).
 */
export function roomProblem(path, folder, kind, files) {
    const target = files.space(folder);
    const needsRoom = kind === "copy" || (kind === "move" && target.disk !== files.space(path).disk);
    const bytes = needsRoom ? files.info(path).bytes : 0;
    return target.free >= 0 && bytes > target.free
        ? fill(qsTr("not enough space (needs %1, %2 free)"), files.byteText(bytes), files.byteText(target.free))
        : "";
}
