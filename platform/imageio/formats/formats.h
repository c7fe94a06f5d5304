#pragma once

#include "platform/imageio/formats/content.h"
#include "platform/imageio/formats/file_format.h"

#include <optional>
#include <span>

namespace platform {

/** Whether a property of a picture is kept when it is written. */
enum class Kept { No, IfItFits, Yes };

/** What a file of a format keeps of the picture written into it; the rest is converted before. */
struct Keeping
{
    Kept profile = Kept::No; ///< IfItFits: see fitsJpeg2000(); else colours become sRGB
    bool alpha = false;      ///< else flattened onto black
    bool depth16 = false;    ///< else 8 bits
    bool cmyk = false;       ///< else sRGB
    bool anyForm = false;    ///< also Lab, floating point and channels of other meanings
    bool resolution = false;
    bool exif = false;
    bool iptc = false;
    bool xmp = false;
    bool quality = false; ///< not a property but an option: how much of the picture is lost for a smaller file
};

/** What the program knows about one kind of picture file. */
struct Format
{
    Content content = Content::Unknown;
    QLatin1String identifier;
    QLatin1String extensions; ///< in lower case, separated by spaces; new files get the first one
    bool (*begins)(const QByteArray &head) = nullptr; ///< null for an alias of the row above
    std::optional<FileFormat> written = {};           ///< none for those that are only read, and for pages
    bool isWrittenOnRequest = false;                  ///< ignored by fileFormatForType()
    Keeping keeps = {};                               ///< for those that are written, and for pages
};

/** All kinds of picture files that can be opened, in the order in which contentOf() tries them. */
std::span<const Format> formats();

/** The first row of some content; null for Content::Unknown. */
const Format *formatOf(Content content);
/** The row of a kind of file that is written. */
const Format &formatOf(FileFormat format);
/** The row of a type identifier; null if there is none. */
const Format *formatNamed(const QString &typeIdentifier);

/** The kinds of raw files of cameras. */
struct RawType
{
    QLatin1String extension;
    bool hasPreview = false; ///< a preview in it that is used as the picture
};

std::span<const RawType> rawTypes();

} // namespace platform
