#pragma once

#include "image/recipe/recipe.h"
#include "platform/graphics/bitmap.h"

#include <QColor>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QVariantList>

#include <variant>
#include <vector>

/**
 * What an action does to a picture, done to a small rendition of it with the functions that do it to the whole picture.
 * Lengths are pixels of the picture as it is at that deed, full size, upright, origin top left.
 */
namespace window {

struct CutDeed
{
    QRect part; ///< may reach outside
};

struct ScaleDeed
{
    QSize size;
};

struct FlipDeed
{
    Qt::Orientation axis = Qt::Horizontal; ///< Horizontal: left and right change places
};

struct TurnDeed
{
    double degrees = 0; ///< counter-clockwise
};

struct RoundDeed
{
    QString shape; ///< "0" rectangle, "1" circle, anything else ellipse
    double radius = 0;
    QColor color; ///< invalid: transparent outside
    double band = 0;
};

struct LayDeed
{
    QColor color;
};

struct PatternDeed
{
    QString path; ///< of the tile
};

/** White, 10 pixels on each side, whatever the resolution: the step frames a picture whose pixels are points. */
struct FrameDeed
{
};

/** Transparency laid on black, as files get it that cannot hold it. */
struct FlattenDeed
{
};

/** Operations of a recipe, by the code that makes files of it. */
struct RecipeDeed
{
    QList<image::RecipeStep> steps;
    QString path; ///< of the picture, for the tokens in texts
};

using Deed = std::variant<CutDeed, ScaleDeed, FlipDeed, TurnDeed, RoundDeed, LayDeed, PatternDeed, FrameDeed,
                          FlattenDeed, RecipeDeed>;
using Deeds = std::vector<Deed>;

/**
 * The deeds of a list of dictionaries {do, ...}: "cut" x, y, width, height · "scale" width, height · "flip" axis
 * ("horizontal", "vertical") · "turn" degrees · "round" shape, radius, color ("" or "#rrggbb"), band · "lay" color ·
 * "pattern" path · "frame" · "flatten" · "recipe" operations (as in the file of a recipe), path. Fails with InvalidValue for anything
 * else, also for operations that a recipe would be refused for.
 */
platform::Result<Deeds> deedsFrom(const QVariantList &list);

/** A picture, and a rendition of it with fewer pixels or the same. */
struct Rendition
{
    platform::Bitmap bitmap;
    QSize full; ///< pixels of the picture that is meant

    double across() const { return double(bitmap.width()) / full.width(); }
    double down() const { return double(bitmap.height()) / full.height(); }
};

/** Does one deed after the other. Fails where nothing of the picture is left, or as the deeds themselves do. */
platform::Result<Rendition> done(const Deeds &deeds, const Rendition &start);

} // namespace window
