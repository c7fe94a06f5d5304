#include "jobs/pages/page_layout.h"
#include "jobs/pages/page_texts.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <cmath>

namespace {

jobs::PageSettings plain(int rows, int columns)
{
    jobs::PageSettings settings;
    settings.paper = {600, 800};
    settings.margins = {30, 20, 10, 40};
    settings.rows = rows;
    settings.columns = columns;
    settings.gap = 8;
    return settings;
}

bool areSame(const QRectF &one, const QRectF &other)
{
    constexpr double little = 1e-9;
    return std::abs(one.left() - other.left()) < little && std::abs(one.top() - other.top()) < little &&
           std::abs(one.width() - other.width()) < little && std::abs(one.height() - other.height()) < little;
}

QString wordsOf(const QRectF &area)
{
    return QStringLiteral("%1 %2 %3 %4").arg(area.left()).arg(area.top()).arg(area.width()).arg(area.height());
}

} // namespace

#define COMPARE_AREAS(one, other)                                                                                      \
    QVERIFY2(areSame(one, other), qPrintable(wordsOf(one) + QStringLiteral(" is not ") + wordsOf(other)))

class PageLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dividesThePageWithinItsMargins();
    void leavesRoomForTexts();
    void givesEachPictureOnePlace();
    void repeatsAPictureOnItsPage();
    void laysPicturesIntoPlaces_data();
    void laysPicturesIntoPlaces();
    void takesNoMorePixelsThanThereAre();
    void marksWhereToCut();
    void setsTextsOnBaseLines();
    void refusesSettingsThatMakeNoSense_data();
    void refusesSettingsThatMakeNoSense();
    void readsSettings();
    void countsPagesInTexts();
};

void PageLayout::dividesThePageWithinItsMargins()
{
    const jobs::PageGrid grid = jobs::gridOf(plain(2, 3));
    QCOMPARE(grid.cells.size(), size_t(6));
    const double width = (600 - 30 - 10 - 2 * 8) / 3.0;
    const double height = (800 - 20 - 40 - 8) / 2.0;
    COMPARE_AREAS(grid.cells[0].picture, QRectF(30, 20, width, height));
    COMPARE_AREAS(grid.cells[2].picture, QRectF(590 - width, 20, width, height));
    COMPARE_AREAS(grid.cells[4].picture, QRectF(30 + width + 8, 760 - height, width, height));
    QCOMPARE(grid.cells[0].caption.height(), 0.0);
    QCOMPARE(grid.header.height(), 0.0);
    QCOMPARE(grid.footer.height(), 0.0);
}

void PageLayout::leavesRoomForTexts()
{
    jobs::PageSettings settings = plain(1, 1);
    settings.caption = QStringLiteral("{name}\n{taken}");
    settings.captionSize = 8;
    settings.header.pattern = QStringLiteral("Wedding");
    settings.footer.pattern = QStringLiteral("{page}");
    settings.lineSize = 10;
    const jobs::PageGrid grid = jobs::gridOf(settings);
    COMPARE_AREAS(grid.header, QRectF(30, 20, 560, 12.5));
    COMPARE_AREAS(grid.footer, QRectF(30, 760 - 12.5, 560, 12.5));
    COMPARE_AREAS(grid.cells[0].picture, QRectF(30, 40.5, 560, 740 - 41 - 23));
    COMPARE_AREAS(grid.cells[0].caption, QRectF(30, 760 - 20.5 - 20, 560, 20));
}

void PageLayout::givesEachPictureOnePlace()
{
    const jobs::PageSettings settings = plain(2, 3);
    QCOMPARE(jobs::pageCount(settings, 0), 0);
    QCOMPARE(jobs::pageCount(settings, 6), 1);
    QCOMPARE(jobs::pageCount(settings, 7), 2);
    QCOMPARE(jobs::pictureAt(settings, 7, 0, 5), 5);
    QCOMPARE(jobs::pictureAt(settings, 7, 1, 0), 6);
    QCOMPARE(jobs::pictureAt(settings, 7, 1, 1), -1);
}

void PageLayout::repeatsAPictureOnItsPage()
{
    jobs::PageSettings settings = plain(2, 4);
    settings.repeats = true;
    QCOMPARE(jobs::pageCount(settings, 3), 3);
    for (int cell = 0; cell < 8; ++cell)
        QCOMPARE(jobs::pictureAt(settings, 3, 2, cell), 2);
}

