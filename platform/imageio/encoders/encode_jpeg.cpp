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

/** CMYK is inverted, as readers expect. */
bool writeRows(jpeg_compress_struct &info, const NextPixelRow &next, std::vector<JSAMPLE> &row)
{
    const bool isInverted = info.in_color_space == JCS_CMYK;
    while (info.next_scanline < info.image_height) {
        if (!next(row.data()))
            return false;
        if (isInverted)
            std::transform(row.begin(), row.end(), row.begin(), [](JSAMPLE ink) { return JSAMPLE(MAXJSAMPLE - ink); });
        JSAMPLE *line = row.data();
        jpeg_write_scanlines(&info, &line, 1);
    }
    return true;
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

/** Some rows of each plane, as many as the encoder takes at once. */
class DrawnBands
{
public:
    void makeRoom(const jpeg_compress_struct &info)
    {
        for (int i = 0; i < info.num_components; ++i) {
            const jpeg_component_info &component = info.comp_info[i];
            Band &band = m_bands[size_t(i)];
            band.size = QSize(int(component.downsampled_width), int(component.downsampled_height));
            band.rowBytes = size_t(component.width_in_blocks) * DCTSIZE;
            band.rows.resize(size_t(component.v_samp_factor) * DCTSIZE);
            band.samples.resize(band.rowBytes * band.rows.size());
        }
    }

    /** The band that follows; the encoder reads whole blocks, so that the last samples and rows are repeated. */
    JSAMPIMAGE next(int planes, const DrawPlaneRows &draw)
    {
        for (int i = 0; i < planes; ++i) {
            Band &band = m_bands[size_t(i)];
            const int height = int(band.rows.size());
            const int count = std::min(height, band.size.height() - band.first);
            for (int y = 0; y < height; ++y)
                band.rows[size_t(y)] = band.samples.data() + band.rowBytes * size_t(std::min(y, count - 1));
            draw(i, band.first, count, band.rows.data());
            for (int y = 0; y < count; ++y)
                std::fill(band.rows[size_t(y)] + band.size.width(), band.rows[size_t(y)] + band.rowBytes,
                          band.rows[size_t(y)][band.size.width() - 1]);
            band.first += height;
            m_planes[size_t(i)] = band.rows.data();
        }
        return m_planes.data();
    }

private:
    struct Band
    {
        QSize size;
        size_t rowBytes = 0;
        int first = 0;
        std::vector<JSAMPLE> samples;
        std::vector<JSAMPROW> rows;
    };

    std::array<Band, MAX_COMPONENTS> m_bands;
    std::array<JSAMPARRAY, MAX_COMPONENTS> m_planes = {};
};

void writeBands(jpeg_compress_struct &info, DrawnBands &bands, const DrawPlaneRows &draw)
{
    bands.makeRoom(info);
    while (info.next_scanline < info.image_height)
        jpeg_write_raw_data(&info, bands.next(info.num_components, draw), JDIMENSION(info.max_v_samp_factor) * DCTSIZE);
}

tl::unexpected<Error> notMade(const JpegErrorManager &errors)
{
    return failure(ErrorCode::WriteFailed, QCoreApplication::translate("platform", "The JPEG could not be created: %1")
                                               .arg(QString::fromLatin1(errors.message)));
}

/** What is given to the encoder: rows of pixels, or planes as they are stored. */
enum class Input { Pixels, Planes };

/** Gives the encoder all that it wants; false if there is no more. */
using WriteAll = std::function<bool(jpeg_compress_struct &)>;

Result<QByteArray> encoded(QSize size, int components, Input input, const WriteAll &write, const QByteArray &profile,
                           const JpegSettings &settings)
{
    Encoder encoder;
    encoder.info.err = prepare(encoder.errors);
    if (setjmp(encoder.errors.jump))
        return notMade(encoder.errors);
    jpeg_create_compress(&encoder.info);
    jpeg_mem_dest(&encoder.info, &encoder.bytes, &encoder.size);
    configure(encoder.info, size, components, settings);
    encoder.info.raw_data_in = boolean(input == Input::Planes);
    jpeg_start_compress(&encoder.info, TRUE);
    writeProfile(encoder.info, profile);
    if (!write(encoder.info))
        return notMade(encoder.errors);
    jpeg_finish_compress(&encoder.info);
    return QByteArray(reinterpret_cast<const char *>(encoder.bytes), qsizetype(encoder.size));
}

} // namespace

Result<QByteArray> encodeJpeg(const vips::VImage &image, const JpegSettings &settings)
{
    const auto *data = static_cast<const JSAMPLE *>(image.data());
    const size_t rowBytes = VIPS_IMAGE_SIZEOF_LINE(image.get_image());
    const auto next = [&data, rowBytes](uchar *row) {
        std::copy_n(data, rowBytes, row);
        data += rowBytes;
        return true;
    };
    return encodeJpegPixels({image.width(), image.height()}, image.bands(), next, iccProfileOf(image), settings);
}

Result<QByteArray> encodeJpegPixels(QSize size, int bands, const NextPixelRow &next, const QByteArray &profile,
                                    const JpegSettings &settings)
{
    std::vector<JSAMPLE> row(size_t(size.width()) * size_t(bands));
    const auto write = [&](jpeg_compress_struct &info) { return writeRows(info, next, row); };
    return encoded(size, bands, Input::Pixels, write, profile, settings);
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
    std::vector<std::vector<JSAMPROW>> rows(planes.size());
    std::for_each(planes.begin(), planes.end(), fillBlocks);
    const auto write = [&](jpeg_compress_struct &info) {
        writePlanes(info, planes, rows);
        return true;
    };
    return encoded(planes.front().size(), int(planes.size()), Input::Planes, write, profile, settings);
}

Result<QByteArray> encodeJpegRows(QSize size, int components, const DrawPlaneRows &draw, const QByteArray &profile,
                                  const JpegSettings &settings)
{
    DrawnBands bands;
    const auto write = [&](jpeg_compress_struct &info) {
        writeBands(info, bands, draw);
        return true;
    };
    return encoded(size, components, Input::Planes, write, profile, settings);
}

} // namespace platform
