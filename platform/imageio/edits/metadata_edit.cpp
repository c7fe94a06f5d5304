#include "platform/imageio/edits/metadata_edit.h"

#include "platform/file/lent_file.h"
#include "platform/file/mapped_file.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/paths.h"
#include "platform/imageio/edits/iptc_edit.h"
#include "platform/imageio/edits/metadata_splices.h"
#include "platform/imageio/edits/tiff_tag_edit.h"
#include "platform/imageio/edits/xmp_change.h"
#include "platform/imageio/metadata/container_blocks.h"
#include "platform/imageio/source/image_source.h"
#include "platform/imageio/xmp/xmp_bounds.h"

#include <QCoreApplication>
#include <QCryptographicHash>

#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace platform {

struct StatedMetadata::Blocks
{
    StatedBlocks stated;
    bool isInPlace = false;
    bool hasSidecar = false;
};

namespace {

QString text(const char *sentence)
{
    return QCoreApplication::translate("platform", sentence);
}

tl::unexpected<Error> unwritten(const QString &path, ErrorCode code, const QString &reason)
{
    return failure(code, text(QT_TRANSLATE_NOOP("platform", "Cannot change the metadata of %1: %2")).arg(path, reason));
}

bool openLent(QFile &file, const LentFile &lent)
{
    return file.open(lent.descriptor(), QIODevice::ReadOnly | QIODevice::Unbuffered) && file.seek(0);
}

Content contentIn(QFile &file)
{
    return file.seek(0) ? contentOf(file.read(contentHeadBytes)) : Content::Unknown;
}

/** Maps the file, and exposes its bytes. */
template<typename Take> auto mapped(QFile &file, Take take) -> decltype(take(QByteArray()))
{
    const MappedFile map(file);
    if (!map.isThere())
        return failure(ErrorCode::Unreadable, text(QT_TRANSLATE_NOOP("platform", "it cannot be read")));
    auto taken = take(map.bytes());
    if (map.isSpoilt())
        return failure(ErrorCode::Unreadable, text(QT_TRANSLATE_NOOP("platform", "it cannot be read")));
    return taken;
}

/** For a file that only its decoder can parse. */
Result<StatedBlocks> decodedBlocks(const std::function<Result<ImageSource>()> &open)
{
    const auto source = open();
    if (!source)
        return tl::unexpected<Error>(source.error());
    const auto metadata = source->metadata();
    if (!metadata)
        return tl::unexpected<Error>(metadata.error());
    const ContainerBlocks blocks = metadata->blocksFor(source->storedSize(), Metadata::Holds::ExifXmpIptc);
    return StatedBlocks{blocks.exif, blocks.xmp, blocks.iptc, {}};
}

/** The changes to a picture, and the picture as it is. */
struct Edit
{
    QList<Splice> splices; ///< none if nothing changes
    QList<Splice> undo;
    ImageSource before;
};

/** The data that restores the bytes changed by the splices. */
QList<Splice> reversed(const QByteArray &bytes, const QList<Splice> &splices)
{
    QList<Splice> undo;
    qint64 moved = 0;
    for (const Splice &each : splices) {
        undo.append({each.at + moved, each.inserted.size(), bytes.mid(each.at, each.removed)});
        moved += each.inserted.size() - each.removed;
    }
    return undo;
}

bool changeNothing(const QByteArray &bytes, const QList<Splice> &splices)
{
    return std::all_of(splices.begin(), splices.end(), [&](const Splice &splice) {
        return splice.removed == splice.inserted.size() && bytes.mid(splice.at, splice.removed) == splice.inserted;
    });
}

/** @param undo  receives what reverts them */
Result<QList<Splice>> splicesFor(NamedFile &file, const MetadataEdit &edit, QList<Splice> &undo)
{
    const Content content = contentIn(file);
    if (content == Content::Unknown)
        return failure(ErrorCode::NotAPicture, text(QT_TRANSLATE_NOOP("platform", "this is not a picture")));
    return mapped(file, [&](const QByteArray &bytes) -> Result<QList<Splice>> {
        if (!changesInPlace(content, bytes))
            return failure(ErrorCode::Unsupported,
                           text(QT_TRANSLATE_NOOP("platform", "this type of file cannot hold metadata of its own")));
        const StatedMetadata::Blocks blocks{statedBlocks(content, bytes), true, false};
        const auto change = edit.change(StatedMetadata(blocks));
        if (!change)
            return tl::unexpected<Error>(change.error());
        if (change->isEmpty())
            return QList<Splice>();
        return metadataSplices(content, bytes, *change).map([&](const QList<Splice> &splices) {
            undo = reversed(bytes, splices);
            return changeNothing(bytes, splices) ? QList<Splice>() : splices;
        });
    });
}

Result<Edit> editFor(NamedFile &file, const std::function<Result<ImageSource>()> &open, const MetadataEdit &edit)
{
    QList<Splice> undo;
    const auto splices = splicesFor(file, edit, undo);
    if (!splices)
        return unwritten(file.fileName(), splices.error().code, splices.error().message);
    return open().map([&](const ImageSource &picture) {
        return Edit{*splices, undo, picture};
    }); // unreadable is unwritable
}

/** Whether the edited file is the same picture as before, with the intended metadata. */
Result<void> checkEdited(const Edit &edit, const Result<ImageSource> &edited,
                         const std::shared_ptr<const LentFile> &file, const QString &path,
                         const std::function<bool(const StatedMetadata &)> &isDone)
{
    const bool isSamePicture = edited && edited->storedSize() == edit.before.storedSize() &&
                               edited->orientation() == edit.before.orientation() &&
                               edited->imageCount() == edit.before.imageCount() &&
                               edited->typeIdentifier() == edit.before.typeIdentifier();
    if (!isSamePicture)
        return unwritten(path, ErrorCode::Unreadable,
                         text(QT_TRANSLATE_NOOP("platform", "the picture could not be read afterwards")));
    bool done = false;
    const auto read = readMetadata(file, {}, [&](const StatedMetadata &stated) { done = isDone(stated); });
    if (!read || !done)
        return unwritten(path, ErrorCode::Unreadable,
                         text(QT_TRANSLATE_NOOP("platform", "the metadata could not be read afterwards")));
    return {};
}

Result<std::shared_ptr<const LentFile>> lentFile(const QString &path)
{
    auto file = LentFile::open(path);
    if (!file)
        return tl::unexpected<Error>(file.error());
    return std::make_shared<const LentFile>(std::move(*file));
}

} // namespace

