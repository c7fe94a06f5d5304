#include "platform/imageio/jpeg/shrunk_jpeg.h"

#include <algorithm>
#include <vector>

namespace platform {
namespace {

using vips::VImage;

VImage enlarged(const VImage &image, QSize size)
{
    if (size == QSize(image.width(), image.height()))
        return image;
    return image.embed(0, 0, size.width(), size.height(), VImage::option()->set("extend", VIPS_EXTEND_COPY));
}

/** The picture with all columns and rows of equal weight; the decoder is no longer needed. */
VImage fittingFromShrunk(const VImage &image, QSize stored, int shrink)
{
    const VImage whole = withWholeEdges(image, stored, shrink);
    const double across = double(whole.width()) * shrink / stored.width();
    const double down = double(whole.height()) * shrink / stored.height();
    if (across == 1 && down == 1)
        return whole;
    // The last column represents fewer pixels than the others: all are widened slightly until it ends at the edge.
    const auto offset = [](double scale) { return (scale - 1) / 2; }; // between the centres of the first pixels
    return inMemory(whole).affine({across, 0, 0, down},
                                  VImage::option()
                                      ->set("oarea", std::vector<int>{0, 0, whole.width(), whole.height()})
                                      ->set("odx", offset(across))
                                      ->set("ody", offset(down))
                                      ->set("extend", VIPS_EXTEND_COPY)
                                      ->set("interpolate", vips::VInterpolate::new_from_name("bicubic")));
}

} // namespace

int jpegShrinkFor(QSize stored, QSize wanted)
{
    for (const int shrink : {8, 4, 2})
        if (stored.width() / shrink >= wanted.width() && stored.height() / shrink >= wanted.height())
            return shrink;
    return 1;
}

VImage withWholeEdges(const VImage &image, QSize stored, int shrink)
{
    const auto shrunk = [shrink](int side) { return (side + shrink - 1) / shrink; };
    return enlarged(image, {shrunk(stored.width()), shrunk(stored.height())});
}

/** Whether much of the picture is paper or ink, at the limits of the sample range. */
static bool isLineArt(const VImage &image)
{
    constexpr double share = 0.1;
    constexpr double nearly = 2; // ringing dims the paper slightly
    constexpr double isTrue = 255;
    const VImage paper = (image >= opaqueValue(image) - nearly) | (image <= nearly);
    return paper.avg() > share * isTrue;
}

/**
 * The average difference of neighbours, one step to the right or down, in the direction where it is larger; sampled
 * from a few rows and columns.
 */
static double detailOf(const VImage &image)
{
    constexpr int few = 8;
    if (image.width() <= few || image.height() <= few)
        return 0;
    const auto difference = [](const VImage &from, int across, int down) {
        const int width = from.width() - across;
        const int height = from.height() - down;
        return (from.extract_area(across, down, width, height) - from.extract_area(0, 0, width, height)).abs().avg();
    };
    double most = 0;
    for (int band = 0; band < image.bands(); ++band) {
        const VImage one = image.extract_band(band);
        most = std::max({most, difference(one.subsample(1, few), 1, 0), difference(one.subsample(few, 1), 0, 1)});
    }
    return most;
}

bool showsShrinking(const VImage &image)
{
    constexpr double mostDetail = 24;
    return isLineArt(image) || detailOf(image) > mostDetail * opaqueValue(image) / 255;
}

VImage scaledFromShrunk(const VImage &image, QSize stored, int shrink, QSize wanted)
{
    return scaledTo(fittingFromShrunk(image, stored, shrink), wanted);
}

} // namespace platform
