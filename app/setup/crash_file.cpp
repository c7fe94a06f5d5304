#include "app/setup/crash_file.h"

#include "platform/foundation/crash_report.h"
#include "platform/imageio/load/library_versions.h"

#include <QDir>
#include <QStandardPaths>

namespace app {

QString crashFile()
{
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/quorlin");
    QDir().mkpath(folder);
    return folder + QStringLiteral("/Crash.txt");
}

void keepCrashReports()
{
    const QString head = QStringLiteral("Quorlin " QUORLIN_VERSION "\n") + platform::librariesText();
    platform::keepCrashReports(crashFile(), head.toUtf8());
}

} // namespace app
