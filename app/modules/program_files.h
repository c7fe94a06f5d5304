#pragma once

#include "files/services/file_service.h"

namespace script {

/** File services that need more rooms than their own class may include. */
class ProgramFiles : public files::FileService
{
    Q_OBJECT

public:
    using FileService::FileService;

    /**
     * The new path of a presets database that could not hold any preset; empty if it stays where it is. See the
     * function of that name.
     */
    Q_INVOKABLE QString setAsideUnusableDatabase(const QString &path) const;

    /** The fields of a picture's metadata: {fields, inPlace, sidecar, problem}, see jobs::fieldsAnswer(). */
    Q_INVOKABLE virtual QVariantMap readFields(const QString &path) const;
    /** Changes them: {problem, changed, file}, see meta::workFrom(). */
    Q_INVOKABLE virtual QVariantMap writeFields(const QString &path, const QVariantMap &work) const;
    /**
     * What the fields of a picture, as returned by readFields(), will say: {fields: {name: texts}, problem}. See
     * meta::plannedFields().
     */
    Q_INVOKABLE QVariantMap plannedFields(const QVariantMap &fields, const QVariantMap &work) const;
    /** Appends lines to a file in the data folder that only this user can read, and syncs it; answers the problem. */
    Q_INVOKABLE QString appendPrivate(const QString &path, const QString &lines) const;
    /** Permanently removes a file in the data folder; answers the problem. */
    Q_INVOKABLE QString removePrivate(const QString &path) const;
    /** The names of all fields, and of the groups of private data. */
    Q_INVOKABLE QStringList fieldNames() const;
    Q_INVOKABLE QStringList privateDataNames() const;
};

} // namespace script
