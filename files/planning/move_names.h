#pragma once

#include "files/planning/move_problem.h"

#include <QString>

namespace files {

/**
 * What two names have in common that many disks take for one: the same letters whatever their case and however their accents
 * are written.
 */
QString nameKey(const QString &name);

enum class NameOf { File, Folder };

/** "photo.jpg", 3 gives "photo (3).jpg". The name of a folder has no extension: "Trip 1.5", 2 gives "Trip 1.5 (2)". */
QString numberedName(const QString &name, int number, NameOf what);

/** The path without links is @p folder, the name @p name: what places are told apart by. */
QString placeKey(const QString &folder, const QString &name);

/** Why a path cannot be given to an item, by its form alone: Empty, Illegal, TooLong, or None where it can. */
MoveProblem faultOfPath(const QString &path);

} // namespace files
