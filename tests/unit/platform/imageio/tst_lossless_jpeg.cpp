#include "platform/file/atomic_file.h"
#include "platform/imageio/convert/lossless_turn.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/jpeg/jpeg_segments.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>

using platform::Bitmap;
using platform::ExactTurn;
using platform::ImageSource;

Q_DECLARE_METATYPE(platform::ExactTurn)

namespace {

struct NamedTurn
{
    const char *name;
    ExactTurn turn;
    ExactTurn back;
};

const NamedTurn allTurns[] = {{"none", ExactTurn::None, ExactTurn::None},
                              {"quarter", ExactTurn::Quarter, ExactTurn::ThreeQuarters},
                              {"half", ExactTurn::Half, ExactTurn::Half},
                              {"three quarters", ExactTurn::ThreeQuarters, ExactTurn::Quarter},
                              {"mirror across", ExactTurn::MirrorAcross, ExactTurn::MirrorAcross},
                              {"mirror down", ExactTurn::MirrorDown, ExactTurn::MirrorDown}};

QByteArray fixture(const char *name)
{
    return pictures::bytesOf(QStringLiteral(QUORLIN_TEST_DATA "/jpeg/") + QString::fromLatin1(name));
}

Bitmap stored(const QByteArray &file)
{
    platform::DecodeOptions options;
    options.orientation = platform::Orientation::AsStored;
    return ImageSource::fromData(file)
        .and_then([&](const ImageSource &source) { return source.decode(options); })
        .value_or(Bitmap());
}

std::optional<QByteArray> turnedFile(const QByteArray &file, ExactTurn turn)
{
    const auto source = ImageSource::fromData(file);
    return source ? turnedWithoutLoss(*source, turn) : std::nullopt;
}

/** The largest difference of a component. */
int difference(const Bitmap &first, const Bitmap &second)
{
    const QImage a = first.toRawImage().convertToFormat(QImage::Format_RGB32);
    const QImage b = second.toRawImage().convertToFormat(QImage::Format_RGB32);
    if (a.size() != b.size())
        return 256;
    int largest = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest = std::max(
                {largest, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
        }
    return largest;
}

} // namespace

class LosslessJpeg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void turnsEveryKindOfJpegAndBack_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<ExactTurn>("turn");
        QTest::addColumn<ExactTurn>("back");
        for (const char *name : {"sampled-444.jpg", "sampled-420.jpg", "sampled-422.jpg", "sampled-440.jpg",
                                 "sampled-411.jpg", "grey.jpg", "progressive.jpg", "restart-markers.jpg",
                                 "arithmetic.jpg", "rgb-without-conversion.jpg", "cmyk-adobe.jpg"})
            for (const NamedTurn &each : allTurns)
                if (QByteArray(name) != "sampled-411.jpg" || !platform::swapsSides(each.turn))
                    QTest::addRow("%s %s", name, each.name) << QByteArray(name) << each.turn << each.back;
    }

    void turnsEveryKindOfJpegAndBack()
    {
        QFETCH(QByteArray, name);
        QFETCH(ExactTurn, turn);
        QFETCH(ExactTurn, back);
        const QByteArray file = fixture(name.constData());
        const Bitmap before = stored(file);
        QVERIFY(!before.isNull());
        const auto turned = turnedFile(file, turn);
        QVERIFY(turned.has_value());
        const Bitmap after = stored(*turned);
        QCOMPARE(after.bandCount(), before.bandCount());
        QCOMPARE(after.colorModel(), before.colorModel());
        // The same coefficients; only the colours between two samples are worked out in another order.
        const Bitmap wanted = platform::turned(before, turn).value_or(Bitmap());
        constexpr int roundingOfColours = 3;
        QVERIFY2(difference(after, wanted) <= roundingOfColours,
                 qPrintable(QString::number(difference(after, wanted))));
        QCOMPARE(after.jpegQuantisation()->tables, wanted.jpegQuantisation()->tables);
        const auto again = turnedFile(*turned, back);
        QVERIFY(again.has_value());
        QCOMPARE(difference(stored(*again), before), 0);
    }

    void movesFullColoursExactly_data()
    {
        QTest::addColumn<ExactTurn>("turn");
        for (const NamedTurn &each : allTurns)
            if (!platform::swapsSides(each.turn))
                QTest::newRow(each.name) << each.turn;
    }

    void movesFullColoursExactly()
    {
        QFETCH(ExactTurn, turn);
        const QByteArray file = fixture("sampled-444.jpg");
        QCOMPARE(difference(stored(*turnedFile(file, turn)), platform::turned(stored(file), turn).value_or(Bitmap())),
                 0);
    }

    void comesBackToTheSameBytes()
    {
        const QByteArray once = turnedFile(fixture("sampled-420.jpg"), ExactTurn::None).value_or(QByteArray());
        QByteArray file = once;
        for (int quarter = 0; quarter < 4; ++quarter)
            file = turnedFile(file, ExactTurn::Quarter).value_or(QByteArray());
        QVERIFY(!file.isEmpty());
        QCOMPARE(file, once);
    }

    void staysProgressive()
    {
        const auto turned = turnedFile(fixture("progressive.jpg"), ExactTurn::Half);
        QVERIFY(turned && platform::findJpegSegments(*turned).isProgressive);
        const auto baseline = turnedFile(fixture("sampled-420.jpg"), ExactTurn::Half);
        QVERIFY(baseline && !platform::findJpegSegments(*baseline).isProgressive);
    }

    void refusesSidesThatAreNotWholeBlocks()
    {
        const QByteArray odd = fixture("odd-size.jpg");
        for (const NamedTurn &each : allTurns)
            QCOMPARE(turnedFile(odd, each.turn).has_value(), each.turn == ExactTurn::None);
    }

    /** Only the side that is mirrored must be whole: for a quarter to the left that is the width. */
    void needsOnlyTheSideThatIsMirrored()
    {
        platform::EncodeOptions halfQuality;
        halfQuality.lossyQuality = 0.5; // blocks of 16 by 16
        const auto file = platform::encodeImage(Bitmap::fromImage(pictures::gradient(64, 40)),
                                                platform::FileFormat::Jpeg, halfQuality);
        QVERIFY(file.has_value());
        const QList<ExactTurn> possible = {ExactTurn::None, ExactTurn::Quarter, ExactTurn::MirrorAcross};
        for (const NamedTurn &each : allTurns)
            QCOMPARE(turnedFile(*file, each.turn).has_value(), possible.contains(each.turn));
    }

    void refusesWhatItCannotDoExactly_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("unusual sampling") << fixture("sampled-3x1.jpg");
        QByteArray cut = fixture("sampled-420.jpg");
        cut = cut.left(cut.size() / 2) + QByteArray("\xff\xd9", 2);
        QTest::newRow("damaged") << cut;
        QTest::newRow("no picture") << QByteArray("not a picture");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("another kind") << *platform::encodeImage(Bitmap::fromImage(pictures::gradient(16, 16)),
                                                                platform::FileFormat::Png);
        QByteArray huge = fixture("sampled-444.jpg");
        const qsizetype frame = huge.indexOf(QByteArray("\xff\xc0", 2));
        huge.replace(frame + 5, 4, QByteArray("\xff\xf8\xff\xf8", 4));
        QTest::newRow("claims billions of pixels") << huge;
    }

    void refusesWhatItCannotDoExactly()
    {
        QFETCH(QByteArray, file);
        for (const NamedTurn &each : allTurns)
            QVERIFY(!turnedFile(file, each.turn).has_value());
    }

    /** The result would be a file that many programs cannot read. */
    void leavesWideColoursOnTheirSide()
    {
        for (const NamedTurn &each : allTurns)
            QCOMPARE(turnedFile(fixture("sampled-411.jpg"), each.turn).has_value(), !platform::swapsSides(each.turn));
    }

    void swapsTheDensity()
    {
        QByteArray file = fixture("sampled-420.jpg");
        file.replace(13, 5, QByteArray("\x01\x01\x2c\x00\x96", 5)); // 300 by 150 to the inch
        const Bitmap across = stored(*turnedFile(file, ExactTurn::Half));
        QCOMPARE(QSizeF(across.horizontalDpi(), across.verticalDpi()), QSizeF(300, 150));
        const Bitmap onItsSide = stored(*turnedFile(file, ExactTurn::Quarter));
        QCOMPARE(QSizeF(onItsSide.horizontalDpi(), onItsSide.verticalDpi()), QSizeF(150, 300));
    }

    void dropsWhatShowsOrPointsToTheOldFile()
    {
        QByteArray file = fixture("sampled-420.jpg");
        const QByteArray index = QByteArray("\xff\xe2\x00\x0aMPF\0ABCD", 12);
        const QByteArray small = QByteArray("\xff\xe0\x00\x0aJFXX\0\x10zz", 12);
        const QByteArray comment = QByteArray("\xff\xfe\x00\x07Hello", 9);
        file.insert(20, small + index + comment);
        const QByteArray turned = turnedFile(file, ExactTurn::MirrorDown).value_or(QByteArray());
        QVERIFY(turned.contains("Hello"));
        QVERIFY(!turned.contains("MPF"));
        QVERIFY(!turned.contains("JFXX"));
        QVERIFY(!stored(turned).isNull());
    }

    void carriesMetadataAndProfile_data()
    {
        QTest::addColumn<QString>("path");
        for (const expected::Row &row : expected::rows())
            if (row.format == QLatin1String("JPEG") && row.isDecodable && !row.name.contains(QLatin1String("broken/")))
                QTest::newRow(qPrintable(row.name)) << row.path;
    }

    void carriesMetadataAndProfile()
    {
        QFETCH(QString, path);
        const auto source = ImageSource::open(path);
        if (!source)
            QSKIP("refused when it is opened");
        for (const NamedTurn &each : allTurns) {
            const auto turned = turnedWithoutLoss(*source, each.turn);
            if (!turned)
                continue;
            const auto result = ImageSource::fromData(*turned);
            QVERIFY(result.has_value());
            const bool swaps = platform::swapsSides(each.turn);
            const QSize size = swaps ? source->storedSize().transposed() : source->storedSize();
            QCOMPARE(result->storedSize(), size);
            QCOMPARE(result->orientation(), source->orientation());
            QCOMPARE(stored(*turned).iccProfile(), stored(pictures::bytesOf(path)).iccProfile());
            const QVariantMap before = source->metadata()->toProperties();
            const QVariantMap after = result->metadata()->toProperties();
            QVariantMap tiff = before.value(QStringLiteral("{TIFF}")).toMap();
            tiff.remove(QStringLiteral("Compression")); // of the old file's pixels, and wrong in any JPEG
            tiff.remove(QStringLiteral("PhotometricInterpretation"));
            QCOMPARE(after.value(QStringLiteral("{TIFF}")).toMap(), tiff);
            for (const char *group : {"{GPS}", "{IPTC}"})
                QCOMPARE(after.value(QLatin1String(group)), before.value(QLatin1String(group)));
            const QVariantMap exif = after.value(QStringLiteral("{Exif}")).toMap();
            if (exif.contains(QStringLiteral("PixelXDimension"))) {
                QCOMPARE(exif.value(QStringLiteral("PixelXDimension")).toInt(), size.width());
                QCOMPARE(exif.value(QStringLiteral("PixelYDimension")).toInt(), size.height());
            }
        }
    }
};

QUORLIN_TEST(LosslessJpeg)
#include "tst_lossless_jpeg.moc"
