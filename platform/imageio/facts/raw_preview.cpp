#include "platform/imageio/facts/raw_preview.h"

#include "platform/file/mapped_file.h"
#include "platform/file/regular_file.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/metadata/metadata_blocks.h"
#include "platform/imageio/xmp/xmp_bounds.h"

#include <exception>

namespace platform {
namespace {

QByteArray largestJpeg(const Exiv2::Image &image)
{
    const Exiv2::PreviewManager previews(image);
    const Exiv2::PreviewPropertiesList list = previews.getPreviewProperties();
    for (auto each = list.rbegin(); each != list.rend(); ++each) { // by size, largest last
        if (each->mimeType_ != "image/jpeg")
            continue;
        const Exiv2::PreviewImage preview = previews.getPreviewImage(*each);
        const QByteArray jpeg(reinterpret_cast<const char *>(preview.pData()), qsizetype(preview.size()));
        if (contentOf(jpeg.left(contentHeadBytes)) == Content::Jpeg)
            return jpeg;
    }
    return {};
}

QByteArray previewIn(const QByteArray &file)
{
    // The library reads all metadata on its way to the preview.
    if (!holdsDigestibleXmp(file))
        return {};
    try {
        const auto image =
            Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte *>(file.constData()), size_t(file.size()));
        image->readMetadata();
        return largestJpeg(*image);
    } catch (const std::exception &) {
        return {};
    }
}

tl::unexpected<Error> cannotBeRead()
{
    return failure(ErrorCode::Unreadable, QStringLiteral("some of it cannot be read"));
}

} // namespace

Result<QByteArray> rawPreview(const PictureBytes &file)
{
    startMetadataLibrary();
    if (file.isInMemory())
        return previewIn(file.bytes);
    const std::unique_ptr<QFile> opened = file.openedFile();
    if (!opened)
        return cannotBeRead();
    const MappedFile mapped(*opened);
    // If a file system cannot map, all of it is read.
    const QByteArray bytes = mapped.isThere() ? mapped.bytes() : opened->readAll();
    QByteArray preview = previewIn(bytes);
    if (mapped.isSpoilt() || !readProblemOf(*opened).isEmpty())
        return cannotBeRead();
    return preview;
}

} // namespace platform
