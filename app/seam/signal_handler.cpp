#include "app/seam/signal_handler.h"

#include "app/seam/seam.h"

#include <utility>

namespace script {

SignalHandler::SignalHandler(QObject &sender, const Signal &signal, QJSValue function, Seam &seam)
    : QObject(&seam), m_seam(seam), m_parameters(signal.parameters), m_function(std::move(function))
{
    // There is no slot in any meta-object: qt_metacall() itself is called, with the first index after those of QObject.
    QMetaObject::connect(&sender, signal.methodIndex, this, QObject::staticMetaObject.methodCount(),
                         Qt::DirectConnection);
    connect(&sender, &QObject::destroyed, this, &QObject::deleteLater);
}

int SignalHandler::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id == 0 && call == QMetaObject::InvokeMetaMethod)
        run(arguments);
    return id - 1;
}

void SignalHandler::run(void **arguments)
{
    // Objects may briefly outlive the engine.
    if (!m_function.isCallable())
        return;
    QJSValueList values;
    for (size_t i = 0; i < m_parameters.size(); ++i) {
        const Parameter &parameter = m_parameters[i];
        const void *argument = arguments[i + 1];
        const QVariant value =
            parameter.kind == Kind::Any ? *static_cast<const QVariant *>(argument) : QVariant(parameter.type, argument);
        values.append(m_seam.values().toScript(value, Values::NullText::Empty));
    }
    m_seam.callHandler(m_function, values);
}

} // namespace script
