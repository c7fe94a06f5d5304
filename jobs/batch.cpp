#include "jobs/batch.h"

#include "image/recipe/make.h"
#include "image/recipe/plan.h"
#include "image/recipe/sentence.h"
#include "jobs/output_places.h"
#include "jobs/path_hash.h"
#include "jobs/result_files.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/paths.h"

#include <QElapsedTimer>

namespace jobs {
namespace {

using image::OutputPlan;
using image::Recipe;
using platform::ImageSource;
using platform::Result;

/** What is known of one picture before it is decoded. */
struct PlannedPicture
{
    Input input;
    int number = 0; ///< how many inputs came before it
    QList<OutputPlan> plans;
};

LineStatus statusOf(const OutputPlan &plan)
{
    return plan.isNotSupported ? LineStatus::NotSupported : LineStatus::Failed;
}

/** One batch at work. */
class Batch
{
public:
    Batch(const Recipe &recipe, Inputs &inputs, const BatchOptions &options, const TakeLine &take,
          const std::function<bool()> &isStopped)
        : m_recipe(recipe), m_inputs(inputs), m_options(options), m_take(take), m_isStopped(isStopped),
          m_places(
              recipe,
              {options.recipe, options.plan ? &*options.plan : nullptr, options.resumed ? &*options.resumed : nullptr},
              inputs, options.destination),
          m_needsPictures(namesNeedPictures(recipe))
    {
    }

    Summary run()
    {
        QElapsedTimer timer;
        timer.start();
        if (replacesAnything(m_recipe))
            m_inputs.readToTheEnd(m_isStopped);
        while (m_goesOn && hasNext()) {
            const int number = m_inputs.taken();
            const Input input = m_inputs.take();
            // Names and counters are those of all inputs, whatever part of them is done here.
            const bool isOthers = !isInShard(input, m_options.shard, m_options.shards);
            const QList<OutputPlace> places = placesOf(input, number, isOthers);
            const QList<int> wanted = isOthers ? QList<int>() : wantedOf(input);
            if (wanted.isEmpty())
                continue;
            ++m_summary.inputs;
            m_rooms.letGoOfMany();
            work(input, number, places, wanted);
        }
        constexpr double milliseconds = 1000;
        m_summary.seconds = double(timer.elapsed()) / milliseconds;
        return m_summary;
    }

private:
    /** Waits for the next input. False where there is none, or where the batch is stopped. */
    bool hasNext()
    {
        constexpr int waitMs = 100;
        Inputs::State state = Inputs::State::Waiting;
        while (!m_isStopped() && state == Inputs::State::Waiting)
            state = m_inputs.look(waitMs);
        return !m_isStopped() && state == Inputs::State::Ready;
    }

    QList<OutputPlace> placesOf(const Input &input, int number, bool isOthers)
    {
        if (isOthers && m_options.plan)
            return {};
        m_plans = isOthers && !m_needsPictures ? QList<OutputPlan>() : plansOf(input);
        if (!m_options.plan)
            return m_places.of(input, number, m_plans, doneOf(input), isOthers);
        QList<OutputPlace> places;
        for (int index = 0; index < m_recipe.outputs.size(); ++index) {
            const auto known = m_options.plan->of(m_options.recipe, input.path, index);
            const QString path = known ? known->output : QString();
            places.append(path.isEmpty() ? OutputPlace{} : m_places.at(path, input, index));
            if (!path.isEmpty())
                continue;
            m_plans[index].isNotSupported = false;
            if (m_plans[index].problem.isEmpty())
                m_plans[index].problem = image::sentence("the plan has no output for it");
        }
        return places;
    }

    QList<OutputPlan> plansOf(const Input &input)
    {
        const Result<ImageSource> source = input.problem.isEmpty() ? ImageSource::open(input.path) : ImageSource();
        m_source = source.value_or(ImageSource());
        if (!m_source.isNull())
            return image::planOf(m_recipe, m_source);
        OutputPlan failed;
        failed.problem = input.problem.isEmpty() ? source.error().message : input.problem;
        QList<OutputPlan> plans;
        for (const image::RecipeOutput &output : m_recipe.outputs) {
            plans.append(failed);
            plans.last().type = output.type;
        }
        return plans;
    }

    /** The outputs that are not done yet. */
    QList<int> wantedOf(const Input &input) const
    {
        QList<int> wanted;
        for (int index = 0; index < m_recipe.outputs.size(); ++index)
            if (!doneOf(input, index))
                wanted.append(index);
        return wanted;
    }

