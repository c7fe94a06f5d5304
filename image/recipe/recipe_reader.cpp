#include "image/recipe/recipe_reader.h"

#include "image/recipe/keys/recipe_keys.h"
#include "image/recipe/keys/repeated_key.h"
#include "image/recipe/operation_reader.h"
#include "image/recipe/plan.h"
#include "image/recipe/sentence.h"
#include "platform/file/lent_file.h"
#include "platform/file/regular_file.h"
#include "text/tokens.h"

#include <QFileInfo>
#include <QJsonDocument>

#include <cmath>
#include <vector>

namespace image {
namespace {

using platform::Result;

constexpr Word<KeptMetadata> kinds[] = {
    {"keep", KeptMetadata::Keep}, {"copyright", KeptMetadata::Copyright}, {"none", KeptMetadata::None}};
constexpr Word<FileDates> dates[] = {{"now", FileDates::Now}, {"keep", FileDates::Keep}};
constexpr Word<IfTaken> takens[] = {
    {"number", IfTaken::Number}, {"replace", IfTaken::Replace}, {"skip", IfTaken::Skip}, {"current", IfTaken::Current}};

/** A file whose type is kept may be of any type. */
bool canHaveQuality(OutputType type)
{
    return type == OutputType::Original || writtenType(type).hasQuality;
}

bool canBeLossless(OutputType type)
{
    return type == OutputType::Original || writtenType(type).canBeLossless;
}

std::vector<Word<OutputType>> wordsOfTypes()
{
    std::vector<Word<OutputType>> words = {{"original", OutputType::Original}};
    for (const WrittenType &each : writtenTypes())
        words.push_back({each.keyword.data(), each.type});
    return words;
}

void readEncoding(RecipeKeys &keys, RecipeOutput &output)
{
    output.type = keys.choice<OutputType>("type", wordsOfTypes()).value_or(OutputType::Original);
    if (!canHaveQuality(output.type))
        keys.refuseKey("quality", sentence(QT_TRANSLATE_NOOP("recipe", "this type has no quality")));
    else if (const auto quality = keys.number("quality", {1, 100, true}))
        output.quality = int(*quality);
    if (!canBeLossless(output.type))
        keys.refuseKey("lossless", sentence(QT_TRANSLATE_NOOP("recipe", "this type has no lossless option")));
    else
        output.isLossless = keys.flag("lossless").value_or(false);
    if (output.isLossless && output.quality)
        keys.complain(
            "lossless",
            sentence(QT_TRANSLATE_NOOP("recipe", "it cannot be used together with %1")).arg(QStringLiteral("quality")));
    constexpr double largestFile = 1e15;
    if (const auto bytes = keys.number("maxBytes", {1, largestFile, true}))
        output.maxBytes = qint64(*bytes);
}

void checkTokens(RecipeKeys &keys, const char *key, const QString &pattern)
{
    if (const QStringList problems = text::tokenProblems(pattern); !problems.isEmpty())
        keys.complain(key, problems.first());
}

void readPlace(RecipeKeys &keys, RecipeOutput &output)
{
    output.name = keys.text("name").value_or(output.name);
    checkTokens(keys, "name", output.name);
    if (output.name.trimmed().isEmpty())
        keys.complain("name", sentence(QT_TRANSLATE_NOOP("recipe", "a name that is not empty")));
    if (output.name.contains(u'/'))
        keys.complain("name",
                      sentence(QT_TRANSLATE_NOOP("recipe", "a name without \"/\"; for folders, use \"folder\"")));
    output.folder = keys.text("folder").value_or(QString());
    checkTokens(keys, "folder", output.folder);
    output.dates = keys.choice("dates", dates).value_or(output.dates);
    output.ifTaken = keys.choice("ifTaken", takens).value_or(output.ifTaken);
}

RecipeOutput outputFrom(RecipeKeys &keys, const RecipeFiles &files)
{
    RecipeOutput output;
    readEncoding(keys, output);
    readPlace(keys, output);
    for (RecipeKeys &each : keys.objects("operations"))
        output.operations.append(stepFrom(each, files));
    if (const auto profile = keys.text("profile"))
        output.profile = profileNamed(keys, "profile", *profile, files);
    output.metadata = keys.choice("metadata", kinds).value_or(output.metadata);
    output.keepsLocation = keys.flag("location").value_or(true);
    output.dpi = keys.number("dpi", {1, 10'000});
    output.matte = keys.color("matte").value_or(output.matte);
    keys.finish();
    return output;
}

/** The version first: a later one may give everything else another meaning. */
bool readVersion(RecipeKeys &keys)
{
    constexpr double latest = 1e9;
    const auto version = keys.number("quorlin", {1, latest, true});
    if (!version)
        keys.complain("quorlin", sentence(QT_TRANSLATE_NOOP("recipe", "the version of the recipe is missing")));
    else if (*version > recipeVersion)
        keys.complain(
            "quorlin",
            sentence(QT_TRANSLATE_NOOP("recipe",
                                       "this recipe has version %1, but this program supports versions up to %2 only"))
                .arg(*version)
                .arg(recipeVersion));
    return version && *version <= recipeVersion;
}

Recipe recipeFrom(RecipeKeys &keys, const RecipeFiles &files)
{
    Recipe recipe;
    if (!readVersion(keys))
        return recipe;
    recipe.name = keys.text("name").value_or(QString());
    for (RecipeKeys &each : keys.objects("operations"))
        recipe.operations.append(stepFrom(each, files));
    const bool hasOutputs = keys.has("outputs");
    for (RecipeKeys &each : keys.objects("outputs"))
        recipe.outputs.append(outputFrom(each, files));
    if (recipe.outputs.isEmpty())
        keys.complain("outputs", hasOutputs ? sentence(QT_TRANSLATE_NOOP("recipe", "at least one output"))
                                            : sentence(QT_TRANSLATE_NOOP("recipe", "the list of outputs is missing")));
    keys.finish();
    return recipe;
}

} // namespace

Result<Recipe> readRecipe(const QByteArray &json, const QString &folder)
{
    RecipeFiles files;
    files.folder = folder;
    return readRecipe(json, files);
}

Result<Recipe> readRecipe(const QByteArray &json, const RecipeFiles &files)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError) {
        const auto line = json.left(error.offset).count('\n') + 1;
        return platform::failure(
            platform::ErrorCode::InvalidValue,
            sentence(QT_TRANSLATE_NOOP("recipe", "line %1: %2")).arg(line).arg(error.errorString()));
    }
    if (!document.isObject())
        return platform::failure(platform::ErrorCode::InvalidValue,
                                 sentence(QT_TRANSLATE_NOOP("recipe", "a recipe must be a JSON object")));
    RecipeProblem problem;
    RecipeKeys keys(document.object(), {}, problem);
    const Recipe recipe = recipeFrom(keys, files);
    if (const QString place = problem.isThere() ? QString() : repeatedKey(json); !place.isEmpty())
        problem.state(place, sentence(QT_TRANSLATE_NOOP("recipe", "it is there twice")));
    if (problem.isThere())
        return platform::failure(platform::ErrorCode::InvalidValue, problem.sentence());
    return recipe;
}

Result<std::shared_ptr<const platform::LentFile>> RecipeFiles::openedFile(const QString &path)
{
    return platform::LentFile::open(path).map(
        [](platform::LentFile &&file) { return std::make_shared<const platform::LentFile>(std::move(file)); });
}

QStringList filesOf(const Recipe &recipe)
{
    QStringList paths;
    const auto addSteps = [&paths](const QList<RecipeStep> &steps) {
        for (const RecipeStep &step : steps) {
            if (const auto *background = std::get_if<BackgroundOperation>(&step.operation))
                paths.append(background->pattern.path);
            else if (const auto *mark = std::get_if<WatermarkOperation>(&step.operation))
                paths.append(mark->picture.path);
            else if (const auto *profile = std::get_if<ProfileOperation>(&step.operation))
                paths.append(profile->name.startsWith(u'/') ? profile->name : QString());
        }
    };
    addSteps(recipe.operations);
    for (const RecipeOutput &output : recipe.outputs)
        addSteps(stepsOf(output));
    paths.removeAll(QString());
    paths.removeDuplicates();
    return paths;
}

Result<Recipe> readRecipeFile(const QString &path)
{
    constexpr qint64 largest = 4 << 20;
    platform::NamedFile file(path);
    if (const auto opened = platform::openToRead(file); !opened)
        return tl::unexpected<platform::Error>(opened.error());
    const QByteArray json = file.read(largest);
    if (!file.readProblem().isEmpty() || !file.atEnd())
        return platform::failure(platform::ErrorCode::InvalidValue,
                                 file.atEnd()
                                     ? file.readProblem()
                                     : sentence(QT_TRANSLATE_NOOP("recipe", "a recipe cannot be larger than 4 MB")));
    return readRecipe(json, QFileInfo(path).absolutePath());
}

} // namespace image
