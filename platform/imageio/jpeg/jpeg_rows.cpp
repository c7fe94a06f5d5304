#include "platform/imageio/jpeg/jpeg_rows.h"

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
        m_info.out_color_space = order == Order::BlueFirst ? JCS_EXT_BGR : JCS_RGB;
    jpeg_start_decompress(&m_info);
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
    readRows(m_info, rows, JDIMENSION(count));
    m_isGood = true;
    return true;
}

} // namespace platform
