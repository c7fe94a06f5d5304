#pragma once

// Inside image/recipe.

#include "image/recipe/recipe.h"
#include "image/recipe/recipe_keys.h"
#include "image/recipe/recipe_reader.h"

namespace image {

/** One entry of a list of operations. States what is wrong in the keys' problem. */
RecipeStep stepFrom(RecipeKeys &keys, const RecipeFiles &files);

/** A profile by its name or path; one without a profile where there is none, which is stated. */
ProfileOperation profileNamed(RecipeKeys &keys, const char *key, const QString &name, const RecipeFiles &files);

} // namespace image
