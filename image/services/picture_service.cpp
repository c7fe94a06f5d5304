#include "image/services/picture_service.h"

#include "image/overlay.h"
#include "image/types/output_types.h"
#include "image/unit_conversion.h"
#include "platform/foundation/memory_left.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/formats/formats.h"
#include "platform/imageio/formats/type_identifiers.h"
#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/picture.h"

namespace image {
namespace {

QString wordFor(platform::Kept kept)
{
    switch (kept) {
    case platform::Kept::No:
        return QStringLiteral("no");
    case platform::Kept::IfItFits:
        return QStringLiteral("ifItFits");
    case platform::Kept::Yes:
        return QStringLiteral("yes");
    }
    Q_UNREACHABLE();
}

QVariantList extensionsOf(const platform::Format &format)
{
    QVariantList extensions;
    for (const QString &extension : QString(format.extensions).split(u' '))
        extensions.append(extension);
    return extensions;
}

} // namespace

QString PictureService::layOnPattern(const QString &path, const QString &pattern, const QString &target) const
{
    const platform::Picture picture = platform::Picture::fromFile(path);
    if (picture.isNull())
        return tr("not a readable picture");
    const platform::Picture tile = platform::Picture::fromFile(pattern);
    if (tile.isNull())
        return tr("the pattern cannot be read");
    const auto format = platform::fileFormatForType(platform::typeIdentifierForPath(target));
    if (!format)
        return tr("this type cannot be written");
    const auto laid = image::laidOnPattern(picture.bitmap(), tile.bitmap());
    if (!laid)
        return laid.error().message;
    platform::EncodeOptions options;
    options.resolution = platform::WriteResolution::Yes;
    const auto written = platform::writeImageFile(target, *laid, *format, options);
    return written ? QString() : written.error().message;
}

QString PictureService::takeMemoryRefusal() const
{
    return platform::takeMemoryRefusal();
}

QVariantList PictureService::formats() const
{
    QVariantList rows;
    for (const platform::Format &format : platform::formats())
        rows.append(QVariantMap{{QStringLiteral("id"), QString(format.identifier)},
                                {QStringLiteral("extensions"), extensionsOf(format)},
                                {QStringLiteral("profile"), wordFor(format.keeps.profile)},
                                {QStringLiteral("alpha"), format.keeps.alpha},
                                {QStringLiteral("depth16"), format.keeps.depth16},
                                {QStringLiteral("resolution"), format.keeps.resolution},
                                {QStringLiteral("quality"), format.keeps.quality}});
    return rows;
}

QVariantList PictureService::outputTypes() const
{
    QVariantList rows;
    for (const WrittenType &type : writtenTypes())
        rows.append(QVariantMap{{QStringLiteral("id"), QString(type.identifier)},
                                {QStringLiteral("keyword"), QString(type.keyword)},
                                {QStringLiteral("word"), QString(type.word)},
                                {QStringLiteral("isPage"), type.isPage},
                                {QStringLiteral("isOfRecipes"), type.isOfRecipes},
                                {QStringLiteral("hasQuality"), type.hasQuality},
                                {QStringLiteral("carriesMetadata"), type.carriesMetadata}});
    return rows;
}

QStringList PictureService::qualityCodes() const
{
    return image::qualityCodes();
}

QVariantList PictureService::rawTypes() const
{
    QVariantList rows;
    for (const platform::RawType &type : platform::rawTypes())
        rows.append(QVariantMap{{QStringLiteral("extension"), QString(type.extension)},
                                {QStringLiteral("hasPreview"), type.hasPreview}});
    return rows;
}

double PictureService::resolution(const QString &path) const
{
    const auto source = platform::ImageSource::open(path);
    return source ? resolutionOf(source->uprightSize(), source->pointSize()) : 0;
}

int PictureService::inPixels(double length, const QString &unit, double dpi) const
{
    return image::inPixels(float(length), lengthUnit(unit), float(dpi));
}

bool PictureService::keepsProfile(const QString &path, const QString &typeIdentifier) const
{
    const auto source = platform::ImageSource::open(path);
    const auto format = platform::fileFormatForType(typeIdentifier);
    return source && format && platform::holdsProfile(*format, source->iccProfile());
}

} // namespace image
