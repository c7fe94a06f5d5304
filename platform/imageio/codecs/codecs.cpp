#include "platform/imageio/codecs/codecs.h"

#include "platform/imageio/bmp/bmp_header.h"
#include "platform/imageio/formats/formats.h"
#include "platform/imageio/jpeg2000/jp2_profile.h"
#include "platform/imageio/jpeg2000/jpeg2000_reader.h"
#include "platform/imageio/whole/whole_containers.h"
#include "platform/imageio/whole/whole_files.h"
#include "platform/imageio/whole/whole_tiff.h"

#include <algorithm>
#include <array>

namespace platform {
namespace {

using vips::VImage;
using Encoded = Result<QByteArray>;

Encoded jpegOf(const VImage &image, const CodecOptions &options)
{
    return encodeJpeg(image.copy_memory(), {options.jpegQuality, options.sourceTables, options.resolution});
}

Encoded jpeg2000Of(const VImage &image, const CodecOptions &options)
{
    const QByteArray encoded = encodeJpeg2000(image, options.compression);
    return options.profile.isEmpty() ? encoded : withJpeg2000Profile(encoded, options.profile);
}

Encoded webpOf(const VImage &image, const CodecOptions &options)
{
    return encodeWebp(image, options.compression.value_or(Compression()));
}

Encoded avifOf(const VImage &image, const CodecOptions &options)
{
    return encodeAvif(image, options.compression.value_or(Compression()).quality, options.blocks);
}

Encoded jpegXlOf(const VImage &image, const CodecOptions &options)
{
    return encodeJpegXl(image, options.compression.value_or(Compression()));
}

constexpr std::array<Codec, 13> codecs = {{
    {.content = Content::Jpeg, .load = loadJpeg, .isWhole = isWholeJpeg, .encode = jpegOf},
    {.content = Content::Png,
     .load = loadPng,
     .isWhole = isWholePng,
     .encode = [](const VImage &image, const CodecOptions &options) -> Encoded {
         return encodePng(image, options.resolution);
     }},
    {.content = Content::Tiff,
     .load = loadTiff,
     .isWhole = isWholeTiff,
     .encode = [](const VImage &image, const CodecOptions &options) -> Encoded {
         return encodeTiff(image, options.resolution);
     }},
    {.content = Content::Gif,
     .load = loadGif,
     .isWhole = isWholeGif,
     .encode = [](const VImage &image, const CodecOptions &) -> Encoded { return encodeGif(image); }},
    {.content = Content::Bmp,
     .load = loadBmp,
     .isWhole = isWholeBmp,
     .encode = [](const VImage &image, const CodecOptions &options) -> Encoded {
         return encodeBmp(image, options.resolution);
     },
     .claimedSize = [](QIODevice &file) { return readBmpHeader(file).size; }},
    {.content = Content::Webp, .load = loadWebp, .isWhole = isWholeWebp, .encode = webpOf},
    {.content = Content::Avif, .load = loadHeif, .isWhole = isWholeIsoMedia, .encode = avifOf},
    {.content = Content::Heif, .load = loadHeif, .isWhole = isWholeIsoMedia},
    {.content = Content::Jpeg2000,
     .load = [](const PictureBytes &source, const LoadOptions &) { return loadJpeg2000(source); },
     .isWhole = isWholeJpeg2000,
     .encode = jpeg2000Of},
    {.content = Content::JpegXl, .load = loadJpegXl, .encode = jpegXlOf}, // its decoder reports truncation
    {.content = Content::Photoshop,
     .load = loadPhotoshop,
     .isWhole = isWholePhotoshop,
     .claimedSize = claimedPhotoshopSize},
    {.content = Content::Pdf, .load = loadPdf},
    {.content = Content::Svg, .load = loadSvg},
}};

constexpr bool hasRowOf(Content content)
{
    return std::any_of(codecs.begin(), codecs.end(),
                       [content](const Codec &codec) { return codec.content == content; });
}

constexpr bool hasRowOfEachContent()
{
    for (int content = int(Content::Unknown) + 1; content <= int(lastContent); ++content)
        if (!hasRowOf(Content(content)))
            return false;
    return true;
}
static_assert(hasRowOfEachContent(), "what is recognised is opened");

} // namespace

const Codec *codecOf(Content content)
{
    const auto found =
        std::find_if(codecs.begin(), codecs.end(), [content](const Codec &codec) { return codec.content == content; });
    return found == codecs.end() ? nullptr : &*found;
}

VImage openImage(const PictureBytes &source, Content content, const LoadOptions &options)
{
    initVips();
    // What an earlier picture left in the library's only buffer would be reported as the reason for this one.
    vips_error_clear();
    const Codec *codec = codecOf(content);
    if (!codec)
        throw vips::VError("not a picture");
    return codec->load(source, options);
}

Result<QByteArray> encodedPixels(const VImage &image, FileFormat format, const CodecOptions &options)
{
    return codecOf(formatOf(format).content)->encode(image, options);
}

QSize claimedSize(const PictureBytes &source, Content content)
{
    const Codec *codec = codecOf(content);
    if (!codec || !codec->claimedSize)
        return {};
    const std::unique_ptr<QIODevice> device = source.device();
    return device ? codec->claimedSize(*device) : QSize();
}

} // namespace platform
