#include "jobs/picture_watch.h"

#include "files/items/picture_collector.h"
#include "image/recipe/sentence.h"
#include "jobs/inputs.h"
#include "jobs/result_mark.h"
#include "platform/disk/disk_file_system.h"
#include "platform/foundation/paths.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <poll.h>

namespace jobs {
namespace {

using platform::TargetFacts;

constexpr qint64 nsPerSecond = 1'000'000'000;

qint64 nowNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::system_clock::now().time_since_epoch())
        .count();
}

constexpr qint64 pauseMs = 2000; ///< between two looks

/** Whether somebody wrote to a file in between, or put another one in its place. */
bool isAnother(const TargetFacts &one, const TargetFacts &other)
{
    return one.number != other.number || one.bytes != other.bytes || one.modifiedNs != other.modifiedNs;
}

} // namespace

PictureWatch::PictureWatch(const QStringList &folders, const WatchOptions &options)
    : m_folders(folders), m_options(options), m_startNs(nowNs()), m_lastNewsNs(m_startNs)
{
    for (const QString &extension : pictureExtensions())
        m_extensions.insert(extension.toLower());
    for (const QString &folder : folders)
        if (const auto facts = platform::targetFacts(folder))
            m_numbers.insert(folder, facts->number);
    m_clock.start();
}

platform::Result<PictureWatch> PictureWatch::start(const QStringList &folders, const WatchOptions &options)
{
    using Manner = WatchOptions::Manner;
    PictureWatch watch(folders, options);
    const bool isLooking =
        options.manner == Manner::Looking ||
        (options.manner == Manner::AsDisksNeed && std::any_of(folders.begin(), folders.end(), platform::isOfNetwork));
    if (!isLooking) {
        auto told = platform::FolderWatch::start(folders);
        if (!told)
            return tl::unexpected<platform::Error>(told.error());
        watch.m_watch.emplace(std::move(*told));
    } else {
        watch.lookThrough();
    }
    if (options.sinceNs)
        watch.lookForChangesSince(*options.sinceNs, false);
    return watch;
}

void PictureWatch::lookForChangesSince(qint64 ns, bool isLive)
{
    for (const QString &folder : std::as_const(m_folders))
        for (const QString &path : picturesIn(folder))
            if (const auto facts = platform::targetFacts(path); facts && facts->changedNs >= ns)
                wait(path, isLive);
}

QStringList PictureWatch::picturesIn(const QString &folder) const
{
    return files::collectFiles({folder}, {pictureExtensions(), {}, {}, files::OddNames::AsPaths}).paths;
}

PictureWatch::State PictureWatch::look(int waitMs)
{
    if (m_watch)
        readNews();
    if (m_clock.elapsed() >= m_nextLook) {
        m_nextLook = m_clock.elapsed() + qMin(pauseMs, m_options.stillMs);
        lookForFolders();
        if (!m_watch)
            lookThrough();
    }
    takeDue();
    if (m_complete.empty() && m_folders.isEmpty())
        return State::Ended;
    if (m_complete.empty() && waitMs > 0) {
        pollfd waiting = {descriptor(), POLLIN, 0};
        (void)::poll(&waiting, m_watch ? 1 : 0, waitMs);
        return look(0);
    }
    return m_complete.empty() ? State::Waiting : State::Ready;
}

/** The system does not report the deletion of a folder while somebody, its lock for one, holds a file of it open. */
void PictureWatch::lookForFolders()
{
    const QStringList folders = m_folders;
    for (const QString &folder : folders) {
        const auto facts = platform::targetFacts(folder);
        if (!facts || facts->number != m_numbers.value(folder))
            lose(folder);
    }
}

void PictureWatch::lose(const QString &folder)
{
    if (m_folders.removeAll(folder) > 0)
        m_news = image::sentence("%1 is gone").arg(folder);
}

