#pragma once

#include "image/recipe/plan.h"

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

} // namespace image
