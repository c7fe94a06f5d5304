#include "platform/imageio/source/image_source.h"
#include "tests/support/corpus.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/test_program.h"

#include <QRandomGenerator>
#include <QTest>

using platform::Bitmap;
using platform::ErrorCode;
using platform::ImageSource;

/** Parts of pictures, decoded without the rest. */
class DecodePart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTheSamePartOfTheWhole_data()
    {
        QTest::addColumn<QString>("path");
        for (const char *folder : {"formats/", "orientation/", "dpi/"})
            for (const expected::Row &row : expected::rows(QString::fromLatin1(folder)))
                if (row.isDecodable)
                    QTest::newRow(qPrintable(row.name)) << row.path;
    }

    void isTheSamePartOfTheWhole()
    {
        QFETCH(QString, path);
        const auto source = ImageSource::open(path);
        const auto whole = source ? source->decode() : platform::Result<Bitmap>(Bitmap());
        if (!whole || whole->isNull())
            QSKIP("not a picture that can be decoded");
        const QImage pixels = whole->toRawImage();
        QRandomGenerator random(5);
        for (int round = 0; round < 3; ++round) {
            const QRect part = QRect(random.bounded(pixels.width()), random.bounded(pixels.height()),
                                     1 + random.bounded(pixels.width()), 1 + random.bounded(pixels.height()));
            const auto decoded = source->decodePart(part);
            QVERIFY2(decoded, decoded ? "" : qPrintable(decoded.error().message));
            QCOMPARE(decoded->toRawImage(), pixels.copy(part.intersected(pixels.rect())));
            QCOMPARE(decoded->horizontalDpi(), whole->horizontalDpi());
            QCOMPARE(decoded->iccProfile(), whole->iccProfile());
        }
        const auto corner = source->decodePart(QRect(pixels.width() - 1, pixels.height() - 1, 1, 1));
        QVERIFY(corner);
        QCOMPARE(corner->pixel(0, 0), whole->pixel(pixels.width() - 1, pixels.height() - 1));
    }

    void isTheWholeForALargerPart()
    {
        const auto source = ImageSource::open(picturePath("own/dpi/jfif-72dpi.jpg"));
        QVERIFY(source);
        const auto part = source->decodePart(QRect(-100, -100, 2000, 2000));
        QVERIFY(part);
        QCOMPARE(part->toRawImage(), source->decode()->toRawImage());
    }

    void failsWhereNothingIsLeft()
    {
        const auto source = ImageSource::open(picturePath("own/dpi/jfif-72dpi.jpg"));
        QVERIFY(source);
        for (const QRect &part : {QRect(), QRect(200, 0, 10, 10), QRect(0, -10, 10, 10), QRect(5, 5, 0, 3)}) {
            const auto decoded = source->decodePart(part);
            QVERIFY(!decoded);
            QCOMPARE(decoded.error().code, ErrorCode::InvalidValue);
        }
        QVERIFY(!ImageSource().decodePart(QRect(0, 0, 1, 1)));
    }
};

QUORLIN_TEST(DecodePart)
#include "tst_decode_part.moc"
