#pragma once

#include "app/seam/seam.h"

namespace script {

/**
 * The import statement that names a module which cannot be opened: the engine says which module that is, but not who
 * imports it.
 *
 * @param root  the path of the module from which all were loaded
 * @param text  what the engine says
 * @return an empty place if @p text is about something else, or no module that @p root leads to imports it
 */
Location placeOfMissingImport(const QString &root, const QString &text);

} // namespace script
