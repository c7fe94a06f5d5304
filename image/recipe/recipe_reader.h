#pragma once

#include "image/recipe/recipe.h"
#include "platform/foundation/result.h"

#include <functional>
#include <memory>

namespace platform {
class LentFile;
}

namespace image {

/** The pictures, patterns and profiles that a recipe names. */
struct RecipeFiles
{
    /** Absolute: paths in the recipe that are relative begin there. */
    QString folder;
    /** Opens one; those of the disk unless something else is said. */
    std::function<platform::Result<std::shared_ptr<const platform::LentFile>>(const QString &path)> open = openedFile;
    /** False: they are named and not looked at, and such a recipe cannot be carried out. For whoever hands them to somebody else. */
    bool areOpened = true;

    static platform::Result<std::shared_ptr<const platform::LentFile>> openedFile(const QString &path);
};

/**
 * Reads a recipe from the UTF-8 JSON of its file.
 *
 * @param folder  absolute: paths in the recipe that are relative begin there
 *
 * Strict: an unknown key or token, a wrong type, a value out of its range, keys that exclude each other, and a picture, pattern,
 * font or profile that is not there fail with InvalidValue and one sentence that begins with the place, such as
 * `operations[1].longest`. Pictures, patterns and profiles are opened for that, and pictures stay open with the recipe.
 */
platform::Result<Recipe> readRecipe(const QByteArray &json, const QString &folder);

/** The same with files that come from somewhere else. */
platform::Result<Recipe> readRecipe(const QByteArray &json, const RecipeFiles &files);

/** The absolute paths of the pictures, patterns and profiles that a recipe names, each once. */
QStringList filesOf(const Recipe &recipe);

/** The same as readRecipe() of a file. Fails with NotFound too. */
platform::Result<Recipe> readRecipeFile(const QString &path);

/** The version that readRecipe() knows. */
constexpr int recipeVersion = 1;

} // namespace image
