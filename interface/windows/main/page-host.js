// The container of the window's pages, each created when first shown.

/** The pages of the window: [action's name] = page. */
export class PageHost {
    /** @param window  the main window's parts: form */
    constructor(window) {
        this.window = window;
        this.pages = {};
        this.shown = null;
    }

    /** Shows the page of an action, or none for null. */
    show(action) {
        const page = action === null ? null : this.pageOf(action);
        if (this.shown !== null && this.shown !== page && this.shown.leave !== undefined) {
            this.shown.leave();
        }
        Object.keys(this.pages).forEach((name) => { this.pages[name].form.shown = this.pages[name] === page; });
        this.shown = page;
        if (page !== null) {
            page.show();
        }
    }

    pageOf(action) {
        if (this.pages[action.name] === undefined) {
            const page = new action.page(this.window, action);
            this.window.form.place("pageHost", page.form);
            this.pages[action.name] = page;
        }
        return this.pages[action.name];
    }

    /** Whether the window may be closed, or another page shown. */
    mayLeave() {
        return this.shown === null || this.shown.mayLeave === undefined || this.shown.mayLeave();
    }

    /** A run began, went on or ended. */
    runChanged() {
        if (this.shown !== null && this.shown.runChanged !== undefined) {
            this.shown.runChanged();
        }
    }

    listChanged() {
        if (this.shown !== null && this.shown.listChanged !== undefined) {
            this.shown.listChanged();
        }
    }
}
