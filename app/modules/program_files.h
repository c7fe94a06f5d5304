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
};

} // namespace script
