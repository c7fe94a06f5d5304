// Stands for the move engine: paths that are taken, paths whose wish is refused with a code, and wishes of which the first gets
// a place; no swaps.

export class FakeMoves {
    /** @param refused  {path that is wished for: code} */
    constructor(refused) {
        this.refused = refused || {};
        this.asked = [];
    }

    plan(wishes) {
        this.asked.push(wishes);
        const given = {};
        const items = wishes.map((wish) => {
            if (wish.to === wish.from) {
                return { status: "same", code: "", other: "", to: wish.to };
            }
            const code = this.refused[wish.to] || (given[wish.to] ? "twice" : wish.to.endsWith("/") ? "empty" : "");
            given[wish.to] = wish.from;
            return { status: code ? "refused" : "ready", code: code, other: code === "taken" ? wish.to : "", to: wish.to };
        });
        wishes.forEach((wish, i) => {
            if (wish.leader >= 0 && items[wish.leader].status === "refused") {
                items[i] = { status: "refused", code: "leader", other: "", to: wish.to };
            }
        });
        return items;
    }
}
