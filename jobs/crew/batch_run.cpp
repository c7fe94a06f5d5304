#include "jobs/crew/batch_run.h"

#include "image/recipe/sentence.h"
#include "meta/metadata_file.h"
#include "platform/foundation/memory_left.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace jobs {

using platform::Message;
using platform::WorkerEnd;

namespace {

constexpr int betweenTicks = 50; // milliseconds

} // namespace

BatchRun::BatchRun(const image::Recipe &recipe, Inputs &inputs, const BatchOptions &options, Crew &crew,
                   const TakeLine &take, const std::function<Stop()> &isStopped)
    : m_recipe(recipe), m_inputs(inputs), m_options(options), m_crew(crew), m_take(take), m_isStopped(isStopped),
      m_naming(recipe, inputs, options), m_needsFacts(needsFacts(recipe)), m_memory(platform::memoryLeft())
{
}

BatchRun::~BatchRun()
{
    m_crew.onReady = {};
    m_crew.onMessage = {};
    m_crew.onEnded = {};
    m_crew.onMissing = {};
}

Summary BatchRun::run()
{
    QElapsedTimer timer;
    timer.start();
    listen();
    if (replacesAnything(m_recipe))
        m_inputs.readToTheEnd([this] { return m_isStopped() != Stop::No; });
    m_idle = m_crew.ready();
    m_fresh = m_crew.ready();
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, &ticks, [this] { tick(); });
    ticks.start(betweenTicks);
    tick();
    if (!isFinished())
        m_loop.exec();
    constexpr double milliseconds = 1000;
    m_summary.seconds = double(timer.elapsed()) / milliseconds;
    m_summary.jobs = m_crew.size();
    return m_summary;
}

void BatchRun::listen()
{
    m_crew.onReady = [this](Id worker) {
        m_missing = 0;
        m_idle.insert(worker);
        m_fresh.insert(worker);
        advance();
    };
    m_crew.onMessage = [this](Id worker, const Message &message) { take(worker, message); };
    m_crew.onEnded = [this](Id worker, WorkerEnd end) {
        takeEnd(worker, end);
        advance();
    };
    m_crew.onMissing = [this](const QString &problem) {
        m_startsLater = true;
        if (++m_missing >= mostFailedStarts && m_crew.count() == 0)
            m_noWorkers = problem;
    };
}

void BatchRun::advance()
{
    lookForStop();
    if (!m_isStopping) {
        nameNext();
        giveWork();
    }
    if (isFinished())
        m_loop.quit();
}

bool BatchRun::isFinished()
{
    if (!m_isStopping)
        return m_pictures.empty() && m_inputs.look() == Inputs::State::Ended;
    return m_pictures.empty();
}

void BatchRun::lookForStop()
{
    const Stop stop = m_isStopped();
    if ((stop != Stop::No || !m_goesOn) && !m_isStopping)
        beginToStop();
    constexpr qint64 patience = 7000; // milliseconds, so that all is over after ten seconds
    if (stop == Stop::Now || (m_isStopping && m_sinceStop.hasExpired(patience)))
        while (!m_pictures.empty())
            drop(m_pictures.begin()->first);
}

void BatchRun::tick()
{
    m_startsLater = false;
    std::vector<Id> slow;
    for (auto &[worker, holding] : m_holdings)
        if (holding.waits && ++holding.looks > 1)
            slow.push_back(worker);
    for (const Id worker : slow)
        letGo(worker);
    advance();
}

/** What is made is finished; what is not is as if it had not been begun. */
void BatchRun::beginToStop()
{
    m_isStopping = true;
    m_sinceStop.start();
    std::vector<int> others;
    for (const auto &[number, work] : m_pictures)
        if (!work.isMade)
            others.push_back(number);
    for (const int number : others)
        drop(number);
}

void BatchRun::drop(int number)
{
    if (const Id worker = holderOf(number); worker >= 0) {
        m_crew.end(worker);
        m_holdings.erase(worker);
    }
    m_files.erase(number);
    m_pictures.erase(number);
}

