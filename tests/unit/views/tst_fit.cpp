#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"
#include "views/bounds_text.h"
#include "views/fit.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <limits>

using platform::Bitmap;
using platform::Picture;
using views::Fit;

namespace {

Picture pictureOf(const QImage &image, QSizeF points = {})
{
    const Bitmap bitmap = Bitmap::fromImage(image);
    return points.isValid() ? Picture(bitmap, points) : Picture(bitmap, QSizeF(bitmap.size()));
}

int alphaAt(const Picture &picture, int x, int y)
{
    return picture.bitmap().pixel(x, y)[3];
}

QRectF boundsOf(QSizeF size)
{
    return {QPointF(0, 0), size};
}

} // namespace

/** The arithmetic of laying a picture into a view, and the pictures that come of it. */
class TestFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesTheSourceRectangle_data();
    void choosesTheSourceRectangle();
    void aWholePictureIsInsideItsSource();
    void aFillingSourceIsInsideThePicture();
    void givesExactlyTheTargetSize_data();
    void givesExactlyTheTargetSize();
    void leavesEmptyBandsBesideAWholePicture();
    void cutsTheSidesOfAPictureThatFills();
    void keepsAlphaAndSixteenBits();
    void measuresThePictureInPoints();
    void survivesExtremeShapes_data();
    void survivesExtremeShapes();
    void scalesByTheSmallerQuotient_data();
    void scalesByTheSmallerQuotient();
    void writesAndReadsSizes_data();
    void writesAndReadsSizes();
    void readsSizesLeniently_data();
    void readsSizesLeniently();
};

void TestFit::choosesTheSourceRectangle_data()
{
    QTest::addColumn<QSizeF>("picture");
    QTest::addColumn<QSizeF>("target");
    QTest::addColumn<Fit>("fit");
    QTest::addColumn<QRectF>("source");
    const auto row = [](const char *name, QSizeF picture, QSizeF target, const QRectF &whole, const QRectF &fill) {
        QTest::addRow("%s, whole", name) << picture << target << Fit::Whole << whole;
        QTest::addRow("%s, fill", name) << picture << target << Fit::Fill << fill;
    };
    row("landscape into a square", {4000, 3000}, {800, 800}, {0, -500, 4000, 3999}, {500, 0, 2999, 3000});
    row("portrait into a square", {3000, 4000}, {800, 800}, {-500, 0, 3999, 4000}, {0, 500, 3000, 2999});
    row("same shape, exact ratio", {4000, 3000}, {1000, 750}, {0, 0, 4000, 3000}, {0, 0, 4000, 3000});
    row("same shape, rounded ratio", {4000, 3000}, {800, 600}, {0, 0, 4000, 2999}, {0, 0, 3999, 3000});
    row("same size", {640, 480}, {640, 480}, {0, 0, 640, 480}, {0, 0, 640, 480});
    row("enlarged", {2, 1}, {8, 8}, {0, -1, 2, 2}, {0, 0, 1, 1});
    row("one point", {1, 1}, {100, 50}, {-1, 0, 2, 1}, {0, 0, 1, 0});
    row("half a point off", {5, 5}, {5, 2}, {-4, 0, 12, 5}, {0, 1, 5, 2});
    row("a flat target", {100, 100}, {50, 0.5}, {-4950, 0, 10000, 100}, {0, 49, 100, 1});
}

void TestFit::choosesTheSourceRectangle()
{
    QFETCH(QSizeF, picture);
    QFETCH(QSizeF, target);
    QFETCH(Fit, fit);
    QFETCH(QRectF, source);
    QCOMPARE(views::sourceFor(picture, target, fit), source);
}

void TestFit::aWholePictureIsInsideItsSource()
{
    // The ratios are of single precision and sides are floored: a point and as much as seven digits leave may be missing.
    QRandomGenerator random(1);
    for (int i = 0; i < 20000; ++i) {
        const QSizeF picture(random.bounded(1, 12000), random.bounded(1, 12000));
        const QSizeF target(random.bounded(1, 3000), random.bounded(1, 3000));
        const QRectF source = views::sourceFor(picture, target, Fit::Whole);
        const double slack = 1 + std::max(picture.width(), picture.height()) * 1e-6;
        QVERIFY2(source.adjusted(-slack, -slack, slack, slack).contains(boundsOf(picture)),
                 qPrintable(QStringLiteral("%1x%2 in %3x%4")
                                .arg(picture.width())
                                .arg(picture.height())
                                .arg(target.width())
                                .arg(target.height())));
        QVERIFY(source.width() == picture.width() || source.height() == picture.height());
    }
}

