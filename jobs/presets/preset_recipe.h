#pragma once

#include "jobs/names.h"
#include "jobs/presets/preset_settings.h"
#include "platform/foundation/result.h"

namespace jobs {

/**
 * The recipe that does what a preset does, as the bytes of its file. Fails with Unsupported, in a sentence, for an action that makes
 * no pictures and for settings that no recipe has.
 */
platform::Result<QByteArray> recipeOf(const Preset &preset);

/** The same as the object that the file holds. */
platform::Result<QJsonObject> recipeObjectOf(const Preset &preset);

/**
 * Where the results of a preset go that keeps subfolders: below its folder, in the tree of the folder that each picture was found in. A
 * recipe cannot say so. Nowhere in particular for any other preset, whose recipe has the folder.
 */
Destination destinationOf(const Preset &preset);

/** All presets: those that come with the program, and those in the user's database, which count where both have a name. */
QList<Preset> allPresets();

/** The preset "Resize/Web 1600"; none if there is none of that name. */
std::optional<Preset> presetNamed(const QString &name);

/** The presets that come with the program. */
QList<Preset> suppliedPresets();

} // namespace jobs
