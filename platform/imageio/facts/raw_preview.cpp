#include "platform/imageio/facts/raw_preview.h"

#include "platform/file/mapped_file.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/metadata/metadata_blocks.h"
#include "platform/imageio/xmp/xmp_bounds.h"

#include <QFile>

#include <exception>

namespace platform {
namespace {

/** The library reads all metadata on its way to the preview. */
bool hasReadableMetadata(const PictureBytes &file)
{
    QFile opened(file.path);
    if (file.path.isEmpty() || !opened.open(QIODevice::ReadOnly))
        return holdsDigestibleXmp(file.bytes);
    const MappedFile mapped(opened);
    return !mapped.isThere() || (holdsDigestibleXmp(mapped.bytes()) && !mapped.isSpoilt());
}

QByteArray largestJpeg(const Exiv2::Image &image)
{
    const Exiv2::PreviewManager previews(image);
    const Exiv2::PreviewPropertiesList list = previews.getPreviewProperties();
    for (auto each = list.rbegin(); each != list.rend(); ++each) { // by size, the largest last
        if (each->mimeType_ != "image/jpeg")
            continue;
        const Exiv2::PreviewImage preview = previews.getPreviewImage(*each);
        const QByteArray jpeg(reinterpret_cast<const char *>(preview.pData()), qsizetype(preview.size()));
        if (contentOf(jpeg.left(contentHeadBytes)) == Content::Jpeg)
            return jpeg;
    }
    return {};
}

} // namespace

QByteArray rawPreview(const PictureBytes &file)
{
    startMetadataLibrary();
    if (!hasReadableMetadata(file))
        return {};
    try {
        const auto image =
            file.path.isEmpty()
                ? Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte *>(file.bytes.constData()),
                                            long(file.bytes.size()))
                : Exiv2::ImageFactory::open(QFile::encodeName(file.path).toStdString());
        image->readMetadata();
        return largestJpeg(*image);
    } catch (const std::exception &) {
        return {};
    }
}

} // namespace platform