void TestFit::aFillingSourceIsInsideThePicture()
{
    QRandomGenerator random(2);
    for (int i = 0; i < 20000; ++i) {
        const QSizeF picture(random.bounded(1, 12000), random.bounded(1, 12000));
        const QSizeF target(random.bounded(1, 3000), random.bounded(1, 3000));
        const QRectF source = views::sourceFor(picture, target, Fit::Fill);
        QVERIFY(source.left() >= 0 && source.top() >= 0);
        QVERIFY(source.right() <= picture.width() && source.bottom() <= picture.height());
        QVERIFY(source.width() == picture.width() || source.height() == picture.height());
    }
}

void TestFit::givesExactlyTheTargetSize_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSizeF>("target");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("shrunk") << QSize(400, 300) << QSizeF(80, 80) << QSize(80, 80);
    QTest::newRow("enlarged") << QSize(4, 3) << QSizeF(80, 50) << QSize(80, 50);
    QTest::newRow("fractions of a point") << QSize(40, 30) << QSizeF(20.5, 10.25) << QSize(21, 11);
    QTest::newRow("one pixel") << QSize(1, 1) << QSizeF(1, 1) << QSize(1, 1);
    QTest::newRow("no picture") << QSize() << QSizeF(31, 17) << QSize(31, 17);
    QTest::newRow("no place") << QSize(40, 30) << QSizeF(0, 0) << QSize(0, 0);
    QTest::newRow("neither") << QSize() << QSizeF(0, 0) << QSize(0, 0);
    QTest::newRow("flat") << QSize(40, 30) << QSizeF(10, 0) << QSize(0, 0);
}

void TestFit::givesExactlyTheTargetSize()
{
    QFETCH(QSize, picture);
    QFETCH(QSizeF, target);
    QFETCH(QSize, pixels);
    const Picture given =
        picture.isEmpty() ? Picture() : pictureOf(pictures::gradient(picture.width(), picture.height()));
    for (const Fit fit : {Fit::Whole, Fit::Fill}) {
        const Picture laid = views::laidInto(given, target, fit);
        QVERIFY(!laid.isNull());
        QCOMPARE(laid.size(), target);
        QCOMPARE(laid.pixelSize(), pixels);
        QCOMPARE(laid.bitmap().size(), pixels);
        if (given.isNull() && !pixels.isEmpty())
            QCOMPARE(alphaAt(laid, pixels.width() / 2, pixels.height() / 2), 0);
    }
}

void TestFit::leavesEmptyBandsBesideAWholePicture()
{
    const Picture laid = views::laidInto(pictureOf(pictures::plain(400, 300, Qt::red)), QSizeF(80, 80), Fit::Whole);
    QCOMPARE(alphaAt(laid, 40, 8), 0);
    QCOMPARE(alphaAt(laid, 40, 71), 0);
    QCOMPARE(alphaAt(laid, 0, 11), 255);
    QCOMPARE(alphaAt(laid, 79, 68), 255);
    QCOMPARE(laid.bitmap().pixel(40, 40), (std::array<int, 4>{255, 0, 0, 255}));
}

void TestFit::cutsTheSidesOfAPictureThatFills()
{
    QImage image = pictures::plain(400, 200, Qt::green);
    for (int y = 0; y < 200; ++y)
        for (const int x : {0, 1, 398, 399})
            image.setPixelColor(x, y, Qt::red);
    const Picture laid = views::laidInto(pictureOf(image), QSizeF(100, 100), Fit::Fill);
    for (const QPoint &at : {QPoint(0, 0), QPoint(99, 0), QPoint(0, 99), QPoint(99, 99), QPoint(50, 50)})
        QCOMPARE(laid.bitmap().pixel(at.x(), at.y()), (std::array<int, 4>{0, 255, 0, 255}));
}

void TestFit::keepsAlphaAndSixteenBits()
{
    QImage image(200, 100, QImage::Format_RGBA64);
    image.fill(QColor::fromRgba64(0x1234, 0x5678, 0x9abc, 0x8000));
    const Bitmap laid = views::laidInto(pictureOf(image), QSizeF(50, 50), Fit::Whole).bitmap();
    QCOMPARE(laid.bitsPerComponent(), 16);
    QCOMPARE(laid.pixel(25, 5), (std::array<int, 4>{0, 0, 0, 0}));
    QCOMPARE(laid.pixel(25, 25)[3], 0x80);
    QVERIFY(std::abs(laid.pixel(25, 25)[0] - 0x12) <= 1);
}

void TestFit::measuresThePictureInPoints()
{
    // 400 x 300 pixels at 288 dots per inch are 100 x 75 points: a place of that size takes the whole picture.
    const Picture picture = pictureOf(pictures::plain(400, 300, Qt::blue), QSizeF(100, 75));
    const Picture laid = views::laidInto(picture, QSizeF(100, 75), Fit::Whole);
    QCOMPARE(laid.pixelSize(), QSize(100, 75));
    for (const QPoint &at : {QPoint(0, 0), QPoint(99, 0), QPoint(0, 74), QPoint(99, 74)})
        QCOMPARE(laid.bitmap().pixel(at.x(), at.y()), (std::array<int, 4>{0, 0, 255, 255}));
}

