#include "files/cNSFileHandling.h"
#include "image/convert.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/corpus.h"
#include "tests/support/made_tiff.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QRegularExpression>
#include <QTest>
#include <QtEndian>

#include <sys/inotify.h>

using image::OutputType;
using platform::Bitmap;
using platform::ImageSource;

namespace {

const char *const allTypes[] = {"pdf", "png", "tiff", "bmp", "gif", "jpeg", "jp2"};

QString pictureNamed(const QString &name)
{
    return picturePath(name);
}

Bitmap decoded(const QString &path)
{
    const auto source = ImageSource::open(path);
    return source ? source->decode().value_or(Bitmap()) : Bitmap();
}

/** Saves a picture whose points are its pixels. */
bool savedAt72Dpi(QImage picture, const QString &path)
{
    constexpr int dotsPerMetre = 2835;
    picture.setDotsPerMeterX(dotsPerMetre);
    picture.setDotsPerMeterY(dotsPerMetre);
    return picture.save(path);
}

/** The first value after a name in a PDF file. */
QByteArray entryOf(const QByteArray &pdf, const char *name)
{
    const QRegularExpression entry(QRegularExpression::escape(QString::fromLatin1(name)) +
                                   QStringLiteral(R"(\s*(\[[^\]]*\]|[^/\s>]+))"));
    return entry.match(QString::fromLatin1(pdf)).captured(1).toLatin1();
}

/** A tag that states how many pixels there are, corrected if it was wrong. */
bool statesSize(const QString &tag)
{
    return tag.contains(QLatin1String("Pixel")) || tag.startsWith(QLatin1String("tiff:Image"));
}

/** What is renamed into a folder, in order, from when it is made. */
class RenameWatch
{
public:
    explicit RenameWatch(const QString &folder) : m_queue(inotify_init1(IN_NONBLOCK))
    {
        inotify_add_watch(m_queue, QFile::encodeName(folder).constData(),
                          IN_MOVED_FROM | IN_MOVED_TO); // the same event twice in a row is reported once
    }
    ~RenameWatch() { ::close(m_queue); }
    Q_DISABLE_COPY_MOVE(RenameWatch)

    QStringList names() const
    {
        alignas(inotify_event) char buffer[8192];
        const ssize_t size = ::read(m_queue, buffer, sizeof buffer);
        QStringList result;
        for (ssize_t at = 0; at < size;) {
            const auto *event = reinterpret_cast<const inotify_event *>(buffer + at);
            if (event->mask & IN_MOVED_TO)
                result += QFile::decodeName(event->name);
            at += ssize_t(sizeof(inotify_event) + event->len);
        }
        return result;
    }

private:
    int m_queue;
};

} // namespace

/** Writing a picture as another type. */
class TestConvertType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void knowsTheKeywordsLetterForLetter();
    void knowsTheQualities();
    void answersTheListInEveryCase();
    void writesEachTypeWholeOrNotAtAll();
    void writesPngAndTiffTwice();
    void leavesNothingOfWhatCannotBeRead_data();
    void leavesNothingOfWhatCannotBeRead();
    void leavesWhatWasThere();
    void convertsInPlace();
    void showsTurnedPicturesUpright_data();
    void showsTurnedPicturesUpright();
    void passesJpegsThroughIntoPages();
    void tellsNothingInAPageButThePicture();
    void storesPagesWithoutLoss();
    void makesPagesOfTheSizeInPoints();
    void keepsDeepColoursAndTransparency();
    void keepsMetadataInPngAndTiffOnly_data();
    void keepsMetadataInPngAndTiffOnly();
    void keepsWhatAPngSays();
    void takesTheFirstOfSeveral();
    void convertsThePreviewOfARawFile();
    void writesPlainTiffsThatOthersRead_data();
    void writesPlainTiffsThatOthersRead();

private:
    QString at(const char *name) const { return m_home->path(name); }
    QVariantList convert(const QString &source, const char *type, const QByteArray &name, const char *code = "")
    {
        return m_files.hConvertFileType(source, QString::fromUtf8(type), QString::fromUtf8(code), at(name.constData()));
    }

    std::unique_ptr<ScratchFolder> m_home;
    cNSFileHandling m_files;
};

