#pragma once

#include "app/seam/function.h"

#include <QJSValue>
#include <QObject>
#include <QTimer>

namespace window {

/**
 * Carries out a job that a script describes as a generator, from the event loop: it calls next() until the generator
 * is done; the windows stay responsive between steps.
 *
 * A job that yields null has nothing to do until somebody calls wake(), or has called it since the step began; onStep is not called then.
 * Short steps are bundled into slices of a few milliseconds. Everything happens on the main thread; a step never begins
 * while another one is running, not even from a dialog that a step shows.
 */
class JobDriver : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool running READ isRunning)
    Q_PROPERTY(bool paused READ isPaused)

public:
    explicit JobDriver(QObject *parent);

    bool isRunning() const { return !m_generator.object.isUndefined(); }
    bool isPaused() const { return m_paused; }

    /**
     * Starts; a running job is cancelled first.
     *
     * @param generator  what a generator function returned
     * @param onStep     function(value), called with each value that was yielded
     * @param onEnd      function(how, value): "done" with the returned value, "cancelled", or "failed" with the error
     */
    Q_INVOKABLE void start(const script::Generator &generator, const script::Function &onStep,
                           const script::Function &onEnd);
    Q_INVOKABLE void pause();
    Q_INVOKABLE void resume();
    /** Wakes a job that waits for something to do, or is about to. */
    Q_INVOKABLE void wake();
    /** Stops after the current step: calls the generator's return(), so that its finally blocks run. */
    Q_INVOKABLE void cancel();

private:
    void slice();
    QJSValue nextStep();
    bool step();
    void finish(const QString &how, const QJSValue &value);

    QTimer m_timer;
    script::Generator m_generator;
    script::Function m_onStep;
    script::Function m_onEnd;
    bool m_paused = false;
    bool m_inStep = false;
    bool m_cancelWanted = false;
    bool m_waits = false;
    bool m_isAwake = false; ///< wake() was called in the current step
};

/** Calls a function of a script once, some time later; starting it again postpones the call. */
class ScriptTimer : public QObject
{
    Q_OBJECT

public:
    ScriptTimer(script::Function function, QObject *parent);

    Q_INVOKABLE void start(int ms) { m_timer.start(ms); }
    Q_INVOKABLE void stop() { m_timer.stop(); }

private:
    QTimer m_timer;
    script::Function m_function;
};

} // namespace window
