#include "app/modules/program_files.h"

#include "jobs/reading/field_errand.h"
#include "meta/metadata_file.h"

#include "presets/unusable_database.h"

namespace script {

QString ProgramFiles::setAsideUnusableDatabase(const QString &path) const
{
    return presets::setAsideUnusableDatabase(path);
}

QVariantMap ProgramFiles::readFields(const QString &path) const
{
    const auto read = meta::readFields(path);
    return jobs::fieldsAnswer(path, read ? QString() : read.error().message, read.value_or(QVariantMap()));
}

QVariantMap ProgramFiles::writeFields(const QString &path, const QVariantMap &work) const
{
    const auto written = meta::workFrom(work).and_then(
        [&](const meta::MetadataWork &checked) { return meta::writeFields(path, checked); });
    return {{QStringLiteral("problem"), written ? QStringLiteral("") : written.error().message},
            {QStringLiteral("changed"), written && written->isChanged},
            {QStringLiteral("file"), written ? written->file : path}};
}

QStringList ProgramFiles::fieldNames() const
{
    QStringList names;
    for (const meta::Field &field : meta::fields())
        names += field.name;
    return names;
}

QStringList ProgramFiles::privateDataNames() const
{
    return meta::privateDataNames();
}

} // namespace script
