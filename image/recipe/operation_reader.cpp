#include "image/recipe/operation_reader.h"
#include "image/recipe/sentence.h"

#include "platform/effects/colour_space.h"
#include "platform/effects/lettering.h"
#include "platform/file/lent_file.h"
#include "platform/imageio/source/image_source.h"
#include "text/tokens.h"

#include <QDir>

#include <array>
#include <span>

namespace image {
namespace {

constexpr double longestSide = 100'000;
constexpr qsizetype longestPath = 200; ///< that a sentence quotes in full

constexpr Word<Place> placesOfParts[] = {
    {"top left", Place::TopLeft},
    {"top", Place::Top},
    {"top right", Place::TopRight},
    {"left", Place::Left},
    {"center", Place::Center},
    {"right", Place::Right},
    {"bottom left", Place::BottomLeft},
    {"bottom", Place::Bottom},
    {"bottom right", Place::BottomRight},
    {"attention", Place::Attention},
};
/** Positions: the same without the last one. */
const std::span<const Word<Place>> places = std::span(placesOfParts).first(std::size(placesOfParts) - 1);
constexpr Word<RecipeUnit> units[] = {{"mm", RecipeUnit::Millimetre},
                                      {"cm", RecipeUnit::Centimetre},
                                      {"in", RecipeUnit::Inch},
                                      {"pt", RecipeUnit::Point},
                                      {"pica", RecipeUnit::Pica}};
constexpr Word<BoxFit> fits[] = {
    {"inside", BoxFit::Inside}, {"fill", BoxFit::Fill}, {"stretch", BoxFit::Stretch}, {"pad", BoxFit::Pad}};
constexpr Word<Qt::Orientation> directions[] = {{"horizontal", Qt::Horizontal}, {"vertical", Qt::Vertical}};
constexpr Word<RoundShape> shapes[] = {
    {"rectangle", RoundShape::Rectangle}, {"circle", RoundShape::Circle}, {"ellipse", RoundShape::Ellipse}};
constexpr Word<SharpenAmount> amounts[] = {
    {"low", SharpenAmount::Low}, {"standard", SharpenAmount::Standard}, {"high", SharpenAmount::High}};

Scale scaleFrom(RecipeKeys &keys)
{
    Scale scale;
    scale.unit = keys.choice("unit", units).value_or(RecipeUnit::Pixel);
    scale.dpi = keys.number("dpi", {1, 10'000});
    return scale;
}

/** A length of at least a pixel, or of anything above 0 in other units. */
NumberRange lengthRange(const Scale &scale)
{
    return scale.unit == RecipeUnit::Pixel ? NumberRange{1, longestSide, true}
                                           : NumberRange{0, longestSide, false, true};
}

/** A length that may be zero. */
NumberRange widthRange(const Scale &scale, double least = 0)
{
    return {least, longestSide, scale.unit == RecipeUnit::Pixel};
}

void readBox(RecipeKeys &keys, ResizeOperation &resize)
{
    const std::array<NumberRange, 2> sides = {lengthRange(resize.scale), lengthRange(resize.scale)};
    if (const auto box = keys.numbers("box", sides)) {
        resize.boxWidth = box->at(0);
        resize.boxHeight = box->at(1);
    }
    resize.fit = keys.choice("fit", fits).value_or(BoxFit::Inside);
    if (resize.fit == BoxFit::Fill)
        resize.position = keys.choice("position", placesOfParts).value_or(Place::Center);
    else if (resize.fit == BoxFit::Pad)
        resize.position = keys.choice("position", places).value_or(Place::Center);
    else
        keys.refuseKey("position",
                       sentence(QT_TRANSLATE_NOOP("recipe", "it applies only if \"fit\" is \"fill\" or \"pad\"")));
    if (resize.fit == BoxFit::Pad)
        resize.color = keys.color("color").value_or(QColor(Qt::white));
    else
        keys.refuseKey("color", sentence(QT_TRANSLATE_NOOP("recipe", "it applies only if \"fit\" is \"pad\"")));
}

Operation resizeFrom(RecipeKeys &keys)
{
    static constexpr Word<ResizeBy> ways[] = {{"width", ResizeBy::Width},     {"height", ResizeBy::Height},
                                              {"longest", ResizeBy::Longest}, {"shortest", ResizeBy::Shortest},
                                              {"percent", ResizeBy::Percent}, {"megapixels", ResizeBy::Megapixels},
                                              {"box", ResizeBy::Box}};
    ResizeOperation resize;
    resize.scale = scaleFrom(keys);
    QStringList names;
    for (const auto &way : ways)
        names.append(QLatin1String(way.word));
    const QString named = keys.oneOf(names).value_or(QString());
    for (const auto &way : ways)
        if (named == QLatin1String(way.word))
            resize.by = way.value;
    const QByteArray key = named.toLatin1();
    const NumberRange share = {0, 1000, false, true};
    if (resize.by == ResizeBy::Box && !named.isEmpty()) {
        readBox(keys, resize);
    } else {
        for (const char *each : {"fit", "position", "color"})
            keys.refuseKey(each, sentence(QT_TRANSLATE_NOOP("recipe", "it applies only with \"box\"")));
        const bool isShare = resize.by == ResizeBy::Percent || resize.by == ResizeBy::Megapixels;
        if (!named.isEmpty())
            resize.number = keys.number(key.constData(), isShare ? share : lengthRange(resize.scale)).value_or(1);
    }
    resize.enlarges = keys.flag("enlarge").value_or(false);
    return resize;
}

/** "3:2" as two numbers. */
void readRatio(RecipeKeys &keys, CropOperation &crop)
{
    const QString ratio = keys.text("ratio").value_or(QStringLiteral("1:1"));
    const QStringList parts = ratio.split(u':');
    bool isFirst = false;
    bool isSecond = false;
    crop.width = parts.value(0).toDouble(&isFirst);
    crop.height = parts.value(1).toDouble(&isSecond);
    const auto isUsable = [](double part) { return part >= 0.001 && part <= longestSide; };
    if (parts.size() != 2 || !isFirst || !isSecond || !isUsable(crop.width) || !isUsable(crop.height))
        keys.complain("ratio",
                      sentence(QT_TRANSLATE_NOOP("recipe", "two numbers separated by a colon such as 3:2, not \"%1\""))
                          .arg(shortened(ratio)));
}

Operation cropFrom(RecipeKeys &keys)
{
    CropOperation crop;
    crop.scale = scaleFrom(keys);
    const bool isBySize = keys.has("width") || keys.has("height");
    const QString way = keys.oneOf({isBySize && !keys.has("width") ? QStringLiteral("height") : QStringLiteral("width"),
                                    QStringLiteral("ratio"), QStringLiteral("percent"), QStringLiteral("trim")})
                            .value_or(QString());
    if (way == QLatin1String("ratio")) {
        crop.by = CropBy::Ratio;
        readRatio(keys, crop);
    } else if (way == QLatin1String("percent")) {
        crop.by = CropBy::Percent;
        crop.percent = keys.number("percent", {0, 99}).value_or(0);
    } else if (way == QLatin1String("trim")) {
        crop.by = CropBy::Trim;
        crop.width = crop.height = keys.number("trim", widthRange(crop.scale)).value_or(0);
    } else if (!way.isEmpty()) {
        for (const char *side : {"width", "height"})
            if (!keys.has(side))
                keys.complain(side, sentence(QT_TRANSLATE_NOOP("recipe", "it is required with %1")).arg(way));
        crop.width = keys.number("width", lengthRange(crop.scale)).value_or(1);
        crop.height = keys.number("height", lengthRange(crop.scale)).value_or(1);
    }
    if (crop.by == CropBy::Ratio)
        crop.turns = keys.flag("turn").value_or(true);
    else
        keys.refuseKey("turn", sentence(QT_TRANSLATE_NOOP("recipe", "it applies only with \"ratio\"")));
    crop.position = keys.choice("position", placesOfParts).value_or(Place::Center);
    const NumberRange way2 = widthRange(crop.scale, -longestSide);
    const std::array<NumberRange, 2> offsets = {way2, way2};
    if (const auto offset = keys.numbers("offset", offsets)) {
        crop.right = offset->at(0);
        crop.down = offset->at(1);
    }
    return crop;
}

Operation turnFrom(RecipeKeys &keys)
{
    TurnOperation turn;
    if (!keys.has("degrees"))
        keys.complain("degrees", sentence(QT_TRANSLATE_NOOP("recipe", "it is missing")));
    turn.degrees = keys.number("degrees", {-360, 360}).value_or(0);
    turn.color = keys.color("color");
    return turn;
}

Operation flipFrom(RecipeKeys &keys)
{
    if (!keys.has("direction"))
        keys.complain("direction", sentence(QT_TRANSLATE_NOOP("recipe", "it is missing")));
    return FlipOperation{keys.choice("direction", directions).value_or(Qt::Horizontal)};
}

Operation roundFrom(RecipeKeys &keys)
{
    RoundOperation round;
    round.scale = scaleFrom(keys);
    round.shape = keys.choice("shape", shapes).value_or(RoundShape::Rectangle);
    if (round.shape == RoundShape::Rectangle) {
        if (!keys.has("radius"))
            keys.complain("radius", sentence(QT_TRANSLATE_NOOP("recipe", "it is missing")));
        round.radius = keys.number("radius", widthRange(round.scale)).value_or(0);
    } else {
        keys.refuseKey("radius", sentence(QT_TRANSLATE_NOOP("recipe", "it applies only with a rectangle")));
    }
    round.color = keys.color("color");
    if (std::optional<RecipeKeys> band = keys.object("band")) {
        for (const char *each : {"width", "color"})
            if (!band->has(each))
                band->complain(each, sentence(QT_TRANSLATE_NOOP("recipe", "it is missing")));
        round.band = Band{band->number("width", widthRange(round.scale)).value_or(0),
                          band->color("color").value_or(QColor(Qt::white))};
        band->finish();
    }
    return round;
}

RecipePicture pictureNamed(RecipeKeys &keys, const char *key, const RecipeFiles &files)
{
    const QString name = keys.text(key).value_or(QString());
    RecipePicture picture = {QDir::cleanPath(QDir(files.folder).absoluteFilePath(name)), {}};
    if (files.areOpened && !name.isEmpty())
        picture.source = files.open(picture.path)
                             .and_then([](const auto &file) { return platform::ImageSource::fromLent(file); })
                             .value_or(platform::ImageSource());
    if (name.isEmpty() || (files.areOpened && picture.source.isNull()))
        keys.complain(
            key, sentence(QT_TRANSLATE_NOOP("recipe", "there is no picture \"%1\"")).arg(shortened(name, longestPath)));
    return picture;
}

Operation backgroundFrom(RecipeKeys &keys, const RecipeFiles &files)
{
    BackgroundOperation background;
    const auto way = keys.oneOf({QStringLiteral("color"), QStringLiteral("pattern")});
    if (way == QLatin1String("pattern"))
        background.pattern = pictureNamed(keys, "pattern", files);
    else if (way)
        background.color = keys.color("color").value_or(QColor(Qt::white));
    return background;
}

Operation frameFrom(RecipeKeys &keys)
{
    FrameOperation frame;
    frame.scale = scaleFrom(keys);
    if (!keys.has("width"))
        keys.complain("width", sentence(QT_TRANSLATE_NOOP("recipe", "it is missing")));
    frame.width = keys.number("width", widthRange(frame.scale)).value_or(0);
    frame.color = keys.color("color").value_or(frame.color);
    return frame;
}

void readLetters(RecipeKeys &keys, WatermarkOperation &mark)
{
    mark.text = keys.text("text").value_or(QString());
    if (mark.text.trimmed().isEmpty())
        keys.complain("text", sentence(QT_TRANSLATE_NOOP("recipe", "a text that is not empty")));
    if (const QStringList problems = text::tokenProblems(mark.text); !problems.isEmpty())
        keys.complain("text", problems.first());
    mark.font = keys.text("font").value_or(QString());
    if (platform::fontFamilies().isEmpty())
        keys.complain("text", sentence(QT_TRANSLATE_NOOP("recipe", "no font is installed, so no text can be drawn")));
    else if (!mark.font.isEmpty() && !platform::hasFont(mark.font))
        keys.complain("font",
                      sentence(QT_TRANSLATE_NOOP("recipe", "there is no font \"%1\"")).arg(shortened(mark.font)));
    mark.color = keys.color("color").value_or(mark.color);
}

Operation watermarkFrom(RecipeKeys &keys, const RecipeFiles &files)
{
    WatermarkOperation mark;
    const auto way = keys.oneOf({QStringLiteral("text"), QStringLiteral("picture")});
    const bool isPicture = way == QLatin1String("picture");
    if (isPicture) {
        mark.picture = pictureNamed(keys, "picture", files);
        for (const char *each : {"font", "color"})
            keys.refuseKey(each, sentence(QT_TRANSLATE_NOOP("recipe", "it applies only with a text")));
    } else if (way) {
        readLetters(keys, mark);
    }
    constexpr double ofWidth = 20;
    constexpr double ofHeight = 4;
    mark.size = keys.number("size", {0, 100, false, true}).value_or(isPicture ? ofWidth : ofHeight);
    mark.position = keys.choice("position", places).value_or(mark.position);
    mark.margin = keys.number("margin", {0, 100}).value_or(mark.margin);
    mark.angle = keys.number("angle", {-360, 360}).value_or(0);
    mark.opacity = keys.number("opacity", {0, 100}).value_or(mark.opacity);
    mark.isTiled = keys.flag("tile").value_or(false);
    return mark;
}

Operation profileFrom(RecipeKeys &keys, const RecipeFiles &files)
{
    const std::optional<QString> name = keys.text("to");
    if (!name)
        keys.complain("to", sentence(QT_TRANSLATE_NOOP("recipe", "it is missing")));
    return profileNamed(keys, "to", name.value_or(QStringLiteral("sRGB")), files);
}

enum class Do { Resize, Crop, Turn, Flip, Round, Background, Frame, Watermark, Sharpen, Profile };

constexpr Word<Do> names[] = {
    {"resize", Do::Resize},   {"crop", Do::Crop},           {"turn", Do::Turn},
    {"flip", Do::Flip},       {"round", Do::Round},         {"background", Do::Background},
    {"frame", Do::Frame},     {"watermark", Do::Watermark}, {"sharpen", Do::Sharpen},
    {"profile", Do::Profile},
};

Operation operationFrom(RecipeKeys &keys, Do what, const RecipeFiles &files)
{
    switch (what) {
    case Do::Resize:
        return resizeFrom(keys);
    case Do::Crop:
        return cropFrom(keys);
    case Do::Turn:
        return turnFrom(keys);
    case Do::Flip:
        return flipFrom(keys);
    case Do::Round:
        return roundFrom(keys);
    case Do::Background:
        return backgroundFrom(keys, files);
    case Do::Frame:
        return frameFrom(keys);
    case Do::Watermark:
        return watermarkFrom(keys, files);
    case Do::Sharpen:
        return SharpenOperation{keys.choice("amount", amounts).value_or(SharpenAmount::Standard)};
    case Do::Profile:
        return profileFrom(keys, files);
    }
    Q_UNREACHABLE();
}

QByteArray profileAt(const QString &path, const RecipeFiles &files)
{
    constexpr qint64 largestProfile = 64 << 20;
    const auto file = files.open(path);
    return file ? platform::LentReader(*file).read(largestProfile) : QByteArray();
}

} // namespace

ProfileOperation profileNamed(RecipeKeys &keys, const char *key, const QString &name, const RecipeFiles &files)
{
    using platform::ColourSpace;
    static constexpr Word<ColourSpace> known[] = {{"sRGB", ColourSpace::Srgb},
                                                  {"Display P3", ColourSpace::DisplayP3},
                                                  {"Adobe RGB", ColourSpace::AdobeRgb},
                                                  {"gray", ColourSpace::Gray}};
    for (const auto &each : known)
        if (name == QLatin1String(each.word))
            return {name, platform::iccProfileFor(each.value)};
    const QString path = QDir::cleanPath(QDir(files.folder).absoluteFilePath(name));
    const QByteArray profile = files.areOpened && !name.isEmpty() ? profileAt(path, files) : QByteArray();
    if (name.isEmpty() || (files.areOpened && (profile.isEmpty() || !platform::canConvertTo(profile))))
        keys.complain(
            key, sentence(QT_TRANSLATE_NOOP("recipe",
                                            "sRGB, Display P3, Adobe RGB, gray or the path of an ICC file, not \"%1\""))
                     .arg(shortened(name, longestPath)));
    return {path, profile};
}

RecipeStep stepFrom(RecipeKeys &keys, const RecipeFiles &files)
{
    RecipeStep step;
    if (!keys.has("do"))
        keys.complain("do", sentence(QT_TRANSLATE_NOOP("recipe", "it is missing")));
    const std::optional<Do> what = keys.choice("do", names);
    if (!what)
        return step;
    step.isOff = keys.flag("off").value_or(false);
    step.operation = operationFrom(keys, *what, files);
    keys.finish();
    return step;
}

} // namespace image
