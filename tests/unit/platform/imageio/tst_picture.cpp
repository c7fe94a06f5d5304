#include "platform/imageio/source/picture.h"
#include "tests/support/expected_pictures.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTemporaryDir>
#include <QTest>

using platform::Bitmap;
using platform::Picture;

/** Pictures whose pixels are decoded when something needs them. */
class TestPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void opensAsItReads_data();
    void opensAsItReads();
    void decodesOnceForAllItsCopies();
    void scalesWithoutDecodingAll_data();
    void scalesWithoutDecodingAll();
    void becomesNullWhereItsPixelsAreDamaged();
    void keepsItsPixelsAtAnotherSize();
    void isNotNullWithoutPixels();
    void isEqualToWhatSharesItsPixels();

private:
    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_folder;
};

void TestPicture::initTestCase()
{
    QVERIFY(pictures::gradient(403, 301).save(path("a.png")));
    QVERIFY(pictures::gradient(403, 301).save(path("a.jpg"), "JPEG", 95));
    QByteArray damaged = pictures::bytesOf(path("a.png"));
    for (qsizetype i = damaged.size() / 2; i < damaged.size() / 2 + 40; ++i)
        damaged[i] = char(~damaged[i]);
    QFile broken(path("damaged.png"));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write(damaged) == damaged.size());
}

void TestPicture::opensAsItReads_data()
{
    QTest::addColumn<QString>("file");
    for (const char *folder : {"dpi/", "orientation/", "formats/"})
        for (const expected::Row &row : expected::rows(QString::fromLatin1(folder)))
            if (row.isDecodable && row.upright.width() * row.upright.height() < 3'000'000)
                QTest::newRow(qPrintable(row.name)) << row.path;
}

void TestPicture::opensAsItReads()
{
    QFETCH(QString, file);
    const Picture opened = Picture::opened(file);
    const Picture read = Picture::fromFile(file);
    QVERIFY(!opened.isDecoded());
    QCOMPARE(opened.pixelSize(), read.pixelSize());
    QCOMPARE(opened.size(), read.size());
    QCOMPARE(opened.bitmap().toRawImage(), read.bitmap().toRawImage());
    QCOMPARE(opened.isDecoded(), !read.isNull());
}

void TestPicture::decodesOnceForAllItsCopies()
{
    const Picture picture = Picture::opened(path("a.png"));
    const Picture copy = picture;
    QVERIFY(copy == picture);
    QCOMPARE(copy.bitmap().size(), QSize(403, 301));
    QVERIFY(picture.isDecoded());
    QVERIFY(picture.bitmap() == copy.bitmap());
}

void TestPicture::scalesWithoutDecodingAll_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("PNG") << path("a.png");
    QTest::newRow("JPEG") << path("a.jpg");
}

void TestPicture::scalesWithoutDecodingAll()
{
    QFETCH(QString, file);
    const Picture picture = Picture::opened(file);
    const Picture whole = Picture::fromFile(file);
    for (const QSize &size : {QSize(40, 30), QSize(97, 75), QSize(50, 40), QSize(300, 200), QSize(60, 45)}) {
        const auto scaled = picture.scaledTo(size);
        QVERIFY(scaled);
        QCOMPARE(scaled->size(), size);
        const auto wanted = whole.scaledTo(size);
        for (const QPoint &at : {QPoint(5, 5), QPoint(size.width() / 2, size.height() / 3)})
            for (const int component : {0, 1})
                QVERIFY(std::abs(scaled->pixel(at.x(), at.y())[size_t(component)] -
                                 wanted->pixel(at.x(), at.y())[size_t(component)]) <= 12);
        QVERIFY(*picture.scaledTo(size) == *scaled);
    }
    QVERIFY(!picture.isDecoded());
    QVERIFY(picture.bytesInMemory() >= 300 * 200 * 3 && picture.bytesInMemory() < 403 * 301 * 3 + 60 * 45 * 3);
    QVERIFY(!picture.scaledTo(QSize(0, 5)));
    QVERIFY(!Picture().scaledTo(QSize(5, 5)));
}

void TestPicture::becomesNullWhereItsPixelsAreDamaged()
{
    // Again and again: damage in the last rows is noticed by one thread while the others are done.
    for (int round = 0; round < 100; ++round)
        QVERIFY(Picture::fromFile(path("damaged.png")).isNull());
    const Picture whole = Picture::opened(path("damaged.png"));
    QVERIFY(!whole.isNull());
    QVERIFY(whole.bitmap().isNull());
    QVERIFY(whole.isNull());
    const Picture reduced = Picture::opened(path("damaged.png"));
    QVERIFY(!reduced.scaledTo(QSize(40, 30)));
    QVERIFY(reduced.isNull());
    QCOMPARE(reduced.size(), QSizeF(0, 0));
    QVERIFY(Picture::opened(path("missing.png")).isNull());
}

void TestPicture::keepsItsPixelsAtAnotherSize()
{
    const Picture picture = Picture::fromFile(path("a.png"));
    const Picture larger = picture.withSize(QSizeF(1000, 500));
    QCOMPARE(larger.size(), QSizeF(1000, 500));
    QVERIFY(larger.bitmap() == picture.bitmap());
    QVERIFY(!(larger == picture));
    QVERIFY(Picture().withSize(QSizeF(3, 3)).isNull());
}

void TestPicture::isNotNullWithoutPixels()
{
    const Picture empty = Picture::ofNoSize();
    QVERIFY(!empty.isNull());
    QCOMPARE(empty.size(), QSizeF(0, 0));
    QVERIFY(empty.bitmap().isNull());
    QVERIFY(!empty.scaledTo(QSize(5, 5)));
    QVERIFY(Picture(Bitmap()).isNull());
}

void TestPicture::isEqualToWhatSharesItsPixels()
{
    const Bitmap bitmap = Bitmap::fromImage(pictures::gradient(8, 8));
    QVERIFY(Picture(bitmap) == Picture(bitmap));
    QVERIFY(!(Picture(bitmap) == Picture(bitmap, QSizeF(3, 3))));
    QVERIFY(!(Picture(bitmap) == Picture()));
    QVERIFY(Picture() == Picture());
    QVERIFY(!(Picture::opened(path("a.png")) == Picture::opened(path("a.png"))));
}

QUORLIN_TEST(TestPicture)
#include "tst_picture.moc"
