#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/jpeg/jpeg_error.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace platform {
namespace {

constexpr double qualityWithoutSource = 0.92;
/** From this quality on colour keeps its full resolution. */
constexpr int fullColourQuality = 90;

/** Owns the encoder and its output, however the call ends. */
struct Encoder
{
    jpeg_compress_struct info = {};
    JpegErrorManager errors;
    unsigned char *bytes = nullptr;
    unsigned long size = 0;

    Encoder() = default;
    Encoder(const Encoder &) = delete;
    Encoder &operator=(const Encoder &) = delete;
    ~Encoder()
    {
        jpeg_destroy_compress(&info);
        std::free(bytes);
    }
};

J_COLOR_SPACE colorSpaceOf(int bands)
{
    constexpr int cmykBands = 4;
    if (bands == 1)
        return JCS_GRAYSCALE;
    return bands == cmykBands ? JCS_CMYK : JCS_RGB;
}

/** The tables of the source can be reused if it had the same components. */
bool canUseTables(const jpeg_compress_struct &info, const JpegQuantisation &tables)
{
    for (int component = 0; component < info.num_components; ++component) {
        const auto table = size_t(tables.tableOfComponent[size_t(component)]);
        if (table >= tables.tables.size() || tables.tables[table][0] == 0)
            return false;
    }
    return true;
}

void useTables(jpeg_compress_struct &info, const JpegQuantisation &source)
{
    for (size_t table = 0; table < source.tables.size(); ++table) {
        if (source.tables[table][0] == 0)
            continue;
        std::array<unsigned int, DCTSIZE2> values = {};
        std::copy(source.tables[table].begin(), source.tables[table].end(), values.begin());
        constexpr int asTheyAre = 100;
        jpeg_add_quant_table(&info, int(table), values.data(), asTheyAre, TRUE);
    }
    for (int component = 0; component < info.num_components; ++component)
        info.comp_info[component].quant_tbl_no = source.tableOfComponent[size_t(component)];
    constexpr int mostSampling = 2;
    info.comp_info[0].h_samp_factor = std::clamp(source.horizontalSampling, 1, mostSampling);
    info.comp_info[0].v_samp_factor = std::clamp(source.verticalSampling, 1, mostSampling);
}

void useQuality(jpeg_compress_struct &info, double quality)
{
    constexpr double best = 100;
    const int percent = std::clamp(int(std::lround(quality * best)), 1, int(best));
    jpeg_set_quality(&info, percent, TRUE);
    const bool keepsColour = percent >= fullColourQuality || info.num_components != 3;
    info.comp_info[0].h_samp_factor = keepsColour ? 1 : 2;
    info.comp_info[0].v_samp_factor = keepsColour ? 1 : 2;
}

/** True for a density that a file, which holds whole numbers only, can state accurately enough. */
bool isNearlyWhole(double density)
{
    constexpr double tolerance = 0.02;
    return std::abs(density - std::round(density)) < tolerance;
}

void useResolution(jpeg_compress_struct &info, Resolution resolution)
{
    constexpr double mostDensity = 65535;
    if (resolution.horizontal < 1 || resolution.horizontal > mostDensity || resolution.vertical > mostDensity)
        return;
    constexpr double centimetresPerInch = 2.54;
    const bool isMetric =
        !isNearlyWhole(resolution.horizontal) && isNearlyWhole(resolution.horizontal / centimetresPerInch);
    const double scale = isMetric ? centimetresPerInch : 1;
    // Files of four colours would lack this segment, the only one that states a resolution. Their readers use the Adobe
    // segment after it.
    info.write_JFIF_header = TRUE;
    info.density_unit = isMetric ? 2 : 1;
    info.X_density = UINT16(std::lround(resolution.horizontal / scale));
    info.Y_density = UINT16(std::max(1L, std::lround(resolution.vertical / scale)));
}

void configure(jpeg_compress_struct &info, QSize size, int bands, const JpegSettings &settings)
{
    info.image_width = JDIMENSION(size.width());
    info.image_height = JDIMENSION(size.height());
    info.input_components = bands;
    info.in_color_space = colorSpaceOf(bands);
    jpeg_set_defaults(&info);
    const bool keepsTables = !settings.quality && settings.sourceTables && canUseTables(info, *settings.sourceTables);
    if (keepsTables)
        useTables(info, *settings.sourceTables);
    else
        useQuality(info, settings.quality.value_or(qualityWithoutSource));
    useResolution(info, settings.resolution);
    if (info.in_color_space == JCS_CMYK)
        info.write_Adobe_marker = TRUE;
}

void writeProfile(jpeg_compress_struct &info, const QByteArray &profile)
{
    if (!profile.isEmpty())
        jpeg_write_icc_profile(&info, reinterpret_cast<const JOCTET *>(profile.constData()), unsigned(profile.size()));
}

/** Rows are passed to the encoder unchanged, except CMYK, which is inverted as readers expect. */
void writeRows(jpeg_compress_struct &info, const vips::VImage &image, std::vector<JSAMPLE> &scratch)
{
    const auto *data = static_cast<const JSAMPLE *>(image.data());
    const size_t rowBytes = VIPS_IMAGE_SIZEOF_LINE(image.get_image());
    const bool isInverted = info.in_color_space == JCS_CMYK;
    while (info.next_scanline < info.image_height) {
        const JSAMPLE *row = data + rowBytes * info.next_scanline;
        if (isInverted)
            std::transform(row, row + rowBytes, scratch.begin(), [](JSAMPLE ink) { return JSAMPLE(MAXJSAMPLE - ink); });
        else
            std::copy(row, row + rowBytes, scratch.begin());
        JSAMPLE *line = scratch.data();
        jpeg_write_scanlines(&info, &line, 1);
    }
}

/** The encoder reads whole blocks: the last sample of a row is repeated. */
void fillBlocks(Plane &plane)
{
    for (int y = 0; y < plane.height(); ++y) {
        uchar *row = plane.row(y);
        std::fill(row + plane.width(), row + plane.rowBytes(), row[plane.width() - 1]);
    }
}

/** The rows of one row of blocks; the last row is repeated. */
void pointToRows(const jpeg_component_info &component, Plane &plane, JDIMENSION blockRow, std::vector<JSAMPROW> &rows)
{
    const int count = component.v_samp_factor * DCTSIZE;
    const int first = int(blockRow) * count;
    rows.resize(size_t(count));
    for (int i = 0; i < count; ++i)
        rows[size_t(i)] = plane.row(std::min(first + i, plane.height() - 1));
}

void writePlanes(jpeg_compress_struct &info, JpegPlanes &planes, std::vector<std::vector<JSAMPROW>> &rows)
{
    const auto atOnce = JDIMENSION(info.max_v_samp_factor * DCTSIZE);
    std::array<JSAMPARRAY, MAX_COMPONENTS> components = {};
    while (info.next_scanline < info.image_height) {
        for (size_t i = 0; i < planes.size(); ++i) {
            pointToRows(info.comp_info[i], planes[i], info.next_scanline / atOnce, rows[i]);
            components[i] = rows[i].data();
        }
        jpeg_write_raw_data(&info, components.data(), atOnce);
    }
}

tl::unexpected<Error> notMade(const JpegErrorManager &errors)
{
    return failure(ErrorCode::WriteFailed, QCoreApplication::translate("platform", "The JPEG could not be created: %1")
                                               .arg(QString::fromLatin1(errors.message)));
}

} // namespace

