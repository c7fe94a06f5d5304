#pragma once

#include "jobs/name_stream.h"
#include "jobs/report.h"
#include "platform/disk/folder_watch.h"
#include "platform/disk/item_identity.h"

#include <QElapsedTimer>
#include <QHash>
#include <QSet>

#include <deque>

namespace jobs {

/** A picture that came into a watched folder. */
struct Arrival
{
    QString path;
    QString root;        ///< the watched folder
    bool isLive = false; ///< it came while somebody watched
};

struct WatchOptions
{
    QString recipe;                       ///< its name: what carries its note is its own result
    std::optional<qint64> sinceNs;        ///< what changed since then, nanoseconds since 1970, is taken first
    std::optional<EarlierReport> resumed; ///< what it has as an output is a result
    /** Whether to rely on the system's change events, or to scan the folders. Nothing: depends on their disks. */
    enum class Manner { AsDisksNeed, Told, Looking } manner = Manner::AsDisksNeed;
    qint64 stillMs = 2000; ///< so long a picture has not changed when it is complete
};

/**
 * The pictures that come into folders while it lives. One is complete when it was closed after writing or moved in, and has not
 * changed for a while; hidden ones and those that end in .part wait for another name. What is there at the start is left alone
 * but for what options say, and results of the same recipe are never taken.
 */
class PictureWatch
{
public:
    using State = NameStream::State;

    /** @param folders  absolute. Fails with NotFound, TooLarge. */
    static platform::Result<PictureWatch> start(const QStringList &folders, const WatchOptions &options);

    /**
     * Whether a picture is complete; waits so many milliseconds for one, or until a signal arrives. Ended if no folder
     * is left.
     */
    State look(int waitMs);
    /** The next one. To be called where look() says that it is ready. */
    Arrival take();
    /** Notes that a file is a result. */
    void leaveOut(const QString &path);

    /** Readable when something happens in the folders; look() must be asked several times a second besides. */
    int descriptor() const { return m_watch ? m_watch->descriptor() : -1; }
    /** A sentence for the user that was not reported yet; empty if there is none. */
    QString news() { return std::exchange(m_news, {}); }

private:
    struct Waiting
    {
        QString path;
        platform::TargetFacts facts;
        qint64 due = 0;
        bool isLive = true;
    };

    PictureWatch(const QStringList &folders, const WatchOptions &options);
    void readNews();
    void lookForFolders();
    void lose(const QString &folder);
    void lookThrough();
    void lookForChangesSince(qint64 ns, bool isLive);
    void wait(const QString &path, bool isLive = true);
    void takeDue();
    void takeIfComplete(const Waiting &waiting);
    bool isResult(const QString &path, const platform::TargetFacts &facts) const;
    QString rootOf(const QString &path) const;
    QStringList picturesIn(const QString &folder) const;

    QStringList m_folders;
    QHash<QString, platform::ItemNumber> m_numbers; ///< of these folders at the start
    WatchOptions m_options;
    QSet<QString> m_extensions;
    std::optional<platform::FolderWatch> m_watch;                ///< none where the folders are looked through
    std::optional<QHash<QString, platform::TargetFacts>> m_seen; ///< when they were looked through last
    qint64 m_nextLook = 0;
    QElapsedTimer m_clock;
    std::deque<Waiting> m_waiting; ///< in the order in which they are due
    QHash<QString, qint64> m_due;  ///< the last of each
    std::deque<Arrival> m_complete;
    QHash<QString, platform::TargetFacts> m_taken; ///< as they were then
    QHash<QString, platform::TargetFacts> m_resultsAt;
    qint64 m_startNs = 0; ///< what was there before is left alone
    qint64 m_lastNewsNs = 0;
    QString m_news;
};

} // namespace jobs