void TestConvertType::init()
{
    m_home = std::make_unique<ScratchFolder>();
    QVERIFY(savedAt72Dpi(pictures::gradient(48, 32), at("source.v1.png")));
    QVERIFY(m_home->allow(".", 0755));
}

void TestConvertType::knowsTheKeywordsLetterForLetter()
{
    for (const char *type : allTypes)
        QVERIFY(image::targetTypeFor(QString::fromUtf8(type)).has_value());
    for (const char *text : {"", "jpg", "tif", "PNG", "jpeg ", " jpeg", "jpeg2000", "public.png", "psd"})
        QVERIFY2(!image::targetTypeFor(QString::fromUtf8(text)).has_value(), text);
    QVERIFY(!image::targetTypeFor(QString()).has_value());
}

void TestConvertType::knowsTheQualities()
{
    for (int code = 1; code <= 8; ++code)
        QCOMPARE(image::conversionQuality(QString::number(code)), code / 10.0);
    for (const char *code : {"", "0", "9", "10", "08", "8 ", "1.0", "best", "-1"})
        QCOMPARE(image::conversionQuality(QString::fromUtf8(code)), 0.9);
    QCOMPARE(image::conversionQuality(QString()), 0.9);
}

void TestConvertType::answersTheListInEveryCase()
{
    const auto answer = [this](const QString &source, const char *type, const char *name) {
        const QVariantList list = convert(source, type, name);
        return list.size() == 3 && list[0].toUrl() == m_files.property("saveURL").toUrl()
                   ? list[1].toString() + u'|' + list[2].toString()
                   : QStringLiteral("no list");
    };
    QCOMPARE(answer(at("source.v1.png"), "gif", "a b.gif"), QStringLiteral("gif|source.v1"));
    QVERIFY(m_home->isThere("a b.gif"));
    QCOMPARE(answer(at("source.v1.png"), "jpg", "a.jpg"), QStringLiteral("jpg|source.v1"));
    QCOMPARE(answer(at("missing.png"), "png", "b.png"), QStringLiteral("png|missing"));
    QCOMPARE(answer(at("source.v1.png"), "png", "nowhere/b.png"), QStringLiteral("png|source.v1"));
    QCOMPARE(answer(at("source.v1.png"), "", "b"), QStringLiteral("|source.v1"));
    QCOMPARE(m_home->names(), (QStringList{QStringLiteral("a b.gif"), QStringLiteral("source.v1.png")}));
}

void TestConvertType::writesEachTypeWholeOrNotAtAll()
{
    const QByteArray before = m_home->read("source.v1.png");
    for (const char *type : allTypes) {
        const QByteArray name = QByteArray("made.") + type;
        convert(at("source.v1.png"), type, name);
        const auto made = ImageSource::open(at(name.constData()));
        QVERIFY2(made, type);
        QCOMPARE(made->uprightSize(), QSize(48, 32));
        const Bitmap pixels = decoded(at(name.constData()));
        QVERIFY2(!pixels.isNull(), type);
        const bool isExact = QByteArray("png tiff bmp pdf").contains(type);
        const std::array<int, 4> corner = pixels.pixel(47, 31);
        QVERIFY2(std::abs(corner[0] - 47) <= (isExact ? 0 : 24), type);
    }
    QCOMPARE(m_home->read("source.v1.png"), before);
    QCOMPARE(m_home->names().size(), 8);
}

void TestConvertType::writesPngAndTiffTwice()
{
    for (const char *type : allTypes) {
        const QByteArray name = QByteArray("made.") + type;
        const RenameWatch watch(m_home->path());
        convert(at("source.v1.png"), type, name);
        const bool isWrittenTwice = QByteArray("png tiff").contains(type);
        QCOMPARE(watch.names(), QStringList(isWrittenTwice ? 2 : 1, QString::fromUtf8(name)));
    }
}

