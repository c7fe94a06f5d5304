#pragma once

#include "platform/imageio/edits/metadata_change.h"

#include <QList>
#include <QString>

#include <optional>

namespace meta {

/** The type of a field, which determines how it is set. */
enum class FieldKind {
    Line,   ///< one text
    Text,   ///< one text of several lines
    Names,  ///< several texts, in an order
    Words,  ///< several texts, each once: set, added and removed
    Date,   ///< see meta/taken_date.h
    Rating, ///< "-1" for rejected, "0" to "5"
};

/** Where a field is stored in EXIF. */
struct ExifPlace
{
    platform::TagChange::Directory directory;
    quint16 tag;
};

/** Where a field is stored in IPTC, and its limit in bytes of UTF-8. */
struct IptcPlace
{
    quint8 dataSet;
    int mostBytes;
};

/**
 * A field of a picture's metadata and its names in EXIF, IPTC and XMP, according to the metadata working group. A check
 * compares the manual's table with this one.
 */
struct Field
{
    QString name; ///< in scripts and presets, such as "caption"
    FieldKind kind;
    std::optional<ExifPlace> exif;
    std::optional<IptcPlace> iptc;
    platform::XmpChange xmp; ///< without texts
};

/** All of them, in the order in which they are shown. */
const QList<Field> &fields();

/** By its name; null if there is none. */
const Field *fieldNamed(const QString &name);

/** As much of the text as fits into so many bytes of UTF-8; cut between two characters as a reader sees them. */
QString cutToBytes(const QString &text, int mostBytes);

} // namespace meta
