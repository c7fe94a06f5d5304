#pragma once

#include <QByteArray>

namespace platform {

/** Whether the bytes begin like a binary property list. */
bool isBinaryPropertyList(const QByteArray &bytes);

/**
 * Whether a property list may be given to the parser, which trusts its input.
 *
 * False for anything that is damaged, more than 16 MB, nested more than 64 deep, or, in the binary form, larger than 128 MB
 * when expanded; and for what the parser would not keep: sets, nulls, text with a zero inside, entities and attributes
 * of XML. Reads only.
 */
bool isSoundPropertyList(const QByteArray &bytes);

} // namespace platform