void TestConvertType::leavesNothingOfWhatCannotBeRead_data()
{
    QTest::addColumn<QString>("source");
    for (const QString &name : picturesThere(
             {"own/broken/truncated.jpg", "own/broken/truncated.gif", "own/broken/truncated.png",
              "own/broken/truncated.tif", "own/broken/zero-byte.jpg", "own/broken/text-named.jpg",
              "own/broken/bomb-60000x60000.png", "own/broken/bomb-30000x30000.bmp", "own/broken/spoilt-data.png",
              "own/broken/bomb-100000x100000.tif", "broken/truncated-real-camera.jpg", "broken/truncated_image.png",
              "broken/17000x17000.avif", "broken/broken_data_stream.png", "broken/2018-01-09-exiv2-crash-001.tiff"}))
        QTest::newRow(qPrintable(name)) << pictureNamed(name);
    QTest::newRow("folder") << QStringLiteral("/");
    QTest::newRow("nothing") << QString();
}

void TestConvertType::leavesNothingOfWhatCannotBeRead()
{
    QFETCH(QString, source);
    for (const char *type : allTypes)
        QCOMPARE(convert(source, type, QByteArray("made.") + type).size(), 3);
    QCOMPARE(m_home->names(), QStringList{QStringLiteral("source.v1.png")});
}

void TestConvertType::leavesWhatWasThere()
{
    QVERIFY(m_home->write("kept.png", "kept"));
    convert(at("missing.png"), "png", "kept.png");
    convert(pictureNamed(QStringLiteral("own/broken/truncated.png")), "jpeg", "kept.png");
    convert(at("source.v1.png"), "jpg", "kept.png");
    QCOMPARE(m_home->read("kept.png"), QByteArray("kept"));
    QVERIFY(m_home->write("locked/kept.png", "kept") && m_home->allow("locked", 0555));
    const Nobody nobody;
    QVERIFY(nobody.ready());
    for (const char *type : allTypes)
        convert(at("source.v1.png"), type, "locked/kept.png");
    QCOMPARE(m_home->read("locked/kept.png"), QByteArray("kept"));
    QCOMPARE(m_home->names("locked"), QStringList{QStringLiteral("kept.png")});
}

void TestConvertType::convertsInPlace()
{
    const Bitmap before = decoded(at("source.v1.png"));
    convert(at("source.v1.png"), "tiff", "source.v1.png");
    QCOMPARE(ImageSource::open(at("source.v1.png"))->typeIdentifier(), QStringLiteral("public.tiff"));
    QCOMPARE(decoded(at("source.v1.png")).toRawImage(), before.toRawImage());
}

void TestConvertType::showsTurnedPicturesUpright_data()
{
    QTest::addColumn<QString>("name");
    for (const char *shape : {"landscape", "portrait"})
        for (int orientation = 1; orientation <= 8; ++orientation) {
            const QString name = QStringLiteral("own/orientation/%1_%2.jpg").arg(QLatin1String(shape)).arg(orientation);
            QTest::newRow(qPrintable(name)) << name;
        }
}

