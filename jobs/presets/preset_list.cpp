#include "jobs/presets/preset_recipe.h"
#include "jobs/presets/supplied_files.h"
#include "platform/foundation/paths.h"
#include "presets/database.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace jobs {
namespace {

/** The settings of the initial presets of every action of the window, if they differ from its standard. */
constexpr const char *supplied = R"([
["Resize", "Web 1600", {"mode": "longest", "longest": 1600, "output": {"fileType": "public.jpeg", "quality": "8", "destination": {"name": "Web"}}}],
["Resize", "Mail 1024", {"mode": "longest", "longest": 1024, "output": {"fileType": "public.jpeg", "quality": "7", "destination": {"name": "Mail"}}}],
["Resize", "Square 1080", {"mode": "box", "boxWidth": 1080, "boxHeight": 1080, "boxFit": "fill", "neverEnlarge": false, "output": {"fileType": "public.jpeg", "quality": "9", "destination": {"name": "Square"}}}],
["Resize", "Print 15 × 10 cm, 300 dpi", {"mode": "box", "boxWidth": 1772, "boxHeight": 1181, "boxFit": "fill", "neverEnlarge": false, "output": {"fileType": "public.jpeg", "quality": "10", "destination": {"name": "Print"}}}],
["Resize", "Print 10 × 15 cm, 300 dpi", {"mode": "box", "boxWidth": 1181, "boxHeight": 1772, "boxFit": "fill", "neverEnlarge": false, "output": {"fileType": "public.jpeg", "quality": "10", "destination": {"name": "Print"}}}],
["Resize", "Contact thumbnails", {"mode": "longest", "longest": 256, "output": {"fileType": "public.jpeg", "quality": "7", "destination": {"name": "Thumbnails"}}}],
["Crop", "Centre square 1080", {"mode": "size", "width": 1080, "height": 1080, "ratio": "1:1"}],
["Crop", "3:2, 1800 × 1200", {"mode": "size", "width": 1800, "height": 1200, "ratio": "3:2"}],
["Crop", "4:3, 1600 × 1200", {"mode": "size", "width": 1600, "height": 1200, "ratio": "4:3"}],
["Crop", "16:9, 1920 × 1080", {"mode": "size", "width": 1920, "height": 1080, "ratio": "16:9"}],
["Crop", "Trim 5%", {"mode": "percent", "percent": 5}],
["Rotate and Flip", "90° anticlockwise", {"angle": 90}],
["Rotate and Flip", "90° clockwise", {"angle": -90}],
["Rotate and Flip", "Upside down", {"angle": 180}],
["Rotate and Flip", "Mirrored", {"angle": 0, "flipHorizontal": true}],
["Round Corners", "Soft corners", {"radius": 40}],
["Round Corners", "Round corners on white", {"radius": 120, "background": true, "color": "#ffffff", "output": {"fileType": "public.jpeg"}}],
["Round Corners", "Circle portrait", {"shape": "circle"}],
["Round Corners", "Ellipse", {"shape": "ellipse"}],
["Background and Border", "White background", {"under": "color", "color": "#ffffff"}],
["Background and Border", "White border", {"frame": "white"}],
["Background and Border", "Black border", {"frame": "band", "bandColor": "#000000", "bandWidth": 40}],
["Background and Border", "Ivory mount", {"frame": "band", "bandColor": "#f4f0e6", "bandWidth": 160}],
["Background and Border", "On paper", {"under": "pattern", "pattern": "paper.png"}],
["Watermark", "Copyright, bottom right", {}],
["Watermark", "Copyright, dark", {"color": "#000000", "opacity": 60}],
["Watermark", "File name", {"text": "{name}", "position": 6, "size": 2.5}],
["Watermark", "Tiled draft", {"text": "DRAFT", "position": 4, "size": 6, "margin": 6, "angle": 30, "opacity": 30, "tile": true}],
["Convert", "JPEG for everyone", {"target": "jpeg", "quality": "8", "output": {"destination": {"name": "JPEG"}}}],
["Convert", "Small JPEG", {"target": "jpeg", "quality": "5", "output": {"destination": {"name": "JPEG"}}}],
["Convert", "PNG with all metadata", {"target": "png", "output": {"destination": {"name": "PNG"}}}],
["Convert", "TIFF for printing", {"target": "tiff", "output": {"destination": {"name": "TIFF"}}}],
["Convert", "PDF pages", {"target": "pdf", "output": {"destination": {"name": "PDF"}}}]
])";

QJsonObject laidOver(QJsonObject standard, const QJsonObject &changes)
{
    for (auto each = changes.begin(); each != changes.end(); ++each)
        standard.insert(each.key(), each->isObject() ? laidOver(standard.value(each.key()).toObject(), each->toObject())
                                                     : QJsonValue(*each));
    return standard;
}

/** The presets of the user; none if there is no database, which is not created. */
QList<Preset> keptPresets()
{
    const QString database = platform::applicationSupportFolder() + QStringLiteral("/BrelmarkCom/QuorlinPS.sql");
    if (!QFileInfo(database).isFile())
        return {};
    QList<Preset> presets;
    const auto connection = presets::Connection::open(database);
    auto rows = connection.prepare(presets::selectAll(QStringLiteral("Presets")));
    while (rows.isValid() && rows.step()) {
        QStringList row;
        constexpr int fields = 62;
        for (int field = 1; field <= fields; ++field) // after the number of the row
            row.append(rows.text(field));
        if (const auto preset = presetOfRow(row))
            presets.append(*preset);
    }
    return presets;
}

QString fullName(const Preset &preset)
{
    return preset.action + u'/' + preset.name;
}

} // namespace

QList<Preset> suppliedPresets()
{
    QList<Preset> presets;
    const QJsonArray entries = QJsonDocument::fromJson(supplied).array();
    for (const QJsonValue &entry : entries) {
        const QString action = entry[0].toString();
        QJsonObject settings = laidOver(standardSettings(action), entry[2].toObject());
        const QString pattern = settings.value(QLatin1String("pattern")).toString();
        if (!pattern.isEmpty())
            settings.insert(QStringLiteral("pattern"), platform::joinedPath(suppliedPatternsFolder(), pattern));
        presets.append({action, entry[1].toString(), settings});
    }
    return presets;
}

QList<Preset> allPresets()
{
    QList<Preset> presets = suppliedPresets();
    for (const Preset &kept : keptPresets()) {
        presets.removeIf([&kept](const Preset &other) { return fullName(other) == fullName(kept); });
        presets.append(kept);
    }
    return presets;
}

std::optional<Preset> presetNamed(const QString &name)
{
    for (const Preset &preset : allPresets())
        if (fullName(preset) == name)
            return preset;
    return std::nullopt;
}

} // namespace jobs