QString StatedMetadata::exif(TagChange::Directory directory, quint16 tag) const
{
    return tagText(m_blocks.stated.exif, directory, tag);
}

QStringList StatedMetadata::iptc(quint8 dataSet) const
{
    return iptcTexts(m_blocks.stated.iptc, dataSet);
}

QStringList StatedMetadata::xmp(const XmpChange &property) const
{
    return xmpTexts(m_blocks.stated.xmp, property);
}

bool StatedMetadata::isIptcNewer() const
{
    const StatedBlocks &stated = m_blocks.stated;
    return !stated.iptc.isEmpty() && stated.digest.size() == 16 && stated.digest != iptcDigest(stated.iptc) &&
           stated.digest != QByteArray(16, '\0');
}

bool StatedMetadata::isInPlace() const
{
    return m_blocks.isInPlace;
}

bool StatedMetadata::hasSidecar() const
{
    return m_blocks.hasSidecar;
}

Result<void> readMetadata(const std::shared_ptr<const LentFile> &picture, const QByteArray &sidecar,
                          const std::function<void(const StatedMetadata &)> &take)
{
    NamedFile file(picture->name());
    if (!openLent(file, *picture))
        return failure(ErrorCode::Unreadable, file.errorString());
    const Content content = contentIn(file);
    return mapped(file, [&](const QByteArray &bytes) -> Result<void> {
        StatedMetadata::Blocks blocks{{}, changesInPlace(content, bytes), !sidecar.isEmpty()};
        if (blocks.isInPlace || content == Content::Tiff) {
            blocks.stated = statedBlocks(content, bytes);
        } else {
            const auto decoded = decodedBlocks([&] { return ImageSource::fromLent(picture); });
            if (!decoded)
                return tl::unexpected<Error>(decoded.error());
            blocks.stated = *decoded;
        }
        if (!sidecar.isEmpty())
            blocks.stated.xmp = sidecar;
        if (!isDigestibleXmp(blocks.stated.xmp))
            blocks.stated.xmp.clear();
        take(StatedMetadata(blocks));
        return {};
    });
}

