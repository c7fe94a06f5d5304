#pragma once

#include "jobs/crew/messages.h"
#include "jobs/desk/errand.h"
#include "platform/workers/worker_pool.h"

#include <QObject>
#include <QTimer>

#include <deque>
#include <map>
#include <memory>
#include <optional>

namespace jobs {

/** Who is waited for. Among errands of the same urgency the first comes first. */
enum class Urgency {
    Now,   ///< the user is looking at the area where it will be shown; one worker more than usual may be started for it
    Soon,  ///< work of a run
    Later, ///< what may be wanted some time
};

/** What a process does while it waits for an errand for long, so that its windows answer; see WorkerDesk::finish(). */
class LongWait
{
public:
    LongWait() = default;
    LongWait(const LongWait &) = delete;
    LongWait &operator=(const LongWait &) = delete;
    virtual ~LongWait() = default;
    /** begin() and end() may be nested, when something else must be waited for outside goOn(). */
    virtual void begin() = 0;
    /** Called repeatedly; false once nobody wants to wait any longer. */
    virtual bool goOn() = 0;
    virtual void end() = 0;
};

/**
 * The workers of a process with windows, and what they are asked to do.
 *
 *     auto &desk = jobs::WorkerDesk::ofProcess();
 *     const auto number = desk.add(std::make_shared<FactsErrand>(path, answer), jobs::Urgency::Now);
 *     desk.drop(number); // nobody waits for it any more
 *
 * add() answers at once and calls nothing; the errand is begun, and its answers come, out of the event loop. Workers are started when
 * there is something for them and kept for what comes next; those that had nothing to do for a while go, all but one. They run at a
 * lower priority than this process.
 *
 * A worker that crashes costs its errand one of two tries; the second is made alone by a worker that has just been started. One that takes
 * longer or more memory than it may is ended, and its errand fails at once. For the main thread.
 */
class WorkerDesk : public QObject
{
    Q_OBJECT

public:
    using Number = quint64; ///< of an errand; never 0

    struct Options
    {
        QString program; ///< absolute path of quorlin-worker
        int workers = 0; ///< 0: as many as there are processors for this process
        platform::WorkerLimits limits = {300, qint64(2048) << 20, 10};
        QStringList texts = {}; ///< translations, as files, in which the workers give their reasons
    };

    explicit WorkerDesk(const Options &options, QObject *parent = nullptr);
    ~WorkerDesk() override;

    /** The one of this process, created on first use with the usual options; destroyed with the application. */
    static WorkerDesk &ofProcess();
    /** Another one, with one worker, for blocking requests: see finish(). */
    static WorkerDesk &forWaiting();
    /**
     * Sets the worker program of both, and the limits for a picture; by default the program beside this one. For tests,
     * while nothing is in progress.
     */
    static void useProgram(const QString &program, const std::optional<platform::WorkerLimits> &limits = {});

    /**
     * The text files in which the workers of both find their reasons; English by default. To be set like useProgram().
     */
    static void useTexts(const QStringList &files);

    Number add(std::shared_ptr<Errand> errand, Urgency urgency);
    /** Cancels an errand and ends the worker that is at it. Does nothing for one that is over. */
    void drop(Number number);
    /** The same for one that no worker has begun; false, and nothing, for any other. */
    bool takeBack(Number number);

    /**
     * Waits until an errand is over. During most of a second only messages from workers of this desk are processed, so
     * nothing else may be requested of this desk; after that useLongWait() determines what else happens. False if that
     * abandoned the errand, which is then dropped without an answer.
     */
    bool finish(Number number);
    /** It must live until another one is used, or null, which waits however long it takes. */
    static void useLongWait(LongWait *wait);

    /** How many pictures may be worked on at a time: 1 to most(). */
    void setSize(int workers);
    /**
     * How much memory pictures that are at work together may need, in bytes; never more than is free, which is the bound for 0. One picture
     * that needs more is worked on alone. From the next picture on that finds nothing else at work.
     */
    void setMostMemory(qint64 bytes);
    int size() const { return m_size; }
    /** The processors of this process. */
    static int most();

    /** Starts a first worker, so that it is there when something is to be done. */
    void warmUp();

    /** What keeps workers from doing harm, as the one says that was ready last; nothing before the first one is. */
    const std::optional<HelloMessage> &confinement() const { return m_confinement; }

    /** Workers that are there, those included that are not ready. */
    int count() const { return m_pool.count(); }

private:
    using Id = platform::WorkerPool::Id;

    struct Asked
    {
        Number number = 0;
        Urgency urgency = Urgency::Soon;
        std::shared_ptr<Errand> errand;
        int tries = 0;
    };
    struct Worker
    {
        Hand hand;
        bool isReady = false;
        bool isFresh = true; ///< it has had no errand yet
        std::optional<Asked> asked;
    };

    void look();
    void giveWork();
    Worker *idleFor(const Asked &asked, bool isFresh);
    void give(Worker &worker, Asked asked);
    bool hasMemoryFor(const Errand &errand) const;
    int atWork() const;
    int mostFor(Urgency urgency) const;
    void startFor();
    bool start();
    void missed(const QString &problem);
    void take(Id worker, platform::Message &message);
    bool isOpen(Number number) const;
    void waitFor(int milliseconds);
    bool finishWith(LongWait &wait, Number number);
    void takeEnd(Id worker, platform::WorkerEnd end);
    void giveUpOrTryAgain(Asked asked, platform::WorkerEnd end);
    void end(Id worker);
    void letSomeGo();

    int m_size;
    Options m_options;
    std::map<Id, Worker> m_workers;
    std::map<Urgency, std::deque<Asked>> m_waiting;
    std::deque<Asked> m_toTryAgain;
    Number m_next = 1;
    qint64 m_mostMemory = 0; ///< 0: what is free
    qint64 m_memory = 0;     ///< what was to be had when nothing was at work
    std::optional<HelloMessage> m_confinement;
    int m_missing = 0; ///< workers that could not be started, one after the other
    QTimer m_look;     ///< out of the event loop
    QTimer m_rest;     ///< how long nothing was asked for
    platform::WorkerPool m_pool;
};

} // namespace jobs
