#include "image/types/output_types.h"

#include "platform/imageio/formats/formats.h"

#include <algorithm>
#include <array>

namespace image {
namespace {

constexpr QLatin1String latin1(const char *text)
{
    return QLatin1String(text);
}

constexpr std::array<WrittenType, 10> types = {{
    {.type = OutputType::Jpeg,
     .identifier = latin1("public.jpeg"),
     .keyword = latin1("jpeg"),
     .word = latin1("JPEG"),
     .hasQuality = true},
    {.type = OutputType::Png,
     .identifier = latin1("public.png"),
     .keyword = latin1("png"),
     .word = latin1("PNG"),
     .carriesMetadata = true},
    {.type = OutputType::Tiff,
     .identifier = latin1("public.tiff"),
     .keyword = latin1("tiff"),
     .word = latin1("TIFF"),
     .carriesMetadata = true},
    {.type = OutputType::Webp,
     .identifier = latin1("org.webmproject.webp"),
     .keyword = latin1("webp"),
     .word = latin1("WebP"),
     .isOfRecipes = true,
     .hasQuality = true,
     .canBeLossless = true},
    {.type = OutputType::Avif,
     .identifier = latin1("public.avif"),
     .keyword = latin1("avif"),
     .word = latin1("AVIF"),
     .isOfRecipes = true,
     .hasQuality = true},
    {.type = OutputType::JpegXl,
     .identifier = latin1("public.jpeg-xl"),
     .keyword = latin1("jxl"),
     .word = latin1("JPEG XL"),
     .isOfRecipes = true,
     .hasQuality = true,
     .canBeLossless = true},
    {.type = OutputType::Jpeg2000,
     .identifier = latin1("public.jp2"),
     .keyword = latin1("jp2"),
     .word = latin1("JPEG 2000"),
     .hasQuality = true,
     .canBeLossless = true},
    {.type = OutputType::Gif,
     .identifier = latin1("com.compuserve.gif"),
     .keyword = latin1("gif"),
     .word = latin1("GIF")},
    {.type = OutputType::Bmp, .identifier = latin1("public.bmp"), .keyword = latin1("bmp"), .word = latin1("BMP")},
    {.type = OutputType::Pdf,
     .identifier = latin1("com.adobe.pdf"),
     .keyword = latin1("pdf"),
     .word = latin1("PDF"),
     .isPage = true},
}};

constexpr int highestCode = 10;
constexpr int highestConversionCode = 9;

/** Tenths; every code except the highest is one digit, and any other text means the highest. */
double qualityOf(const QString &code, int highest)
{
    constexpr double steps = 10;
    const bool isBelow = code.size() == 1 && code[0] >= u'1' && code[0] < QChar(u'0' + highest);
    return (isBelow ? code[0].unicode() - u'0' : highest) / steps;
}

} // namespace

std::span<const WrittenType> writtenTypes()
{
    return types;
}

const WrittenType &writtenType(OutputType type)
{
    return *std::find_if(types.begin(), types.end(), [type](const WrittenType &each) { return each.type == type; });
}

std::optional<platform::FileFormat> formatFor(OutputType type)
{
    return platform::writableFormatForType(writtenType(type).identifier);
}

QString extensionOf(OutputType type)
{
    const QString extensions = platform::formatNamed(writtenType(type).identifier)->extensions;
    return u'.' + extensions.section(u' ', 0, 0);
}

std::optional<OutputType> targetTypeFor(const QString &keyword)
{
    const auto found = std::find_if(types.begin(), types.end(), [&](const WrittenType &each) {
        return !each.isOfRecipes && each.keyword == keyword;
    });
    return found == types.end() ? std::nullopt : std::optional(found->type);
}

QStringList qualityCodes()
{
    QStringList codes;
    for (int code = 1; code <= highestCode; ++code)
        codes.append(QString::number(code));
    return codes;
}

double qualityForCode(const QString &code)
{
    return qualityOf(code, highestCode);
}

double conversionQuality(const QString &code)
{
    return qualityOf(code, highestConversionCode);
}

} // namespace image
