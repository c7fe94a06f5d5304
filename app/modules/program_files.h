#pragma once

#include "files/services/file_service.h"

namespace script {

/** The service of files with what takes more rooms than it may enter. */
class ProgramFiles : public files::FileService
{
    Q_OBJECT

public:
    using FileService::FileService;

    /** The new path of a presets database that could hold no preset; empty where it is left. See the function of that name. */
    Q_INVOKABLE QString setAsideUnusableDatabase(const QString &path) const;

    /** The fields of a picture's metadata: {fields, inPlace, sidecar, problem}, see jobs::fieldsAnswer(). */
    Q_INVOKABLE virtual QVariantMap readFields(const QString &path) const;
    /** Changes them: {problem, changed, file}, see meta::workFrom(). */
    Q_INVOKABLE virtual QVariantMap writeFields(const QString &path, const QVariantMap &work) const;
    /** What the fields of a picture, as readFields() tells them, will say: {fields: {name: texts}, problem}. See meta::plannedFields(). */
    Q_INVOKABLE QVariantMap plannedFields(const QVariantMap &fields, const QVariantMap &work) const;
    /** Adds lines to a file below the data folder that nobody else may read, and has them on the disk; answers the problem. */
    Q_INVOKABLE QString appendPrivate(const QString &path, const QString &lines) const;
    /** Removes a file below the data folder for good; answers the problem. */
    Q_INVOKABLE QString removePrivate(const QString &path) const;
    /** The names of all fields, and of the groups of private data. */
    Q_INVOKABLE QStringList fieldNames() const;
    Q_INVOKABLE QStringList privateDataNames() const;
};

} // namespace script
