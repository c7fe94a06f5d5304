// Which of many numbers are marked. Pure; no service is used.

const FIRST = 256;

/**
 * A set of small numbers. One byte a number in one buffer: with sets and arrays of objects, the steps in which these grew past a power
 * of two took milliseconds longer than their neighbours (tst_short_steps).
 */
export class Marks {
    constructor() {
        this.marks = new Uint8Array(FIRST);
    }

    add(number) {
        if (number >= this.marks.length) {
            const grown = new Uint8Array(Math.max(number + 1, 2 * this.marks.length));
            grown.set(this.marks);
            this.marks = grown;
        }
        this.marks[number] = 1;
    }

    has(number) {
        return this.marks[number] === 1;
    }
}
