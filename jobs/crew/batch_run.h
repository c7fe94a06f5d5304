#pragma once

#include "jobs/crew/naming.h"
#include "jobs/result_files.h"

#include <QElapsedTimer>
#include <QEventLoop>

#include <deque>
#include <map>
#include <set>

namespace jobs {

/**
 * A running batch. Pictures are read a little ahead of the one that is named next; the worker that read one continues
 * with it once it has its names, or with another one if that takes a while.
 */
class BatchRun
{
public:
    BatchRun(const image::Recipe &recipe, Inputs &inputs, const BatchOptions &options, Crew &crew, const TakeLine &take,
             const std::function<Stop()> &isStopped);
    BatchRun(const BatchRun &) = delete;
    BatchRun &operator=(const BatchRun &) = delete;
    ~BatchRun();

    Summary run();

private:
    using Id = Crew::Id;

    /** What a worker has before it. */
    struct Holding
    {
        int number = -1;
        bool waits = false; ///< it has looked into the picture, which has no names yet
        int looks = 0;      ///< how often tick() has found it waiting
    };

    void listen();
    void advance();
    void tick();
    void lookForStop();
    bool isFinished();

    void giveWork();
    void startWorkers();
    bool giveTo(Id worker);
    bool prepareNext();
    bool mayLookAhead();
    bool mayMake() const;
    bool send(Id worker, int number);

    void nameNext();
    void goOn(PictureWork &work, Id worker);
    void make(PictureWork &work, Id worker);
    std::vector<std::pair<int, platform::Descriptor>> filesFor(PictureWork &work);
    Id holderOf(int number) const;
    void letGo(Id worker);

    void take(Id worker, const platform::Message &message);
    bool takePlanned(Id worker, const platform::Message &message);
    bool takeMade(Id worker, const platform::Message &message);
    bool takeDone(Id worker, const platform::Message &message);
    void takeEnd(Id worker, platform::WorkerEnd end);
    QString finalReason(platform::WorkerEnd end, int tries) const;

    void failWhole(int number, const QString &reason);
    void finish(int number);
    void drop(int number);
    void beginToStop();

    const image::Recipe &m_recipe;
    Inputs &m_inputs;
    const BatchOptions &m_options;
    Crew &m_crew;
    const TakeLine &m_take;
    const std::function<Stop()> &m_isStopped;
    BatchNaming m_naming;
    WaitingRooms m_rooms;
    bool m_needsFacts;

    std::map<int, PictureWork> m_pictures;
    std::map<int, std::unique_ptr<ResultFiles>> m_files; ///< of the pictures that are made
    std::map<Id, Holding> m_holdings;
    std::set<Id> m_idle;
    std::set<Id> m_fresh; ///< of the idle ones, those that have had no picture yet
    std::set<int> m_toMake;
    std::deque<int> m_toTryAgain;
    int m_nextToName = 0;
    qint64 m_memory;       ///< what was to be had in the beginning
    qint64 m_expected = 0; ///< the largest need of any picture so far, according to its plan
    int m_missing = 0;     ///< workers that could not be started, one after the other
    bool m_startsLater = false;
    QString m_noWorkers; ///< why there are none any more
    bool m_goesOn = true;
    bool m_isStopping = false;
    QElapsedTimer m_sinceStop;
    QEventLoop m_loop;
    Summary m_summary;
};

} // namespace jobs
