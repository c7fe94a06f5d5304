#pragma once

#include "platform/workers/message.h"

#include <QVariant>

namespace platform {

/**
 * Writes a value into a message: nothing, a boolean, a number, a text, bytes, texts, and lists and dictionaries of
 * such. Any other value is written as text.
 */
void writeValue(MessageWriter &writer, const QVariant &value);

/** Reads a value, which may be anything. More than 16 levels of nesting are invalid. */
QVariant readValue(MessageReader &reader);

/** A value that must be a dictionary. */
QVariantMap readFields(MessageReader &reader);

} // namespace platform
