#pragma once

#include "image/crop.h"
#include "image/recipe/recipe.h"
#include "image/recipe/right_turn.h"
#include "platform/foundation/result.h"

#include <QByteArray>
#include <QRect>

/** The effects of operations on a picture, computed from numbers alone: no pixel is read. */
namespace image {

/** A picture between two operations. */
struct Stage
{
    QSize size; ///< upright, in pixels, at full size
    double horizontalDpi = 72;
    double verticalDpi = 72;
    bool hasAlpha = false;
    QByteArray profile; ///< ICC; empty for sRGB, or grey with its curve
    bool isGray = false;
    int bits = 8; ///< per channel
};

/**
 * How a size is changed: scaled, then cropped, then put on a canvas. Each equals the one before if that step is not
 * needed.
 */
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

/** The intended frame on a picture of that size; it may extend outside, and be empty. */
CropRect cropFrameOf(const CropOperation &crop, const Stage &stage);

/**
 * The part that is left, on a picture of that size; empty if there is none. With Place::Attention its position is
 * unknown.
 */
QRect cropPartOf(const CropOperation &crop, const Stage &stage);

/** The top left corner of something of size @p inner in something of size @p outer. */
QPoint placeOf(Place place, QSize inner, QSize outer);

/** The canvas of a picture that is turned. */
QSize turnedCanvas(const TurnOperation &turn, QSize size);

/** How a picture of @p size is drawn on that canvas. */
platform::FreeTurn freeTurnFor(const TurnOperation &turn, QSize size);

/**
 * The effect of the operation on a picture; fails with InvalidValue if nothing would be left, with TooLarge if the
 * result is too large.
 */
platform::Result<Change> changeOf(const Operation &operation, const Stage &stage);

} // namespace image
