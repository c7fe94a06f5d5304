// Pause and stop of a run whose pictures others make. Pure; no service is used.

/** What a run wants of the job that carries it out; asked between two pictures. */
export class Flow {
    /** @param wake  called when something has changed, or a result has come */
    constructor(wake) {
        this.wake = wake;
        this.isPaused = false;
        this.isStopping = false;
        this.isFull = false; // a disk is
        this.isGrowing = false; // more pictures are about to join
        this.folder = "";
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

    /** There may be room now, in another folder where one is named, else where it was wanted. */
    answerRoom(folder) {
        this.isFull = false;
        this.folder = folder || "";
    }

    holds() {
        return this.isPaused || this.isStopping || this.isFull;
    }
}