void TestConvertType::showsTurnedPicturesUpright()
{
    QFETCH(QString, name);
    const QString path = pictureNamed(name);
    const auto source = ImageSource::open(path);
    QVERIFY(source);
    const QImage shown =
        source->decode()->toScreenImage().scaled(8, 8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QList<const char *> types = {"png", "tiff", "bmp", "jpeg", "pdf"};
    if (source->orientation() == 6) // these two are slow
        types += {"jp2", "gif"};
    for (const char *type : std::as_const(types)) {
        convert(path, type, "made", "8");
        const auto made = ImageSource::open(at("made"));
        QVERIFY2(made, type);
        const bool isTagged = QByteArray("png tiff").contains(type);
        QCOMPARE(made->orientation(), isTagged ? source->orientation() : 1);
        QCOMPARE(made->storedSize(), isTagged ? source->storedSize() : source->uprightSize());
        const QImage again =
            made->decode()->toScreenImage().scaled(8, 8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        for (int i = 0; i < 64; ++i)
            QVERIFY2(std::abs(qGreen(again.pixel(i % 8, i / 8)) - qGreen(shown.pixel(i % 8, i / 8))) <= 8, type);
    }
}

void TestConvertType::passesJpegsThroughIntoPages()
{
    struct Case
    {
        const char *file;
        bool isPassed;
    };
    // Arithmetic coding and CMYK go in as pixels, since not every reader of pages knows them.
    const Case cases[] = {
        {"grey.jpg", true},        {"progressive.jpg", true},     {"sampled-420.jpg", true},
        {"odd-size.jpg", true},    {"restart-markers.jpg", true}, {"rgb-without-conversion.jpg", true},
        {"arithmetic.jpg", false}, {"cmyk-adobe.jpg", false}};
    for (const Case &each : cases) {
        const QString source = QStringLiteral(QUORLIN_TEST_DATA "/jpeg/") + QString::fromUtf8(each.file);
        convert(source, "pdf", "made.pdf");
        const QByteArray page = m_home->read("made.pdf");
        QCOMPARE(page.contains(pictures::bytesOf(source)), each.isPassed);
        QCOMPARE(entryOf(page, "/Count"), QByteArray("1"));
        const QImage before = decoded(source).toScreenImage();
        const QImage after = decoded(at("made.pdf")).toScreenImage();
        QCOMPARE(after.size(), before.size());
        const QRgb was = before.pixel(before.width() / 2, before.height() / 2);
        const QRgb is = after.pixel(before.width() / 2, before.height() / 2);
        QVERIFY2(std::abs(qRed(was) - qRed(is)) < 40 && std::abs(qBlue(was) - qBlue(is)) < 40, each.file);
    }
}

void TestConvertType::tellsNothingInAPageButThePicture()
{
    const QByteArray plain = pictures::bytesOf(QStringLiteral(QUORLIN_TEST_DATA "/jpeg/progressive.jpg"));
    const auto segment = [](char marker, const QByteArray &data) {
        const qsizetype size = data.size() + 2;
        return QByteArray("\xFF") + marker + char(size >> 8) + char(size & 255) + data;
    };
    const QByteArray exif("Exif\0\0II*\0\x08\0\0\0\0\0\0\0\0\0 serial 4711", 32);
    QByteArray told = plain;
    told.insert(2, segment('\xE1', exif) +
                       segment('\xE1', QByteArray("http://ns.adobe.com/xap/1.0/\0<x:secret/>", 40)) +
                       segment('\xED', "Photoshop 3.0 caption") + segment('\xFE', "a comment") +
                       segment('\xE2', QByteArray("MPF\0index", 9)) + segment('\xEB', "maker's"));
    told += plain + "behind it a position";
    QVERIFY(m_home->write("told.jpg", told));
    convert(at("told.jpg"), "pdf", "made.pdf");
    const QByteArray page = m_home->read("made.pdf");
    for (const char *secret : {"serial", "secret", "caption", "comment", "MPF", "maker's", "behind it", "Exif"})
        QVERIFY2(!page.contains(secret), secret);
    const qsizetype scan = plain.indexOf("\xFF\xDA");
    QVERIFY(scan > 0 && page.contains(plain.mid(scan)));
    QCOMPARE(page.count("\xFF\xD8\xFF"), 1);
    QCOMPARE(decoded(at("made.pdf")).toScreenImage().size(), decoded(at("told.jpg")).toScreenImage().size());
}

void TestConvertType::storesPagesWithoutLoss()
{
    const QImage source = pictures::gradient(301, 47).convertToFormat(QImage::Format_RGB888);
    QVERIFY(savedAt72Dpi(source, at("odd.png")));
    convert(at("odd.png"), "pdf", "made.pdf");
    QCOMPARE(decoded(at("made.pdf")).toScreenImage().convertToFormat(QImage::Format_RGB888), source);
    QCOMPARE(entryOf(m_home->read("made.pdf"), "/ColorSpace"), QByteArray());
    QVERIFY(m_home->read("made.pdf").contains("/ColorSpace /DeviceRGB /BitsPerComponent 8"));
}

void TestConvertType::makesPagesOfTheSizeInPoints()
{
    struct Case
    {
        double dpi;
        const char *box;
    };
    for (const Case &each : {Case{72, "[0 0 300 150]"}, Case{300, "[0 0 72 36]"}, Case{144, "[0 0 150 75]"}}) {
        QImage picture = pictures::gradient(300, 150);
        picture.setDotsPerMeterX(qRound(each.dpi / 0.0254));
        picture.setDotsPerMeterY(qRound(each.dpi / 0.0254));
        QVERIFY(picture.save(at("picture.png")));
        convert(at("picture.png"), "pdf", "made.pdf");
        QCOMPARE(entryOf(m_home->read("made.pdf"), "/MediaBox"), QByteArray(each.box));
    }
}

void TestConvertType::keepsDeepColoursAndTransparency()
{
    QImage deep(20, 10, QImage::Format_RGBA64);
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 20; ++x)
            deep.setPixelColor(x, y,
                               QColor::fromRgba64(quint16(x * 3001), quint16(y * 6007), 12345, quint16(x * 3000)));
    QVERIFY(deep.save(at("deep.png")));
    for (const char *type : {"png", "tiff", "jp2"}) {
        convert(at("deep.png"), type, "made");
        const Bitmap made = decoded(at("made"));
        QCOMPARE(made.bitsPerComponent(), 16);
        QVERIFY(made.hasAlpha());
        if (QByteArray(type) != "jp2")
            QCOMPARE(made.toRawImage(), decoded(at("deep.png")).toRawImage());
    }
    convert(at("deep.png"), "pdf", "made.pdf");
    const QByteArray page = m_home->read("made.pdf");
    QCOMPARE(page.count("/BitsPerComponent 16 /Filter"), 2);
    QVERIFY(page.contains("/SMask"));
    for (const char *type : {"jpeg", "bmp"}) { // nothing is black
        convert(at("deep.png"), type, "made");
        QVERIFY(decoded(at("made")).pixel(0, 5)[2] < 8);
    }
}

void TestConvertType::keepsMetadataInPngAndTiffOnly_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : picturesThere(
             {"own/metadata/every-group.jpg", "own/metadata/every-group.tif", "own/metadata/every-group.png",
              "own/metadata/every-group.webp", "own/metadata/every-group.jp2", "own/metadata/every-group.heic",
              "own/metadata/xmp.psd", "exif-real/DSCN0010.jpg", "exif-real/Pentax_K10D.jpg", "exif-real/uc-unicode.jpg",
              "exif-real/Reagan.jpg", "exif-real/exiv2.dc.dwc.i18n.jpg", "exif-real/exiv2-bug528.jpg",
              "formats/flower.webp", "formats/Reagan.jp2", "formats/Stonehenge.heic", "formats/exif.png",
              "formats/hopper.psd", "dpi/tiff-118.11-per-cm.tif"}))
        QTest::newRow(qPrintable(name)) << name;
}

