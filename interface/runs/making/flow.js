// Pause and stop of a run whose pictures others make. Pure; no service is used.

/** What a run wants of the job that carries it out; asked between two pictures. */
export class Flow {
    /** @param wake  called when something has changed, or a result has come */
    constructor(wake) {
        this.wake = wake;
        this.isPaused = false;
        this.isStopping = false;
    }

    /** No further picture is begun until resume(). */
    pause() {
        this.isPaused = true;
        this.wake();
    }

    resume() {
        this.isPaused = false;
        this.wake();
    }

    /** No further picture is begun; those in progress are finished. */
    stop() {
        this.isStopping = true;
        this.wake();
    }

    holds() {
        return this.isPaused || this.isStopping;
    }
}
