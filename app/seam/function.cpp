#include "app/seam/function.h"

#include "app/seam/values.h"

namespace script {

QJSValue Function::call(const QVariantList &arguments) const
{
    if (!isCallable())
        return {};
    QJSValueList values;
    for (const QVariant &argument : arguments)
        values.append(m_values->toScript(argument));
    return callWith(values);
}

QJSValue Function::callWith(const QJSValueList &arguments) const
{
    return isCallable() ? m_values->callFunction(m_function, arguments) : QJSValue();
}

} // namespace script