void PageLayout::laysPicturesIntoPlaces_data()
{
    QTest::addColumn<int>("fit");
    QTest::addColumn<bool>("turns");
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<QRectF>("place");
    QTest::addColumn<bool>("isTurned");
    QTest::addColumn<QRectF>("part");
    const QRectF whole(0, 0, 1, 1);
    const int fit = int(jobs::PageFit::Fit);
    const int fill = int(jobs::PageFit::Fill);
    const int size = int(jobs::PageFit::OwnSize);
    // Into 200 x 100 points at (50, 60).
    QTest::newRow("lying") << fit << false << QSize(300, 100) << QRectF(50, 60 + 50 - 100 / 3.0, 200, 200 / 3.0)
                           << false << whole;
    QTest::newRow("standing") << fit << false << QSize(100, 200) << QRectF(125, 60, 50, 100) << false << whole;
    QTest::newRow("standing, turned") << fit << true << QSize(100, 200) << QRectF(50, 60, 200, 100) << true << whole;
    QTest::newRow("lying stays") << fit << true << QSize(400, 200) << QRectF(50, 60, 200, 100) << false << whole;
    QTest::newRow("square stays") << fit << true << QSize(90, 90) << QRectF(100, 60, 100, 100) << false << whole;
    QTest::newRow("too wide, filled") << fill << false << QSize(400, 100) << QRectF(50, 60, 200, 100) << false
                                      << QRectF(0.25, 0, 0.5, 1);
    QTest::newRow("too high, filled") << fill << false << QSize(100, 100) << QRectF(50, 60, 200, 100) << false
                                      << QRectF(0, 0.25, 1, 0.5);
    QTest::newRow("filled, turned") << fill << true << QSize(100, 400) << QRectF(50, 60, 200, 100) << true
                                    << QRectF(0.25, 0, 0.5, 1);
    QTest::newRow("own size") << size << false << QSize(80, 40) << QRectF(110, 90, 80, 40) << false << whole;
    QTest::newRow("own size, not turned") << size << true << QSize(40, 80) << QRectF(130, 70, 40, 80) << false << whole;
    QTest::newRow("own size, too large") << size << false << QSize(800, 100) << QRectF(50, 97.5, 200, 25) << false
                                         << whole;
}

void PageLayout::laysPicturesIntoPlaces()
{
    QFETCH(int, fit);
    QFETCH(bool, turns);
    QFETCH(QSize, pixels);
    QFETCH(QRectF, place);
    QFETCH(bool, isTurned);
    QFETCH(QRectF, part);
    jobs::PageSettings settings;
    settings.fit = jobs::PageFit(fit);
    settings.turns = turns;
    const jobs::PlacedPicture picture = jobs::placed(pixels, pixels, QRectF(50, 60, 200, 100), settings);
    COMPARE_AREAS(picture.place, place);
    QCOMPARE(picture.isTurned, isTurned);
    COMPARE_AREAS(picture.part, part);
}

void PageLayout::takesNoMorePixelsThanThereAre()
{
    jobs::PageSettings settings;
    const QRectF inch(0, 0, 72, 72);
    QCOMPARE(jobs::pixelsOf(jobs::placed({3000, 1500}, {3000, 1500}, inch, settings), {3000, 1500}, 300),
             QSize(300, 150));
    QCOMPARE(jobs::pixelsOf(jobs::placed({120, 60}, {120, 60}, inch, settings), {120, 60}, 300), QSize(120, 60));
    settings.fit = jobs::PageFit::Fill;
    QCOMPARE(jobs::pixelsOf(jobs::placed({3000, 1500}, {3000, 1500}, inch, settings), {3000, 1500}, 300),
             QSize(300, 300));
    QCOMPARE(jobs::pixelsOf(jobs::placed({120, 60}, {120, 60}, inch, settings), {120, 60}, 300), QSize(60, 60));
    settings.turns = true;
    const QRectF wide(0, 0, 144, 72);
    QCOMPARE(jobs::pixelsOf(jobs::placed({1500, 3000}, {1500, 3000}, wide, settings), {1500, 3000}, 300),
             QSize(600, 300));
}

void PageLayout::marksWhereToCut()
{
    const auto marks = jobs::cropMarks({100, 100, 50, 40}, {0, 0, 600, 800});
    QCOMPARE(marks.size(), size_t(8));
    for (const QLineF &mark : marks) {
        QCOMPARE(mark.length(), 12.0);
        QVERIFY(!QRectF(100, 100, 50, 40).contains(mark.center()));
    }
    QVERIFY(std::find(marks.begin(), marks.end(), QLineF(86.5, 100, 98.5, 100)) != marks.end());
    QVERIFY(std::find(marks.begin(), marks.end(), QLineF(150, 141.5, 150, 153.5)) != marks.end());
    // Beside a neighbour there is room for short ones, and then for none.
    for (const QLineF &mark : jobs::cropMarks({100, 100, 50, 40}, {94, 0, 56, 800}))
        QVERIFY(mark.p1().x() >= 94 && mark.p2().x() <= 150);
    QCOMPARE(jobs::cropMarks({100, 100, 50, 40}, {100, 100, 50, 40}).size(), size_t(0));
    const jobs::PageSettings settings = plain(2, 2);
    COMPARE_AREAS(jobs::roomAround(settings, jobs::gridOf(settings), 0),
                  QRectF(QPointF(0, 0), jobs::gridOf(settings).cells[0].picture.bottomRight() + QPointF(4, 4)));
}

