#include "jobs/reading/preview_edits.h"

#include "image/overlay.h"
#include "image/recipe/render.h"
#include "jobs/names.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <functional>

namespace jobs {
namespace {

using platform::Bitmap;
using platform::ErrorCode;
using platform::Result;

tl::unexpected<platform::Error> refused(const QString &message)
{
    return platform::failure(ErrorCode::InvalidValue, message);
}

/** The values of one edit, and the first that is not what it should be. */
class Values
{
public:
    explicit Values(const QVariantMap &map) : m_map(map) {}

    QString text(const char *name)
    {
        const QVariant value = m_map.value(QString::fromLatin1(name));
        if (value.metaType() != QMetaType::fromType<QString>())
            complain(name, "text");
        return value.toString();
    }

    /** Invalid for an empty text. */
    QColor color(const char *name)
    {
        const QString value = text(name);
        const QColor color(value);
        if (!value.isEmpty() && !color.isValid())
            complain(name, "a colour");
        return color;
    }

    QVariantList list(const char *name)
    {
        const QVariant value = m_map.value(QString::fromLatin1(name));
        if (value.metaType() != QMetaType::fromType<QVariantList>())
            complain(name, "a list");
        return value.toList();
    }

    void complain(const char *name, const char *expected)
    {
        if (m_problem.isEmpty())
            m_problem =
                QStringLiteral("Expected %1 for %2 of the edit %3")
                    .arg(QLatin1String(expected), QLatin1String(name), m_map.value(QStringLiteral("do")).toString());
    }
    void refuse(const QString &sentence)
    {
        if (m_problem.isEmpty())
            m_problem = sentence;
    }
    const QString &problem() const { return m_problem; }

private:
    const QVariantMap &m_map;
    QString m_problem;
};

Edit recipeEdit(Values &values, const image::RecipeFiles &files)
{
    const QJsonObject recipe = {{QStringLiteral("quorlin"), image::recipeVersion},
                                {QStringLiteral("operations"), QJsonArray::fromVariantList(values.list("operations"))},
                                {QStringLiteral("outputs"), QJsonArray{QJsonObject()}}};
    const Result<image::Recipe> read = image::readRecipe(QJsonDocument(recipe).toJson(), files);
    if (!read) {
        values.refuse(read.error().message);
        return RecipeEdit();
    }
    return RecipeEdit{read->operations, values.text("path"), image::filesOf(*read)};
}

using Reader = std::function<Edit(Values &, const image::RecipeFiles &)>;

const QHash<QString, Reader> &readers()
{
    static const QHash<QString, Reader> all = {
        {QStringLiteral("lay"),
         [](Values &values, const image::RecipeFiles &) -> Edit { return LayEdit{values.color("color")}; }},
        {QStringLiteral("flatten"), [](Values &, const image::RecipeFiles &) -> Edit { return FlattenEdit{}; }},
        {QStringLiteral("recipe"), recipeEdit},
    };
    return all;
}

Result<Rendition> with(const Result<Bitmap> &bitmap, QSize full)
{
    return bitmap.map([full](const Bitmap &made) { return Rendition{made, full}; });
}

Result<Rendition> doneOne(const LayEdit &edit, const Rendition &start, const text::TokenFacts &)
{
    return with(image::laidOnColor(start.bitmap, edit.color), start.full);
}

Result<Rendition> doneOne(const FlattenEdit &, const Rendition &start, const text::TokenFacts &)
{
    return with(start.bitmap.hasAlpha() ? image::laidOnColor(start.bitmap, Qt::black) : Result<Bitmap>(start.bitmap),
                start.full);
}

/** The same with what the pixels say of themselves. */
image::Rendition stagedFrom(const Rendition &start)
{
    image::Rendition known = {start.bitmap, image::stageOf(start.bitmap)};
    known.stage.size = start.full;
    return known;
}

Result<Rendition> doneOne(const RecipeEdit &edit, const Rendition &start, const text::TokenFacts &facts)
{
    const image::FillText fill = [&facts](const QString &pattern, QSize size) {
        return watermarkFrom(pattern, facts, size);
    };
    return image::rendered(edit.steps, stagedFrom(start), fill).map([](const image::Rendition &made) {
        return Rendition{made.bitmap, made.stage.size};
    });
}

} // namespace

Result<Edits> editsFrom(const QVariantList &list, const image::RecipeFiles &files)
{
    Edits edits;
    for (const QVariant &entry : list) {
        const QVariantMap map = entry.toMap();
        const QString name = map.value(QStringLiteral("do")).toString();
        const Reader reader = readers().value(name);
        if (!reader)
            return refused(QStringLiteral("Expected an edit of the preview but received \"%1\"").arg(name));
        Values values(map);
        edits.push_back(reader(values, files));
        if (!values.problem().isEmpty())
            return refused(values.problem());
    }
    return edits;
}

QStringList filesOf(const Edits &edits)
{
    QStringList files;
    for (const Edit &edit : edits)
        if (const auto *recipe = std::get_if<RecipeEdit>(&edit))
            files += recipe->files;
    files.removeDuplicates();
    return files;
}

Result<Rendition> done(const Edits &edits, const Rendition &start, const text::TokenFacts &facts)
{
    Result<Rendition> present = start;
    for (const Edit &edit : edits) {
        present = std::visit([&](const auto &one) { return doneOne(one, *present, facts); }, edit);
        if (!present)
            break;
    }
    return present;
}

std::optional<QRect> foundPart(const Edits &edits, const Rendition &start)
{
    const auto *recipe = edits.empty() ? nullptr : std::get_if<RecipeEdit>(&edits.front());
    return recipe ? image::foundPart(recipe->steps, stagedFrom(start)) : std::nullopt;
}

} // namespace jobs
