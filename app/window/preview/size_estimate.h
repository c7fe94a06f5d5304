#pragma once

#include "jobs/reading/read_errand.h"

#include <QObject>
#include <QVariantMap>

namespace window {

/** How many bytes results will have: workers make them as a run would, and nothing is written. */
class SizeEstimate : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /**
     * Has the result of one picture made, after those that were asked for before.
     *
     * @param number  what measured() calls it
     * @param result  {recipe}, or {type: identifier, quality: code} of a conversion; other keys are passed over
     */
    Q_INVOKABLE void measure(int number, const QString &path, const QVariantMap &result);
    /** Forgets what was asked for. */
    Q_INVOKABLE void stop();

Q_SIGNALS:
    /** @param bytes  -1 where nothing came of it */
    void measured(int number, double bytes);

private:
    jobs::Reader m_reader;
};

/** What a worker is asked so that it says how many bytes a result has; see SizeEstimate::measure(). */
jobs::ReadRequest bytesRequest(const QString &path, const QVariantMap &result);

} // namespace window
