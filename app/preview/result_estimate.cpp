#include "app/preview/result_estimate.h"

#include "app/preview/size_estimate.h"
#include "image/output.h"
#include "platform/file/regular_file.h"
#include "platform/imageio/formats/content.h"

#include <QFile>

namespace window {
namespace {

constexpr int settledMs = 250;

/** How the picture grows as JPEG: measured where its file is one. */
double exponentOf(const QString &path, const jobs::Rendition &original)
{
    QFile file(path);
    const bool isJpeg = original.bitmap.jpegQuantisation() && platform::openToRead(file).has_value();
    const qint64 scan = isJpeg ? platform::startOfJpegScan(file) : 0;
    if (scan <= 0)
        return typicalJpegExponent;
    return jpegExponent(original, double(file.size() - scan)).value_or(typicalJpegExponent);
}

} // namespace

ResultEstimate::ResultEstimate(QObject *parent) : QObject(parent)
{
    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, &ResultEstimate::work);
}

void ResultEstimate::setOriginal(const QString &path, const jobs::Rendition &original)
{
    forget();
    m_path = path;
    m_original = original;
    m_exponent.reset();
}

void ResultEstimate::ask(const jobs::Rendition &result, const QString &type, const QString &qualityCode)
{
    forget();
    if (!platform::fileFormatForType(type))
        return;
    m_result = result;
    m_type = type;
    m_qualityCode = qualityCode;
    m_idle.start(settledMs);
}

void ResultEstimate::forget()
{
    m_idle.stop();
    m_bytes = -1;
}

void ResultEstimate::work()
{
    if (!m_exponent) {
        m_exponent = exponentOf(m_path, m_original);
        m_idle.start(0);
        return;
    }
    platform::EncodeOptions options;
    if (!m_qualityCode.isEmpty())
        options.lossyQuality = image::qualityForCode(m_qualityCode);
    const auto bytes = estimatedFileBytes(m_result, *platform::fileFormatForType(m_type), options, *m_exponent);
    m_result = {};
    if (!bytes)
        return;
    m_bytes = *bytes;
    Q_EMIT estimated(m_bytes);
}

} // namespace window
