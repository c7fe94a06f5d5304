#include "image/types/output_types.h"

#include <algorithm>
#include <array>

namespace image {
namespace {

constexpr QLatin1String latin1(const char *text)
{
    return QLatin1String(text);
}

constexpr std::array<WrittenType, 7> types = {{
    {.identifier = latin1("public.jpeg"),
     .keyword = latin1("jpeg"),
     .word = latin1("JPEG"),
     .target = TargetType::Jpeg},
    {.identifier = latin1("public.png"),
     .keyword = latin1("png"),
     .word = latin1("PNG"),
     .target = TargetType::Png,
     .carriesMetadata = true},
    {.identifier = latin1("public.tiff"),
     .keyword = latin1("tiff"),
     .word = latin1("TIFF"),
     .target = TargetType::Tiff,
     .carriesMetadata = true},
    {.identifier = latin1("public.bmp"), .keyword = latin1("bmp"), .word = latin1("BMP"), .target = TargetType::Bmp},
    {.identifier = latin1("com.compuserve.gif"),
     .keyword = latin1("gif"),
     .word = latin1("GIF"),
     .target = TargetType::Gif},
    {.identifier = latin1("public.jp2"),
     .keyword = latin1("jp2"),
     .word = latin1("JPEG 2000"),
     .target = TargetType::Jpeg2000},
    {.identifier = latin1("com.adobe.pdf"),
     .keyword = latin1("pdf"),
     .word = latin1("PDF"),
     .target = TargetType::Pdf,
     .isPage = true},
}};

constexpr int highestCode = 10;
constexpr int highestConversionCode = 9;

/** Tenths; a code below the highest is one digit, and any other text stands for the highest. */
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

std::optional<TargetType> targetTypeFor(const QString &keyword)
{
    const auto found =
        std::find_if(types.begin(), types.end(), [&](const WrittenType &type) { return type.keyword == keyword; });
    return found == types.end() ? std::nullopt : std::optional(found->target);
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
