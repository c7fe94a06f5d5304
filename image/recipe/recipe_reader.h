#pragma once

#include "image/recipe/recipe.h"
#include "platform/foundation/result.h"

namespace image {

/**
 * Reads a recipe from the UTF-8 JSON of its file.
 *
 * @param folder  absolute: paths in the recipe that are relative begin there
 *
 * Strict: an unknown key or token, a wrong type, a value out of its range, keys that exclude each other, and a picture, pattern,
 * font or profile that is not there fail with InvalidValue and one sentence that begins with the place, such as
 * `operations[1].longest`. Pictures, patterns and profiles are opened for that.
 */
platform::Result<Recipe> readRecipe(const QByteArray &json, const QString &folder);

/** The same of a file. Fails with NotFound too. */
platform::Result<Recipe> readRecipeFile(const QString &path);

/** The version that readRecipe() knows. */
constexpr int recipeVersion = 1;

} // namespace image
