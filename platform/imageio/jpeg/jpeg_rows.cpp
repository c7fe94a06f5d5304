#include "platform/imageio/jpeg/jpeg_rows.h"

#include <algorithm>
#include <cstring>

namespace platform {
namespace {

void endAtWarning(j_common_ptr info, int level)
{
    if (level < 0)
        (*info->err->error_exit)(info);
}

bool isGreyOrThreeColours(const jpeg_decompress_struct &info)
{
    const J_COLOR_SPACE space = info.jpeg_color_space;
    return (info.num_components == 1 && space == JCS_GRAYSCALE) ||
           (info.num_components == 3 && (space == JCS_YCbCr || space == JCS_RGB));
}

J_COLOR_SPACE spaceOf(JpegRows::Order order)
{
    switch (order) {
    case JpegRows::Order::BlueFirst:
        return JCS_EXT_BGR;
    case JpegRows::Order::RedFirstAlphaLast:
        return JCS_EXT_RGBA;
    case JpegRows::Order::RedFirst:
        break;
    }
    return JCS_RGB;
}

/** Not in the function that is jumped to, since this changes its variables. */
void readRows(jpeg_decompress_struct &info, uchar **rows, JDIMENSION count)
{
    const JDIMENSION end = info.output_scanline + count;
    while (info.output_scanline < end)
        rows += jpeg_read_scanlines(&info, rows, end - info.output_scanline);
    if (info.output_scanline == info.output_height)
        jpeg_finish_decompress(&info);
}

} // namespace

JpegRows::JpegRows(const QByteArray &jpeg, Order order) : m_jpeg(jpeg)
{
    start(order);
    m_part = QRect(0, 0, int(m_info.output_width), int(m_info.output_height));
}

JpegRows::JpegRows(const QByteArray &jpeg, Order order, const QRect &part) : m_jpeg(jpeg), m_part(part)
{
    start(order);
    if (m_isGood)
        startAt(part);
}

void JpegRows::start(Order order)
{
    m_info.err = prepare(m_errors);
    m_errors.base.emit_message = endAtWarning;
    if (setjmp(m_errors.jump))
        return;
    jpeg_create_decompress(&m_info);
    jpeg_mem_src(&m_info, reinterpret_cast<const uchar *>(m_jpeg.constData()),
                 static_cast<unsigned long>(m_jpeg.size()));
    jpeg_read_header(&m_info, TRUE);
    if (!isGreyOrThreeColours(m_info))
        return;
    if (m_info.num_components == 3)
        m_info.out_color_space = spaceOf(order);
    jpeg_start_decompress(&m_info);
    m_isGood = true;
}

/** Whether the decoder can leave out rows and columns and still give the same samples beside them. */
bool JpegRows::canSkip() const
{
    if (m_info.progressive_mode || jpeg_has_multiple_scans(const_cast<j_decompress_ptr>(&m_info)))
        return false;
    const int across = m_info.comp_info[0].h_samp_factor;
    const int down = m_info.comp_info[0].v_samp_factor;
    bool isUsual = across <= 2 && down <= across;
    for (int i = 1; i < m_info.num_components; ++i)
        isUsual = isUsual && m_info.comp_info[i].h_samp_factor == 1 && m_info.comp_info[i].v_samp_factor == 1;
    return isUsual;
}

void JpegRows::startAt(const QRect &part)
{
    const int width = int(m_info.output_width);
    m_isGood = false;
    if (!canSkip() || part.isEmpty() || !QRect(0, 0, width, int(m_info.output_height)).contains(part))
        return;
    // Colours at a decoded edge are not mixed with those beyond it, so that a block more is decoded on either side.
    constexpr int more = 2 * DCTSIZE;
    const int from = std::max(0, part.x() - more);
    const int end = std::min(width, part.x() + part.width() + more);
    auto first = JDIMENSION(from);
    auto count = JDIMENSION(end - from);
    if (setjmp(m_errors.jump))
        return;
    jpeg_crop_scanline(&m_info, &first, &count);
    if (part.y() > 0 && jpeg_skip_scanlines(&m_info, JDIMENSION(part.y())) != JDIMENSION(part.y()))
        return;
    m_firstColumn = int(first);
    m_wide.resize(size_t(count) * size_t(m_info.output_components));
    m_isGood = true;
}

JpegRows::~JpegRows()
{
    jpeg_destroy_decompress(&m_info);
}

bool JpegRows::read(uchar **rows, int count)
{
    if (!m_isGood)
        return false;
    m_isGood = false;
    if (setjmp(m_errors.jump))
        return false;
    if (m_wide.empty())
        readRows(m_info, rows, JDIMENSION(count));
    else
        readParts(rows, count);
    m_isGood = true;
    return true;
}

/** Not in the function that is jumped to, since this changes its variables. */
void JpegRows::readParts(uchar **rows, int count)
{
    const size_t bands = size_t(m_info.output_components);
    uchar *wide = m_wide.data();
    for (int y = 0; y < count; ++y) {
        readRows(m_info, &wide, 1);
        std::memcpy(rows[y], wide + size_t(m_part.x() - m_firstColumn) * bands, size_t(m_part.width()) * bands);
    }
}

} // namespace platform
