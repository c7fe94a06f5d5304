#pragma once

// Inside image/recipe.

#include "image/recipe/recipe.h"
#include "image/recipe/recipe_keys.h"

namespace image {

/** One entry of a list of operations; relative paths begin in @p folder. States what is wrong in the keys' problem. */
RecipeStep stepFrom(RecipeKeys &keys, const QString &folder);

/** A profile by its name or path; one without a profile where there is none, which is stated. */
ProfileOperation profileNamed(RecipeKeys &keys, const char *key, const QString &name, const QString &folder);

} // namespace image
