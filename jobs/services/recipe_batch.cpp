#include "jobs/services/recipe_batch.h"

#include "image/recipe/make.h"
#include "image/recipe/recipe_reader.h"
#include "image/recipe/sentence.h"
#include "platform/descriptors/write_all.h"
#include "platform/disk/item_identity.h"

namespace jobs {
namespace {

using platform::Descriptor;
using platform::ImageSource;
using platform::Result;

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

QString wordOf(LineStatus status)
{
    switch (status) {
    case LineStatus::Ok:
        return key("OK");
    case LineStatus::Failed:
        return key("Failed");
    case LineStatus::NotSupported:
        return key("Not Supported");
    case LineStatus::Skipped:
        return key("Skipped");
    case LineStatus::Planned:
        return key("ready");
    }
    return {};
}

QVariantMap outcomeOf(const ReportLine &line)
{
    return {{key("status"), wordOf(line.status)}, {key("reason"), line.reason},
            {key("path"), line.output},           {key("bytes"), double(line.bytes)},
            {key("width"), line.size.width()},    {key("height"), line.size.height()}};
}

} // namespace

RecipeBatch::RecipeBatch(QObject *parent) : QObject(parent) {}

RecipeBatch::~RecipeBatch() = default;

/** Reads the recipe and notes the pictures, when something is asked for first. */
bool RecipeBatch::begin()
{
    if (m_hasBegun)
        return m_naming != nullptr;
    m_hasBegun = true;
    const QByteArray json = m_text.toUtf8();
    const Result<image::Recipe> read = image::readRecipe(json, m_folder);
    if (!read) {
        m_problem = read.error().message;
        return false;
    }
    m_recipe = *read;
    m_needsFacts = needsFacts(m_recipe);
    m_options.recipe = recipeName(json);
    m_options.settings = settingsOf(m_recipe, m_options.recipe);
    m_inputs.emplace(m_paths);
    m_rooms = std::make_unique<WaitingRooms>();
    m_naming = std::make_unique<BatchNaming>(m_recipe, *m_inputs, m_options);
    return true;
}

QString RecipeBatch::problem()
{
    begin();
    return m_problem;
}

QVariantList RecipeBatch::plan(int index)
{
    if (!begin() || index < 0 || index >= m_paths.size())
        return {};
    const QString path = m_paths[index];
    PictureWork work = m_naming->workOn({path, {}, {}, false}, index);
    work.facts = m_needsFacts ? factsOfPicture(path, index) : factsOfFile(path, index, false);
    const Result<ImageSource> source = ImageSource::open(path);
    work.plans = source ? image::planOf(m_recipe, *source) : m_naming->failedPlans(source.error().message);
    m_naming->name(work);
    const QString own = platform::targetIdentity(path);
    QVariantList outputs;
    for (const int output : std::as_const(work.wanted)) {
        const ReportLine &line = work.lines[output];
        const bool replaces = line.status == LineStatus::Planned && work.places[output].replaces;
        QVariantMap told = outcomeOf(line);
        told.insert({{key("type"), line.type},
                     {key("replaces"), replaces},
                     {key("replacesOriginal"), replaces && platform::targetIdentity(line.output) == own},
                     {key("lossless"), line.isLossless},
                     {key("losses"), line.losses}});
        outputs.append(told);
    }
    m_works.insert_or_assign(index, std::move(work));
    return outputs;
}

/** Takes what came of an output: its file waits beside its place, or the line says why there is none. */
void RecipeBatch::keep(PictureWork &work, int output, const Result<image::MadeOutput> &made, ResultFiles &files)
{
    ReportLine &line = work.lines[output];
    const OutputPlace &place = work.places[output];
    const Result<void> kept = made.and_then([&](const image::MadeOutput &result) {
        return files.begin(output, place).and_then([&](const Descriptor &file) -> Result<void> {
            if (const int code = platform::writeAll(file, result.bytes); code != 0)
                return tl::unexpected<platform::Error>(files.failureOf(code, place));
            return files.keep(output, result.bytes.size(), place, m_recipe.outputs[output]);
        });
    });
    if (!kept) {
        fail(line, kept.error().message);
        return;
    }
    line.size = made->size;
    line.bytes = made->bytes.size();
}

void RecipeBatch::makeAll(PictureWork &work, const ImageSource &source)
{
    ResultFiles files(work.input, work.number, m_options.settings, *m_rooms);
    QList<image::OutputPlan> plans = work.plans;
    for (const int output : std::as_const(work.wanted))
        if (work.lines[output].status != LineStatus::Planned)
            plans[output].problem = QStringLiteral("-"); // nothing is to be made of it
    const image::FillText fill = [&work](const QString &pattern, QSize size) {
        return watermarkFrom(pattern, work.facts, size);
    };
    image::makeOutputs(m_recipe, source, plans, fill,
                       [&](int output, const Result<image::MadeOutput> &made) { keep(work, output, made, files); });
    for (const ResultFiles::Placed &placed : files.placeAll(m_naming->places())) {
        ReportLine &line = work.lines[placed.index];
        line.output = placed.path;
        line.status = placed.isSkipped ? LineStatus::Skipped : LineStatus::Ok;
        if (!placed.problem.isEmpty())
            fail(line, placed.problem);
    }
}

QVariantList RecipeBatch::make(int index)
{
    const auto found = m_works.find(index);
    if (found == m_works.end())
        return {};
    PictureWork &work = found->second;
    const Result<ImageSource> source = ImageSource::open(work.input.path);
    if (source)
        makeAll(work, *source);
    QVariantList outputs;
    for (const int output : std::as_const(work.wanted)) {
        ReportLine &line = work.lines[output];
        // Whatever was not heard of has not become anything.
        if (line.status == LineStatus::Planned)
            fail(line, source ? image::sentence("nothing came of it") : source.error().message);
        outputs.append(outcomeOf(line));
    }
    m_works.erase(found);
    return outputs;
}

} // namespace jobs
