#include "app/reading/reading_services.h"

#include "app/reading/known_pictures.h"
#include "files/items/file_facts.h"
#include "image/recipe/plan.h"
#include "image/unit_conversion.h"
#include "jobs/camera_clocks.h"
#include "jobs/desk/plan_errand.h"
#include "jobs/names.h"
#include "jobs/reading/comment_errand.h"
#include "jobs/reading/field_errand.h"
#include "jobs/records/picture_ratings.h"

namespace window {

namespace {

using jobs::Reading;
using jobs::ReadResult;

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

ReadResult read(Reading what, const QString &path, const QVariantMap &values = {}, const QStringList &files = {})
{
    return jobs::readNow({what, path, values, files});
}

} // namespace

QVariant ReadingFiles::storedSize(const QString &path) const
{
    const KnownPicture picture = KnownPictures::ofProcess().now(path);
    if (picture.stored.isEmpty())
        return QVariant::fromValue(nullptr);
    return QVariantMap{{key("width"), picture.stored.width()}, {key("height"), picture.stored.height()}};
}

QVariantMap ReadingFiles::picture(const QString &path) const
{
    const KnownPicture known = KnownPictures::ofProcess().now(path);
    return files::pictureValues(path, known.pixels, known.orientation, known.type);
}

QVariant ReadingFiles::facts(const QString &path) const
{
    const QVariant facts = files::fileFacts(path, [](const QString &file) {
        return jobs::CameraClocks::ofProcess().corrected(KnownPictures::ofProcess().now(file).facts);
    });
    QVariantMap rated = facts.toMap();
    if (rated.isEmpty())
        return facts;
    rated.insert(QStringLiteral("rating"), jobs::PictureRatings::ofProcess().of(path));
    return rated;
}

QString ReadingFiles::profileName(const QString &path) const
{
    return read(Reading::Profile, path).value("name").toString();
}

QVariantMap ReadingFiles::lostMetadata(const QString &from, const QString &to) const
{
    const ReadResult had = read(Reading::Properties, from, jobs::askingFields(from));
    const ReadResult has = read(Reading::Properties, to);
    return files::lostBetween(had.value("properties").toMap(), has.value("properties").toMap(),
                              had.isGood() ? has.problem : had.problem);
}

QString ReadingFiles::writeComment(const QString &path, const QString &comment) const
{
    return jobs::writeCommentNow(path, comment);
}

QVariantMap ReadingFiles::readComment(const QString &path) const
{
    const ReadResult result = read(Reading::Comment, path);
    const QString comment = result.value("comment").toString();
    return {{key("comment"), result.isGood() && !comment.isNull() ? comment : QStringLiteral("")},
            {key("problem"), result.isGood() ? QStringLiteral("") : result.problem}};
}

int ReadingFiles::pagesLostToComment(const QString &path) const
{
    return std::max(0, read(Reading::Comment, path).value("pagesLost").toInt());
}

bool ReadingFiles::holdsComment(const QString &path) const
{
    return read(Reading::Comment, path).value("holds").toBool();
}

QVariantMap ReadingFiles::readFields(const QString &path) const
{
    const ReadResult result = read(Reading::Fields, path, jobs::askingFields(path));
    return jobs::fieldsAnswer(path, result.problem, result.values);
}

QVariantMap ReadingFiles::writeFields(const QString &path, const QVariantMap &work) const
{
    return jobs::writeFieldsNow(path, work);
}

double ReadingPictures::resolution(const QString &path) const
{
    const KnownPicture picture = KnownPictures::ofProcess().now(path);
    return picture.pixels.isEmpty() ? 0 : image::resolutionOf(picture.pixels, picture.points);
}

bool ReadingPictures::keepsProfile(const QString &path, const QString &typeIdentifier) const
{
    return read(Reading::Profile, path).value("heldBy").toStringList().contains(typeIdentifier);
}

QVariantMap ReadingRecipes::planOutput(const QString &path, const QVariantMap &recipe) const
{
    const auto named = jobs::filesOf(recipe);
    image::OutputPlan refused;
    if (!named)
        refused.problem = named.error().message;
    const ReadResult result = named ? read(Reading::Plan, path, {{key("recipe"), recipe}}, *named)
                                    : ReadResult{refused.problem, false, {}, {}};
    if (result.isGood())
        return result.values;
    refused.problem = result.problem;
    return jobs::answerOf(refused);
}

QString ReadingRecipes::problemOf(const QString &text, const QString &folder, bool filesAreOpened) const
{
    const QString problem = RecipeService::problemOf(text, folder, false);
    return problem.isEmpty() && filesAreOpened ? jobs::recipeProblemNow(text.toUtf8(), folder) : problem;
}

text::TokenFacts ReadingRecipes::tokenFacts(const QString &path, int index) const
{
    return jobs::withPictureFacts(jobs::factsOfFile(path, index, true), KnownPictures::ofProcess().now(path).facts);
}

QVariantMap ReadingPages::textsOf(const QString &path) const
{
    const QVariantMap sidecar = jobs::askingFields(path);
    return jobs::pageTextValues(read(Reading::Properties, path, sidecar).value("properties").toMap(),
                                read(Reading::Fields, path, sidecar).value("fields").toMap());
}

} // namespace window
