#include "platform/desktop/user_defaults.h"

#include "platform/desktop/settings_text.h"

#include <QHash>
#include <QSettings>

#include <utility>

namespace platform {
namespace {

/** Opened for each use, so that other programs and other runs see every change at once. */
QSettings settings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Quorlin"), QStringLiteral("Quorlin"));
}

/** What could not be written, until the process ends: a value, or an invalid one for a key that was removed. */
QHash<QString, QVariant> &unwritten()
{
    static QHash<QString, QVariant> values;
    return values;
}

std::function<void()> &teller()
{
    static std::function<void()> tell;
    return tell;
}

/** Remembers a change if the file did not take it, and says so the first time. */
void keepIfUnwritten(QSettings &file, const QString &key, const QVariant &value)
{
    static bool isSaid = false;
    file.sync();
    if (file.status() == QSettings::NoError) {
        unwritten().remove(key);
        return;
    }
    unwritten().insert(key, value);
    if (!isSaid && teller()) {
        isSaid = true;
        teller()();
    }
}

} // namespace

QVariant userDefault(const QString &key)
{
    const auto kept = unwritten().constFind(key);
    return kept != unwritten().constEnd() ? *kept : settingFromText(settings().value(key));
}

void setUserDefault(const QString &key, const QVariant &value)
{
    QSettings file = settings();
    file.setValue(key, settingToText(value));
    keepIfUnwritten(file, key, value);
}

void removeUserDefault(const QString &key)
{
    QSettings file = settings();
    file.remove(key);
    keepIfUnwritten(file, key, QVariant());
}

bool areUserDefaultsKept()
{
    return unwritten().isEmpty();
}

void tellOfUnkeptUserDefaults(std::function<void()> tell)
{
    teller() = std::move(tell);
}

} // namespace platform
