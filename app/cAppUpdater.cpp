#include "app/cAppUpdater.h"

#include "app/configuration.h"
#include "app/download.h"
#include "app/version_file.h"

namespace {

/** The host is put before the path as it is, but for the "/" at its end that people write. */
QUrl versionFile()
{
    QString host = app::updateHost().trimmed();
    while (host.endsWith(u'/'))
        host.chop(1);
    return QUrl(host + QStringLiteral("/version/Quorlin.txt"));
}

} // namespace

QVariant cAppUpdater::getAppVersion(int runningBuild)
{
    const auto text = app::downloadedText(versionFile());
    m_err = text ? QVariant() : QVariant(text.error().message);
    if (!text)
        return {};
    const auto fields = app::newerVersion(*text, runningBuild);
    return fields ? QVariant(*fields) : QVariant();
}
