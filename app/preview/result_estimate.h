#pragma once

#include "jobs/reading/preview_deeds.h"

#include <QObject>
#include <QTimer>

#include <optional>

namespace window {

/**
 * Works out how large the file of a result will be, when nothing has changed for a while, from the event loop and in
 * pieces: first how the original grows with its pixels, once for each picture, then the result.
 */
class ResultEstimate : public QObject
{
    Q_OBJECT

public:
    explicit ResultEstimate(QObject *parent = nullptr);

    /** The file that was opened and a rendition of it. */
    void setOriginal(const QString &path, const jobs::Rendition &original);
    /**
     * Forgets what was known and works on @p result from now on.
     *
     * @param type  type identifier of the file; what is not written gets no estimate
     * @param qualityCode  "" where the action has none
     */
    void ask(const jobs::Rendition &result, const QString &type, const QString &qualityCode);
    void forget();
    /** -1 while it is not known. */
    double bytes() const { return m_bytes; }

Q_SIGNALS:
    void estimated(double bytes);

private:
    void work();

    QTimer m_idle;
    QString m_path;
    jobs::Rendition m_original;
    std::optional<double> m_exponent;
    jobs::Rendition m_result;
    QString m_type;
    QString m_qualityCode;
    double m_bytes = -1;
};

} // namespace window
