#pragma once

// Inside platform/ only: files that are chains of boxes, each with its length (4 bytes, or 8 after the name), its name
// and its contents: JPEG 2000, JPEG XL, HEIF.

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
    qsizetype dataAt = 0; ///< of its contents
    qsizetype dataSize() const { return at + size - dataAt; }
};

/**
 * The consecutive boxes between two positions of @p bytes; what follows a damaged one is ignored. Never reads outside
 * @p bytes.
 */
struct BoxChain
{
    QList<Box> boxes;
    qsizetype end = 0; ///< after the last valid box
};
BoxChain boxesBetween(const QByteArray &bytes, qsizetype begin, qsizetype end);

/** All bytes of one box. */
QByteArray boxOf(const char *name, const QByteArray &data);

/** The contents of the box, without a copy. */
QByteArray dataOf(const QByteArray &bytes, const Box &box);

} // namespace platform
