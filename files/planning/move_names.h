#pragma once

#include "files/planning/move_problem.h"

#include <QString>

namespace files {

/** The path without links is @p folder, the name @p name: what places are told apart by. */
QString placeKey(const QString &folder, const QString &name);

/** Why a path cannot be given to an item, by its form alone: Empty, Illegal, TooLong, or None where it can. */
MoveProblem faultOfPath(const QString &path);

} // namespace files
