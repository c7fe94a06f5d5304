#include "app/preview/preview_deeds.h"

#include "image/crop.h"
#include "image/overlay.h"
#include "image/recipe/recipe_reader.h"
#include "image/recipe/render.h"
#include "image/round_corners.h"
#include "image/turn.h"
#include "jobs/names.h"
#include "platform/graphics/compose.h"
#include "platform/graphics/resample.h"
#include "platform/imageio/source/picture.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <functional>

namespace window {
namespace {

using platform::Bitmap;
using platform::ErrorCode;
using platform::Result;

tl::unexpected<platform::Error> refused(const QString &message)
{
    return platform::failure(ErrorCode::InvalidValue, message);
}

/** The values of one deed, and the first that is not what it should be. */
class Values
{
public:
    explicit Values(const QVariantMap &map) : m_map(map) {}

    double number(const char *name)
    {
        bool isNumber = false;
        const QVariant value = m_map.value(QString::fromLatin1(name));
        const double number = value.toDouble(&isNumber);
        const bool isText = value.metaType() == QMetaType::fromType<QString>();
        if (!isNumber || isText || !std::isfinite(number))
            complain(name, "a number");
        return number;
    }

    int whole(const char *name)
    {
        constexpr double most = 1e9;
        return int(std::lround(std::clamp(number(name), -most, most)));
    }

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
                QStringLiteral("Expected %1 for %2 of the deed %3")
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

Deed cutDeed(Values &values)
{
    return CutDeed{QRect(values.whole("x"), values.whole("y"), values.whole("width"), values.whole("height"))};
}

Deed scaleDeed(Values &values)
{
    const QSize size(values.whole("width"), values.whole("height"));
    if (size.isEmpty())
        values.complain("width and height", "at least 1 pixel");
    return ScaleDeed{size};
}

Deed flipDeed(Values &values)
{
    const QString axis = values.text("axis");
    if (axis != QLatin1String("horizontal") && axis != QLatin1String("vertical"))
        values.complain("axis", "horizontal or vertical");
    return FlipDeed{axis == QLatin1String("vertical") ? Qt::Vertical : Qt::Horizontal};
}

Deed roundDeed(Values &values)
{
    return RoundDeed{values.text("shape"), values.number("radius"), values.color("color"), values.number("band")};
}

Deed recipeDeed(Values &values)
{
    const QJsonObject recipe = {{QStringLiteral("quorlin"), image::recipeVersion},
                                {QStringLiteral("operations"), QJsonArray::fromVariantList(values.list("operations"))},
                                {QStringLiteral("outputs"), QJsonArray{QJsonObject()}}};
    const Result<image::Recipe> read = image::readRecipe(QJsonDocument(recipe).toJson(), QStringLiteral("/"));
    if (!read)
        values.refuse(read.error().message);
    return RecipeDeed{read ? read->operations : QList<image::RecipeStep>(), values.text("path")};
}

using Reader = std::function<Deed(Values &)>;

const QHash<QString, Reader> &readers()
{
    static const QHash<QString, Reader> all = {
        {QStringLiteral("cut"), cutDeed},
        {QStringLiteral("scale"), scaleDeed},
        {QStringLiteral("flip"), flipDeed},
        {QStringLiteral("turn"), [](Values &values) -> Deed { return TurnDeed{values.number("degrees")}; }},
        {QStringLiteral("round"), roundDeed},
        {QStringLiteral("lay"), [](Values &values) -> Deed { return LayDeed{values.color("color")}; }},
        {QStringLiteral("pattern"), [](Values &values) -> Deed { return PatternDeed{values.text("path")}; }},
        {QStringLiteral("frame"), [](Values &) -> Deed { return FrameDeed{}; }},
        {QStringLiteral("flatten"), [](Values &) -> Deed { return FlattenDeed{}; }},
        {QStringLiteral("recipe"), recipeDeed},
    };
    return all;
}

int scaledSide(double side, double scale)
{
    return std::max(1, int(std::lround(side * scale)));
}

QSize scaledSize(QSize size, const Rendition &rendition)
{
    return {scaledSide(size.width(), rendition.across()), scaledSide(size.height(), rendition.down())};
}

Result<Rendition> with(const Result<Bitmap> &bitmap, QSize full)
{
    return bitmap.map([full](const Bitmap &made) { return Rendition{made, full}; });
}

Result<Rendition> doneOne(const CutDeed &deed, const Rendition &start)
{
    const QRect kept =
        image::visiblePart({deed.part.x(), deed.part.y(), deed.part.width(), deed.part.height()}, start.full);
    if (kept.isEmpty())
        return refused(QCoreApplication::translate("window", "Nothing of the picture is left"));
    const QSize size = scaledSize(kept.size(), start).boundedTo(start.bitmap.size());
    const int x = std::min(int(std::lround(kept.x() * start.across())), start.bitmap.width() - size.width());
    const int y = std::min(int(std::lround(kept.y() * start.down())), start.bitmap.height() - size.height());
    return Rendition{platform::cut(start.bitmap, QRect(QPoint(x, y), size)), kept.size()};
}

Result<Rendition> doneOne(const ScaleDeed &deed, const Rendition &start)
{
    // As many pixels as the rendition has are enough, and never more than the picture itself.
    constexpr double mostSide = 4096;
    const double finest =
        std::max(double(start.bitmap.width()) / deed.size.width(), double(start.bitmap.height()) / deed.size.height());
    const double scale = std::min({1.0, finest, mostSide / std::max(deed.size.width(), deed.size.height())});
    const QSize pixels(scaledSide(deed.size.width(), scale), scaledSide(deed.size.height(), scale));
    if (pixels == start.bitmap.size())
        return Rendition{start.bitmap, deed.size};
    return with(platform::resample(start.bitmap, pixels), deed.size);
}

Result<Rendition> doneOne(const FlipDeed &deed, const Rendition &start)
{
    return with(image::flipped(start.bitmap, deed.axis), start.full);
}

Result<Rendition> doneOne(const TurnDeed &deed, const Rendition &start)
{
    constexpr double hair = 1e-6; // what the sines lose of a whole pixel
    const QSizeF box = image::turnedBox(QSizeF(start.full), deed.degrees);
    return with(image::turned(start.bitmap, deed.degrees),
                QSize(int(box.width() + hair), int(box.height() + hair)).expandedTo({1, 1}));
}

Result<Rendition> doneOne(const RoundDeed &deed, const Rendition &start)
{
    image::CornerOptions options;
    options.shape = deed.shape == QLatin1String("0")   ? image::CornerShape::Rectangle
                    : deed.shape == QLatin1String("1") ? image::CornerShape::Circle
                                                       : image::CornerShape::Ellipse;
    options.radius = deed.radius;
    if (deed.color.isValid())
        options.background = image::CornerBackground{deed.color, deed.band};
    const image::RoundedShape shape = image::roundedShape(options, start.full);
    return with(image::roundCorners(start.bitmap, image::fitted(shape, start.full, start.bitmap.size())),
                shape.part.size());
}

Result<Rendition> doneOne(const LayDeed &deed, const Rendition &start)
{
    return with(image::laidOnColor(start.bitmap, deed.color), start.full);
}

/** The tile that was used last: a slider asks for the same one again and again. */
platform::Picture tileAt(const QString &path)
{
    static QString lastPath;
    static platform::Picture last;
    if (path != lastPath || last.isNull()) {
        last = platform::Picture::opened(path);
        lastPath = path;
    }
    return last;
}

Result<Rendition> doneOne(const PatternDeed &deed, const Rendition &start)
{
    const platform::Picture tile = tileAt(deed.path);
    if (tile.isNull())
        return refused(QCoreApplication::translate("window", "The pattern cannot be read"));
    const Result<Bitmap> small = tile.scaledTo(scaledSize(tile.pixelSize(), start));
    if (!small)
        return tl::unexpected<platform::Error>(small.error());
    return with(image::laidOnPattern(start.bitmap, *small), start.full);
}

/**
 * The pixels of the rendition stay as they are, so the frame is whole pixels of it, on all sides the same: half of one more or
 * less than it would be.
 */
Result<Rendition> doneOne(const FrameDeed &, const Rendition &start)
{
    constexpr int framePx = 10;
    const QSize size = start.bitmap.size();
    const QSize frame(int(std::lround(framePx * start.across())), int(std::lround(framePx * start.down())));
    const QRect place(QPoint(frame.width(), frame.height()), size);
    return with(platform::drawnOnWhite(start.bitmap, size + 2 * frame, place),
                start.full + QSize(2 * framePx, 2 * framePx));
}

Result<Rendition> doneOne(const FlattenDeed &, const Rendition &start)
{
    return with(start.bitmap.hasAlpha() ? image::laidOnColor(start.bitmap, Qt::black) : Result<Bitmap>(start.bitmap),
                start.full);
}

Result<Rendition> doneOne(const RecipeDeed &deed, const Rendition &start)
{
    image::Rendition known = {start.bitmap, image::stageOf(start.bitmap)};
    known.stage.size = start.full;
    const image::FillText fill = [&deed](const QString &pattern, QSize size) {
        return jobs::watermarkFrom(pattern, jobs::factsOfPicture(deed.path, 0), size);
    };
    return image::rendered(deed.steps, known, fill).map([](const image::Rendition &made) {
        return Rendition{made.bitmap, made.stage.size};
    });
}

} // namespace

Result<Deeds> deedsFrom(const QVariantList &list)
{
    Deeds deeds;
    for (const QVariant &entry : list) {
        const QVariantMap map = entry.toMap();
        const QString name = map.value(QStringLiteral("do")).toString();
        const Reader reader = readers().value(name);
        if (!reader)
            return refused(QStringLiteral("Expected a deed of the preview but received \"%1\"").arg(name));
        Values values(map);
        deeds.push_back(reader(values));
        if (!values.problem().isEmpty())
            return refused(values.problem());
    }
    return deeds;
}

Result<Rendition> done(const Deeds &deeds, const Rendition &start)
{
    Result<Rendition> present = start;
    for (const Deed &deed : deeds) {
        present = std::visit([&present](const auto &one) { return doneOne(one, *present); }, deed);
        if (!present)
            break;
    }
    return present;
}

} // namespace window
