#pragma once

#include "jobs/picture_watch.h"
#include "jobs/watch_lock.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace jobs {

/** A watched folder for scripts: PictureWatch from the loop of events, one folder at a time. Nothing here needs a window. */
class WatchService : public QObject
{
    Q_OBJECT
    /** The folder that is watched; empty if none is. */
    Q_PROPERTY(QString folder READ folder)

public:
    explicit WatchService(QObject *parent = nullptr);

    QString folder() const { return m_folder; }

    /**
     * Watches @p folder and all below it for pictures that arrive from now on; what was watched before is not watched any more.
     *
     * @param work  what is done with them: two programs do not do the same in the same folder
     * @return {code, detail}: code is empty if it is watched, "missing" if there is no such folder, "taken" if it is
     *         watched for the same work already, "system" where the system cannot watch it, and detail then says why
     */
    Q_INVOKABLE QVariantMap start(const QString &folder, const QString &work);
    /** Watches no folder any more. */
    Q_INVOKABLE void stop();
    /** What is at @p path now is a result, and no arrival. */
    Q_INVOKABLE void leaveOut(const QString &path);

Q_SIGNALS:
    /** A picture is there, complete. */
    void arrived(const QString &path);
    /** A sentence for the user. */
    void told(const QString &sentence);
    /** The folder is gone; it is not watched any more. */
    void ended();

private:
    void look();

    QString m_folder;
    std::optional<PictureWatch> m_watch;
    std::optional<WatchLock> m_lock;
    std::unique_ptr<QSocketNotifier> m_news;
    QTimer m_looks;
};

} // namespace jobs