void PageLayout::setsTextsOnBaseLines()
{
    const QRectF area(10, 20, 100, jobs::heightOfLines(2, 8));
    const auto lines = jobs::linesIn(area, 8, jobs::PageSide::Centre);
    QCOMPARE(lines.size(), size_t(2));
    QCOMPARE(lines[0].anchor, QPointF(60, 27.6));
    QCOMPARE(lines[1].anchor, QPointF(60, 37.6));
    QCOMPARE(jobs::linesIn(area, 8, jobs::PageSide::Left)[0].anchor.x(), 10.0);
    QCOMPARE(jobs::linesIn(area, 8, jobs::PageSide::Right)[0].anchor.x(), 110.0);
}

void PageLayout::refusesSettingsThatMakeNoSense_data()
{
    QTest::addColumn<QVariantMap>("values");
    const auto row = [](const char *key, const QVariant &value) {
        QTest::newRow(key) << QVariantMap{{QString::fromLatin1(key), value}};
    };
    row("paper", QStringLiteral("A99"));
    row("rows", 0);
    row("columns", 21);
    row("gap", -1);
    row("marginLeft", QStringLiteral("wide"));
    row("marginTop", 300);
    row("fit", QStringLiteral("squeeze"));
    row("caption", QStringLiteral("{page}"));
    row("header", QStringLiteral("{nothing}"));
    row("footerSide", QStringLiteral("top"));
    row("captionSize", 0);
    row("paperColor", QStringLiteral("whitish"));
    row("dpi", 5000);
    row("quality", 0.5);
    QTest::newRow("paperWidth") << QVariantMap{{QStringLiteral("paper"), QStringLiteral("custom")},
                                               {QStringLiteral("paperWidth"), 5}};
}

void PageLayout::refusesSettingsThatMakeNoSense()
{
    QFETCH(QVariantMap, values);
    const auto settings = jobs::pageSettingsFrom(values);
    QVERIFY(!settings);
    QVERIFY(settings.error().message.size() > 10); // a sentence
}

void PageLayout::readsSettings()
{
    const auto usual = jobs::pageSettingsFrom({});
    QVERIFY(usual);
    QCOMPARE(usual->paper, QSizeF(595, 842));
    const auto settings = jobs::pageSettingsFrom({{QStringLiteral("paper"), QStringLiteral("10x15")},
                                                  {QStringLiteral("landscape"), true},
                                                  {QStringLiteral("rows"), 1},
                                                  {QStringLiteral("columns"), 2.0},
                                                  {QStringLiteral("marginTop"), 0},
                                                  {QStringLiteral("fit"), QStringLiteral("fill")},
                                                  {QStringLiteral("footer"), QStringLiteral("{page} / {pages}")},
                                                  {QStringLiteral("footerSide"), QStringLiteral("right")}});
    QVERIFY(settings);
    QCOMPARE(settings->paper, QSizeF(432, 288));
    QCOMPARE(settings->columns, 2);
    QCOMPARE(settings->margins.top(), 0.0);
    QVERIFY(settings->fit == jobs::PageFit::Fill);
    QVERIFY(settings->footer.side == jobs::PageSide::Right);
}

void PageLayout::countsPagesInTexts()
{
    text::TokenFacts facts;
    facts.path = QStringLiteral("/photos/Fjord/IMG_1.JPG");
    QCOMPARE(jobs::pageLines(QStringLiteral("{folder}\n{page}/{pages}, {pictures} pictures"), {2, 3, 50}, facts),
             QStringList({QStringLiteral("Fjord"), QStringLiteral("2/3, 50 pictures")}));
    QCOMPARE(jobs::captionLines(QStringLiteral("{name}\n{camera}"), facts),
             QStringList({QStringLiteral("IMG_1"), QString()}));
    QCOMPARE(jobs::captionLines({}, facts), QStringList());
}

QUORLIN_TEST(PageLayout)
#include "tst_page_layout.moc"
