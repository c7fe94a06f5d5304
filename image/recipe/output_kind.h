#pragma once

#include "image/recipe/plan.h"

#include <optional>

/** What the types of outputs are and hold. */
namespace image {

/** The type in which a file's own content would be written; none if it cannot be. */
std::optional<OutputType> ownTypeOf(const platform::ImageSource &source);

bool holdsAlpha(OutputType type);

/** True if the result says less than the source, or another resolution. */
bool changesMetadata(const RecipeOutput &output);

/**
 * True if that can be done to a file of the type without encoding its pixels; @p dpi if its resolution is to change.
 */
bool canRewriteMetadata(OutputType type, std::optional<double> dpi);

/** True if a file of the same pixels is no copy of the source's. */
bool rewritesMetadata(const RecipeOutput &output, const platform::ImageSource &source, OutputType type);

/** Why a file of the planned size is not made, in a sentence: the memory that it would need. Empty if it is. */
QString refusalFor(const OutputPlan &plan, const RecipeOutput &output, const Stage &end);

/** What the output will lack, in sentences. @p end is the picture after all operations. */
QStringList lossesOf(const OutputPlan &plan, const RecipeOutput &output, const Stage &end,
                     const platform::ImageSource &source);

} // namespace image
