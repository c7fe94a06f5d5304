#pragma once

#include "image/recipe/plan.h"
#include "image/recipe/render.h"

#include <functional>

namespace image {

/** One output of a picture, as the bytes of its file. */
struct MadeOutput
{
    int index = 0; ///< of the output in the recipe
    QByteArray bytes;
    QSize size;              ///< upright
    bool isLossless = false; ///< no pixel was encoded again
};

/**
 * Receives each result as soon as it is made, so that no two are in memory together; also failures, with the index and
 * the reason.
 */
using TakeOutput = std::function<void(int index, const platform::Result<MadeOutput> &made)>;

/**
 * Makes the outputs of a recipe from one picture: it is decoded once, processed in memory and encoded once per output.
 *
 * @param plans  from planOf() for the same picture; outputs with a problem are skipped
 * @param fill   fills in the texts of watermarks
 *
 * Decoding is as cheap as the first operation allows: only the rows of a crop, only the size of a resize. If the pixels
 * do not change, those of the file are used, turned without encoding if they need another orientation. Memory: the
 * picture after its first operation, one more at a time, and one encoded file.
 */
void makeOutputs(const Recipe &recipe, const platform::ImageSource &source, const QList<OutputPlan> &plans,
                 const FillText &fill, const TakeOutput &take);

} // namespace image
