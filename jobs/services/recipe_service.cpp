#include "jobs/services/recipe_service.h"

#include "image/recipe/make.h"
#include "image/recipe/plan.h"
#include "image/recipe/recipe_reader.h"
#include "image/recipe/sentence.h"
#include "jobs/inputs.h"
#include "jobs/names.h"
#include "jobs/presets/preset_recipe.h"
#include "jobs/presets/supplied_files.h"
#include "jobs/result_files.h"
#include "jobs/result_mark.h"
#include "jobs/services/recipe_work.h"
#include "meta/sidecar_metadata.h"
#include "platform/effects/lettering.h"
#include "platform/file/atomic_file.h"
#include "platform/foundation/file_names.h"
#include "text/tokens.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace jobs {
namespace {

using image::OutputPlan;
using image::Recipe;
using platform::ImageSource;
using platform::Result;

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

Result<Recipe> readText(const QString &text, const QString &folder, bool filesAreOpened)
{
    image::RecipeFiles files;
    files.folder = folder;
    files.areOpened = filesAreOpened;
    return image::readRecipe(text.toUtf8(), files);
}

/** The target of links; the path itself, cleaned, if nothing is there. */
QString placeOf(const QString &path)
{
    const QString there = QFileInfo(path).canonicalFilePath();
    return there.isEmpty() ? QDir::cleanPath(path) : there;
}

bool isBelow(const QString &path, const QString &folder)
{
    return placeOf(path).startsWith(placeOf(folder) + u'/');
}

/** The pattern of a folder that is no place below the picture's own. */
bool leadsAway(const QString &folder)
{
    return folder.startsWith(u'/') || folder.split(u'/').contains(QStringLiteral(".."));
}

/** A recipe and a picture that can be made by it. */
struct Task
{
    Recipe recipe;
    ImageSource source;
    OutputPlan plan;
};

Result<Task> taskFor(const QString &path, const QVariantMap &object)
{
    return recipeFrom(object, {QStringLiteral("/")}).and_then([&](const Recipe &recipe) {
        return meta::openedWithSidecar(path).map([&](const ImageSource &source) {
            return Task{recipe, source, image::planOf(recipe, source).first()};
        });
    });
}

QVariantMap outcome(const char *word, const QString &reason)
{
    return {{key("outcome"), key(word)}, {key("reason"), reason}, {key("path"), QString()},
            {key("width"), 0},           {key("height"), 0},      {key("losses"), QStringList()}};
}

Result<image::MadeOutput> madeOf(const Task &task, const QString &path)
{
    Result<image::MadeOutput> result =
        platform::failure(platform::ErrorCode::Unreadable, image::sentence(QT_TRANSLATE_NOOP("recipe", "no result")));
    const text::TokenFacts facts = needsFacts(task.recipe) ? factsOfPicture(path, 0) : factsOfFile(path, 0, false);
    const image::FillText fill = [&facts](const QString &pattern, QSize size) {
        return watermarkFrom(pattern, facts, size);
    };
    image::makeOutputs(task.recipe, task.source, {task.plan}, fill,
                       [&result](int, const Result<image::MadeOutput> &made) { result = made; });
    return result;
}

} // namespace

Result<Recipe> recipeFrom(const QVariantMap &object, const image::RecipeFiles &files)
{
    const QByteArray json = QJsonDocument(QJsonObject::fromVariantMap(object)).toJson();
    return image::readRecipe(json, files).and_then([](const Recipe &recipe) -> Result<Recipe> {
        if (recipe.outputs.size() != 1)
            return platform::failure(platform::ErrorCode::InvalidValue,
                                     image::sentence(QT_TRANSLATE_NOOP("recipe", "outputs: exactly one")));
        return recipe;
    });
}

Result<QStringList> filesOf(const QVariantMap &object)
{
    image::RecipeFiles files;
    files.folder = QStringLiteral("/");
    files.areOpened = false;
    return recipeFrom(object, files).map([](const Recipe &recipe) { return image::filesOf(recipe); });
}

namespace {

QVariantMap rectangle(int x, int y, int width, int height)
{
    return {{key("x"), x}, {key("y"), y}, {key("width"), width}, {key("height"), height}};
}

QVariantMap cutOf(const std::optional<image::CutPlan> &cut)
{
    if (!cut)
        return {};
    const image::CropRect &frame = cut->frame;
    const QRect &part = cut->part;
    return {{key("frame"), rectangle(frame.x, frame.y, frame.width, frame.height)},
            {key("part"), rectangle(part.x(), part.y(), part.width(), part.height())},
            {key("isPlaced"), cut->isPlaced}};
}

} // namespace

QVariantMap answerOf(const OutputPlan &plan)
{
    const bool isThere = plan.problem.isEmpty();
    return {{key("problem"), plan.problem},
            {key("isNotSupported"), plan.isNotSupported},
            {key("type"), isThere ? QString(image::writtenType(plan.type).keyword) : QString()},
            {key("width"), plan.size.width()},
            {key("height"), plan.size.height()},
            {key("extension"), isThere ? image::extensionOf(plan.type) : QString()},
            {key("lossless"), plan.isLossless},
            {key("leftOut"), plan.leftOut},
            {key("losses"), plan.losses},
            {key("cut"), cutOf(plan.cut)}};
}

QVariantMap RecipeService::recipeFor(const QString &action, const QVariantMap &settings) const
{
    const Preset preset = {action, QString(), QJsonObject::fromVariantMap(settings)};
    return recipeObjectOf(preset).value_or(QJsonObject()).toVariantMap();
}

