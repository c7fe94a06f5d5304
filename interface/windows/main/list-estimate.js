// The approximate size of all results of a run: workers make a few of them and nothing is written.

import { shell } from "quorlin/shell";
import { files } from "quorlin/files";
import { guard } from "../../lib/guard.js";
import { fill } from "../../lib/wording.js";
import { estimated, sampled } from "../../lib/size-samples.js";

const STILL_MS = 700;

export class ListEstimate {
    /** @param window  the main window's parts: pictures, action, settings, services, run; shown() is called when the text changed */
    constructor(window, shown) {
        this.window = window;
        this.shown = shown;
        this.text = "";
        /** In bytes; -1 while it is not known. */
        this.sum = -1;
        this.sizes = [];
        this.samples = [];
        this.waiting = 0;
        this.service = shell.sizeEstimate();
        this.timer = shell.timer(guard("estimate.start", () => this.measure()));
        this.service.measured.connect(guard("estimate.measured", (number, bytes) => this.take(number, bytes)));
    }

    /** What is known is out of date: sizes are those of the planned results, [{id, pixels, bytes (of the source)}]. */
    begin(sizes) {
        this.forget();
        this.sizes = sizes;
        if (sizes.length > 1) {
            this.timer.start(STILL_MS);
        }
    }

    forget() {
        this.timer.stop();
        this.service.stop();
        this.samples = [];
        this.text = "";
        this.sum = -1;
    }

    // The result of each sample is made as a run would.
    measure() {
        const window = this.window;
        const { step } = window.action;
        if (window.run.isBusy() || step.preview === undefined) {
            return;
        }
        this.samples = sampled(this.sizes);
        this.waiting = this.samples.length;
        this.samples.forEach((sample, number) => {
            const photo = window.pictures.photo(sample.size.id);
            const planned = photo === null ? null : step.plan(photo, window.settings, window.services);
            if (planned === null || planned.status !== "ready") {
                this.take(number, -1);
                return;
            }
            const shown = step.preview(photo, window.settings, planned, window.services);
            const result = shown.recipe === undefined ? { type: shown.type, quality: shown.quality || "" }
                : { recipe: shown.recipe };
            this.service.measure(number, photo.path, result);
        });
    }

    take(number, bytes) {
        const sample = this.samples[number];
        if (sample === undefined) {
            return;
        }
        sample.bytes = bytes;
        this.waiting -= 1;
        const sum = this.waiting > 0 ? -1 : estimated(this.samples);
        if (sum >= 0) {
            this.sum = sum;
            this.text = fill(qsTr("about %1 in total"), files.byteText(sum));
            this.shown();
        }
    }
}
