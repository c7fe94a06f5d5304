#include "jobs/presets/preset_settings.h"

#include <QJsonDocument>
#include <QRegularExpression>

#include <map>
#include <vector>

namespace jobs {
namespace {

enum class Kind { Text, Word, Number, Whole, Flag, Color };

/** Which setting is in which column. A dot separates a group from its setting. */
struct Column
{
    int place;
    const char *setting;
    Kind kind;
};

struct Form
{
    const char *standard; ///< JSON
    const char *mode;     ///< the setting in the third column; empty for none
    std::vector<Column> columns;
    int newest = 3; ///< version of the form, of which the second added types; a preset has the lowest that suffices
};

const std::vector<Column> &outputColumns()
{
    static const std::vector<Column> columns = {
        {4, "output.fileType", Kind::Text},         {5, "output.quality", Kind::Text},
        {6, "output.destination.kind", Kind::Text}, {7, "output.destination.name", Kind::Text},
        {8, "output.destination.path", Kind::Text}, {9, "output.ifTaken", Kind::Text},
        {10, "output.metadata", Kind::Word},        {39, "output.ownQuality", Kind::Flag},
        {40, "output.keepSubfolders", Kind::Flag},  {41, "output.removeLocation", Kind::Flag},
        {59, "output.dates", Kind::Word},           {60, "output.matte", Kind::Color},
        {61, "output.namePattern", Kind::Word}};
    return columns;
}

/** Forms of the actions that make pictures, with the settings of a new pane. */
Form resizeForm()
{
    return {R"({"mode": "longest", "width": 1600, "height": 1200, "longest": 1600, "percent": 50, "boxWidth": 1600,
              "boxHeight": 1200, "boxFit": "fill", "padColor": "#ffffff", "neverEnlarge": true, "unit": "pixel", "dpi": 0,
              "output": {"fileType": "original file type", "quality": "8", "ifTaken": "number",
                         "destination": {"kind": "beside", "name": "Resized", "path": ""}}})",
            "mode",
            {{11, "width", Kind::Number},
             {12, "height", Kind::Number},
             {13, "longest", Kind::Number},
             {14, "percent", Kind::Number},
             {15, "boxWidth", Kind::Number},
             {16, "boxHeight", Kind::Number},
             {17, "boxFit", Kind::Text},
             {18, "unit", Kind::Text},
             {19, "padColor", Kind::Color},
             {20, "dpi", Kind::Number},
             {22, "neverEnlarge", Kind::Flag}},
            4};
}

Form cropForm()
{
    return {
        R"({"mode": "percent", "width": 1200, "height": 800, "unit": "pixel", "percent": 20, "pixels": 200, "position": 4,
              "offsetX": 0, "offsetY": 0, "ratio": "free", "ratioWidth": 3, "ratioHeight": 2, "turnsRatio": true, "dpi": 0,
              "output": {"fileType": "original file type", "quality": "9", "ifTaken": "number",
                         "destination": {"kind": "beside", "name": "Cropped", "path": ""}}})",
        "mode",
        {{11, "width", Kind::Number},
         {12, "height", Kind::Number},
         {13, "unit", Kind::Text},
         {14, "percent", Kind::Number},
         {15, "pixels", Kind::Number},
         {16, "offsetX", Kind::Number},
         {17, "offsetY", Kind::Number},
         {18, "ratio", Kind::Text},
         {19, "ratioWidth", Kind::Number},
         {20, "ratioHeight", Kind::Number},
         {42, "dpi", Kind::Number},
         {22, "position", Kind::Whole},
         {23, "turnsRatio", Kind::Flag}},
        2};
}

Form turnForm()
{
    return {R"({"angle": 0, "flipHorizontal": false, "flipVertical": false,
              "output": {"fileType": "original file type", "quality": "10", "ownQuality": true, "ifTaken": "number",
                         "destination": {"kind": "beside", "name": "Rotated", "path": ""}}})",
            "",
            {{11, "angle", Kind::Number}, {22, "flipHorizontal", Kind::Flag}, {23, "flipVertical", Kind::Flag}}};
}

Form roundForm()
{
    return {R"({"shape": "rectangle", "radius": 100, "background": false, "color": "#ffffff", "band": 0,
              "output": {"fileType": "public.png", "quality": "10", "ownQuality": true, "ifTaken": "number",
                         "destination": {"kind": "beside", "name": "Rounded", "path": ""}}})",
            "shape",
            {{11, "radius", Kind::Number},
             {12, "color", Kind::Color},
             {13, "band", Kind::Number},
             {22, "background", Kind::Flag}}};
}

Form backgroundForm()
{
    return {
        R"({"under": "color", "color": "#ffffff", "pattern": "", "frame": "none", "bandColor": "#202124", "bandWidth": 40,
              "output": {"fileType": "original file type", "quality": "10", "ownQuality": true, "ifTaken": "number",
                         "destination": {"kind": "beside", "name": "Framed", "path": ""}}})",
        "under",
        {{11, "color", Kind::Color},
         {12, "pattern", Kind::Text},
         {13, "frame", Kind::Text},
         {14, "bandColor", Kind::Color},
         {15, "bandWidth", Kind::Number}}};
}