Result<QByteArray> encodeJpeg(const vips::VImage &image, const JpegSettings &settings)
{
    Encoder encoder;
    std::vector<JSAMPLE> scratch(VIPS_IMAGE_SIZEOF_LINE(image.get_image()));
    encoder.info.err = prepare(encoder.errors);
    const QByteArray profile = iccProfileOf(image);
    if (setjmp(encoder.errors.jump))
        return notMade(encoder.errors);
    jpeg_create_compress(&encoder.info);
    jpeg_mem_dest(&encoder.info, &encoder.bytes, &encoder.size);
    configure(encoder.info, {image.width(), image.height()}, image.bands(), settings);
    jpeg_start_compress(&encoder.info, TRUE);
    writeProfile(encoder.info, profile);
    writeRows(encoder.info, image, scratch);
    jpeg_finish_compress(&encoder.info);
    return QByteArray(reinterpret_cast<const char *>(encoder.bytes), qsizetype(encoder.size));
}

QSize jpegSampling(const JpegSettings &settings, int components)
{
    if (components == 1)
        return {1, 1};
    Encoder encoder;
    encoder.info.err = prepare(encoder.errors);
    if (setjmp(encoder.errors.jump))
        return {1, 1};
    jpeg_create_compress(&encoder.info);
    configure(encoder.info, {1, 1}, components, settings);
    return {encoder.info.comp_info[0].h_samp_factor, encoder.info.comp_info[0].v_samp_factor};
}

Result<QByteArray> encodeJpegPlanes(JpegPlanes planes, const QByteArray &profile, const JpegSettings &settings)
{
    Encoder encoder;
    std::vector<std::vector<JSAMPROW>> rows(planes.size());
    std::for_each(planes.begin(), planes.end(), fillBlocks);
    encoder.info.err = prepare(encoder.errors);
    if (setjmp(encoder.errors.jump))
        return notMade(encoder.errors);
    jpeg_create_compress(&encoder.info);
    jpeg_mem_dest(&encoder.info, &encoder.bytes, &encoder.size);
    configure(encoder.info, planes.front().size(), int(planes.size()), settings);
    encoder.info.raw_data_in = TRUE;
    jpeg_start_compress(&encoder.info, TRUE);
    writeProfile(encoder.info, profile);
    writePlanes(encoder.info, planes, rows);
    jpeg_finish_compress(&encoder.info);
    return QByteArray(reinterpret_cast<const char *>(encoder.bytes), qsizetype(encoder.size));
}

} // namespace platform
