#pragma once

#include "image/recipe/plan.h"
#include "platform/imageio/convert/resized_jpeg.h"

#include <optional>

namespace image {

/**
 * The file of an output whose pixels are those of the source: the same bytes, turned without encoding, with other metadata, or as
 * a page. Fails with Unsupported where that turns out to be impossible, and as reading the source does.
 */
platform::Result<QByteArray> fileOfSamePixels(const platform::ImageSource &source, const RecipeOutput &output,
                                              const OutputPlan &plan);

/** The file of an output from finished pixels; metadata comes from the source. Fails as platform::encodeImage() does. */
platform::Result<QByteArray> encodedFile(const platform::Bitmap &bitmap, const platform::ImageSource &source,
                                         const RecipeOutput &output, const OutputPlan &plan);

/**
 * The file of an output of type jpeg to which nothing happens but that the picture becomes smaller, without colours being made of
 * the planes of a JPEG. None where it does not go that way; see platform::resizedJpeg().
 */
std::optional<QByteArray> resizedFile(const platform::ImageSource &source, const platform::JpegResize &resize,
                                      const RecipeOutput &output);

} // namespace image
