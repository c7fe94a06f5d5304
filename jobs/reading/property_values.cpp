#include "jobs/reading/property_values.h"

#include "meta/metadata_file.h"
#include "platform/file/lent_file.h"
#include "platform/imageio/source/image_source.h"

#include <algorithm>

namespace jobs {
namespace {

constexpr int deepest = 8; ///< of nested dictionaries, whatever the file contains

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

QVariantMap said(const QVariant &value, const QVariant &reference = {})
{
    QVariantMap entry = {{key("value"), value}};
    if (reference.isValid())
        entry.insert(key("reference"), reference);
    return entry;
}

bool isPath(const QString &name)
{
    return name.contains(propertySeparator);
}

/** "{Exif}|FNumber" is in the group {Exif}, "|PixelWidth" in none. */
QVariantMap statedAt(const QVariantMap &properties, const QString &path)
{
    QStringList parts = path.split(propertySeparator);
    if (parts.constFirst().isEmpty())
        parts.removeFirst();
    const QString last = parts.takeLast();
    QVariantMap group = properties;
    for (const QString &part : std::as_const(parts))
        group = group.value(part).toMap();
    return group.contains(last) ? said(group.value(last), group.value(last + QStringLiteral("Ref"))) : QVariantMap();
}

void addFields(QVariantMap &values, const QStringList &names, const QVariantMap &fields)
{
    for (const QString &name : names)
        if (fields.contains(name))
            values.insert(name, said(fields.value(name).toMap().value(key("value"))));
}

void addNames(QStringList &names, const QVariantMap &properties, const QString &above, int depth)
{
    for (auto entry = properties.cbegin(); entry != properties.cend(); ++entry) {
        const QString name = above + propertySeparator + entry.key();
        if (entry->typeId() != QMetaType::QVariantMap)
            names.append(above.isEmpty() ? name : name.mid(1));
        else if (depth < deepest)
            addNames(names, entry->toMap(), name, depth + 1);
    }
}

} // namespace

AnswerMessage propertyValues(const std::shared_ptr<const platform::LentFile> &picture, const QVariantMap &asked)
{
    const QStringList names = asked.value(key("names")).toStringList();
    QVariantMap values;
    AnswerMessage answer;
    const auto fields = meta::readFields(picture, asked.value(key("packet")).toByteArray());
    if (fields)
        addFields(values, names, fields->value(key("fields")).toMap());
    else
        answer.problem = fields.error().message;
    if (std::any_of(names.begin(), names.end(), isPath)) {
        const auto properties = platform::ImageSource::fromLent(picture).and_then(
            [](const platform::ImageSource &source) { return source.properties(); });
        for (const QString &name : names)
            if (const QVariantMap stated = properties && isPath(name) ? statedAt(*properties, name) : QVariantMap();
                !stated.isEmpty())
                values.insert(name, stated);
    }
    answer.values = {{key("values"), values}};
    return answer;
}

QStringList propertyNames(const QVariantMap &properties)
{
    QStringList names;
    addNames(names, properties, {}, 1);
    return names;
}

} // namespace jobs
