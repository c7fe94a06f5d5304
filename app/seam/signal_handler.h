#pragma once

#include "app/seam/service_class.h"

#include <QJSValue>
#include <QObject>

namespace script {

class Seam;

/**
 * Calls a function of a script whenever an object emits a signal, with the arguments converted like results of an
 * operation. Deleted with the object; its parent is the seam.
 */
class SignalHandler : public QObject
{
public:
    SignalHandler(QObject &sender, const Signal &signal, QJSValue function, Seam &seam);
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    void run(void **arguments);

    Seam &m_seam;
    std::vector<Parameter> m_parameters;
    QJSValue m_function;
};

} // namespace script
