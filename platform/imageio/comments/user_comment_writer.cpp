#include "platform/imageio/comments/user_comment_writer.h"

#include "platform/file/lent_file.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/paths.h"
#include "platform/imageio/comments/comment_splices.h"
#include "platform/imageio/source/image_source.h"

#include <QCoreApplication>
#include <QFile>

#include <cstring>
#include <functional>

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
        return failure(ErrorCode::NotAPicture, text(QT_TRANSLATE_NOOP("platform", "this is not a picture")));
    default:
        return failure(ErrorCode::Unsupported,
                       text(QT_TRANSLATE_NOOP("platform", "this type of file cannot hold a comment")));
    }
}

/** Splices that restore the previous content. */
bool changeNothing(QFile &file, const QList<Splice> &splices)
{
    for (const Splice &splice : splices)
        if (splice.removed != splice.inserted.size() || !file.seek(splice.at) ||
            file.read(splice.removed) != splice.inserted)
            return false;
    return true;
}

/** The changes to a picture, and the picture as it is. */
struct Edit
{
    QList<Splice> splices; ///< none if nothing changes
    ImageSource before;
};

tl::unexpected<Error> unwritten(const QString &path, ErrorCode code, const QString &reason)
{
    return failure(code, text(QT_TRANSLATE_NOOP("platform", "Cannot write the comment into %1: %2")).arg(path, reason));
}

/** @param file  open, with the path as its name */
Result<Edit> editFor(NamedFile &file, const std::function<Result<ImageSource>()> &open, const QString &comment)
{
    const QString path = file.fileName();
    const Result<QList<Splice>> splices = splicesFor(file, contentOf(file.read(contentHeadBytes)), comment);
    if (!file.readProblem().isEmpty()) // what could not be read would be taken for missing, and be overwritten
        return unwritten(path, ErrorCode::Unreadable, file.readProblem());
    if (!splices)
        return unwritten(path, splices.error().code, splices.error().message);
    return open().map([&](const ImageSource &picture) { // users who cannot read it must not write it
        return changeNothing(file, *splices) ? Edit{{}, picture} : Edit{*splices, picture};
    });
}

/** Whether the edited file is the same picture as before, with the intended comment. */
Result<void> checkEdited(const Edit &edit, const Result<ImageSource> &edited, const QString &path,
                         const QString &comment)
{
    const bool isSamePicture = edited && edited->storedSize() == edit.before.storedSize() &&
                               edited->orientation() == edit.before.orientation() &&
                               edited->typeIdentifier() == edit.before.typeIdentifier();
    if (!isSamePicture)
        return unwritten(path, ErrorCode::Unreadable,
                         text(QT_TRANSLATE_NOOP("platform", "the picture could not be read afterwards")));
    const Result<Metadata> written = edited->metadata();
    if (!written || written->userComment() != comment)
        return unwritten(path, ErrorCode::Unreadable,
                         text(QT_TRANSLATE_NOOP("platform", "the comment could not be read afterwards")));
    return {};
}

Result<void> refuseNull(const QString &path, const QString &comment)
{
    if (comment.contains(QChar::Null))
        return unwritten(path, ErrorCode::InvalidValue,
                         text(QT_TRANSLATE_NOOP("platform", "a comment ends where it has a null character")));
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

/** Starts at the beginning; readers by offset do not notice. */
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
    if (const auto sound = refuseNull(path, comment); !sound)
        return sound;
    NamedFile file(path);
    if (const auto opened = openToRead(file, QIODevice::Unbuffered); !opened)
        return unwritten(path, opened.error().code, opened.error().message);
    const Result<Edit> edit = editFor(
        file, [&path] { return ImageSource::open(path); }, comment);
    if (!edit)
        return tl::unexpected<Error>(edit.error());
    if (edit->splices.isEmpty())
        return {};
    if (::faccessat(AT_FDCWD, encodedPath(path).constData(), W_OK, AT_EACCESS) != 0) // write protection is intentional
        return unwritten(path, ErrorCode::WriteFailed,
                         text(QT_TRANSLATE_NOOP("platform", "the file is write-protected")));
    return spliceFile(file, edit->splices, [&](const QString &editedPath) {
        return checkEdited(*edit, ImageSource::open(editedPath), path, comment);
    });
}

Result<bool> writeUserComment(const std::shared_ptr<const LentFile> &picture, int copy,
                              const std::shared_ptr<const LentFile> &copyToRead, const QString &comment)
{
    const QString &path = picture->name();
    if (const auto sound = refuseNull(path, comment); !sound)
        return tl::unexpected<Error>(sound.error());
    NamedFile file(path);
    if (!openLent(file, *picture))
        return unwritten(path, ErrorCode::Unreadable, file.errorString());
    const Result<Edit> edit = editFor(
        file, [&picture] { return ImageSource::fromLent(picture); }, comment);
    if (!edit)
        return tl::unexpected<Error>(edit.error());
    if (edit->splices.isEmpty())
        return false;
    if (const int problem = copySpliced(picture->descriptor(), edit->splices, copy); problem != 0)
        return unwritten(path, ErrorCode::WriteFailed, QString::fromLocal8Bit(std::strerror(problem)));
    return checkEdited(*edit, ImageSource::fromLent(copyToRead), path, comment).map([] { return true; });
}

} // namespace platform
