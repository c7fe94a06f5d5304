#include "platform/imageio/comments/user_comment_writer.h"

#include "platform/file/lent_file.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/paths.h"
#include "platform/imageio/comments/comment_splices.h"
#include "platform/imageio/source/image_source.h"

#include <QCoreApplication>
#include <QFile>

#include <fcntl.h>
#include <unistd.h>

namespace platform {
namespace {

QString text(const char *sentence)
{
    return QCoreApplication::translate("platform", sentence);
}

Result<QList<Splice>> splicesFor(QFile &file, Content content, const QString &comment)
{
    switch (content) {
    case Content::Jpeg:
        return jpegCommentSplices(file, comment);
    case Content::Tiff:
        return tiffCommentSplices(file, comment);
    case Content::Png:
        return pngCommentSplices(file, comment);
    case Content::Jpeg2000:
        return jpeg2000CommentSplices(file, comment);
    case Content::Webp:
        return webpCommentSplices(file, comment);
    case Content::Unknown:
        return failure(ErrorCode::NotAPicture, text("this is not a picture"));
    default:
        return failure(ErrorCode::Unsupported, text("this type of file cannot hold a comment"));
    }
}

/** Splices that put back what is there. */
bool changeNothing(QFile &file, const QList<Splice> &splices)
{
    for (const Splice &splice : splices)
        if (splice.removed != splice.inserted.size() || !file.seek(splice.at) ||
            file.read(splice.removed) != splice.inserted)
            return false;
    return true;
}

/** Whether the edited file is the same picture as before, and says what it was meant to say. */
Result<void> checkEdited(const ImageSource &before, const QString &editedPath, const QString &comment)
{
    const Result<ImageSource> edited = ImageSource::open(editedPath);
    const bool isSamePicture = edited && edited->storedSize() == before.storedSize() &&
                               edited->orientation() == before.orientation() &&
                               edited->typeIdentifier() == before.typeIdentifier();
    if (!isSamePicture)
        return failure(ErrorCode::Unreadable, text("the picture could not be read afterwards"));
    const Result<Metadata> written = edited->metadata();
    if (!written || written->userComment() != comment)
        return failure(ErrorCode::Unreadable, text("the comment could not be read afterwards"));
    return {};
}

bool canHold(QFile &file)
{
    const Content content = contentOf(file.read(contentHeadBytes));
    return content == Content::Jpeg || content == Content::Tiff || content == Content::Png ||
           content == Content::Jpeg2000 || content == Content::Webp;
}

int pagesLostIn(QFile &file)
{
    return contentOf(file.read(contentHeadBytes)) == Content::Tiff ? pagesLostToComment(file) : 0;
}

/** From its beginning; whoever reads it by places does not notice. */
bool openLent(QFile &file, const LentFile &lent)
{
    return file.open(lent.descriptor(), QIODevice::ReadOnly | QIODevice::Unbuffered) && file.seek(0);
}

} // namespace

bool canHoldUserComment(const QString &path)
{
    QFile file(path);
    return openToRead(file, QIODevice::Unbuffered) && canHold(file);
}

bool canHoldUserComment(const LentFile &lent)
{
    QFile file;
    return openLent(file, lent) && canHold(file);
}

Result<QString> readUserComment(const QString &path)
{
    return ImageSource::open(path)
        .and_then([](const ImageSource &source) { return source.metadata(); })
        .map([](const Metadata &metadata) { return metadata.userComment(); });
}

int pagesLostToUserComment(const QString &path)
{
    QFile file(path);
    return openToRead(file, QIODevice::Unbuffered) ? pagesLostIn(file) : 0;
}

int pagesLostToUserComment(const LentFile &lent)
{
    QFile file;
    return openLent(file, lent) ? pagesLostIn(file) : 0;
}

Result<void> writeUserComment(const QString &path, const QString &comment)
{
    NamedFile file(path);
    const auto failed = [&](ErrorCode code, const QString &reason) {
        return failure(code, text("Cannot write the comment into %1: %2").arg(path, reason));
    };
    if (comment.contains(QChar::Null))
        return failed(ErrorCode::InvalidValue, text("a comment ends where it has a null character"));
    if (const auto opened = openToRead(file, QIODevice::Unbuffered); !opened)
        return failed(opened.error().code, opened.error().message);
    const Result<QList<Splice>> splices = splicesFor(file, contentOf(file.read(contentHeadBytes)), comment);
    if (!file.readProblem().isEmpty()) // what could not be read would be taken for not there, and be written over
        return failed(ErrorCode::Unreadable, file.readProblem());
    if (!splices)
        return failed(splices.error().code, splices.error().message);
    const Result<ImageSource> picture = ImageSource::open(path);
    if (!picture) // whoever cannot read it must not write it
        return tl::unexpected<Error>(picture.error());
    if (changeNothing(file, *splices))
        return {};
    if (::faccessat(AT_FDCWD, encodedPath(path).constData(), W_OK, AT_EACCESS) != 0) // whoever protected it meant it
        return failed(ErrorCode::WriteFailed, text("the file is write-protected"));
    return spliceFile(file, *splices, [&](const QString &editedPath) -> Result<void> {
        const Result<void> checked = checkEdited(*picture, editedPath, comment);
        return checked ? checked : failed(checked.error().code, checked.error().message);
    });
}

} // namespace platform
