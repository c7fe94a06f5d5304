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
    /** Absolute: relative paths in the recipe start there. */
    QString folder;
    /** Opens one; from the disk unless set otherwise. */
    std::function<platform::Result<std::shared_ptr<const platform::LentFile>>(const QString &path)> open = openedFile;
    /**
     * False: they are named but not opened, and such a recipe cannot be carried out. For processes that pass them to
     * another one.
     */
    bool areOpened = true;

    static platform::Result<std::shared_ptr<const platform::LentFile>> openedFile(const QString &path);
};

/**
 * Reads a recipe from the UTF-8 JSON of its file.
 *
 * @param folder  absolute: relative paths in the recipe start there
 *
 * Strict: an unknown key or token, a wrong type, a value out of its range, mutually exclusive keys, and a missing
 * picture, pattern, font or profile fail with InvalidValue and one sentence that begins with the place, such as
 * `operations[1].longest`. Pictures, patterns and profiles are opened for that, and pictures stay open with the recipe.
 */
platform::Result<Recipe> readRecipe(const QByteArray &json, const QString &folder);

/** The same with files from elsewhere. */
platform::Result<Recipe> readRecipe(const QByteArray &json, const RecipeFiles &files);

/** The absolute paths of the pictures, patterns and profiles that a recipe names, each once. */
QStringList filesOf(const Recipe &recipe);

/** The same as readRecipe() of a file. Fails with NotFound too. */
platform::Result<Recipe> readRecipeFile(const QString &path);

/** The version that readRecipe() supports. */
constexpr int recipeVersion = 1;

} // namespace image