void PictureWatch::readNews()
{
    const qint64 before = nowNs();
    const platform::FolderWatch::News news = m_watch->read();
    for (const QString &path : news.files)
        wait(path);
    for (const QString &folder : news.lost)
        lose(folder);
    if (news.isMissing)
        lookForChangesSince(qMax(m_startNs, m_lastNewsNs - nsPerSecond), true);
    m_lastNewsNs = before;
    if (!news.isFull)
        return;
    m_news = image::sentence(
                 "the system watches no more than %1 folders (fs.inotify.max_user_watches); from now on they are "
                 "looked through every 2 seconds")
                 .arg(platform::mostWatches());
    m_watch.reset();
    // In this order: what comes between the two is new to the next look.
    lookThrough();
    lookForChangesSince(qMax(m_startNs, before - nsPerSecond), true);
}

void PictureWatch::lookThrough()
{
    QHash<QString, TargetFacts> seen;
    for (const QString &folder : std::as_const(m_folders)) {
        for (const QString &path : picturesIn(folder)) {
            const auto facts = platform::targetFacts(path);
            if (!facts)
                continue;
            const auto before = m_seen ? m_seen->constFind(path) : QHash<QString, TargetFacts>::const_iterator();
            if (m_seen && (before == m_seen->constEnd() || isAnother(*before, *facts)))
                wait(path);
            seen.insert(path, *facts);
        }
    }
    m_seen = std::move(seen);
    m_nextLook = m_clock.elapsed() + qMin(pauseMs, m_options.stillMs);
}

void PictureWatch::wait(const QString &path, bool isLive)
{
    const QString name = platform::lastPathComponent(path);
    const bool isPicture = !name.startsWith(u'.') && m_extensions.contains(platform::pathExtension(name).toLower());
    const auto facts = platform::targetFacts(path);
    const auto item = platform::DiskFileSystem().look(path);
    if (!isPicture || !facts || !item || item->kind != platform::ItemKind::File)
        return;
    const qint64 due = m_clock.elapsed() + m_options.stillMs;
    m_due.insert(path, due);
    m_waiting.push_back({path, *facts, due, isLive});
}

void PictureWatch::takeDue()
{
    while (!m_waiting.empty() && m_waiting.front().due <= m_clock.elapsed()) {
        const Waiting first = std::move(m_waiting.front());
        m_waiting.pop_front();
        if (m_due.value(first.path) != first.due)
            continue; // it changed again
        m_due.remove(first.path);
        takeIfComplete(first);
    }
}

void PictureWatch::takeIfComplete(const Waiting &waiting)
{
    const auto facts = platform::targetFacts(waiting.path);
    if (!facts)
        return;
    if (isAnother(*facts, waiting.facts) || platform::isBeingWritten(waiting.path)) {
        wait(waiting.path, waiting.isLive);
        return;
    }
    const auto taken = m_taken.constFind(waiting.path);
    const bool isTaken = taken != m_taken.constEnd() && !isAnother(*taken, *facts);
    if (isTaken || isResult(waiting.path, *facts))
        return;
    m_taken.insert(waiting.path, *facts);
    m_complete.push_back({waiting.path, rootOf(waiting.path), waiting.isLive});
}

bool PictureWatch::isResult(const QString &path, const TargetFacts &facts) const
{
    const auto made = m_resultsAt.constFind(path);
    if (made != m_resultsAt.constEnd() && !isAnother(*made, facts))
        return true;
    if (m_options.resumed && m_options.resumed->hasOutputAt(m_options.recipe, path))
        return true;
    return isResultOf(path, m_options.recipe);
}

Arrival PictureWatch::take()
{
    Arrival arrival = std::move(m_complete.front());
    m_complete.pop_front();
    return arrival;
}

QString PictureWatch::rootOf(const QString &path) const
{
    QString root;
    for (const QString &folder : m_folders)
        if (path.startsWith(folder + u'/') && folder.size() > root.size())
            root = folder;
    return root;
}

void PictureWatch::leaveOut(const QString &path)
{
    const auto facts = platform::targetFacts(path);
    if (facts && !rootOf(path).isEmpty())
        m_resultsAt.insert(path, *facts);
}

} // namespace jobs
