#pragma once

#include "app/seam/seam.h"

#include <QJSEngine>
#include <QJSValue>
#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

namespace script {

/**
 * What the language lacks in the engine, put into its own objects before any script runs; afterwards none of them can be changed.
 *
 * The texts of a list that holds itself come to an end, numbers are written as their reader writes them, and a promise that is rejected
 * while nobody handles it is told, once everything that was due has run and still nobody does.
 */
class Language : public QObject
{
    Q_OBJECT

public:
    explicit Language(QJSEngine &engine);

    /** Called with what a promise was rejected with, and where the promise was made. */
    std::function<void(const QJSValue &reason, const Location &place)> tellRejection;

    /** Tells at once of what nobody handled. True where there was something to look at. */
    bool tellRejections();

    // Called by its script only.
    Q_INVOKABLE QString numberText(double number) const;
    Q_INVOKABLE void rejected(const QJSValue &reason, const QString &stack, const QJSValue &isHandled);

private:
    struct Rejection
    {
        QJSValue reason;
        QString stack;
        QJSValue isHandled;
    };

    void tellWhenQuiet();

    QJSValue m_reactions; ///< answers how many reactions of promises have run
    std::vector<Rejection> m_rejections;
    int m_turns = 0;
    int m_reactionsBefore = 0;
    QTimer m_due;
};

} // namespace script
