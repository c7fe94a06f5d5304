#include "jobs/pages/page_settings.h"

#include "jobs/pages/page_layout.h"
#include "jobs/pages/page_texts.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace jobs {
namespace {

using platform::Error;
using platform::ErrorCode;
using platform::Result;

constexpr int mostPlaces = 20; // in a row or a column
constexpr double mostMillimetres = 2000;
constexpr double leastMillimetres = 20;
constexpr double leastText = 3;
constexpr double mostText = 72;

QString words(const char *text)
{
    return QCoreApplication::translate("pages", text);
}

/** Reads values of a dictionary, and keeps the first that makes no sense. */
class Fields
{
public:
    explicit Fields(const QVariantMap &values) : m_values(values) {}

    const QString &problem() const { return m_problem; }

    void refuse(const QString &sentence)
    {
        if (m_problem.isEmpty())
            m_problem = sentence;
    }

    double number(const char *key, double usual, std::pair<double, double> range, const QString &sentence)
    {
        const QVariant value = m_values.value(QString::fromLatin1(key));
        if (!value.isValid())
            return usual;
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        if (isNumber && std::isfinite(number) && number >= range.first && number <= range.second)
            return number;
        refuse(sentence);
        return usual;
    }

    int whole(const char *key, int usual, std::pair<int, int> range, const QString &sentence)
    {
        const double value = number(key, usual, {double(range.first), double(range.second)}, sentence);
        if (value != std::floor(value))
            refuse(sentence);
        return int(value);
    }

    double millimetres(const char *key, double usualPoints, const QString &sentence)
    {
        return number(key, usualPoints / pointsPerMillimetre, {0, mostMillimetres}, sentence) * pointsPerMillimetre;
    }

    bool flag(const char *key) const { return m_values.value(QString::fromLatin1(key)).toBool(); }
    QString text(const char *key) const { return m_values.value(QString::fromLatin1(key)).toString(); }

