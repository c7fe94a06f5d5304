// How far a job is and how long it will still take. Pure; no service is used.

// A picture costs a fixed part and a part proportional to its pixels.
const FIXED_PIXELS = 500000;

export function costOf(photo) {
    return FIXED_PIXELS + (photo.width || 0) * (photo.height || 0);
}

/** Collects what was done; times are milliseconds. */
export class Progress {
    constructor(costs) {
        this.total = costs.reduce((sum, cost) => sum + cost, 0);
        this.count = costs.length;
        this.done = 0;
        this.doneCost = 0;
        this.spentMs = 0;
    }

    /** There is more to do. */
    grow(costs) {
        this.total += costs.reduce((sum, cost) => sum + cost, 0);
        this.count += costs.length;
    }

    add(cost, ms) {
        this.done += 1;
        this.doneCost += cost;
        this.spentMs += ms;
    }

    /** Remaining milliseconds, or null while unknown. */
    leftMs() {
        if (this.done === 0 || this.doneCost === 0) {
            return null;
        }
        return (this.spentMs / this.doneCost) * Math.max(0, this.total - this.doneCost);
    }
}

/** 8000 gives "0:08", 3700000 gives "1:01:40". */
export function clockText(ms) {
    const seconds = Math.max(0, Math.round(ms / 1000));
    const two = (number) => (number < 10 ? "0" : "") + number;
    const hours = Math.floor(seconds / 3600);
    const minutes = Math.floor((seconds % 3600) / 60);
    return hours > 0
        ? hours + ":" + two(minutes) + ":" + two(seconds % 60)
        : minutes + ":" + two(seconds % 60);
}
