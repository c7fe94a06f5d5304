#include "platform/imageio/formats/file_format.h"

#include <array>

namespace platform {
namespace {

struct WrittenType
{
    QLatin1String identifier;
    FileFormat format;
};

const std::array<WrittenType, 6> writtenTypes = {{
    {QLatin1String("public.png"), FileFormat::Png},
    {QLatin1String("public.tiff"), FileFormat::Tiff},
    {QLatin1String("public.bmp"), FileFormat::Bmp},
    {QLatin1String("com.compuserve.gif"), FileFormat::Gif},
    {QLatin1String("public.jpeg"), FileFormat::Jpeg},
    {QLatin1String("public.jp2"), FileFormat::Jpeg2000},
}};

} // namespace

std::optional<FileFormat> fileFormatForType(const QString &typeIdentifier)
{
    for (const WrittenType &type : writtenTypes)
        if (typeIdentifier == type.identifier)
            return type.format;
    return std::nullopt;
}

} // namespace platform
