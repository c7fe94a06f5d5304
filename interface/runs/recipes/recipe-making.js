// Carries out a plan of a recipe by workers, several pictures at a time: each makes all files of a picture, which the batch puts into
// their places. A generator that says what runByWorkers() of ../making/worker-job.js does.
// Services used: the batch.

import { guard } from "../../lib/guard.js";

class Making {
    constructor(batch, items) {
        this.batch = batch;
        this.items = items;
        this.next = 0;
        this.again = []; // indices that were taken back
        this.indices = Object.create(null); // by the numbers of the batch
        items.forEach((item, i) => { this.indices[item.number] = i; });
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
        return this.batch.inWork === 0 && (flow.isStopping || !this.hasNext());
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
        const held = this.batch.takeBack().map((number) => this.indices[number]);
        this.again = held.concat(this.again);
        for (let i = 0; i < held.length; i += 1) {
            yield this.event("back", held[i], [], 0);
        }
    }
}

/** items: those that are wanted, each with its number in the batch. */
export function* makeByWorkers(batch, items, flow) {
    const making = new Making(batch, items);
    batch.arrived.connect(guard("run.arrived", () => flow.wake()));
    try {
        while (!making.isOver(flow)) {
            if (flow.holds()) {
                yield* making.holdBack();
            }
            const made = batch.take();
            if (made.number !== undefined) {
                yield making.event("end", making.indices[made.number], made.outputs, made.ms);
            } else if (making.hasNext() && !flow.holds() && batch.room > 0) {
                yield* making.handOver();
            } else if (!making.isOver(flow)) {
                yield null; // held, or everything is with the workers
            }
        }
    } finally {
        batch.close();
    }
}
