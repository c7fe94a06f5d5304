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
 * Takes what was made as soon as it is, so that no two results are in memory together; also what could not be made, with the index
 * and the reason.
 */
using TakeOutput = std::function<void(int index, const platform::Result<MadeOutput> &made)>;

/**
 * Makes the outputs of a recipe from one picture: it is decoded once, worked on in memory and encoded once an output.
 *
 * @param plans  of planOf() for the same picture; outputs with a problem are passed over
 * @param fill   fills in the texts of watermarks
 *
 * Decoding is as cheap as the first operation allows: only the rows of a crop, only the size of a resize. Where the pixels stay
 * the file's own are taken, turned without encoding where they have to lie in another way. Memory: the picture as it is after its first
 * operation, one more at the time, and one encoded file.
 */
void makeOutputs(const Recipe &recipe, const platform::ImageSource &source, const QList<OutputPlan> &plans,
                 const FillText &fill, const TakeOutput &take);

} // namespace image