void TestFit::survivesExtremeShapes_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSizeF>("target");
    QTest::newRow("a wide line") << QSize(4000, 1) << QSizeF(80, 80);
    QTest::newRow("a high line") << QSize(1, 4000) << QSizeF(80, 80);
    QTest::newRow("a line into a line") << QSize(4000, 1) << QSizeF(1, 400);
    QTest::newRow("far too large") << QSize(10, 10) << QSizeF(1e9, 1e9);
    QTest::newRow("negative") << QSize(10, 10) << QSizeF(-5, 20);
    QTest::newRow("not a number") << QSize(10, 10) << QSizeF(std::numeric_limits<double>::quiet_NaN(), 20);
}

void TestFit::survivesExtremeShapes()
{
    QFETCH(QSize, picture);
    QFETCH(QSizeF, target);
    const Picture given = pictureOf(pictures::plain(picture.width(), picture.height(), Qt::red));
    for (const Fit fit : {Fit::Whole, Fit::Fill}) {
        const Picture laid = views::laidInto(given, target, fit);
        if (target.width() > 1e6)
            QVERIFY(laid.isNull());
        else if (target.width() > 0 && target.height() > 0)
            QCOMPARE(laid.pixelSize(), target.toSize());
        else
            QVERIFY(laid.bitmap().isNull());
    }
}

void TestFit::scalesByTheSmallerQuotient_data()
{
    QTest::addColumn<QSizeF>("content");
    QTest::addColumn<QSizeF>("most");
    QTest::addColumn<double>("scale");
    QTest::newRow("width decides") << QSizeF(400, 600) << QSizeF(800, 800) << 0.5;
    QTest::newRow("height decides") << QSizeF(800, 200) << QSizeF(800, 800) << 0.25;
    QTest::newRow("clamped") << QSizeF(1600, 1700) << QSizeF(800, 800) << 1.0;
    QTest::newRow("zero reference") << QSizeF(800, 600) << QSizeF(0, 0) << 1.0;
    QTest::newRow("zero on one side") << QSizeF(800, 600) << QSizeF(1600, 0) << 0.5;
    QTest::newRow("zero everywhere") << QSizeF(0, 0) << QSizeF(0, 0) << 1.0;
    QTest::newRow("zero content") << QSizeF(0, 0) << QSizeF(800, 600) << 0.0;
}

void TestFit::scalesByTheSmallerQuotient()
{
    QFETCH(QSizeF, content);
    QFETCH(QSizeF, most);
    QFETCH(double, scale);
    QCOMPARE(views::drawingScale(content, most), scale);
}

void TestFit::writesAndReadsSizes_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << QSizeF(640, 480) << QStringLiteral("{640, 480}");
    QTest::newRow("zero") << QSizeF(0, 0) << QStringLiteral("{0, 0}");
    QTest::newRow("half") << QSizeF(640.5, 0.25) << QStringLiteral("{640.5, 0.25}");
    QTest::newRow("a third") << QSizeF(1 / 3.0, 2) << QStringLiteral("{0.33333333333333331, 2}");
    QTest::newRow("negative") << QSizeF(-3, 2) << QStringLiteral("{-3, 2}");
    QTest::newRow("large") << QSizeF(1e20, 2) << QStringLiteral("{1e+20, 2}");
}

void TestFit::writesAndReadsSizes()
{
    QFETCH(QSizeF, size);
    QFETCH(QString, text);
    QCOMPARE(views::textOfSize(size), text);
    QCOMPARE(views::sizeOfText(text), size);
}

void TestFit::readsSizesLeniently_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("null") << QString() << QSizeF(0, 0);
    QTest::newRow("empty") << QStringLiteral("") << QSizeF(0, 0);
    QTest::newRow("garbage") << QStringLiteral("no size at all") << QSizeF(0, 0);
    QTest::newRow("braces only") << QStringLiteral("{, }") << QSizeF(0, 0);
    QTest::newRow("no braces") << QStringLiteral("640, 480") << QSizeF(640, 480);
    QTest::newRow("no comma") << QStringLiteral("{640 480}") << QSizeF(640, 480);
    QTest::newRow("no blank") << QStringLiteral("{640,480}") << QSizeF(640, 480);
    QTest::newRow("one number") << QStringLiteral("{640}") << QSizeF(640, 0);
    QTest::newRow("more numbers") << QStringLiteral("{1, 2, 3}") << QSizeF(1, 2);
    QTest::newRow("words between") << QStringLiteral("w 12 by h .5e1") << QSizeF(12, 5);
    QTest::newRow("beyond numbers") << QStringLiteral("{1e999, 3}") << QSizeF(0, 3);
}

void TestFit::readsSizesLeniently()
{
    QFETCH(QString, text);
    QFETCH(QSizeF, size);
    QCOMPARE(views::sizeOfText(text), size);
}

QUORLIN_TEST(TestFit)
#include "tst_fit.moc"
