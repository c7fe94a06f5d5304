#pragma once

#include "platform/imageio/formats/file_format.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <span>

/**
 * The product's names of the types that it writes. platform::formats() describes the files themselves, by the
 * identifier.
 */
namespace image {

/** What a picture can be written as. Original means the picture's own type. */
enum class OutputType { Original, Jpeg, Png, Tiff, Bmp, Gif, Jpeg2000, Pdf, Webp, Avif, JpegXl };

struct WrittenType
{
    OutputType type = OutputType::Original;
    QLatin1String identifier;
    QLatin1String keyword;        ///< of conversions, recipes and reports
    QLatin1String word;           ///< of lists, the same in every language
    bool isPage = false;          ///< not a picture format
    bool isOfRecipes = false;     ///< no conversion makes it
    bool hasQuality = false;      ///< from 1 to 100, in recipes
    bool canBeLossless = false;   ///< if a recipe requests it; others always are, or never
    bool carriesMetadata = false; ///< a conversion copies EXIF, IPTC and XMP, and leaves the pixels as they are stored
};

/** All of them, in the order of lists. */
std::span<const WrittenType> writtenTypes();

/** The row of a type other than Original. */
const WrittenType &writtenType(OutputType type);

/** The format of its files; none for a page. */
std::optional<platform::FileFormat> formatFor(OutputType type);

/** The suffix of its files' names: ".jpg" and so on. */
QString extensionOf(OutputType type);

/**
 * The target of a keyword: "pdf", "png", "tiff", "bmp", "gif", "jpeg" or "jp2", case-sensitively; none for other text.
 */
std::optional<OutputType> targetTypeFor(const QString &keyword);

/** The codes of JPEG quality, "1" to "10", lowest first. Conversions do not have the last one. */
QStringList qualityCodes();

/** The JPEG quality factor of a quality code: "1" to "9" are 0.1 to 0.9, anything else is 1. */
double qualityForCode(const QString &code);

/** The same for conversions: "1" to "8" are 0.1 to 0.8, anything else is 0.9. */
double conversionQuality(const QString &code);

} // namespace image
