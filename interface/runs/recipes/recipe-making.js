// Carries out a plan of a recipe with workers, several pictures at a time: each makes all files of a picture, which the
// batch puts into their places; results that replace something are put there by this module, so that the run can be
// undone. A generator that yields what runByWorkers() of ../making/worker-job.js does.
// Services used: the batch, files, replacing, record (optional).

import { guard } from "../../lib/guard.js";
import { emptyTable, joinPath, splitPath } from "../../lib/names.js";
import { placeResult } from "../making/job.js";

/** If a picture is gone, that is the reason for its missing results. */
export function vanishedInWords(outputs, photo, files) {
    const isGone = outputs.some((output) => output.status === "Failed") && !files.info(photo.path).exists;
    return isGone ? outputs.map((output) => (output.status === "Failed"
        ? Object.assign({}, output, { reason: qsTr("the picture no longer exists") }) : output)) : outputs;
}

class Making {
    constructor(batch, items, services) {
        this.batch = batch;
        this.items = items;
        this.services = services;
        this.full = emptyTable(); // why there was no room, by index
        this.next = 0;
        this.again = []; // indices that were withdrawn
        this.indices = Object.create(null); // by the numbers of the batch
        this.known = 0;
    }

    // Others may have joined since the last call.
    indexOf(number) {
        for (; this.known < this.items.length; this.known += 1) {
            this.indices[this.items[this.known].number] = this.known;
        }
        return this.indices[number];
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

    isOver(flow) {
        return this.batch.inWork === 0 && !flow.isFull && (flow.isStopping || !(this.hasNext() || flow.isGrowing));
    }

    // Replaces the existing file, which goes to the trash.
    placed(output) {
        const parts = splitPath(output.path);
        const item = { folder: parts.folder, name: parts.name, path: output.path, replaces: true,
                       replaced: output.replaced };
        const put = placeResult(output.file, item, "number", this.services);
        const path = put.status === "OK" ? joinPath(parts.folder, put.name) : "";
        return Object.assign({}, output, { status: put.status, reason: put.reason || "", path: path });
    }

    // Puts the results of a picture into their places, with a line in the record before and after.
    placeAll(index, made) {
        const { record } = this.services;
        if (record !== undefined) {
            record.aboutOutputs(index, made.whole);
        }
        const told = this.batch.place(made.number);
        const isWaiting = told.some((output) => output.status === "waiting");
        const outputs = vanishedInWords(told.map((output) => (output.status === "waiting" ? this.placed(output)
                                                                                          : output)),
                                        this.items[index].photo, this.services.files);
        if (isWaiting) {
            this.batch.settle(made.number);
        }
        if (record !== undefined) {
            record.placedOutputs(index, outputs.filter((output) => output.status === "OK"));
        }
        return outputs;
    }

    /** An answer from a worker: its event. */
    take(made, flow) {
        const index = this.indexOf(made.number);
        if (made.full !== undefined && !flow.isStopping) {
            flow.isFull = true;
            this.full[index] = made;
            this.again = [index].concat(this.again);
            return this.event("back", index, [], 0);
        }
        if (made.full !== undefined) {
            return this.failed(index, made.full);
        }
        // What was refused, or done before, stays so.
        const outputs = this.placeAll(index, made);
        const all = this.items[index].outputs
            .map((output) => outputs.find((each) => each.output === output.output) || output);
        return this.event("end", index, all, made.ms);
    }

    // Those that were to be made; what was refused before stays so.
    failed(index, reason) {
        const outputs = this.items[index].outputs.map((output) => (output.status === "ready"
            ? Object.assign({}, output, { status: "Failed", reason: reason, path: "" }) : output));
        return this.event("end", index, outputs, 0);
    }

    /** The rest goes below that folder. */
    moveRest(folder) {
        const rest = this.again.concat(this.items.map((_item, i) => i).slice(this.next));
        rest.forEach((index) => this.batch.moveTo(this.items[index].number, folder));
    }

    /** The disk is full, and nothing is in progress: asks what to do. Once, however many pictures found no room. */
    * askAboutRoom(flow) {
        const first = this.again.find((index) => this.full[index] !== undefined);
        flow.answerRoom(null);
        yield { kind: "full", index: first, item: { folder: this.full[first].folder } };
        if (flow.folder !== "") {
            this.moveRest(flow.folder);
            flow.folder = "";
        }
        const full = this.again.filter((index) => flow.isStopping && this.full[index] !== undefined);
        this.again = this.again.filter((index) => full.indexOf(index) < 0);
        for (let i = 0; i < full.length; i += 1) {
            yield this.failed(full[i], this.full[full[i]].full);
        }
        this.full = emptyTable();
    }

    event(kind, index, outputs, ms) {
        const item = this.items[index];
        return { kind: kind, index: index, item: item, result: { outputs: outputs, photo: item.photo, ms: ms } };
    }

    * handOver() {
        const index = this.takeNext();
        const item = this.items[index];
        yield this.event("start", index, [], 0);
        if (item.status === "ready") {
            this.batch.give(item.number);
        } else {
            yield this.event("end", index, item.outputs, 0);
        }
    }

    * holdBack() {
        const held = this.batch.takeBack().map((number) => this.indexOf(number));
        this.again = held.concat(this.again);
        for (let i = 0; i < held.length; i += 1) {
            yield this.event("back", held[i], [], 0);
        }
    }
}

/** items: the wanted ones, each with its number in the batch; more may join. */
export function* makeByWorkers(batch, items, services, flow) {
    const making = new Making(batch, items, services);
    batch.arrived.connect(guard("run.arrived", () => flow.wake()));
    try {
        while (!making.isOver(flow)) {
            if (flow.holds()) {
                yield* making.holdBack();
            }
            const made = batch.take();
            if (made.number !== undefined) {
                yield making.take(made, flow);
            } else if (flow.isFull && batch.inWork === 0) {
                yield* making.askAboutRoom(flow);
            } else if (making.hasNext() && !flow.holds() && batch.room > 0) {
                yield* making.handOver();
            } else if (!making.isOver(flow)) {
                yield null; // paused, or the workers have everything
            }
        }
    } finally {
        batch.close();
    }
}
