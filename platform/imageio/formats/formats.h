#pragma once

#include "platform/imageio/formats/content.h"
#include "platform/imageio/formats/file_format.h"

#include <optional>
#include <span>

namespace platform {

/** Whether something of a picture stays when it is written. */
enum class Kept { No, IfItFits, Yes };

/** What a file of a format keeps of the picture that is written into it; the rest is converted before. */
struct Keeping
{
    Kept profile = Kept::No; ///< IfItFits: see fitsJpeg2000(); else colours become sRGB
    bool alpha = false;      ///< else laid on black
    bool depth16 = false;    ///< else 8 bits
    bool cmyk = false;       ///< else sRGB
    bool anyForm = false;    ///< Lab, floating point and channels of other meanings too
    bool resolution = false;
    bool exif = false;
    bool iptc = false;
    bool xmp = false;
    bool quality = false; ///< not kept, but chosen: how much of the picture is lost for a smaller file
};

/** What the program knows of one kind of picture file. */
struct Format
{
    Content content = Content::Unknown;
    QLatin1String identifier;
    QLatin1String extensions; ///< in small letters, parted by blanks; new files get the first one
    bool (*begins)(const QByteArray &head) = nullptr; ///< null for another name of the row above
    std::optional<FileFormat> written = {};           ///< none for those that are only read, and for pages
    bool isWrittenOnRequest = false;                  ///< passed over by fileFormatForType()
    Keeping keeps = {};                               ///< of those that are written, and of pages
};

/** All kinds of picture files that can be opened, in the order in which contentOf() asks them. */
std::span<const Format> formats();

/** The first row of some content; null for Content::Unknown. */
const Format *formatOf(Content content);
/** The row of a kind of file that is written. */
const Format &formatOf(FileFormat format);
/** The row of a type identifier; null where no row has it. */
const Format *formatNamed(const QString &typeIdentifier);

/** The kinds of raw files of cameras. */
struct RawType
{
    QLatin1String extension;
    bool hasPreview = false; ///< one that can be taken out of it is what the picture is for the program
};

std::span<const RawType> rawTypes();

} // namespace platform
