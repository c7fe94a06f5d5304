#pragma once

#include "image/crop.h"
#include "image/recipe/recipe.h"
#include "image/recipe/right_turn.h"
#include "platform/foundation/result.h"

#include <QByteArray>
#include <QRect>

/** What operations do to a picture, worked out from numbers alone: nothing here looks at a pixel. */
namespace image {

/** A picture between two operations. */
struct Stage
{
    QSize size; ///< upright, in pixels, at full size
    double horizontalDpi = 72;
    double verticalDpi = 72;
    bool hasAlpha = false;
    QByteArray profile; ///< ICC; empty for sRGB, or grey of its curve
    bool isGray = false;
};

/** How a size is changed: scaled, then cut, then laid on a canvas. Each is the one before where nothing of the kind is done. */
struct Fitting
{
    QSize scaled;
    QSize cut;
    QSize canvas;
};

enum class Effect {
    None,      ///< the picture stays as it is
    RightTurn, ///< no pixel is computed
    Pixels,
};

struct Change
{
    Effect effect = Effect::None;
    RightTurn turn = {}; ///< with Effect::RightTurn
    Stage after;
};

/** A length in pixels of a picture, rounded; fractions only where @p isExact. */
double inPixelsOf(double length, const Scale &scale, double dpi);

Fitting fittingOf(const ResizeOperation &resize, const Stage &stage);

/** The frame that is meant on a picture of that size; it may reach outside, and have no inside. */
CropRect cropFrameOf(const CropOperation &crop, const Stage &stage);

/** The part that is left, on a picture of that size; empty where nothing is. With Place::Attention its place is not known. */
QRect cropPartOf(const CropOperation &crop, const Stage &stage);

/** The top left corner of something of @p inner in something of @p outer. */
QPoint placeOf(Place place, QSize inner, QSize outer);

/** The canvas of a picture that is turned. */
QSize turnedCanvas(const TurnOperation &turn, QSize size);

/** What the operation does to a picture; fails with InvalidValue where nothing would be left, with TooLarge for what cannot be made. */
platform::Result<Change> changeOf(const Operation &operation, const Stage &stage);

} // namespace image
