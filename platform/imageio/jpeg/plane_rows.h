#pragma once

// Private to the platform: includes libjpeg.

#include "platform/imageio/jpeg/jpeg_error.h"

#include <QByteArray>
#include <QSize>

#include <array>
#include <vector>

namespace platform {

/**
 * Decodes a JPEG of grey, or of brightness and two colour differences, as its planes, a band of rows at a time, so that
 * the planes are never complete. At half the size, colours that are stored so are as fine as brightness. Anything that the decoder reports about the file, even a mere warning,
 * ends it.
 */
class PlaneRows
{
public:
    /** At full size, or at half of it if @p shrink is 2. */
    explicit PlaneRows(const QByteArray &jpeg, int shrink = 1);
    PlaneRows(const PlaneRows &) = delete;
    PlaneRows &operator=(const PlaneRows &) = delete;
    ~PlaneRows();

    /**
     * False from the first problem on, and for other colours, samplings and files whose coefficients come in passes.
     */
    bool isGood() const { return m_isGood; }
    int planes() const { return m_info.num_components; }
    QSize size(int plane) const;
    /** How many samples of brightness share one of colour. */
    QSize sampling() const;
    /** Colours are so many times as fine, in relation to brightness, as in the file. */
    int finerColours() const;

    /**
     * The next band; with the last one the end of the file has been checked too. Throws std::bad_alloc the first time.
     */
    bool read();
    bool isAtEnd() const { return m_info.output_scanline >= m_info.output_height; }
    /**
     * Of the band that was read; each row is padded to whole units, which may be read. The last band has surplus rows.
     */
    int rows(int plane) const { return int(m_rows[size_t(plane)].size()); }
    const uchar *row(int plane, int y) const { return m_rows[size_t(plane)][size_t(y)]; }

private:
    bool isPossible() const;
    void makeRoom();

    QByteArray m_jpeg;
    JpegErrorManager m_errors;
    jpeg_decompress_struct m_info = {};
    std::vector<uchar> m_samples;
    std::array<std::vector<uchar *>, 3> m_rows;
    std::array<JSAMPARRAY, 3> m_planes = {};
    bool m_isGood = false;
};

} // namespace platform
