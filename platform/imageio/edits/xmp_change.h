#pragma once

// Inside platform/ only.

#include "platform/imageio/edits/metadata_change.h"

#include <optional>

namespace platform {

/** One text of a property: of a list, of alternatives with its language, of a structure with its name. */
struct XmpItem
{
    QString text;
    QString language = {};
    QString member = {}; ///< without its prefix
};

/** What a packet says of a property; none where it does not. */
QList<XmpItem> xmpItems(const QByteArray &packet, const XmpName &property);

/** The texts of such a property as its form has them: of alternatives the one for everybody, else the first. */
QStringList xmpTexts(const QByteArray &packet, const XmpChange &property);

/**
 * The packet with these changes; a new one where @p packet is empty. All other properties stay, in their words and prefixes; of
 * alternatives those of other languages that say something else. None where the packet is not well formed.
 */
std::optional<QByteArray> changedXmp(const QByteArray &packet, const MetadataChange &change);

} // namespace platform
