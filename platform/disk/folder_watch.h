#pragma once

#include "platform/descriptors/descriptor.h"
#include "platform/foundation/result.h"

#include <QHash>
#include <QStringList>

namespace platform {

/**
 * Tells of files that were closed after writing, or moved, in folders and in all below them. Hidden folders and packages are
 * not entered, links not followed.
 *
 * The system counts watches, one a folder. On disks of other machines it tells of nothing that happens there; see isOfNetwork().
 */
class FolderWatch
{
public:
    /** Fails with NotFound where a folder cannot be watched, and with TooLarge, in a sentence, where the system has no more watches. */
    static Result<FolderWatch> start(const QStringList &folders);

    struct News
    {
        QStringList files;      ///< that may be complete now; those of folders that are new here too
        QStringList lost;       ///< of the folders that were named: those that are gone
        bool isMissing = false; ///< more happened than the system could keep: what changed must be looked for
        bool isFull = false;    ///< a new folder could not be watched, for want of watches
    };
    /** What happened since it was asked last. Never waits. */
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

/** Whether a folder is on a disk that others may write to without this system's knowledge. */
bool isOfNetwork(const QString &folder);

/** Whether some process has a file open for writing; false where that cannot be told. */
bool isBeingWritten(const QString &path);

/** How many watches one user may have, as the system says; 0 where it does not. */
int mostWatches();

} // namespace platform
