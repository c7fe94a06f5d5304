#include "app/network/download.h"

#include "app/network/http_get.h"

#include "platform/foundation/utf8.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSemaphore>

#include <memory>
#include <thread>
#include <vector>

namespace app {
namespace {

using platform::ErrorCode;
using Outcome = platform::Result<QString>;

constexpr int graceMs = 500; // how late the thread may notice that time is up

bool isWebAddress(const QUrl &address)
{
    return address.isValid() && !address.host().isEmpty() &&
           (address.scheme() == QStringLiteral("http") || address.scheme() == QStringLiteral("https"));
}

bool isRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

auto failed(ErrorCode code, const QString &why)
{
    return platform::failure(code, why);
}

Outcome textOf(const QByteArray &body)
{
    const auto text = platform::textFromUtf8(body);
    return text ? Outcome(*text) : failed(ErrorCode::Unreadable, QStringLiteral("it is not UTF-8"));
}

Outcome fetched(QUrl address, DownloadBudget &budget, int redirects)
{
    for (;; --redirects) {
        const auto answer = httpGet(address, budget);
        if (!answer)
            return failed(answer.error().code, answer.error().message);
        if (answer->status / 100 == 2)
            return textOf(answer->body);
        const QUrl next = address.resolved(QUrl::fromEncoded(answer->location));
        const bool isSafe = isWebAddress(next) && (next.scheme() == address.scheme() || next.scheme().endsWith(u's'));
        if (!isRedirect(answer->status))
            return failed(ErrorCode::NotFound, QStringLiteral("the server answers %1").arg(answer->status));
        if (answer->location.isEmpty() || !isSafe || redirects == 0)
            return failed(ErrorCode::NotFound, QStringLiteral("it leads on to somewhere else"));
        address = next;
    }
}

/** One download in a separate thread. It outlives its owner if a host name lookup cannot be interrupted. */
struct Job
{
    QUrl address;
    DownloadLimits limits;
    DownloadBudget budget;
    Outcome outcome = failed(ErrorCode::NotFound, QStringLiteral("no answer in time"));
    QSemaphore isDone;
};

std::vector<std::weak_ptr<Job>> &startedJobs()
{
    static std::vector<std::weak_ptr<Job>> jobs;
    return jobs;
}

/** Called before the program ends: what the threads use is destroyed after them. */
void endJobs()
{
    for (const std::weak_ptr<Job> &each : startedJobs())
        if (const std::shared_ptr<Job> job = each.lock()) {
            job->budget.isGivenUp = true;
            job->isDone.tryAcquire(1, graceMs);
        }
    startedJobs().clear();
}

void keepTrackOf(const std::shared_ptr<Job> &job)
{
    if (startedJobs().empty())
        qAddPostRoutine(endJobs);
    std::erase_if(startedJobs(), [](const std::weak_ptr<Job> &each) { return each.expired(); });
    startedJobs().push_back(job);
}

void start(const std::shared_ptr<Job> &job, const std::function<void()> &then)
{
    keepTrackOf(job);
    job->budget.whole = QDeadlineTimer(job->limits.wholeMs);
    job->budget.silenceMs = job->limits.silenceMs;
    job->budget.bytes = job->limits.bytes;
    std::thread([job, then] {
        job->outcome = fetched(job->address, job->budget, job->limits.redirects);
        job->isDone.release();
        then();
    }).detach();
}

/** The text, or a sentence that names the address. */
Outcome worded(const Outcome &outcome, const QUrl &address)
{
    if (outcome)
        return outcome;
    return failed(outcome.error().code,
                  QStringLiteral("Cannot download %1: %2").arg(address.toDisplayString(), outcome.error().message));
}

Outcome noWebAddress(const QUrl &address)
{
    return worded(failed(ErrorCode::Unsupported, QStringLiteral("this is no web address")), address);
}

std::shared_ptr<Job> jobFor(const QUrl &address, const DownloadLimits &limits)
{
    auto job = std::make_shared<Job>();
    job->address = address;
    job->limits = limits;
    return job;
}

} // namespace

DownloadLimits &usualDownloadLimits()
{
    static DownloadLimits limits;
    return limits;
}

platform::Result<QString> downloadedText(const QUrl &address, const DownloadLimits &limits)
{
    if (!isWebAddress(address))
        return noWebAddress(address);
    const std::shared_ptr<Job> job = jobFor(address, limits);
    start(job, [] {});
    // Host name lookups have no timeout.
    const bool isDone = job->isDone.tryAcquire(1, limits.silenceMs + graceMs) ||
                        (job->budget.isConnected && job->isDone.tryAcquire(1, limits.wholeMs + graceMs));
    if (isDone)
        return worded(job->outcome, address);
    job->budget.isGivenUp = true;
    return worded(failed(ErrorCode::NotFound, QStringLiteral("no answer in time")), address);
}

void downloadText(const QUrl &address, QObject *receiver, std::function<void(const platform::Result<QString> &)> taken,
                  const DownloadLimits &limits)
{
    const QPointer<QObject> alive(receiver);
    const auto hand = [alive, taken = std::move(taken)](const Outcome &outcome) {
        if (alive)
            taken(outcome);
    };
    if (!isWebAddress(address)) {
        QMetaObject::invokeMethod(
            qApp, [hand, address] { hand(noWebAddress(address)); }, Qt::QueuedConnection);
        return;
    }
    const std::shared_ptr<Job> job = jobFor(address, limits);
    start(job, [job, hand] {
        if (QCoreApplication *application = QCoreApplication::instance())
            QMetaObject::invokeMethod(
                application, [job, hand] { hand(worded(job->outcome, job->address)); }, Qt::QueuedConnection);
    });
}

} // namespace app
