#pragma once

// Inside platform/ only.

#include "platform/imageio/edits/metadata_splices.h"

namespace platform {

using Splices = Result<QList<Splice>>;

/** "its metadata is damaged", and "there is not enough room for the metadata". */
tl::unexpected<Error> damagedMetadata();
tl::unexpected<Error> tooMuchMetadata();

/** Whether IPTC is made where there is none. */
enum class IptcWhere { New, OnlyIfThere };

/** Is shown the blocks of a file one after the other, remembers them, and says what becomes of each. */
class BlockEditor
{
public:
    explicit BlockEditor(const MetadataChange &change) : m_change(change) {}

    /** The block from now on; the same bytes where nothing of it changes. */
    QByteArray exif(const QByteArray &block);
    QByteArray xmp(const QByteArray &packet);
    QByteArray iptc(const QByteArray &records, IptcWhere where);
    QByteArray resources(const QByteArray &resources);

    /** One of them could not be changed. */
    bool isDamaged() const { return m_isDamaged; }
    const StatedBlocks &stated() const { return m_stated; }

private:
    QByteArray unless(const std::optional<QByteArray> &changed, const QByteArray &old);

    const MetadataChange &m_change;
    StatedBlocks m_stated;
    bool m_isDamaged = false;
};

/** Shows the editor what a JPEG, PNG, WebP, JPEG 2000 or Photoshop file holds, and makes splices of what it says. */
Splices splicesOfParts(Content content, const QByteArray &bytes, BlockEditor &editor);

} // namespace platform
