#include "app/window/window_files.h"

#include "presets/unusable_database.h"

namespace window {

QString WindowFiles::setAsideUnusableDatabase(const QString &path) const
{
    return presets::setAsideUnusableDatabase(path);
}

} // namespace window
