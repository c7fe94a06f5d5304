// Which of many numbers are marked. Pure; no service is used.

const FIRST = 256;

/**
 * A set of small numbers. Its memory is not that of objects: where a long array grows, the engine searches all of its free memory for a
 * place, which takes milliseconds.
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
