#include "platform/imageio/bytes/block_reader.h"
#include "platform/imageio/codecs/whole_picture.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/load/svg_work.h"
#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/picture_facts.h"
#include "tests/support/corpus.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using platform::Content;
using platform::ImageSource;

namespace {

/** Bytes that count how often they are asked for some. */
class CountingBuffer : public QBuffer
{
public:
    explicit CountingBuffer(const QByteArray &bytes)
    {
        setData(bytes);
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    int reads = 0;

protected:
    qint64 readData(char *data, qint64 most) override
    {
        ++reads;
        return QBuffer::readData(data, most);
    }
};

QByteArray big32(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? bytes : QByteArray();
}

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitCode() == 0;
}

/** A raw file as cameras build it: a small first directory, and below it one with the sensor's data in one strip. */
QByteArray rawFile(const QByteArray &preview)
{
    const auto entry = [](quint16 tag, quint16 type, quint32 count, quint32 value) {
        QByteArray bytes(12, '\0');
        qToLittleEndian(tag, bytes.data());
        qToLittleEndian(type, bytes.data() + 2);
        qToLittleEndian(count, bytes.data() + 4);
        qToLittleEndian(value, bytes.data() + 8);
        return bytes;
    };
    constexpr quint32 below = 8 + 2 + 5 * 12 + 4;
    constexpr quint32 previewAt = below + 2 + 2 * 12 + 4;
    const auto size = quint32(preview.size());
    QByteArray file("II*\0\x08\0\0\0\x05\0", 10);
    file += entry(0x00fe, 4, 1, 1) + entry(0x014a, 4, 1, below) + entry(0x0201, 4, 1, previewAt) +
            entry(0x0202, 4, 1, size) + entry(0xc612, 1, 4, 0x00000401) + QByteArray(4, '\0');
    file += QByteArray("\x02\0", 2) + entry(0x0111, 4, 1, previewAt + size) + entry(0x0117, 4, 1, 5000);
    return file + QByteArray(4, '\0') + preview + QByteArray(5000, 'x');
}

} // namespace

class TestWholePicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void refusesWhatIsCut_data();
    void refusesWhatIsCut();
    void keepsOddFilesThatAreWhole();
    void readsWhatOthersDecode();
    void refusesACutRawFile();
    void missesATileOfACodestream();
    void stepsOverSmallPartsInBlocks_data();
    void stepsOverSmallPartsInBlocks();
    void readsAJpegWithBytesBetweenItsSegments();
    void factsAndMetadataAgreeAboutRawFiles();
    void isNotEndedByADrawing();
    void reckonsTheWorkOfDrawings_data();
    void reckonsTheWorkOfDrawings();
    void doesNotDrawWhatTakesTooLong();

private:
    QString at(const QString &name) const { return m_folder.filePath(name); }
    QByteArray plainJpeg() const { return pictures::bytesOf(at(QStringLiteral("a.jpg"))); }

    QTemporaryDir m_folder;
};

void TestWholePicture::initTestCase()
{
    const QString png = at(QStringLiteral("a.png"));
    QVERIFY(pictures::gradient(150, 90).save(png));
    for (const char *name : {"a.jpg", "a.gif", "a.bmp", "a.tif", "a.jp2", "a.j2k", "a.psd"})
        QVERIFY2(run(QStringLiteral("convert"), {png, at(QString::fromLatin1(name))}), name);
    QVERIFY(run(QStringLiteral("convert"),
                {png, QStringLiteral("-colors"), QStringLiteral("16"), QStringLiteral("-compress"),
                 QStringLiteral("RLE"), at(QStringLiteral("runs.bmp"))}));
    QVERIFY(run(QStringLiteral("convert"),
                {png, QStringLiteral("-compress"), QStringLiteral("LZW"), QStringLiteral("-define"),
                 QStringLiteral("tiff:rows-per-strip=7"), at(QStringLiteral("strips.tif"))}));
    QVERIFY(run(QStringLiteral("convert"), {png, png, at(QStringLiteral("pages.tif"))}));
    QVERIFY(run(QStringLiteral("convert"), {png, png, at(QStringLiteral("frames.gif"))}));
    QVERIFY(run(QStringLiteral("vips"), {QStringLiteral("copy"), png, at(QStringLiteral("tiles.tif[tile,bigtiff]"))}));
    QVERIFY(run(QStringLiteral("vips"), {QStringLiteral("copy"), png, at(QStringLiteral("a.webp"))}));
    QVERIFY(run(QStringLiteral("vips"),
                {QStringLiteral("heifsave"), png, at(QStringLiteral("a.avif")), QStringLiteral("--compression"),
                 QStringLiteral("av1"), QStringLiteral("--effort"), QStringLiteral("0")}));
}

