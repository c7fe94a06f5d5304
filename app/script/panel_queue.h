#pragma once

#include "platform/controls/panels.h"

#include <QJSValue>
#include <QObject>

#include <deque>

namespace script {

class ScriptEngine;
class Seam;

/** Scripted answers to panels that nobody looks at, in the order in which they were queued. */
class PanelQueue : public QObject
{
    Q_OBJECT

public:
    /** Belongs to @p scripts and answers panels from now on. */
    explicit PanelQueue(ScriptEngine &scripts);
    ~PanelQueue() override;

    bool isEmpty() const { return m_answers.empty(); }
    /** Takes the next answer; calls its whileOpen function before it returns. */
    platform::PanelAnswer takeAnswer();
    /** Adds the panel to what was shown. */
    void record(const platform::PanelRequest &request);

    // Called by the module's script only.
    Q_INVOKABLE void accept(const QJSValue &arguments);
    Q_INVOKABLE void cancel(const QJSValue &arguments);
    Q_INVOKABLE void onShown(const QJSValue &callback) { m_onShown = callback; }

private:
    struct Queued
    {
        platform::PanelAnswer answer;
        QJSValue whileOpen;
    };

    Queued acceptance(const QJSValue &arguments) const;

    ScriptEngine &m_scripts;
    std::deque<Queued> m_answers;
    QJSValue m_onShown;
};

} // namespace script
