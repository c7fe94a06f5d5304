#pragma once

#include "image/recipe/render.h"
#include "platform/imageio/source/image_source.h"

#include <QStringList>

#include <optional>

namespace image {

/** The part of a picture used by a recipe that begins with a crop, in pixels of the upright picture. */
struct CutPlan
{
    CropRect frame;       ///< the requested part; it may extend outside
    QRect part;           ///< the part of that which is inside the picture
    bool isPlaced = true; ///< false if its position depends on the content of the picture
};

/** What one output of a recipe will be for one picture. */
struct OutputPlan
{
    /** A sentence if there will be none. */
    QString problem;
    bool isNotSupported = false; ///< because its type cannot be written

    OutputType type = OutputType::Jpeg; ///< never Original
    QSize size;                         ///< upright
    bool isLossless = false;            ///< no pixel is encoded again
    RightTurn turn;                     ///< if it is lossless, what is done to the stored pixels
    bool keepsOrientation = false;      ///< the tag stays, since nothing could turn the pixels without encoding them
    int leftOut = 0;                    ///< further pages or frames of the file that it will not have
    QStringList losses;                 ///< sentences
    std::optional<CutPlan> cut;         ///< if the first operation is one
};

/**
 * What a recipe makes of one picture, without decoding it. One plan per output; each contains a failure that precedes
 * them. @param fill  without it a text counts with its tokens as they are written
 */
QList<OutputPlan> planOf(const Recipe &recipe, const platform::ImageSource &source, const FillText &fill = {});

/** What is known about a picture from its header. */
Stage stageOf(const platform::ImageSource &source);

/** The output's own operations, followed by its profile. */
QList<RecipeStep> stepsOf(const RecipeOutput &output);

} // namespace image
