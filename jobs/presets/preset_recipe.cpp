#include "jobs/presets/preset_recipe.h"

#include "image/types/output_types.h"
#include "platform/imageio/formats/formats.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>

namespace jobs {
namespace {

using platform::Result;

const auto text = [](const char *name) { return QString::fromLatin1(name); };

/** Of the codes of quality to the numbers of recipes. */
constexpr int perCode = 10;

tl::unexpected<platform::Error> unsupported(const QString &sentence)
{
    return platform::failure(platform::ErrorCode::Unsupported, sentence);
}

/** The unit of lengths, if it is not pixels, and the resolution for them. */
void addUnit(QJsonObject &operation, const QJsonObject &settings)
{
    static const std::map<QString, QString> units = {{text("mm"), text("mm")},
                                                     {text("cm"), text("cm")},
                                                     {text("inch"), text("in")},
                                                     {text("pica"), text("pica")},
                                                     {text("punt"), text("pt")}};
    const auto unit = units.find(settings.value(text("unit")).toString());
    if (unit == units.end())
        return;
    operation.insert(text("unit"), unit->second);
    if (const double dpi = settings.value(text("dpi")).toDouble(); dpi > 0)
        operation.insert(text("dpi"), dpi);
}

QJsonArray resizeOperations(const QJsonObject &settings)
{
    QJsonObject resize = {{text("do"), text("resize")}};
    const QString mode = settings.value(text("mode")).toString();
    if (mode == text("box")) {
        resize.insert(text("box"), QJsonArray{settings.value(text("boxWidth")), settings.value(text("boxHeight"))});
        resize.insert(text("fit"), settings.value(text("boxFit")));
        if (settings.value(text("boxFit")).toString() == text("pad"))
            resize.insert(text("color"), settings.value(text("padColor")));
    } else {
        resize.insert(mode, settings.value(mode));
    }
    if (mode != text("percent"))
        addUnit(resize, settings);
    if (!settings.value(text("neverEnlarge")).toBool())
        resize.insert(text("enlarge"), true);
    return {resize};
}

/** The position that the window counts row by row. */
QString positionOf(const QJsonObject &settings)
{
    static const char *const places[] = {"top left", "top",         "top right", "left",        "center",
                                         "right",    "bottom left", "bottom",    "bottom right"};
    return text(places[qBound(0, settings.value(text("position")).toInt(), 8)]);
}

/** "3:2", of two numbers where a person gave them. */
QString ratioOf(const QJsonObject &settings)
{
    const QString ratio = settings.value(text("ratio")).toString();
    if (ratio != text("custom"))
        return ratio;
    const auto number = [&settings](const char *key) {
        return QString::number(settings.value(text(key)).toDouble(), 'g', QLocale::FloatingPointShortest);
    };
    return number("ratioWidth") + u':' + number("ratioHeight");
}

QJsonArray cropOperations(const QJsonObject &settings)
{
    constexpr int attention = 9;
    const bool isFound = settings.value(text("position")).toInt() == attention;
    QJsonObject crop = {{text("do"), text("crop")},
                        {text("position"), isFound ? text("attention") : positionOf(settings)}};
    const QString mode = settings.value(text("mode")).toString();
    if (mode == text("size")) {
        crop.insert(text("width"), settings.value(text("width")));
        crop.insert(text("height"), settings.value(text("height")));
    } else if (mode == text("ratio")) {
        crop.insert(text("ratio"), ratioOf(settings));
        if (!settings.value(text("turnsRatio")).toBool(true))
            crop.insert(text("turn"), false);
    } else if (mode == text("pixels")) {
        crop.insert(text("trim"), settings.value(text("pixels")));
    } else {
        crop.insert(text("percent"), settings.value(text("percent")));
    }
    const QJsonArray offset = {settings.value(text("offsetX")), settings.value(text("offsetY"))};
    const bool isMoved = !isFound && offset != QJsonArray{0, 0};
    if (isMoved)
        crop.insert(text("offset"), offset);
    // Trimming is in pixels, and then so is the offset.
    if (mode == text("size") || (isMoved && mode != text("pixels")))
        addUnit(crop, settings);
    return {crop};
}

/** Flips first, then the turn, which the window counts anticlockwise. */
QJsonArray turnOperations(const QJsonObject &settings)
{
    QJsonArray operations;
    for (const char *direction : {"horizontal", "vertical"}) {
        const QString key = direction[0] == 'h' ? text("flipHorizontal") : text("flipVertical");
        if (settings.value(key).toBool())
            operations.append(QJsonObject{{text("do"), text("flip")}, {text("direction"), text(direction)}});
    }
    if (const double angle = settings.value(text("angle")).toDouble(); angle != 0)
        operations.append(QJsonObject{{text("do"), text("turn")}, {text("degrees"), -angle}});
    return operations;
}

QJsonObject bandOf(const QJsonValue &width, const QJsonValue &color)
{
    return {{text("width"), width}, {text("color"), color}};
}

QJsonArray roundOperations(const QJsonObject &settings)
{
    QJsonObject round = {{text("do"), text("round")}, {text("shape"), settings.value(text("shape"))}};
    if (settings.value(text("shape")).toString() == text("rectangle"))
        round.insert(text("radius"), settings.value(text("radius")));
    if (settings.value(text("background")).toBool()) {
        round.insert(text("color"), settings.value(text("color")));
        if (settings.value(text("band")).toDouble() > 0)
            round.insert(text("band"), bandOf(settings.value(text("band")), settings.value(text("color"))));
    }
    return {round};
}

QJsonArray backgroundOperations(const QJsonObject &settings)
{
    const QString under = settings.value(text("under")).toString();
    QJsonArray operations = {QJsonObject{{text("do"), text("background")}, {under, settings.value(under)}}};
    const QString frame = settings.value(text("frame")).toString();
    constexpr int whiteFrame = 10;
    if (frame == text("white"))
        operations.append(QJsonObject{{text("do"), text("frame")}, {text("width"), whiteFrame}});
    else if (frame == text("band"))
        operations.append(
            QJsonObject{{text("do"), text("round")},
                        {text("radius"), 0},
                        {text("band"), bandOf(settings.value(text("bandWidth")), settings.value(text("bandColor")))}});
    return operations;
}

/** The window counts its angle anticlockwise. */
QJsonArray watermarkOperations(const QJsonObject &settings)
{
    QJsonObject mark = {{text("do"), text("watermark")}, {text("position"), positionOf(settings)}};
    for (const char *key : {"margin", "opacity", "tile"})
        mark.insert(text(key), settings.value(text(key)));
    if (const double angle = settings.value(text("angle")).toDouble(); angle != 0)
        mark.insert(text("angle"), -angle);
    if (settings.value(text("mark")).toString() == text("picture")) {
        mark.insert(text("picture"), settings.value(text("picture")));
        mark.insert(text("size"), settings.value(text("pictureSize")));
        return {mark};
    }
    for (const char *key : {"text", "size", "color"})
        mark.insert(text(key), settings.value(text(key)));
    if (const QString font = settings.value(text("font")).toString(); !font.isEmpty())
        mark.insert(text("font"), font);
    return {mark};
}

using Operations = std::function<QJsonArray(const QJsonObject &settings)>;

const std::map<QString, Operations> &operations()
{
    static const std::map<QString, Operations> all = {
        {text("Resize"), resizeOperations},
        {text("Crop"), cropOperations},
        {text("Rotate and Flip"), turnOperations},
        {text("Round Corners"), roundOperations},
        {text("Background and Border"), backgroundOperations},
        {text("Watermark"), watermarkOperations},
        {text("Convert"), [](const QJsonObject &) { return QJsonArray(); }},
    };
    return all;
}

/** The type that an action's settings name; none for the pictures' own. */
const image::WrittenType *typeIn(const QJsonObject &output)
{
    const QString identifier = output.value(text("fileType")).toString();
    const auto types = image::writtenTypes();
    const auto type = std::find_if(types.begin(), types.end(), [&](const image::WrittenType &each) {
        return !each.isPage && each.identifier == identifier;
    });
    return type == types.end() ? nullptr : &*type;
}

/** Whether conversions to the type of that keyword have a quality that can be chosen. */
bool hasConversionQuality(const QString &keyword)
{
    const auto types = image::writtenTypes();
    return std::any_of(types.begin(), types.end(), [&](const image::WrittenType &each) {
        const std::optional<platform::FileFormat> format = image::formatFor(each.type);
        return each.keyword == keyword && format && platform::formatOf(*format).keeps.quality;
    });
}

/** Type and quality of a conversion. */
void addTarget(QJsonObject &output, const QJsonObject &settings)
{
    output.insert(text("type"), settings.value(text("target")));
    const int code = settings.value(text("quality")).toString().toInt();
    if (code > 0 && hasConversionQuality(settings.value(text("target")).toString()))
        output.insert(text("quality"), code * perCode);
}

/** Type and quality of all other actions. Where the pictures keep their own quality none is stated. */
void addType(QJsonObject &output, const QJsonObject &settings)
{
    const image::WrittenType *type = typeIn(settings);
    output.insert(text("type"), type == nullptr ? text("original") : QString(type->keyword));
    const int code = settings.value(text("quality")).toString().toInt();
    const bool isStated = !settings.value(text("ownQuality")).toBool() && (type == nullptr || type->hasQuality);
    if (code > 0 && isStated)
        output.insert(text("quality"), code * perCode);
}

/** A folder name of a person's own, in which a brace is no token. */
QString plainPattern(const QString &name)
{
    return QString(name).replace(u'{', text("{{"));
}

/** Where all is kept nothing is said. */
void addMetadata(QJsonObject &output, const QJsonObject &settings)
{
    const QString metadata = settings.value(text("metadata")).toString();
    if (metadata == text("copyright") || metadata == text("none"))
        output.insert(text("metadata"), metadata);
    if (settings.value(text("removeLocation")).toBool() && metadata != text("none"))
        output.insert(text("location"), false);
}

/** The names of results, where they go and what happens to existing files. */
void addPlace(QJsonObject &output, const QJsonObject &settings)
{
    const QString pattern = settings.value(text("namePattern")).toString();
    if (!pattern.isEmpty() && pattern != text("{name}"))
        output.insert(text("name"), pattern);
    const QJsonObject destination = settings.value(text("destination")).toObject();
    const QString kind = destination.value(text("kind")).toString();
    if (kind == text("beside"))
        output.insert(text("folder"), plainPattern(destination.value(text("name")).toString()));
    else if (kind == text("folder") && !settings.value(text("keepSubfolders")).toBool())
        output.insert(text("folder"), plainPattern(destination.value(text("path")).toString()));
    const QString ifTaken = settings.value(text("ifTaken")).toString();
    if (ifTaken == text("replace") || ifTaken == text("skip") || ifTaken == text("current"))
        output.insert(text("ifTaken"), ifTaken);
}

QJsonObject outputFor(const Preset &preset)
{
    const QJsonObject own = preset.settings.value(text("output")).toObject();
    QJsonObject output;
    if (preset.action == text("Convert"))
        addTarget(output, preset.settings);
    else
        addType(output, own);
    addMetadata(output, own);
    addPlace(output, own);
    if (const QString matte = own.value(text("matte")).toString(); !matte.isEmpty() && matte != text("#ffffff"))
        output.insert(text("matte"), matte);
    if (own.value(text("dates")).toString() == text("keep"))
        output.insert(text("dates"), text("keep"));
    return output;
}

} // namespace

Destination destinationOf(const Preset &preset)
{
    const QJsonObject output = preset.settings.value(text("output")).toObject();
    const QJsonObject destination = output.value(text("destination")).toObject();
    if (destination.value(text("kind")).toString() != text("folder") || !output.value(text("keepSubfolders")).toBool())
        return {};
    return {destination.value(text("path")).toString(), true};
}

Result<QJsonObject> recipeObjectOf(const Preset &preset)
{
    const auto found = operations().find(preset.action);
    if (found == operations().end())
        return unsupported(text("%1 makes no pictures, so its presets are no recipes").arg(preset.action));
    return QJsonObject{{text("quorlin"), 1},
                       {text("name"), preset.name},
                       {text("operations"), found->second(preset.settings)},
                       {text("outputs"), QJsonArray{outputFor(preset)}}};
}

Result<QByteArray> recipeOf(const Preset &preset)
{
    return recipeObjectOf(preset).map([](const QJsonObject &recipe) { return QJsonDocument(recipe).toJson(); });
}

} // namespace jobs
