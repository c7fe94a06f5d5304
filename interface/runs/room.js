// Whether there is room for what is to be written: how many bytes each file system gets, and how many it has free. Pure but for
// translation; the services are passed in.

import { itemOf } from "./move-plan.js";
import { emptyTable } from "../lib/names.js";
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
