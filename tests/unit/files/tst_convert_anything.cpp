#include "files/cNSFileHandling.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>

namespace {

/** A page so small that nothing draws it; it is as small as it should be all the same. */
bool isPageOfNoPoint(const QString &path, const char *type)
{
    const auto source = platform::ImageSource::open(path);
    return QByteArray(type) == "pdf" && source && source->pointSize().width() < 1;
}

} // namespace

/** Whatever a file holds, converting it ends with a whole picture or with nothing. */
class ConvertAnything : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsWithAPictureOrNothing_data();
    void endsWithAPictureOrNothing();
    void endsWithAPictureOrNothingWhereBytesWereChanged();
};

void ConvertAnything::endsWithAPictureOrNothing_data()
{
    QTest::addColumn<QString>("path");
    constexpr int mostPixels = 400'000; // more only take time
    for (const char *folder : {"broken/", "formats/", "orientation/rot", "orientation/container", "dpi/"})
        for (const expected::Row &row : expected::rows(QString::fromLatin1(folder)))
            if (!row.isDecodable || row.upright.width() * row.upright.height() <= mostPixels)
                QTest::newRow(qPrintable(row.name)) << row.path;
}

void ConvertAnything::endsWithAPictureOrNothing()
{
    QFETCH(QString, path);
    const ScratchFolder home;
    const QByteArray before = pictures::bytesOf(path);
    cNSFileHandling service;
    for (const char *type : {"pdf", "png", "tiff", "bmp", "gif", "jpeg", "jp2"}) {
        const QString name = QStringLiteral("made.") + QString::fromLatin1(type);
        QCOMPARE(service.hConvertFileType(path, QString::fromLatin1(type), QStringLiteral("5"), home.path(name)).size(),
                 3);
        const bool isMade = home.isThere(qPrintable(name));
        QCOMPARE(home.names(), isMade ? QStringList(name) : QStringList());
        if (isMade) {
            if (isPageOfNoPoint(path, type)) // not even tried: the library that draws pages loses memory over it
                QVERIFY(home.read(name).startsWith("%PDF"));
            else
                QVERIFY2(platform::ImageSource::open(home.path(name))->decode(), type);
            QVERIFY(QFile::remove(home.path(name)));
        }
    }
    QVERIFY(pictures::bytesOf(path) == before);
}

/** The same photograph with a byte in its headers or its scan changed: thousands of slightly different files. */
void ConvertAnything::endsWithAPictureOrNothingWhereBytesWereChanged()
{
    const QByteArray photo = pictures::bytesOf(QStringLiteral(QUORLIN_TEST_DATA "/jpeg/odd-size.jpg"));
    QVERIFY(!photo.isEmpty());
    const ScratchFolder home;
    cNSFileHandling service;
    int made = 0;
    const qsizetype step = std::max<qsizetype>(1, photo.size() / 300);
    for (qsizetype at = 2; at < photo.size(); at += step) {
        QByteArray changed = photo;
        changed[at] = char(changed[at] ^ (at % 2 == 0 ? 0xff : 0x10));
        QVERIFY(home.write("in.jpg", changed));
        for (const char *type : {"bmp", "tiff", "pdf"}) {
            service.hConvertFileType(home.path("in.jpg"), QString::fromLatin1(type), QString(), home.path("out"));
            if (home.isThere("out")) {
                QVERIFY(platform::ImageSource::open(home.path("out")));
                QVERIFY(QFile::remove(home.path("out")));
                ++made;
            }
            QCOMPARE(home.names(), QStringList(QStringLiteral("in.jpg")));
        }
    }
    QVERIFY(made > 0);
}

QUORLIN_TEST(ConvertAnything)
#include "tst_convert_anything.moc"
