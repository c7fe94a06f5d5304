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

/** The packet's value of a property; none if it has none. */
QList<XmpItem> xmpItems(const QByteArray &packet, const XmpName &property);

/** The texts of such a property in its form: of alternatives the default one, else the first. */
QStringList xmpTexts(const QByteArray &packet, const XmpChange &property);

/**
 * The packet with these changes; a new one if @p packet is empty. All other properties stay, with their words and
 * prefixes; of alternatives also those of other languages that say something else. None if the packet is not well
 * formed.
 */
std::optional<QByteArray> changedXmp(const QByteArray &packet, const MetadataChange &change);

} // namespace platform
