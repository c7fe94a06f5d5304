#include "app/modules/program_files.h"

#include "presets/unusable_database.h"

namespace script {

QString ProgramFiles::setAsideUnusableDatabase(const QString &path) const
{
    return presets::setAsideUnusableDatabase(path);
}

} // namespace script