void TestWholePicture::refusesWhatIsCut_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"a.png", "a.jpg", "a.gif", "a.bmp", "a.tif", "a.jp2", "a.j2k", "a.psd", "runs.bmp",
                             "strips.tif", "pages.tif", "frames.gif", "tiles.tif", "a.webp", "a.avif"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestWholePicture::refusesWhatIsCut()
{
    QFETCH(QString, name);
    const QByteArray whole = pictures::bytesOf(at(name));
    QVERIFY(platform::isWholePicture(at(name)));
    const auto source = ImageSource::open(at(name));
    QVERIFY2(source, source ? "" : qPrintable(source.error().message));
    QVERIFY(source->decode().has_value());
    const QString cut = at(QStringLiteral("cut-") + name);
    for (const qsizetype left : {whole.size() - 1, whole.size() * 9 / 10, whole.size() / 2, whole.size() / 4}) {
        write(cut, whole.left(left));
        QVERIFY2(!platform::isWholePicture(cut), qPrintable(QString::number(left)));
        QVERIFY(!ImageSource::open(cut));
        QVERIFY(!ImageSource::canOpen(cut));
        QVERIFY(platform::pictureFacts(cut).pixels.isEmpty());
    }
}

void TestWholePicture::keepsOddFilesThatAreWhole()
{
    // Other bytes after the end of a picture are not part of it.
    for (const char *name : {"a.png", "a.jpg", "a.gif", "a.bmp", "a.tif", "a.jp2", "a.psd", "a.webp"}) {
        const QString longer = at(QStringLiteral("longer-") + QString::fromLatin1(name));
        write(longer, pictures::bytesOf(at(QString::fromLatin1(name))) + QByteArray(5, '\0'));
        QVERIFY2(platform::isWholePicture(longer), name);
    }
}

void TestWholePicture::readsWhatOthersDecode()
{
    const QList<expected::Row> rows = expected::rows();
    if (rows.isEmpty())
        QSKIP("no shared pictures");
    for (const expected::Row &row : rows)
        if (row.isDecodable)
            QVERIFY2(platform::isWholePicture(row.path), qPrintable(row.name));
}

void TestWholePicture::refusesACutRawFile()
{
    const QByteArray raw = rawFile(plainJpeg());
    write(at(QStringLiteral("whole.dng")), raw);
    QVERIFY(platform::isWholePicture(at(QStringLiteral("whole.dng"))));
    QVERIFY(ImageSource::open(at(QStringLiteral("whole.dng"))).has_value());
    // The preview is all there; what the sensor saw is not.
    write(at(QStringLiteral("cut.dng")), raw.chopped(1));
    QVERIFY(!platform::isWholePicture(at(QStringLiteral("cut.dng"))));
    QVERIFY(!ImageSource::open(at(QStringLiteral("cut.dng"))));
}

