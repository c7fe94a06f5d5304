#pragma once

#include "meta/fields.h"
#include "meta/private_data.h"
#include "platform/imageio/edits/metadata_edit.h"

#include <QMap>
#include <QVariantMap>

#include <functional>

namespace meta {

/** What happens to one field. A field that is not named stays as it is. */
struct FieldEdit
{
    enum class What {
        Set,
        Clear,  ///< removed from EXIF, IPTC and XMP
        Change, ///< words are added and removed; a date is shifted, or gets a zone
    };
    What what = What::Set;
    QStringList texts = {};   ///< set, or added
    QStringList removed = {}; ///< words to be removed
    qint64 shiftSeconds = 0;
    QString zone = {}; ///< "+01:00"; empty: it stays

    bool operator==(const FieldEdit &) const = default;
};

/** The work to be done on the metadata of a picture. */
struct MetadataWork
{
    QMap<QString, FieldEdit> fields; ///< by name
    QSet<PrivateData> removed = {};

    bool isEmpty() const { return fields.isEmpty() && removed.isEmpty(); }
};

/**
 * The work described by a dictionary: {fields: {name: {set: [texts]} or {clear: true} or {add: [texts], remove:
 * [texts]} or {shift: seconds, zone: "+01:00"}}, remove: [groups]}. Fails with InvalidValue for anything else, and
 * names it.
 */
platform::Result<MetadataWork> workFrom(const QVariantMap &map);

/** The same with other texts, such as those whose tokens are filled in. */
MetadataWork withTexts(const MetadataWork &work, const std::function<QString(const QString &)> &text);

/**
 * The new values of the fields that the work changes: {name: texts, none if it is removed}. Fields whose EXIF, IPTC and
 * XMP disagree now count as changed, since all will have the same value. Fails with InvalidValue like the edit.
 *
 * @param stated  see fieldMap()
 */
platform::Result<QVariantMap> plannedFields(const QVariantMap &stated, const MetadataWork &work);

/** The edit that does it. It must not outlive @p work or anything else. */
platform::MetadataEdit editFor(const MetadataWork &work);

/** A rating alone, from -1 (rejected) to 5; 0 removes it. */
MetadataWork workOfRating(int rating);

} // namespace meta
