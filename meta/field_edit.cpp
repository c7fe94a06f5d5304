#include "meta/field_edit.h"

#include "meta/exif_names.h"
#include "meta/field_values.h"
#include "meta/taken_date.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace meta {
namespace {

using platform::MetadataChange;
using platform::Result;
using platform::StatedMetadata;
using platform::TagChange;
using Directory = TagChange::Directory;
using What = TagChange::What;

constexpr quint16 asciiType = 2;
constexpr quint16 shortType = 3;

tl::unexpected<platform::Error> invalid(const QString &text)
{
    return platform::failure(platform::ErrorCode::InvalidValue, text);
}

/** Without a value the tag is removed. */
void putTag(MetadataChange &change, const ExifPlace &place, const QString &text)
{
    if (text.isEmpty())
        change.tags.append({place.directory, place.tag, What::Remove});
    else
        change.tags.append({place.directory, place.tag, What::Set, asciiType, text.toUtf8() + '\0'});
}

void putIptc(MetadataChange &change, const IptcPlace &place, const QStringList &texts)
{
    QStringList cut;
    for (const QString &text : texts)
        cut += cutToBytes(text, place.mostBytes);
    change.iptc.append({place.dataSet, cut});
}

void putXmp(MetadataChange &change, platform::XmpChange property, const QStringList &texts)
{
    property.texts = texts;
    change.xmp.append(property);
}

void putDate(MetadataChange &change, const Field &field, const QStringList &texts)
{
    const auto date = TakenDate::fromText(texts.value(0));
    const auto exif = [](quint16 tag) { return ExifPlace{Directory::Exif, tag}; };
    putTag(change, exif(exifTag::taken), date ? date->exifText() : QString());
    putTag(change, exif(exifTag::takenSubSeconds), date ? date->subSeconds : QString());
    putTag(change, exif(exifTag::takenZone), date ? date->exifZone() : QString());
    const auto one = [](const QString &text) { return text.isEmpty() ? QStringList() : QStringList{text}; };
    change.iptc.append({iptcDataSet::dayTaken, one(date ? date->iptcDay() : QString())});
    change.iptc.append({iptcDataSet::timeTaken, one(date ? date->iptcTime() : QString())});
    putXmp(change, field.xmp, texts.mid(0, 1));
    putXmp(change, exifDateInXmp(), texts.mid(0, 1));
}

/** XMP has the rating; the tags that Windows uses for it are kept equal if they exist. */
void putRating(MetadataChange &change, const Field &field, const QStringList &texts)
{
    static constexpr std::array<quint16, 6> percents = {0, 1, 25, 50, 75, 99};
    const int stars = std::clamp(texts.value(0).toInt(), 0, 5);
    const auto number = [](quint16 value) { return QByteArray(1, char(value >> 8)) + char(value & 0xff); };
    putXmp(change, field.xmp, texts);
    change.tags.append({Directory::First, exifTag::rating, What::SetIfThere, shortType, number(quint16(stars))});
    change.tags.append(
        {Directory::First, exifTag::ratingPercent, What::SetIfThere, shortType, number(percents.at(size_t(stars)))});
}

void putField(MetadataChange &change, const Field &field, const QStringList &texts)
{
    if (field.kind == FieldKind::Date)
        return putDate(change, field, texts);
    if (field.kind == FieldKind::Rating)
        return putRating(change, field, texts);
    if (field.exif)
        putTag(change, *field.exif, namesInExif(texts));
    if (field.iptc)
        putIptc(change, *field.iptc, texts);
    putXmp(change, field.xmp, texts);
}

QStringList changedWords(const FieldEdit &edit, QStringList words)
{
    for (const QString &word : edit.removed)
        words.removeAll(word);
    for (const QString &word : edit.texts)
        if (!words.contains(word))
            words += word;
    return words;
}

QStringList changedDate(const FieldEdit &edit, const QStringList &now)
{
    auto date = TakenDate::fromText(now.value(0));
    if (!date)
        return now;
    *date = date->shifted(edit.shiftSeconds);
    if (!edit.zone.isEmpty() && date->time)
        date->zoneSeconds = zoneFromText(edit.zone);
    return {date->toText()};
}

/** The value of a field afterwards; none if it does not change. */
std::optional<QStringList> wanted(const Field &field, const FieldEdit &edit, const QStringList &now)
{
    switch (edit.what) {
    case FieldEdit::What::Set:
        return edit.texts;
    case FieldEdit::What::Clear:
        return QStringList();
    case FieldEdit::What::Change:
        break;
    }
    const QStringList then = field.kind == FieldKind::Date ? changedDate(edit, now) : changedWords(edit, now);
    return then == now ? std::nullopt : std::optional(then);
}

/** As they are read back: trimmed, and for IPTC truncated to what it holds. */
QStringList cleaned(const Field &field, const QStringList &texts)
{
    QStringList clean;
    for (const QString &text : texts) {
        QString each = text.trimmed();
        each.remove(QChar::Null);
        if (!each.isEmpty() && (field.kind != FieldKind::Words || !clean.contains(each)))
            clean += each;
    }
    const bool isOne = field.kind != FieldKind::Names && field.kind != FieldKind::Words;
    return isOne ? clean.mid(0, 1) : clean;
}

Result<FieldEdit> checked(const Field &field, FieldEdit edit)
{
    edit.texts = cleaned(field, edit.texts);
    edit.removed = cleaned(field, edit.removed);
    if (edit.what != FieldEdit::What::Set)
        return edit;
    const auto wrong = [&] {
        return invalid(QCoreApplication::translate("meta", "\"%1\" cannot be the value of the field %2")
                           .arg(edit.texts.value(0), field.name));
    };
    if (edit.texts.isEmpty())
        return wrong();
    if (field.kind == FieldKind::Date) {
        const auto date = TakenDate::fromText(edit.texts.first());
        if (!date)
            return wrong();
        edit.texts = QStringList{date->toText()};
    }
    bool isNumber = true;
    if (field.kind == FieldKind::Rating) {
        const int rating = edit.texts.first().toInt(&isNumber);
        if (!isNumber || rating < -1 || rating > 5)
            return wrong();
        edit.texts = QStringList{QString::number(rating)};
    }
    return edit;
}

Result<MetadataChange> changeFor(const MetadataWork &work, const StatedMetadata &stated)
{
    MetadataChange change;
    for (auto each = work.fields.begin(); each != work.fields.end(); ++each) {
        const Field *field = fieldNamed(each.key());
        if (!field)
            return invalid(QCoreApplication::translate("meta", "there is no field %1").arg(each.key()));
        const auto edit = checked(*field, each.value());
        if (!edit)
            return tl::unexpected<platform::Error>(edit.error());
        if (const auto texts = wanted(*field, *edit, fieldValue(*field, stated)))
            putField(change, *field, *texts);
    }
    if (!work.removed.isEmpty() && !stated.isInPlace())
        return platform::failure(
            platform::ErrorCode::Unsupported,
            QCoreApplication::translate("meta", "private data is not removed from files of this type"));
    addRemoval(change, work.removed);
    return change;
}

/** Whether all three have the new value, so that no program finds another one; a sidecar is XMP alone. */
bool says(const StatedMetadata &stated, const Field &field, const QStringList &texts)
{
    const FieldValues values = fieldValues(field, stated);
    if (!stated.isInPlace())
        return values.xmp == texts;
    return !values.isDisputed && values.value == texts;
}

Result<FieldEdit> editFromMap(const QString &name, const QVariantMap &map)
{
    FieldEdit edit;
    const auto texts = [&](const char *key) { return map.value(QString::fromLatin1(key)).toStringList(); };
    const auto has = [&](const char *key) { return map.contains(QString::fromLatin1(key)); };
    const Field *field = fieldNamed(name);
    if (!field)
        return invalid(QCoreApplication::translate("meta", "there is no field %1").arg(name));
    const bool isWords = field->kind == FieldKind::Words && (has("add") || has("remove"));
    const bool isShift = field->kind == FieldKind::Date && (has("shift") || has("zone"));
    if (has("set")) {
        edit.texts = texts("set");
    } else if (map.value(QStringLiteral("clear")).toBool()) {
        edit.what = FieldEdit::What::Clear;
    } else if (isWords || isShift) {
        edit.what = FieldEdit::What::Change;
        edit.texts = texts("add");
        edit.removed = texts("remove");
        edit.shiftSeconds = map.value(QStringLiteral("shift")).toLongLong();
        edit.zone = map.value(QStringLiteral("zone")).toString();
    } else {
        return invalid(QCoreApplication::translate("meta", "no change is given for the field %1").arg(name));
    }
    if (!edit.zone.isEmpty() && !zoneFromText(edit.zone))
        return invalid(QCoreApplication::translate("meta", "\"%1\" is not a time zone").arg(edit.zone));
    return edit;
}

} // namespace

