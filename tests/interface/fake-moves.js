// Simulates the move engine: paths that are taken, paths whose request is refused with a code, and requests of which
// the first gets a place; no swaps.

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
            const isEmpty = wish.to.endsWith("/") ? "empty" : "";
            const code = this.refused[wish.to] || (given[wish.to] ? "twice" : isEmpty);
            given[wish.to] = wish.from;
            return { status: code ? "refused" : "ready", code: code, other: code === "taken" ? wish.to : "",
                     to: wish.to };
        });
        wishes.forEach((wish, i) => {
            if (wish.leader >= 0 && items[wish.leader].status === "refused") {
                items[i] = { status: "refused", code: "leader", other: "", to: wish.to };
            }
        });
        return items;
    }

    // The same in slices, one plan at a time.
    beginPlan() {
        this.wishes = [];
        this.worked = 0;
        this.dropped = false;
        return "plan";
    }

    addWishes(plan, wishes) {
        wishes.forEach((wish) => this.wishes.push(wish));
    }

    workOut() {
        this.worked += 1;
        if (this.worked === 2) {
            this.items = this.plan(this.wishes);
        }
        return this.worked >= 2;
    }

    planned(plan, from, to) {
        return this.items.slice(from, to)
            .map((item, i) => (item.status === "ready" && item.code === "" && item.to === this.wishes[from + i].to
            ? null : item));
    }

    dropPlan() {
        this.dropped = true;
    }
}
