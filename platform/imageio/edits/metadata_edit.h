#pragma once

#include "platform/file/atomic_file.h"
#include "platform/foundation/result.h"
#include "platform/imageio/edits/metadata_change.h"

#include <QString>

#include <functional>
#include <memory>

namespace platform {

class LentFile;

/** What a picture says of itself, to be asked while it is open. */
class StatedMetadata
{
public:
    struct Blocks;
    explicit StatedMetadata(const Blocks &blocks) : m_blocks(blocks) {}

    /** The text of a tag of EXIF; empty where there is none. */
    QString exif(TagChange::Directory directory, quint16 tag) const;
    QStringList iptc(quint8 dataSet) const;
    /** See XmpForm; empty where XMP does not state it. */
    QStringList xmp(const XmpChange &property) const;
    /** Somebody who does not know XMP has changed IPTC since. */
    bool isIptcNewer() const;
    /** Whether its metadata is changed in the file itself; a sidecar has that of all others. */
    bool isInPlace() const;
    /** Whether what XMP says is that of a sidecar. */
    bool hasSidecar() const;

private:
    const Blocks &m_blocks;
};

/** How a picture's metadata is changed. */
struct MetadataEdit
{
    /** What has to change where this is said. */
    std::function<Result<MetadataChange>(const StatedMetadata &)> change;
    /** Whether what is said afterwards is what was meant. */
    std::function<bool(const StatedMetadata &)> isDone;
};

/** What an edit has done to a file. */
struct EditedMetadata
{
    bool isChanged = false;
    QList<Splice> undo = {}; ///< what makes the old file of the new one
};

/** Fails with NotFound, NotAPicture, Unreadable. @param sidecar  its packet, which counts in place of the picture's own; may be empty */
Result<void> readMetadata(const std::shared_ptr<const LentFile> &picture, const QByteArray &sidecar,
                          const std::function<void(const StatedMetadata &)> &take);

/**
 * Changes the metadata of a JPEG, TIFF, PNG, JPEG 2000, WebP or Photoshop file, and nothing else: pixels, all pages and all other
 * metadata stay as they are, byte for byte; maker notes are not even moved within EXIF. The file is replaced as spliceFile() does it.
 *
 * The edited file takes the old one's place only after it was opened, is the same picture and says what it should.
 *
 * Fails with NotFound or NotAPicture; with Unsupported for other kinds of files; with Unreadable where the file or its metadata is
 * damaged; with TooLarge where there is no room; with what @p edit says; with WriteFailed. The file is then as it was.
 */
Result<EditedMetadata> editMetadata(const QString &path, const MetadataEdit &edit);

/** The same for a picture that another process has open, see writeUserComment(). */
Result<EditedMetadata> editMetadata(const std::shared_ptr<const LentFile> &picture, int copy,
                                    const std::shared_ptr<const LentFile> &copyToRead, const MetadataEdit &edit);

/** What a whole file is known by: SHA-256 of its bytes; empty where they cannot be read. */
QByteArray digestOf(const LentFile &file);

/**
 * Makes the old file of one that editMetadata() has changed, in a copy. Fails with InvalidValue where @p digest is not that of the
 * picture, since it was changed again, and as editMetadata() does.
 */
Result<void> revertMetadata(const std::shared_ptr<const LentFile> &picture, int copy,
                            const std::shared_ptr<const LentFile> &copyToRead, const QList<Splice> &undo,
                            const QByteArray &digest);

/**
 * The packet of the sidecar of a picture whose own metadata is not changed. Fails with Unreadable where @p sidecar is damaged, and as
 * the edit does.
 *
 * @param sidecar  as it is; empty where there is none yet
 */
Result<QByteArray> editedSidecar(const std::shared_ptr<const LentFile> &picture, const QByteArray &sidecar,
                                 const MetadataEdit &edit);

/** Whether such a file's metadata is changed in the file itself. Fails with NotFound, or NotAPicture for what is none. */
Result<bool> hasMetadataInPlace(const LentFile &picture);

} // namespace platform
