#pragma once

#include <QObject>
#include <QVariant>

/** Asks the maker's server whether there is a newer build. */
class cAppUpdater : public QObject
{
    Q_OBJECT
    /** A sentence that says why the last download failed, or contained no version file; null if it succeeded. */
    Q_PROPERTY(QVariant err MEMBER m_err)

public:
    Q_INVOKABLE explicit cAppUpdater(QObject *parent = nullptr) : QObject(parent) {}

    /**
     * Downloads "/version/Quorlin.txt" from the configured host (see app::updateHost()) and blocks the program until it
     * arrives, at most for the time in app::DownloadLimits. Without a host nothing is requested.
     *
     * @param runningBuild  the build number of this program
     * @return a list of three texts, the fields 0, 2 and 3 of the file, if its build is greater; otherwise null, also
     *         if the download fails for whatever reason
     *
     * Raises a RangeError for a file with too few fields: see app::newerVersion().
     */
    Q_INVOKABLE QVariant getAppVersion(int runningBuild);

private:
    QVariant m_err;
};
