#include "image/overlay.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>

using platform::Bitmap;
using platform::Picture;

using Pixel = std::array<int, 4>;

namespace {

const Pixel white = {255, 255, 255, 255};

Pixel opaque(Pixel pixel)
{
    pixel[3] = 255;
    return pixel;
}

/** 100 x 80 pixels at a number of dots per inch. */
Picture pictureAt(double dpi, QSize size = {100, 80})
{
    return Picture(Bitmap::fromImage(pictures::gradient(size.width(), size.height())), QSizeF(size) * 72 / dpi);
}

} // namespace

/** Pictures on colours, on patterns and in frames. */
class Overlay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mixesByTransparency_data();
    void mixesByTransparency();
    void keepsSixteenBits();
    void leavesOpaquePicturesAsTheyAre();
    void laysColoredPicturesOnGreyPatterns();
    void repeatsThePatternFromTheTopLeft();
    void keepsTheTransparencyOfThePattern();
    void mixesDepthsOfPictureAndPattern();
    void framesWithTenWhitePixels();
    void drawsDensePicturesAtTheirPointSize();
    void cutsCoarsePictures();
    void framesTransparentPicturesOnWhite();
    void framesKeepDepthAndGrey();
    void framesNothingForNothing();
};

void Overlay::mixesByTransparency_data()
{
    QTest::addColumn<int>("alpha");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("shown");
    const QColor color(100, 0, 250, 3);
    QTest::newRow("transparent") << 0 << color << QColor(100, 0, 250);
    QTest::newRow("opaque") << 255 << color << QColor(200, 100, 0);
    QTest::newRow("a fifth") << 51 << color << QColor(120, 20, 200);
    QTest::newRow("half on black") << 128 << QColor(Qt::black) << QColor(100, 50, 0);
}

void Overlay::mixesByTransparency()
{
    QFETCH(int, alpha);
    QFETCH(QColor, color);
    QFETCH(QColor, shown);
    const Bitmap source = Bitmap::fromImage(pictures::plain(30, 20, QColor(200, 100, 0, alpha)));
    const auto laid = image::laidOnColor(source, color);
    QVERIFY(laid);
    QVERIFY(!laid->hasAlpha());
    QCOMPARE(laid->pixel(29, 19), (Pixel{shown.red(), shown.green(), shown.blue(), 255}));
}

void Overlay::keepsSixteenBits()
{
    QImage image(4, 4, QImage::Format_RGBA64);
    image.fill(QColor::fromRgba64(0x1234, 0x5678, 0x9abc, 0x8000));
    const auto laid = image::laidOnColor(Bitmap::fromImage(image), QColor(255, 0, 1));
    QVERIFY(laid);
    QCOMPARE(laid->bitsPerComponent(), 16);
    const QRgba64 pixel = laid->toRawImage().pixelColor(1, 1).rgba64();
    const auto mixed = [](int over, int under) { return qRound((over * 32768.0 + under * 32767.0) / 65535.0); };
    QCOMPARE(int(pixel.red()), mixed(0x1234, 65535));
    QCOMPARE(int(pixel.green()), mixed(0x5678, 0));
    QCOMPARE(int(pixel.blue()), mixed(0x9abc, 257));
}

void Overlay::leavesOpaquePicturesAsTheyAre()
{
    const Bitmap source = Bitmap::fromImage(pictures::gradient(20, 20));
    const auto laid = image::laidOnColor(source, Qt::red);
    QVERIFY(laid);
    QVERIFY(*laid == source);
    const auto patterned = image::laidOnPattern(source, Bitmap::fromImage(pictures::plain(2, 2, Qt::red)));
    QVERIFY(patterned);
    QVERIFY(*patterned == source);
}

void Overlay::laysColoredPicturesOnGreyPatterns()
{
    const Bitmap grey = Bitmap::fromImage(pictures::gradient(20, 20).convertToFormat(QImage::Format_Grayscale8));
    const auto tile = image::laidOnPattern(Bitmap::fromImage(pictures::plain(8, 8, QColor(9, 9, 9, 0))), grey);
    QVERIFY(tile);
    QCOMPARE(tile->pixel(3, 5), opaque(grey.pixel(3, 5)));
    QCOMPARE(tile->colorModel(), platform::ColorModel::Rgb);
}

void Overlay::repeatsThePatternFromTheTopLeft()
{
    QImage source = pictures::plain(23, 17, QColor(0, 0, 0, 0));
    source.setPixelColor(5, 5, QColor(200, 100, 50));
    const Bitmap tile = Bitmap::fromImage(pictures::gradient(7, 5));
    const auto laid = image::laidOnPattern(Bitmap::fromImage(source), tile);
    QVERIFY(laid);
    QVERIFY(!laid->hasAlpha());
    for (int y = 0; y < 17; ++y)
        for (int x = 0; x < 23; ++x) {
            const bool isOwn = x == 5 && y == 5;
            QCOMPARE(laid->pixel(x, y), isOwn ? Pixel({200, 100, 50, 255}) : opaque(tile.pixel(x % 7, y % 5)));
        }
    const auto larger = image::laidOnPattern(Bitmap::fromImage(source), Bitmap::fromImage(pictures::gradient(90, 90)));
    QVERIFY(larger);
    QCOMPARE(larger->pixel(22, 16), (Pixel{22, 16, 38, 255}));
}

