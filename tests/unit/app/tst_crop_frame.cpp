#include "app/preview/crop_frame.h"
#include "tests/support/test_program.h"

#include <QRandomGenerator>
#include <QTest>

using window::Grip;

Q_DECLARE_METATYPE(window::Grip)

namespace {

const QSize picture(600, 400);
const QRect frame(100, 100, 200, 100);
const Qt::KeyboardModifiers plain = Qt::NoModifier;

QList<Grip> allHandles()
{
    return {Grip::TopLeft,     Grip::Top,    Grip::TopRight,   Grip::Right,
            Grip::BottomRight, Grip::Bottom, Grip::BottomLeft, Grip::Left};
}

} // namespace

/** Moving and sizing a frame on a picture. */
class TestCropFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheGripUnderThePointer_data();
    void findsTheGripUnderThePointer();
    void showsWhatAGripDoes();
    void movesAndSizes_data();
    void movesAndSizes();
    void followsTheKeys_data();
    void followsTheKeys();
    void staysInsideWhateverIsPulled();
    void keepsTheRatioWhateverIsPulled();
    void leavesTheOppositeCornerInItsPlace();
};

void TestCropFrame::findsTheGripUnderThePointer_data()
{
    QTest::addColumn<QPointF>("point");
    QTest::addColumn<Grip>("grip");
    QTest::newRow("corner") << QPointF(100, 100) << Grip::TopLeft;
    QTest::newRow("near a corner") << QPointF(305, 194) << Grip::BottomRight;
    QTest::newRow("other corners") << QPointF(300, 100) << Grip::TopRight;
    QTest::newRow("bottom left") << QPointF(95, 205) << Grip::BottomLeft;
    QTest::newRow("top") << QPointF(200, 98) << Grip::Top;
    QTest::newRow("bottom") << QPointF(200, 203) << Grip::Bottom;
    QTest::newRow("left") << QPointF(101, 150) << Grip::Left;
    QTest::newRow("right") << QPointF(299, 150) << Grip::Right;
    QTest::newRow("inside") << QPointF(150, 130) << Grip::Inside;
    QTest::newRow("outside") << QPointF(50, 130) << Grip::None;
}

void TestCropFrame::findsTheGripUnderThePointer()
{
    QFETCH(QPointF, point);
    QFETCH(Grip, grip);
    QCOMPARE(window::gripAt(QRectF(100, 100, 200, 100), point, 8), grip);
}

void TestCropFrame::showsWhatAGripDoes()
{
    QCOMPARE(window::cursorOf(Grip::TopLeft), Qt::SizeFDiagCursor);
    QCOMPARE(window::cursorOf(Grip::BottomLeft), Qt::SizeBDiagCursor);
    QCOMPARE(window::cursorOf(Grip::Top), Qt::SizeVerCursor);
    QCOMPARE(window::cursorOf(Grip::Left), Qt::SizeHorCursor);
    QCOMPARE(window::cursorOf(Grip::Inside), Qt::SizeAllCursor);
    QCOMPARE(window::cursorOf(Grip::None), Qt::ArrowCursor);
}

void TestCropFrame::movesAndSizes_data()
{
    QTest::addColumn<Grip>("grip");
    QTest::addColumn<QPoint>("by");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QRect>("result");
    QTest::newRow("inside moves") << Grip::Inside << QPoint(10, -20) << 0.0 << QRect(110, 80, 200, 100);
    QTest::newRow("moved to the edge") << Grip::Inside << QPoint(999, 999) << 0.0 << QRect(400, 300, 200, 100);
    QTest::newRow("moved to the corner") << Grip::Inside << QPoint(-999, -999) << 0.0 << QRect(0, 0, 200, 100);
    QTest::newRow("right") << Grip::Right << QPoint(30, 50) << 0.0 << QRect(100, 100, 230, 100);
    QTest::newRow("left") << Grip::Left << QPoint(30, 50) << 0.0 << QRect(130, 100, 170, 100);
    QTest::newRow("top") << Grip::Top << QPoint(30, -50) << 0.0 << QRect(100, 50, 200, 150);
    QTest::newRow("bottom") << Grip::Bottom << QPoint(30, -50) << 0.0 << QRect(100, 100, 200, 50);
    QTest::newRow("top left") << Grip::TopLeft << QPoint(10, 20) << 0.0 << QRect(110, 120, 190, 80);
    QTest::newRow("bottom right") << Grip::BottomRight << QPoint(10, 20) << 0.0 << QRect(100, 100, 210, 120);
    QTest::newRow("past the other edge") << Grip::Left << QPoint(500, 0) << 0.0 << QRect(299, 100, 1, 100);
    QTest::newRow("out of the picture") << Grip::BottomRight << QPoint(999, 999) << 0.0 << QRect(100, 100, 500, 300);
    QTest::newRow("corner with a ratio") << Grip::BottomRight << QPoint(100, 0) << 2.0 << QRect(100, 100, 300, 150);
    QTest::newRow("the other way") << Grip::BottomRight << QPoint(0, 50) << 2.0 << QRect(100, 100, 300, 150);
    QTest::newRow("top left with a ratio") << Grip::TopLeft << QPoint(-100, 0) << 2.0 << QRect(0, 50, 300, 150);
    QTest::newRow("a side with a ratio") << Grip::Right << QPoint(100, 0) << 2.0 << QRect(100, 75, 300, 150);
    QTest::newRow("limited by the height") << Grip::BottomRight << QPoint(999, 0) << 1.0 << QRect(100, 100, 300, 300);
    QTest::newRow("limited about the middle") << Grip::Right << QPoint(999, 0) << 1.0 << QRect(100, 0, 300, 300);
    QTest::newRow("nothing held") << Grip::None << QPoint(9, 9) << 0.0 << frame;
}

