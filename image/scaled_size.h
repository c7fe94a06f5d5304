#pragma once

#include <QPoint>
#include <QSize>

#include <optional>

namespace image {

/** Truncation toward zero to 32 bits; a value out of range, or not a number, gives the smallest one. */
qint32 truncated(double value);

/** How one number becomes a size; numbers above these four name no rule. */
enum class ScaleMode : quint32 { Width = 0, Height = 1, LongestSide = 2, Percentage = 3 };

/** A size in pixels that an operation computed; may be zero or negative. */
struct ScaledSize
{
    qint32 width = 0;
    qint32 height = 0;
    /** In percent; set by the rules that use one. */
    std::optional<double> scaleFactor;
};

/**
 * The size of a picture of @p width by @p height scaled by one number, with its aspect ratio, fractions of a pixel
 * truncated.
 *
 * @param number  pixels, or a percentage. Its hundredfold is computed in 32 bits and wraps beyond them.
 * @return none for a @p mode that names no rule
 */
std::optional<ScaledSize> scaledSize(quint32 number, quint32 mode, double width, double height);

/** A picture scaled so that it covers a box, and the position of the box on it. */
struct FilledBox
{
    ScaledSize drawn;
    QPoint offset;
};

/** The scale at which a picture of @p width by @p height just covers @p boxWidth by @p boxHeight, cropped evenly. */
FilledBox filledBox(quint32 boxWidth, quint32 boxHeight, double width, double height);

} // namespace image
