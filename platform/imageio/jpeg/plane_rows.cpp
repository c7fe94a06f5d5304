#include "platform/imageio/jpeg/plane_rows.h"

#include "platform/planes/plane_kernels.h"

namespace platform {
namespace {

void endAtWarning(j_common_ptr info, int level)
{
    if (level < 0)
        (*info->err->error_exit)(info);
}

/** Not in the function that is jumped to, since this changes its variables. */
void readBand(jpeg_decompress_struct &info, JSAMPIMAGE planes)
{
    jpeg_read_raw_data(&info, planes, JDIMENSION(info.max_v_samp_factor * info.min_DCT_scaled_size));
    if (info.output_scanline >= info.output_height)
        jpeg_finish_decompress(&info);
}

} // namespace

PlaneRows::PlaneRows(const QByteArray &jpeg, int shrink) : m_jpeg(jpeg)
{
    m_info.err = prepare(m_errors);
    m_errors.base.emit_message = endAtWarning;
    if (setjmp(m_errors.jump))
        return;
    jpeg_create_decompress(&m_info);
    jpeg_mem_src(&m_info, reinterpret_cast<const uchar *>(m_jpeg.constData()),
                 static_cast<unsigned long>(m_jpeg.size()));
    jpeg_read_header(&m_info, TRUE);
    if (!isPossible())
        return;
    m_info.raw_data_out = TRUE;
    m_info.scale_num = 1;
    m_info.scale_denom = unsigned(shrink);
    m_info.out_color_space = m_info.jpeg_color_space;
    jpeg_start_decompress(&m_info);
    m_isGood = true;
}

PlaneRows::~PlaneRows()
{
    jpeg_destroy_decompress(&m_info);
}

bool PlaneRows::isPossible() const
{
    if (m_info.progressive_mode || jpeg_has_multiple_scans(const_cast<j_decompress_ptr>(&m_info)))
        return false;
    const jpeg_component_info *components = m_info.comp_info;
    if (m_info.num_components == 1)
        return m_info.jpeg_color_space == JCS_GRAYSCALE && components[0].h_samp_factor == 1 &&
               components[0].v_samp_factor == 1;
    const auto isWhole = [](const jpeg_component_info &component) {
        return component.h_samp_factor == 1 && component.v_samp_factor == 1;
    };
    const int across = components[0].h_samp_factor;
    const int down = components[0].v_samp_factor;
    return m_info.num_components == 3 && m_info.jpeg_color_space == JCS_YCbCr && isWhole(components[1]) &&
           isWhole(components[2]) && (across == 1 || across == 2) && (down == 1 || down == 2);
}

QSize PlaneRows::size(int plane) const
{
    const jpeg_component_info &component = m_info.comp_info[plane];
    return {int(component.downsampled_width), int(component.downsampled_height)};
}

int PlaneRows::finerColours() const
{
    return m_info.num_components == 1 ? 1 : m_info.comp_info[1].DCT_scaled_size / m_info.comp_info[0].DCT_scaled_size;
}

QSize PlaneRows::sampling() const
{
    const jpeg_component_info &brightness = m_info.comp_info[0];
    return {brightness.h_samp_factor / finerColours(), brightness.v_samp_factor / finerColours()};
}

void PlaneRows::makeRoom()
{
    const auto height = [this](int plane) {
        return m_info.comp_info[plane].v_samp_factor * m_info.comp_info[plane].DCT_scaled_size;
    };
    const auto stride = [this](int plane) {
        const jpeg_component_info &component = m_info.comp_info[plane];
        return wholeUnits(int(component.width_in_blocks + 1) * component.DCT_scaled_size, planeRowUnit);
    };
    size_t bytes = 0;
    for (int plane = 0; plane < planes(); ++plane)
        bytes += size_t(stride(plane)) * size_t(height(plane));
    m_samples.resize(bytes);
    uchar *at = m_samples.data();
    for (int plane = 0; plane < planes(); ++plane) {
        for (int y = 0; y < height(plane); ++y, at += stride(plane))
            m_rows[size_t(plane)].push_back(at);
        m_planes[size_t(plane)] = m_rows[size_t(plane)].data();
    }
}

bool PlaneRows::read()
{
    if (!m_isGood || isAtEnd())
        return false;
    if (m_samples.empty())
        makeRoom();
    m_isGood = false;
    if (setjmp(m_errors.jump))
        return false;
    readBand(m_info, m_planes.data());
    m_isGood = true;
    return true;
}

} // namespace platform
