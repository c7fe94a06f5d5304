#include "platform/graphics/turn.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>

using platform::Bitmap;
using platform::FreeTurn;

namespace {

/** Contrasts of all kinds, strong ones too, and not the same anywhere. */
QImage lively(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB888);
    quint32 state = 7;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            state = state * 1664525 + 1013904223;
            const bool isNoise = (x / 8 + y / 8) % 2 == 0;
            image.setPixel(x, y, isNoise ? (state >> 8) | 0xff000000U : qRgb(255 * (x / 4 % 2), 4 * y % 256, 128));
        }
    return image;
}

FreeTurn turnOf(double degrees, QSize canvas)
{
    FreeTurn turn;
    turn.degrees = degrees;
    turn.canvas = canvas;
    turn.centre = QPointF(canvas.width() / 2.0, canvas.height() / 2.0);
    return turn;
}

/** The largest difference, in 8 bits, of two pictures that may differ in depth, grey or colour, and alpha. */
int difference(const Bitmap &first, const Bitmap &second)
{
    int largest = 0;
    for (int y = 0; y < first.height(); ++y)
        for (int x = 0; x < first.width(); ++x)
            for (size_t part = 0; part < 3; ++part)
                largest = std::max(largest, std::abs(first.pixel(x, y)[part] - second.pixel(x, y)[part]));
    return largest;
}

} // namespace

class FreeTurns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /** The code for 8 bit RGB and the code for all else draw the same. */
    void givesTheSameInEveryDepth_data()
    {
        QTest::addColumn<double>("degrees");
        for (const double degrees : {0.3, 7.5, 44.0, 90.5, 181.0, -3.0, 271.3})
            QTest::addRow("%g", degrees) << degrees;
    }

    void givesTheSameInEveryDepth()
    {
        QFETCH(double, degrees);
        const QImage image = lively(90, 70);
        const QSize canvas(130, 120);
        const FreeTurn turn = turnOf(degrees, canvas);
        const Bitmap shallow = platform::turned(Bitmap::fromImage(image), turn).value_or(Bitmap());
        QCOMPARE(shallow.size(), canvas);
        const QImage deepImage = image.convertToFormat(QImage::Format_RGBX64);
        const Bitmap deep = platform::turned(Bitmap::fromImage(deepImage), turn).value_or(Bitmap());
        QCOMPARE(deep.bitsPerComponent(), 16);
        QVERIFY2(difference(shallow, deep) <= 1, qPrintable(QString::number(difference(shallow, deep))));
    }

    /** A picture that hides everything loses nothing of its colours by being able to be transparent. */
    void givesTheSameColoursWithAlpha()
    {
        const QImage image = lively(90, 70);
        FreeTurn turn = turnOf(20, QSize(120, 110));
        turn.surroundings = platform::Surroundings::Transparent;
        const Bitmap without = platform::turned(Bitmap::fromImage(image), turn).value_or(Bitmap());
        const Bitmap with = platform::turned(Bitmap::fromImage(image.convertToFormat(QImage::Format_RGBA8888)), turn)
                                .value_or(Bitmap());
        QCOMPARE(with.bandCount(), 4);
        QCOMPARE(without.bandCount(), 4);
        for (int y = 0; y < 110; ++y)
            for (int x = 0; x < 120; ++x)
                QCOMPARE(with.pixel(x, y)[3], without.pixel(x, y)[3]);
        QVERIFY2(difference(without, with) <= 1, qPrintable(QString::number(difference(without, with))));
    }

    /** Wherever the picture is on the canvas, and however little of it: nothing outside it is read. */
    void drawsAnyPartOfAnySize_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize size :
             {QSize(1, 1), QSize(2, 1), QSize(1, 7), QSize(3, 3), QSize(4, 4), QSize(5, 4), QSize(17, 2)})
            QTest::addRow("%dx%d", size.width(), size.height()) << size;
    }

    void drawsAnyPartOfAnySize()
    {
        QFETCH(QSize, size);
        const Bitmap grey =
            Bitmap::fromImage(pictures::plain(size.width(), size.height(), QColor(90, 90, 90), QImage::Format_RGB888));
        for (const double degrees : {0.5, 30.0, 45.0, 100.0, 200.0, 359.9})
            for (const QPointF centre : {QPointF(15, 15), QPointF(0, 0), QPointF(30, 7.5), QPointF(-40, 3)}) {
                FreeTurn turn = turnOf(degrees, QSize(30, 30));
                turn.centre = centre;
                const Bitmap turned = platform::turned(grey, turn).value_or(Bitmap());
                double seen = 0;
                for (int y = 0; y < 30; ++y)
                    for (int x = 0; x < 30; ++x) {
                        QVERIFY(turned.pixel(x, y)[0] <= 90);
                        seen += turned.pixel(x, y)[0] / 90.0;
                    }
                if (centre == QPointF(-40, 3))
                    QCOMPARE(seen, 0.0);
                if (centre == QPointF(15, 15)) // as much is visible as exists; edges are quantised in steps
                    QVERIFY2(std::abs(seen - size.width() * size.height()) < 0.35 * (size.width() + size.height()),
                             qPrintable(QString::number(seen)));
            }
    }
};

QUORLIN_TEST(FreeTurns)
#include "tst_free_turn.moc"