    /** The paths of what is done; empty for what is not. */
    QStringList doneOf(const Input &input) const
    {
        QStringList paths;
        for (int index = 0; index < m_recipe.outputs.size(); ++index) {
            const auto done = doneOf(input, index);
            paths.append(done ? done->output : QString());
        }
        return paths;
    }

    /** What the report of an earlier run has as done, if it still is. */
    std::optional<KnownOutput> doneOf(const Input &input, int index) const
    {
        const auto known = m_options.resumed && !input.isNews
                               ? m_options.resumed->of(m_options.recipe, input.path, index)
                               : std::nullopt;
        const bool isDone = known && known->status == LineStatus::Ok && isStillThere(*known);
        return isDone ? known : std::nullopt;
    }

    static bool isStillThere(const KnownOutput &known)
    {
        const auto file = platform::regularFile(known.output);
        return file && file->bytes == known.bytes;
    }

    void work(const Input &input, int number, const QList<OutputPlace> &places, const QList<int> &wanted)
    {
        QElapsedTimer timer;
        timer.start();
        QHash<int, ReportLine> lines;
        QList<OutputPlan> open = m_plans;
        for (int index = 0; index < open.size(); ++index) {
            lines.insert(index, lineBefore(input, index, places[index]));
            if (!wanted.contains(index) || lines[index].status != LineStatus::Planned)
                open[index].problem = QStringLiteral("-"); // nothing is to be made of it
        }
        if (!m_options.isDryRun)
            make(input, number, open, places, lines, timer);
        for (const int index : wanted)
            say(lines[index]);
    }

    ReportLine lineBefore(const Input &input, int index, const OutputPlace &place) const
    {
        const OutputPlan &plan = m_plans[index];
        ReportLine line;
        line.input = input.path;
        line.index = index;
        line.type =
            plan.type == image::OutputType::Original ? QString() : QString(image::writtenType(plan.type).keyword);
        if (!plan.problem.isEmpty()) {
            line.status = statusOf(plan);
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

    void make(const Input &input, int number, const QList<OutputPlan> &open, const QList<OutputPlace> &places,
              QHash<int, ReportLine> &lines, QElapsedTimer &timer)
    {
        ResultFiles files(input, m_options.recipe, m_rooms);
        const image::FillText fill = [&](const QString &pattern, QSize size) {
            return watermarkFrom(pattern, input.path, number, size);
        };
        image::makeOutputs(m_recipe, m_source, open, fill, [&](int index, const Result<image::MadeOutput> &made) {
            ReportLine &line = lines[index];
            const Result<void> kept = made.and_then([&](const image::MadeOutput &output) {
                line.size = output.size;
                line.isLossless = output.isLossless;
                line.bytes = output.bytes.size();
                return files.keep(index, output.bytes, places[index], m_recipe.outputs[index]);
            });
            line.milliseconds = timer.restart();
            if (!kept)
                fail(line, kept.error().message);
        });
        for (const ResultFiles::Placed &placed : files.placeAll(m_places)) {
            ReportLine &line = lines[placed.index];
            line.status = placed.isSkipped ? LineStatus::Skipped : LineStatus::Ok;
            line.output = placed.path;
            if (!placed.problem.isEmpty())
                fail(line, placed.problem);
            else
                m_inputs.leaveOut(placed.path);
        }
        for (ReportLine &line : lines)
            if (line.status == LineStatus::Planned)
                fail(line, image::sentence("nothing came of it"));
    }

    static void fail(ReportLine &line, const QString &reason)
    {
        line.status = LineStatus::Failed;
        line.reason = reason;
        line.output.clear();
        line.bytes = 0;
    }

    void say(const ReportLine &line)
    {
        m_summary.count(line);
        m_goesOn = m_take(line) && m_goesOn;
    }

    const Recipe &m_recipe;
    Inputs &m_inputs;
    const BatchOptions &m_options;
    const TakeLine &m_take;
    const std::function<bool()> &m_isStopped;
    OutputPlaces m_places;
    bool m_needsPictures;
    WaitingRooms m_rooms;
    ImageSource m_source;
    QList<OutputPlan> m_plans;
    Summary m_summary;
    bool m_goesOn = true;
};

} // namespace

bool isInShard(const Input &input, int shard, int shards)
{
    if (shards <= 1)
        return true;
    return pathHash(platform::encodedPath(placeBelowRoot(input))) % quint64(shards) == quint64(shard - 1);
}

Summary runBatch(const Recipe &recipe, Inputs &inputs, const BatchOptions &options, const TakeLine &take,
                 const std::function<bool()> &isStopped)
{
    return Batch(recipe, inputs, options, take, isStopped).run();
}

} // namespace jobs