void Overlay::keepsTheTransparencyOfThePattern()
{
    const Bitmap source = Bitmap::fromImage(pictures::plain(8, 8, QColor(255, 0, 0, 51)));
    QImage pattern = pictures::plain(2, 1, QColor(0, 0, 255, 0));
    pattern.setPixelColor(1, 0, QColor(0, 0, 255, 102));
    const auto laid = image::laidOnPattern(source, Bitmap::fromImage(pattern));
    QVERIFY(laid);
    QCOMPARE(laid->pixel(0, 0), (Pixel{255, 0, 0, 51}));
    // 0.2 of red over 0.4 of blue: 0.2 and 0.32 of 0.52.
    const Pixel mixed = laid->pixel(1, 0);
    QCOMPARE(mixed[3], 133);
    QVERIFY(std::abs(mixed[0] - 98) <= 1 && mixed[1] == 0 && std::abs(mixed[2] - 157) <= 1);
}

void Overlay::mixesDepthsOfPictureAndPattern()
{
    QImage deep(4, 4, QImage::Format_RGBA64);
    deep.fill(QColor::fromRgba64(0, 0, 0, 0));
    const Bitmap tile = Bitmap::fromImage(pictures::plain(1, 1, QColor(1, 128, 255), QImage::Format_RGB888));
    const auto laid = image::laidOnPattern(Bitmap::fromImage(deep), tile);
    QVERIFY(laid);
    QCOMPARE(laid->toRawImage().pixelColor(2, 2).rgba64(), QRgba64::fromRgba64(257, 128 * 257, 65535, 65535));
    QImage deepTile(1, 1, QImage::Format_RGBX64);
    deepTile.fill(QColor::fromRgba64(0x0180, 0x8080, 0xffff));
    const auto flat =
        image::laidOnPattern(Bitmap::fromImage(pictures::plain(4, 4, QColor(0, 0, 0, 0))), Bitmap::fromImage(deepTile));
    QVERIFY(flat);
    QCOMPARE(flat->bitsPerComponent(), 8);
    QCOMPARE(flat->pixel(0, 0), (Pixel{1, 128, 255, 255}));
}

void Overlay::framesWithTenWhitePixels()
{
    const Picture source = pictureAt(72);
    const Picture framed = image::withWhiteFrame(source);
    QCOMPARE(framed.size(), QSizeF(120, 100));
    QCOMPARE(framed.bitmap().size(), QSize(120, 100));
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 120; ++x) {
            const bool isFrame = x < 10 || x >= 110 || y < 10 || y >= 90;
            QCOMPARE(framed.bitmap().pixel(x, y), isFrame ? white : opaque(source.bitmap().pixel(x - 10, y - 10)));
        }
}

void Overlay::drawsDensePicturesAtTheirPointSize()
{
    const Picture source(Bitmap::fromImage(pictures::plain(100, 80, Qt::red, QImage::Format_RGB888)), QSizeF(24, 19.2));
    const Picture framed = image::withWhiteFrame(source);
    QCOMPARE(framed.size(), QSizeF(120, 100));
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 120; ++x) {
            const bool isRed = x >= 10 && x < 34 && y >= 100 - 10 - 19 && y < 90;
            QCOMPARE(framed.bitmap().pixel(x, y), isRed ? Pixel({255, 0, 0, 255}) : white);
        }
}

void Overlay::cutsCoarsePictures()
{
    for (const double dpi : {36.0, 1.0, 0.001}) {
        const Picture source(Bitmap::fromImage(pictures::plain(100, 80, Qt::red, QImage::Format_RGB888)),
                             QSizeF(100, 80) * 72 / dpi);
        const Picture framed = image::withWhiteFrame(source);
        QCOMPARE(framed.bitmap().size(), QSize(120, 100));
        QCOMPARE(framed.bitmap().pixel(119, 0), (Pixel{255, 0, 0, 255}));
        QCOMPARE(framed.bitmap().pixel(10, 89), (Pixel{255, 0, 0, 255}));
        QCOMPARE(framed.bitmap().pixel(9, 89), white);
        QCOMPARE(framed.bitmap().pixel(10, 90), white);
    }
    // What is seen is the picture's own bottom left corner.
    const Picture framed = image::withWhiteFrame(pictureAt(36));
    const Pixel corner = framed.bitmap().pixel(12, 87);
    QVERIFY(corner[0] <= 2 && std::abs(corner[1] - 78) <= 2);
}

void Overlay::framesTransparentPicturesOnWhite()
{
    const Picture source(Bitmap::fromImage(pictures::plain(10, 10, QColor(255, 0, 0, 51))));
    const Picture framed = image::withWhiteFrame(source);
    QVERIFY(!framed.bitmap().hasAlpha());
    QCOMPARE(framed.bitmap().pixel(15, 15), (Pixel{255, 204, 204, 255}));
    QCOMPARE(framed.bitmap().pixel(0, 0), white);
}

void Overlay::framesKeepDepthAndGrey()
{
    QImage image(10, 10, QImage::Format_Grayscale16);
    image.fill(QColor::fromRgba64(0x1234, 0x1234, 0x1234));
    const Picture framed = image::withWhiteFrame(Picture(Bitmap::fromImage(image), QSizeF(10, 10)));
    QCOMPARE(framed.bitmap().bitsPerComponent(), 16);
    QCOMPARE(framed.bitmap().bandCount(), 1);
    QCOMPARE(framed.bitmap().pixel(0, 0), white);
}

void Overlay::framesNothingForNothing()
{
    QVERIFY(image::withWhiteFrame(Picture()).isNull());
    QVERIFY(!image::laidOnColor(Bitmap(), Qt::red));
    QVERIFY(!image::laidOnPattern(Bitmap(), Bitmap()));
    QVERIFY(!image::laidOnPattern(Bitmap::fromImage(pictures::gradient(2, 2)), Bitmap()));
}

QUORLIN_TEST(Overlay)
#include "tst_overlay.moc"
