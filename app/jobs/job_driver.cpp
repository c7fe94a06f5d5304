#include "app/jobs/job_driver.h"

#include <QElapsedTimer>
#include <QJSEngine>
#include <QLoggingCategory>

#include <utility>

namespace window {

namespace {

constexpr qint64 sliceNs = 1'500'000;

void reportError(const QJSValue &error)
{
    qWarning("%s:%d: %s", qUtf8Printable(error.property(QStringLiteral("fileName")).toString()),
             error.property(QStringLiteral("lineNumber")).toInt(), qUtf8Printable(error.toString()));
}

void call(const script::Function &function, const QJSValueList &arguments)
{
    const QJSValue result = function.callWith(arguments);
    if (result.isError())
        reportError(result);
}

} // namespace

JobDriver::JobDriver(QObject *parent) : QObject(parent)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &JobDriver::slice);
}

void JobDriver::start(const script::Generator &generator, const script::Function &onStep, const script::Function &onEnd)
{
    if (isRunning())
        cancel();
    m_generator = generator;
    m_onStep = onStep;
    m_onEnd = onEnd;
    m_paused = false;
    m_cancelWanted = false;
    m_waits = false;
    m_timer.start(0);
}

void JobDriver::pause()
{
    m_paused = true;
    m_timer.stop();
}

void JobDriver::resume()
{
    m_paused = false;
    if (isRunning() && !m_waits)
        m_timer.start(0);
}

void JobDriver::wake()
{
    m_isAwake = m_inStep;
    m_waits = false;
    if (isRunning() && !m_paused && !m_inStep)
        m_timer.start(0);
}

void JobDriver::cancel()
{
    if (!isRunning())
        return;
    if (m_inStep) {
        m_cancelWanted = true;
        return;
    }
    m_timer.stop();
    const QJSValue result = m_generator.object.property(QStringLiteral("return")).callWithInstance(m_generator.object);
    if (result.isError())
        finish(QStringLiteral("failed"), result);
    else
        finish(QStringLiteral("cancelled"), result.property(QStringLiteral("value")));
}

void JobDriver::slice()
{
    QElapsedTimer clock;
    clock.start();
    while (isRunning() && !m_paused && step()) {
        if (clock.nsecsElapsed() >= sliceNs) {
            m_timer.start(0);
            return;
        }
    }
}

/**
 * What next() answers. Anything that is not a step is an error: a generator that never reports its end would run for
 * ever.
 */
QJSValue JobDriver::nextStep()
{
    const QJSValue result = m_generator.object.property(QStringLiteral("next")).callWithInstance(m_generator.object);
    return result.isObject() ? result
                             : m_generator.engine->newErrorObject(QJSValue::TypeError,
                                                                  QStringLiteral("A step of a job is an object"));
}

// Runs one step of the generator; true if more are to come.
bool JobDriver::step()
{
    if (m_inStep)
        return false;
    m_inStep = true;
    m_isAwake = false;
    const QJSValue result = nextStep();
    const bool ended = result.isError() || result.property(QStringLiteral("done")).toBool();
    const QJSValue value = result.property(QStringLiteral("value"));
    m_waits = !ended && value.isNull() && !m_isAwake;
    if (!ended && !value.isNull())
        call(m_onStep, {value});
    m_inStep = false;
    if (result.isError())
        finish(QStringLiteral("failed"), result);
    else if (ended)
        finish(QStringLiteral("done"), result.property(QStringLiteral("value")));
    else if (std::exchange(m_cancelWanted, false))
        cancel();
    return !ended && !m_waits && isRunning();
}

void JobDriver::finish(const QString &how, const QJSValue &value)
{
    m_timer.stop();
    m_generator = {};
    m_onStep = {};
    const script::Function onEnd = std::exchange(m_onEnd, {});
    if (value.isError())
        reportError(value);
    call(onEnd, {how, value});
}

ScriptTimer::ScriptTimer(script::Function function, QObject *parent) : QObject(parent), m_function(std::move(function))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { call(m_function, {}); });
}

} // namespace window
