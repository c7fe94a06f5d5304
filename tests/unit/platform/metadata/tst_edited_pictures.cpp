#include "platform/imageio/comments/user_comment_writer.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/made_tiff.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QBuffer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <QtEndian>

#include <optional>

using platform::ImageSource;
using platform::writeUserComment;

namespace {

QByteArray encoded(const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    pictures::gradient(24, 16).save(&buffer, format);
    return bytes;
}

/** With a comment in it, so that there is something to edit. */
QByteArray commented(const QByteArray &picture)
{
    const ScratchFolder folder;
    const bool isWritten =
        folder.write("a", picture) && writeUserComment(folder.path("a"), QStringLiteral("the old one"));
    return isWritten ? folder.read("a") : QByteArray();
}

QByteArray jpeg2000()
{
    const auto source = ImageSource::fromData(encoded("png"));
    const auto bitmap = source ? source->decode() : platform::Result<platform::Bitmap>(tl::unexpected(source.error()));
    return bitmap ? platform::encodeImage(*bitmap, platform::FileFormat::Jpeg2000).value_or(QByteArray())
                  : QByteArray();
}

/** Made by the encoder's own program; empty if that is not installed. */
QByteArray webp()
{
    const ScratchFolder folder;
    folder.write("a.png", encoded("png"));
    QProcess::execute(QStringLiteral("cwebp"), {QStringLiteral("-quiet"), QStringLiteral("-lossless"),
                                                folder.path("a.png"), QStringLiteral("-o"), folder.path("a.webp")});
    return folder.isThere("a.webp") ? folder.read("a.webp") : QByteArray();
}

/** In memory where that is possible: each write waits for its disk, and nothing here is about what is on it. */
QString scratchPlace()
{
    const QString memory = QStringLiteral("/dev/shm");
    return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
}

/** What a mishap may do to a file: some bytes change, mostly where its structure is, or its end is gone. */
QByteArray mutated(QByteArray bytes, QRandomGenerator &random)
{
    const auto place = [&] {
        const auto near = int(std::min<qsizetype>(bytes.size(), 400));
        const int head = random.bounded(near);
        return random.bounded(2) == 0 ? qsizetype(head) : bytes.size() - 1 - head;
    };
    switch (random.bounded(8)) {
    case 0:
        return bytes.left(bytes.size() - 1 - random.bounded(int(std::min<qsizetype>(bytes.size() - 1, 40))));
    case 1:
        return bytes.left(random.bounded(int(bytes.size())));
    default:
        for (int i = random.bounded(4); i >= 0; --i)
            bytes[place()] = char(random.bounded(2) == 0 ? random.bounded(256) : 0);
        return bytes;
    }
}

/** The picture that a file shows; none if it cannot be opened, and a null image if its pixels are damaged. */
std::optional<QImage> shownBy(const QString &path)
{
    const auto source = ImageSource::open(path);
    if (!source)
        return std::nullopt;
    const auto bitmap = source->decode();
    return bitmap ? bitmap->toRawImage() : QImage();
}

/** A decoder that works in threads does not notice each time that the pixels are damaged: such a picture shows nothing for sure. */
bool isDamaged(const QByteArray &bytes)
{
    constexpr int enough = 20;
    const auto source = ImageSource::fromData(bytes);
    for (int i = 0; i < enough && source; ++i)
        if (!source->decode())
            return true;
    return !source;
}

/** The part of a WebP file that holds the pixels; null for other files. Its decoder may show anything for damaged ones. */
QByteArray webpPixels(const QByteArray &bytes)
{
    const qsizetype at = bytes.indexOf("VP8", 12);
    const qsizetype pixels = bytes.mid(at, 4) == "VP8X" ? bytes.indexOf("VP8", at + 4) : at;
    if (!bytes.startsWith("RIFF") || pixels < 0 || pixels + 8 > bytes.size())
        return {};
    return bytes.mid(pixels, 8 + qFromLittleEndian<quint32>(bytes.constData() + pixels + 4));
}

bool hasItsPixels(const QByteArray &edited, const QByteArray &original)
{
    const QByteArray pixels = webpPixels(original);
    return !pixels.isNull() && webpPixels(edited) == pixels;
}

int tries()
{
    return tests::repetitions(150, 2000);
}

} // namespace

