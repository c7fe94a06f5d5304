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

/** A simple property with what it is to say. */
struct XmpValue
{
    XmpName property;
    QString text;
};

/**
 * An XMP packet with those of its properties that @p isKept says, and with other texts for those of @p values that it states;
 * none is added. Properties within a property stay or go with it. What stays says the same in the same words and prefixes.
 *
 * None where the packet is no well-formed XML, or has a document type of its own.
 */
std::optional<QByteArray> editedXmp(const QByteArray &packet, const std::function<bool(const XmpName &)> &isKept,
                                    const QList<XmpValue> &values = {});

/**
 * The packet with the descriptions of @p other, which is one too, added to its own; @p other's properties must not be in it. None
 * where that cannot be done.
 */
std::optional<QByteArray> joinedXmp(const QByteArray &packet, const QByteArray &other);

/** True where the packet has any property at all. */
bool saysAnything(const QByteArray &packet);

} // namespace platform