void TestConvertType::keepsMetadataInPngAndTiffOnly()
{
    QFETCH(QString, name);
    const auto source = ImageSource::open(pictureNamed(name));
    QVERIFY(source);
    const QVariantMap known = source->metadata()->toProperties();
    const auto kept = [&](const char *type) {
        convert(pictureNamed(name), type, "made");
        return ImageSource::open(at("made"))->metadata()->toProperties();
    };
    for (const char *type : {"png", "tiff"}) {
        const QVariantMap made = kept(type);
        for (const char *group : {"{Exif}", "{GPS}", "{IPTC}", "{XMP}"}) {
            const QVariantMap before = known.value(QString::fromUtf8(group)).toMap();
            const QVariantMap after = made.value(QString::fromUtf8(group)).toMap();
            for (auto entry = before.begin(); entry != before.end(); ++entry)
                QVERIFY2(after.value(entry.key()) == entry.value() || statesSize(entry.key()),
                         qPrintable(QString::fromUtf8(type) + u' ' + entry.key()));
        }
    }
    for (const char *type : {"bmp", "gif", "jpeg", "jp2"})
        QCOMPARE(kept(type).value(QStringLiteral("{Exif}")), QVariant());
}

void TestConvertType::keepsWhatAPngSays()
{
    QImage picture = pictures::gradient(30, 20);
    picture.setText(QStringLiteral("Title"), QStringLiteral("Hafen"));
    QVERIFY(picture.save(at("texts.png")));
    convert(at("texts.png"), "png", "made.png");
    QCOMPARE(QImage(at("made.png")).text(QStringLiteral("Title")), QStringLiteral("Hafen"));
    QCOMPARE(m_home->read("made.png").count("IHDR"), 1);
    convert(at("texts.png"), "jpeg", "made.jpg");
    QVERIFY(!m_home->read("made.jpg").contains("Hafen"));
}

