#pragma once

#include "image/recipe/stage.h"
#include "platform/imageio/source/image_source.h"

#include <QStringList>

#include <optional>

namespace image {

/** What a recipe takes of a picture that begins with a cut, in pixels of the upright picture. */
struct CutPlan
{
    CropRect frame;       ///< what is asked for; it may reach outside
    QRect part;           ///< what of that lies in the picture
    bool isPlaced = true; ///< false where its place is found by looking at the picture
};

/** What one output of a recipe will be for one picture. */
struct OutputPlan
{
    /** A sentence where there will be none. */
    QString problem;
    bool isNotSupported = false; ///< because its type cannot be written

    OutputType type = OutputType::Jpeg; ///< never Original
    QSize size;                         ///< upright
    bool isLossless = false;            ///< no pixel is encoded again
    RightTurn turn;                     ///< where it is lossless, what is done to the stored pixels
    bool keepsOrientation = false;      ///< the entry stays, since nothing could turn the pixels without encoding them
    int leftOut = 0;                    ///< further pages or frames of the file that it will not have
    QStringList losses;                 ///< sentences
    std::optional<CutPlan> cut;         ///< where the first operation is one
};

/** What a recipe makes of one picture, without decoding it. One plan an output; a failure before them is in each. */
QList<OutputPlan> planOf(const Recipe &recipe, const platform::ImageSource &source);

/** What is known of a picture from its header. */
Stage stageOf(const platform::ImageSource &source);

/** The output's own operations, with its profile behind them. */
QList<RecipeStep> stepsOf(const RecipeOutput &output);

} // namespace image
