#include "platform/imageio/comments/comment_splices.h"

#include "platform/file/mapped_file.h"
#include "platform/imageio/exif/tiff_comment.h"
#include "platform/imageio/jpeg/jpeg_segments.h"
#include "platform/imageio/tiff/camera_raw.h"

#include <QCoreApplication>
#include <QtEndian>

#include <algorithm>

namespace platform {
namespace {

const QByteArray exifName("Exif\0\0", 6);
constexpr qsizetype largestPayload = 0xffff - 2;

QByteArray exifSegment(const QByteArray &block)
{
    QByteArray segment("\xff\xe1\0\0", 4);
    qToBigEndian<quint16>(quint16(block.size() + exifName.size() + 2), segment.data() + 2);
    return segment + exifName + block;
}

/**
 * The block distributed over the segments that held it before, each with as much as before and the last with the rest.
 */
CommentSplices overSegments(const QList<JpegSegments::Range> &ranges, const QByteArray &block)
{
    constexpr qsizetype head = 10; // marker, length, name
    QList<Splice> splices;
    qsizetype position = 0;
    for (qsizetype i = 0; i < ranges.size(); ++i) {
        const bool isLast = i + 1 == ranges.size();
        const qsizetype size = isLast ? block.size() - position : ranges[i].size - head;
        if (size < 0 || size > largestPayload - exifName.size())
            return commentTooLong();
        splices.append({ranges[i].start, ranges[i].size, exifSegment(block.mid(position, size))});
        position += size;
    }
    return splices;
}

/** A later page of a camera raw file may be the raw picture itself. */
OtherPages otherPagesOf(const QByteArray &bytes)
{
    return isCameraRaw(bytes) ? OtherPages::Keep : OtherPages::Drop;
}

} // namespace

tl::unexpected<Error> damagedFile()
{
    return failure(ErrorCode::Unreadable, QCoreApplication::translate("platform", "the file is damaged"));
}

tl::unexpected<Error> commentTooLong()
{
    return failure(ErrorCode::TooLarge, QCoreApplication::translate("platform", "the comment is too long"));
}

QByteArray bytesOf(QFile &file, qint64 position, qint64 size)
{
    if (position < 0 || size <= 0 || size > file.size() || position > file.size() - size || !file.seek(position))
        return {};
    const QByteArray bytes = file.read(size);
    return bytes.size() == size ? bytes : QByteArray();
}

CommentSplices jpegCommentSplices(QFile &file, const QString &comment)
{
    const qint64 scan = startOfJpegScan(file);
    const JpegSegments segments = findJpegSegments(bytesOf(file, 0, scan));
    if (!segments.valid)
        return damagedFile();
    const QByteArray block = exifBlockWithUserComment(segments.exif, comment);
    if (block.isEmpty())
        return damagedFile();
    if (block.size() > largestExifBlock)
        return commentTooLong();
    if (!segments.exifRanges.isEmpty())
        return overSegments(segments.exifRanges, block);
    if (block.size() > largestPayload - exifName.size())
        return commentTooLong();
    return QList<Splice>{{segments.insertAt, 0, exifSegment(block)}};
}

CommentSplices tiffCommentSplices(QFile &file, const QString &comment)
{
    const MappedFile mapped(file);
    if (!mapped.isThere() || !tellsWhereItsPixelsAre(mapped.bytes()))
        return damagedFile();
    const auto splices = userCommentSplices(mapped.bytes(), comment, otherPagesOf(mapped.bytes()));
    return splices && !mapped.isSpoilt() ? CommentSplices(*splices) : damagedFile();
}

int pagesLostToComment(QFile &file)
{
    const MappedFile mapped(file);
    const bool losesAny = mapped.isThere() && otherPagesOf(mapped.bytes()) == OtherPages::Drop;
    return losesAny ? otherPageCount(mapped.bytes()) : 0;
}

} // namespace platform
