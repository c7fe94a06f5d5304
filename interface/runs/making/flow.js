// Pause and stop of a run whose pictures are made elsewhere. Pure; no service is used.

/** What a run wants from the job that carries it out; checked between two pictures. */
export class Flow {
    /** @param wake  called when something has changed, or a result has arrived */
    constructor(wake) {
        this.wake = wake;
        this.isPaused = false;
        this.isStopping = false;
        this.isFull = false; // a disk is
        this.isGrowing = false; // more pictures are about to join
        this.folder = "";
    }

    /** No further picture is started until resume(). */
    pause() {
        this.isPaused = true;
        this.wake();
    }

    resume() {
        this.isPaused = false;
        this.wake();
    }

    /** No further picture is started; those in progress are finished. */
    stop() {
        this.isStopping = true;
        this.wake();
    }

    /** There may be room now, in another folder if one is named, else in the planned one. */
    answerRoom(folder) {
        this.isFull = false;
        this.folder = folder || "";
    }

    holds() {
        return this.isPaused || this.isStopping || this.isFull;
    }
}
