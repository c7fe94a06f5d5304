#include "tests/support/every_read.h"

#include "platform/imageio/comments/user_comment_writer.h"
#include "platform/imageio/facts/raw_preview.h"
#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/picture_facts.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QDataStream>
#include <QImage>
#include <QTest>

#include <functional>
#include <map>

using platform::ImageSource;

Q_DECLARE_METATYPE(EveryRead::Fail)

namespace {

/** The outcome as one text by which two tries can be compared; empty if it failed. */
using Work = std::function<QByteArray(const QString &path)>;

QByteArray told(const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

QByteArray pixelsOf(const QString &path)
{
    const auto bitmap = ImageSource::open(path).and_then([](const ImageSource &source) { return source.decode(); });
    if (!bitmap)
        return {};
    const QImage image = bitmap->toRawImage();
    const QByteArray pixels(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes());
    return told(bitmap->pointSize()) + bitmap->iccProfile() + pixels;
}

/** The whole file afterwards; one that could not be written to is as it was. */
QByteArray writtenInto(const QString &path)
{
    QFile file(path);
    const auto bytes = [&file] { return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(); };
    const bool isWritten = platform::writeUserComment(path, QStringLiteral("another comment")).has_value();
    EveryRead::stop();
    return isWritten ? bytes() : QByteArray();
}

const std::map<QByteArray, Work> &works()
{
    static const std::map<QByteArray, Work> all = {
        {"comment",
         [](const QString &path) {
             const auto comment = platform::readUserComment(path);
             return comment ? "comment: " + comment->toUtf8() : QByteArray();
         }},
        {"properties",
         [](const QString &path) {
             const auto properties =
                 ImageSource::open(path).and_then([](const ImageSource &source) { return source.properties(); });
             return properties ? told(*properties) : QByteArray();
         }},
        {"metadata",
         [](const QString &path) {
             const auto metadata =
                 ImageSource::open(path).and_then([](const ImageSource &source) { return source.metadata(); });
             return metadata ? told(metadata->toProperties()) : QByteArray();
         }},
        {"facts",
         [](const QString &path) {
             const platform::PictureFacts facts = platform::pictureFacts(path);
             const QVariantList known = {facts.taken, facts.camera, facts.lens, facts.pixels};
             return facts.typeIdentifier.isEmpty() ? QByteArray() : told(known);
         }},
        {"pixels", pixelsOf},
        {"writing", writtenInto},
    };
    return all;
}

} // namespace

/** A read that fails is a failure, and never "there is none". */
class TestFailingReads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { EveryRead::stop(); }
    void tellsAFailureOrAll_data();
    void tellsAFailureOrAll();
    void tellsThatTheEndOfARawFileCannotBeRead();
};

void TestFailingReads::tellsAFailureOrAll_data()
{
    QTest::addColumn<QByteArray>("work");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<EveryRead::Fail>("fail");
    const QString pictures = QString::fromUtf8(QUORLIN_TEST_DATA) + QStringLiteral("/../pictures/");
    for (const char *name : {"metadata/every-group.jpg", "metadata/every-group.tif", "metadata/every-group.png",
                             "metadata/every-group.webp", "metadata/every-group.jp2", "metadata/every-group.heic",
                             "metadata/every-group.avif", "metadata/xmp.gif", "metadata/xmp.psd", "formats/profile.png",
                             "dpi/phys-144dpi.png", "dpi/header-96dpi.bmp", "orientation/turned_6.png",
                             "orientation/turned_6.webp", "orientation/turned_6.tif", "formats/plain.dng"})
        for (const auto &work : works()) {
            const QString path = pictures + QString::fromUtf8(name);
            QTest::addRow("%s of %s, then", work.first.constData(), name)
                << work.first << path << EveryRead::Fail::FromThenOn;
            if (!tests::isSlowRun())
                continue;
            QTest::addRow("%s of %s, once", work.first.constData(), name)
                << work.first << path << EveryRead::Fail::Once;
        }
}

void TestFailingReads::tellsAFailureOrAll()
{
    QFETCH(QByteArray, work);
    QFETCH(QString, picture);
    QFETCH(EveryRead::Fail, fail);
    const ScratchFolder folder;
    const QString path = folder.path("picture");
    const auto attempt = [&](int number) {
        QFile::remove(path);
        if (!QFile::copy(picture, path))
            return QByteArray("no copy");
        EveryRead::spoil(path, number, fail);
        const QByteArray answer = works().at(work)(path);
        EveryRead::stop();
        return answer;
    };
    const QByteArray whole = attempt(0x7fffffff);
    const int reads = EveryRead::count;
    QFile::remove(path);
    QVERIFY(QFile::copy(picture, path));
    const QByteArray original = folder.read("picture");
    int failures = 0;
    for (int number = 1; number <= reads; ++number) {
        const QByteArray answer = attempt(number);
        failures += answer.isEmpty();
        QVERIFY2(answer.isEmpty() || answer == whole,
                 "read " + QByteArray::number(number) + " of " + QByteArray::number(reads));
        QVERIFY(!answer.isEmpty() || folder.read("picture") == original);
        QCOMPARE(folder.names(), QStringList(QStringLiteral("picture")));
    }
    QVERIFY(whole.isEmpty() || failures > 0);
}

/** What is mapped fails too, and without a preview the sensor's own picture would be taken for the photograph. */
void TestFailingReads::tellsThatTheEndOfARawFileCannotBeRead()
{
    const ScratchFolder folder;
    const QString path = folder.path("picture");
    const QString raw = QString::fromUtf8(QUORLIN_TEST_DATA) + QStringLiteral("/../pictures/formats/plain.dng");
    QVERIFY(QFile::copy(raw, path) && folder.allow("picture", 0644));
    QVERIFY(platform::rawPreview({path, {}}).has_value());
    EveryRead::spoilMapped(path);
    const auto preview = platform::rawPreview({path, {}});
    EveryRead::stop();
    QVERIFY(!preview && preview.error().code == platform::ErrorCode::Unreadable);
    QVERIFY(!preview.error().message.isEmpty());
}

QUORLIN_TEST(TestFailingReads)
#include "tst_failing_reads.moc"