Result<MetadataWork> workFrom(const QVariantMap &map)
{
    MetadataWork work;
    const QVariantMap named = map.value(QStringLiteral("fields")).toMap();
    for (auto each = named.begin(); each != named.end(); ++each) {
        const auto edit = editFromMap(each.key(), each.value().toMap());
        if (!edit)
            return tl::unexpected<platform::Error>(edit.error());
        work.fields.insert(each.key(), *edit);
    }
    for (const QString &name : map.value(QStringLiteral("remove")).toStringList()) {
        const auto group = privateDataNamed(name);
        if (!group)
            return invalid(QCoreApplication::translate("meta", "there is no group %1").arg(name));
        work.removed.insert(*group);
    }
    return work;
}

MetadataWork withTexts(const MetadataWork &work, const std::function<QString(const QString &)> &text)
{
    MetadataWork filled = work;
    for (FieldEdit &edit : filled.fields)
        for (QString &each : edit.texts)
            each = text(each);
    return filled;
}

Result<QVariantMap> plannedFields(const QVariantMap &stated, const MetadataWork &work)
{
    QVariantMap planned;
    const auto said = [&](const QString &name) { return stated.value(name).toMap(); };
    const auto valueOf = [&](const QString &name) { return said(name).value(QStringLiteral("value")).toStringList(); };
    for (auto each = work.fields.begin(); each != work.fields.end(); ++each) {
        const Field *field = fieldNamed(each.key());
        if (!field)
            return invalid(QCoreApplication::translate("meta", "there is no field %1").arg(each.key()));
        const auto edit = checked(*field, each.value());
        if (!edit)
            return tl::unexpected<platform::Error>(edit.error());
        const QStringList now = valueOf(each.key());
        const auto then = wanted(*field, *edit, now);
        if (then && (*then != now || said(each.key()).value(QStringLiteral("disputed")).toBool()))
            planned.insert(each.key(), *then);
    }
    for (auto each = stated.begin(); each != stated.end(); ++each)
        if (work.removed.contains(PrivateData::Places) && isPlace(each.key()))
            planned.insert(each.key(), QStringList());
    return planned;
}

