#include "platform/imageio/codecs/codecs.h"
#include "platform/imageio/facts/container_properties.h"
#include "platform/imageio/facts/profile_name.h"
#include "platform/imageio/facts/resolution.h"
#include "platform/imageio/facts/sample_depth.h"
#include "platform/imageio/jpeg/jpeg_header.h"
#include "platform/imageio/source/opened_file.h"
#include "platform/imageio/tiff/jpeg_process.h"

namespace platform {
namespace {

QString colorModelName(const vips::VImage &image)
{
    switch (image.interpretation()) {
    case VIPS_INTERPRETATION_B_W:
    case VIPS_INTERPRETATION_GREY16:
        return QStringLiteral("Gray");
    case VIPS_INTERPRETATION_CMYK:
        return QStringLiteral("CMYK");
    case VIPS_INTERPRETATION_LAB:
    case VIPS_INTERPRETATION_LABS:
        return QStringLiteral("Lab");
    default:
        return QStringLiteral("RGB");
    }
}

/** What pixels without a profile are assumed to be. */
QString unprofiledName(const QString &model)
{
    if (model == QLatin1String("Gray"))
        return QStringLiteral("Gray Gamma 2.2");
    if (model == QLatin1String("CMYK"))
        return QStringLiteral("Generic CMYK");
    return model == QLatin1String("Lab") ? model : QStringLiteral("sRGB IEC61966-2.1");
}

void addPixelProperties(QVariantMap &properties, const vips::VImage &image)
{
    properties.insert(QStringLiteral("PixelWidth"), image.width());
    properties.insert(QStringLiteral("PixelHeight"), image.height());
    properties.insert(QStringLiteral("ColorModel"), colorModelName(image));
    properties.insert(QStringLiteral("HasAlpha"), hasTransparency(image));
    const QString name = profileName(iccProfileOf(image));
    if (!name.isEmpty())
        properties.insert(QStringLiteral("ProfileName"), name);
}

/** Those of a JPEG without surprises, for which the pixel library need not be loaded. */
std::optional<PixelFacts> factsOfJpeg(const ImageSource::File &file)
{
    const std::optional<JpegHeader> header = jpegHeaderOf(file.bytes, file.content, JpegProfile::Read);
    if (!header || !header->isPlain || !header->profile)
        return std::nullopt;
    PixelFacts facts;
    facts.model = header->componentCount == 1 ? ColorModel::Gray : ColorModel::Rgb;
    facts.iccProfile = *header->profile;
    return facts;
}

} // namespace

QSizeF ImageSource::pointSize() const
{
    constexpr double pointsPerInch = 72;
    Resolution resolution;
    try {
        if (m_file)
            resolution = uprightResolution(resolutionOf(m_file->bytes, m_file->content), m_file->orientation);
    } catch (const vips::VError &error) {
        takeVipsError(error); // the reader of the pixels is told
    }
    const auto inPoints = [](int pixels, double dpi) { return dpi > 0 ? pixels * pointsPerInch / dpi : pixels; };
    const QSize pixels = uprightSize();
    return {inPoints(pixels.width(), resolution.horizontal), inPoints(pixels.height(), resolution.vertical)};
}

QString ImageSource::colorSpaceName() const
{
    if (!m_file)
        return {};
    try {
        const vips::VImage image = openImage(m_file->bytes, m_file->content);
        const QString name = profileName(iccProfileOf(image));
        return name.isEmpty() ? unprofiledName(colorModelName(image)) : name;
    } catch (const vips::VError &error) {
        takeVipsError(error);
        return {};
    }
}

Result<PixelFacts> ImageSource::pixelFacts() const
{
    if (!m_file)
        return PixelFacts();
    try {
        if (const std::optional<PixelFacts> facts = factsOfJpeg(*m_file))
            return *facts;
        const vips::VImage image = inForm(openImage(m_file->bytes, m_file->content));
        constexpr int bitsPerByte = 8;
        PixelFacts facts;
        if (image.interpretation() == VIPS_INTERPRETATION_CMYK)
            facts.model = ColorModel::Cmyk;
        else if (image.bands() < 3)
            facts.model = ColorModel::Gray;
        facts.hasAlpha = hasTransparency(image);
        facts.bits = bytesPerComponent(image) * bitsPerByte;
        facts.iccProfile = iccProfileOf(image);
        facts.areUnknown = m_file->content == Content::Tiff && hasUnknownJpegProcess(*m_file->bytes.openedDevice());
        return facts;
    } catch (const vips::VError &error) {
        return unreadable(m_file->name(), takeVipsError(error));
    }
}

QByteArray ImageSource::iccProfile() const
{
    if (!m_file)
        return {};
    try {
        initVips();
        return iccProfileOf(openImage(m_file->bytes, m_file->content));
    } catch (const vips::VError &error) {
        takeVipsError(error);
        return {};
    }
}

Result<QVariantMap> ImageSource::properties() const
{
    if (!m_file)
        return QVariantMap();
    try {
        QVariantMap properties = m_file->metadata().toProperties();
        const std::unique_ptr<QIODevice> device = m_file->bytes.openedDevice();
        properties.insert(containerProperties(*device));
        demandRead(*device);
        const vips::VImage image = openImage(m_file->bytes, m_file->content);
        addPixelProperties(properties, image);
        properties.insert(QStringLiteral("Depth"), sampleDepth(m_file->bytes, m_file->content, image));
        const Resolution resolution = resolutionOf(m_file->bytes, m_file->content);
        if (resolution.horizontal > 0) {
            properties.insert(QStringLiteral("DPIWidth"), resolution.horizontal);
            properties.insert(QStringLiteral("DPIHeight"), resolution.vertical);
        }
        return properties;
    } catch (const vips::VError &error) {
        return unreadable(m_file->name(), takeVipsError(error));
    }
}

} // namespace platform
