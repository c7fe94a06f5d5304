#pragma once

#include "image/recipe/recipe_reader.h"
#include "platform/graphics/bitmap.h"
#include "text/token_values.h"

#include <QColor>
#include <QSize>
#include <QVariantList>

#include <optional>
#include <variant>
#include <vector>

/**
 * What an action does to a picture, done to a small rendition of it by the code that makes the files. Lengths are pixels of the picture
 * as it is at that edit, full size, upright, origin top left.
 */
namespace jobs {

struct LayEdit
{
    QColor color;
};

/** Transparency laid on black, as files get it that cannot hold it. */
struct FlattenEdit
{
};

/** Operations of a recipe. */
struct RecipeEdit
{
    QList<image::RecipeStep> steps;
    QString path;      ///< of the picture, for the tokens in texts
    QStringList files; ///< that the operations name
};

using Edit = std::variant<LayEdit, FlattenEdit, RecipeEdit>;
using Edits = std::vector<Edit>;

/**
 * The edits of a list of dictionaries {do, ...}: "lay" color · "flatten" · "recipe" operations (as in the file of a recipe), path.
 * Fails with InvalidValue for anything else, also for operations that a recipe would be refused for.
 *
 * @param files  where the pictures come from that operations name
 */
platform::Result<Edits> editsFrom(const QVariantList &list, const image::RecipeFiles &files = {QStringLiteral("/")});

/** The paths of the files that the edits name, each once. */
QStringList filesOf(const Edits &edits);

/** A picture, and a rendition of it with fewer pixels or the same. */
struct Rendition
{
    platform::Bitmap bitmap;
    QSize full; ///< pixels of the picture that is meant

    double across() const { return double(bitmap.width()) / full.width(); }
    double down() const { return double(bitmap.height()) / full.height(); }
};

/**
 * Applies one edit after the other. Fails if nothing of the picture is left, or like the edits themselves.
 *
 * @param facts  of the picture, for the tokens in texts
 */
platform::Result<Rendition> done(const Edits &edits, const Rendition &start, const text::TokenFacts &facts);

/** Where the first edit cuts a part out that is found by looking at the picture, in pixels of the full one; see image::foundPart(). */
std::optional<QRect> foundPart(const Edits &edits, const Rendition &start);

} // namespace jobs
