#include "image/recipe/output_kind.h"
#include "image/recipe/sentence.h"

#include "platform/imageio/convert/other_metadata.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/formats/formats.h"

#include <array>

namespace image {
namespace {

using platform::FileFormat;

struct Kind
{
    OutputType type;
    QLatin1String word;
    QLatin1String extension;
    QLatin1String name;
    std::optional<FileFormat> format; ///< none for a page
};

const std::array<Kind, 10> &kinds()
{
    const auto latin1 = [](const char *text) { return QLatin1String(text); };
    static const std::array<Kind, 10> all = {{
        {OutputType::Jpeg, latin1("jpeg"), latin1(".jpg"), latin1("JPEG"), FileFormat::Jpeg},
        {OutputType::Png, latin1("png"), latin1(".png"), latin1("PNG"), FileFormat::Png},
        {OutputType::Tiff, latin1("tiff"), latin1(".tiff"), latin1("TIFF"), FileFormat::Tiff},
        {OutputType::Bmp, latin1("bmp"), latin1(".bmp"), latin1("BMP"), FileFormat::Bmp},
        {OutputType::Gif, latin1("gif"), latin1(".gif"), latin1("GIF"), FileFormat::Gif},
        {OutputType::Jpeg2000, latin1("jp2"), latin1(".jp2"), latin1("JPEG 2000"), FileFormat::Jpeg2000},
        {OutputType::Pdf, latin1("pdf"), latin1(".pdf"), latin1("PDF"), std::nullopt},
        {OutputType::Webp, latin1("webp"), latin1(".webp"), latin1("WebP"), FileFormat::Webp},
        {OutputType::Avif, latin1("avif"), latin1(".avif"), latin1("AVIF"), FileFormat::Avif},
        {OutputType::JpegXl, latin1("jxl"), latin1(".jxl"), latin1("JPEG XL"), FileFormat::JpegXl},
    }};
    return all;
}

const Kind &kindOf(OutputType type)
{
    for (const Kind &kind : kinds())
        if (kind.type == type)
            return kind;
    return kinds().front();
}

bool holdsDepth16(OutputType type)
{
    const std::optional<FileFormat> format = formatFor(type);
    return !format || platform::formatOf(*format).keeps.depth16;
}

bool holdsProfileOf(OutputType type, const QByteArray &profile)
{
    const std::optional<FileFormat> format = formatFor(type);
    return !format || platform::holdsProfile(*format, profile);
}

QStringList lossesOfPixels(const OutputPlan &plan, const RecipeOutput &output, const Stage &end,
                           const platform::PixelFacts &facts)
{
    const QString name = kindOf(plan.type).name;
    QStringList losses;
    if (end.hasAlpha && !holdsAlpha(plan.type))
        losses.append(
            sentence("%1 has no transparency: transparent parts get the colour %2").arg(name, output.matte.name()));
    if (facts.bits > 8 && !holdsDepth16(plan.type))
        losses.append(sentence("%1 has 8 bits for each channel, the picture more").arg(name));
    if (!end.profile.isEmpty() && !holdsProfileOf(plan.type, end.profile))
        losses.append(sentence("%1 cannot hold the colour profile: colours become sRGB").arg(name));
    if (plan.type == OutputType::Gif)
        losses.append(sentence("%1 has at most 256 colours").arg(name));
    return losses;
}

} // namespace

QString extensionOf(OutputType type)
{
    return kindOf(type).extension;
}

QString wordOf(OutputType type)
{
    return kindOf(type).word;
}

std::optional<OutputType> ownTypeOf(const platform::ImageSource &source)
{
    const std::optional<FileFormat> format = platform::writableFormatForType(source.typeIdentifier());
    for (const Kind &kind : kinds())
        if (format && kind.format == format)
            return kind.type;
    return std::nullopt;
}

std::optional<FileFormat> formatFor(OutputType type)
{
    return kindOf(type).format;
}

bool holdsAlpha(OutputType type)
{
    const std::optional<FileFormat> format = formatFor(type);
    return !format || platform::formatOf(*format).keeps.alpha;
}

bool changesMetadata(const RecipeOutput &output)
{
    return output.metadata != KeptMetadata::Keep || !output.keepsLocation || output.dpi;
}

bool canRewriteMetadata(OutputType type, std::optional<double> dpi)
{
    switch (type) {
    case OutputType::Jpeg:
    case OutputType::Png:
    case OutputType::Webp:
    case OutputType::Gif:
    case OutputType::JpegXl:
        return true;
    case OutputType::Jpeg2000: // a box of its own may state its resolution
        return !dpi;
    case OutputType::Original:
    case OutputType::Tiff:
    case OutputType::Bmp:
    case OutputType::Pdf:
    case OutputType::Avif:
        break;
    }
    return false;
}

/** Parts of the file that are true of it alone. */
QStringList lossesOfParts(const platform::ImageSource &source)
{
    using platform::PartBeside;
    const platform::PartsBeside parts = platform::partsBesideOf(source);
    QStringList losses;
    const auto add = [&](PartBeside part, const char *english) {
        if (parts.testFlag(part))
            losses.append(sentence(english));
    };
    add(PartBeside::FurtherPictures, "Further pictures behind the first one are left out");
    add(PartBeside::GainMap, "The gain map is left out");
    add(PartBeside::Motion, "The motion picture is left out");
    add(PartBeside::Credentials, "Signed content credentials are left out, since no changed file agrees with them");
    if (losses.isEmpty())
        add(PartBeside::BehindTheEnd, "Data behind the end of the picture is left out");
    return losses;
}

/** What the type has no place for, of what is to be kept. */
QStringList lossesOfMetadata(const OutputPlan &plan, const RecipeOutput &output, const platform::ImageSource &source)
{
    const bool isHeldInPart = plan.type == OutputType::Gif || plan.type == OutputType::Pdf;
    if (output.metadata == KeptMetadata::None || ownTypeOf(source) == plan.type ||
        (plan.type != OutputType::Bmp && !isHeldInPart))
        return {};
    const auto metadata = source.metadata();
    if (!metadata || metadata->isEmpty())
        return {};
    const QString name = kindOf(plan.type).name;
    return {isHeldInPart ? sentence("%1 holds metadata as XMP alone, without maker notes").arg(name)
                         : sentence("%1 holds no metadata").arg(name)};
}

QStringList lossesOf(const OutputPlan &plan, const RecipeOutput &output, const Stage &end,
                     const platform::ImageSource &source)
{
    QStringList losses = lossesOfMetadata(plan, output, source);
    if (!plan.isLossless || changesMetadata(output))
        losses += lossesOfParts(source);
    if (!plan.isLossless) {
        losses += lossesOfPixels(plan, output, end, source.pixelFacts().value_or(platform::PixelFacts()));
        if (source.imageCount() > 1)
            losses.append(sentence("%1 further pictures of the file are left out").arg(source.imageCount() - 1));
    }
    return losses;
}

} // namespace image
