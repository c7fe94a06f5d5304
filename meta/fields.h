#pragma once

#include "platform/imageio/edits/metadata_change.h"

#include <QList>
#include <QString>

#include <optional>

namespace meta {

/** What a field holds, and so how it is set. */
enum class FieldKind {
    Line,   ///< one text
    Text,   ///< one text of several lines
    Names,  ///< several texts, in an order
    Words,  ///< several texts, each once: set, added and taken out
    Date,   ///< see meta/taken_date.h
    Rating, ///< "-1" for rejected, "0" to "5"
};

/** Where a field stands in EXIF. */
struct ExifPlace
{
    platform::TagChange::Directory directory;
    quint16 tag;
};

/** Where a field stands in IPTC, and how many bytes of UTF-8 that may be. */
struct IptcPlace
{
    quint8 dataSet;
    int mostBytes;
};

/**
 * A field of a picture's metadata and what it is called in EXIF, IPTC and XMP, as the metadata working group has it. The manual's table is
 * compared with this one.
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

/** By its name; null where there is none. */
const Field *fieldNamed(const QString &name);

/** The text as far as it fits into so many bytes of UTF-8; cut between two characters as a reader sees them. */
QString cutToBytes(const QString &text, int mostBytes);

} // namespace meta