void TestWholePicture::missesATileOfACodestream()
{
    const QString png = at(QStringLiteral("a.png"));
    QVERIFY(run(QStringLiteral("opj_compress"),
                {QStringLiteral("-i"), png, QStringLiteral("-o"), at(QStringLiteral("tiled.j2k")), QStringLiteral("-t"),
                 QStringLiteral("64,64")}));
    const QByteArray whole = pictures::bytesOf(at(QStringLiteral("tiled.j2k")));
    QVERIFY(platform::isWholePicture(at(QStringLiteral("tiled.j2k"))));
    const QByteArray startOfTile("\xFF\x90\0\x0A", 4);
    const qsizetype last = whole.lastIndexOf(startOfTile);
    QVERIFY(last > 0);
    write(at(QStringLiteral("tiled.j2k")), whole.left(last) + QByteArray("\xFF\xD9", 2));
    QVERIFY(!platform::isWholePicture(at(QStringLiteral("tiled.j2k"))));
}

void TestWholePicture::stepsOverSmallPartsInBlocks_data()
{
    QTest::addColumn<int>("content");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isWhole");
    constexpr int parts = 500'000;
    const QByteArray chunk = big32(0) + "teXt" + big32(0);
    QTest::newRow("PNG of empty chunks") << int(Content::Png)
                                         << "\x89PNG\r\n\x1A\n" + chunk.repeated(parts) + big32(0) + "IEND" + big32(0)
                                         << false;
    QTest::newRow("GIF of short blocks") << int(Content::Gif)
                                         << QByteArray("GIF89a\x01\0\x01\0\0\0\0!\xFE", 15) +
                                                QByteArray("\x01x", 2).repeated(parts) + QByteArray("\0;", 2)
                                         << false;
    QTest::newRow("JPEG head before zeros")
        << int(Content::Jpeg)
        << QByteArray("\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0", 20) + QByteArray(8 << 20, '\0') << false;
    QTest::newRow("JPEG head before fill bytes")
        << int(Content::Jpeg) << "\xFF\xD8" + QByteArray(8 << 20, '\xFF') << false;
}

void TestWholePicture::stepsOverSmallPartsInBlocks()
{
    QFETCH(int, content);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isWhole);
    CountingBuffer file(bytes);
    QCOMPARE(platform::isWhole(file, Content(content)), isWhole);
    QVERIFY2(file.reads < 500, qPrintable(QString::number(file.reads)));
}

void TestWholePicture::readsAJpegWithBytesBetweenItsSegments()
{
    QByteArray jpeg = plainJpeg();
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all += char(byte);
    const qsizetype second = 4 + qFromBigEndian<quint16>(jpeg.constData() + 4);
    jpeg.insert(second, all).insert(2, all);
    const auto source = ImageSource::fromData(jpeg);
    QVERIFY2(source, source ? "" : qPrintable(source.error().message));
    QCOMPARE(source->typeIdentifier(), QStringLiteral("public.jpeg"));
    QCOMPARE(source->decode()->size(), QSize(150, 90));
    write(at(QStringLiteral("between.jpg")), jpeg);
    QCOMPARE(platform::pictureFacts(at(QStringLiteral("between.jpg"))).pixels, QSize(150, 90));
    // Two bytes of a beginning are not enough.
    QVERIFY(!ImageSource::fromData("\xFF\xD8 plain text that happens to begin so"));
    QVERIFY(!ImageSource::fromData("\xFF\xD8" + QByteArray(1000, '\0') + "\xFF\xE5\0\x04zz"));
}

void TestWholePicture::factsAndMetadataAgreeAboutRawFiles()
{
    // A maker's own mark in the place of TIFF's number.
    QByteArray raw = rawFile(plainJpeg());
    raw[2] = 'U';
    write(at(QStringLiteral("maker.rw2")), raw);
    const auto source = ImageSource::open(at(QStringLiteral("maker.rw2")));
    const platform::PictureFacts facts = platform::pictureFacts(at(QStringLiteral("maker.rw2")));
    QCOMPARE(facts.pixels, source ? source->uprightSize() : QSize());
    const QString real = corpusPath("cameras/Panasonic.rw2");
    if (!QFile::exists(real))
        return;
    QCOMPARE(platform::pictureFacts(real).pixels, ImageSource::open(real)->uprightSize());
    QCOMPARE(platform::pictureFacts(real).camera, QStringLiteral("Panasonic DMC-LX3"));
}

