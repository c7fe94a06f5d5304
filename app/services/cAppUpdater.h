#pragma once

#include <QObject>
#include <QVariant>

/** Asks the maker's server whether there is a newer build. */
class cAppUpdater : public QObject
{
    Q_OBJECT
    /** A sentence that says why the last download failed, or brought no version file; null where it did not. */
    Q_PROPERTY(QVariant err MEMBER m_err)

public:
    Q_INVOKABLE explicit cAppUpdater(QObject *parent = nullptr) : QObject(parent) {}

    /**
     * Downloads "/version/Quorlin.txt" from the configured host (see app::updateHost()) and waits for it, at most for the seconds
     * that app::DownloadLimits grants; nothing else happens in the program meanwhile. Without a host nothing is asked.
     *
     * @param runningBuild  the build number of this program
     * @return a list of three texts, the fields 0, 2 and 3 of the file, where its build is greater; otherwise null, also where
     *         the download fails for whatever reason
     *
     * Raises a RangeError for a file with too few fields: see app::newerVersion().
     */
    Q_INVOKABLE QVariant getAppVersion(int runningBuild);

private:
    QVariant m_err;
};
