#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using platform::Bitmap;
using platform::ImageSource;

namespace {

QByteArray big16(int number)
{
    QByteArray bytes(2, '\0');
    qToBigEndian(quint16(number), bytes.data());
    return bytes;
}

QByteArray box(const char *name, const QByteArray &data)
{
    QByteArray size(4, '\0');
    qToBigEndian(quint32(8 + data.size()), size.data());
    return size + name + data;
}

/** The contents of a colour box that names one of the known spaces. */
QByteArray knownSpace(int number)
{
    return QByteArray("\1\0\0\0\0", 5) + big16(number);
}

QColor colourAt(const Bitmap &bitmap, int x, int y)
{
    const auto pixel = bitmap.pixel(x, y);
    return {pixel[0], pixel[1], pixel[2], pixel[3]};
}

} // namespace

/** JPEG 2000 files whose pixels need more than their codestream to be understood. */
class TestJpeg2000 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_folder.isValid()); }
    void expandsAPalette();
    void refusesAPaletteThatContradictsThePicture_data();
    void refusesAPaletteThatContradictsThePicture();
    void convertsColours_data();
    void convertsColours();
    void takesTransparencyWhereItIsStated();
    void scalesFewBitsToTheFullRange();
    void enlargesSmallerComponents();
    void keepsFlatColours_data();
    void keepsFlatColours();

private:
    QString at(const QString &name) const { return m_folder.filePath(name); }
    /** A codestream without loss of @p components planes, each of one value and 8 bits. */
    QByteArray flatCodestream(const QList<int> &values, const QString &options = {});
    QByteArray codestreamOf(const QByteArray &samples, const QString &form, const QString &options = {});
    static QByteArray file(const QByteArray &codestream, int components, const QByteArray &boxes);

    QTemporaryDir m_folder;
};

QByteArray TestJpeg2000::codestreamOf(const QByteArray &samples, const QString &form, const QString &options)
{
    QFile raw(at(QStringLiteral("a.raw")));
    if (!raw.open(QIODevice::WriteOnly) || raw.write(samples) != samples.size())
        return {};
    raw.close();
    QStringList arguments = {QStringLiteral("-i"), raw.fileName(), QStringLiteral("-o"), at(QStringLiteral("a.j2k")),
                             QStringLiteral("-F"), form,           QStringLiteral("-n"), QStringLiteral("2")};
    arguments += options.split(u' ', Qt::SkipEmptyParts);
    QProcess process;
    process.start(QStringLiteral("opj_compress"), arguments);
    return process.waitForFinished() && process.exitCode() == 0 ? pictures::bytesOf(at(QStringLiteral("a.j2k")))
                                                                : QByteArray();
}

QByteArray TestJpeg2000::flatCodestream(const QList<int> &values, const QString &options)
{
    QByteArray samples;
    for (const int value : values)
        samples += QByteArray(16 * 16, char(value));
    return codestreamOf(samples, QStringLiteral("16,16,%1,8,u").arg(values.size()),
                        options.isEmpty() ? QStringLiteral("-mct 0") : options);
}

QByteArray TestJpeg2000::file(const QByteArray &codestream, int components, const QByteArray &boxes)
{
    const QByteArray size("\0\0\0\x10\0\0\0\x10", 8);
    const QByteArray header = box("ihdr", size + big16(components) + QByteArray("\7\7\0\0", 4)) + boxes;
    return box("jP  ", "\r\n\x87\n") + box("ftyp", QByteArray("jp2 \0\0\0\0jp2 ", 12)) + box("jp2h", header) +
           box("jp2c", codestream);
}

void TestJpeg2000::expandsAPalette()
{
    QByteArray indices;
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            indices += char((x + y) % 3);
    const QByteArray codestream = codestreamOf(indices, QStringLiteral("16,16,1,8,u"));
    QVERIFY(!codestream.isEmpty());
    const QByteArray palette =
        big16(3) + "\3\7\7\7" + QByteArray("\xFF\0\0", 3) + QByteArray("\0\xFF\0", 3) + QByteArray("\x11\x22\x33", 3);
    const QByteArray mapping("\0\0\1\0\0\0\1\1\0\0\1\2", 12);
    const auto source = ImageSource::fromData(
        file(codestream, 1, box("colr", knownSpace(16)) + box("pclr", palette) + box("cmap", mapping)));
    QVERIFY2(source, source ? "" : qPrintable(source.error().message));
    const auto bitmap = source->decode();
    QVERIFY2(bitmap, bitmap ? "" : qPrintable(bitmap.error().message));
    QCOMPARE(colourAt(*bitmap, 0, 0), QColor(255, 0, 0));
    QCOMPARE(colourAt(*bitmap, 1, 0), QColor(0, 255, 0));
    QCOMPARE(colourAt(*bitmap, 7, 4), QColor(0x11, 0x22, 0x33));
}

