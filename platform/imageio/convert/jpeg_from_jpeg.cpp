#include "platform/imageio/convert/jpeg_from_jpeg.h"

#include "platform/imageio/encode/carrying.h"
#include "platform/imageio/facts/resolution.h"

namespace platform {

JpegFromJpeg::JpegFromJpeg(const ImageSource::File &file, const EncodeOptions &options)
    : m_source(file.bytes.all()), m_facts(planeFacts(m_source)), m_options(options)
{
    if (m_facts && m_facts->stored != file.storedSize)
        m_facts.reset();
    const bool statesResolution = options.resolution == WriteResolution::Yes;
    const Resolution resolution = statesResolution ? resolutionOf(file.bytes, file.content) : Resolution();
    m_settings.quality = jpegQualityOf(options);
    m_settings.resolution = writtenResolution(resolution, options);
    if (const auto header = m_settings.quality ? std::nullopt : jpegHeaderOf(file.bytes, file.content))
        m_settings.sourceTables = header->quantisation;
    m_options.metadata = carriedMetadata(resolution, FileFormat::Jpeg, options);
}

std::optional<QByteArray> JpegFromJpeg::finished(const Result<QByteArray> &encoded, QSize size) const
{
    const Result<QByteArray> file = encoded.and_then(
        [&](const QByteArray &bytes) { return withMetadata(bytes, size, FileFormat::Jpeg, m_options); });
    return file ? std::optional(*file) : std::nullopt;
}

} // namespace platform
