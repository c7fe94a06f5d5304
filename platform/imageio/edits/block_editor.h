#pragma once

// Inside platform/ only.

#include "platform/imageio/edits/metadata_splices.h"

namespace platform {

using Splices = Result<QList<Splice>>;

/** "its metadata is damaged", and "there is not enough room for the metadata". */
tl::unexpected<Error> damagedMetadata();
tl::unexpected<Error> tooMuchMetadata();

/** Whether IPTC is created if there is none. */
enum class IptcWhere { New, OnlyIfThere };

/** Receives the blocks of a file one after the other, remembers them, and decides what happens to each. */
class BlockEditor
{
public:
    explicit BlockEditor(const MetadataChange &change) : m_change(change) {}

    /** The new block; the same bytes if nothing changes. */
    QByteArray exif(const QByteArray &block);
    QByteArray xmp(const QByteArray &packet);
    QByteArray iptc(const QByteArray &records, IptcWhere where);
    QByteArray resources(const QByteArray &resources);

    /** A block could not be changed. */
    bool isDamaged() const { return m_isDamaged; }
    const StatedBlocks &stated() const { return m_stated; }

private:
    QByteArray unless(const std::optional<QByteArray> &changed, const QByteArray &old);

    const MetadataChange &m_change;
    StatedBlocks m_stated;
    bool m_isDamaged = false;
};

/**
 * Passes the contents of a JPEG, PNG, WebP, JPEG 2000 or Photoshop file to the editor, and makes splices of its
 * answers.
 */
Splices splicesOfParts(Content content, const QByteArray &bytes, BlockEditor &editor);

} // namespace platform
