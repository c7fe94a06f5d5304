#include "platform/graphics/pixels.h"

#include "platform/foundation/memory_left.h"
#include "platform/graphics/icc_profile.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace platform {
namespace {

using vips::VImage;

bool s_isVipsStarted = false;
int s_threads = 0; ///< that the library may use; 0 for as many as it likes

std::function<void(Loading)> &loadingWatch()
{
    static std::function<void(Loading)> call;
    return call;
}

void tellLoading(Loading loading)
{
    if (loadingWatch())
        loadingWatch()(loading);
}

void ignoreMessage(const gchar *, GLogLevelFlags, const gchar *, gpointer) {}

/** Metadata that determines the meaning of pixels; everything else is dropped from bitmaps. */
constexpr const char *profileField = VIPS_META_ICC_NAME;

ColorModel modelOf(const VImage &image)
{
    switch (image.interpretation()) {
    case VIPS_INTERPRETATION_B_W:
    case VIPS_INTERPRETATION_GREY16:
        return ColorModel::Gray;
    case VIPS_INTERPRETATION_CMYK:
        return ColorModel::Cmyk;
    case VIPS_INTERPRETATION_LAB:
        return ColorModel::Lab;
    default:
        return ColorModel::Rgb;
    }
}

/**
 * A remark about an odd file whose pixels are complete: the JPEG reader reports bytes between segments, and headers and
 * profiles that are not quite correct; the TIFF reader reports tags that it ignores, such as a camera's (it fails by
 * itself if pixels depend on one).
 */
bool isRemark(const QByteArray &line)
{
    static const QList<QByteArray> aboutJpegs = {"extraneous bytes before marker",    "Invalid SOS parameters",
                                                 "Inconsistent progression sequence", "Unknown Adobe color transform",
                                                 "unsupported JFIF revision",         "bad ICC marker"};
    return line.startsWith("_TIFFVSetField:") ||
           (line.startsWith("VipsJpeg:") &&
            std::any_of(aboutJpegs.begin(), aboutJpegs.end(),
                        [&line](const QByteArray &part) { return line.contains(part); }));
}

/** True where one of the lines is more than a remark. */
bool tellsOfDamage(const char *texts)
{
    const QList<QByteArray> lines = QByteArray(texts).split('\n');
    return std::any_of(lines.begin(), lines.end(),
                       [](const QByteArray &line) { return !line.trimmed().isEmpty() && !isRemark(line); });
}

void dropMetadata(VImage &image)
{
    const bool keepProfile = profileFits(iccProfileOf(image), modelOf(image));
    gchar **fields = vips_image_get_fields(image.get_image());
    for (gchar **field = fields; field && *field; ++field) {
        if ((keepProfile && std::strcmp(*field, profileField) == 0) || isFormField(*field))
            continue;
        vips_image_remove(image.get_image(), *field);
    }
    g_strfreev(fields);
}

/** Before they are loaded, since this process ends if they cannot be. Throws vips::VError. */
void demandMemoryForLibraries()
{
#ifdef QUORLIN_ON_DEMAND
    constexpr qint64 bytes = 32LL << 20;
    constexpr qint64 addresses = 128LL << 20; // measured: 101 MB with the libraries for metadata
    const auto left = memoryIsLeftFor(bytes, QCoreApplication::translate("platform", "Reading the picture"), addresses);
    if (!left)
        throw vips::VError(left.error().message.toStdString());
#endif
}

} // namespace

void initVips()
{
    static const bool ready = [] {
        demandMemoryForLibraries();
        tellLoading(Loading::Begins);
        // Libraries below report odd files on standard error, which is reserved for the log lines of this program.
        g_log_set_handler("VIPS", GLogLevelFlags(G_LOG_LEVEL_WARNING | G_LOG_LEVEL_INFO | G_LOG_LEVEL_MESSAGE),
                          ignoreMessage, nullptr);
        prepareHeapForPictures();
        const bool isLoaded = VIPS_INIT("quorlin") == 0;
        tellLoading(Loading::Ended);
        if (!isLoaded)
            return false;
        if (s_threads > 0)
            vips_concurrency_set(s_threads);
        // A file that was replaced must not be answered from the cache.
        vips_cache_set_max(0);
        s_isVipsStarted = true;
        return true;
    }();
    if (!ready)
        throw vips::VError("libvips could not be started");
}

