#pragma once

#include <QSettings>

/**
 * Keeps all settings in @p folder from now on. The toolkit asks the environment for their place only once in a process, so a
 * variable set later would leave them where an earlier test put them, or among the settings of the user who runs the
 * tests.
 */
inline void keepSettingsIn(const QString &folder)
{
    for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat})
        QSettings::setPath(format, QSettings::UserScope, folder);
}
