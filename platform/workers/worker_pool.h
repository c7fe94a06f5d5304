#pragma once

#include "platform/workers/message_socket.h"

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace platform {

/** What a worker may use for one piece of work. */
struct WorkerLimits
{
    int seconds = 300;
    qint64 residentBytes = qint64(2048) << 20;
    int niceness = 0; ///< how much less than this process it presses for the processors, to 19
};

enum class WorkerEnd {
    Crashed,       ///< it ended by itself
    TookTooLong,   ///< and was ended
    TookTooMuch,   ///< of memory, and was ended
    SpokeNonsense, ///< and was ended
};

/**
 * Child processes that do work for this one and are spoken to in messages. They end with this process, whatever it ends by: the program
 * asks for that with endWithParent(). For a thread with an event loop; the functions that are called back come out of it.
 */
class WorkerPool
{
public:
    using Id = int;

    /**
     * @param program  absolute; gets the socket as descriptor 3, the number of this process and the limit of memory as arguments
     * @param files    whether they may hand over open files, such as pixels in shared memory
     */
    WorkerPool(const QString &program, const WorkerLimits &limits,
               MessageSocket::Files files = MessageSocket::Files::Refused);
    WorkerPool(const WorkerPool &) = delete;
    WorkerPool &operator=(const WorkerPool &) = delete;
    /** Ends all workers. */
    ~WorkerPool();

    /** Further arguments for workers that are started from now on. */
    void setArguments(const QStringList &arguments) { m_arguments = arguments; }

    std::function<void(Id worker, Message message)> onMessage;
    /** The worker is no longer there. Not called for those that end() ends. */
    std::function<void(Id worker, WorkerEnd end)> onEnded;

    /** Starts one; nothing where that fails, with a reason in @p problem. */
    std::optional<Id> start(QString *problem = nullptr);
    void send(Id worker, Message message);
    /**
     * From here to endWork() it works on one thing, for which it has so much time and memory.
     *
     * @param seconds  0 for those of the limits
     */
    void beginWork(Id worker, int seconds = 0);
    void endWork(Id worker);
    /** Goes on with the same thing. */
    void resumeWork(Id worker);
    /**
     * Waits for what @p worker says next, or for its end, and calls back for it, and for those that are beyond their limits.
     *
     * @return false where it said nothing for @p milliseconds, or is not there
     */
    bool waitFor(Id worker, int milliseconds);
    /** Ends it at once. */
    void end(Id worker);
    int count() const { return int(m_workers.size()); }

private:
    struct Worker;
    void serve(Id worker);
    void sendWaiting(Id worker);
    void finish(Id worker, WorkerEnd end);
    void remove(Id worker);
    void watch();
    void reap();

    QString m_program;
    QStringList m_arguments;
    WorkerLimits m_limits;
    MessageSocket::Files m_files;
    std::map<Id, std::unique_ptr<Worker>> m_workers;
    std::vector<std::unique_ptr<Worker>> m_gone; ///< until nobody is in the middle of them
    std::vector<int> m_ending;                   ///< processes that were ended and have not left yet
    QTimer m_watch;
    QElapsedTimer m_sinceWatch;
    Id m_next = 0;
};

/**
 * To be called first of all by a worker: it ends as soon as the process that started it does, and does not listen to what a terminal tells
 * all programs at once.
 *
 * @param parent  the number of the process that started it; where that has ended already, so does this one
 */
void endWithParent(int parent);

/** The descriptor under which a worker finds its socket. */
inline constexpr int workerSocket = 3;

} // namespace platform