void TestCropFrame::movesAndSizes()
{
    QFETCH(Grip, grip);
    QFETCH(QPoint, by);
    QFETCH(double, ratio);
    QFETCH(QRect, result);
    QCOMPARE(window::sizedFrame(frame, grip, by, picture, ratio), result);
}

void TestCropFrame::followsTheKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QRect>("result");
    const auto row = [](const char *name, Qt::Key key, int modifiers, double ratio, const QRect &result) {
        QTest::newRow(name) << int(key) << modifiers << ratio << result;
    };
    row("right", Qt::Key_Right, plain, 0, QRect(101, 100, 200, 100));
    row("up", Qt::Key_Up, plain, 0, QRect(100, 99, 200, 100));
    row("left by ten", Qt::Key_Left, Qt::ShiftModifier, 0, QRect(90, 100, 200, 100));
    row("wider", Qt::Key_Right, Qt::AltModifier, 0, QRect(100, 100, 201, 100));
    row("narrower by ten", Qt::Key_Left, int(Qt::AltModifier | Qt::ShiftModifier), 0, QRect(100, 100, 190, 100));
    row("lower", Qt::Key_Up, Qt::AltModifier, 0, QRect(100, 100, 200, 99));
    row("wider with a ratio", Qt::Key_Right, int(Qt::AltModifier | Qt::ShiftModifier), 2, QRect(100, 100, 210, 105));
    row("another key", Qt::Key_A, plain, 0, frame);
}

void TestCropFrame::followsTheKeys()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(double, ratio);
    QFETCH(QRect, result);
    QCOMPARE(window::keyedFrame(frame, key, Qt::KeyboardModifiers(modifiers), picture, ratio), result);
}

static QRect randomRect(QRandomGenerator &random, bool isInside)
{
    const int reach = isInside ? 0 : 300;
    const int x = random.bounded(-reach, 599 + reach);
    const int y = random.bounded(-reach, 399 + reach);
    const int width = random.bounded(1, isInside ? 601 - x : 900);
    const int height = random.bounded(1, isInside ? 401 - y : 900);
    return {x, y, width, height};
}

void TestCropFrame::staysInsideWhateverIsPulled()
{
    QRandomGenerator random(3);
    const QRect all(QPoint(0, 0), picture);
    for (int i = 0; i < 20000; ++i) {
        const QRect start = randomRect(random, i % 2 == 0);
        const Grip grip = i % 9 == 0 ? Grip::Inside : allHandles().at(random.bounded(8));
        const double ratio = i % 3 == 0 ? 0 : std::exp(random.generateDouble() * 4 - 2);
        const QPoint by(random.bounded(-700, 700), random.bounded(-700, 700));
        const QRect result = window::sizedFrame(start, grip, by, picture, ratio);
        QVERIFY(result.width() >= 1 && result.height() >= 1);
        QVERIFY2(all.contains(result), qPrintable(QStringLiteral("%1").arg(i)));
    }
}

void TestCropFrame::keepsTheRatioWhateverIsPulled()
{
    QRandomGenerator random(4);
    for (int i = 0; i < 20000; ++i) {
        const QRect start = randomRect(random, true);
        const double ratio = std::exp(random.generateDouble() * 2 - 1);
        const QPoint by(random.bounded(-700, 700), random.bounded(-700, 700));
        const QRect result = window::sizedFrame(start, allHandles().at(random.bounded(8)), by, picture, ratio);
        // Both sides are whole pixels.
        QVERIFY(std::abs(result.width() - result.height() * ratio) <= 1 + ratio);
    }
}

void TestCropFrame::leavesTheOppositeCornerInItsPlace()
{
    for (const double ratio : {0.0, 0.5, 1.0, 3.0}) {
        for (const QPoint &by : {QPoint(7, 3), QPoint(-40, 80), QPoint(300, -300)}) {
            QCOMPARE(window::sizedFrame(frame, Grip::BottomRight, by, picture, ratio).topLeft(), frame.topLeft());
            QCOMPARE(window::sizedFrame(frame, Grip::TopLeft, by, picture, ratio).bottomRight(), frame.bottomRight());
            QCOMPARE(window::sizedFrame(frame, Grip::TopRight, by, picture, ratio).bottomLeft(), frame.bottomLeft());
            QCOMPARE(window::sizedFrame(frame, Grip::BottomLeft, by, picture, ratio).topRight(), frame.topRight());
        }
    }
}

QUORLIN_TEST(TestCropFrame)
#include "tst_crop_frame.moc"
