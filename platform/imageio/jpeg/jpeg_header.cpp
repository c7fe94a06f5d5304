#include "platform/imageio/jpeg/jpeg_header.h"

#include "platform/imageio/jpeg/jpeg_error.h"

#include <algorithm>
#include <cstdlib>

namespace platform {
namespace {

constexpr int exifMarker = JPEG_APP0 + 1;
constexpr int profileMarker = JPEG_APP0 + 2;

/** Feeds the decoder from a device, so that only the beginning of a large file is read. */
struct DeviceSource
{
    jpeg_source_mgr base = {};
    QIODevice *device = nullptr;
    std::array<JOCTET, 65536> buffer = {};
};

void initSource(j_decompress_ptr) {}

boolean fillBuffer(j_decompress_ptr info)
{
    auto *source = reinterpret_cast<DeviceSource *>(info->src);
    const qint64 count =
        source->device->read(reinterpret_cast<char *>(source->buffer.data()), qint64(source->buffer.size()));
    if (count <= 0) {
        source->buffer = {0xFF, JPEG_EOI};
        source->base.bytes_in_buffer = 2;
    } else {
        source->base.bytes_in_buffer = size_t(count);
    }
    source->base.next_input_byte = source->buffer.data();
    return TRUE;
}

void skipBytes(j_decompress_ptr info, long count)
{
    auto *source = reinterpret_cast<DeviceSource *>(info->src);
    while (count > long(source->base.bytes_in_buffer)) {
        count -= long(source->base.bytes_in_buffer);
        fillBuffer(info);
    }
    source->base.next_input_byte += count;
    source->base.bytes_in_buffer -= size_t(count);
}

void readTables(const jpeg_decompress_struct &info, JpegHeader &header)
{
    header.componentCount = info.num_components;
    header.size = QSize(int(info.image_width), int(info.image_height));
    const int known = std::min(info.num_components, int(header.quantisation.tableOfComponent.size()));
    for (int component = 0; component < known; ++component)
        header.quantisation.tableOfComponent[size_t(component)] = info.comp_info[component].quant_tbl_no;
    for (size_t table = 0; table < header.quantisation.tables.size(); ++table)
        if (const JQUANT_TBL *values = info.quant_tbl_ptrs[table])
            std::copy(std::begin(values->quantval), std::end(values->quantval),
                      header.quantisation.tables[table].begin());
    header.quantisation.horizontalSampling = info.comp_info[0].h_samp_factor;
    header.quantisation.verticalSampling = info.comp_info[0].v_samp_factor;
}

void readDensity(const jpeg_decompress_struct &info, JpegHeader &header)
{
    constexpr int perInch = 1;
    constexpr int perCentimetre = 2;
    constexpr double centimetresPerInch = 2.54;
    if (!info.saw_JFIF_marker || (info.density_unit != perInch && info.density_unit != perCentimetre))
        return;
    const double factor = info.density_unit == perCentimetre ? centimetresPerInch : 1;
    header.horizontalDpi = info.X_density * factor;
    header.verticalDpi = info.Y_density * factor;
}

void countWarning(j_common_ptr info, int level)
{
    info->err->num_warnings += level < 0 ? 1 : 0;
}

bool isPlain(const jpeg_decompress_struct &info)
{
    const bool isGrey = info.num_components == 1 && info.jpeg_color_space == JCS_GRAYSCALE;
    const bool isDifferences = info.num_components == 3 && info.jpeg_color_space == JCS_YCbCr;
    return (isGrey || isDifferences) && info.data_precision == BITS_IN_JSAMPLE;
}

/** The contents of all segments of that kind that begin so. */
QList<QByteArray> segmentsOf(const jpeg_decompress_struct &info, int marker, QByteArrayView beginning)
{
    QList<QByteArray> found;
    for (const jpeg_marker_struct *each = info.marker_list; each; each = each->next) {
        const QByteArray content(reinterpret_cast<const char *>(each->data), qsizetype(each->data_length));
        if (each->marker == marker && content.startsWith(beginning))
            found.append(content);
    }
    return found;
}

std::optional<QByteArray> profileOf(jpeg_decompress_struct &info)
{
    if (segmentsOf(info, profileMarker, "ICC_PROFILE").isEmpty())
        return QByteArray();
    JOCTET *joined = nullptr;
    unsigned length = 0;
    if (!jpeg_read_icc_profile(&info, &joined, &length))
        return std::nullopt;
    const QByteArray profile(reinterpret_cast<const char *>(joined), qsizetype(length));
    std::free(joined);
    return profile;
}

} // namespace

std::optional<JpegHeader> readJpegHeader(QIODevice &file, JpegProfile profile)
{
    constexpr unsigned wholeSegment = 0xffff;
    JpegErrorManager errors;
    jpeg_decompress_struct info = {};
    auto source = std::make_unique<DeviceSource>();
    JpegHeader header;
    info.err = prepare(errors);
    errors.base.emit_message = countWarning;
    if (setjmp(errors.jump)) {
        jpeg_destroy_decompress(&info);
        return std::nullopt;
    }
    jpeg_create_decompress(&info);
    source->device = &file;
    source->base.init_source = initSource;
    source->base.fill_input_buffer = fillBuffer;
    source->base.skip_input_data = skipBytes;
    source->base.resync_to_restart = jpeg_resync_to_restart;
    source->base.term_source = initSource;
    info.src = &source->base;
    jpeg_save_markers(&info, exifMarker, wholeSegment);
    if (profile == JpegProfile::Read)
        jpeg_save_markers(&info, profileMarker, wholeSegment);
    jpeg_read_header(&info, TRUE);
    readTables(info, header);
    readDensity(info, header);
    header.isSound = info.err->num_warnings == 0;
    header.isPlain = header.isSound && isPlain(info);
    header.exifs = segmentsOf(info, exifMarker, "Exif");
    if (profile == JpegProfile::Read)
        header.profile = profileOf(info);
    jpeg_destroy_decompress(&info);
    return header;
}

} // namespace platform
