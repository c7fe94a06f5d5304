#include "jobs/reading/reading_messages.h"
#include "tests/support/test_program.h"

#include <QRandomGenerator>
#include <QTest>

using jobs::partInView;

/** Which part of a picture is requested if it is larger than its room. */
class TestPartInView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void liesAroundTheMiddle();
    void endsAtTheEdges_data();
    void endsAtTheEdges();
    void isFewerPixelsTheLargerTheyAreShown();
    void alwaysHoldsWhatIsSeen();
};

void TestPartInView::liesAroundTheMiddle()
{
    // An eighth of the room more on each side.
    QCOMPARE(partInView({4000, 3000}, {800, 400}, {0.5, 0.5}, 1), QRect(1500, 1250, 1000, 500));
    QCOMPARE(partInView({4000, 3000}, {800, 400}, {0.25, 0.75}, 1), QRect(500, 2000, 1000, 500));
}

void TestPartInView::endsAtTheEdges_data()
{
    QTest::addColumn<QPointF>("center");
    QTest::addColumn<QSizeF>("room");
    QTest::addColumn<QRect>("part");
    QTest::newRow("top left") << QPointF(0, 0) << QSizeF(80, 80) << QRect(0, 0, 100, 100);
    QTest::newRow("bottom right") << QPointF(1, 1) << QSizeF(80, 80) << QRect(900, 500, 100, 100);
    QTest::newRow("beyond it") << QPointF(7, -3) << QSizeF(80, 80) << QRect(900, 0, 100, 100);
    QTest::newRow("wider than the picture") << QPointF(0.1, 0.5) << QSizeF(2000, 80) << QRect(0, 250, 1000, 100);
    QTest::newRow("as large as the picture") << QPointF(0.9, 0.1) << QSizeF(800, 480) << QRect(0, 0, 1000, 600);
    QTest::newRow("no room at all") << QPointF(1, 1) << QSizeF(0, 0) << QRect(999, 599, 1, 1);
}

void TestPartInView::endsAtTheEdges()
{
    QFETCH(QPointF, center);
    QFETCH(QSizeF, room);
    QFETCH(QRect, part);
    QCOMPARE(partInView({1000, 600}, room, center, 1), part);
}

void TestPartInView::isFewerPixelsTheLargerTheyAreShown()
{
    QCOMPARE(partInView({4000, 3000}, {800, 400}, {0.5, 0.5}, 4), QRect(1875, 1437, 250, 126));
    // Below its own size the picture has been made smaller already.
    QCOMPARE(partInView({4000, 3000}, {800, 400}, {0.5, 0.5}, 0.25),
             partInView({4000, 3000}, {800, 400}, {0.5, 0.5}, 1));
}

/** What is moved into view so that the picture fills the room, in whole pixels, whatever the numbers. */
void TestPartInView::alwaysHoldsWhatIsSeen()
{
    QRandomGenerator random(7);
    for (int i = 0; i < 2000; ++i) {
        const QSize pixels(1 + random.bounded(3000), 1 + random.bounded(3000));
        const QSizeF room(1 + random.bounded(2000.0), 1 + random.bounded(2000.0));
        const QPointF center(random.generateDouble(), random.generateDouble());
        const double zoom = 0.1 + random.bounded(16.0);
        const QRect part = partInView(pixels, room, center, zoom);
        QVERIFY(QRect(QPoint(0, 0), pixels).contains(part));
        const auto holds = [&](double middle, double length, int begin, int count, int all) {
            const double seen = std::min(length / std::max(1.0, zoom), double(all));
            const double from = std::clamp(middle * all - seen / 2, 0.0, all - seen);
            return begin <= from + 1e-6 && begin + count >= from + seen - 1e-6;
        };
        QVERIFY(holds(center.x(), room.width(), part.x(), part.width(), pixels.width()));
        QVERIFY(holds(center.y(), room.height(), part.y(), part.height(), pixels.height()));
    }
}

QUORLIN_TEST(TestPartInView)
#include "tst_part_in_view.moc"
