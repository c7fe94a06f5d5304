#pragma once

#include "meta/fields.h"
#include "platform/imageio/edits/metadata_edit.h"

#include <QVariantMap>

namespace meta {

/** What EXIF, IPTC and XMP say of one field; texts without what surrounds them. */
struct FieldValues
{
    QStringList exif;
    QStringList iptc;
    QStringList xmp;
    QStringList value;       ///< which of them counts; empty where none says anything
    bool isDisputed = false; ///< two of them that say something do not say the same
};

FieldValues fieldValues(const Field &field, const platform::StatedMetadata &stated);

/** What counts of a field alone. */
QStringList fieldValue(const Field &field, const platform::StatedMetadata &stated);

/** All fields that are stated: {name: {value, exif, iptc, xmp (lists of texts), disputed}}. */
QVariantMap fieldMap(const platform::StatedMetadata &stated);

} // namespace meta
