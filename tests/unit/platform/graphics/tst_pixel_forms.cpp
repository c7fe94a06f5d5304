// Pictures of unusual samples, which must come out of every writer as what they show.

#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"

#include "tests/support/raw_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>

using pictures::BmpKind;
using pictures::PsdKind;
using pictures::TiffKind;
using platform::Bitmap;
using platform::ColorModel;
using platform::FileFormat;
using platform::Forms;
using platform::ImageSource;
using platform::Result;
using Pixel = std::array<int, 4>;

Q_DECLARE_METATYPE(Pixel)

namespace {

constexpr int side = 16;

Bitmap decoded(const QByteArray &file, Forms forms = Forms::Plain)
{
    const Result<ImageSource> source = ImageSource::fromData(file);
    return source ? source->decode({.forms = forms}).value_or(Bitmap()) : Bitmap();
}

Bitmap through(const Bitmap &bitmap, FileFormat format, Forms forms = Forms::Plain)
{
    platform::EncodeOptions options;
    options.lossyQuality = 1;
    return decoded(platform::encodeImage(bitmap, format, options).value_or(QByteArray()), forms);
}

/** One pixel as often as a square picture has pixels. */
QByteArray flat(const QByteArray &pixel)
{
    return pixel.repeated(side * side);
}

QByteArray flatTiff(const TiffKind &kind, const QByteArray &pixel)
{
    return pictures::tiff(kind, side, side, flat(pixel));
}

/** Channels of a Photoshop file that are one value each. */
QByteArray flatPlanes(const QList<int> &values, int bits)
{
    QByteArray planes;
    for (const int value : values) {
        QByteArray sample;
        if (bits == 16)
            pictures::appendBig(sample, quint16(value));
        else
            sample.append(char(value));
        planes.append(sample.repeated(side * side));
    }
    return planes;
}

bool isNear(const Pixel &one, const Pixel &other, int tolerance)
{
    for (size_t part = 0; part < one.size(); ++part)
        if (std::abs(one[part] - other[part]) > tolerance)
            return false;
    return true;
}

QByteArray told(const Pixel &pixel)
{
    QStringList parts;
    for (const int part : pixel)
        parts << QString::number(part);
    return parts.join(u' ').toLatin1();
}

Pixel greyPixel(int value)
{
    return {value, value, value, 255};
}

void addPhotoshopFiles()
{
    QTest::newRow("PSD, grey") << pictures::psd({1, 8, 1, 0}, side, side, flatPlanes({200}, 8)) << greyPixel(200);
    QTest::newRow("PSD, deep grey") << pictures::psd({1, 16, 1, 0}, side, side, flatPlanes({51400}, 16))
                                    << greyPixel(200);
    QTest::newRow("PSD, duotone") << pictures::psd({8, 8, 1, 0}, side, side, flatPlanes({200}, 8)) << greyPixel(200);
    QTest::newRow("PSD, bits") << pictures::psd({0, 1, 1, 0}, side, side, QByteArray(side * side / 8, '\xFF'))
                               << greyPixel(0);
    QTest::newRow("PSD, runs") << pictures::psd({3, 8, 3, 0}, side, side, flatPlanes({200, 100, 50}, 8), true)
                               << Pixel{200, 100, 50, 255};
    QTest::newRow("PSB, runs") << pictures::psd({3, 8, 3, 0, true}, side, side, flatPlanes({200, 100, 50}, 8), true)
                               << Pixel{200, 100, 50, 255};
    QTest::newRow("PSD, RGB and a selection")
        << pictures::psd({3, 8, 4, 0}, side, side, flatPlanes({200, 100, 50, 0}, 8)) << Pixel{200, 100, 50, 255};
    QTest::newRow("PSD, CMYK, white") << pictures::psd({4, 8, 4, 0}, side, side, flatPlanes({255, 255, 255, 255}, 8))
                                      << greyPixel(255);
    QTest::newRow("PSD, deep CMYK, white")
        << pictures::psd({4, 16, 4, 0}, side, side, flatPlanes({65535, 65535, 65535, 65535}, 16)) << greyPixel(255);
}

void addBitmapFiles()
{
    const auto bmpRow = [](const QByteArray &pixel) { return pixel.repeated(side * side); };
    QTest::newRow("BMP, 5 bits") << pictures::bmp({16, 0, {}, {}}, side, side, bmpRow("\xFF\x7F")) << greyPixel(255);
    QTest::newRow("BMP, 5 and 6 bits") << pictures::bmp({16, 3, {0xF800, 0x07E0, 0x001F}, {}}, side, side,
                                                        bmpRow(QByteArray("\x10\x84", 2)))
                                       << Pixel{132, 130, 132, 255};
    QTest::newRow("BMP, 10 bits") << pictures::bmp({32, 3, {0x3FF00000, 0x000FFC00, 0x000003FF}, {}}, side, side,
                                                   bmpRow(pictures::packed<quint32>({0x3FF801FF})))
                                  << Pixel{255, 128, 127, 255};
    QTest::newRow("BMP, masks the other way round, from above")
        << pictures::bmp({32, 3, {0x000000FF, 0x0000FF00, 0x00FF0000}, {}}, side, -side,
                         bmpRow(QByteArray("\xC8\x64\x32\x00", 4)))
        << Pixel{200, 100, 50, 255};
}

} // namespace

class PixelForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsEverySampleInEveryTarget_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<Pixel>("pixel");
        const TiffKind greyFloat = {1, 32, 1, 3, {}};
        QTest::newRow("grey, float") << flatTiff(greyFloat, pictures::packed<float>({0.5F})) << greyPixel(128);
        QTest::newRow("grey, float above white")
            << flatTiff(greyFloat, pictures::packed<float>({1e30F})) << greyPixel(255);
        QTest::newRow("RGB, float") << flatTiff({2, 32, 3, 3, {}}, pictures::packed<float>({0.2F, 1, 0}))
                                    << Pixel{51, 255, 0, 255};
        QTest::newRow("grey, signed") << flatTiff({1, 16, 1, 2, {}}, pictures::packed<qint16>({-32768}))
                                      << greyPixel(0);
        QTest::newRow("grey, signed, light")
            << flatTiff({1, 16, 1, 2, {}}, pictures::packed<qint16>({32767})) << greyPixel(255);
        QTest::newRow("grey, signed bytes")
            << flatTiff({1, 8, 1, 2, {}}, pictures::packed<qint8>({0})) << greyPixel(128);
        QTest::newRow("grey, 32 bits") << flatTiff({1, 32, 1, 1, {}}, pictures::packed<quint32>({0x80808080}))
                                       << greyPixel(128);
        QTest::newRow("RGB and two selections")
            << flatTiff({2, 8, 5, 1, {0, 0}}, QByteArray("\xC8\x64\x32\x00\xFF", 5)) << Pixel{200, 100, 50, 255};
        QTest::newRow("RGB and a selection")
            << flatTiff({2, 8, 4, 1, {0}}, QByteArray("\xC8\x64\x32\x00", 4)) << Pixel{200, 100, 50, 255};
        QTest::newRow("RGB and a fourth sample of no meaning")
            << flatTiff({2, 8, 4, 1, {}}, QByteArray("\xC8\x64\x32\x00", 4)) << Pixel{200, 100, 50, 255};
        QTest::newRow("grey and a selection")
            << flatTiff({1, 8, 2, 1, {0}}, QByteArray("\xC8\x00", 2)) << greyPixel(200);
        QTest::newRow("grey and three selections")
            << flatTiff({1, 8, 4, 1, {0, 0, 0}}, QByteArray("\xC8\x00\x40\x80", 4)) << greyPixel(200);
        QTest::newRow("a selection, then transparency")
            << flatTiff({2, 8, 5, 1, {0, 2}}, QByteArray("\xC8\x64\x32\x07\xFF", 5)) << Pixel{200, 100, 50, 255};
        QTest::newRow("Lab") << flatTiff({8, 8, 3, 1, {}}, QByteArray("\xE8\xFD\x0B", 3)) << Pixel{232, 230, 208, 255};
        QTest::newRow("Lab, white") << flatTiff({8, 8, 3, 1, {}}, QByteArray("\xFF\x00\x00", 3)) << greyPixel(255);
        QTest::newRow("CMYK, 16 bits, white")
            << flatTiff({5, 16, 4, 1, {}}, pictures::packed<quint16>({0, 0, 0, 0})) << greyPixel(255);
        addPhotoshopFiles();
        addBitmapFiles();
    }

    void showsEverySampleInEveryTarget()
    {
        QFETCH(QByteArray, file);
        QFETCH(Pixel, pixel);
        for (const Forms forms : {Forms::Plain, Forms::AsTiffHolds}) {
            const Bitmap bitmap = decoded(file, forms);
            QVERIFY(!bitmap.isNull());
            const QImage screen = bitmap.toScreenImage();
            QCOMPARE(screen.size(), QSize(side, side));
            const QColor last = screen.pixelColor(side - 1, side - 1);
            QVERIFY2(isNear({last.red(), last.green(), last.blue(), last.alpha()}, pixel, 1), told(bitmap.pixel(3, 3)));
            for (const FileFormat format :
                 {FileFormat::Png, FileFormat::Tiff, FileFormat::Bmp, FileFormat::Jpeg, FileFormat::Gif}) {
                const Bitmap again = through(bitmap, format);
                const int tolerance = format == FileFormat::Jpeg ? 3 : 1;
                QVERIFY2(isNear(again.pixel(side - 1, side - 1), pixel, tolerance),
                         told(again.pixel(side - 1, side - 1)) + " in target " + QByteArray::number(int(format)));
                QVERIFY(!again.hasAlpha() || bitmap.hasAlpha() || format == FileFormat::Gif);
            }
        }
    }

    void keepsFromTiffToTiffWhatNoOtherTypeHolds_data()
    {
        QTest::addColumn<TiffKind>("kind");
        QTest::addColumn<QByteArray>("pixel");
        QTest::newRow("float") << TiffKind{2, 32, 3, 3, {}} << pictures::packed<float>({0.25F, 7.5F, -2});
        QTest::newRow("float and transparency")
            << TiffKind{2, 32, 4, 3, {2}} << pictures::packed<float>({0.25F, 7.5F, -2, 0.5F});
        QTest::newRow("selections") << TiffKind{2, 8, 5, 1, {0, 0}} << QByteArray("\xC8\x64\x32\x07\xFF", 5);
        QTest::newRow("grey and a selection") << TiffKind{1, 16, 2, 1, {0}} << QByteArray("\xC8\x64\x32\x07", 4);
        QTest::newRow("inks and transparency") << TiffKind{5, 8, 5, 1, {2}} << QByteArray("\x10\x64\x32\x07\x80", 5);
        QTest::newRow("Lab") << TiffKind{8, 8, 3, 1, {}} << QByteArray("\xC8\x10\xF0", 3);
        QTest::newRow("Lab and transparency") << TiffKind{8, 8, 4, 1, {2}} << QByteArray("\xC8\x10\xF0\x80", 4);
    }

    void keepsFromTiffToTiffWhatNoOtherTypeHolds()
    {
        QFETCH(TiffKind, kind);
        QFETCH(QByteArray, pixel);
        const Bitmap bitmap = decoded(flatTiff(kind, pixel), Forms::AsTiffHolds);
        QVERIFY(!bitmap.isNull());
        const QByteArray file = platform::encodeImage(bitmap, FileFormat::Tiff).value_or(QByteArray());
        constexpr qsizetype head = 8;
        const QByteArray pixels = file.mid(head, flat(pixel).size());
        if (kind.photometric == 8) // what the library makes of Lab on the way is one step off at most
            for (qsizetype at = 0; at < pixels.size(); ++at)
                QVERIFY2(std::abs(qint8(pixels[at] - pixel[at % pixel.size()])) <= 1, pixels.left(8).toHex());
        else
            QCOMPARE(pixels.left(64).toHex(), flat(pixel).left(64).toHex());
        const Bitmap again = decoded(file, Forms::AsTiffHolds);
        QCOMPARE(again.bandCount(), kind.samples);
        QCOMPARE(again.hasAlpha(), bitmap.hasAlpha());
        QCOMPARE(bitmap.hasAlpha(), kind.others.contains(2));
        QCOMPARE(int(again.colorModel()), int(bitmap.colorModel()));
    }

    void laysTransparencyOnTheSameGroundInEveryTarget_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("CMYK") << flatTiff({5, 8, 5, 1, {2}}, QByteArray("\x00\x00\x00\x00\x00", 5));
        QTest::newRow("deep CMYK") << flatTiff({5, 16, 5, 1, {2}}, QByteArray(10, '\0'));
        QTest::newRow("Lab") << flatTiff({8, 8, 4, 1, {2}}, QByteArray("\xFF\x00\x00\x00", 4));
        QTest::newRow("float") << flatTiff({2, 32, 4, 3, {2}}, pictures::packed<float>({1, 1, 1, 0}));
        QTest::newRow("RGB") << flatTiff({2, 16, 4, 1, {2}}, QByteArray("\xFF\xFF\xFF\xFF\xFF\xFF\x00\x00", 8));
        QTest::newRow("PSD") << pictures::psd({3, 8, 4, -1}, side, side, flatPlanes({255, 255, 255, 0}, 8));
        QTest::newRow("PSD, CMYK") << pictures::psd({4, 8, 5, -1}, side, side, flatPlanes({255, 255, 255, 255, 0}, 8));
    }

    void laysTransparencyOnTheSameGroundInEveryTarget()
    {
        QFETCH(QByteArray, file);
        const Bitmap bitmap = decoded(file);
        QVERIFY(bitmap.hasAlpha());
        for (const FileFormat format : {FileFormat::Jpeg, FileFormat::Bmp})
            QVERIFY2(isNear(through(bitmap, format).pixel(5, 5), {0, 0, 0, 255}, 1),
                     told(through(bitmap, format).pixel(5, 5)));
        for (const FileFormat format : {FileFormat::Png, FileFormat::Tiff, FileFormat::Gif})
            QCOMPARE(through(bitmap, format).pixel(5, 5)[3], 0);
    }

    void takesThePaperOutOfAPhotoshopPictureThatLiesOnIt()
    {
        // Half of black on white is what the file holds of black that is half there.
        const Bitmap bitmap = decoded(pictures::psd({3, 8, 4, -1}, side, side, flatPlanes({127, 127, 127, 128}, 8)));
        QVERIFY2(isNear(bitmap.pixel(2, 2), {0, 0, 0, 128}, 1), told(bitmap.pixel(2, 2)));
    }

    void readsRunsThatCopyJumpAndEnd()
    {
        const QList<quint32> palette = {0x000000, 0xFF0000, 0x00FF00, 0x0000FF};
        // The lowest row: colours 1 and 2 alternating, then three single ones; from there one to the right and one up.
        const QByteArray runs("\x03\x12\x00\x03\x31\x20\x00\x02\x01\x01\x01\x30\x00\x01", 14);
        const Bitmap bitmap = decoded(pictures::bmp({4, 2, {}, palette}, 8, 2, runs));
        QVERIFY(!bitmap.isNull());
        const QList<Pixel> below = {{255, 0, 0, 255}, {0, 255, 0, 255}, {255, 0, 0, 255},
                                    {0, 0, 255, 255}, {255, 0, 0, 255}, {0, 255, 0, 255}};
        for (int x = 0; x < below.size(); ++x)
            QCOMPARE(told(bitmap.pixel(x, 1)), told(below[x]));
        QCOMPARE(told(bitmap.pixel(7, 0)), told({0, 0, 255, 255}));
        QCOMPARE(told(bitmap.pixel(6, 0)), told({0, 0, 0, 255}));
    }

    void refusesWhatIsCutShort()
    {
        const QList<QByteArray> files = {
            pictures::psd({3, 8, 3, 0}, side, side, flatPlanes({200, 100, 50}, 8)),
            pictures::psd({3, 8, 3, 0}, side, side, flatPlanes({200, 100, 50}, 8), true),
            pictures::bmp({16, 0, {}, {}}, side, side, QByteArray(2 * side * side, '\x7F')),
            pictures::bmp({8, 1, {}, {0, 0xFFFFFF}}, side, side, QByteArray("\x10\x01\x00\x00", 4).repeated(side))};
        for (const QByteArray &file : files) {
            QVERIFY(!decoded(file).isNull());
            for (qsizetype length = 0; length < file.size() - 4; length += 1 + file.size() / 40)
                QVERIFY2(decoded(file.left(length)).isNull(), QByteArray::number(length));
        }
    }
};

Q_DECLARE_METATYPE(TiffKind)

QUORLIN_TEST(PixelForms)
#include "tst_pixel_forms.moc"
