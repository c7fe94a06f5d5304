#include "jobs/services/recipe_batch.h"

#include "image/recipe/recipe_reader.h"
#include "image/recipe/sentence.h"
#include "jobs/desk/plan_errand.h"
#include "jobs/result_mark.h"
#include "platform/disk/item_identity.h"
#include "platform/foundation/paths.h"

#include <algorithm>
#include <cerrno>

namespace jobs {
namespace {

using platform::Descriptor;
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
    return {{key("output"), line.index},        {key("status"), wordOf(line.status)}, {key("reason"), line.reason},
            {key("path"), line.output},         {key("bytes"), double(line.bytes)},   {key("width"), line.size.width()},
            {key("height"), line.size.height()}};
}

/** The outputs that replace something, which are left to wait beside their places; the picture's own is the last. */
QVariantList replacements(PictureWork &work, ResultFiles &files)
{
    const QString own = platform::targetIdentity(work.input.path);
    QVariantList waiting;
    QVariantList ofOwn;
    for (const int output : std::as_const(work.wanted)) {
        const QString path = work.places[output].path;
        const QString replaced = work.places[output].replaces ? platform::itemIdentity(path) : QString();
        const QString file = replaced.isEmpty() ? QString() : files.leave(output);
        if (file.isEmpty())
            continue;
        QVariantMap outcome = outcomeOf(work.lines[output]);
        outcome.insert({{key("status"), key("waiting")}, {key("file"), file}, {key("replaced"), replaced}});
        const bool isOwn = platform::targetIdentity(path) == own;
        // What is in the place of a picture is that picture from now on.
        if (isOwn)
            unmarkResult(file);
        (isOwn ? ofOwn : waiting).append(outcome);
        work.lines.remove(output);
    }
    return waiting + ofOwn;
}

/** What joined since the outputs were planned is a picture of the batch, and nothing replaces it. */
void leaveOtherInputs(PictureWork &work, ResultFiles &files, OutputPlaces &places)
{
    for (const int output : std::as_const(work.wanted)) {
        OutputPlace &place = work.places[output];
        if (!place.replaces || !places.isOtherInput(place.path, work.input))
            continue;
        place = {places.numbered(place.path), false, false, {}};
        files.moveTo(output, place);
    }
}

/** Puts what was made into its place. */
void placeAll(PictureWork &work, ResultFiles &files, OutputPlaces &places)
{
    for (const ResultFiles::Placed &placed : files.placeAll(places)) {
        ReportLine &line = work.lines[placed.index];
        line.output = placed.path;
        line.status = placed.isSkipped ? LineStatus::Skipped : LineStatus::Ok;
        if (!placed.problem.isEmpty())
            fail(line, placed.problem);
    }
}

/** An idle worker, and what its picture takes at most: all of it in memory, with a result of the same size beside it. */
qint64 memoryFor(const QSize &pixels)
{
    constexpr qint64 idle = 64LL << 20;
    constexpr qint64 eachPixel = 12;
    return pixels.isEmpty() ? 0 : idle + eachPixel * pixels.width() * pixels.height();
}

} // namespace

RecipeBatch::RecipeBatch(QObject *parent) : QObject(parent) {}

RecipeBatch::~RecipeBatch()
{
    // The desk is destroyed with the application, before what scripts leave behind.
    if (!m_given.empty())
        close();
}

