#pragma once

#include "platform/file/atomic_file.h"
#include "platform/foundation/result.h"
#include "platform/imageio/edits/metadata_change.h"

#include <QString>

#include <functional>
#include <memory>

namespace platform {

class LentFile;

/** A picture's own metadata, to be queried while it is open. */
class StatedMetadata
{
public:
    struct Blocks;
    explicit StatedMetadata(const Blocks &blocks) : m_blocks(blocks) {}

    /** The text of a tag of EXIF; empty if there is none. */
    QString exif(TagChange::Directory directory, quint16 tag) const;
    QStringList iptc(quint8 dataSet) const;
    /** See XmpForm; empty if XMP does not have it. */
    QStringList xmp(const XmpChange &property) const;
    /** A program that ignores XMP has changed IPTC since. */
    bool isIptcNewer() const;
    /** Whether its metadata is changed in the file itself; for all others in a sidecar. */
    bool isInPlace() const;
    /** Whether the XMP is that of a sidecar. */
    bool hasSidecar() const;

private:
    const Blocks &m_blocks;
};

/** How a picture's metadata is changed. */
struct MetadataEdit
{
    /** The changes, given the present metadata. */
    std::function<Result<MetadataChange>(const StatedMetadata &)> change;
    /** Whether the resulting metadata is as intended. */
    std::function<bool(const StatedMetadata &)> isDone;
};

/** What an edit has done to a file. */
struct EditedMetadata
{
    bool isChanged = false;
    QList<Splice> undo = {}; ///< data that restores the old file
};

/**
 * Fails with NotFound, NotAPicture, Unreadable. @param sidecar  its packet, which takes precedence over the picture's
 * own; may be empty
 */
Result<void> readMetadata(const std::shared_ptr<const LentFile> &picture, const QByteArray &sidecar,
                          const std::function<void(const StatedMetadata &)> &take);

/**
 * Changes the metadata of a JPEG, TIFF, PNG, JPEG 2000, WebP or Photoshop file, and nothing else: pixels, all pages and all other
 * metadata stay as they are, byte for byte; maker notes are not even moved within EXIF. The file is replaced as by
 * spliceFile().
 *
 * The edited file replaces the old one only after it was opened, is the same picture and has the intended metadata.
 *
 * Fails with NotFound or NotAPicture; with Unsupported for other kinds of files; with Unreadable if the file or its
 * metadata is damaged; with TooLarge if there is no room; with the failure of @p edit; with WriteFailed. The file is
 * then unchanged.
 */
Result<EditedMetadata> editMetadata(const QString &path, const MetadataEdit &edit);

/** The same for a picture that another process has opened, see writeUserComment(). */
Result<EditedMetadata> editMetadata(const std::shared_ptr<const LentFile> &picture, int copy,
                                    const std::shared_ptr<const LentFile> &copyToRead, const MetadataEdit &edit);

/** Identifies the contents of a file: SHA-256 of its bytes; empty if they cannot be read. */
QByteArray digestOf(const LentFile &file);

/**
 * Restores, in a copy, the old file from one that editMetadata() has changed. Fails with InvalidValue if @p digest is
 * not that of the picture, since it was changed again, and like editMetadata().
 */
Result<void> revertMetadata(const std::shared_ptr<const LentFile> &picture, int copy,
                            const std::shared_ptr<const LentFile> &copyToRead, const QList<Splice> &undo,
                            const QByteArray &digest);

/**
 * The sidecar packet of a picture whose own metadata is not changed. Fails with Unreadable if @p sidecar is damaged,
 * and like the edit.
 *
 * @param sidecar  the present one; empty if there is none yet
 */
Result<QByteArray> editedSidecar(const std::shared_ptr<const LentFile> &picture, const QByteArray &sidecar,
                                 const MetadataEdit &edit);

/** Whether such a file's metadata is changed in the file itself. Fails with NotFound, or NotAPicture if it is none. */
Result<bool> hasMetadataInPlace(const LentFile &picture);

} // namespace platform
