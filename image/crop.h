#pragma once

#include "platform/imageio/source/picture.h"

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

/**
 * The arithmetic of a crop: which rectangle the settings mean, on the picture to be cropped and on the frame that shows
 * it.
 *
 * All numbers are whole pixels of the upright picture in 32 bits: divisions truncate toward zero, and overflow wraps.
 */
namespace image {

/** The meaning of a crop's numbers. */
enum class CropKind {
    Size,       ///< the width and height to keep
    Percentage, ///< the share of both sides to cut off
    Pixels,     ///< the pixels of both sides to cut off
};

/** The kind behind the label of a tab: "W x H", "%", and Pixels for any other text. */
CropKind cropKind(const QString &label);

struct CropSettings
{
    CropKind kind = CropKind::Pixels;
    QSize size;            ///< Size: what is kept
    qint32 percentage = 0; ///< Percentage: what is cut off
    qint32 pixels = 0;     ///< Pixels: what is cut off
    /** 0 to 8: top left, top centre, top right, then the same for the middle and the bottom; others mean no place. */
    qint32 position = 0;
    /** Moves the rectangle to the right and down. */
    qint32 xOffset = 0;
    qint32 yOffset = 0;
};

/** Where the origin is. */
enum class CropSpace {
    TopLeft,    ///< y grows downward: the cut
    BottomLeft, ///< y grows upward: the frame
};

/** A rectangle as computed: sides may be zero or negative, and it may lie outside the picture. */
struct CropRect
{
    qint32 x = 0;
    qint32 y = 0;
    qint32 width = 0;
    qint32 height = 0;

    bool operator==(const CropRect &other) const = default;
};

/** The share of a picture that is left when @p cutAway percent are cut off: 25 gives 75. */
qint32 keptPercentage(qint32 cutAway);

/**
 * The rectangle that the settings mean on a picture of @p picture pixels.
 *
 * @param previous  its origin is used if the position means no place
 */
CropRect cropRect(const CropSettings &settings, QSize picture, CropSpace space, const CropRect &previous = {});

/**
 * The part of a rectangle from the top left that is inside the picture; empty if there is none or a side is not
 * positive.
 */
QRect visiblePart(const CropRect &rect, QSize picture);

/** The width of the frame's line on a picture of @p picture pixels; landscape pictures have thicker ones. */
float frameLineWidth(QSize picture);

/** How long the dashes of the frame are, and the gaps between them, for a line width. */
double frameDash(float lineWidth);

/** A frame of dashes; lengths in pixels of the canvas that it is drawn on, origin BOTTOM left. */
struct CropBox
{
    QRectF rect; ///< x and y are the left and the bottom edge; may reach outside; sides may be zero or negative
    double lineWidth = 1;
    double dash = 15; ///< of a dash and of a gap, before the square ends are added

    /** The same frame on a canvas @p scale times as large. */
    CropBox scaled(double scale) const;
};

/** The frame of a rectangle from the bottom left on a picture of @p picture pixels, at full size. */
CropBox cropBox(const CropRect &rect, QSize picture);

/**
 * The frame on a transparent picture of @p canvas pixels, as many points large: four lines of dashes in the system's
 * red, each beginning at its left or bottom end, with square ends.
 *
 * Costs a few milliseconds at any size, and memory only where the frame is. Fails with InvalidValue for an empty canvas
 * and with TooLarge for one beyond the memory budget.
 */
platform::Result<platform::Picture> drawCropBox(QSize canvas, const CropBox &box);

} // namespace image
