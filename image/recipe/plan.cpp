#include "image/recipe/plan.h"

#include "image/recipe/output_kind.h"
#include "image/recipe/sentence.h"
#include "image/recipe/watermark.h"
#include "platform/imageio/convert/lossless_turn.h"

#include <algorithm>

namespace image {
namespace {

using platform::ImageSource;
using platform::Result;

/** The overall effect of a list of operations. */
struct Way
{
    Stage end;
    RightTurn turn;
    bool computesPixels = false;
};

/** Fails where the numbers of an operation are sound, but what it puts on the picture cannot be made. */
Result<Change> changeWith(const Operation &operation, const Stage &stage, const FillText &fill)
{
    const Result<Change> change = changeOf(operation, stage);
    const auto *mark = std::get_if<WatermarkOperation>(&operation);
    if (!change || !mark || change->effect == Effect::None)
        return change;
    return canWatermark(stage.size, *mark, fill).map([&] { return *change; });
}

Result<Way> wayThrough(const QList<RecipeStep> &steps, const Way &start, const FillText &fill)
{
    Way way = start;
    for (const RecipeStep &step : steps) {
        if (step.isOff)
            continue;
        const Result<Change> change = changeWith(step.operation, way.end, fill);
        if (!change)
            return tl::unexpected<platform::Error>(change.error());
        way.end = change->after;
        way.turn = way.turn.then(change->turn);
        way.computesPixels = way.computesPixels || change->effect == Effect::Pixels;
    }
    return way;
}

bool canTurnStored(const ImageSource &source, const RightTurn &turn)
{
    const QList<platform::ExactTurn> steps = turn.steps();
    return std::all_of(steps.begin(), steps.end(),
                       [&source](platform::ExactTurn step) { return platform::canTurnWithoutLoss(source, step); });
}

/** Whether the output requires another encoding, even if the pixels do not change. */
bool asksForEncoding(const RecipeOutput &output, const ImageSource &source)
{
    if (output.quality || output.isLossless)
        return true;
    return output.maxBytes && *output.maxBytes < source.fileBytes();
}

/** Decides whether pixels are encoded again. */
void chooseRoad(OutputPlan &plan, const Way &way, const RecipeOutput &output, const ImageSource &source)
{
    const std::optional<OutputType> own = ownTypeOf(source);
    const bool isJpegPage = plan.type == OutputType::Pdf && own == OutputType::Jpeg;
    if (way.computesPixels || asksForEncoding(output, source) || (own != plan.type && !isJpegPage))
        return;
    const RightTurn stored = RightTurn::uprightFrom(source.orientation()).then(way.turn);
    const bool canTurn = stored.isNothing() || (own == OutputType::Jpeg && canTurnStored(source, stored));
    if (!canTurn && !way.turn.isNothing())
        return;
    if (!canTurn && isJpegPage)
        return;
    if (changesMetadata(output) && !canRewriteMetadata(*own, output.dpi) && !isJpegPage)
        return;
    plan.isLossless = true;
    plan.turn = canTurn ? stored : RightTurn();
    plan.keepsOrientation = !canTurn;
}

std::optional<CutPlan> cutOf(const QList<RecipeStep> &steps, const Stage &stage)
{
    const auto first = std::find_if(steps.begin(), steps.end(), [](const RecipeStep &step) { return !step.isOff; });
    const auto *crop = first == steps.end() ? nullptr : std::get_if<CropOperation>(&first->operation);
    if (!crop)
        return std::nullopt;
    return CutPlan{cropFrameOf(*crop, stage), cropPartOf(*crop, stage), crop->position != Place::Attention};
}

/** What all outputs of a picture share. */
struct Common
{
    Result<Way> way; ///< through the operations of the recipe
    std::optional<CutPlan> cut;
    bool areUnknown = false; ///< the pixels, since they cannot be decoded
};

Common commonOf(const Recipe &recipe, const ImageSource &source, const FillText &fill)
{
    const Stage stage = stageOf(source);
    return {wayThrough(recipe.operations, {stage, {}, false}, fill), cutOf(recipe.operations, stage),
            source.pixelFacts().value_or(platform::PixelFacts()).areUnknown};
}

OutputPlan planned(const Common &common, const RecipeOutput &output, const ImageSource &source, const FillText &fill)
{
    OutputPlan plan;
    const std::optional<OutputType> own = ownTypeOf(source);
    if (output.type == OutputType::Original && !own) {
        plan.problem = sentence(
            QT_TRANSLATE_NOOP("recipe", "Pictures of this type can be read but not written; choose another type"));
        plan.isNotSupported = true;
        return plan;
    }
    plan.type = output.type == OutputType::Original ? *own : output.type;
    const Result<Way> way =
        common.way.and_then([&](const Way &before) { return wayThrough(stepsOf(output), before, fill); });
    if (!way) {
        plan.problem = way.error().message;
        return plan;
    }
    plan.size = way->end.size;
    plan.cut = common.cut;
    chooseRoad(plan, *way, output, source);
    plan.problem =
        common.areUnknown && !plan.isLossless
            ? sentence(QT_TRANSLATE_NOOP("recipe", "Its pixels are compressed in a way that is not supported"))
            : refusalFor(plan, output, way->end);
    if (!plan.problem.isEmpty())
        return plan;
    plan.leftOut = plan.isLossless ? 0 : source.imageCount() - 1;
    plan.losses = lossesOf(plan, output, way->end, source);
    return plan;
}

} // namespace

Stage stageOf(const ImageSource &source)
{
    constexpr double pointsPerInch = 72;
    Stage stage;
    stage.size = source.uprightSize();
    const QSizeF points = source.pointSize();
    if (!points.isEmpty()) {
        stage.horizontalDpi = stage.size.width() * pointsPerInch / points.width();
        stage.verticalDpi = stage.size.height() * pointsPerInch / points.height();
    }
    const platform::PixelFacts facts = source.pixelFacts().value_or(platform::PixelFacts());
    stage.hasAlpha = facts.hasAlpha;
    stage.profile = facts.iccProfile;
    stage.isGray = facts.model == platform::ColorModel::Gray;
    stage.bits = facts.bits;
    return stage;
}

QList<RecipeStep> stepsOf(const RecipeOutput &output)
{
    QList<RecipeStep> steps = output.operations;
    if (output.profile)
        steps.append({*output.profile, false});
    return steps;
}

QList<OutputPlan> planOf(const Recipe &recipe, const ImageSource &source, const FillText &fill)
{
    const Common common = commonOf(recipe, source, fill);
    QList<OutputPlan> plans;
    for (const RecipeOutput &output : recipe.outputs)
        plans.append(planned(common, output, source, fill));
    return plans;
}

} // namespace image