    /** The position of a word in a list; the first if it is missing. */
    int choice(const char *key, const std::vector<const char *> &all)
    {
        const QString word = text(key);
        for (size_t i = 0; i < all.size(); ++i)
            if (word == QLatin1String(all[i]))
                return int(i);
        if (!word.isEmpty())
            refuse(words(QT_TRANSLATE_NOOP("pages", "Pages have no setting “%1”.")).arg(word));
        return 0;
    }

private:
    const QVariantMap &m_values;
    QString m_problem;
};

QSizeF paperFrom(Fields &fields)
{
    const QString word = fields.text("paper");
    QSizeF size = papers().front().millimetres;
    if (word == QLatin1String("custom")) {
        const QString sentence =
            words(QT_TRANSLATE_NOOP("pages", "Enter a paper width and height from 20 to 2000 mm."));
        size = {fields.number("paperWidth", size.width(), {leastMillimetres, mostMillimetres}, sentence),
                fields.number("paperHeight", size.height(), {leastMillimetres, mostMillimetres}, sentence)};
    } else if (!word.isEmpty()) {
        const auto found = std::find_if(papers().begin(), papers().end(),
                                        [&word](const Paper &paper) { return word == QLatin1String(paper.word); });
        if (found == papers().end())
            fields.refuse(words(QT_TRANSLATE_NOOP("pages", "Pages have no setting “%1”.")).arg(word));
        else
            size = found->millimetres;
    }
    // Sides of the pages of a PDF are whole points.
    const QSize points = (size * pointsPerMillimetre).toSize();
    return fields.flag("landscape") ? points.transposed() : points;
}

void readPlaces(Fields &fields, PageSettings &settings)
{
    const QString margins = words(QT_TRANSLATE_NOOP("pages", "Enter margins from 0 mm."));
    settings.margins = {fields.millimetres("marginLeft", settings.margins.left(), margins),
                        fields.millimetres("marginTop", settings.margins.top(), margins),
                        fields.millimetres("marginRight", settings.margins.right(), margins),
                        fields.millimetres("marginBottom", settings.margins.bottom(), margins)};
    settings.gap = fields.millimetres("gap", settings.gap, words(QT_TRANSLATE_NOOP("pages", "Enter a gap from 0 mm.")));
    const QString places = words(QT_TRANSLATE_NOOP("pages", "Enter 1 to 20 rows and columns."));
    settings.rows = fields.whole("rows", settings.rows, {1, mostPlaces}, places);
    settings.columns = fields.whole("columns", settings.columns, {1, mostPlaces}, places);
    settings.fit = PageFit(fields.choice("fit", {"fit", "fill", "size"}));
    settings.turns = fields.flag("turn");
    settings.repeats = fields.flag("repeat");
    settings.hasCropMarks = fields.flag("cropMarks");
    settings.hasFrames = fields.flag("frames");
}

PageSide sideFrom(Fields &fields, const char *key)
{
    constexpr PageSide sides[] = {PageSide::Centre, PageSide::Left, PageSide::Right};
    return sides[fields.choice(key, {"center", "left", "right"})];
}

QString patternFrom(Fields &fields, const char *key, bool isOfPage)
{
    const QString pattern = fields.text(key).trimmed();
    const QStringList problems = pageTextProblems(pattern, isOfPage);
    if (!problems.isEmpty())
        fields.refuse(problems.first());
    return pattern;
}

void readTexts(Fields &fields, PageSettings &settings)
{
    const QString sizes = words(QT_TRANSLATE_NOOP("pages", "Enter text sizes from 3 to 72 points."));
    settings.caption = patternFrom(fields, "caption", false);
    settings.captionSize = fields.number("captionSize", settings.captionSize, {leastText, mostText}, sizes);
    settings.header = {patternFrom(fields, "header", true), sideFrom(fields, "headerSide")};
    settings.footer = {patternFrom(fields, "footer", true), sideFrom(fields, "footerSide")};
    settings.lineSize = fields.number("lineSize", settings.lineSize, {leastText, mostText}, sizes);
    settings.font = fields.text("font");
    const QString color = fields.text("paperColor");
    settings.paperColor = color.isEmpty() ? QColor(Qt::white) : QColor(color);
    if (!settings.paperColor.isValid())
        fields.refuse(words(QT_TRANSLATE_NOOP("pages", "Pages have no setting “%1”.")).arg(color));
}

} // namespace

const std::vector<Paper> &papers()
{
    static const std::vector<Paper> all = {
        {"A4", {210, 297}},         {"A3", {297, 420}},        {"A5", {148, 210}},          {"A6", {105, 148}},
        {"Letter", {215.9, 279.4}}, {"Legal", {215.9, 355.6}}, {"Tabloid", {279.4, 431.8}}, {"10x15", {101.6, 152.4}},
        {"13x18", {127, 178}},      {"20x30", {203, 305}},
    };
    return all;
}

Result<PageSettings> pageSettingsFrom(const QVariantMap &values)
{
    Fields fields(values);
    PageSettings settings;
    settings.paper = paperFrom(fields);
    readPlaces(fields, settings);
    readTexts(fields, settings);
    constexpr int finest = 1200;
    constexpr int coarsest = 36;
    settings.dpi =
        fields.whole("dpi", settings.dpi, {coarsest, finest},
                     words(QT_TRANSLATE_NOOP("pages", "Enter a resolution from 36 to 1200 pixels per inch.")));
    settings.quality = fields.whole("quality", settings.quality, {1, 100},
                                    words(QT_TRANSLATE_NOOP("pages", "Enter a quality from 1 to 100.")));
    settings.profile = fields.text("profile");
    if (!hasRoom(gridOf(settings)))
        fields.refuse(words(QT_TRANSLATE_NOOP(
            "pages", "There is no room for pictures. Use fewer rows or columns, or smaller margins or gaps.")));
    if (!fields.problem().isEmpty())
        return tl::unexpected<Error>(Error{ErrorCode::InvalidValue, fields.problem()});
    return settings;
}

} // namespace jobs
