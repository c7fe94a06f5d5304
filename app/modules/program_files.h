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
    /** The names of all fields, and of the groups of private data. */
    Q_INVOKABLE QStringList fieldNames() const;
    Q_INVOKABLE QStringList privateDataNames() const;
};

} // namespace script
