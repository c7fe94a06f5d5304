#pragma once

#include "image/recipe/recipe_reader.h"
#include "platform/graphics/bitmap.h"
#include "text/token_values.h"

#include <QColor>
#include <QSize>
#include <QVariantList>

#include <variant>
#include <vector>

/**
 * What an action does to a picture, done to a small rendition of it by the code that makes the files. Lengths are pixels of the picture
 * as it is at that deed, full size, upright, origin top left.
 */
namespace jobs {

struct LayDeed
{
    QColor color;
};

/** Transparency laid on black, as files get it that cannot hold it. */
struct FlattenDeed
{
};

/** Operations of a recipe. */
struct RecipeDeed
{
    QList<image::RecipeStep> steps;
    QString path;      ///< of the picture, for the tokens in texts
    QStringList files; ///< that the operations name
};

using Deed = std::variant<LayDeed, FlattenDeed, RecipeDeed>;
using Deeds = std::vector<Deed>;

/**
 * The deeds of a list of dictionaries {do, ...}: "lay" color · "flatten" · "recipe" operations (as in the file of a recipe), path.
 * Fails with InvalidValue for anything else, also for operations that a recipe would be refused for.
 *
 * @param files  where the pictures come from that operations name
 */
platform::Result<Deeds> deedsFrom(const QVariantList &list, const image::RecipeFiles &files = {QStringLiteral("/")});

/** The paths of the files that the deeds name, each once. */
QStringList filesOf(const Deeds &deeds);

/** A picture, and a rendition of it with fewer pixels or the same. */
struct Rendition
{
    platform::Bitmap bitmap;
    QSize full; ///< pixels of the picture that is meant

    double across() const { return double(bitmap.width()) / full.width(); }
    double down() const { return double(bitmap.height()) / full.height(); }
};

/**
 * Does one deed after the other. Fails where nothing of the picture is left, or as the deeds themselves do.
 *
 * @param facts  of the picture, for the tokens in texts
 */
platform::Result<Rendition> done(const Deeds &deeds, const Rendition &start, const text::TokenFacts &facts);

} // namespace jobs