QVariantMap RecipeService::planOutput(const QString &path, const QVariantMap &recipe) const
{
    OutputPlan plan;
    const Result<Task> task = taskFor(path, recipe);
    if (task)
        plan = task->plan;
    else
        plan.problem = task.error().message;
    return answerOf(plan);
}

QString RecipeService::nameFor(const QString &path, const QString &pattern, int index, int width, int height,
                               const QString &extension) const
{
    const bool isNeeded = text::needsFacts(text::tokenParts(pattern));
    const text::TokenFacts facts = isNeeded ? tokenFacts(path, index) : factsOfFile(path, index, false);
    const qsizetype most = platform::longestNameBytes - extension.toUtf8().size();
    return platform::shortened(nameFrom(pattern, facts, {width, height}), most) + extension;
}

text::TokenFacts RecipeService::tokenFacts(const QString &path, int index) const
{
    return factsOfPicture(path, index);
}

QVariantMap RecipeService::make(const QString &path, const QVariantMap &recipe, const QString &target) const
{
    const Result<Task> task = taskFor(path, recipe);
    if (!task)
        return outcome("Failed", task.error().message);
    if (!task->plan.problem.isEmpty())
        return outcome(task->plan.isNotSupported ? "Not Supported" : "Failed", task->plan.problem);
    const Result<image::MadeOutput> made = madeOf(*task, path);
    const Result<void> written =
        made.and_then([&](const image::MadeOutput &output) { return platform::replaceFile(target, output.bytes); });
    if (!written)
        return outcome("Failed", written.error().message);
    if (task->recipe.outputs.first().dates == image::FileDates::Keep)
        takeDateOf(path, target);
    QVariantMap result = outcome("OK", QString());
    result.insert(key("path"), target);
    result.insert(key("width"), made->size.width());
    result.insert(key("height"), made->size.height());
    result.insert(key("losses"), task->plan.losses);
    return result;
}

RecipeWork *RecipeService::work()
{
    return new RecipeWork(WorkerDesk::ofProcess(), this);
}

void RecipeService::useProcessors(int processors)
{
    WorkerDesk::ofProcess().setSize(processors);
}

void RecipeService::useMemory(int megabytes)
{
    constexpr int megabyteBits = 20;
    WorkerDesk::ofProcess().setMostMemory(qint64(megabytes) << megabyteBits);
}

int RecipeService::processors() const
{
    return WorkerDesk::most();
}

void RecipeService::prepare()
{
    WorkerDesk::ofProcess().warmUp();
}

QVariantMap RecipeService::confinement() const
{
    const std::optional<HelloMessage> &said = WorkerDesk::ofProcess().confinement();
    if (!said)
        return {};
    return {{key("noNewPrivileges"), said->hasNoNewPrivileges},
            {key("fileRules"), said->hasFileRules},
            {key("callRules"), said->hasCallRules}};
}

QString RecipeService::problemOf(const QString &text, const QString &folder, bool filesAreOpened) const
{
    const Result<Recipe> recipe = readText(text, folder, filesAreOpened);
    return recipe ? QString() : recipe.error().message;
}

QVariantMap RecipeService::reachOf(const QString &text, const QString &folder) const
{
    const Result<Recipe> recipe = readText(text, folder, false);
    QStringList reads;
    QStringList writes;
    if (recipe) {
        for (const QString &path : image::filesOf(*recipe))
            if (!isBelow(path, folder))
                reads.append(path);
        for (const image::RecipeOutput &output : recipe->outputs)
            if (leadsAway(output.folder) && !writes.contains(output.folder))
                writes.append(output.folder);
    }
    return {{key("reads"), reads}, {key("writes"), writes}};
}

QVariantList RecipeService::supplied() const
{
    QVariantList all;
    for (const SuppliedRecipe &recipe : suppliedRecipes())
        all.append(QVariantMap{{key("name"), recipe.name}, {key("path"), recipe.path}});
    return all;
}

QStringList RecipeService::takes() const
{
    return pictureExtensions();
}

QStringList RecipeService::resultsAmong(const QStringList &paths) const
{
    QStringList results;
    std::copy_if(paths.begin(), paths.end(), std::back_inserter(results), isResult);
    return results;
}

void RecipeService::noteResult(const QString &path) const
{
    markResult(path, path, key("pages"));
}

const QList<MadeWith> &RecipeService::madeWithFor(const QVariantMap &recipe)
{
    const auto states = [](const QStringList &files) {
        QStringList all;
        std::transform(files.begin(), files.end(), std::back_inserter(all), sourceState);
        return all;
    };
    if (m_asked.recipe == recipe && states(m_asked.files) == m_asked.states)
        return m_asked.made;
    m_asked = {recipe, {}, {}, {}};
    const QByteArray json = QJsonDocument(QJsonObject::fromVariantMap(recipe)).toJson();
    image::RecipeFiles named{QStringLiteral("/")};
    named.areOpened = false;
    if (const Result<Recipe> read = image::readRecipe(json, named)) {
        m_asked.files = image::filesOf(*read);
        m_asked.states = states(m_asked.files);
        m_asked.made = madeWith(json, *read);
    }
    return m_asked.made;
}

QString RecipeService::upToDate(const QString &path, const QVariantMap &recipe, int index, const QString &wanted)
{
    const QList<MadeWith> &made = madeWithFor(recipe);
    return made.isEmpty() ? QString() : ResultRecords::ofProcess().upToDate(wanted, path, made.first().of(path, index));
}

QStringList RecipeService::fonts() const
{
    return platform::fontFamilies();
}

} // namespace jobs
