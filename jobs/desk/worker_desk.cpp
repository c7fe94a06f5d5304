#include "jobs/desk/worker_desk.h"

#include "image/recipe/sentence.h"
#include "jobs/crew/crew.h"
#include "jobs/crew/messages.h"
#include "platform/foundation/memory_left.h"
#include "platform/foundation/processors.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QThread>

#include <algorithm>
#include <array>
#include <utility>

namespace jobs {

using platform::Message;
using platform::WorkerEnd;

namespace {

constexpr int soonMs = 200;    // before a worker that could not be started is started again
constexpr int restMs = 60'000; // before workers that have nothing to do go
constexpr int mostWorkers = 256;
constexpr std::array<Urgency, 3> byUrgency = {Urgency::Now, Urgency::Soon, Urgency::Later};

/** The program of the workers of this process, where tests said it. */
QString &saidProgram()
{
    static QString program;
    return program;
}

std::optional<platform::WorkerLimits> &saidLimits()
{
    static std::optional<platform::WorkerLimits> limits;
    return limits;
}

QStringList &saidTexts()
{
    static QStringList files;
    return files;
}

WorkerDesk::Options usualOptions()
{
    WorkerDesk::Options usual;
    usual.program = saidProgram().isEmpty() ? workerProgram() : saidProgram();
    usual.limits = saidLimits().value_or(usual.limits);
    usual.texts = saidTexts();
    return usual;
}

LongWait *&longWait()
{
    static LongWait *wait = nullptr;
    return wait;
}

QPointer<WorkerDesk> &deskOfProcess()
{
    static QPointer<WorkerDesk> desk;
    return desk;
}

QPointer<WorkerDesk> &deskForWaiting()
{
    static QPointer<WorkerDesk> desk;
    return desk;
}

} // namespace

WorkerDesk::WorkerDesk(const Options &options, QObject *parent)
    : QObject(parent), m_size(options.workers > 0 ? options.workers : most()), m_options(options),
      m_pool(options.program, options.limits, platform::MessageSocket::Files::Taken)
{
    m_pool.setArguments(options.texts);
    m_pool.onMessage = [this](Id worker, Message message) { take(worker, message); };
    m_pool.onEnded = [this](Id worker, WorkerEnd end) { takeEnd(worker, end); };
    m_look.setSingleShot(true);
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMs);
    connect(&m_look, &QTimer::timeout, this, [this] { giveWork(); });
    connect(&m_rest, &QTimer::timeout, this, [this] { letSomeGo(); });
}

WorkerDesk::~WorkerDesk()
{
    m_pool.onMessage = {};
    m_pool.onEnded = {};
}

WorkerDesk &WorkerDesk::ofProcess()
{
    QPointer<WorkerDesk> &desk = deskOfProcess();
    if (!desk)
        desk = new WorkerDesk(usualOptions(), QCoreApplication::instance());
    return *desk;
}

WorkerDesk &WorkerDesk::forWaiting()
{
    QPointer<WorkerDesk> &desk = deskForWaiting();
    if (!desk) {
        Options options = usualOptions();
        options.workers = 1;
        options.limits.niceness = 0; // this process does nothing else meanwhile
        desk = new WorkerDesk(options, QCoreApplication::instance());
    }
    return *desk;
}

void WorkerDesk::useProgram(const QString &program, const std::optional<platform::WorkerLimits> &limits)
{
    saidProgram() = program;
    saidLimits() = limits;
    delete deskOfProcess();
    delete deskForWaiting();
}

void WorkerDesk::useTexts(const QStringList &files)
{
    if (files == saidTexts())
        return;
    saidTexts() = files;
    delete deskOfProcess();
    delete deskForWaiting();
}

int WorkerDesk::most()
{
    return platform::usableProcessors();
}

void WorkerDesk::setSize(int workers)
{
    m_size = std::clamp(workers, 1, mostWorkers);
    look();
}

void WorkerDesk::setMostMemory(qint64 bytes)
{
    m_mostMemory = std::max(qint64(0), bytes);
}

void WorkerDesk::look()
{
    m_look.start(0);
}

WorkerDesk::Number WorkerDesk::add(std::shared_ptr<Errand> errand, Urgency urgency)
{
    const Number number = m_next++;
    m_waiting[urgency].push_back({number, urgency, std::move(errand)});
    look();
    return number;
}

bool WorkerDesk::takeBack(Number number)
{
    // Code run by the errand's destruction must not find it here.
    const auto takeFrom = [number](std::deque<Asked> &asked) {
        const auto found =
            std::find_if(asked.begin(), asked.end(), [number](const Asked &each) { return each.number == number; });
        const std::shared_ptr<Errand> gone = found == asked.end() ? nullptr : std::move(found->errand);
        if (found != asked.end())
            asked.erase(found);
        return gone != nullptr;
    };
    return takeFrom(m_toTryAgain) || std::any_of(byUrgency.begin(), byUrgency.end(),
                                                 [&](Urgency urgency) { return takeFrom(m_waiting[urgency]); });
}

