#pragma once

#include "image/recipe/stage.h"
#include "platform/graphics/compose.h"

#include <functional>
#include <optional>

namespace image {

/** Fills in the tokens of watermark texts for one picture. @p size is that of the picture at that point. */
using FillText = std::function<QString(const QString &pattern, QSize size)>;

/**
 * Pixels of a picture between two operations. They may be fewer or more than the stage says: a preview works on a rendition as large
 * as the view, and shows what the result would be at full size.
 */
struct Rendition
{
    platform::Bitmap bitmap;
    Stage stage;

    double across() const { return double(bitmap.width()) / stage.size.width(); }
    double down() const { return double(bitmap.height()) / stage.size.height(); }
};

/** The stage of a bitmap at its own size. */
Stage stageOf(const platform::Bitmap &bitmap);

/**
 * The rest of a resize once the picture is scaled: @p scaled has the size fitting.scaled, in the stage before the
 * resize; it is cropped or put on its canvas.
 */
platform::Result<Rendition> fittedInto(const platform::Bitmap &scaled, const ResizeOperation &resize,
                                       const Stage &before);

/**
 * The operations applied one after the other, without disabled ones; adjacent right-angled turns and flips cost as much
 * as one. Fails like changeOf(), with Unreadable for a picture or pattern that cannot be read, and with TooLarge if
 * memory fails.
 */
platform::Result<Rendition> rendered(const QList<RecipeStep> &steps, const Rendition &start, const FillText &fill);

/**
 * The shape through which a picture of @p size is seen, if the operation does nothing else: no colour, no band, nothing
 * cut off.
 */
std::optional<platform::RoundedRect> onlyShapeOf(const RoundOperation &round, QSize size);

/**
 * The position of the initial crop, if it depends on the content of the picture, in pixels of the full one; nothing for
 * steps that begin otherwise.
 */
std::optional<QRect> foundPart(const QList<RecipeStep> &steps, const Rendition &start);

} // namespace image