Form watermarkForm()
{
    return {
        R"({"mark": "text", "text": "© {date:yyyy}", "picture": "", "font": "", "color": "#ffffff", "size": 4, "pictureSize": 20,
              "position": 8, "margin": 2, "angle": 0, "opacity": 70, "tile": false,
              "output": {"fileType": "original file type", "quality": "9", "ifTaken": "number",
                         "destination": {"kind": "beside", "name": "Watermarked", "path": ""}}})",
        "mark",
        {{11, "text", Kind::Text},
         {12, "picture", Kind::Text},
         {13, "font", Kind::Text},
         {14, "color", Kind::Color},
         {15, "size", Kind::Number},
         {16, "pictureSize", Kind::Number},
         {17, "margin", Kind::Number},
         {18, "angle", Kind::Number},
         {19, "opacity", Kind::Number},
         {22, "position", Kind::Whole},
         {23, "tile", Kind::Flag}}};
}

Form convertForm()
{
    return {R"({"target": "jpeg", "quality": "8",
              "output": {"fileType": "original file type", "quality": "10", "ifTaken": "number",
                         "destination": {"kind": "beside", "name": "Converted", "path": ""}}})",
            "target",
            {{11, "quality", Kind::Text}},
            3};
}

const std::map<QString, Form> &forms()
{
    static const std::map<QString, Form> all = {
        {QStringLiteral("Resize"), resizeForm()},
        {QStringLiteral("Crop"), cropForm()},
        {QStringLiteral("Rotate and Flip"), turnForm()},
        {QStringLiteral("Round Corners"), roundForm()},
        {QStringLiteral("Background and Border"), backgroundForm()},
        {QStringLiteral("Watermark"), watermarkForm()},
        {QStringLiteral("Convert"), convertForm()},
    };
    return all;
}

/** A text without its codes: %27 is an apostrophe, %uD83D half a surrogate pair. */
QString decoded(const QString &text)
{
    static const QRegularExpression code(QStringLiteral("%u([0-9A-F]{4})|%([0-9A-F]{2})"));
    constexpr int hexadecimal = 16;
    QString plain;
    qsizetype at = 0;
    for (auto match = code.globalMatch(text); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const QString digits = found.captured(1).isEmpty() ? found.captured(2) : found.captured(1);
        plain += text.mid(at, found.capturedStart() - at) + QChar(ushort(digits.toUInt(nullptr, hexadecimal)));
        at = found.capturedEnd();
    }
    return plain + text.mid(at);
}

std::optional<QJsonValue> numberIn(const QString &text, const char *pattern)
{
    const QRegularExpression form(QLatin1String("^(?:") + QLatin1String(pattern) + QLatin1String(")$"));
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && form.match(text).hasMatch() ? std::optional(QJsonValue(number)) : std::nullopt;
}

std::optional<QJsonValue> valueIn(const QString &text, Kind kind)
{
    switch (kind) {
    case Kind::Text:
    case Kind::Word:
        return decoded(text);
    case Kind::Number:
        return numberIn(text, R"(-?\d+(\.\d+)?(e[-+]?\d+)?)");
    case Kind::Whole:
        return numberIn(text, R"(-?\d+)");
    case Kind::Flag:
        return text == QLatin1String("0") || text == QLatin1String("1")
                   ? std::optional(QJsonValue(text == QLatin1String("1")))
                   : std::nullopt;
    case Kind::Color: {
        static const QRegularExpression color(QStringLiteral("^#[0-9a-fA-F]{6}$"));
        return color.match(text).hasMatch() ? std::optional(QJsonValue(text)) : std::nullopt;
    }
    }
    Q_UNREACHABLE();
}

void put(QJsonObject &settings, const QStringList &path, const QJsonValue &value)
{
    if (path.size() == 1) {
        settings.insert(path.first(), value);
        return;
    }
    QJsonObject group = settings.value(path.first()).toObject();
    put(group, path.mid(1), value);
    settings.insert(path.first(), group);
}

bool readColumns(QJsonObject &settings, const QStringList &row, const std::vector<Column> &columns)
{
    for (const Column &column : columns) {
        const QString &text = row[column.place];
        if (text.isEmpty() && column.kind != Kind::Text)
            continue; // a setting that came later than the preset
        const std::optional<QJsonValue> value = valueIn(text, column.kind);
        if (!value)
            return false;
        put(settings, QString::fromLatin1(column.setting).split(u'.'), *value);
    }
    return true;
}

/** Whether a mark is that of a version up to @p newest. */
bool isOfVersion(const QString &mark, int newest)
{
    for (int version = 1; version <= newest; ++version)
        if (mark == QStringLiteral("Quorlin %1").arg(version))
            return true;
    return false;
}

} // namespace

bool makesPictures(const QString &action)
{
    return forms().contains(action);
}

QJsonObject standardSettings(const QString &action)
{
    const auto form = forms().find(action);
    return form == forms().end() ? QJsonObject() : QJsonDocument::fromJson(form->second.standard).object();
}

std::optional<Preset> presetOfRow(const QStringList &row)
{
    constexpr qsizetype fields = 62;
    if (row.size() != fields)
        return std::nullopt;
    Preset preset = {row[1], row[0], standardSettings(row[1])};
    const auto form = forms().find(row[1]);
    if (form == forms().end())
        return preset;
    if (!isOfVersion(row[3], form->second.newest))
        return std::nullopt;
    if (form->second.mode[0] != '\0')
        preset.settings.insert(QLatin1String(form->second.mode), decoded(row[2]));
    const bool isRead =
        readColumns(preset.settings, row, outputColumns()) && readColumns(preset.settings, row, form->second.columns);
    return isRead ? std::optional(preset) : std::nullopt;
}

} // namespace jobs