void BatchRun::giveWork()
{
    const std::set<Id> idle = m_idle;
    for (const Id worker : idle)
        while (m_idle.count(worker) != 0 && giveTo(worker))
            nameNext();
    while (!m_noWorkers.isEmpty() && (prepareNext() || !m_toMake.empty() || !m_toTryAgain.empty())) {
        for (const int number : std::exchange(m_toTryAgain, {}))
            failWhole(number, m_noWorkers);
        for (const int number : std::exchange(m_toMake, {}))
            failWhole(number, m_noWorkers);
        nameNext();
    }
    startWorkers();
}

void BatchRun::startWorkers()
{
    const auto starting = [this] { return m_crew.count() - int(m_crew.ready().size()); };
    const auto waiting = [this] {
        return int(m_toMake.size() + m_toTryAgain.size()) + (mayLookAhead() ? m_inputs.known() - m_inputs.taken() : 0);
    };
    const auto mayStart = [this] { return !m_startsLater && m_noWorkers.isEmpty() && m_crew.count() < m_crew.size(); };
    // A picture that ended one worker waits for a new one, however many others have nothing to do.
    if (!m_toTryAgain.empty() && m_fresh.empty() && starting() == 0) {
        if (m_crew.count() >= m_crew.size() && !m_idle.empty()) {
            const Id worker = *m_idle.begin();
            m_idle.erase(worker);
            m_crew.end(worker);
        }
        if (mayStart())
            m_crew.start();
    }
    while (mayStart() && waiting() > int(m_idle.size()) + starting())
        m_crew.start();
}

bool BatchRun::mayLookAhead()
{
    const int ahead = 4 * m_crew.size() + 16;
    return m_inputs.taken() - m_nextToName < ahead && int(m_toMake.size()) < m_crew.size() + 4 &&
           m_inputs.look() == Inputs::State::Ready;
}

/** Not more at a time than there is memory for. */
bool BatchRun::mayMake() const
{
    if (!m_crew.minds() || m_expected == 0)
        return true;
    const qint64 most = std::max<qint64>(1, m_memory / m_expected);
    return qint64(m_files.size()) < most;
}

/** False if there is nothing for it to do. */
bool BatchRun::giveTo(Id worker)
{
    const bool isFresh = m_fresh.count(worker) != 0;
    if (isFresh && !m_toTryAgain.empty()) {
        const int number = m_toTryAgain.front();
        m_toTryAgain.pop_front();
        return send(worker, number);
    }
    if (!m_toMake.empty() && mayMake()) {
        const int number = *m_toMake.begin();
        m_toMake.erase(m_toMake.begin());
        return send(worker, number);
    }
    if (!mayLookAhead())
        return false;
    const int number = m_inputs.taken();
    return prepareNext() || send(worker, number);
}

/** Starts the next input. False if a worker must read it first. */
bool BatchRun::prepareNext()
{
    if (!mayLookAhead())
        return false;
    const int number = m_inputs.taken();
    PictureWork &work = m_pictures[number] = m_naming.workOn(m_inputs.take(), number);
    const Input &input = work.input;
    const bool isNeeded = m_naming.needsPicture(work);
    work.facts = factsOfFile(input.path, number, isNeeded && m_needsFacts);
    const QString problem = isNeeded && input.problem.isEmpty() ? m_noWorkers : input.problem;
    if (isNeeded && problem.isEmpty())
        return false;
    work.plans = m_naming.failedPlans(problem);
    work.isPlanned = true;
    return true;
}

/** Gives a picture to a worker, which first looks into it. */
bool BatchRun::send(Id worker, int number)
{
    PictureWork &work = m_pictures.at(number);
    auto file = platform::LentFile::open(work.input.path);
    if (!file) {
        failWhole(number, file.error().message);
        return true;
    }
    Message message = toMessage(PictureMessage{work.facts, m_needsFacts, meta::packetBeside(work.input.path)});
    message.files.push_back(file->takeDescriptor());
    m_idle.erase(worker);
    m_fresh.erase(worker);
    m_holdings[worker] = {number};
    m_crew.pool().beginWork(worker);
    m_crew.pool().send(worker, std::move(message));
    return true;
}

