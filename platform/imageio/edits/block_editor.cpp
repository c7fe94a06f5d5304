#include "platform/imageio/edits/block_editor.h"

#include "platform/imageio/edits/iptc_edit.h"
#include "platform/imageio/edits/tiff_tag_edit.h"
#include "platform/imageio/edits/xmp_change.h"
#include "platform/imageio/xmp/xmp_bounds.h"

#include <algorithm>

namespace platform {
namespace {

bool setsAny(const QList<IptcChange> &changes)
{
    return std::any_of(changes.begin(), changes.end(),
                       [](const IptcChange &change) { return !change.texts.isEmpty(); });
}

} // namespace

QByteArray BlockEditor::unless(const std::optional<QByteArray> &changed, const QByteArray &old)
{
    m_isDamaged = m_isDamaged || !changed;
    return changed.value_or(old);
}

QByteArray BlockEditor::exif(const QByteArray &block)
{
    m_stated.exif = block;
    if (m_change.tags.isEmpty() && !m_change.dropsThumbnails)
        return block;
    return unless(exifBlockWith(block, m_change.tags, m_change.dropsThumbnails), block);
}

QByteArray BlockEditor::xmp(const QByteArray &packet)
{
    m_stated.xmp = packet;
    if (m_change.xmp.isEmpty() && !m_change.dropsXmp)
        return packet;
    return unless(isDigestibleXmp(packet) ? changedXmp(packet, m_change) : std::nullopt, packet);
}

QByteArray BlockEditor::iptc(const QByteArray &records, IptcWhere where)
{
    m_stated.iptc = records;
    const bool isMade = where == IptcWhere::New && setsAny(m_change.iptc);
    if (m_change.iptc.isEmpty() || (records.isEmpty() && !isMade))
        return records;
    return unless(changedIptc(records, m_change.iptc), records);
}

QByteArray BlockEditor::resources(const QByteArray &resources)
{
    m_stated.iptc = resourceOf(resources, resource::iptc).value_or(QByteArray());
    m_stated.digest = resourceOf(resources, resource::digest).value_or(QByteArray());
    return unless(changedResources(resources, m_change), resources);
}

} // namespace platform
