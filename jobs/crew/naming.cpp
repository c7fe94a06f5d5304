#include "jobs/crew/naming.h"

#include "image/recipe/sentence.h"
#include "image/types/output_types.h"
#include "platform/file/regular_file.h"

#include <utility>

namespace jobs {

using image::OutputPlan;

BatchNaming::BatchNaming(const image::Recipe &recipe, const Inputs &inputs, const BatchOptions &options)
    : m_recipe(recipe), m_options(options),
      m_places(recipe,
               {options.recipe, options.settings, options.plan ? &*options.plan : nullptr,
                options.resumed ? &*options.resumed : nullptr, options.made},
               inputs, options.destination),
      m_namesNeedPictures(namesNeedPictures(recipe))
{
}

PictureWork BatchNaming::workOn(const Input &input, int number) const
{
    PictureWork work;
    work.input = input;
    work.number = number;
    work.isOthers = !isInShard(input, m_options.shard, m_options.shards);
    for (int index = 0; index < m_recipe.outputs.size(); ++index) {
        const auto done = doneOf(input, index);
        work.done.append(done ? done->output : QString());
        if (!done && !work.isOthers)
            work.wanted.append(index);
    }
    return work;
}

bool BatchNaming::needsPicture(const PictureWork &work) const
{
    return !work.wanted.isEmpty() || (!m_options.plan && m_namesNeedPictures);
}

/** What the report of an earlier run has as done, if it still is. */
std::optional<KnownOutput> BatchNaming::doneOf(const Input &input, int index) const
{
    const auto known =
        m_options.resumed && !input.isNews ? m_options.resumed->of(m_options.recipe, input.path, index) : std::nullopt;
    if (!known || known->status != LineStatus::Ok)
        return std::nullopt;
    const auto file = platform::regularFile(known->output);
    return file && file->bytes == known->bytes ? known : std::nullopt;
}

QList<OutputPlan> BatchNaming::failedPlans(const QString &problem) const
{
    QList<OutputPlan> plans;
    for (const image::RecipeOutput &output : m_recipe.outputs) {
        OutputPlan failed;
        failed.problem = problem;
        failed.type = output.type;
        plans.append(failed);
    }
    return plans;
}

QList<OutputPlace> BatchNaming::placesOf(PictureWork &work)
{
    const Input &input = work.input;
    if (work.isOthers && m_options.plan)
        return {};
    if (!m_options.plan)
        return m_places.of(input, work.facts, work.plans, work.done, work.isOthers);
    QList<OutputPlace> places;
    for (int index = 0; index < m_recipe.outputs.size(); ++index) {
        const auto known = m_options.plan->of(m_options.recipe, input.path, index);
        const QString path = known ? known->output : QString();
        places.append(path.isEmpty() ? OutputPlace{} : m_places.at(path, input, {index, work.number}));
        if (!path.isEmpty())
            continue;
        work.plans[index].isNotSupported = false;
        if (work.plans[index].problem.isEmpty())
            work.plans[index].problem = image::sentence("the plan has no output for it");
    }
    return places;
}

void BatchNaming::name(PictureWork &work)
{
    work.places = placesOf(work);
    noteLines(work);
}

void BatchNaming::noteLines(PictureWork &work) const
{
    for (const int index : std::as_const(work.wanted))
        work.lines.insert(index, lineBefore(work, index));
    work.isNamed = true;
}

ReportLine BatchNaming::lineBefore(const PictureWork &work, int index) const
{
    const OutputPlan &plan = work.plans[index];
    const OutputPlace &place = work.places[index];
    ReportLine line;
    line.input = work.input.path;
    line.index = index;
    line.type = plan.type == image::OutputType::Original ? QString() : QString(image::writtenType(plan.type).keyword);
    if (!plan.problem.isEmpty()) {
        line.status = plan.isNotSupported ? LineStatus::NotSupported : LineStatus::Failed;
        line.reason = plan.problem;
        return line;
    }
    line.status = place.isSkipped ? LineStatus::Skipped : LineStatus::Planned;
    line.reason = place.reason;
    line.output = place.path;
    line.size = plan.size;
    line.isLossless = plan.isLossless;
    line.losses = plan.losses;
    return line;
}

void fail(ReportLine &line, const QString &reason)
{
    line.status = LineStatus::Failed;
    line.reason = reason;
    line.output.clear();
    line.bytes = 0;
}

} // namespace jobs
