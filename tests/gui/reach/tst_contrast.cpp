#include "tests/support/test_program.h"

#include <QColor>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <cmath>

namespace {

constexpr double textRatio = 4.5;
constexpr double graphicRatio = 3.0;

/** What is drawn on what. */
struct Pair
{
    const char *front;
    const char *back;
    double least;
};

QList<Pair> on(const char *front, const QList<const char *> &backs, double least)
{
    QList<Pair> pairs;
    for (const char *back : backs)
        pairs.append({front, back, least});
    return pairs;
}

// Of what cannot be used just now nobody needs to read the words, but it must be seen that it is there.
QList<Pair> allPairs()
{
    const QList<const char *> grounds = {"window", "field", "list"};
    QList<Pair> all;
    all += on("text",
              grounds + QList<const char *>{"bar", "sidebar", "sidebarHover", "hover", "pressed", "row", "accentSoft"},
              textRatio);
    all += on("muted", grounds + QList<const char *>{"sidebar", "hover", "row", "accentSoft"}, textRatio);
    all += on("accentText", grounds + QList<const char *>{"hover", "row", "accentSoft"}, textRatio);
    all += on("onAccent", {"accent", "accentHover", "accentPressed", "danger", "dangerHover"}, textRatio);
    for (const char *status : {"good", "bad", "caution"})
        all += on(status, {"window", "list", "row"}, textRatio);
    all += on("badgeText", {"badge", "surround", "surroundResult"}, textRatio);
    all += on("tipText", {"tip"}, textRatio);
    all += on("faint", grounds + QList<const char *>{"sidebar"}, graphicRatio);
    all += on("icon", grounds + QList<const char *>{"sidebar"}, graphicRatio);
    all += on("edge", grounds, graphicRatio);
    all += on("scroll", {"window", "list"}, graphicRatio);
    all += on("accent", {"window", "list", "sidebar"}, graphicRatio);
    all += on("focus", grounds + QList<const char *>{"sidebar", "row", "accentSoft", "hairline", "badge", "surround"},
              graphicRatio);
    return all;
}

QHash<QString, QColor> themeColors(const QString &name)
{
    QFile file(QStringLiteral(QUORLIN_THEMES) + u'/' + name + QStringLiteral(".json"));
    QHash<QString, QColor> colors;
    if (!file.open(QIODevice::ReadOnly))
        return colors;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        colors.insert(entry.key(), QColor(entry.value().toString()));
    return colors;
}

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return qMax(a, b) / qMin(a, b);
}

} // namespace

/**
 * Whether what the themes draw is distinguishable from its background: text by 4.5 to 1, signs and frames by 3 to 1.
 */
class Contrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theRatioIsThatOfTheStandard()
    {
        QCOMPARE(contrast(Qt::white, Qt::black), 21.0);
        QVERIFY(qAbs(contrast(QColor(0x77, 0x77, 0x77), Qt::white) - 4.48) < 0.01);
    }

    void bothThemesHaveTheSameColors()
    {
        QStringList light = themeColors(QStringLiteral("light")).keys();
        QStringList dark = themeColors(QStringLiteral("dark")).keys();
        light.sort();
        dark.sort();
        QVERIFY(light.size() > 30);
        QCOMPARE(light, dark);
    }

    void whatIsShownCanBeTold_data()
    {
        QTest::addColumn<QString>("theme");
        QTest::addColumn<QString>("front");
        QTest::addColumn<QString>("back");
        QTest::addColumn<double>("least");
        for (const char *theme : {"light", "dark"})
            for (const Pair &pair : allPairs())
                QTest::addRow("%s: %s on %s", theme, pair.front, pair.back)
                    << QString::fromLatin1(theme) << QString::fromLatin1(pair.front) << QString::fromLatin1(pair.back)
                    << pair.least;
    }

    void whatIsShownCanBeTold()
    {
        QFETCH(QString, theme);
        QFETCH(QString, front);
        QFETCH(QString, back);
        QFETCH(double, least);
        const QHash<QString, QColor> colors = themeColors(theme);
        QVERIFY(colors.contains(front) && colors.contains(back));
        const double ratio = contrast(colors.value(front), colors.value(back));
        QVERIFY2(ratio >= least, qPrintable(QStringLiteral("%1 to 1").arg(ratio)));
    }
};

QUORLIN_GUI_TEST(Contrast)

#include "tst_contrast.moc"