void TestJpeg2000::refusesAPaletteThatContradictsThePicture_data()
{
    QTest::addColumn<QByteArray>("palette");
    QTest::addColumn<QByteArray>("mapping");
    const QByteArray three = big16(1) + "\3\7\7\7\1\2\3";
    const QByteArray mapping("\0\0\1\0\0\0\1\1\0\0\1\2", 12);
    QTest::newRow("of another component") << three << QByteArray("\0\5\1\0\0\0\1\1\0\0\1\2", 12);
    QTest::newRow("of a column that is not there") << three << QByteArray("\0\0\1\0\0\0\1\1\0\0\1\7", 12);
    QTest::newRow("cut") << three.left(5) << mapping;
}

void TestJpeg2000::refusesAPaletteThatContradictsThePicture()
{
    QFETCH(QByteArray, palette);
    QFETCH(QByteArray, mapping);
    const auto source = ImageSource::fromData(
        file(flatCodestream({0}), 1, box("colr", knownSpace(16)) + box("pclr", palette) + box("cmap", mapping)));
    for (int attempt = 0; attempt < 20; ++attempt) // several threads take part, and none may forget what another found
        QVERIFY(!source || !source->decode());
}

void TestJpeg2000::convertsColours_data()
{
    QTest::addColumn<QList<int>>("values");
    QTest::addColumn<QByteArray>("space");
    QTest::addColumn<QColor>("seen");
    QTest::newRow("grey") << QList<int>{77} << knownSpace(17) << QColor(77, 77, 77);
    QTest::newRow("RGB") << QList<int>{10, 20, 30} << knownSpace(16) << QColor(10, 20, 30);
    QTest::newRow("YCC") << QList<int>{100, 128, 228} << knownSpace(18) << QColor(240, 29, 100);
    QTest::newRow("CMYK without ink") << QList<int>{0, 0, 0, 0} << knownSpace(12) << QColor(255, 255, 255);
    QTest::newRow("Lab white") << QList<int>{255, 128, 96} << knownSpace(14) << QColor(255, 255, 255);
    QTest::newRow("Lab grey") << QList<int>{128, 128, 96} << knownSpace(14) << QColor(119, 119, 119);
    QTest::newRow("Lab red") << QList<int>{136, 248, 182} << knownSpace(14) << QColor(255, 0, 0);
    const auto number = [](int value) { return QByteArray("\0\0", 2) + big16(value); };
    const QByteArray ranges = number(100) + number(0) + number(255) + number(128) + number(255) + number(128);
    QTest::newRow("Lab with ranges") << QList<int>{136, 208, 195} << knownSpace(14) + ranges + number(0)
                                     << QColor(255, 0, 0);
}

void TestJpeg2000::convertsColours()
{
    QFETCH(QList<int>, values);
    QFETCH(QByteArray, space);
    QFETCH(QColor, seen);
    const auto source = ImageSource::fromData(file(flatCodestream(values), int(values.size()), box("colr", space)));
    QVERIFY2(source, source ? "" : qPrintable(source.error().message));
    const auto bitmap = source->decode();
    QVERIFY2(bitmap, bitmap ? "" : qPrintable(bitmap.error().message));
    const QString target = at(QStringLiteral("seen.png"));
    QVERIFY(platform::writeImageFile(target, *bitmap, platform::FileFormat::Png).has_value());
    const QColor pixel = QImage(target).pixelColor(8, 8);
    constexpr int nearly = 3;
    QVERIFY2(std::abs(pixel.red() - seen.red()) <= nearly && std::abs(pixel.green() - seen.green()) <= nearly &&
                 std::abs(pixel.blue() - seen.blue()) <= nearly,
             qPrintable(pixel.name()));
}

