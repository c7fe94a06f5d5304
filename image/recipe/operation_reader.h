#pragma once

// Inside image/recipe.

#include "image/recipe/keys/recipe_keys.h"
#include "image/recipe/recipe.h"
#include "image/recipe/recipe_reader.h"

namespace image {

/** One entry of a list of operations. Reports what is wrong through the keys' problem. */
RecipeStep stepFrom(RecipeKeys &keys, const RecipeFiles &files);

/** A profile by its name or path; if it does not exist, one without a profile, and a problem is reported. */
ProfileOperation profileNamed(RecipeKeys &keys, const char *key, const QString &name, const RecipeFiles &files);

} // namespace image
