#pragma once

// Private to the platform: pixels laid on pixels, in the depth and the colours of the upper ones.

#include "platform/graphics/pixels.h"

#include <QColor>

namespace platform {

/** True if red, green and blue are equal. */
bool isGrey(const QColor &color);

/** A colour as an opaque sRGB image of one pixel and 16 bits. */
vips::VImage colorImage(const QColor &color);

/**
 * The image as grey or RGB, each with or without alpha, of 8 or 16 bits in memory; always RGB if @p needsColors. An
 * image in such a form stays as it is, with its profile; anything else becomes sRGB.
 */
vips::VImage composable(const vips::VImage &image, bool needsColors);

/**
 * Two pictures that can be composed: same colours, profile and depth, both in memory; grey below only if it is grey
 * above.
 */
struct MatchedLayers
{
    vips::VImage over;
    vips::VImage under;
};

/**
 * @p over as from composable(), and @p srgb in its colours, its profile and its depth, alpha kept. A profile that
 * colours can only be converted from, such as a scanner's, is replaced: then both are sRGB.
 */
MatchedLayers matched(const vips::VImage &over, const vips::VImage &srgb);

/**
 * Composes rows of one picture: a part of @p image, reduced by an optional coverage, over repeated copies of @p under
 * from the top left corner. The result has alpha unless @p under is opaque. Throws vips::VError.
 */
class Layers
{
public:
    /** @p image as from composable(); @p under as from matched(). */
    Layers(const vips::VImage &image, const QRect &part, const std::optional<vips::VImage> &under);

    /** Row @p y of the result. @p coverage has a byte for each of its pixels; null covers the whole row. */
    void compose(int y, const uchar *coverage);

    vips::VImage result() const { return m_result; }

private:
    const uchar *underRow(int y);
    template<typename T> void composeRow(int y, const uchar *coverage);

    vips::VImage m_image;
    QRect m_part;
    std::optional<vips::VImage> m_under;
    vips::VImage m_result;
    std::vector<uchar> m_underRow;
    int m_underRowIndex = -1;
};

} // namespace platform
