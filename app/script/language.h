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
 * Fills gaps of the engine's language, in its own objects, before any script runs; afterwards none of these can be
 * changed.
 *
 * The text of a list that contains itself ends, numbers are formatted for their reader, and a promise that is rejected
 * and still unhandled once everything due has run is reported.
 */
class Language : public QObject
{
    Q_OBJECT

public:
    explicit Language(QJSEngine &engine);

    /** Called with what a promise was rejected with, and where the promise was made. */
    std::function<void(const QJSValue &reason, const Location &place)> tellRejection;

    /** Reports at once what nobody handled. True if there was anything to look at. */
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