/** Reads the recipe and notes the pictures, when something is asked for first. */
bool RecipeBatch::begin()
{
    if (m_hasBegun)
        return m_naming != nullptr;
    m_hasBegun = true;
    const QByteArray json = m_text.toUtf8();
    const auto shared = SharedRecipe::whole(json, m_folder);
    if (!shared) {
        m_problem = shared.error().message;
        return false;
    }
    // Whoever opens the pictures that it names is not this process.
    m_problem = planNow(*shared, {}).problem;
    if (!m_problem.isEmpty())
        return false;
    m_shared = *shared;
    m_recipe = m_shared->recipe();
    m_needsFacts = needsFacts(m_recipe);
    m_options.recipe = recipeName(json);
    m_options.settings = settingsOf(m_recipe, m_options.recipe);
    m_options.made = m_shared->made();
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

QVariantList RecipeBatch::plan(int index, const QString &root)
{
    if (!begin() || index < 0 || index >= m_paths.size())
        return {};
    const QString path = m_paths[index];
    PictureWork work = m_naming->workOn({path, root, {}, false}, index);
    work.facts = factsOfFile(path, index, m_needsFacts);
    const PlannedMessage planned = planNow(m_shared, {work.facts, m_needsFacts});
    if (m_needsFacts)
        work.facts = withPictureFacts(work.facts, planned.facts);
    work.plans = planned.problem.isEmpty() ? planned.plans : m_naming->failedPlans(planned.problem);
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
    m_pixels[index] = planned.problem.isEmpty() ? planned.pixels : QSize();
    m_works.insert_or_assign(index, std::move(work));
    return outputs;
}

QVariantList RecipeBatch::planAgain(int index, const QVariantMap &earlier)
{
    if (!begin() || index < 0 || index >= m_paths.size())
        return {};
    const QStringList planned = earlier.value(key("planned")).toStringList();
    const QStringList done = earlier.value(key("done")).toStringList();
    PictureWork work = m_naming->workOn({m_paths[index], earlier.value(key("root")).toString(), {}, false}, index);
    work.facts = factsOfFile(m_paths[index], index, m_needsFacts);
    work.plans = m_naming->failedPlans({});
    work.wanted.clear();
    for (int output = 0; output < m_recipe.outputs.size(); ++output) {
        work.places.append(
            m_naming->places().again(planned.value(output), done.value(output), work.input, {output, index}));
        if (!planned.value(output).isEmpty() && done.value(output).isEmpty())
            work.wanted.append(output);
    }
    m_naming->noteLines(work);
    const QVariantList outputs = linesOf(work);
    m_pixels[index] = QSize(earlier.value(key("width")).toInt(), earlier.value(key("height")).toInt());
    m_works.insert_or_assign(index, std::move(work));
    return outputs;
}

int RecipeBatch::join(const QStringList &paths)
{
    const int first = int(m_paths.size());
    m_paths += paths;
    if (m_inputs)
        for (const QString &path : paths)
            m_inputs->addNamed(path);
    return first;
}

int RecipeBatch::room() const
{
    constexpr int ahead = 2; // so that a worker continues while this process is still handling its last result
    return std::max(0, WorkerDesk::ofProcess().size() + ahead - inWork());
}

void RecipeBatch::give(int index)
{
    const auto found = m_works.find(index);
    if (found == m_works.end() || m_given.count(index) != 0)
        return;
    m_planned[index] = found->second.lines;
    BatchErrand::Task task;
    task.facts = factsOfFile(found->second.input.path, index, m_needsFacts);
    task.wantsFacts = m_needsFacts;
    task.expectedBytes = memoryFor(m_pixels[index]);
    task.files = [this, index] { return filesFor(index); };
    BatchErrand::Listener listener = {[this, index](const MadeMessage &made) { return keep(index, made); },
                                      [this, index](const QString &problem) { end(index, problem); }};
    m_given[index] = WorkerDesk::ofProcess().add(
        std::make_shared<BatchErrand>(m_shared, std::move(task), std::move(listener)), Urgency::Soon);
}

/** New ones, where a worker that crashed has begun some. */
std::vector<std::pair<int, Descriptor>> RecipeBatch::filesFor(int index)
{
    PictureWork &work = m_works.at(index);
    auto &files = m_files[index];
    files.reset();
    files = std::make_unique<ResultFiles>(work.input, work.number,
                                          ResultFiles::Settings{m_options.settings, m_options.made}, *m_rooms);
    m_milliseconds[index] = 0;
    std::vector<std::pair<int, Descriptor>> open;
    for (const int output : std::as_const(work.wanted)) {
        ReportLine &line = work.lines[output];
        if (line.status != LineStatus::Planned)
            continue;
        if (auto file = files->begin(output, work.places[output]))
            open.emplace_back(output, std::move(*file));
        else
            fail(line, file.error().message);
    }
    return open;
}

/** Takes what came of an output: its file waits beside its place, or the line says why there is none. */
bool RecipeBatch::keep(int index, const MadeMessage &made)
{
    PictureWork &work = m_works.at(index);
    if (!work.lines.contains(made.index) || work.lines[made.index].status != LineStatus::Planned)
        return false;
    ReportLine &line = work.lines[made.index];
    const OutputPlace &place = work.places[made.index];
    ResultFiles &files = *m_files.at(index);
    m_milliseconds[index] += made.milliseconds;
    if (!made.problem.isEmpty()) {
        fail(line, made.problem);
    } else if (made.writeError != 0) {
        fail(line, files.failureOf(made.writeError, place).message);
        if (made.writeError == ENOSPC || made.writeError == EDQUOT)
            m_full[index] = {platform::parentFolder(place.path), line.reason};
    } else if (const auto kept = files.keep(made.index, made.bytes, place, m_recipe.outputs[made.index]); !kept) {
        fail(line, kept.error().message);
    } else {
        line.size = made.size;
        line.bytes = made.bytes;
    }
    return true;
}

/** The outputs for which there is a file. */
QVariantList RecipeBatch::wholeOf(int index) const
{
    QVariantList whole;
    const auto files = m_files.find(index);
    if (files == m_files.end())
        return whole;
    for (const ResultFiles::Waiting &each : files->second->waiting())
        whole.append(QVariantMap{{key("output"), each.index}, {key("file"), each.file}, {key("path"), each.path}});
    return whole;
}

/** A picture is complete, or nothing more will be made of it. */
void RecipeBatch::end(int index, const QString &problem)
{
    if (m_given.erase(index) == 0)
        return;
    if (m_full.count(index) != 0) {
        giveBack(index);
    } else {
        m_problems[index] = problem;
        m_made.push_back({{key("number"), index},
                          {key("whole"), problem.isEmpty() ? wholeOf(index) : QVariantList()},
                          {key("ms"), double(m_milliseconds[index])}});
    }
    Q_EMIT arrived();
}

QVariantList RecipeBatch::linesOf(const PictureWork &work) const
{
    QVariantList outputs;
    for (const int output : std::as_const(work.wanted))
        if (work.lines.contains(output))
            outputs.append(outcomeOf(work.lines[output]));
    return outputs;
}

QVariantList RecipeBatch::place(int index)
{
    const auto known = m_problems.find(index);
    if (known == m_problems.end())
        return {};
    const QString problem = known->second;
    m_problems.erase(known);
    PictureWork work = std::move(m_works.at(index));
    m_works.erase(index);
    QVariantList waiting;
    if (problem.isEmpty() && m_files.count(index) != 0) {
        ResultFiles &files = *m_files.at(index);
        leaveOtherInputs(work, files, m_naming->places());
        waiting = replacements(work, files);
        placeAll(work, files, m_naming->places());
    }
    // Whatever was not heard of has not become anything.
    for (ReportLine &line : work.lines)
        if (line.status == LineStatus::Planned)
            fail(line, problem.isEmpty() ? image::sentence(QT_TRANSLATE_NOOP("recipe", "no result")) : problem);
    if (waiting.isEmpty())
        m_files.erase(index);
    return linesOf(work) + waiting;
}

/** Nothing of it is left, and it is as it was before it was begun. */
void RecipeBatch::giveBack(int index)
{
    const Full full = std::exchange(m_full[index], {});
    m_full.erase(index);
    m_files.erase(index);
    m_works.at(index).lines = m_planned.at(index);
    m_made.push_back({{key("number"), index},
                      {key("full"), full.reason},
                      {key("folder"), full.folder},
                      {key("ms"), double(m_milliseconds[index])}});
}

void RecipeBatch::settle(int index)
{
    m_files.erase(index);
}

void RecipeBatch::moveTo(int index, const QString &folder)
{
    const auto found = m_works.find(index);
    if (found == m_works.end() || m_given.count(index) != 0)
        return;
    PictureWork &work = found->second;
    const QString base = baseFolderOf(work.input, m_options.destination) + u'/';
    for (const int output : std::as_const(work.wanted)) {
        ReportLine &line = work.lines[output];
        if (line.status != LineStatus::Planned)
            continue;
        const QString path = work.places[output].path;
        const QString below = path.startsWith(base) ? path.mid(base.size()) : path.section(u'/', -1);
        OutputPlace place =
            m_naming->places().at(platform::joinedPath(folder, below), work.input, {output, work.number});
        if (place.replaces)
            place = {m_naming->places().numbered(place.path), false, false, {}};
        line.output = place.path;
        line.status = place.isSkipped ? LineStatus::Skipped : LineStatus::Planned;
        line.reason = place.reason;
        work.places[output] = place;
    }
}

QVariantMap RecipeBatch::take()
{
    if (m_made.empty())
        return {};
    QVariantMap made = std::move(m_made.front());
    m_made.pop_front();
    return made;
}

QVariantList RecipeBatch::takeBack()
{
    QVariantList numbers;
    for (auto given = m_given.begin(); given != m_given.end();) {
        if (WorkerDesk::ofProcess().takeBack(given->second)) {
            numbers.append(given->first);
            given = m_given.erase(given);
        } else {
            ++given;
        }
    }
    return numbers;
}

void RecipeBatch::close()
{
    for (const auto &[index, errand] : std::exchange(m_given, {}))
        WorkerDesk::ofProcess().drop(errand);
    m_files.clear();
    m_made.clear();
    m_works.clear();
    m_full.clear();
    m_problems.clear();
    m_rooms = std::make_unique<WaitingRooms>();
}

} // namespace jobs