void watchVipsLoading(std::function<void(Loading)> call)
{
    loadingWatch() = std::move(call);
}

void limitVipsThreads(int threads)
{
    s_threads = threads;
    if (s_isVipsStarted)
        vips_concurrency_set(threads);
}

QString takeVipsError(const vips::VError &error)
{
    const QString text = QString::fromUtf8(error.what()).trimmed();
    if (s_isVipsStarted) // others throw this error too
        vips_error_clear();
    return text.section(u'\n', 0, 0);
}

VImage inMemory(const VImage &image)
{
    vips_error_clear();
    const VipsImageType kind = image.get_image()->dtype;
    const bool isComputed = kind == VIPS_IMAGE_SETBUF || kind == VIPS_IMAGE_SETBUF_FOREIGN;
    const auto left = isComputed ? Result<void>()
                                 : memoryIsLeftFor(qint64(VIPS_IMAGE_SIZEOF_IMAGE(image.get_image())),
                                                   QCoreApplication::translate("platform", "The picture"));
    if (!left)
        throw vips::VError(left.error().message.toStdString());
    const VImage computed = image.copy_memory();
    if (tellsOfDamage(vips_error_buffer()))
        throw vips::VError(vips_error_buffer());
    vips_error_clear();
    return computed;
}

double dotsPerInch(double dotsPerMetre)
{
    constexpr double metresPerInch = 0.0254;
    const double exact = dotsPerMetre * metresPerInch;
    const double whole = std::round(exact);
    return std::round(whole / metresPerInch) == dotsPerMetre ? whole : exact;
}

bool profileFits(const QByteArray &profile, ColorModel colours)
{
    constexpr qsizetype headerLength = 128;
    if (profile.size() < headerLength)
        return false;
    const QByteArray space = profile.mid(16, 4);
    switch (colours) {
    case ColorModel::Gray:
        return space == "GRAY";
    case ColorModel::Cmyk:
        return space == "CMYK";
    case ColorModel::Lab:
        return space == "Lab ";
    default:
        return space == "RGB ";
    }
}

QByteArray iccProfileOf(const VImage &image)
{
    if (image.get_typeof(profileField) == 0)
        return {};
    size_t length = 0;
    const void *profile = image.get_blob(profileField, &length);
    return {static_cast<const char *>(profile), qsizetype(length)};
}

int bytesPerComponent(const VImage &image)
{
    return int(vips_format_sizeof(image.format()));
}

VImage bareImage(const VImage &image)
{
    VImage bare = inForm(image, Forms::AsTiffHolds).copy();
    dropMetadata(bare);
    return bare;
}

Bitmap bitmapFromImage(const VImage &image, Resolution resolution, std::optional<JpegQuantisation> quantisation)
{
    const VImage decoded = inMemory(bareImage(image));
    return Bitmap(std::make_shared<Bitmap::Pixels>(decoded, resolution, quantisation));
}

VImage turnedUpright(const VImage &image, int orientation)
{
    switch (orientation) {
    case 2:
        return image.fliphor();
    case 3:
        return image.rot180();
    case 4:
        return image.flipver();
    case 5:
        return image.rot90().fliphor();
    case 6:
        return image.rot90();
    case 7:
        return image.rot270().fliphor();
    case 8:
        return image.rot270();
    default:
        return image;
    }
}

/** The library's own enlargement shifts the result by half a source pixel to the right and down. */
static VImage enlarged(const VImage &image, double horizontal, double vertical)
{
    const auto between = [](double scale) { return (scale - 1) / 2; }; // the centres of the first pixels
    const std::vector<int> area = {0, 0, int(std::lround(image.width() * horizontal)),
                                   int(std::lround(image.height() * vertical))};
    return image.affine({horizontal, 0, 0, vertical},
                        VImage::option()
                            ->set("oarea", area)
                            ->set("odx", between(horizontal))
                            ->set("ody", between(vertical))
                            ->set("extend", VIPS_EXTEND_COPY)
                            ->set("interpolate", vips::VInterpolate::new_from_name("bicubic")));
}