void WorkerDesk::drop(Number number)
{
    if (takeBack(number))
        return;
    const auto worker = std::find_if(m_workers.begin(), m_workers.end(), [number](const auto &each) {
        return each.second.asked && each.second.asked->number == number;
    });
    if (worker == m_workers.end())
        return;
    end(worker->first);
    look();
}

bool WorkerDesk::isOpen(Number number) const
{
    const auto isIt = [number](const Asked &asked) { return asked.number == number; };
    const auto holds = [&isIt](const std::deque<Asked> &all) { return std::any_of(all.begin(), all.end(), isIt); };
    return holds(m_toTryAgain) ||
           std::any_of(m_waiting.begin(), m_waiting.end(), [&](const auto &each) { return holds(each.second); }) ||
           std::any_of(m_workers.begin(), m_workers.end(),
                       [&](const auto &each) { return each.second.asked && isIt(*each.second.asked); });
}

void WorkerDesk::useLongWait(LongWait *wait)
{
    longWait() = wait;
}

void WorkerDesk::waitFor(int milliseconds)
{
    if (m_workers.empty())
        QThread::msleep(milliseconds); // before one is started again
    else
        m_pool.waitFor(m_workers.begin()->first, milliseconds);
    giveWork();
}

bool WorkerDesk::finish(Number number)
{
    constexpr int lookMs = 100;
    constexpr int longMs = 800;
    QElapsedTimer since;
    since.start();
    giveWork();
    while (isOpen(number)) {
        if (longWait() && since.elapsed() >= longMs)
            return finishWith(*longWait(), number);
        waitFor(lookMs);
    }
    return true;
}

bool WorkerDesk::finishWith(LongWait &wait, Number number)
{
    constexpr int lookMs = 20;
    bool isWanted = true;
    wait.begin();
    for (; isWanted && isOpen(number); isWanted = wait.goOn())
        waitFor(lookMs);
    wait.end();
    const bool isOver = !isOpen(number);
    if (!isOver)
        drop(number);
    return isOver;
}

void WorkerDesk::warmUp()
{
    if (count() == 0)
        start();
}

int WorkerDesk::atWork() const
{
    return int(std::count_if(m_workers.begin(), m_workers.end(), [](const auto &each) { return each.second.asked; }));
}

int WorkerDesk::mostFor(Urgency urgency) const
{
    return urgency == Urgency::Now ? m_size + 1 : m_size;
}

bool WorkerDesk::hasMemoryFor(const Errand &errand) const
{
    qint64 needed = errand.expectedBytes();
    if (needed == 0)
        return true;
    bool isFirst = true;
    for (const auto &[id, worker] : m_workers) {
        const qint64 bytes = worker.asked ? worker.asked->errand->expectedBytes() : 0;
        isFirst = isFirst && bytes == 0;
        needed += bytes;
    }
    return isFirst || needed <= m_memory;
}

/** One that is ready and has nothing to do; those that have had something already come first where either will do. */
WorkerDesk::Worker *WorkerDesk::idleFor(const Asked &asked, bool isFresh)
{
    Worker *best = nullptr;
    if (!isFresh && (atWork() >= mostFor(asked.urgency) || !hasMemoryFor(*asked.errand)))
        return nullptr;
    for (auto &[id, worker] : m_workers)
        if (worker.isReady && !worker.asked && (worker.isFresh || !isFresh) && (!best || best->isFresh))
            best = &worker;
    return best;
}

/** From the beginning each time: starting one may add and drop others. */
void WorkerDesk::giveWork()
{
    const auto giveFirst = [this](std::deque<Asked> &asked, bool isFresh) {
        Worker *worker = asked.empty() ? nullptr : idleFor(asked.front(), isFresh);
        if (!worker)
            return false;
        Asked first = std::move(asked.front());
        asked.pop_front();
        give(*worker, std::move(first));
        return true;
    };
    while (giveFirst(m_toTryAgain, true) || std::any_of(byUrgency.begin(), byUrgency.end(), [&](Urgency urgency) {
               return giveFirst(m_waiting[urgency], false);
           })) {
    }
    startFor();
}

void WorkerDesk::give(Worker &worker, Asked asked)
{
    if (atWork() == 0 && asked.errand->expectedBytes() > 0)
        m_memory = m_mostMemory > 0 ? std::min(m_mostMemory, platform::memoryLeft()) : platform::memoryLeft();
    const Id id = worker.hand.id;
    const std::shared_ptr<Errand> errand = asked.errand;
    const Number number = asked.number;
    worker.isFresh = false;
    worker.asked = std::move(asked);
    Hand hand = worker.hand;
    std::vector<Message> messages = errand->begin(hand);
    const auto found = m_workers.find(id);
    if (found == m_workers.end() || !found->second.asked || found->second.asked->number != number)
        return;
    found->second.hand = hand;
    if (messages.empty()) {
        found->second.asked.reset();
        return;
    }
    m_pool.beginWork(id, errand->seconds());
    for (Message &message : messages)
        m_pool.send(id, std::move(message));
    m_rest.start();
}

