#pragma once

#include <QString>

namespace presets {

/** The version of the database library in use. */
QString databaseVersion();

} // namespace presets
