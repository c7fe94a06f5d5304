#include "platform/desktop/user_defaults.h"

#include "platform/desktop/settings_text.h"

#include <QSettings>

namespace platform {
namespace {

/** Opened for each use, so that other programs and other runs see every change at once. */
QSettings settings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Quorlin"), QStringLiteral("Quorlin"));
}

} // namespace

QVariant userDefault(const QString &key)
{
    return settingFromText(settings().value(key));
}

void setUserDefault(const QString &key, const QVariant &value)
{
    settings().setValue(key, settingToText(value));
}

void removeUserDefault(const QString &key)
{
    settings().remove(key);
}

} // namespace platform
