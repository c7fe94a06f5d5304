#pragma once

// Private to the platform: includes libjpeg.

#include "platform/imageio/jpeg/jpeg_error.h"

#include <QByteArray>
#include <QRect>
#include <QSize>

#include <vector>

namespace platform {

/**
 * Decodes a JPEG of grey or three colours row by row, as stored, at full size, or a part of it. Anything that the decoder
 * reports about the file, even a mere warning, ends it: such files are left to openImage().
 */
class JpegRows
{
public:
    /** Of three colours; the alpha after them is opaque. Grey is a single component with each of them. */
    enum class Order { RedFirst, BlueFirst, RedFirstAlphaLast };

    JpegRows(const QByteArray &jpeg, Order order);
    /**
     * Only @p part, the rows and columns that it needs; what follows in the file is not looked at. Not good for files
     * that come in passes, for unusual samplings, and for parts that are not in the picture.
     */
    JpegRows(const QByteArray &jpeg, Order order, const QRect &part);
    JpegRows(const JpegRows &) = delete;
    JpegRows &operator=(const JpegRows &) = delete;
    ~JpegRows();

    /** False from the first problem on, and for other kinds of pixels. */
    bool isGood() const { return m_isGood; }
    QSize size() const { return m_part.size(); }
    int bands() const { return m_info.output_components; }

    /** Writes the next @p count rows to @p rows; the last call also checks the end of the file. */
    bool read(uchar **rows, int count);

private:
    void start(Order order);
    bool canSkip() const;
    void startAt(const QRect &part);
    void readParts(uchar **rows, int count);

    QByteArray m_jpeg;
    JpegErrorManager m_errors;
    jpeg_decompress_struct m_info = {};
    QRect m_part;              ///< of the picture
    int m_firstColumn = 0;     ///< of those that are decoded
    std::vector<uchar> m_wide; ///< a row of them, if they are more than the part
    bool m_isGood = false;
};

} // namespace platform
