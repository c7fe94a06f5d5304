#pragma once

// Private to the platform: includes libjpeg.

#include "platform/imageio/jpeg/jpeg_error.h"

#include <QByteArray>
#include <QSize>

namespace platform {

/**
 * Decodes a JPEG of grey or three colours row by row, as stored, at full size. Anything that the decoder has to say about the
 * file, a mere warning too, ends it: such files are for openImage() to judge.
 */
class JpegRows
{
public:
    enum class Order { RedFirst, BlueFirst };

    JpegRows(const QByteArray &jpeg, Order order);
    JpegRows(const JpegRows &) = delete;
    JpegRows &operator=(const JpegRows &) = delete;
    ~JpegRows();

    /** False from the first trouble on, and for other kinds of pixels. */
    bool isGood() const { return m_isGood; }
    QSize size() const { return {int(m_info.output_width), int(m_info.output_height)}; }
    int bands() const { return m_info.output_components; }

    /** Puts the next @p count rows where @p rows says; the last call checks the end of the file too. */
    bool read(uchar **rows, int count);

private:
    QByteArray m_jpeg;
    JpegErrorManager m_errors;
    jpeg_decompress_struct m_info = {};
    bool m_isGood = false;
};

} // namespace platform
