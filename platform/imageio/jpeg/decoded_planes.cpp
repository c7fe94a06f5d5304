#include "platform/imageio/jpeg/decoded_planes.h"

#include "platform/imageio/jpeg/jpeg_error.h"

#include <array>
#include <cstdlib>
#include <type_traits>

#include <turbojpeg.h>

namespace platform {
namespace {

using Decompressor = std::unique_ptr<std::remove_pointer_t<tjhandle>, int (*)(tjhandle)>;

const uchar *bytesOf(const QByteArray &jpeg)
{
    return reinterpret_cast<const uchar *>(jpeg.constData());
}

void endAtWarning(j_common_ptr info, int level)
{
    if (level < 0)
        (*info->err->error_exit)(info);
}

/** Owns a decoder that reads a header, however that ends. */
struct HeaderReader
{
    jpeg_decompress_struct info = {};
    JpegErrorManager errors;
    JOCTET *profile = nullptr;
    unsigned profileBytes = 0;

    HeaderReader() = default;
    HeaderReader(const HeaderReader &) = delete;
    HeaderReader &operator=(const HeaderReader &) = delete;
    ~HeaderReader()
    {
        jpeg_destroy_decompress(&info);
        std::free(profile);
    }
};

bool isGreyOrDifferences(const jpeg_decompress_struct &info)
{
    return (info.num_components == 1 && info.jpeg_color_space == JCS_GRAYSCALE) ||
           (info.num_components == 3 && info.jpeg_color_space == JCS_YCbCr);
}

/** A profile for other colours than the picture has is ignored, as everywhere. */
bool fitsColours(const QByteArray &profile, int components)
{
    constexpr qsizetype headerLength = 128;
    return profile.size() >= headerLength && profile.mid(16, 4) == (components == 1 ? "GRAY" : "RGB ");
}

} // namespace

std::optional<PlaneFacts> planeFacts(const QByteArray &jpeg)
{
    constexpr unsigned wholeSegment = 0xffff;
    HeaderReader reader;
    jpeg_decompress_struct &info = reader.info;
    info.err = prepare(reader.errors);
    reader.errors.base.emit_message = endAtWarning;
    if (setjmp(reader.errors.jump))
        return std::nullopt;
    jpeg_create_decompress(&info);
    jpeg_mem_src(&info, bytesOf(jpeg), static_cast<unsigned long>(jpeg.size()));
    jpeg_save_markers(&info, JPEG_APP0 + 2, wholeSegment);
    jpeg_read_header(&info, TRUE);
    if (!isGreyOrDifferences(info) || info.data_precision != BITS_IN_JSAMPLE)
        return std::nullopt;
    PlaneFacts facts;
    facts.stored = QSize(int(info.image_width), int(info.image_height));
    facts.components = info.num_components;
    facts.comesInPasses = info.progressive_mode || jpeg_has_multiple_scans(&info);
    if (jpeg_read_icc_profile(&info, &reader.profile, &reader.profileBytes)) {
        const QByteArray profile(reinterpret_cast<const char *>(reader.profile), qsizetype(reader.profileBytes));
        if (fitsColours(profile, info.num_components))
            facts.profile = profile;
    }
    return facts;
}

std::optional<DecodedPlanes> decodedPlanes(const QByteArray &jpeg, int shrink)
{
    const Decompressor decompressor(tjInitDecompress(), tjDestroy);
    QSize stored;
    int sampling = -1;
    int colours = -1;
    if (!decompressor || tjDecompressHeader3(decompressor.get(), bytesOf(jpeg), static_cast<unsigned long>(jpeg.size()),
                                             &stored.rwidth(), &stored.rheight(), &sampling, &colours) != 0)
        return std::nullopt;
    if (sampling < 0 || sampling >= TJ_NUMSAMP || (colours != TJCS_YCbCr && colours != TJCS_GRAY))
        return std::nullopt;
    constexpr int block = 8;
    const QSize size((stored.width() + shrink - 1) / shrink, (stored.height() + shrink - 1) / shrink);
    DecodedPlanes decoded;
    const bool isGrey = sampling == TJSAMP_GRAY;
    decoded.sampling = isGrey ? QSize(1, 1) : QSize(tjMCUWidth[sampling] / block, tjMCUHeight[sampling] / block);
    std::array<uchar *, 3> rows = {};
    std::array<int, 3> strides = {};
    for (int i = 0; i < (isGrey ? 1 : 3); ++i) {
        decoded.planes.emplace_back(
            QSize(tjPlaneWidth(i, size.width(), sampling), tjPlaneHeight(i, size.height(), sampling)));
        rows[size_t(i)] = decoded.planes.back().row(0);
        strides[size_t(i)] = decoded.planes.back().rowBytes();
    }
    const int failed = tjDecompressToYUVPlanes(
        decompressor.get(), bytesOf(jpeg), static_cast<unsigned long>(jpeg.size()), rows.data(), size.width(),
        strides.data(), size.height(), TJFLAG_ACCURATEDCT | TJFLAG_STOPONWARNING | TJFLAG_LIMITSCANS);
    return failed == 0 ? std::optional(std::move(decoded)) : std::nullopt;
}

} // namespace platform
