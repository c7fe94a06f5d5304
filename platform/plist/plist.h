#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

/**
 * Property lists, XML or binary, whose root is a dictionary.
 *
 * Values are text, numbers (whole ones as qlonglong or qulonglong), true and false, dates, data, lists and dictionaries. The number of a keyed
 * archive is read as a dictionary with the key "CF$UID". See plist_check.h for the bounds on what is read.
 */
namespace platform {

/** The value of a key; an invalid one if the key does not exist. Fails with Unreadable if this is no such file. */
Result<QVariant> propertyListValue(const QByteArray &file, const QString &key);

/**
 * The file with another value for a key; an invalid value removes the key.
 *
 * Everything else keeps its value and type, and the file its form; comments and layout of XML are not kept. Fails with
 * Unreadable as above, with InvalidValue for a key or value that a property list cannot hold: a null inside a list, a date outside the
 * years 1933 to 2068, text with characters that XML does not allow, nesting beyond 60.
 */
Result<QByteArray> withPropertyListValue(const QByteArray &file, const QString &key, const QVariant &value);

} // namespace platform
