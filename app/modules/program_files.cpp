#include "app/modules/program_files.h"

#include "files/items/line_file.h"
#include "jobs/reading/field_errand.h"
#include "meta/metadata_file.h"
#include "presets/unusable_database.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace script {
namespace {

/** A file inside a folder of the data folder; the path cannot escape from it. */
bool isOwn(const QString &path, const QString &dataFolder)
{
    return QDir::cleanPath(path) == path && path.startsWith(dataFolder + u'/') && !QFileInfo(path).isDir();
}

} // namespace

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

QVariantMap ProgramFiles::plannedFields(const QVariantMap &fields, const QVariantMap &work) const
{
    const auto planned = meta::workFrom(work).and_then(
        [&](const meta::MetadataWork &checked) { return meta::plannedFields(fields, checked); });
    return {{QStringLiteral("problem"), planned ? QStringLiteral("") : planned.error().message},
            {QStringLiteral("fields"), planned.value_or(QVariantMap())}};
}

QString ProgramFiles::appendPrivate(const QString &path, const QString &lines) const
{
    if (!isOwn(path, dataFolder()))
        return tr("%1 cannot be written.").arg(path);
    const auto added = files::appendPrivateLines(path, lines.toUtf8());
    return added ? QString() : added.error().message;
}

QString ProgramFiles::removePrivate(const QString &path) const
{
    return isOwn(path, dataFolder()) && (!QFileInfo::exists(path) || QFile::remove(path))
               ? QString()
               : tr("%1 cannot be removed.").arg(path);
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
