#pragma once

#include "meta/fields.h"
#include "meta/private_data.h"
#include "platform/imageio/edits/metadata_edit.h"

#include <QMap>
#include <QVariantMap>

#include <functional>

namespace meta {

/** What becomes of one field. A field that is not named stays as it is. */
struct FieldEdit
{
    enum class What {
        Set,
        Clear,  ///< taken out of EXIF, IPTC and XMP
        Change, ///< words are added and taken out; a date is shifted, or gets a zone
    };
    What what = What::Set;
    QStringList texts = {};   ///< set, or added
    QStringList removed = {}; ///< words that are taken out
    qint64 shiftSeconds = 0;
    QString zone = {}; ///< "+01:00"; empty: it stays

    bool operator==(const FieldEdit &) const = default;
};

/** What is to be done to the metadata of a picture. */
struct MetadataWork
{
    QMap<QString, FieldEdit> fields; ///< by name
    QSet<PrivateData> removed = {};

    bool isEmpty() const { return fields.isEmpty() && removed.isEmpty(); }
};

/**
 * The work of a dictionary: {fields: {name: {set: [texts]} or {clear: true} or {add: [texts], remove: [texts]} or {shift: seconds, zone:
 * "+01:00"}}, remove: [groups]}. Fails with InvalidValue for anything else, and names it.
 */
platform::Result<MetadataWork> workFrom(const QVariantMap &map);

/** The same with other texts, such as those whose tokens are filled in. */
MetadataWork withTexts(const MetadataWork &work, const std::function<QString(const QString &)> &text);

/**
 * What fields will say, of those that the work changes: {name: texts, none where it is taken out}. What EXIF, IPTC and XMP say differently
 * now is changed too, since they will all say it. Fails with InvalidValue as the edit would.
 *
 * @param stated  see fieldMap()
 */
platform::Result<QVariantMap> plannedFields(const QVariantMap &stated, const MetadataWork &work);

/** The edit that does it. It must outlive neither @p work nor anything else. */
platform::MetadataEdit editFor(const MetadataWork &work);

/** A rating alone, from -1 (rejected) to 5; 0 takes it out. */
MetadataWork workOfRating(int rating);

} // namespace meta
