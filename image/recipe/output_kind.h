#pragma once

#include "image/recipe/plan.h"

#include <optional>

/** What the types of outputs are and hold. */
namespace image {

/** The type that a file's own content would be written as; none where it cannot. */
std::optional<OutputType> ownTypeOf(const platform::ImageSource &source);

bool holdsAlpha(OutputType type);

/** True where the result says less, or another resolution, than the source. */
bool changesMetadata(const RecipeOutput &output);

/** True where that can be done to a file of the type without encoding its pixels; @p dpi where its resolution is to change. */
bool canRewriteMetadata(OutputType type, std::optional<double> dpi);

/** Why a file of the planned size is not made, in a sentence: what it would take of memory. Empty where it is. */
QString refusalFor(const OutputPlan &plan, const RecipeOutput &output, const Stage &end, int bits);

/** What of the picture the output will not have, in sentences. @p end is the picture behind all operations. */
QStringList lossesOf(const OutputPlan &plan, const RecipeOutput &output, const Stage &end,
                     const platform::ImageSource &source);

} // namespace image
