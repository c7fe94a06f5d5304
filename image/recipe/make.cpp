#include "image/recipe/make.h"

#include "image/recipe/encoding.h"
#include "image/recipe/output_kind.h"

#include <algorithm>

namespace image {
namespace {

using platform::Bitmap;
using platform::ImageSource;
using platform::Result;

/** The first operation that needs pixels, and the picture's orientation before it. */
struct First
{
    qsizetype index = -1; ///< of the step; -1 if none needs any
    bool isTurned = false;
};

First firstOf(const QList<RecipeStep> &steps, const Stage &stage)
{
    First first;
    for (qsizetype i = 0; i < steps.size() && first.index < 0; ++i) {
        const Result<Change> change =
            steps[i].isOff ? Result<Change>(Change{Effect::None, {}, stage}) : changeOf(steps[i].operation, stage);
        if (!change || change->effect == Effect::Pixels)
            first.index = i;
        else
            first.isTurned = first.isTurned || change->effect == Effect::RightTurn;
    }
    return first;
}

/** The operation, if it is all that happens to the pixels. */
const Operation *onlyOperation(const QList<RecipeStep> &steps, const Stage &stage)
{
    const First first = firstOf(steps, stage);
    const auto isOff = [](const RecipeStep &step) { return step.isOff; };
    const bool isAll =
        first.index >= 0 && !first.isTurned && std::all_of(steps.begin() + first.index + 1, steps.end(), isOff);
    return isAll ? &steps[first.index].operation : nullptr;
}

/** The operation that a decoder can do itself: a resize to fewer pixels, or a crop at a known position. */
const ResizeOperation *shrinkingResize(const Operation &operation, const Stage &stage)
{
    const auto *resize = std::get_if<ResizeOperation>(&operation);
    if (!resize)
        return nullptr;
    const QSize scaled = fittingOf(*resize, stage).scaled;
    return scaled.width() < stage.size.width() && scaled.height() <= stage.size.height() ? resize : nullptr;
}

/** The resize, if that is all that happens to the pixels, with at most a crop at a known position. */
std::optional<platform::JpegResize> onlyResize(const QList<RecipeStep> &steps, const Stage &stage)
{
    const Operation *only = onlyOperation(steps, stage);
    const auto *resize = only ? shrinkingResize(*only, stage) : nullptr;
    if (!resize || resize->scale.dpi || resize->position == Place::Attention)
        return std::nullopt;
    const Fitting fitting = fittingOf(*resize, stage);
    if (fitting.canvas != fitting.cut)
        return std::nullopt;
    const QRect kept(placeOf(resize->position, fitting.cut, fitting.scaled), fitting.cut);
    return platform::JpegResize{.size = fitting.scaled, .kept = kept, .isFine = true};
}

/** Decodes a picture for a list of operations, as few pixels as they need. */
class Decoding
{
public:
    Decoding(const ImageSource &source, const Stage &stage) : m_source(source), m_stage(stage) {}

    /** The picture after @p steps. */
    Result<Rendition> behind(const QList<RecipeStep> &steps, const FillText &fill) const
    {
        const First first = firstOf(steps, m_stage);
        if (first.index < 0 || first.isTurned)
            return whole().and_then([&](const Rendition &start) { return rendered(steps, start, fill); });
        const Operation &operation = steps[first.index].operation;
        const QList<RecipeStep> rest = steps.mid(first.index + 1);
        if (const auto *resize = shrinkingResize(operation, m_stage))
            return scaled(*resize).and_then([&](const Rendition &start) { return rendered(rest, start, fill); });
        const auto *crop = std::get_if<CropOperation>(&operation);
        if (crop && crop->position != Place::Attention)
            return part(*crop).and_then([&](const Rendition &start) { return rendered(rest, start, fill); });
        return whole().and_then([&](const Rendition &start) { return rendered(steps.mid(first.index), start, fill); });
    }

    Result<Rendition> whole() const
    {
        return m_source.decode().map([](const Bitmap &bitmap) { return Rendition{bitmap, stageOf(bitmap)}; });
    }

private:
    Result<Rendition> scaled(const ResizeOperation &resize) const
    {
        return m_source.decodeScaledFinely(fittingOf(resize, m_stage).scaled).and_then([&](const Bitmap &bitmap) {
            return fittedInto(bitmap, resize, stageLike(bitmap));
        });
    }

