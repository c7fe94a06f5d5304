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

/** Changes that could not be written, kept until the process ends: a value, or an invalid one for a removed key. */
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

/** Writes a change with all that could not be written before; the first failure is reported. */
void write(const QString &key, const QVariant &value)
{
    static bool isSaid = false;
    unwritten().insert(key, value);
    QSettings file = settings();
    for (auto change = unwritten().cbegin(); change != unwritten().cend(); ++change) {
        if (change.value().isValid())
            file.setValue(change.key(), settingToText(change.value()));
        else
            file.remove(change.key());
    }
    file.sync();
    if (file.status() == QSettings::NoError) {
        unwritten().clear();
    } else if (!isSaid && teller()) {
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
    write(key, value);
}

void removeUserDefault(const QString &key)
{
    write(key, QVariant());
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
