#pragma once

#include <QJSValue>
#include <QVariant>

class QJSEngine;

namespace script {

class Values;

/** A function of a script that an operation keeps and calls later; none if the script gave null. */
class Function
{
public:
    Function() = default;
    /** @param values  lives as long as the engine of the function */
    Function(QJSValue function, const Values &values) : m_function(std::move(function)), m_values(&values) {}

    /** False for none, and as soon as the engine is gone. */
    bool isCallable() const { return m_function.isCallable(); }
    /**
     * What it returns; undefined if it cannot be called. What it throws is reported as an uncaught error, or returned
     * as an error if nobody reports.
     */
    QJSValue call(const QVariantList &arguments = {}) const;
    /** The same with values of the script's own. */
    QJSValue callWith(const QJSValueList &arguments) const;

private:
    QJSValue m_function;
    const Values *m_values = nullptr;
};

/** What a generator function of a script returned: an object with next() and return(). */
struct Generator
{
    QJSValue object;
    QJSEngine *engine = nullptr;
};

} // namespace script
