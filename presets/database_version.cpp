#include "presets/database_version.h"

#include <sqlite3.h>

namespace presets {

QString databaseVersion()
{
    return QString::fromLatin1(sqlite3_libversion());
}

} // namespace presets