    Result<Rendition> part(const CropOperation &crop) const
    {
        const Result<Change> change = changeOf(crop, m_stage);
        if (!change)
            return tl::unexpected<platform::Error>(change.error());
        return m_source.decodePart(cropPartOf(crop, m_stage)).map([&](const Bitmap &bitmap) {
            const Bitmap stated = bitmap.withDpi(change->after.horizontalDpi, change->after.verticalDpi);
            return Rendition{stated, stageOf(stated)};
        });
    }

    /** The stage of the whole picture, with the properties of the decoded pixels. */
    Stage stageLike(const Bitmap &bitmap) const
    {
        Stage stage = stageOf(bitmap);
        stage.size = m_stage.size;
        stage.horizontalDpi = m_stage.horizontalDpi;
        stage.verticalDpi = m_stage.verticalDpi;
        return stage;
    }

    const ImageSource &m_source;
    const Stage &m_stage;
};

/** Whether the common operations, and those of every output, leave the pixels as they are. */
bool hasCommonPixels(const Recipe &recipe, const Stage &stage)
{
    return firstOf(recipe.operations, stage).index >= 0;
}

class Making
{
public:
    Making(const Recipe &recipe, const ImageSource &source, const QList<OutputPlan> &plans, const FillText &fill,
           const TakeOutput &take)
        : m_recipe(recipe), m_source(source), m_plans(plans), m_fill(fill), m_take(take), m_stage(stageOf(source)),
          m_decoding(source, m_stage)
    {
    }

    void run()
    {
        QList<int> encoded;
        for (int index = 0; index < m_plans.size(); ++index) {
            const OutputPlan &plan = m_plans[index];
            if (!plan.problem.isEmpty())
                continue;
            const Result<QByteArray> file =
                plan.isLossless ? fileOfSamePixels(m_source, m_recipe.outputs[index], plan) : Result<QByteArray>();
            if (plan.isLossless && file)
                m_take(index, MadeOutput{index, *file, plan.size, true});
            else if (plan.isLossless && isLost(file.error()))
                m_take(index, tl::unexpected<platform::Error>(file.error()));
            else
                encoded.append(index);
        }
        if (encoded.size() == 1 || (!encoded.isEmpty() && hasCommonPixels(m_recipe, m_stage)))
            fromCommon(encoded);
        else if (!encoded.isEmpty())
            fromWhole(encoded);
    }

private:
    /** A file that cannot be read is no better when it is decoded. */
    static bool isLost(const platform::Error &error)
    {
        return error.code == platform::ErrorCode::NotFound || error.code == platform::ErrorCode::Unreadable;
    }

    void fromCommon(const QList<int> &indices)
    {
        if (indices.size() == 1) {
            const int index = indices.first();
            const QList<RecipeStep> steps = m_recipe.operations + stepsOf(m_recipe.outputs[index]);
            if (const auto made = madeStraight(index, steps))
                return m_take(index, *made);
            give(index, m_decoding.behind(steps, m_fill));
            return;
        }
        giveAll(indices, m_decoding.behind(m_recipe.operations, m_fill), {});
    }

    /** The output of a JPEG that is only reduced, cropped, or turned by an angle. */
    std::optional<MadeOutput> madeStraight(int index, const QList<RecipeStep> &steps) const
    {
        const RecipeOutput &output = m_recipe.outputs[index];
        if (output.maxBytes)
            return std::nullopt;
        if (m_plans[index].type == OutputType::Png)
            return madeAsShape(index, steps);
        if (m_plans[index].type != OutputType::Jpeg)
            return std::nullopt;
        if (const auto resize = onlyResize(steps, m_stage))
            return madeOf(index, resizedFile(m_source, *resize, output), resize->kept.size());
        const Operation *only = onlyOperation(steps, m_stage);
        const auto *crop = only ? std::get_if<CropOperation>(only) : nullptr;
        if (crop && crop->position != Place::Attention && !crop->scale.dpi) {
            const QRect part = cropPartOf(*crop, m_stage);
            return madeOf(index, croppedFile(m_source, part, output), part.size());
        }
        const bool isUpright = m_source.orientation() == 1;
        const auto *turn = only && isUpright ? std::get_if<TurnOperation>(only) : nullptr;
        return turn ? madeOf(index, freelyTurnedFile(m_source, *turn, output), turnedCanvas(*turn, m_stage.size))
                    : std::nullopt;
    }

