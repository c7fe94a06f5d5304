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

/** The resources that a worker may use for one piece of work. */
struct WorkerLimits
{
    int seconds = 300;
    qint64 residentBytes = qint64(2048) << 20;
    int niceness = 0; ///< niceness relative to this process, up to 19
};

enum class WorkerEnd {
    Crashed,       ///< it ended by itself
    TookTooLong,   ///< and was ended
    TookTooMuch,   ///< of memory, and was ended
    SpokeNonsense, ///< and was ended
};

/**
 * Child processes that do work for this one and communicate by messages. They end with this process, however it ends:
 * the program arranges that with endWithParent(). For a thread with an event loop; callbacks come from that loop.
 */
class WorkerPool
{
public:
    using Id = int;

    /**
     * @param program  absolute; gets the socket as descriptor 3, the number of this process and the limit of memory as arguments
     * @param files    whether they may pass open files, such as pixels in shared memory
     */
    WorkerPool(const QString &program, const WorkerLimits &limits,
               MessageSocket::Files files = MessageSocket::Files::Refused);
    WorkerPool(const WorkerPool &) = delete;
    WorkerPool &operator=(const WorkerPool &) = delete;
    /** Ends all workers. */
    ~WorkerPool();

    /** Further arguments for workers started from now on. */
    void setArguments(const QStringList &arguments) { m_arguments = arguments; }

    std::function<void(Id worker, Message message)> onMessage;
    /** The worker has ended. Not called for those that end() ends. */
    std::function<void(Id worker, WorkerEnd end)> onEnded;

    /** Starts one; nothing if that fails, with a reason in @p problem. */
    std::optional<Id> start(QString *problem = nullptr);
    void send(Id worker, Message message);
    /**
     * From here to endWork() it processes one item, for which it has so much time and memory.
     *
     * @param seconds  0 for those of the limits
     */
    void beginWork(Id worker, int seconds = 0);
    void endWork(Id worker);
    /** Continues with the same item. */
    void resumeWork(Id worker);
    /**
     * Waits for the next message of @p worker, or for its end, and calls back for it, and for those beyond their
     * limits.
     *
     * @return false if there was no message for @p milliseconds, or it does not exist
     */
    bool waitFor(Id worker, int milliseconds);
    /** Ends it at once. */
    void end(Id worker);
    int count() const { return int(m_workers.size()); }

private:
    struct Worker;
    void serve(Id worker);
    bool takeLoading(Id worker, const Message &message);
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
    std::vector<std::unique_ptr<Worker>> m_gone; ///< until nobody is using them
    std::vector<int> m_ending;                   ///< processes that were killed and have not exited yet
    QTimer m_watch;
    QElapsedTimer m_sinceWatch;
    Id m_next = 0;
};

/**
 * A worker calls this first: it ends as soon as its parent process does, and ignores the signals that a terminal sends
 * to all programs.
 *
 * @param parent  the number of the parent process; if that has ended already, so does this one
 */
void endWithParent(int parent);

/**
 * The kinds of empty messages that a worker may send once each, in this order, at any time: it has to load libraries, and
 * has loaded them. This does not count as work on its item, whose time then restarts. The pool passes neither on.
 */
inline constexpr quint16 loadingLibraries = 0xfffe;
inline constexpr quint16 librariesLoaded = 0xffff;

/** The descriptor of a worker's socket. */
inline constexpr int workerSocket = 3;

} // namespace platform