/** Rows of content, size, and whether it is drawn. */
static void addDrawingsOfAllKinds()
{
    const QByteArray path = "<path d='M10 10C900 0 0 900 500 500' stroke='red'/>";
    QTest::newRow("small paths") << QByteArray("<path d='M10 10c9 0 0 9 5 5l1-1z'/>").repeated(30'000)
                                 << QSize(1000, 1000) << true;
    QTest::newRow("paths over all of it") << path.repeated(1000) << QSize(1000, 1000) << true;
    QTest::newRow("too many of these") << path.repeated(100'000) << QSize(1000, 1000) << false;
    QTest::newRow("a tangle") << "<path d='M0 0" + QByteArray("L900 5L5 900").repeated(100'000) + "'/>"
                              << QSize(1000, 1000) << false;
    QTest::newRow("a wide line") << "<path stroke='red' stroke-width='500' d='M0 0" +
                                        QByteArray("L900 5L5 900").repeated(3000) + "'/>"
                                 << QSize(1000, 1000) << false;
    QTest::newRow("large rectangles") << QByteArray("<rect width='1000' height='1000'/>").repeated(100'000)
                                      << QSize(1000, 1000) << false;
    const QByteArray marked = "<marker id='m'><g opacity='.5'><rect width='9' height='9'/></g></marker>";
    const QByteArray marking = QByteArray("d='M0 0") + QByteArray("L5 5").repeated(5000) + "'/>";
    QTest::newRow("markers") << marked + "<path marker-mid='url(#m)' " + marking << QSize(1000, 1000) << false;
    QTest::newRow("markers by a style sheet")
        << "<style>.a,path.b{marker-mid:url(#m)}</style>" + marked + "<path class='b' " + marking << QSize(1000, 1000)
        << false;
    QTest::newRow("layers in layers") << QByteArray("<g style='opacity:.9'>").repeated(300) << QSize(1000, 1000)
                                      << false;
    QTest::newRow("layers by a style sheet")
        << "<style>.l{mix-blend-mode:multiply}</style>" + QByteArray("<g class='l'/>").repeated(3000)
        << QSize(1000, 1000) << false;
    QTest::newRow("others by a style sheet")
        << "<style>.l{opacity:.5}.k{fill-opacity:.5}</style>" + QByteArray("<rect class='k'/>").repeated(3000)
        << QSize(1000, 1000) << true;
    QTest::newRow("a book") << "<text>" + QByteArray("word ").repeated(100'000) + "</text>" << QSize(1000, 1000)
                            << false;
    QTest::newRow("a page") << "<text>" + QByteArray("word ").repeated(1000) + "</text>" << QSize(1000, 1000) << true;
    QTest::newRow("a rainbow") << "<radialGradient id='g'>" + QByteArray("<stop/>").repeated(5000) +
                                      "</radialGradient>" +
                                      QByteArray("<rect fill='url(#g)' width='1000' height='1000'/>").repeated(9)
                               << QSize(1000, 1000) << false;
    QTest::newRow("rules for everybody") << "<style>" + QByteArray("a b{fill:red}").repeated(6000) + "</style>" +
                                                QByteArray("<g/>").repeated(10'000)
                                         << QSize(100, 100) << false;
    const auto kernel = [](const char *order) { return QByteArray("<feConvolveMatrix order='") + order + "'/>"; };
    QTest::newRow("a large kernel") << kernel("20") << QSize(10, 10) << true;
    QTest::newRow("a kernel that ends the process") << kernel("21") << QSize(10, 10) << false;
    QTest::newRow("a filter that is nowhere") << QByteArray("<filter width='0'/>") << QSize(10, 10) << false;
    QTest::newRow("a filter far away") << QByteArray("<filter y='1e38'/>") << QSize(10, 10) << false;
}

/** A thousand copies of a shape, in a few hundred bytes. */
static QByteArray manyOf(const QByteArray &shape, const QByteArray &around = "<g>")
{
    QByteArray text = "<g id='c0'>" + shape + "</g>";
    for (const char *level : {"1", "2", "3"}) {
        const QByteArray use = "<use href='#c" + QByteArray::number(level[0] - '1') + "'/>";
        text += QByteArray("<g id='c") + level + "'>" + use.repeated(10) + "</g>";
    }
    const QByteArray end =
        QByteArray("</") + around.mid(1, around.indexOf(' ') < 0 ? 1 : around.indexOf(' ') - 1) + '>';
    return "<defs>" + text + "</defs>" + around + "<use href='#c3'/>" + end;
}

/** Drawings that are larger than their numbers. */
static void addDrawingsInOtherUnits()
{
    const QSize large(9000, 9000);
    const QByteArray dot = "<rect width='1' height='1'/>";
    const QByteArray line = "<path d='M0 0L1 1'/>";
    const auto row = [&](const char *name, const QByteArray &content, bool isDrawn) {
        QTest::newRow(name) << content << large << isDrawn;
    };
    row("a thousand dots", manyOf(dot), true);
    row("scaled", manyOf(dot, "<g transform='scale(9000)'>"), false);
    row("scaled down", manyOf("<rect width='9000' height='9000'/>", "<g transform='scale(.001)'>"), true);
    row("scaled by a style", manyOf(dot, "<g style='transform:scale(9000)'>"), false);
    row("by a matrix", manyOf(dot, "<g transform='rotate(9) matrix(0 9e3 -9e3 0 5 5)'>"), false);
    row("step by step", manyOf(dot, "<g transform='scale(9)'><g transform='scale(1000)'>") + "</g>", false);
    row("in a drawing of its own", manyOf(dot, "<svg viewBox='0 0 1 1'>"), false);
    row("in one that is small", manyOf(dot, "<svg width='9' height='9' viewBox='0 0 1 1'>"), true);
    row("in a large view box", manyOf("<rect width='100%' height='100%'/>", "<svg viewBox='0 0 1e6 1e6'>"), false);
    row("in a symbol", "<symbol id='s' viewBox='0 0 1 1'>" + manyOf(dot) + "</symbol><use href='#s'/>", false);
    row("in a small symbol",
        "<symbol id='s' viewBox='0 0 1 1'>" + manyOf(dot) + "</symbol><use href='#s' width='9' height='9'/>", true);
    row("in inches", manyOf("<rect width='99in' height='99in'/>"), false);
    row("lines", manyOf(line), true);
    row("wide lines", manyOf("<path d='M0 0L9000 9000'/>", "<g stroke='red' stroke-width='9000'>"), false);
    row("by a style", manyOf("<path d='M0 0L9000 9000'/>", "<g style='stroke:red;stroke-width:9000'>"), false);
    row("that are not seen", manyOf("<path d='M0 0L90 90'/>", "<g stroke='none' stroke-width='9000'>"), true);
    row("scaled lines", manyOf(line, "<g stroke='red' transform='scale(9000)'>"), false);
    row("dashes", "<path d='M0 0h1e9' stroke='red' stroke-dasharray='1'/>", false);
    row("dashes of a group", "<g stroke='red' stroke-dasharray='.1'><path d='M0 0h1e6'/></g>", false);
    row("a few dashes", "<path d='M0 0h9000' stroke='red' stroke-dasharray='5 3'/>", true);
    row("letters", "<text font-size='12'>" + QByteArray("word ").repeated(100) + "</text>", true);
    row("huge letters", "<text font-size='9000'>" + QByteArray("word ").repeated(100) + "</text>", false);
    row("itself, larger and larger", "<g id='a' transform='scale(1.01)'><use href='#a'/></g>", true);
    const QByteArray thick = "<filter id='f'><feMorphology radius='.4'/></filter>";
    const QByteArray filtered = "<rect width='.9' height='.9' filter='url(#f)'/>";
    QTest::newRow("a filter of a hair") << thick + filtered << QSize(1000, 1000) << true;
    QTest::newRow("the same scaled") << thick + "<g transform='scale(1000)'>" + filtered + "</g>" << QSize(1000, 1000)
                                     << false;
}

void TestWholePicture::isNotEndedByADrawing()
{
    const QByteArray kernel = "<feConvolveMatrix order='40' kernelMatrix='" + QByteArray("1 ").repeated(1600) + "'/>";
    const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='90' height='90'><filter id='f'>" + kernel +
                           "</filter><rect width='90' height='90' filter='url(#f)'/></svg>";
    const auto source = ImageSource::fromData(svg);
    QVERIFY(!source || !source->decode());
}

void TestWholePicture::reckonsTheWorkOfDrawings_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isDrawn");
    const QByteArray shadow = "<filter id='f'><feOffset dx='2'/><feGaussianBlur stdDeviation='3'/></filter>";
    const QByteArray clouds = "<filter id='f'><feTurbulence numOctaves='200'/></filter>";
    const QByteArray shape = "<rect width='9' height='9' filter='url(#f)'/>";
    QByteArray copies = "<g id='c0'>" + shape + "</g>";
    for (int level = 1; level < 30; ++level) {
        const QByteArray use = "<use href='#c" + QByteArray::number(level - 1) + "'/>";
        copies += "<g id='c" + QByteArray::number(level) + "'>" + use + use + "</g>";
    }
    QTest::newRow("shapes") << QByteArray("<rect width='9' height='9'/>").repeated(20'000) << QSize(2000, 2000) << true;
    QTest::newRow("a few shadows") << shadow + shape.repeated(20) << QSize(1000, 800) << true;
    QTest::newRow("thousands of shadows") << shadow + shape.repeated(5000) << QSize(2000, 2000) << false;
    QTest::newRow("clouds of many octaves") << clouds + shape << QSize(2000, 2000) << false;
    QTest::newRow("the same in a style") << clouds + "<rect style='fill:red;filter:url(#f)'/>" << QSize(2000, 2000)
                                         << false;
    QTest::newRow("the same in a style sheet")
        << clouds + "<style>rect{filter:url(#f)}</style><rect/>" << QSize(2000, 2000) << false;
    QTest::newRow("a filter on a large canvas") << shadow + shape << QSize(20'000, 20'000) << false;
    QTest::newRow("copies of copies") << shadow + copies << QSize(500, 500) << false;
    QTest::newRow("itself") << QByteArray("<g id='a'><use href='#a'/></g>") << QSize(500, 500) << true;
    addDrawingsOfAllKinds();
    addDrawingsInOtherUnits();
    QTest::newRow("groups in groups") << QByteArray("<g>").repeated(100'000) << QSize(500, 500) << false;
}

void TestWholePicture::reckonsTheWorkOfDrawings()
{
    QFETCH(QByteArray, content);
    QFETCH(QSize, size);
    QFETCH(bool, isDrawn);
    const QByteArray box = "0 0 " + QByteArray::number(size.width()) + ' ' + QByteArray::number(size.height());
    const QByteArray text = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='" + box + "'>" + content + "</svg>";
    QCOMPARE(platform::canDrawSvg(platform::svgWork(text, size)), isDrawn);
}

void TestWholePicture::doesNotDrawWhatTakesTooLong()
{
    const QByteArray text =
        "<svg xmlns='http://www.w3.org/2000/svg' width='3000' height='3000'><filter id='f'>"
        "<feTurbulence numOctaves='300'/></filter><rect width='9' height='9' filter='url(#f)'/></svg>";
    QVERIFY(!ImageSource::fromData(text));
}

QUORLIN_TEST(TestWholePicture)
#include "tst_whole_picture.moc"
