#include "tools/batch/request.h"

#include "image/recipe/recipe_reader.h"
#include "jobs/output_places.h"
#include "jobs/presets/preset_recipe.h"
#include "jobs/presets/supplied_files.h"
#include "platform/disk/disk_file_system.h"
#include "platform/disk/folders.h"
#include "platform/disk/item_identity.h"
#include "platform/file/atomic_file.h"
#include "platform/foundation/paths.h"

#include <algorithm>

namespace {

bool isSameFile(const QString &one, const QString &other)
{
    const QString identity = platform::targetIdentity(platform::absolutePath(one));
    return !identity.isEmpty() && identity == platform::targetIdentity(platform::absolutePath(other));
}

void readReports(Request &request, const CommandLine &line)
{
    if (!line.plan.isEmpty()) {
        request.options.plan = jobs::EarlierReport::read(platform::absolutePath(line.plan));
        if (!request.options.plan)
            request.problem = QStringLiteral("%1 cannot be read").arg(line.plan);
        else if (!request.options.plan->isOf(request.options.recipe))
            request.problem = QStringLiteral("%1 is the plan of another recipe").arg(line.plan);
    }
    if (!line.resume.isEmpty()) {
        request.options.resumed = jobs::EarlierReport::read(platform::absolutePath(line.resume));
        if (!request.options.resumed)
            request.problem = QStringLiteral("%1 cannot be read").arg(line.resume);
    }
}

/** The path of the recipe's file; empty for a preset that is kept in another form. */
QString pathOfRecipe(const CommandLine &line)
{
    return line.preset.isEmpty() ? platform::absolutePath(line.recipe) : jobs::suppliedRecipe(line.preset);
}

/** The bytes of the recipe's file, or of the one that a preset would be. */
platform::Result<QByteArray> recipeFile(const CommandLine &line)
{
    if (const QString path = pathOfRecipe(line); !path.isEmpty())
        return platform::readFile(path);
    const std::optional<jobs::Preset> preset = jobs::presetNamed(line.preset);
    if (preset)
        return jobs::recipeOf(*preset);
    return platform::failure(platform::ErrorCode::NotFound,
                             QStringLiteral("there is no preset \"%1\"; see --list-presets").arg(line.preset));
}

/**
 * Has a worker open what the recipe names, since this process opens no picture. @return what is wrong; empty if nothing
 * is
 */
QString readRecipe(Request &request, const QByteArray &file, const CommandLine &line)
{
    image::RecipeFiles named;
    named.folder = platform::parentFolder(pathOfRecipe(line));
    named.areOpened = false;
    const auto recipe = image::readRecipe(file, named);
    if (!recipe)
        return recipe.error().message;
    request.recipe = *recipe;
    constexpr qint64 megabyte = 1 << 20;
    const jobs::CrewOptions options = {jobs::workerProgram(), line.jobs, {line.timeout, line.memory * megabyte}};
    request.crew = std::make_unique<jobs::Crew>(options, file, named.folder);
    return request.crew->begin();
}

/** Whether the report would be written over something that is read. */
bool wouldLoseAFile(const CommandLine &line, const image::Recipe &recipe)
{
    const QStringList named = image::filesOf(recipe) + line.inputs;
    const QStringList read = QStringList{pathOfRecipe(line), line.plan, line.from} + named;
    return !line.report.isEmpty() && line.report != QLatin1String("-") &&
           std::any_of(read.begin(), read.end(),
                       [&line](const QString &path) { return !path.isEmpty() && isSameFile(path, line.report); });
}

/** The pictures and folders that were named, and those that are still to be named. */
void nameInputs(Request &request, const CommandLine &line)
{
    std::optional<jobs::NameStream> more;
    if (!line.from.isEmpty()) {
        using Separator = jobs::NameStream::Separator;
        auto names =
            jobs::NameStream::open(line.from, line.isFromSeparatedByNul ? Separator::Nul : Separator::LineFeed);
        if (!names) {
            request.problem = names.error().message;
            return;
        }
        more.emplace(std::move(*names));
    }
    request.inputs.emplace(line.inputs, std::move(more));
}

/** The folders that are watched, and the pictures that come into them. */
void watchFolders(Request &request, const CommandLine &line)
{
    QStringList folders;
    for (const QString &input : line.inputs)
        folders.append(platform::absolutePath(input));
    folders.removeDuplicates();
    const QString work = QStringLiteral("%1 %2/%3").arg(request.options.recipe).arg(line.shard).arg(line.shards);
    for (const QString &folder : folders) {
        if (!platform::folderExists(folder))
            request.problem = QStringLiteral("%1 is no folder, and only folders can be watched").arg(folder);
        else if (!request.lock.take(folder, work))
            request.problem = QStringLiteral("%1 is watched for this recipe already").arg(folder);
        if (!request.problem.isEmpty())
            return;
    }
    jobs::WatchOptions options;
    options.recipe = request.options.recipe;
    options.resumed = request.options.resumed;
    if (request.options.resumed) {
        const auto report = platform::DiskFileSystem().look(platform::absolutePath(line.resume));
        if (!report || report->bornNs == 0) {
            request.problem = QStringLiteral("the disk of %1 does not tell when it was begun").arg(line.resume);
            return;
        }
        options.sinceNs = report->bornNs;
    }
    auto watch = jobs::PictureWatch::start(folders, options);
    if (watch)
        request.inputs.emplace(std::move(*watch));
    else
        request.problem = watch.error().message;
}

/** A preset may keep the tree without the option, below its folder unless another one is named. */
jobs::Destination destinationFor(const CommandLine &line)
{
    const auto preset = line.preset.isEmpty() ? std::nullopt : jobs::presetNamed(line.preset);
    jobs::Destination destination = preset ? jobs::destinationOf(*preset) : jobs::Destination();
    if (!line.to.isEmpty())
        destination = {platform::absolutePath(line.to), line.keepsTree || destination.keepsTree};
    return destination;
}

} // namespace

Request requestFrom(const CommandLine &line)
{
    Request request;
    const auto file = recipeFile(line);
    if (!file) {
        request.problem = file.error().message;
        return request;
    }
    if (const QString problem = readRecipe(request, *file, line); !problem.isEmpty()) {
        request.problem = QStringLiteral("%1: %2").arg(line.preset.isEmpty() ? line.recipe : line.preset, problem);
        return request;
    }
    request.options.recipe = jobs::recipeName(*file);
    request.options.settings = jobs::settingsOf(request.recipe, request.options.recipe);
    request.options.made = jobs::madeWith(*file, request.recipe);
    if (wouldLoseAFile(line, request.recipe)) {
        request.problem = QStringLiteral("%1 is read, so it cannot be the report").arg(line.report);
        return request;
    }
    if (!line.to.isEmpty() && platform::itemExists(line.to) && !platform::folderExists(line.to)) {
        request.problem = QStringLiteral("%1 is not a folder").arg(line.to);
        return request;
    }
    request.options.destination = destinationFor(line);
    request.options.isDryRun = line.isDryRun;
    request.options.shard = line.shard;
    request.options.shards = line.shards;
    readReports(request, line);
    if (request.problem.isEmpty() && line.watches)
        watchFolders(request, line);
    else if (request.problem.isEmpty())
        nameInputs(request, line);
    return request;
}

bool addsToReport(const CommandLine &line)
{
    return !line.resume.isEmpty() && !line.report.isEmpty() && isSameFile(line.resume, line.report);
}