/** What is left for the full filter after averaging blocks: at least this many times the size. */
constexpr double leftByBlocks = 2;

/** Blocks are used only for reductions so strong that the full filter would be too slow. */
static bool isPureShrink(double horizontal, double vertical)
{
    constexpr double strongestPureShrink = 8;
    return std::min(horizontal, vertical) >= 1.0 / strongestPureShrink;
}

QSize blocksOf(QSize from, QSize to)
{
    if (isPureShrink(double(to.width()) / from.width(), double(to.height()) / from.height()))
        return {1, 1};
    const auto along = [](int had, int wanted) { return std::max(1, int(double(had) / wanted / leftByBlocks)); };
    return {along(from.width(), to.width()), along(from.height(), to.height())};
}

static VImage resized(const VImage &image, double horizontal, double vertical)
{
    const bool isPure = isPureShrink(horizontal, vertical);
    const VImage fewer = horizontal >= 1 && vertical >= 1
                             ? image
                             : image.resize(std::min(horizontal, 1.0), VImage::option()
                                                                           ->set("vscale", std::min(vertical, 1.0))
                                                                           ->set("kernel", VIPS_KERNEL_LANCZOS3)
                                                                           ->set("gap", isPure ? 0.0 : leftByBlocks));
    return horizontal > 1 || vertical > 1 ? enlarged(fewer, std::max(horizontal, 1.0), std::max(vertical, 1.0)) : fewer;
}

/** Invisible pixels contribute no colour to visible ones. */
static VImage resizedByTransparency(const VImage &image, double horizontal, double vertical)
{
    const double opaque = opaqueValue(image);
    const VImage source = image.premultiply(VImage::option()->set("max_alpha", opaque));
    const VImage scaled =
        resized(source, horizontal, vertical).unpremultiply(VImage::option()->set("max_alpha", opaque));
    return image.format() == VIPS_FORMAT_FLOAT ? scaled : scaled.rint().cast(image.format());
}

VImage scaledTo(const VImage &image, QSize size)
{
    if (image.width() == size.width() && image.height() == size.height())
        return image;
    const double horizontal = double(size.width()) / image.width();
    const double vertical = double(size.height()) / image.height();
    const int others = otherBands(image);
    const int seen = image.bands() - others;
    const VImage picture = others == 0 ? image : image.extract_band(0, VImage::option()->set("n", seen));
    VImage scaled = hasTransparency(image) ? resizedByTransparency(picture, horizontal, vertical)
                                           : resized(picture, horizontal, vertical);
    if (others > 0)
        scaled = scaled.bandjoin(
            resized(image.extract_band(seen, VImage::option()->set("n", others)), horizontal, vertical));
    if (scaled.width() != size.width() || scaled.height() != size.height())
        throw vips::VError("the picture could not be scaled to its exact size");
    return scaled.copy(VImage::option()->set("interpretation", image.interpretation()));
}

static bool isIntegerRgb(const VImage &image)
{
    const VipsInterpretation space = image.interpretation();
    return (space == VIPS_INTERPRETATION_sRGB && image.format() == VIPS_FORMAT_UCHAR) ||
           (space == VIPS_INTERPRETATION_RGB16 && image.format() == VIPS_FORMAT_USHORT);
}

VImage convertedToSrgb(const VImage &image)
{
    const bool is16 = image.format() == VIPS_FORMAT_USHORT;
    const bool hasProfile = image.get_typeof(profileField) != 0;
    const bool isCmyk = image.interpretation() == VIPS_INTERPRETATION_CMYK;
    if (hasProfile && isIntegerRgb(image) && isSrgb(iccProfileOf(image))) {
        VImage same = image.copy();
        same.remove(profileField);
        return same;
    }
    if (hasProfile || isCmyk) {
        auto *options = VImage::option()
                            ->set("embedded", hasProfile)
                            ->set("intent", VIPS_INTENT_RELATIVE)
                            ->set("depth", is16 ? 16 : 8);
        if (!hasProfile)
            options->set("input_profile", "cmyk");
        VImage converted = image.icc_transform("srgb", options).copy();
        converted.remove(profileField);
        return converted;
    }
    return image;
}

