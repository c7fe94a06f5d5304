// The writer of the comment on any bytes at all: it must leave each file as it was, or one that can be written to again.
#include "platform/file/atomic_file.h"
#include "platform/imageio/comments/user_comment_writer.h"
#include "platform/imageio/exif/tiff_comment.h"
#include "platform/imageio/tiff/tiff_reader.h"

#include <QFile>

#include <cstdlib>
#include <unistd.h>

namespace {

void require(bool isTrue)
{
    if (!isTrue)
        std::abort();
}

QString scratchFile()
{
    return QStringLiteral("/dev/shm/quorlin-fuzz-%1").arg(::getpid());
}

void store(const QByteArray &bytes)
{
    QFile file(scratchFile());
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QByteArray stored()
{
    return platform::readFile(scratchFile()).value_or(QByteArray("nothing"));
}

void writeIntoFile(const QByteArray &bytes, const QString &comment)
{
    store(bytes);
    const bool isWritten = platform::writeUserComment(scratchFile(), comment).has_value();
    const QByteArray after = stored();
    require(isWritten || after == bytes);
    if (!isWritten)
        return;
    const bool again = platform::writeUserComment(scratchFile(), comment).has_value();
    require(again || stored() == after); // what a damaged tag pointed to may be the new comment
}

void writeIntoBlock(const QByteArray &bytes, const QString &comment)
{
    const QByteArray once = platform::exifBlockWithUserComment(bytes, comment);
    const platform::TiffReader reader(once);
    require(once.isEmpty() || reader.first().find(0x8769)); // the directory that holds it
    const QByteArray twice = platform::exifBlockWithUserComment(once, comment);
    require(twice.isEmpty() || twice.size() >= once.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const bool isTidy = std::atexit([] { QFile::remove(scratchFile()); }) == 0;
    require(isTidy);
    if (size == 0)
        return 0;
    // The last byte chooses the text, so that all of them are tried on every kind of file.
    static const QString comments[] = {QString(), QStringLiteral("x"), QStringLiteral("a comment of some length"),
                                       QStringLiteral("Ωμέγα 日本 😀"), QString(40000, QChar(u'Ж'))};
    const QString &comment = comments[data[size - 1] % std::size(comments)];
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    writeIntoFile(bytes, comment);
    writeIntoBlock(bytes, comment);
    return 0;
}
