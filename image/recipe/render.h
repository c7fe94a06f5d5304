#pragma once

#include "image/recipe/stage.h"
#include "platform/graphics/bitmap.h"

#include <functional>
#include <optional>

namespace image {

/** What texts of watermarks become: the tokens of one picture filled in. @p size is that of the picture at that point. */
using FillText = std::function<QString(const QString &pattern, QSize size)>;

/**
 * Pixels of a picture between two operations. They may be fewer or more than the stage says: a preview works on a rendition as large
 * as the view, and gets there what the result would be at full size.
 */
struct Rendition
{
    platform::Bitmap bitmap;
    Stage stage;

    double across() const { return double(bitmap.width()) / stage.size.width(); }
    double down() const { return double(bitmap.height()) / stage.size.height(); }
};

/** What is known of a bitmap as a stage of its own size. */
Stage stageOf(const platform::Bitmap &bitmap);

/**
 * What is left of a resize once the picture is scaled: @p scaled holds it at fitting.scaled, in the stage before the resize; it is cut or
 * laid on its canvas.
 */
platform::Result<Rendition> fittedInto(const platform::Bitmap &scaled, const ResizeOperation &resize,
                                       const Stage &before);

/**
 * The operations done one after the other, those that are off left out; adjacent right-angled turns and flips cost one. Fails as
 * changeOf() does, with Unreadable for a picture or pattern that cannot be read, and with TooLarge where memory fails.
 */
platform::Result<Rendition> rendered(const QList<RecipeStep> &steps, const Rendition &start, const FillText &fill);

/**
 * Where the cut lies that the steps begin with, where that is found by looking at the picture, in pixels of the full one; nothing for
 * steps that begin otherwise.
 */
std::optional<QRect> foundPart(const QList<RecipeStep> &steps, const Rendition &start);

} // namespace image
