// Carries out a plan with workers, many pictures at a time: they make the files, and this module puts each into its
// place. For steps that describe the work on a picture with recipeFor(photo, settings, services); a generator like that
// of job.js. Services used: recipes (work), files (info, makeFolder, makeStaging, place, ...), replacing and record
// (both optional).

import { guard } from "../../lib/guard.js";
import { emptyTable, joinPath } from "../../lib/names.js";
import { fill } from "../../lib/wording.js";
import { failed, placeResult, Workshop } from "./job.js";

function sizeWords(size) {
    return size.width + "×" + size.height;
}

function reasonOf(made) {
    return made.cause === "vanished" ? qsTr("the picture no longer exists") : made.reason;
}

class WorkerJob {
    constructor(items, step, settings, services) {
        this.items = items;
        this.step = step;
        this.settings = settings;
        this.services = services;
        this.workshop = new Workshop(services.files);
        this.work = services.recipes.work();
        this.next = 0;
        this.again = []; // indices that were withdrawn
        this.targets = [];
        this.full = emptyTable(); // why there was no room, by index
        this.open = 0; // handed to workers, and not collected yet
    }

    close() {
        this.work.close();
        this.workshop.close();
    }

    hasNext() {
        return this.again.length > 0 || this.next < this.items.length;
    }

    takeNext() {
        if (this.again.length > 0) {
            return this.again.shift();
        }
        this.next += 1;
        return this.next - 1;
    }

    /** Whatever has not been started is not started now; answers the indices. */
    hold() {
        const numbers = this.work.takeBack();
        numbers.forEach((index) => this.workshop.leave(this.items[index].folder));
        this.open -= numbers.length;
        this.again = numbers.concat(this.again);
        return numbers;
    }

    /** A final result if there is nothing for workers to do, or null. */
    give(index) {
        const item = this.items[index];
        if (item.done !== undefined) {
            return item.done; // by a run that was interrupted
        }
        if (item.status !== "ready") {
            return { status: item.status, reason: item.reason };
        }
        const place = this.workshop.open(item.folder);
        if (place.problem) {
            return failed(place.problem);
        }
        this.targets[index] = place.staging + String(index);
        const photo = item.photo;
        const recipe = this.step.recipeFor(photo, this.settings, this.services);
        this.workshop.enter(item.folder);
        this.open += 1;
        this.work.give(index, { path: photo.path, target: this.targets[index], recipe: recipe,
                                width: photo.width || 0, height: photo.height || 0,
                                noted: item.isNoted !== false && !item.replacesOriginal });
        return null;
    }

    // An exception in a step is a bug; the other pictures are not affected.
    tryGive(index) {
        try {
            return this.give(index);
        } catch (error) {
            return failed(String(error.message || error));
        }
    }

    /** An answer from a worker: its event. */
    take(made, flow) {
        this.workshop.leave(this.items[made.number].folder);
        this.open -= 1;
        if (made.cause === "full" && !flow.isStopping) {
            flow.isFull = true;
            this.full[made.number] = made.reason;
            this.again = [made.number].concat(this.again);
            return { kind: "back", index: made.number, item: this.items[made.number] };
        }
        return this.end(made.number, this.finish(made), made.ms);
    }

    /** The rest goes there; names that are taken there get numbers. */
    moveRest(folder) {
        const rest = this.again.concat(this.items.map((_item, i) => i).slice(this.next));
        rest.forEach((index) => {
            Object.assign(this.items[index], { folder: folder, path: joinPath(folder, this.items[index].name),
                                               replaces: false, replaced: "", replacesOriginal: false });
        });
    }

    /** The disk is full, and nothing is in progress: asks what to do. Once, however many pictures found no room. */
    * askAboutRoom(flow) {
        const first = this.again.find((index) => this.full[index] !== undefined);
        flow.answerRoom(null);
        yield { kind: "full", index: first, item: this.items[first] };
        if (flow.folder !== "") {
            this.moveRest(flow.folder);
            flow.folder = "";
        }
        const full = this.again.filter((index) => flow.isStopping && this.full[index] !== undefined);
        this.again = this.again.filter((index) => full.indexOf(index) < 0);
        for (let i = 0; i < full.length; i += 1) {
            yield this.end(full[i], failed(this.full[full[i]]), 0);
        }
        this.full = emptyTable();
    }

    /** The final result of what a worker made. */
    finish(made) {
        const item = this.items[made.number];
        if (made.outcome !== "OK") {
            return { status: made.outcome, reason: reasonOf(made) };
        }
        if (made.width !== item.width || made.height !== item.height) {
            return failed(fill(qsTr("the result is %1 instead of %2"), sizeWords(made), sizeWords(item)));
        }
        const record = this.services.record;
        if (record !== undefined) {
            record.about(made.number, this.targets[made.number], item.path);
        }
        const placed = placeResult(this.targets[made.number], item, this.settings.output.ifTaken, this.services);
        if (placed.status !== "OK") {
            return placed;
        }
        if (record !== undefined) {
            record.placed(made.number, joinPath(item.folder, placed.name), made.bytes);
        }
        this.work.placed(made.number, joinPath(item.folder, placed.name));
        return { status: "OK", reason: "", name: placed.name, path: joinPath(item.folder, placed.name),
                 folder: item.folder, bytes: made.bytes, width: made.width, height: made.height };
    }

    end(index, result, ms) {
        result.photo = this.items[index].photo;
        result.ms = ms;
        return { kind: "end", index: index, item: this.items[index], result: result };
    }

    /** Whether each started picture has ended, and none is to be started. */
    isOver(flow) {
        return this.open === 0 && !flow.isFull && (flow.isStopping || !(this.hasNext() || flow.isGrowing));
    }

    mayGive(flow) {
        return this.hasNext() && !flow.holds() && this.work.room > 0;
    }

    * handOver() {
        const index = this.takeNext();
        yield { kind: "start", index: index, item: this.items[index] };
        const result = this.tryGive(index);
        if (result !== null) {
            yield this.end(index, result, 0);
        }
    }

    * holdBack() {
        const held = this.hold();
        for (let i = 0; i < held.length; i += 1) {
            yield { kind: "back", index: held[i], item: this.items[held[i]] };
        }
    }
}

/**
 * A generator that carries out the items of a plan, to which more may be added meanwhile, and yields what runItems() of
 * job.js does, the ends in the order in which the pictures are ready; null while it waits for flow.wake(), and {kind:
 * "back", index, item} for a picture that is not started after all, because the flow is paused or stopped, or the disk
 * is full; in the last case then {kind: "full", index, item} once, after which the flow has an answer or is stopped.
 * Returns when each started picture has ended: all of them, or, once the flow is stopped, those in progress. Stopping
 * it (return) abandons these and removes unfinished files.
 */
export function* runByWorkers(items, step, settings, services, flow) {
    const job = new WorkerJob(items, step, settings, services);
    job.work.arrived.connect(guard("run.arrived", () => flow.wake()));
    try {
        while (!job.isOver(flow)) {
            if (flow.holds()) {
                yield* job.holdBack();
            }
            const made = job.work.take();
            if (made.number !== undefined) {
                yield job.take(made, flow);
            } else if (flow.isFull && job.open === 0) {
                yield* job.askAboutRoom(flow);
            } else if (job.mayGive(flow)) {
                yield* job.handOver();
            } else if (!job.isOver(flow)) {
                yield null; // paused, or the workers have everything
            }
        }
    } finally {
        job.close();
    }
}
