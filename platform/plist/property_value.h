#pragma once

#include <QMetaType>
#include <QVariant>

#include <utility>

namespace platform {

/**
 * A value of a property list: text, a number, true or false, a date, data, or a list or dictionary of these; an invalid
 * variant is none. Operations that accept only these say so with this type.
 */
struct PropertyValue
{
    PropertyValue() = default;
    PropertyValue(QVariant content) : value(std::move(content)) {}

    QVariant value;
};

} // namespace platform

Q_DECLARE_METATYPE(platform::PropertyValue)