platform::MetadataEdit editFor(const MetadataWork &work)
{
    // The wanted values are computed once, from the previous ones.
    const auto meant = std::make_shared<QMap<QString, QStringList>>();
    const auto change = [work, meant](const StatedMetadata &stated) -> Result<MetadataChange> {
        meant->clear();
        auto made = changeFor(work, stated);
        if (!made)
            return made;
        for (auto each = work.fields.begin(); each != work.fields.end(); ++each) {
            const Field *field = fieldNamed(each.key());
            if (const auto texts = wanted(*field, *checked(*field, each.value()), fieldValue(*field, stated)))
                meant->insert(each.key(), *texts);
        }
        return made;
    };
    const auto isDone = [work, meant](const StatedMetadata &stated) {
        const auto removed = [&](const Field &field) {
            return work.removed.contains(PrivateData::Places) && isPlace(field.name);
        };
        for (auto each = meant->begin(); each != meant->end(); ++each)
            if (const Field &field = *fieldNamed(each.key()); !removed(field) && !says(stated, field, each.value()))
                return false;
        return true;
    };
    return {change, isDone};
}

MetadataWork workOfRating(int rating)
{
    const bool isNone = rating == 0;
    FieldEdit edit{isNone ? FieldEdit::What::Clear : FieldEdit::What::Set};
    if (!isNone)
        edit.texts = QStringList{QString::number(rating)};
    return {{{QStringLiteral("rating"), edit}}};
}

} // namespace meta
