#include "platform/imageio/edits/changed_metadata.h"

#include "platform/imageio/edits/block_editor.h"
#include "platform/imageio/metadata/container_blocks.h"
#include "platform/imageio/metadata/metadata_blocks.h"
#include "platform/imageio/source/opened_file.h"

namespace platform {

Result<ImageSource> withChangedMetadata(const ImageSource &source, const MetadataChange &change)
{
    const Result<Metadata> metadata = source.metadata();
    if (!metadata)
        return tl::unexpected<Error>(metadata.error());
    const ContainerBlocks blocks = metadata->blocksFor(source.storedSize(), Metadata::Holds::ExifXmpIptc);
    BlockEditor editor(change);
    const QByteArray exif = editor.exif(blocks.exif);
    const QByteArray xmp = editor.xmp(blocks.xmp);
    const QByteArray iptc = editor.iptc(blocks.iptc, IptcWhere::New);
    if (editor.isDamaged())
        return damagedMetadata();
    const Metadata changed = Metadata::fromBlocks(exif, xmp, iptc);
    return ImageSource::File::withMetadata(source, Metadata::Blocks::withComments(changed, metadata->comments()));
}

bool hasChangedMetadata(const ImageSource &source)
{
    return source.file() && source.file()->otherMetadata;
}

} // namespace platform
