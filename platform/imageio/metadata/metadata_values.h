#pragma once

// Inside platform/ only: values of the nested dictionaries converted to values of tags.

#include <exiv2/exiv2.hpp>

#include <QVariant>

#include <memory>

namespace platform {

/** The byte order of every value made here. */
constexpr Exiv2::ByteOrder madeByteOrder = Exiv2::littleEndian;

using TagValue = std::unique_ptr<Exiv2::Value>;

/** @p value in the form of a tag of @p type; null if impossible: text for a number, a number out of range ... */
TagValue tagValue(Exiv2::TypeId type, const QString &name, const QVariant &value);

/** Degrees, minutes and seconds of a number of degrees. */
TagValue coordinateValue(double degrees);

/** Hours, minutes and seconds of "13:05:09.25"; null for other texts. */
TagValue timeValue(const QString &text);

/** Bytes as they are, in a value of @p type. */
TagValue bytesValue(Exiv2::TypeId type, const QByteArray &bytes);

/** The elements of a list, or the one value as a list. */
QVariantList listOf(const QVariant &value);

} // namespace platform
