#include "platform/imageio/edits/metadata_splices.h"

#include "platform/imageio/edits/block_editor.h"
#include "platform/imageio/edits/iptc_edit.h"
#include "platform/imageio/edits/tiff_tag_edit.h"
#include "platform/imageio/tiff/camera_raw.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <QCoreApplication>

namespace platform {
namespace {

using Directory = TagChange::Directory;
using What = TagChange::What;

void changeTag(QList<TagChange> &tags, quint16 tag, quint16 type, const std::optional<QByteArray> &old,
               const QByteArray &now)
{
    if (old.value_or(QByteArray()) == now)
        return;
    tags.append({Directory::First, tag, now.isEmpty() ? What::Remove : What::Set, type, now});
}

/** Data that gets shorter keeps its room, so that the file does not grow when it gets longer again. */
QByteArray inOldRoom(const QByteArray &block, const std::optional<QByteArray> &old, char filling)
{
    return block.isEmpty() || !old ? block : block.leftJustified(old->size(), filling);
}

/** XMP, IPTC and the resources of Photoshop are values of tags. */
Splices tiffSplices(const QByteArray &bytes, const MetadataChange &change)
{
    MetadataChange all = change;
    BlockEditor editor(change);
    const auto value = [&](quint16 tag) { return tagValue(bytes, Directory::First, tag); };
    const auto oldXmp = value(tiffTag::xmp);
    const auto oldIptc = value(tiffTag::iptc);
    const auto oldResources = value(tiffTag::photoshop);
    const QByteArray xmp = inOldRoom(editor.xmp(oldXmp.value_or(QByteArray())), oldXmp, ' ');
    const QByteArray iptc = inOldRoom(editor.iptc(oldIptc.value_or(QByteArray()), IptcWhere::New), oldIptc, '\0');
    QByteArray resources = oldResources.value_or(QByteArray());
    if (iptc != oldIptc.value_or(QByteArray())) { // the records have their own tag; some programs also put them here
        const bool isTwice = resourceOf(resources, resource::iptc).has_value();
        resources = isTwice ? withResource(resources, resource::iptc, iptc) : resources;
        resources = withResource(resources, resource::digest, iptc.isEmpty() ? QByteArray() : iptcDigest(iptc));
    }
    if (change.dropsThumbnails)
        resources = withResource(withResource(resources, resource::thumbnail, {}), resource::oldThumbnail, {});
    if (editor.isDamaged())
        return damagedMetadata();
    changeTag(all.tags, tiffTag::xmp, tiffType::byteType, oldXmp, xmp);
    changeTag(all.tags, tiffTag::iptc, tiffType::undefinedType, oldIptc, iptc);
    changeTag(all.tags, tiffTag::photoshop, tiffType::byteType, oldResources, resources);
    const auto splices = tagSplices(bytes, all.tags, false);
    return splices ? Splices(*splices) : damagedMetadata();
}

Splices unsupported()
{
    return failure(ErrorCode::Unsupported,
                   QCoreApplication::translate("platform", "this type of file cannot hold metadata of its own"));
}

} // namespace

tl::unexpected<Error> damagedMetadata()
{
    return failure(ErrorCode::Unreadable, QCoreApplication::translate("platform", "its metadata is damaged"));
}

tl::unexpected<Error> tooMuchMetadata()
{
    return failure(ErrorCode::TooLarge,
                   QCoreApplication::translate("platform", "there is not enough room for the metadata"));
}

bool changesInPlace(Content content, const QByteArray &bytes)
{
    switch (content) {
    case Content::Jpeg:
    case Content::Png:
    case Content::Webp:
    case Content::Jpeg2000:
    case Content::Photoshop:
        return true;
    case Content::Tiff:
        return !isCameraRaw(bytes);
    default:
        return false;
    }
}

StatedBlocks statedBlocks(Content content, const QByteArray &bytes)
{
    if (content == Content::Tiff) {
        const auto value = [&](quint16 tag) { return tagValue(bytes, Directory::First, tag).value_or(QByteArray()); };
        const QByteArray resources = value(tiffTag::photoshop);
        return {bytes, value(tiffTag::xmp), value(tiffTag::iptc),
                resourceOf(resources, resource::digest).value_or(QByteArray())};
    }
    if (!changesInPlace(content, bytes))
        return {};
    const MetadataChange nothing;
    BlockEditor editor(nothing);
    const Splices unused = splicesOfParts(content, bytes, editor);
    Q_UNUSED(unused)
    return editor.stated();
}

Result<QList<Splice>> metadataSplices(Content content, const QByteArray &bytes, const MetadataChange &change)
{
    if (!changesInPlace(content, bytes))
        return unsupported();
    if (content == Content::Tiff)
        return tiffSplices(bytes, change);
    BlockEditor editor(change);
    return splicesOfParts(content, bytes, editor);
}

} // namespace platform
