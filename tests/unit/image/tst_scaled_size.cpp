#include "image/scaled_size.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <limits>

namespace {
constexpr qint32 noNumber = std::numeric_limits<qint32>::min();
}

class ScaledSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scalesByOneNumber_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::addColumn<quint32>("mode");
        QTest::addColumn<QSizeF>("source");
        QTest::addColumn<QSize>("result");
        QTest::addColumn<double>("factor");
        const QSizeF wide(4000, 3000);
        const QSizeF tall(3000, 4000);
        QTest::newRow("width") << 1000U << 0U << wide << QSize(1000, 750) << 25.0;
        QTest::newRow("height") << 1000U << 1U << wide << QSize(1333, 1000) << 100000 / 3000.0;
        QTest::newRow("longest side of a wide one") << 1000U << 2U << wide << QSize(1000, 750) << 25.0;
        QTest::newRow("longest side of a tall one") << 1000U << 2U << tall << QSize(750, 1000) << 25.0;
        QTest::newRow("longest side of a square takes the height")
            << 800U << 2U << QSizeF(3000, 3000) << QSize(800, 800) << 80000 / 3000.0;
        QTest::newRow("per cent") << 25U << 3U << wide << QSize(1000, 750) << -1.0;
        QTest::newRow("per cent cuts fractions off") << 33U << 3U << QSizeF(101, 99) << QSize(33, 32) << -1.0;
        QTest::newRow("enlarges without limit") << 8000U << 0U << wide << QSize(8000, 6000) << 200.0;
        QTest::newRow("zero") << 0U << 0U << wide << QSize(0, 0) << 0.0;
        QTest::newRow("the hundredfold wraps in 32 bits")
            << 42949673U << 0U << wide << QSize(42949673, 0) << 4.0 / 4000.0;
        QTest::newRow("largest number") << 4294967295U << 0U << wide << QSize(-1, 32212253) << 4294967196.0 / 4000.0;
        QTest::newRow("largest per cent is not wrapped")
            << 4294967295U << 3U << QSizeF(10, 20) << QSize(429496729, 858993459) << -1.0;
    }

    void scalesByOneNumber()
    {
        QFETCH(quint32, number);
        QFETCH(quint32, mode);
        QFETCH(QSizeF, source);
        QFETCH(QSize, result);
        QFETCH(double, factor);
        const auto size = image::scaledSize(number, mode, source.width(), source.height());
        QVERIFY(size.has_value());
        QCOMPARE(QSize(size->width, size->height), result);
        QCOMPARE(size->scaleFactor.has_value(), factor >= 0);
        if (size->scaleFactor)
            QCOMPARE(*size->scaleFactor, factor);
    }

    void modesFromFourOnNameNoRule()
    {
        QVERIFY(!image::scaledSize(10, 4, 100, 100));
        QVERIFY(!image::scaledSize(10, 4294967295U, 100, 100));
    }

    void survivesAPictureWithoutSize()
    {
        const auto byWidth = image::scaledSize(100, 0, 0, 0);
        QCOMPARE(byWidth->width, 100);
        QCOMPARE(byWidth->height, noNumber);
        const auto longest = image::scaledSize(100, 2, 0, 0);
        QCOMPARE(longest->height, 100);
        QCOMPARE(longest->width, noNumber);
        const auto perCent = image::scaledSize(100, 3, 0, 0);
        QCOMPARE(QSize(perCent->width, perCent->height), QSize(0, 0));
    }

    void fillsABox_data()
    {
        QTest::addColumn<quint32>("boxWidth");
        QTest::addColumn<quint32>("boxHeight");
        QTest::addColumn<QSizeF>("source");
        QTest::addColumn<QSize>("drawn");
        QTest::addColumn<QPoint>("offset");
        QTest::newRow("square box on a wide picture")
            << 1000U << 1000U << QSizeF(4000, 3000) << QSize(1333, 1000) << QPoint(166, 0);
        QTest::newRow("square box on a tall picture")
            << 1000U << 1000U << QSizeF(3000, 4000) << QSize(1000, 1333) << QPoint(0, 166);
        QTest::newRow("a tie takes the width")
            << 1000U << 750U << QSizeF(4000, 3000) << QSize(1000, 750) << QPoint(0, 0);
        QTest::newRow("odd excess") << 100U << 100U << QSizeF(103, 100) << QSize(103, 100) << QPoint(1, 0);
        QTest::newRow("a drawn side that truncates below the box")
            << 1000U << 1000U << QSizeF(74, 74) << QSize(1000, 999) << QPoint(0, 0);
    }

    void fillsABox()
    {
        QFETCH(quint32, boxWidth);
        QFETCH(quint32, boxHeight);
        QFETCH(QSizeF, source);
        const image::FilledBox box = image::filledBox(boxWidth, boxHeight, source.width(), source.height());
        QTEST(QSize(box.drawn.width, box.drawn.height), "drawn");
        QTEST(box.offset, "offset");
    }

    void truncatesTowardZero()
    {
        QCOMPARE(image::truncated(2.999), 2);
        QCOMPARE(image::truncated(-2.999), -2);
        QCOMPARE(image::truncated(2147483647.5), 2147483647);
        QCOMPARE(image::truncated(2147483648.0), noNumber);
        QCOMPARE(image::truncated(-2147483648.5), noNumber);
        QCOMPARE(image::truncated(std::numeric_limits<double>::quiet_NaN()), noNumber);
        QCOMPARE(image::truncated(std::numeric_limits<double>::infinity()), noNumber);
    }
};

QUORLIN_TEST(ScaledSizes)
#include "tst_scaled_size.moc"
