#include "meta/field_values.h"

#include "meta/exif_names.h"
#include "meta/taken_date.h"

#include <algorithm>

namespace meta {
namespace {

using Directory = platform::TagChange::Directory;
using platform::StatedMetadata;

QStringList trimmed(const QStringList &texts)
{
    QStringList kept;
    for (const QString &text : texts)
        if (const QString each = text.trimmed(); !each.isEmpty())
            kept += each;
    return kept;
}

QStringList dateText(const std::optional<TakenDate> &date)
{
    return date ? QStringList{date->toText()} : QStringList();
}

FieldValues dateValues(const Field &field, const StatedMetadata &stated)
{
    const auto exif = [&](quint16 tag) { return stated.exif(Directory::Exif, tag); };
    FieldValues values;
    values.exif =
        dateText(TakenDate::fromExif(exif(exifTag::taken), exif(exifTag::takenSubSeconds), exif(exifTag::takenZone)));
    values.iptc = dateText(
        TakenDate::fromIptc(stated.iptc(iptcDataSet::dayTaken).value(0), stated.iptc(iptcDataSet::timeTaken).value(0)));
    for (const platform::XmpChange &property : {field.xmp, exifDateInXmp()})
        if (values.xmp.isEmpty())
            values.xmp = dateText(TakenDate::fromText(stated.xmp(property).value(0)));
    return values;
}

FieldValues textValues(const Field &field, const StatedMetadata &stated)
{
    FieldValues values;
    if (field.exif) {
        const QString text = stated.exif(field.exif->directory, field.exif->tag);
        values.exif = trimmed(field.kind == FieldKind::Names ? namesFromExif(text) : QStringList{text});
    }
    if (field.iptc)
        values.iptc = trimmed(stated.iptc(field.iptc->dataSet));
    values.xmp = trimmed(stated.xmp(field.xmp));
    const bool isOne = field.kind != FieldKind::Names && field.kind != FieldKind::Words;
    if (isOne && values.iptc.size() > 1)
        values.iptc = values.iptc.mid(0, 1);
    if (field.kind == FieldKind::Words) {
        values.iptc.removeDuplicates();
        values.xmp.removeDuplicates();
    }
    return values;
}

/** IPTC agrees if it contains as much of the value as it can hold. It writes dates in another form, and whole. */
QStringList cut(QStringList texts, const Field &field)
{
    if (field.kind == FieldKind::Date)
        return texts;
    for (QString &text : texts)
        text = field.iptc ? cutToBytes(text, field.iptc->mostBytes).trimmed() : text;
    return texts;
}

bool isSame(const Field &field, QStringList a, QStringList b)
{
    if (a.isEmpty() || b.isEmpty())
        return true;
    if (field.kind == FieldKind::Date) {
        const auto one = TakenDate::fromText(a.first());
        const auto other = TakenDate::fromText(b.first());
        return one && other ? one->agreesWith(*other) : a == b;
    }
    if (field.kind == FieldKind::Words) {
        std::sort(a.begin(), a.end());
        std::sort(b.begin(), b.end());
    }
    return a == b;
}

/** The order of trust recommended by the metadata working group. */
const QStringList &believed(const FieldValues &values, bool isIptcNewer)
{
    if (!values.exif.isEmpty())
        return values.exif;
    if (values.xmp.isEmpty() || (isIptcNewer && !values.iptc.isEmpty()))
        return values.iptc;
    return values.xmp;
}

} // namespace

FieldValues fieldValues(const Field &field, const StatedMetadata &stated)
{
    FieldValues values = field.kind == FieldKind::Date ? dateValues(field, stated) : textValues(field, stated);
    values.value = believed(values, stated.isIptcNewer());
    if (stated.hasSidecar() && !values.xmp.isEmpty()) { // the most recent value, for a file that cannot store it itself
        values.value = values.xmp;
        return values;
    }
    const bool iptcDiffers =
        !isSame(field, values.iptc, cut(values.xmp, field)) && !isSame(field, values.iptc, values.xmp);
    values.isDisputed = !isSame(field, values.exif, values.xmp) || iptcDiffers ||
                        (values.xmp.isEmpty() && !isSame(field, cut(values.exif, field), values.iptc));
    return values;
}

QStringList fieldValue(const Field &field, const StatedMetadata &stated)
{
    return fieldValues(field, stated).value;
}

QVariantMap fieldMap(const StatedMetadata &stated)
{
    QVariantMap all;
    for (const Field &field : fields()) {
        const FieldValues values = fieldValues(field, stated);
        if (values.value.isEmpty())
            continue;
        all.insert(field.name, QVariantMap{{QStringLiteral("value"), values.value},
                                           {QStringLiteral("exif"), values.exif},
                                           {QStringLiteral("iptc"), values.iptc},
                                           {QStringLiteral("xmp"), values.xmp},
                                           {QStringLiteral("disputed"), values.isDisputed}});
    }
    return all;
}

} // namespace meta
