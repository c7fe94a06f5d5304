#pragma once

#include <QJSValue>
#include <QObject>

namespace script {

class ScriptEngine;

/** The user defaults as scripts reach them. Each function takes the list of arguments that the script gave. */
class DefaultsStore : public QObject
{
    Q_OBJECT

public:
    explicit DefaultsStore(ScriptEngine &scripts);

    Q_INVOKABLE QJSValue get(const QJSValue &arguments);
    Q_INVOKABLE void set(const QJSValue &arguments);
    Q_INVOKABLE void remove(const QJSValue &arguments);

private:
    QString key(const QJSValue &arguments, const QString &operation, int count) const;

    ScriptEngine &m_scripts;
};

} // namespace script
