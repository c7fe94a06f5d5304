#include "image/recipe/output_kind.h"
#include "image/recipe/sentence.h"

#include "platform/imageio/convert/other_metadata.h"
#include "platform/imageio/edits/changed_metadata.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/formats/encoding_memory.h"
#include "platform/imageio/formats/formats.h"

#include <cmath>
#include <functional>

namespace image {
namespace {

using platform::FileFormat;

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

/** What becomes of transparent parts; a colour that everybody has a word for is named by it. */
QString becomingOpaque(const QString &type, const QColor &matte)
{
    struct Named
    {
        QRgb color;
        const char *sentence;
    };
    static constexpr Named all[] = {
        {0xffffffff, QT_TRANSLATE_NOOP("recipe", "%1 has no transparency: transparent parts become white")},
        {0xff000000, QT_TRANSLATE_NOOP("recipe", "%1 has no transparency: transparent parts become black")},
        {0xff808080, QT_TRANSLATE_NOOP("recipe", "%1 has no transparency: transparent parts become grey")},
        {0xffff0000, QT_TRANSLATE_NOOP("recipe", "%1 has no transparency: transparent parts become red")},
        {0xff008000, QT_TRANSLATE_NOOP("recipe", "%1 has no transparency: transparent parts become green")},
        {0xff0000ff, QT_TRANSLATE_NOOP("recipe", "%1 has no transparency: transparent parts become blue")},
        {0xffffff00, QT_TRANSLATE_NOOP("recipe", "%1 has no transparency: transparent parts become yellow")}};
    for (const Named &each : all)
        if (each.color == matte.rgba())
            return sentence(each.sentence).arg(type);
    return sentence(QT_TRANSLATE_NOOP("recipe", "%1 has no transparency: transparent parts become %2"))
        .arg(type, matte.name());
}

QStringList lossesOfPixels(const OutputPlan &plan, const RecipeOutput &output, const Stage &end)
{
    const QString name = writtenType(plan.type).word;
    QStringList losses;
    if (end.hasAlpha && !holdsAlpha(plan.type))
        losses.append(becomingOpaque(name, output.matte));
    if (end.bits > 8 && !holdsDepth16(plan.type))
        losses.append(
            sentence(QT_TRANSLATE_NOOP("recipe", "%1 has 8 bits per channel, the picture has more")).arg(name));
    if (!end.profile.isEmpty() && !holdsProfileOf(plan.type, end.profile))
        losses.append(
            sentence(QT_TRANSLATE_NOOP("recipe", "%1 cannot hold the colour profile: colours become sRGB")).arg(name));
    if (plan.type == OutputType::Gif)
        losses.append(sentence(QT_TRANSLATE_NOOP("recipe", "%1 has at most 256 colours")).arg(name));
    return losses;
}

} // namespace

std::optional<OutputType> ownTypeOf(const platform::ImageSource &source)
{
    const QString identifier = source.typeIdentifier();
    for (const WrittenType &each : writtenTypes())
        if (!each.isPage && identifier == each.identifier)
            return each.type;
    return std::nullopt;
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
    case OutputType::Jpeg2000: // a separate box may state its resolution
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

bool rewritesMetadata(const RecipeOutput &output, const platform::ImageSource &source, OutputType type)
{
    return changesMetadata(output) || (platform::hasChangedMetadata(source) && canRewriteMetadata(type, {}));
}

/** Parts of the file that apply to it alone. */
QStringList lossesOfParts(const platform::ImageSource &source)
{
    using platform::PartBeside;
    const platform::PartsBeside parts = platform::partsBesideOf(source);
    QStringList losses;
    const auto add = [&](PartBeside part, const char *english) {
        if (parts.testFlag(part))
            losses.append(sentence(english));
    };
    add(PartBeside::FurtherPictures, QT_TRANSLATE_NOOP("recipe", "Only the first picture is kept"));
    add(PartBeside::GainMap, QT_TRANSLATE_NOOP("recipe", "The gain map is left out"));
    add(PartBeside::Motion, QT_TRANSLATE_NOOP("recipe", "The motion picture is left out"));
    add(PartBeside::Credentials,
        QT_TRANSLATE_NOOP("recipe", "Signed content credentials are left out, since they do not match a changed file"));
    add(PartBeside::OfMakers,
        QT_TRANSLATE_NOOP("recipe", "Data that the camera maker or a program keeps outside EXIF is left out"));
    add(PartBeside::ExtendedXmp, QT_TRANSLATE_NOOP("recipe", "XMP beyond the first 64 KB is left out"));
    if (losses.isEmpty())
        add(PartBeside::BehindTheEnd, QT_TRANSLATE_NOOP("recipe", "Data after the end of the picture is left out"));
    return losses;
}

/** What is to be kept but cannot be stored in the type. */
QStringList lossesOfMetadata(const OutputPlan &plan, const RecipeOutput &output, const platform::ImageSource &source)
{
    const bool isHeldInPart = plan.type == OutputType::Gif || plan.type == OutputType::Pdf;
    if (output.metadata == KeptMetadata::None || ownTypeOf(source) == plan.type ||
        (plan.type != OutputType::Bmp && !isHeldInPart))
        return {};
    const auto metadata = source.metadata();
    if (!metadata || metadata->isEmpty())
        return {};
    const QString name = writtenType(plan.type).word;
    return {isHeldInPart
                ? sentence(QT_TRANSLATE_NOOP("recipe", "%1 holds metadata as XMP only, without maker notes")).arg(name)
                : sentence(QT_TRANSLATE_NOOP("recipe", "%1 cannot hold metadata")).arg(name)};
}

namespace {

double megapixelsOf(QSize size)
{
    constexpr double million = 1e6;
    return double(size.width()) * size.height() / million;
}

/** The largest picture of this width for which @p fits holds, as it does for every smaller one. */
QSize largestThat(const std::function<bool(QSize)> &fits, QSize size)
{
    int below = 1;
    int above = size.height();
    while (above - below > 1) {
        const int middle = below + (above - below) / 2;
        (fits({size.width(), middle}) ? below : above) = middle;
    }
    return {size.width(), below};
}

} // namespace

QString refusalFor(const OutputPlan &plan, const RecipeOutput &output, const Stage &end)
{
    constexpr qint64 most = 3LL << 29; // leaves a worker room for the pixels within its limit
    if (plan.isLossless)
        return {};
    const std::optional<FileFormat> format = formatFor(plan.type);
    if (const auto fitting = format ? platform::sidesFit(plan.size, *format) : platform::Result<void>(); !fitting)
        return fitting.error().message;
    if (plan.type != OutputType::JpegXl)
        return {};
    const int bands = (end.isGray ? 1 : 3) + (end.hasAlpha ? 1 : 0);
    const auto fits = [&](QSize size) {
        return platform::memoryOfEncoding(FileFormat::JpegXl, size, bands, end.bits > 8 ? 2 : 1, output.isLossless) <=
               most;
    };
    if (fits(plan.size))
        return {};
    return sentence(
               QT_TRANSLATE_NOOP(
                   "recipe",
                   "%1 with %2 megapixels needs more than 1.5 GB of memory; use at most %3, or choose another type"))
        .arg(writtenType(plan.type).word, QString::number(megapixelsOf(plan.size), 'f', 0),
             QString::number(std::floor(megapixelsOf(largestThat(fits, plan.size))), 'f', 0));
}

QStringList lossesOf(const OutputPlan &plan, const RecipeOutput &output, const Stage &end,
                     const platform::ImageSource &source)
{
    QStringList losses = lossesOfMetadata(plan, output, source);
    if (plan.isLossless && platform::hasChangedMetadata(source) && !rewritesMetadata(output, source, plan.type))
        losses.append(sentence(
            QT_TRANSLATE_NOOP("recipe", "Metadata of its sidecar file is left out, since the file is copied")));
    if (!plan.isLossless || rewritesMetadata(output, source, plan.type))
        losses += lossesOfParts(source);
    if (!plan.isLossless) {
        losses += lossesOfPixels(plan, output, end);
        if (plan.leftOut > 0)
            losses.append(sentence(QT_TRANSLATE_NOOP("recipe", "Other pictures in the file that are left out: %1"))
                              .arg(plan.leftOut));
    }
    return losses;
}

} // namespace image
