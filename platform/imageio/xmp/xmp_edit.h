#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace platform {

/** A property of XMP by the address of its namespace, such as "http://purl.org/dc/elements/1.1/", and its own name. */
struct XmpName
{
    QString space;
    QString name;
};

/** A simple property with its new value. */
struct XmpValue
{
    XmpName property;
    QString text;
};

/**
 * An XMP packet with those of its properties that @p isKept selects, and with other texts for those of @p values that
 * it contains; none is added. Nested properties stay or go with their parent. What stays keeps its words and prefixes.
 *
 * None if the packet is not well-formed XML, or declares a document type.
 */
std::optional<QByteArray> editedXmp(const QByteArray &packet, const std::function<bool(const XmpName &)> &isKept,
                                    const QList<XmpValue> &values = {});

/**
 * The packet with the descriptions of another packet, @p other, appended; @p other's properties must not be in it. None
 * if that cannot be done.
 */
std::optional<QByteArray> joinedXmp(const QByteArray &packet, const QByteArray &other);

/** True if the packet has any property at all. */
bool saysAnything(const QByteArray &packet);

} // namespace platform
