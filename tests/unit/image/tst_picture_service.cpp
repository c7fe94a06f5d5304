#include "image/services/picture_service.h"

#include "image/services/format_words.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

using image::PictureService;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

/** A picture on a pattern, as scripts ask for it, and the words for files of pictures. */
class TestPictureService : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString at(const char *name) const { return m_folder.filePath(text(name)); }

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }
    void laysATransparentPictureOnCopiesOfAnother();
    void saysWhatFailed();
    void namesTypesInWords_data();
    void namesTypesInWords();
    void tellsTheSizeOfAFile();
};

void TestPictureService::laysATransparentPictureOnCopiesOfAnother()
{
    QImage hole = pictures::plain(6, 4, Qt::transparent);
    hole.setPixelColor(1, 1, Qt::red);
    QImage tile = pictures::plain(2, 1, Qt::white);
    tile.setPixelColor(1, 0, Qt::black);
    QVERIFY(hole.save(at("hole.png")) && tile.save(at("tile.png")));
    QCOMPARE(PictureService().layOnPattern(at("hole.png"), at("tile.png"), at("laid.png")), QString());
    const QImage laid(at("laid.png"));
    QCOMPARE(laid.size(), QSize(6, 4));
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 6; ++x) {
            const QColor expected = x == 1 && y == 1 ? Qt::red : x % 2 == 0 ? Qt::white : Qt::black;
            QCOMPARE(laid.pixelColor(x, y).rgb(), expected.rgb());
        }
}

void TestPictureService::saysWhatFailed()
{
    QVERIFY(pictures::gradient(3, 3).save(at("a.png")));
    const PictureService service;
    QCOMPARE(service.layOnPattern(at("missing.png"), at("a.png"), at("x.png")), text("not a readable picture"));
    QCOMPARE(service.layOnPattern(at("a.png"), at("missing.png"), at("x.png")), text("the pattern cannot be read"));
    QCOMPARE(service.layOnPattern(at("a.png"), at("a.png"), at("x.unknown")), text("this type cannot be written"));
    QVERIFY(!service.layOnPattern(at("a.png"), at("a.png"), at("no/folder.png")).isEmpty());
    QVERIFY(!QFile::exists(at("x.png")));
}

void TestPictureService::namesTypesInWords_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("word");
    const std::pair<const char *, const char *> rows[] = {
        {"a.JPG", "JPEG"},      {"a.tif", "TIFF"},      {"a.heic", "HEIC"},
        {"a.psd", "Photoshop"}, {"a.jp2", "JPEG 2000"}, {"a.txt", "Text"},
    };
    for (const auto &[name, word] : rows)
        QTest::newRow(name) << text(name) << text(word);
}

void TestPictureService::namesTypesInWords()
{
    QFETCH(QString, name);
    QTEST(image::typeWord(image::typeOfName(name)), "word");
}

void TestPictureService::tellsTheSizeOfAFile()
{
    QFile file(at("a"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("12345") == 5);
    file.close();
    QCOMPARE(image::fileBytes(at("a")), 5);
    QCOMPARE(image::fileBytes(at("missing")), -1);
    QCOMPARE(image::pixelText({4032, 3024}), text("4032×3024"));
}

QUORLIN_TEST(TestPictureService)
#include "tst_picture_service.moc"
