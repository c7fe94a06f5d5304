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
    return m_function.call(values);
}

QJSValue Function::callWith(const QJSValueList &arguments) const
{
    return isCallable() ? m_function.call(arguments) : QJSValue();
}

} // namespace script
