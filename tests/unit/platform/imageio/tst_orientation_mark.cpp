#include "platform/imageio/exif/orientation_mark.h"
#include "platform/imageio/metadata/metadata.h"
#include "platform/imageio/source/image_source.h"
#include "tests/support/corpus.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTemporaryDir>
#include <QTest>

using namespace platform;

namespace {

QString pictureNamed(const QString &name)
{
    return picturePath(QStringLiteral("own/orientation/") + name);
}

} // namespace

class TestOrientationMark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void marksAFileUprightAndChangesNothingElse_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("before");
        for (int orientation = 1; orientation <= 8; ++orientation)
            QTest::addRow("jpeg %d", orientation) << QStringLiteral("landscape_%1.jpg").arg(orientation) << orientation;
        QTest::newRow("tiff 1") << QStringLiteral("turned_1.tif") << 1;
        QTest::newRow("tiff 6") << QStringLiteral("turned_6.tif") << 6;
    }

    void marksAFileUprightAndChangesNothingElse()
    {
        QFETCH(QString, name);
        QFETCH(int, before);
        QTemporaryDir folder;
        const QString path = folder.filePath(name);
        QVERIFY(QFile::copy(pictureNamed(name), path));
        QCOMPARE(ImageSource::open(path)->orientation(), before);
        const QByteArray was = pictures::bytesOf(path);
        QVERIFY(markUpright(path).has_value());
        const QByteArray is = pictures::bytesOf(path);
        QCOMPARE(ImageSource::open(path)->orientation(), 1);
        QCOMPARE(is.size(), was.size());
        int changed = 0;
        for (qsizetype i = 0; i < is.size(); ++i)
            changed += is.at(i) != was.at(i) ? 1 : 0;
        QCOMPARE(changed, before == 1 ? 0 : 1);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{name});
    }

    void marksThePacketToo_data()
    {
        QTest::addColumn<QByteArray>("statement");
        QTest::addColumn<QByteArray>("marked");
        QTest::newRow("attribute") << QByteArray("tiff:Orientation=\"6\"") << QByteArray("tiff:Orientation=\"1\"");
        QTest::newRow("element") << QByteArray("<tiff:Orientation>8</tiff:Orientation>")
                                 << QByteArray("<tiff:Orientation>1</tiff:Orientation>");
        QTest::newRow("something else") << QByteArray("tiff:Oriented=\"6\"") << QByteArray("tiff:Oriented=\"6\"");
    }

    void marksThePacketToo()
    {
        QFETCH(QByteArray, statement);
        QFETCH(QByteArray, marked);
        const QByteArray name("http://ns.adobe.com/xap/1.0/\0", 29);
        const QByteArray plain = pictures::bytesOf(pictureNamed(QStringLiteral("landscape_1.jpg")));
        const QByteArray packet = name + "<x>" + statement + "</x>";
        const QByteArray head = QByteArray("\xff\xe1") + char(0) + char(packet.size() + 2);
        const QByteArray file = plain.left(2) + head + packet + plain.mid(2);
        const Result<QByteArray> result = markedUpright(file);
        QVERIFY(result.has_value());
        QVERIFY(result->contains("<x>" + marked + "</x>"));
    }

    void leavesAFileThatStatesNone()
    {
        const QByteArray file = pictures::bytesOf(pictureNamed(QStringLiteral("invalid_0.jpg")));
        const Result<QByteArray> marked = markedUpright(file);
        QVERIFY(marked.has_value());
        QVERIFY(Metadata::fromFileBytes(*marked).orientation() <= 1);
    }

    void refusesOtherKindsOfFiles()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.png"));
        QVERIFY(QFile::copy(pictureNamed(QStringLiteral("turned_6.png")), path));
        const QByteArray was = pictures::bytesOf(path);
        const Result<void> result = markUpright(path);
        QVERIFY(!result.has_value());
        QCOMPARE(result.error().code, ErrorCode::Unsupported);
        QVERIFY(result.error().message.contains(path));
        QCOMPARE(pictures::bytesOf(path), was);
        QCOMPARE(markUpright(folder.filePath(QStringLiteral("none.jpg"))).error().code, ErrorCode::NotFound);
    }
};

QUORLIN_TEST(TestOrientationMark)

#include "tst_orientation_mark.moc"
