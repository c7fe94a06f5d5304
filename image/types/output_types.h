#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <span>

/** What the product calls the types that it writes. What their files are and keep is told by platform::formats(), by the identifier. */
namespace image {

/** What a picture can be converted to. */
enum class TargetType { Pdf, Png, Tiff, Bmp, Gif, Jpeg, Jpeg2000 };

struct WrittenType
{
    QLatin1String identifier;
    QLatin1String keyword; ///< of conversions
    QLatin1String word;    ///< of lists, the same in every language
    TargetType target = TargetType::Png;
    bool isPage = false; ///< only a conversion makes it
    bool carriesMetadata =
        false; ///< a conversion hands EXIF, IPTC and XMP on, and leaves the pixels as they are stored
};

/** All of them, in the order of lists. */
std::span<const WrittenType> writtenTypes();

/** The target of a keyword: "pdf", "png", "tiff", "bmp", "gif", "jpeg" or "jp2", letter for letter; none for other text. */
std::optional<TargetType> targetTypeFor(const QString &keyword);

/** The codes of JPEG quality, "1" to "10", the lowest first. Conversions know no last one. */
QStringList qualityCodes();

/** The JPEG quality factor of a quality code: "1" to "9" are 0.1 to 0.9, anything else is 1. */
double qualityForCode(const QString &code);

/** The same for conversions: "1" to "8" are 0.1 to 0.8, anything else is 0.9. */
double conversionQuality(const QString &code);

} // namespace image
