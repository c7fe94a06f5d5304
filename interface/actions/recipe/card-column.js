// A column of cards, one per entry, in their order. Cards are created when first needed and reused.

import { RecipeCard } from "./recipe-card.js";

export class CardColumn {
    /** @param host  the container in the form of the pane */
    constructor(form, host, handlers) {
        this.form = form;
        this.host = host;
        this.handlers = handlers;
        this.cards = [];
    }

    /** Shows entries; look(entry) says {isOpen, isShown, mayRemove} of each. */
    show(entries, look) {
        while (this.cards.length < entries.length) {
            const card = new RecipeCard(this.handlers);
            this.form.place(this.host, card.form);
            this.cards.push(card);
        }
        this.cards.forEach((card, i) => {
            const entry = i < entries.length ? entries[i] : null;
            const state = entry === null ? {} : look(entry);
            card.show(entry, state.isOpen === true, state.isShown === true, state.mayRemove === true);
        });
        this.form.control(this.host).visible = entries.length > 0;
    }

    /** The card that shows this very operation or output, or undefined. */
    cardOf(thing) {
        return this.cards.find((card) => card.entry !== null && card.entry.list[card.entry.index] === thing);
    }
}
