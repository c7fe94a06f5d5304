// The answers of workers, and what happens to a picture whose worker has ended.

#include "image/recipe/sentence.h"
#include "jobs/crew/batch_run.h"

#include <algorithm>

namespace jobs {

using platform::Message;
using platform::WorkerEnd;

namespace {

/** An idle worker, and what its picture takes at most: all of it in memory, with the result beside it. */
qint64 memoryFor(const PlannedMessage &planned)
{
    constexpr qint64 idle = 64LL << 20;
    constexpr qint64 source = 4; // bytes a pixel
    constexpr qint64 result = 8;
    const auto pixels = [](QSize size) { return size.isEmpty() ? 0 : qint64(size.width()) * size.height(); };
    qint64 largest = 0;
    for (const image::OutputPlan &plan : planned.plans)
        largest = std::max(largest, pixels(plan.size));
    return idle + source * pixels(planned.pixels) + result * largest;
}

} // namespace

void BatchRun::take(Id worker, const Message &message)
{
    bool makesSense = m_holdings.count(worker) != 0;
    if (makesSense) {
        switch (MessageKind(message.kind)) {
        case MessageKind::Planned:
            makesSense = takePlanned(worker, message);
            break;
        case MessageKind::Made:
            makesSense = takeMade(worker, message);
            break;
        case MessageKind::Done:
            makesSense = takeDone(worker, message);
            break;
        default:
            makesSense = false;
        }
    }
    if (!makesSense) {
        m_crew.end(worker);
        takeEnd(worker, WorkerEnd::SpokeNonsense);
    }
    advance();
}

bool BatchRun::takePlanned(Id worker, const Message &message)
{
    const auto planned = fromMessage<PlannedMessage>(message);
    Holding &holding = m_holdings[worker];
    PictureWork &work = m_pictures.at(holding.number);
    const bool isAnswer = planned && !work.isMade && !holding.waits;
    if (!isAnswer || (planned->problem.isEmpty() && planned->plans.size() != m_recipe.outputs.size()))
        return false;
    m_crew.pool().endWork(worker);
    if (work.isNamed && !planned->problem.isEmpty()) {
        failWhole(work.number, planned->problem);
    } else if (work.isNamed) { // it was looked into before, by somebody else
        goOn(work, worker);
    } else {
        work.plans = planned->problem.isEmpty() ? planned->plans : m_naming.failedPlans(planned->problem);
        work.facts = m_needsFacts ? withPictureFacts(work.facts, planned->facts) : work.facts;
        work.isPlanned = true;
        holding.waits = true;
        m_expected = std::max(m_expected, memoryFor(*planned));
    }
    return true;
}

bool BatchRun::takeMade(Id worker, const Message &message)
{
    const auto made = fromMessage<MadeMessage>(message);
    PictureWork &work = m_pictures.at(m_holdings[worker].number);
    if (!made || !work.isMade || !work.lines.contains(made->index))
        return false;
    ReportLine &line = work.lines[made->index];
    if (line.status != LineStatus::Planned)
        return false;
    line.milliseconds = made->milliseconds;
    const OutputPlace &place = work.places[made->index];
    ResultFiles &files = *m_files.at(work.number);
    if (!made->problem.isEmpty()) {
        fail(line, made->problem);
    } else if (made->writeError != 0) {
        fail(line, files.failureOf(made->writeError, place).message);
    } else if (const auto kept = files.keep(made->index, made->bytes, place, m_recipe.outputs[made->index]); !kept) {
        fail(line, kept.error().message);
    } else {
        line.size = made->size;
        line.isLossless = made->isLossless;
        line.bytes = made->bytes;
    }
    return true;
}

bool BatchRun::takeDone(Id worker, const Message &message)
{
    const int number = m_holdings[worker].number;
    if (!message.body.isEmpty() || !m_pictures.at(number).isMade)
        return false;
    finish(number);
    return true;
}

/** Why a picture fails whose worker has ended so; empty if it is tried once more. */
QString BatchRun::finalReason(WorkerEnd end, int tries) const
{
    constexpr int mostTries = 2;
    const bool isFinal = end == WorkerEnd::TookTooLong || end == WorkerEnd::TookTooMuch || tries >= mostTries;
    return isFinal ? reasonFor(end, m_crew.limits()) : QString();
}

void BatchRun::takeEnd(Id worker, WorkerEnd end)
{
    m_idle.erase(worker);
    m_fresh.erase(worker);
    const auto holding = m_holdings.find(worker);
    if (holding == m_holdings.end())
        return;
    const int number = holding->second.number;
    const bool isWaiting = holding->second.waits;
    m_holdings.erase(holding);
    PictureWork &work = m_pictures.at(number);
    m_files.erase(number); // unfinished results are removed
    work.isMade = false;
    const QString reason = finalReason(end, ++work.tries);
    if (!reason.isEmpty())
        failWhole(number, reason);
    else if (m_isStopping)
        m_pictures.erase(number);
    else if (!isWaiting)
        m_toTryAgain.push_back(number);
}

void BatchRun::failWhole(int number, const QString &reason)
{
    PictureWork &work = m_pictures.at(number);
    m_files.erase(number);
    if (!work.isNamed) {
        work.facts = withPictureFacts(work.facts, {});
        work.plans = m_naming.failedPlans(reason);
        work.isPlanned = true;
        letGo(holderOf(number));
        return;
    }
    for (ReportLine &line : work.lines) {
        if (line.status != LineStatus::Planned && line.status != LineStatus::Ok)
            continue;
        fail(line, reason);
    }
    finish(number);
}

} // namespace jobs
