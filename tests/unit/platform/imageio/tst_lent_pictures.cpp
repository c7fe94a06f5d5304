#include "platform/file/lent_file.h"
#include "platform/file/regular_file.h"
#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/picture_facts.h"
#include "tests/support/corpus.h"
#include "tests/support/test_program.h"

#include <QDirIterator>
#include <QTest>

#include <fcntl.h>

using namespace platform;

/** Pictures that are read through a descriptor are the same as those that are read under their names. */
class TestLentPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatTheNameLeadsTo();
    void readsManyAtOnce();
    void tellsWhatIsNotThere();
    void tellsWhatCannotBeRead();
};

namespace {

QStringList allPictures()
{
    QStringList paths;
    for (const QString &folder : {ownPicturesFolder(), corpusFolder()}) {
        QDirIterator items(folder, QDir::Files, QDirIterator::Subdirectories);
        while (items.hasNext())
            paths.append(items.next());
    }
    paths.sort();
    return paths;
}

std::shared_ptr<const LentFile> lent(const QString &path)
{
    auto file = LentFile::open(path);
    return file ? std::make_shared<const LentFile>(std::move(*file)) : nullptr;
}

/** What is known of a picture, its pixels included, as one value. */
QVariantList allOf(const Result<ImageSource> &source)
{
    if (!source)
        return {int(source.error().code), source.error().message};
    QVariantList all = {source->path(),      source->typeIdentifier(), source->uprightSize(),
                        source->pointSize(), source->orientation(),    source->imageCount(),
                        source->fileBytes(), source->iccProfile(),     source->properties().value_or(QVariantMap())};
    const QSize size = source->uprightSize();
    constexpr int few = 3'000'000; // pixels
    const auto bitmap = qint64(size.width()) * size.height() < few ? source->decode() : source->decodeAtLeast({64, 64});
    if (!bitmap)
        return all << int(bitmap.error().code) << bitmap.error().message;
    return all << bitmap->size() << bitmap->bitsPerComponent() << bitmap->toRawImage();
}

} // namespace

void TestLentPictures::readsWhatTheNameLeadsTo()
{
    const QStringList paths = allPictures();
    QVERIFY(!paths.isEmpty());
    const int step = tests::isSlowRun() ? 1 : 7; // every so many
    for (int i = 0; i < paths.size(); i += step) {
        const QString &path = paths[i];
        const auto file = lent(path);
        QVERIFY2(file, qPrintable(path));
        const auto known = allOf(ImageSource::open(path));
        const auto through = allOf(ImageSource::fromLent(file));
        QVERIFY2(known == through, qPrintable(path));
        const PictureFacts named = pictureFacts(path);
        const PictureFacts given = pictureFacts(file);
        QVERIFY2(named.taken == given.taken && named.camera == given.camera && named.lens == given.lens &&
                     named.pixels == given.pixels && named.typeIdentifier == given.typeIdentifier,
                 qPrintable(path));
    }
}

void TestLentPictures::readsManyAtOnce()
{
    const auto file = lent(picturePath("own/formats/rgb.jpg"));
    QVERIFY(file);
    LentReader one(file);
    LentReader other(file);
    const QByteArray first = one.read(20);
    QCOMPARE(other.read(4), first.left(4));
    QVERIFY(one.seek(0) && other.seek(10));
    QCOMPARE(one.read(20), first);
    QCOMPARE(other.read(10), first.mid(10));
    QCOMPARE(one.size(), QFileInfo(file->name()).size());
    QVERIFY(one.seek(one.size() - 1));
    QCOMPARE(one.read(5).size(), 1);
    QVERIFY(one.readProblem().isEmpty());
}

void TestLentPictures::tellsWhatIsNotThere()
{
    for (const char *path : {"/nowhere/at/all.jpg", "/tmp", "/dev/null"}) {
        const auto file = LentFile::open(QString::fromLatin1(path));
        QVERIFY(!file);
        QVERIFY(file.error().message.contains(QLatin1String(path)));
    }
}

void TestLentPictures::tellsWhatCannotBeRead()
{
    const QByteArray path = QFile::encodeName(picturePath("own/formats/rgb.jpg"));
    Descriptor onlyItsName(::open(path.constData(), O_PATH | O_CLOEXEC)); // every read of it fails
    const auto file = std::make_shared<const LentFile>(std::move(onlyItsName), QStringLiteral("a.jpg"));
    LentReader reader(file);
    QVERIFY(reader.read(1).isEmpty());
    QVERIFY(!readProblemOf(reader).isEmpty());
    const auto source = ImageSource::fromLent(file);
    QVERIFY(!source);
    QCOMPARE(source.error().code, ErrorCode::Unreadable);
    QVERIFY(source.error().message.contains(QLatin1String("a.jpg")));
    QVERIFY(pictureFacts(file).pixels.isEmpty());
}

QUORLIN_TEST(TestLentPictures)

#include "tst_lent_pictures.moc"