VImage with8Bits(const VImage &image)
{
    return image.format() == VIPS_FORMAT_USHORT ? roundedTo8Bits(image) : image;
}

VImage imageFromQImage(const QImage &image)
{
    initVips();
    const bool is16 = image.depth() > 32 || image.format() == QImage::Format_Grayscale16;
    const bool isGrey = image.isGrayscale() && !image.hasAlphaChannel();
    QImage::Format format = QImage::Format_RGB888;
    int bands = 3;
    if (isGrey) {
        format = is16 ? QImage::Format_Grayscale16 : QImage::Format_Grayscale8;
        bands = 1;
    } else if (is16) {
        format = QImage::Format_RGBA64;
        bands = 4;
    } else if (image.hasAlphaChannel()) {
        format = QImage::Format_RGBA8888;
        bands = 4;
    }
    const QImage rows = image.convertToFormat(format);
    const size_t rowBytes = size_t(rows.width()) * size_t(bands) * (is16 ? 2U : 1U);
    QByteArray packed(qsizetype(rowBytes) * rows.height(), Qt::Uninitialized);
    for (int y = 0; y < rows.height(); ++y)
        std::memcpy(packed.data() + qsizetype(rowBytes) * y, rows.constScanLine(y), rowBytes);
    const VImage wrapped = VImage::new_from_memory(packed.data(), size_t(packed.size()), rows.width(), rows.height(),
                                                   bands, is16 ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR);
    const VipsInterpretation grey = is16 ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    const VipsInterpretation rgb = is16 ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
    VImage owned = VImage::new_memory();
    VImage typed = wrapped.copy(VImage::option()->set("interpretation", isGrey ? grey : rgb));
    if (is16 && !isGrey && !image.hasAlphaChannel())
        typed = typed.extract_band(0, VImage::option()->set("n", 3));
    typed.write(owned);
    return owned;
}

QImage qImageFrom(const VImage &image)
{
    const bool is16 = image.format() == VIPS_FORMAT_USHORT;
    constexpr int mostBands = 4;
    if (image.bands() > mostBands)
        throw vips::VError("the picture has more channels than can be shown");
    VImage layered = image;
    if (image.bands() == 2)
        layered = image.extract_band(0)
                      .bandjoin(image.extract_band(0))
                      .bandjoin(image.extract_band(0))
                      .bandjoin(image.extract_band(1));
    else if (is16 && image.bands() == 3)
        layered = image.bandjoin_const({65535});
    QImage::Format format = QImage::Format_Grayscale8;
    if (layered.bands() == 1)
        format = is16 ? QImage::Format_Grayscale16 : QImage::Format_Grayscale8;
    else if (is16)
        format = QImage::Format_RGBA64;
    else
        format = layered.bands() == 3 ? QImage::Format_RGB888 : QImage::Format_RGBA8888;
    QImage result(layered.width(), layered.height(), format);
    if (result.isNull())
        return result;
    const VImage memory = layered.copy_memory();
    const auto *data = static_cast<const uchar *>(memory.data());
    const size_t rowBytes = VIPS_IMAGE_SIZEOF_LINE(memory.get_image());
    for (int y = 0; y < result.height(); ++y)
        std::memcpy(result.scanLine(y), data + rowBytes * size_t(y), rowBytes);
    return result;
}

QByteArray takenFrom(VipsBlob *blob)
{
    size_t length = 0;
    const void *data = vips_blob_get(blob, &length);
    QByteArray bytes(static_cast<const char *>(data), qsizetype(length));
    vips_area_unref(VIPS_AREA(blob));
    return bytes;
}

} // namespace platform
