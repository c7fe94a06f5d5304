#pragma once

#include "meta/fields.h"
#include "platform/imageio/edits/metadata_edit.h"

#include <QVariantMap>

namespace meta {

/** The values of one field in EXIF, IPTC and XMP; texts trimmed. */
struct FieldValues
{
    QStringList exif;
    QStringList iptc;
    QStringList xmp;
    QStringList value;       ///< which of them is used; empty if none has a value
    bool isDisputed = false; ///< two of them disagree
};

FieldValues fieldValues(const Field &field, const platform::StatedMetadata &stated);

/** Only the value that is used. */
QStringList fieldValue(const Field &field, const platform::StatedMetadata &stated);

/** All fields with a value: {name: {value, exif, iptc, xmp (lists of texts), disputed}}. */
QVariantMap fieldMap(const platform::StatedMetadata &stated);

} // namespace meta
