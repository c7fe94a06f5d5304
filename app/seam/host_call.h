#pragma once

#include <QJSValue>
#include <QObject>

#include <functional>

namespace script {

/** A piece of C++ that runs inside the engine, so that the engine records the stack of whatever it throws. */
class HostCall : public QObject
{
    Q_OBJECT

public:
    explicit HostCall(std::function<QJSValue()> body) : m_body(std::move(body)) {}
    Q_INVOKABLE QJSValue run() { return m_body(); }

private:
    std::function<QJSValue()> m_body;
};

} // namespace script