Result<EditedMetadata> editMetadata(const QString &path, const MetadataEdit &edit)
{
    NamedFile file(path);
    if (const auto opened = openToRead(file, QIODevice::Unbuffered); !opened)
        return unwritten(path, opened.error().code, opened.error().message);
    const Result<Edit> made = editFor(
        file, [&path] { return ImageSource::open(path); }, edit);
    if (!made)
        return tl::unexpected<Error>(made.error());
    if (made->splices.isEmpty())
        return EditedMetadata();
    if (::faccessat(AT_FDCWD, encodedPath(path).constData(), W_OK, AT_EACCESS) != 0) // write protection is intentional
        return unwritten(path, ErrorCode::WriteFailed,
                         text(QT_TRANSLATE_NOOP("platform", "the file is write-protected")));
    const auto written = spliceFile(file, made->splices, [&](const QString &editedPath) -> Result<void> {
        const auto edited = lentFile(editedPath);
        if (!edited)
            return tl::unexpected<Error>(edited.error());
        return checkEdited(*made, ImageSource::open(editedPath), *edited, path, edit.isDone);
    });
    return written.map([&] { return EditedMetadata{true, made->undo}; });
}

Result<EditedMetadata> editMetadata(const std::shared_ptr<const LentFile> &picture, int copy,
                                    const std::shared_ptr<const LentFile> &copyToRead, const MetadataEdit &edit)
{
    const QString &path = picture->name();
    NamedFile file(path);
    if (!openLent(file, *picture))
        return unwritten(path, ErrorCode::Unreadable, file.errorString());
    const Result<Edit> made = editFor(
        file, [&picture] { return ImageSource::fromLent(picture); }, edit);
    if (!made)
        return tl::unexpected<Error>(made.error());
    if (made->splices.isEmpty())
        return EditedMetadata();
    if (const int problem = copySpliced(picture->descriptor(), made->splices, copy); problem != 0)
        return unwritten(path, ErrorCode::WriteFailed, QString::fromLocal8Bit(std::strerror(problem)));
    return checkEdited(*made, ImageSource::fromLent(copyToRead), copyToRead, path, edit.isDone).map([&] {
        return EditedMetadata{true, made->undo};
    });
}

QByteArray digestOf(const LentFile &lent)
{
    NamedFile file(lent.name());
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const bool isRead = openLent(file, lent) && hash.addData(&file) && file.readProblem().isEmpty();
    return isRead ? hash.result() : QByteArray();
}

Result<void> revertMetadata(const std::shared_ptr<const LentFile> &picture, int copy,
                            const std::shared_ptr<const LentFile> &copyToRead, const QList<Splice> &undo,
                            const QByteArray &digest)
{
    const QString &path = picture->name();
    if (digest.isEmpty() || digestOf(*picture) != digest)
        return unwritten(path, ErrorCode::InvalidValue, text(QT_TRANSLATE_NOOP("platform", "it was changed since")));
    if (const int problem = copySpliced(picture->descriptor(), undo, copy); problem != 0)
        return unwritten(path, ErrorCode::WriteFailed, QString::fromLocal8Bit(std::strerror(problem)));
    if (const auto edited = ImageSource::fromLent(copyToRead); !edited)
        return unwritten(path, ErrorCode::Unreadable,
                         text(QT_TRANSLATE_NOOP("platform", "the picture could not be read afterwards")));
    return {};
}

Result<QByteArray> editedSidecar(const std::shared_ptr<const LentFile> &picture, const QByteArray &sidecar,
                                 const MetadataEdit &edit)
{
    const auto damaged = [&] {
        return unwritten(picture->name(), ErrorCode::Unreadable,
                         text(QT_TRANSLATE_NOOP("platform", "its sidecar is damaged")));
    };
    if (!isDigestibleXmp(sidecar))
        return damaged();
    Result<MetadataChange> change;
    const auto read =
        readMetadata(picture, sidecar, [&](const StatedMetadata &stated) { change = edit.change(stated); });
    if (!read)
        return unwritten(picture->name(), read.error().code, read.error().message);
    if (!change)
        return unwritten(picture->name(), change.error().code, change.error().message);
    const auto packet = changedXmp(sidecar, *change);
    if (!packet)
        return damaged();
    bool done = false;
    const auto after =
        readMetadata(picture, *packet, [&](const StatedMetadata &stated) { done = edit.isDone(stated); });
    return after && done ? Result<QByteArray>(*packet) : damaged();
}

Result<bool> hasMetadataInPlace(const LentFile &picture)
{
    NamedFile file(picture.name());
    if (!openLent(file, picture))
        return failure(ErrorCode::Unreadable, file.errorString());
    const Content content = contentIn(file);
    if (content == Content::Unknown)
        return failure(ErrorCode::NotAPicture, text(QT_TRANSLATE_NOOP("platform", "this is not a picture")));
    return mapped(file, [&](const QByteArray &bytes) -> Result<bool> { return changesInPlace(content, bytes); });
}

} // namespace platform
