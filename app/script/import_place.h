#pragma once

#include "app/seam/seam.h"

namespace script {

/**
 * Where a module is imported that cannot be opened: the engine says which one that is, and not who asks for it.
 *
 * @param root  the path of the module from which all were loaded
 * @param text  what the engine says
 * @return an empty place where @p text is about something else, or no module that @p root leads to imports it
 */
Location placeOfMissingImport(const QString &root, const QString &text);

} // namespace script