void TestConvertType::takesTheFirstOfSeveral()
{
    for (const QString &name : picturesThere(
             {"own/formats/pages.tif", "own/formats/animated.gif", "formats/g4-multi.tiff", "formats/chi.gif"})) {
        const auto source = ImageSource::open(pictureNamed(name));
        QVERIFY(source);
        QVERIFY(source->imageCount() > 1);
        for (const char *type : {"tiff", "gif", "png"}) {
            convert(pictureNamed(name), type, "made");
            QCOMPARE(ImageSource::open(at("made"))->imageCount(), 1);
        }
    }
}

void TestConvertType::convertsThePreviewOfARawFile()
{
    const QByteArray preview = pictures::bytesOf(QStringLiteral(QUORLIN_TEST_DATA "/jpeg/odd-size.jpg"));
    QVERIFY(m_home->write("camera.dng", pictures::rawFileWith(preview, 6)));
    const auto source = ImageSource::open(at("camera.dng"));
    QVERIFY2(source, source ? "" : qPrintable(source.error().message));
    QCOMPARE(source->typeIdentifier(), QStringLiteral("public.camera-raw-image"));
    QCOMPARE(source->path(), at("camera.dng"));
    const QSize stored = ImageSource::fromData(preview)->storedSize();
    QCOMPARE(source->storedSize(), stored);
    QCOMPARE(source->uprightSize(), stored.transposed());
    convert(at("camera.dng"), "bmp", "made.bmp");
    QCOMPARE(ImageSource::open(at("made.bmp"))->storedSize(), stored.transposed());
    convert(at("camera.dng"), "png", "made.png");
    const auto made = ImageSource::open(at("made.png"));
    QCOMPARE(made->storedSize(), stored);
    QCOMPARE(made->orientation(), 6);
    // Sensor data without a preview is not taken for a picture.
    QVERIFY(m_home->write("bare.dng", pictures::rawFileWith({}, 1)));
    convert(at("bare.dng"), "png", "bare.png");
    QVERIFY(!m_home->isThere("bare.png"));
}

void TestConvertType::writesPlainTiffsThatOthersRead_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<QSize>("size");
    const QList<QSize> sizes = {{1, 1}, {3, 129}, {301, 128}, {7, 300}};
    for (const QSize size : sizes)
        for (const QImage::Format format : {QImage::Format_Grayscale8, QImage::Format_Grayscale16,
                                            QImage::Format_RGB888, QImage::Format_RGBA8888, QImage::Format_RGBA64})
            QTest::addRow("%d x %d, %d", size.width(), size.height(), int(format)) << format << size;
}

void TestConvertType::writesPlainTiffsThatOthersRead()
{
    QFETCH(QImage::Format, format);
    QFETCH(QSize, size);
    QImage picture = pictures::gradient(size.width(), size.height()).convertToFormat(format);
    if (picture.hasAlphaChannel())
        picture.setPixelColor(0, 0, QColor(200, 100, 50, 128));
    QVERIFY(picture.save(at("in.png")));
    for (const char *type : {"tiff", "bmp"}) {
        convert(at("in.png"), type, "out");
        const QImage again(at("out"), type); // the toolkit's own reader
        QCOMPARE(again.size(), size);
        const QPoint last(size.width() - 1, size.height() - 1);
        const bool isBlackened = QByteArray(type) == "bmp" && last == QPoint(0, 0) && picture.hasAlphaChannel();
        const QColor expected = isBlackened ? QColor(100, 50, 25) : picture.pixelColor(last);
        const QColor found = again.pixelColor(last);
        QVERIFY2(std::abs(found.red() - expected.red()) <= 1 && std::abs(found.blue() - expected.blue()) <= 1, type);
        if (QByteArray(type) == "tiff")
            QCOMPARE(decoded(at("out")).toRawImage(), decoded(at("in.png")).toRawImage());
    }
}

QUORLIN_TEST(TestConvertType)
#include "tst_convert_type.moc"
