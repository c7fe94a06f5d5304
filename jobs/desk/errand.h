#pragma once

#include "platform/workers/message.h"

#include <QString>

#include <vector>

namespace jobs {

/** A worker as those see it who have something for it to do. */
struct Hand
{
    int id = -1;        ///< never that of another worker
    quint64 recipe = 0; ///< see SharedRecipe: the last one it received; 0 for none
};

/**
 * One task for one worker: the order, the answer, and what happens with that. A desk carries it out, see WorkerDesk.
 *
 * Each kind of work has separate messages (see messages.h) and a case in the worker that handles them (recipe_worker.cpp). Pictures are
 * handed over as open descriptors: LentFile::open() for what is read, a file that was made for what is written, a memfd for pixels that
 * come back.
 */
class Errand
{
public:
    enum class Turn {
        GoesOn,   ///< more answers are to come
        Over,     ///< the worker is free
        Nonsense, ///< that was no answer; the worker is ended, and the errand tried again as after a crash
    };

    Errand() = default;
    Errand(const Errand &) = delete;
    Errand &operator=(const Errand &) = delete;
    /** A caller that still waits for an answer gets none; what was begun is cleaned up. */
    virtual ~Errand() = default;

    /**
     * The first message to the worker; nothing if there is nothing left to do, which ends the errand. Called once more,
     * with a newly started worker, if the first one crashed.
     */
    virtual std::vector<platform::Message> begin(Hand &hand) = 0;
    /** Files that came along may be taken out of it. */
    virtual Turn take(platform::Message &message) = 0;
    /** Nothing came of it, for a reason that is a sentence. The last that the desk does with it. */
    virtual void fail(const QString &reason) = 0;
    /** The maximum memory that a worker needs for it, in bytes; 0 if that is little. */
    virtual qint64 expectedBytes() const { return 0; }
    /** How long it may take; 0 for as long as the desk has it. */
    virtual int seconds() const { return 0; }
};

} // namespace jobs
