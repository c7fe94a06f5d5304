#pragma once

#include "files/planning/move_problem.h"

#include <QString>

namespace files {

/** The path without links is @p folder, the name @p name: this identifies a place. */
QString placeKey(const QString &folder, const QString &name);

/** Why a path cannot be given to an item, judged by its form alone: Empty, Illegal, TooLong, or None if it can. */
MoveProblem faultOfPath(const QString &path);

} // namespace files
