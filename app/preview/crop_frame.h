#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <Qt>

/**
 * How a frame on a picture is moved and sized. Rectangles are whole pixels of the picture, origin top left; the result
 * is inside the picture and has at least one pixel.
 */
namespace window {

/** Where a frame is grabbed. */
enum class Grip { None, Inside, TopLeft, Top, TopRight, Right, BottomRight, Bottom, BottomLeft, Left };

/** The grip of @p frame under @p point, both in screen units; @p reach is the radius of a handle. */
Grip gripAt(const QRectF &frame, QPointF point, double reach);

/** The middle of a handle. */
QPointF handleOf(const QRectF &frame, Grip grip);

Qt::CursorShape cursorOf(Grip grip);

/** The frame moved by @p by, and pushed back inside where it would leave the picture. */
QRect movedFrame(const QRect &frame, QPoint by, QSize picture);

/**
 * The frame with the edges at @p grip moved by @p by; Inside moves it.
 *
 * @param ratio  width by height to keep; the opposite edge or corner stays in place; 0 leaves both free
 */
QRect sizedFrame(const QRect &frame, Grip grip, QPoint by, QSize picture, double ratio);

/**
 * What an arrow key does to the frame: it moves by a pixel, with Shift by ten; with Alt the right and bottom edges move.
 * Other keys return the same frame.
 */
QRect keyedFrame(const QRect &frame, int key, Qt::KeyboardModifiers modifiers, QSize picture, double ratio);

} // namespace window