    /** The output of an upright JPEG that is only seen through a shape, with nothing round it. */
    std::optional<MadeOutput> madeAsShape(int index, const QList<RecipeStep> &steps) const
    {
        const Operation *only = onlyOperation(steps, m_stage);
        const auto *round = only ? std::get_if<RoundOperation>(only) : nullptr;
        const auto shape = round ? onlyShapeOf(*round, m_stage.size) : std::nullopt;
        return shape ? madeOf(index, shapedFile(m_source, *shape, m_recipe.outputs[index]), m_stage.size)
                     : std::nullopt;
    }

    static std::optional<MadeOutput> madeOf(int index, const std::optional<QByteArray> &file, QSize size)
    {
        return file ? std::optional(MadeOutput{index, *file, size, false}) : std::nullopt;
    }

    /** Each output starts by itself: all from one decode, which is as small as the largest of them allows. */
    void fromWhole(const QList<int> &indices)
    {
        QSize needed;
        for (const int index : indices)
            needed = needed.expandedTo(neededBy(index));
        const bool shrinks = needed.width() < m_stage.size.width() && needed.height() < m_stage.size.height();
        const Result<Bitmap> bitmap = shrinks ? m_source.decodeFinely(needed) : m_source.decode();
        const Result<Rendition> start = bitmap.map([this](const Bitmap &pixels) {
            Stage stage = stageOf(pixels);
            stage.size = m_stage.size;
            stage.horizontalDpi = m_stage.horizontalDpi;
            stage.verticalDpi = m_stage.verticalDpi;
            return Rendition{pixels, stage};
        });
        giveAll(indices, start, m_recipe.operations);
    }

    /** How many pixels an output needs of the whole picture. */
    QSize neededBy(int index) const
    {
        const QList<RecipeStep> steps = m_recipe.operations + stepsOf(m_recipe.outputs[index]);
        const First first = firstOf(steps, m_stage);
        if (first.index < 0 || first.isTurned)
            return m_stage.size;
        const auto *resize = shrinkingResize(steps[first.index].operation, m_stage);
        return resize ? fittingOf(*resize, m_stage).scaled : m_stage.size;
    }

    void giveAll(const QList<int> &indices, const Result<Rendition> &start, const QList<RecipeStep> &before)
    {
        for (const int index : indices) {
            const QList<RecipeStep> steps = before + stepsOf(m_recipe.outputs[index]);
            give(index, start.and_then([&](const Rendition &rendition) { return behind(steps, rendition); }));
        }
    }

    /** The operations on pixels that the decoder may have reduced: then the first one is a resize to even fewer. */
    Result<Rendition> behind(const QList<RecipeStep> &steps, const Rendition &start) const
    {
        if (start.bitmap.size() == start.stage.size)
            return rendered(steps, start, m_fill);
        const First first = firstOf(steps, start.stage);
        const auto &resize = std::get<ResizeOperation>(steps[first.index].operation);
        return m_source.scaledFinely(start.bitmap, fittingOf(resize, start.stage).scaled)
            .and_then([&](const Bitmap &scaled) { return fittedInto(scaled, resize, start.stage); })
            .and_then([&](const Rendition &fitted) { return rendered(steps.mid(first.index + 1), fitted, m_fill); });
    }

    void give(int index, const Result<Rendition> &rendition)
    {
        m_take(index, rendition.and_then([&](const Rendition &made) {
            return encodedFile(made.bitmap, m_source, m_recipe.outputs[index], m_plans[index])
                .map([&](const QByteArray &bytes) {
                    return MadeOutput{index, bytes, made.bitmap.size(), false};
                });
        }));
    }

    const Recipe &m_recipe;
    const ImageSource &m_source;
    const QList<OutputPlan> &m_plans;
    const FillText &m_fill;
    const TakeOutput &m_take;
    Stage m_stage;
    Decoding m_decoding;
};

} // namespace

void makeOutputs(const Recipe &recipe, const ImageSource &source, const QList<OutputPlan> &plans, const FillText &fill,
                 const TakeOutput &take)
{
    Making(recipe, source, plans, fill, take).run();
}

} // namespace image
