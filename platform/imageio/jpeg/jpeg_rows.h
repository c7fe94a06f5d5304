#pragma once

// Private to the platform: includes libjpeg.

#include "platform/imageio/jpeg/jpeg_error.h"

#include <QByteArray>
#include <QSize>

namespace platform {

/**
 * Decodes a JPEG of grey or three colours row by row, as stored, at full size. Anything that the decoder reports about
 * the file, even a mere warning, ends it: such files are left to openImage().
 */
class JpegRows
{
public:
    enum class Order { RedFirst, BlueFirst };

    JpegRows(const QByteArray &jpeg, Order order);
    JpegRows(const JpegRows &) = delete;
    JpegRows &operator=(const JpegRows &) = delete;
    ~JpegRows();

    /** False from the first problem on, and for other kinds of pixels. */
    bool isGood() const { return m_isGood; }
    QSize size() const { return {int(m_info.output_width), int(m_info.output_height)}; }
    int bands() const { return m_info.output_components; }

    /** Writes the next @p count rows to @p rows; the last call also checks the end of the file. */
    bool read(uchar **rows, int count);

private:
    QByteArray m_jpeg;
    JpegErrorManager m_errors;
    jpeg_decompress_struct m_info = {};
    bool m_isGood = false;
};

} // namespace platform
