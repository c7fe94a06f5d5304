#pragma once

#include "image/recipe/plan.h"
#include "platform/graphics/compose.h"
#include "platform/imageio/convert/resized_jpeg.h"

#include <optional>

namespace image {

/**
 * The file of an output whose pixels are those of the source: the same bytes, turned without encoding, with other metadata, or as
 * a page. Fails with Unsupported if that turns out to be impossible, and like reading the source.
 */
platform::Result<QByteArray> fileOfSamePixels(const platform::ImageSource &source, const RecipeOutput &output,
                                              const OutputPlan &plan);

/** The file of an output from finished pixels; metadata comes from the source. Fails like platform::encodeImage(). */
platform::Result<QByteArray> encodedFile(const platform::Bitmap &bitmap, const platform::ImageSource &source,
                                         const RecipeOutput &output, const OutputPlan &plan);

/**
 * The file of an output of type jpeg that only reduces the picture, without converting a JPEG's planes to colours. None
 * if this way is not possible; see platform::resizedJpeg().
 */
std::optional<QByteArray> resizedFile(const platform::ImageSource &source, const platform::JpegResize &resize,
                                      const RecipeOutput &output);

/** The same for one that only crops it; see platform::croppedJpeg(). */
std::optional<QByteArray> croppedFile(const platform::ImageSource &source, const QRect &part,
                                      const RecipeOutput &output);

/** The same for one that only turns an upright picture by an angle; see platform::turnedJpeg(). */
std::optional<QByteArray> freelyTurnedFile(const platform::ImageSource &source, const TurnOperation &turn,
                                           const RecipeOutput &output);

/** The file of an output of type png that only shows an upright picture through a shape; see platform::rowsAsShapedPng(). */
std::optional<QByteArray> shapedFile(const platform::ImageSource &source, const platform::RoundedRect &shape,
                                     const RecipeOutput &output);

} // namespace image
