#include "app/script/defaults_store.h"

#include "app/script/ScriptEngine.h"
#include "app/seam/seam.h"

#include "platform/desktop/user_defaults.h"
#include "platform/foundation/raised.h"

namespace script {

DefaultsStore::DefaultsStore(ScriptEngine &scripts) : QObject(&scripts), m_scripts(scripts) {}

QString DefaultsStore::key(const QJSValue &arguments, const QString &operation, int count) const
{
    const int received = arguments.property(QStringLiteral("length")).toInt();
    if (received != count)
        throw platform::Raised::typeError(
            QStringLiteral("%1 takes %2 but received %3")
                .arg(operation, count == 1 ? QStringLiteral("1 argument") : QStringLiteral("2 arguments"))
                .arg(received));
    const QJSValue key = arguments.property(0);
    if (!key.isString() || key.toString().isEmpty())
        throw platform::Raised::typeError(
            QStringLiteral("Expected text for key but received %1").arg(m_scripts.seam().values().described(key)));
    return key.toString();
}

QJSValue DefaultsStore::get(const QJSValue &arguments)
{
    return m_scripts.seam().guarded([&] {
        const QString name = key(arguments, QStringLiteral("get"), 1);
        return m_scripts.seam().values().toScript(platform::userDefault(name));
    });
}

void DefaultsStore::set(const QJSValue &arguments)
{
    m_scripts.seam().guarded([&] {
        const QString name = key(arguments, QStringLiteral("set"), 2);
        const QVariant value = m_scripts.seam().values().setting(arguments.property(1), QStringLiteral("value"));
        platform::setUserDefault(name, value);
        return QJSValue();
    });
}

void DefaultsStore::remove(const QJSValue &arguments)
{
    m_scripts.seam().guarded([&] {
        platform::removeUserDefault(key(arguments, QStringLiteral("remove"), 1));
        return QJSValue();
    });
}

} // namespace script
