#pragma once

#include "jobs/crew/messages.h"
#include "platform/file/lent_file.h"
#include "platform/workers/worker_pool.h"

#include <map>
#include <set>

namespace jobs {

struct CrewOptions
{
    QString program; ///< absolute path of quorlin-worker
    int workers = 0; ///< 0: as many as there are processors for this process, fewer where memory is short
    platform::WorkerLimits limits;
};

/** How many workers in a row may end before they are ready; a single one that is killed is no reason to give up. */
constexpr int mostFailedStarts = 5;

/** Worker processes that know one recipe. Needs an event loop; what is called back comes out of it. */
class Crew
{
public:
    using Id = platform::WorkerPool::Id;

    /** @param folder  absolute: paths of the recipe that are relative begin there */
    Crew(const CrewOptions &options, const QByteArray &recipe, const QString &folder);

    /**
     * Starts the first worker and has it read the recipe, with the pictures and profiles that it names.
     *
     * @return what is wrong with the recipe, or why there are no workers, as a sentence; empty if all is well
     */
    QString begin();

    /** How many pictures may be worked on at a time; at least 1. */
    int size() const { return m_size; }
    /** Whether it is for the crew to take fewer where memory is short. */
    bool minds() const { return m_options.workers == 0; }
    const platform::WorkerLimits &limits() const { return m_options.limits; }

    std::function<void(Id worker)> onReady;
    std::function<void(Id worker, const platform::Message &message)> onMessage;
    /** Of a worker that was ready. */
    std::function<void(Id worker, platform::WorkerEnd end)> onEnded;
    /** A further worker could not be started, or ended before it was ready. */
    std::function<void(const QString &problem)> onMissing;

    /** Starts a further worker; one of onReady and onMissing follows. */
    void start();
    /** Ends one at once. */
    void end(Id worker);
    /** Workers that are there, ready or not. */
    int count() const { return m_pool.count(); }
    const std::set<Id> &ready() const { return m_ready; }
    platform::WorkerPool &pool() { return m_pool; }

private:
    void take(Id worker, platform::Message message);
    void takeEnd(Id worker, platform::WorkerEnd end);
    void tellRecipe(Id worker);

    CrewOptions m_options;
    int m_size = 1;
    QByteArray m_recipe;
    QString m_folder;
    std::map<QString, platform::LentFile> m_files;
    std::set<Id> m_ready;
    QString m_problem;
    std::function<void()> m_wake; ///< while the first one is waited for
    platform::WorkerPool m_pool;
};

/** Why nothing came of what a worker was at that has ended so, as a sentence. */
QString reasonFor(platform::WorkerEnd end, const platform::WorkerLimits &limits);

/** What keeps the workers of @p program from doing harm, as one of them reports; nothing if none can be started. */
std::optional<HelloMessage> confinementOf(const QString &program);

/** Where quorlin-worker is: in a build beside the program that is running, installed in its folder of libexec. */
QString workerProgram();

} // namespace jobs
