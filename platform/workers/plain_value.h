#pragma once

#include "platform/workers/message.h"

#include <QVariant>

namespace platform {

/**
 * Puts a value into a message: nothing, a truth, a number, a text, bytes, texts, and lists and dictionaries of such. Of any other
 * one what it is as a text goes.
 */
void writeValue(MessageWriter &writer, const QVariant &value);

/** Takes one out that may be anything. One that is nested more than 16 levels deep makes no sense. */
QVariant readValue(MessageReader &reader);

/** A value that has to be a dictionary. */
QVariantMap readFields(MessageReader &reader);

} // namespace platform