/** As many workers as could have something to do now. */
void WorkerDesk::startFor()
{
    const auto count = [this](bool isReady) {
        return int(std::count_if(m_workers.begin(), m_workers.end(), [isReady](const auto &each) {
            return each.second.isReady == isReady && !each.second.asked;
        }));
    };
    const auto idle = std::find_if(m_workers.begin(), m_workers.end(),
                                   [](const auto &each) { return each.second.isReady && !each.second.asked; });
    // What ended one worker waits for a new one, however many others have nothing to do.
    if (!m_toTryAgain.empty() && count(false) == 0) {
        if (idle != m_workers.end() && int(m_workers.size()) >= m_size)
            end(idle->first);
        if (int(m_workers.size()) < m_size && !start())
            return;
    }
    for (const Urgency urgency : byUrgency) {
        auto missing = int(m_waiting[urgency].size()) - count(true) - count(false);
        while (missing-- > 0 && int(m_workers.size()) < mostFor(urgency))
            if (!start())
                return;
    }
}

bool WorkerDesk::start()
{
    QString problem;
    const std::optional<Id> id = m_pool.start(&problem);
    if (id) {
        m_workers[*id].hand.id = *id;
        m_pool.beginWork(*id);
    } else {
        missed(
            image::sentence(QT_TRANSLATE_NOOP("recipe", "%1 cannot be started: %2")).arg(m_options.program, problem));
    }
    return id.has_value();
}

/** A worker could not be started, or ended before it was ready. After some of them in a row nothing can be done. */
void WorkerDesk::missed(const QString &problem)
{
    if (++m_missing < mostFailedStarts || !m_workers.empty()) {
        m_look.start(soonMs);
        return;
    }
    m_missing = 0;
    std::deque<Asked> all = std::exchange(m_toTryAgain, {});
    for (auto &[urgency, asked] : std::exchange(m_waiting, {}))
        std::move(asked.begin(), asked.end(), std::back_inserter(all));
    for (const Asked &asked : all)
        asked.errand->fail(problem);
}

void WorkerDesk::take(Id id, Message &message)
{
    const auto found = m_workers.find(id);
    if (found == m_workers.end())
        return;
    Worker &worker = found->second;
    if (const auto hello = fromMessage<HelloMessage>(message); hello && !worker.isReady) {
        m_confinement = hello;
        worker.isReady = true;
        m_missing = 0;
        m_pool.endWork(id);
        m_rest.start();
        giveWork();
        return;
    }
    Errand::Turn turn = Errand::Turn::Nonsense;
    if (worker.asked) {
        const std::shared_ptr<Errand> errand = worker.asked->errand;
        const Number number = worker.asked->number;
        turn = errand->take(message);
        const auto still = m_workers.find(id);
        if (still == m_workers.end() || !still->second.asked || still->second.asked->number != number)
            return; // it was withdrawn meanwhile
    }
    if (turn == Errand::Turn::Over) {
        m_workers[id].asked.reset();
        m_pool.endWork(id);
        m_rest.start();
        giveWork();
    } else if (turn == Errand::Turn::Nonsense) {
        m_pool.end(id);
        takeEnd(id, WorkerEnd::SpokeNonsense);
    }
}

void WorkerDesk::takeEnd(Id id, WorkerEnd end)
{
    const auto found = m_workers.find(id);
    if (found == m_workers.end())
        return;
    Worker worker = std::move(found->second);
    m_workers.erase(found);
    if (!worker.isReady)
        missed(image::sentence(QT_TRANSLATE_NOOP("recipe", "a worker process ended while starting")));
    if (worker.asked)
        giveUpOrTryAgain(std::move(*worker.asked), end);
    if (m_missing == 0)
        giveWork();
}

void WorkerDesk::giveUpOrTryAgain(Asked asked, WorkerEnd end)
{
    constexpr int mostTries = 2;
    const bool isLimit = end == WorkerEnd::TookTooLong || end == WorkerEnd::TookTooMuch;
    platform::WorkerLimits limits = m_options.limits;
    if (asked.errand->seconds() > 0)
        limits.seconds = asked.errand->seconds();
    if (isLimit || ++asked.tries >= mostTries)
        asked.errand->fail(reasonFor(end, limits));
    else
        m_toTryAgain.push_back(std::move(asked));
}

void WorkerDesk::end(Id id)
{
    m_pool.end(id);
    // Code run by its destruction must find it gone.
    const auto found = m_workers.find(id);
    const std::optional<Asked> gone = std::move(found->second.asked);
    m_workers.erase(found);
}

void WorkerDesk::letSomeGo()
{
    if (atWork() > 0)
        return;
    while (m_workers.size() > 1)
        end(m_workers.rbegin()->first);
}

} // namespace jobs
