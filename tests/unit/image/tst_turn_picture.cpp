#include "image/turn.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <cmath>

using platform::Bitmap;
using platform::Picture;

namespace {

Bitmap unlikePixels(int width, int height)
{
    return Bitmap::fromImage(pictures::gradient(width, height));
}

bool isNear(QSizeF actual, QSizeF wanted)
{
    return std::abs(actual.width() - wanted.width()) < 1e-6 && std::abs(actual.height() - wanted.height()) < 1e-6;
}

} // namespace

class TurnPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boxJustHoldsTheTurnedRectangle_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<double>("degrees");
        QTest::addColumn<QSizeF>("box");
        const double root2 = std::sqrt(2.0);
        const double root3 = std::sqrt(3.0);
        QTest::newRow("0") << QSizeF(40, 30) << 0.0 << QSizeF(40, 30);
        QTest::newRow("45") << QSizeF(100, 100) << 45.0 << QSizeF(100 * root2, 100 * root2);
        QTest::newRow("30") << QSizeF(40, 30) << 30.0 << QSizeF(20 * root3 + 15, 20 + 15 * root3);
        QTest::newRow("-30") << QSizeF(40, 30) << -30.0 << QSizeF(20 * root3 + 15, 20 + 15 * root3);
        QTest::newRow("150") << QSizeF(40, 30) << 150.0 << QSizeF(20 * root3 + 15, 20 + 15 * root3);
        QTest::newRow("90") << QSizeF(4000, 3000) << 90.0 << QSizeF(3000, 4000);
        QTest::newRow("-90") << QSizeF(4000, 3000) << -90.0 << QSizeF(3000, 4000);
        QTest::newRow("180") << QSizeF(4000, 3000) << 180.0 << QSizeF(4000, 3000);
        QTest::newRow("360") << QSizeF(4000, 3000) << 360.0 << QSizeF(4000, 3000);
        QTest::newRow("points") << QSizeF(10.5, 3.25) << 90.0 << QSizeF(3.25, 10.5);
    }

    void boxJustHoldsTheTurnedRectangle()
    {
        QFETCH(QSizeF, size);
        QFETCH(double, degrees);
        QFETCH(QSizeF, box);
        const QSizeF actual = image::turnedBox(size, degrees);
        QVERIFY2(isNear(actual, box), qPrintable(QStringLiteral("%1 %2").arg(actual.width()).arg(actual.height())));
    }

    /** Fractions are cut off, so the sines of a quarter turn must not fall short of the whole. */
    void boxOfAQuarterTurnIsNotLessThanWhole()
    {
        for (const double degrees : {90.0, -90.0, 180.0, 270.0, 450.0, 36090.0}) {
            const QSizeF box = image::turnedBox(QSizeF(4000, 3000), degrees);
            QVERIFY(std::max(box.width(), box.height()) >= 4000);
            QVERIFY(std::min(box.width(), box.height()) >= 3000);
        }
    }

    void canvasIsTheBoxLessFractions_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("degrees");
        QTest::addColumn<QSize>("canvas");
        const auto row = [](QSize size, double degrees, QSize canvas) {
            QTest::addRow("%dx%d by %g", size.width(), size.height(), degrees) << size << degrees << canvas;
        };
        row({100, 100}, 45, {141, 141});
        row({100, 100}, -45, {141, 141});
        row({100, 100}, 0, {100, 100});
        row({100, 80}, 360, {100, 80});
        row({100, 80}, 90, {80, 100});
        row({100, 80}, -90, {80, 100});
        row({100, 80}, 180, {100, 80});
        row({100, 80}, 270, {80, 100});
        row({100, 80}, 7.5, {109, 92});
        row({100, 80}, 187.5, {109, 92});
        row({100, 80}, 0.001, {100, 80});
        row({1, 1}, 45, {1, 1});
        row({1, 200}, 45, {142, 142});
        row({100, 80}, 1e7, image::turnedBox({100, 80}, 1e7).toSize());
    }

    void canvasIsTheBoxLessFractions()
    {
        QFETCH(QSize, size);
        QFETCH(double, degrees);
        QFETCH(QSize, canvas);
        const auto turned = image::turned(unlikePixels(size.width(), size.height()), degrees);
        QVERIFY(turned.has_value());
        QCOMPARE(turned->size(), canvas);
    }

    void turnsCounterClockwise()
    {
        QImage image = pictures::plain(60, 40, Qt::white, QImage::Format_RGB888);
        for (int y = 0; y < 10; ++y)
            for (int x = 50; x < 60; ++x)
                image.setPixelColor(x, y, Qt::red);
        const Bitmap source = Bitmap::fromImage(image);
        const std::array<int, 4> red = {255, 0, 0, 255};
        // What was at the top right is at the top left, then a little below it.
        QCOMPARE(image::turned(source, 90)->pixel(5, 5), red);
        QCOMPARE(image::turned(source, -270)->pixel(5, 5), red);
        QCOMPARE(image::turned(source, -90)->pixel(35, 55), red);
        const Bitmap little = image::turned(source, 10).value_or(Bitmap());
        QCOMPARE(little.size(), QSize(66, 49));
        QCOMPARE(little.pixel(56, 5), red);
        QCOMPARE(little.pixel(60, 12), (std::array<int, 4>{255, 255, 255, 255}));
        const Bitmap otherWay = image::turned(source, -10).value_or(Bitmap());
        QCOMPARE(otherWay.pixel(60, 14), red);
    }

    void turningTwiceByAQuarterIsTurningByAHalf()
    {
        const Bitmap source = unlikePixels(37, 23);
        const Bitmap twice = image::turned(*image::turned(source, 90), 90).value_or(Bitmap());
        QCOMPARE(twice.toRawImage(), image::turned(source, 180)->toRawImage());
        Bitmap around = source;
        for (int quarter = 0; quarter < 4; ++quarter)
            around = image::turned(around, 90).value_or(Bitmap());
        QCOMPARE(around.toRawImage(), source.toRawImage());
    }

    void flippingTwiceIsNoChange_data()
    {
        QTest::addColumn<Qt::Orientation>("axis");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("horizontal") << Qt::Horizontal << QPoint(36, 0);
        QTest::newRow("vertical") << Qt::Vertical << QPoint(0, 22);
    }

    void flippingTwiceIsNoChange()
    {
        QFETCH(Qt::Orientation, axis);
        QFETCH(QPoint, place);
        const Bitmap source = unlikePixels(37, 23);
        const Bitmap once = image::flipped(source, axis).value_or(Bitmap());
        QCOMPARE(once.pixel(place.x(), place.y()), source.pixel(0, 0));
        QCOMPARE(image::flipped(once, axis)->toRawImage(), source.toRawImage());
    }

    /** Turned there and back the middle is what it was, but for what two interpolations lose. */
    void turnsBack_data()
    {
        QTest::addColumn<double>("degrees");
        for (const double degrees : {0.5, 7.5, 33.0, 45.0, 89.0, 120.0, 200.0, -15.0})
            QTest::addRow("%g", degrees) << degrees;
    }

    void turnsBack()
    {
        QFETCH(double, degrees);
        QImage image(80, 60, QImage::Format_RGB888);
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 80; ++x)
                image.setPixelColor(x, y, QColor(3 * x, 4 * y, 2 * (80 - x)));
        const Bitmap source = Bitmap::fromImage(image);
        const Bitmap there = image::turned(source, degrees).value_or(Bitmap());
        const Bitmap back = image::turned(there, -degrees).value_or(Bitmap());
        const QPoint shift((back.width() - 80) / 2, (back.height() - 60) / 2);
        for (int y = 10; y < 50; ++y)
            for (int x = 10; x < 70; ++x) {
                const auto was = source.pixel(x, y);
                const auto is = back.pixel(x + shift.x(), y + shift.y());
                for (size_t part = 0; part < 3; ++part) // one pixel of the picture is 2 to 4 levels
                    QVERIFY2(std::abs(was[part] - is[part]) <= 7, qPrintable(QStringLiteral("%1 %2").arg(x).arg(y)));
            }
    }

    void refusesAnglesThatAreNoNumbers()
    {
        for (const double degrees : {qQNaN(), qInf(), -qInf()}) {
            QVERIFY(!image::turned(unlikePixels(4, 4), degrees).has_value());
            QVERIFY(!image::turned(Picture(unlikePixels(4, 4)), degrees).has_value());
        }
        QVERIFY(!image::turned(Bitmap(), 10).has_value());
        QVERIFY(!image::turned(Picture(), 10).has_value());
        QVERIFY(!image::turned(Picture(), 90).has_value());
    }

    void picturesKeepTheirDensity_data()
    {
        QTest::addColumn<QSizeF>("points");
        QTest::addColumn<double>("degrees");
        QTest::addColumn<QSizeF>("turnedPoints");
        QTest::addColumn<QSize>("turnedPixels");
        const double root2 = std::sqrt(2.0);
        QTest::newRow("72 dpi") << QSizeF(100, 100) << 45.0 << QSizeF(100 * root2, 100 * root2) << QSize(141, 141);
        QTest::newRow("144 dpi") << QSizeF(50, 50) << 45.0 << QSizeF(50 * root2, 50 * root2) << QSize(141, 141);
        QTest::newRow("quarter") << QSizeF(50, 50) << 90.0 << QSizeF(50, 50) << QSize(100, 100);
        QTest::newRow("nearly a quarter") << QSizeF(50, 50) << 90.0000001 << QSizeF(50, 50) << QSize(100, 100);
        QTest::newRow("half") << QSizeF(24, 24) << 180.0 << QSizeF(24, 24) << QSize(100, 100);
        QTest::newRow("flat pixels") << QSizeF(100, 50) << 45.0 << QSizeF(75 * root2, 75 * root2) << QSize(212, 212);
        QTest::newRow("flat pixels, quarter") << QSizeF(100, 50) << 90.0 << QSizeF(50, 100) << QSize(100, 100);
    }

    void picturesKeepTheirDensity()
    {
        QFETCH(QSizeF, points);
        QFETCH(double, degrees);
        QFETCH(QSizeF, turnedPoints);
        QFETCH(QSize, turnedPixels);
        const auto turned = image::turned(Picture(unlikePixels(100, 100), points), degrees);
        QVERIFY(turned.has_value());
        QVERIFY(isNear(turned->size(), turnedPoints) || degrees == 90.0000001);
        QCOMPARE(turned->bitmap().size(), turnedPixels);
    }

    void picturesAreTransparentAround_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("rgb") << QImage::Format_RGB888;
        QTest::newRow("rgba") << QImage::Format_RGBA8888;
        QTest::newRow("grey") << QImage::Format_Grayscale8;
        QTest::newRow("rgb16") << QImage::Format_RGBX64;
        QTest::newRow("grey16") << QImage::Format_Grayscale16;
    }

    void picturesAreTransparentAround()
    {
        QFETCH(QImage::Format, format);
        const Bitmap white = Bitmap::fromImage(pictures::plain(50, 30, Qt::white, format));
        const Bitmap turned = image::turned(Picture(white), 30)->bitmap();
        QCOMPARE(turned.bitsPerComponent(), white.bitsPerComponent());
        for (const QPoint corner : {QPoint(0, 0), QPoint(turned.width() - 1, 0), QPoint(0, turned.height() - 1)})
            QCOMPARE(turned.pixel(corner.x(), corner.y())[3], 0);
        QCOMPARE(turned.pixel(turned.width() / 2, turned.height() / 2), (std::array<int, 4>{255, 255, 255, 255}));
    }
};

QUORLIN_TEST(TurnPicture)
#include "tst_turn_picture.moc"
