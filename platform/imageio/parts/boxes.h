#pragma once

// Inside platform/ only: files that are chains of boxes, each with its length (4 bytes, or 8 behind the name), its name and what it
// holds: JPEG 2000, JPEG XL, HEIF.

#include <QByteArray>
#include <QList>

#include <optional>

namespace platform {

/** One box of a file. */
struct Box
{
    QByteArray name; ///< four letters
    qsizetype at = 0;
    qsizetype size = 0;   ///< all of it
    qsizetype dataAt = 0; ///< of what it holds
    qsizetype dataSize() const { return at + size - dataAt; }
};

/**
 * The boxes between two positions of @p bytes, one behind the other; what a damaged one is followed by is not looked at. Never
 * reads outside @p bytes.
 */
struct BoxChain
{
    QList<Box> boxes;
    qsizetype end = 0; ///< behind the last sound box
};
BoxChain boxesBetween(const QByteArray &bytes, qsizetype begin, qsizetype end);

/** All bytes of one box. */
QByteArray boxOf(const char *name, const QByteArray &data);

/** What the box holds, without a copy. */
QByteArray dataOf(const QByteArray &bytes, const Box &box);

} // namespace platform
