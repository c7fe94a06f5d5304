#include "platform/imageio/exif/orientation_mark.h"

#include "platform/file/atomic_file.h"
#include "platform/imageio/exif/exif_in_place.h"
#include "platform/imageio/jpeg/jpeg_segments.h"
#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <QCoreApplication>

#include <algorithm>

namespace platform {
namespace {

constexpr qsizetype segmentHeaderSize = 4;

/** The packet states it as an attribute or an element; at most this much is between name and number. */
constexpr qsizetype longestGap = 4;

void markXmp(QByteArray &file, qsizetype start, qsizetype size)
{
    const QByteArray name = QByteArrayLiteral("tiff:Orientation");
    const qsizetype end = std::min(start + size, file.size());
    for (qsizetype at = file.indexOf(name, start); at >= 0 && at < end; at = file.indexOf(name, at + 1))
        for (qsizetype i = at + name.size(); i < std::min(at + name.size() + longestGap, end); ++i)
            if (file.at(i) >= '1' && file.at(i) <= '8') {
                file[i] = '1';
                break;
            }
}

QByteArray markedJpeg(QByteArray file, const QList<JpegSegments::Range> &segments)
{
    const QByteArray exifName("Exif\0\0", 6);
    for (const JpegSegments::Range &segment : segments) {
        const qsizetype content = segment.start + segmentHeaderSize;
        const qsizetype size = segment.size - segmentHeaderSize;
        if (size > exifName.size() && file.mid(content, exifName.size()) == exifName) {
            const qsizetype block = content + exifName.size();
            const QByteArray marked = exifBlockWithOrientation(file.mid(block, size - exifName.size()), 1);
            file.replace(block, marked.size(), marked);
        } else {
            markXmp(file, content, size);
        }
    }
    return file;
}

QByteArray markedTiff(const QByteArray &file)
{
    QByteArray marked = exifBlockWithOrientation(file, 1);
    const TiffDirectory directory = TiffReader(file).first(); // nothing has moved
    if (const TiffEntry *xmp = directory.findSound(tiffTag::xmp))
        markXmp(marked, xmp->value.start, xmp->value.size);
    return marked;
}

} // namespace

Result<QByteArray> markedUpright(const QByteArray &file)
{
    if (TiffReader(file).isClassic())
        return markedTiff(file);
    const JpegSegments segments = findJpegSegments(file);
    if (segments.valid)
        return markedJpeg(file, segments.metadata);
    return failure(ErrorCode::Unsupported,
                   QCoreApplication::translate("platform", "The file is neither JPEG nor TIFF"));
}

Result<void> markUpright(const QString &path)
{
    const Result<QByteArray> file = readFile(path);
    if (!file)
        return tl::unexpected<Error>(file.error());
    const Result<QByteArray> marked = markedUpright(*file);
    if (!marked)
        return failure(marked.error().code, QStringLiteral("%1: %2").arg(path, marked.error().message));
    return *marked == *file ? Result<void>() : replaceFile(path, *marked);
}

} // namespace platform
