#include "platform/desktop/user_defaults.h"

#include <QSettings>

#include <memory>

namespace platform {
namespace {

std::unique_ptr<QSettings> settings()
{
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Quorlin"),
                                       QStringLiteral("Quorlin"));
}

} // namespace

QVariant userDefault(const QString &key)
{
    return settings()->value(key);
}

void setUserDefault(const QString &key, const QVariant &value)
{
    settings()->setValue(key, value);
}

void removeUserDefault(const QString &key)
{
    settings()->remove(key);
}

} // namespace platform
