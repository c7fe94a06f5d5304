#include "app/preview/view_zoom.h"
#include "tests/support/test_program.h"

#include <QTest>

using window::ViewZoom;

/** How close a picture is looked at, and which part of it then is. */
class TestViewZoom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAsLargeAsItsPlaceAtFirst()
    {
        const ViewZoom zoom;
        QVERIFY(!zoom.isOn());
        QCOMPARE(zoom.scale(), 0.0);
        QCOMPARE(zoom.center(), QPointF(0.5, 0.5));
    }

    void staysBetweenItsBounds()
    {
        ViewZoom zoom;
        zoom.setScale(100);
        QCOMPARE(zoom.scale(), 8.0);
        zoom.setScale(0.0001);
        QCOMPARE(zoom.scale(), 1.0 / 32);
        zoom.setScale(-1);
        QVERIFY(!zoom.isOn());
    }

    void stepsUpAndDown()
    {
        const double fitted = 0.3;
        ViewZoom zoom;
        QCOMPARE(zoom.steppedBy(1, fitted), 1.0 / 3);
        QCOMPARE(zoom.steppedBy(2, fitted), 0.5);
        QCOMPARE(zoom.steppedBy(-1, fitted), 0.0); // no smaller than its place allows
        zoom.setScale(1);
        QCOMPARE(zoom.steppedBy(1, fitted), 1.5);
        QCOMPARE(zoom.steppedBy(-1, fitted), 2.0 / 3);
        QCOMPARE(zoom.steppedBy(-4, fitted), 0.0);
        QCOMPARE(zoom.steppedBy(0, fitted), 1.0);
        zoom.setScale(8);
        QCOMPARE(zoom.steppedBy(3, fitted), 8.0);
    }

    /** A small picture is enlarged if it fills its area: the steps above that are omitted. */
    void stepsFromALargeFit()
    {
        QCOMPARE(ViewZoom().steppedBy(1, 2.5), 3.0);
        QCOMPARE(ViewZoom().steppedBy(-1, 2.5), 0.0);
    }

    void putsThePointIntoTheMiddle()
    {
        const QRectF area(10, 20, 100, 80);
        const QRectF place = window::placeAround({0.5, 0.25}, {400, 800}, area);
        QCOMPARE(place.size(), QSizeF(400, 800));
        QCOMPARE(place.topLeft() + QPointF(200, 200), area.center());
        QCOMPARE(window::centerOf(place, area), QPointF(0.5, 0.25));
    }

    void leavesNothingOfTheAreaEmpty()
    {
        const QRectF area(0, 0, 100, 80);
        QCOMPARE(window::placeAround({0, 0}, {400, 800}, area).topLeft(), QPointF(0, 0));
        QCOMPARE(window::placeAround({1, 1}, {400, 800}, area).bottomRight(), QPointF(100, 80));
        // What is smaller than the area is in its middle, whatever point is asked for.
        QCOMPARE(window::placeAround({1, 0}, {40, 800}, area).topLeft(), QPointF(30, 0));
    }

    void keepsThePointUnderThePointer()
    {
        const QRectF area(0, 0, 100, 80);
        const QSizeF shown(1000, 800);
        const QPointF at(70, 60);
        const QPointF center = window::centerFor({0.4, 0.6}, at, shown, area);
        const QRectF place = window::placeAround(center, shown, area);
        const QPointF point = place.topLeft() + QPointF(0.4 * shown.width(), 0.6 * shown.height());
        QVERIFY((point - at).manhattanLength() < 1e-6);
    }

    void isNotAskedOfNothing()
    {
        QCOMPARE(window::centerOf({}, QRectF(0, 0, 10, 10)), QPointF(0.5, 0.5));
        QCOMPARE(window::centerFor({0.2, 0.3}, {5, 5}, {}, QRectF(0, 0, 10, 10)), QPointF(0.2, 0.3));
    }
};

QUORLIN_TEST(TestViewZoom)
#include "tst_view_zoom.moc"
