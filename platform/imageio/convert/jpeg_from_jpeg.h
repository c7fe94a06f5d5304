#pragma once

// Private to the platform.

#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/jpeg/decoded_planes.h"
#include "platform/imageio/source/opened_file.h"

namespace platform {

/** What a JPEG that is made of another one has besides its pixels. Throws vips::VError. */
class JpegFromJpeg
{
public:
    JpegFromJpeg(const ImageSource::File &file, const EncodeOptions &options);

    const QByteArray &source() const { return m_source; }
    /** None if the file must go the plain way. */
    const std::optional<PlaneFacts> &facts() const { return m_facts; }
    const JpegSettings &settings() const { return m_settings; }

    /** The encoded pixels with their metadata; none if something failed. */
    std::optional<QByteArray> finished(const Result<QByteArray> &encoded, QSize size) const;

private:
    QByteArray m_source;
    std::optional<PlaneFacts> m_facts;
    JpegSettings m_settings;
    EncodeOptions m_options;
};

} // namespace platform
