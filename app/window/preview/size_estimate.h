#pragma once

#include "jobs/reading/read_errand.h"

#include <QObject>
#include <QVariantMap>

namespace window {

/** How many bytes results will have: workers make them as a run would, but nothing is written. */
class SizeEstimate : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /**
     * Queues the making of one picture's result.
     *
     * @param number  identifies it in measured()
     * @param result  {recipe}, or {type: identifier, quality: code} of a conversion; other keys are ignored
     */
    Q_INVOKABLE void measure(int number, const QString &path, const QVariantMap &result);
    /** Drops all requests. */
    Q_INVOKABLE void stop();

Q_SIGNALS:
    /** @param bytes  -1 if it could not be made */
    void measured(int number, double bytes);

private:
    jobs::Reader m_reader;
};

/** The request to a worker for the size of a result; see SizeEstimate::measure(). */
jobs::ReadRequest bytesRequest(const QString &path, const QVariantMap &result);

} // namespace window