void BatchRun::nameNext()
{
    for (auto next = m_pictures.find(m_nextToName); next != m_pictures.end() && next->second.isPlanned;
         next = m_pictures.find(m_nextToName)) {
        PictureWork &work = next->second;
        m_naming.name(work);
        ++m_nextToName;
        goOn(work, holderOf(work.number));
    }
}

/** What follows the names: nothing, or the results. @p worker has read the picture, or is -1. */
void BatchRun::goOn(PictureWork &work, Id worker)
{
    const bool hasWork = std::any_of(work.lines.begin(), work.lines.end(),
                                     [](const ReportLine &line) { return line.status == LineStatus::Planned; });
    if (m_options.isDryRun || !hasWork) {
        finish(work.number);
    } else if (worker >= 0 && mayMake()) {
        make(work, worker);
    } else {
        m_toMake.insert(work.number);
        letGo(worker);
    }
}

/** Files for the outputs that are to be made. */
std::vector<std::pair<int, platform::Descriptor>> BatchRun::filesFor(PictureWork &work)
{
    auto &files = m_files[work.number];
    files = std::make_unique<ResultFiles>(work.input, work.number,
                                          ResultFiles::Settings{m_options.settings, m_options.made}, m_rooms);
    std::vector<std::pair<int, platform::Descriptor>> open;
    for (ReportLine &line : work.lines) {
        if (line.status != LineStatus::Planned)
            continue;
        if (auto file = files->begin(line.index, work.places[line.index]))
            open.emplace_back(line.index, std::move(*file));
        else
            fail(line, file.error().message);
    }
    return open;
}

void BatchRun::make(PictureWork &work, Id worker)
{
    auto open = filesFor(work);
    if (open.empty()) {
        finish(work.number);
        return;
    }
    work.isMade = true;
    m_holdings[worker].waits = false;
    OutputsMessage outputs;
    std::vector<platform::Descriptor> files;
    for (auto &[index, file] : open) {
        outputs.indices.append(index);
        files.push_back(std::move(file));
        if (files.size() < platform::mostFiles && index != open.back().first)
            continue;
        Message message = toMessage(std::exchange(outputs, {}));
        message.files = std::exchange(files, {});
        m_crew.pool().send(worker, std::move(message));
    }
    m_crew.pool().resumeWork(worker);
    m_crew.pool().send(worker, toMessage(MessageKind::Make));
}

BatchRun::Id BatchRun::holderOf(int number) const
{
    for (const auto &[worker, holding] : m_holdings)
        if (holding.number == number)
            return worker;
    return -1;
}

/** The worker may do something else. */
void BatchRun::letGo(Id worker)
{
    if (m_holdings.erase(worker) == 0)
        return;
    m_crew.pool().endWork(worker);
    m_idle.insert(worker);
}

/** Reports the outcome of a picture, which is then finished. */
void BatchRun::finish(int number)
{
    PictureWork &work = m_pictures.at(number);
    if (const auto files = m_files.find(number); files != m_files.end()) {
        for (const ResultFiles::Placed &placed : files->second->placeAll(m_naming.places())) {
            ReportLine &line = work.lines[placed.index];
            line.status = placed.isSkipped ? LineStatus::Skipped : LineStatus::Ok;
            line.output = placed.path;
            if (!placed.problem.isEmpty())
                fail(line, placed.problem);
            else
                m_inputs.leaveOut(placed.path);
        }
        m_files.erase(files);
        for (ReportLine &line : work.lines)
            if (line.status == LineStatus::Planned)
                fail(line, image::sentence(QT_TRANSLATE_NOOP("recipe", "no result")));
    }
    m_summary.inputs += work.wanted.isEmpty() ? 0 : 1;
    for (const int index : std::as_const(work.wanted)) {
        m_summary.count(work.lines[index]);
        m_goesOn = m_take(work.lines[index]) && m_goesOn;
    }
    letGo(holderOf(number));
    m_pictures.erase(number);
}

} // namespace jobs