/** Damaged pictures whose comment is changed: what could be seen before is seen after, or the file is as it was. */
class TestEditedPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepTheirPixelsOrStayAsTheyAre_data();
    void keepTheirPixelsOrStayAsTheyAre();
    void aDirectoryCutAtItsEndIsNotReplaced();
    void aPictureThatIsCutShortIsLeftAlone_data() { keepTheirPixelsOrStayAsTheyAre_data(); }
    void aPictureThatIsCutShortIsLeftAlone();
};

void TestEditedPictures::keepTheirPixelsOrStayAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("jpeg") << encoded("jpg");
    QTest::newRow("jpeg with a comment") << commented(encoded("jpg"));
    QTest::newRow("png") << encoded("png");
    QTest::newRow("png with a comment") << commented(encoded("png"));
    QTest::newRow("tiff") << encoded("tiff");
    QTest::newRow("tiff with a comment") << commented(encoded("tiff"));
    QTest::newRow("tiff that ends in its directory") << pictures::madeTiff({});
    QTest::newRow("tiff of three pages") << pictures::madeTiff({3});
    QTest::newRow("raw tiff of three pages") << pictures::madeTiff({3, true});
    QTest::newRow("jpeg 2000") << jpeg2000();
    QTest::newRow("jpeg 2000 with a comment") << commented(jpeg2000());
    QTest::newRow("webp") << webp();
    QTest::newRow("webp with a comment") << commented(webp());
}

void TestEditedPictures::keepTheirPixelsOrStayAsTheyAre()
{
    QFETCH(QByteArray, bytes);
    if (bytes.isEmpty())
        QSKIP("the program that makes this picture is not installed");
    const ScratchFolder folder(scratchPlace());
    QRandomGenerator random(quint32(bytes.size()));
    int written = 0;
    for (int i = 0; i < tries(); ++i) {
        const QByteArray damaged = mutated(bytes, random);
        QVERIFY(folder.write("a", damaged));
        const std::optional<QImage> before = shownBy(folder.path("a"));
        const QString comment = i % 2 == 0 ? QStringLiteral("x") : QString(100 + i % 50, QChar(u'Ж'));
        const auto result = writeUserComment(folder.path("a"), comment);
        const bool isAsItWas = folder.read("a") == damaged;
        const QByteArray what = "try " + QByteArray::number(i) + ": " +
                                qCompress(damaged, 9).toBase64(); // a message has not room for all of it
        QVERIFY2(result || isAsItWas, what.constData());
        QVERIFY2(before || isAsItWas, what.constData());
        if (isAsItWas)
            continue;
        ++written;
        const std::optional<QImage> after = shownBy(folder.path("a"));
        QVERIFY2(after, what.constData());
        QVERIFY2(*after == *before || isDamaged(damaged) || hasItsPixels(folder.read("a"), damaged), what.constData());
        QCOMPARE(platform::readUserComment(folder.path("a")).value_or(QString()), comment);
    }
    qInfo("%d of %d were written", written, tries());
    QVERIFY(written > 0);
}

void TestEditedPictures::aDirectoryCutAtItsEndIsNotReplaced()
{
    const ScratchFolder folder;
    const QByteArray whole = pictures::madeTiff({});
    for (int missing = 1; missing <= 4; ++missing) { // the offset of a next directory, which readers do without
        const QByteArray cut = whole.chopped(missing);
        QVERIFY(folder.write("a.tif", cut));
        QVERIFY(!writeUserComment(folder.path("a.tif"), QStringLiteral("x")));
        QCOMPARE(folder.read("a.tif"), cut);
    }
}

void TestEditedPictures::aPictureThatIsCutShortIsLeftAlone()
{
    QFETCH(QByteArray, bytes);
    if (bytes.isEmpty())
        QSKIP("the program that makes this picture is not installed");
    const ScratchFolder folder(scratchPlace());
    constexpr qsizetype step = 17;
    for (qsizetype missing = 1; missing < bytes.size(); missing += missing < 40 ? 1 : step) {
        const QByteArray cut = bytes.chopped(missing);
        QVERIFY(folder.write("a", cut));
        const auto written = writeUserComment(folder.path("a"), QStringLiteral("not into this one"));
        QVERIFY2(!written, qPrintable(QStringLiteral("without its last %1 bytes").arg(missing)));
        QCOMPARE(folder.read("a"), cut);
    }
}

QUORLIN_TEST(TestEditedPictures)
#include "tst_edited_pictures.moc"
