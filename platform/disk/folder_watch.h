#pragma once

#include "platform/descriptors/descriptor.h"
#include "platform/foundation/result.h"

#include <QHash>
#include <QStringList>

namespace platform {

/**
 * Reports files that were closed after writing, or moved, in folders and everything below them. Hidden folders and
 * packages are not entered, links not followed.
 *
 * The system limits watches, one per folder. On network disks it does not report what other machines do; see
 * isOfNetwork().
 */
class FolderWatch
{
public:
    /**
     * Fails with NotFound if a folder cannot be watched, and with TooLarge, in a sentence, if the system has no watches
     * left.
     */
    static Result<FolderWatch> start(const QStringList &folders);

    struct News
    {
        QStringList files;      ///< that may be complete now; also those in new folders
        QStringList lost;       ///< watched root folders that are gone
        bool isMissing = false; ///< the event queue overflowed: changes must be searched for
        bool isFull = false;    ///< a new folder could not be watched, for lack of watches
    };
    /** What happened since the last call. Never waits. */
    News read();

    /** Readable when there is something to read. */
    int descriptor() const { return m_inotify.number(); }

private:
    explicit FolderWatch(Descriptor inotify) : m_inotify(std::move(inotify)) {}
    bool add(const QString &folder);
    bool addAll(const QString &folder, QStringList *files);
    void take(const char *event, News &news);

    Descriptor m_inotify;
    QStringList m_named;
    QHash<int, QString> m_folders; ///< by the numbers of their watches
};

/** Whether a folder is on a disk that others can change without this system's knowledge. */
bool isOfNetwork(const QString &folder);

/** Whether some process has a file open for writing; false if unknown. */
bool isBeingWritten(const QString &path);

/** How many watches one user may have, according to the system; 0 if unknown. */
int mostWatches();

} // namespace platform