void TestJpeg2000::takesTransparencyWhereItIsStated()
{
    const QByteArray codestream = flatCodestream({10, 20, 30, 40});
    const auto channels = [](int typeOfLast) {
        QByteArray data = big16(4);
        for (int channel = 0; channel < 3; ++channel)
            data += big16(channel) + big16(0) + big16(channel + 1);
        return box("cdef", data + big16(3) + big16(typeOfLast) + big16(0));
    };
    const auto opacity = [&](const QByteArray &boxes) {
        const auto source = ImageSource::fromData(file(codestream, 4, box("colr", knownSpace(16)) + boxes));
        const Bitmap bitmap = source ? source->decode().value_or(Bitmap()) : Bitmap();
        return bitmap.isNull() ? -1 : colourAt(bitmap, 3, 3).alpha();
    };
    QCOMPARE(opacity(channels(1)), 40);
    QCOMPARE(opacity(channels(65535)), 255); // it says that it means something else
    QCOMPARE(opacity({}), 40);               // it says nothing, and all take it so
}

void TestJpeg2000::scalesFewBitsToTheFullRange()
{
    for (const int sample : {0, 7, 15}) {
        const QByteArray codestream =
            codestreamOf(QByteArray(16 * 16, char(sample)), QStringLiteral("16,16,1,4,u"), {});
        const auto source = ImageSource::fromData(codestream);
        QVERIFY2(source, source ? "" : qPrintable(source.error().message));
        QCOMPARE(colourAt(*source->decode(), 5, 5).red(), sample * 17);
    }
}

void TestJpeg2000::enlargesSmallerComponents()
{
    QByteArray samples(16 * 16, char(90));
    samples += QByteArray(8 * 8, char(128)).repeated(2);
    const QByteArray codestream =
        codestreamOf(samples, QStringLiteral("16,16,3,8,u@1x1:2x2:2x2"), QStringLiteral("-mct 0"));
    const auto source = ImageSource::fromData(file(codestream, 3, box("colr", knownSpace(18))));
    QVERIFY2(source, source ? "" : qPrintable(source.error().message));
    const auto bitmap = source->decode();
    QVERIFY2(bitmap, bitmap ? "" : qPrintable(bitmap.error().message));
    QCOMPARE(bitmap->size(), QSize(16, 16));
    QCOMPARE(colourAt(*bitmap, 15, 15), QColor(90, 90, 90));
}

void TestJpeg2000::keepsFlatColours_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QColor>("color");
    for (const QSize size : {QSize(1, 1), QSize(8, 8), QSize(16, 3), QSize(100, 80), QSize(520, 300)})
        for (const QColor &color : {QColor(255, 255, 255), QColor(0, 0, 0), QColor(200, 30, 90), QColor(1, 254, 128)})
            QTest::addRow("%s %dx%d", qPrintable(color.name()), size.width(), size.height()) << size << color;
}

void TestJpeg2000::keepsFlatColours()
{
    QFETCH(QSize, size);
    QFETCH(QColor, color);
    const QString png = at(QStringLiteral("flat.png"));
    const QString target = at(QStringLiteral("flat.jp2"));
    QVERIFY(pictures::plain(size.width(), size.height(), color, QImage::Format_RGB888).save(png));
    const Bitmap flat = ImageSource::open(png)->decode().value_or(Bitmap());
    QVERIFY(platform::writeImageFile(target, flat, platform::FileFormat::Jpeg2000).has_value());
    const Bitmap made = ImageSource::open(target)->decode().value_or(Bitmap());
    for (const QPoint &place :
         {QPoint(0, 0), QPoint(size.width() - 1, size.height() - 1), QPoint(size.width() / 2, 0)}) {
        const QColor pixel = colourAt(made, place.x(), place.y());
        QVERIFY2(std::abs(pixel.red() - color.red()) <= 1 && std::abs(pixel.green() - color.green()) <= 1 &&
                     std::abs(pixel.blue() - color.blue()) <= 1,
                 qPrintable(pixel.name()));
    }
}

QUORLIN_TEST(TestJpeg2000)
#include "tst_jpeg2000.moc"
