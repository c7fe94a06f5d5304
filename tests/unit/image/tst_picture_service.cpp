#include "image/services/picture_service.h"

#include "image/services/format_words.h"
#include "image/types/output_types.h"
#include "platform/imageio/formats/formats.h"
#include "tests/support/corpus.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QLocale>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

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
    void namesAnUnknownTypeByWhatItsNameSays();
    void tellsTheSizeOfAFile();
    void listsEveryFormatOnceWithItsExtensions();
    void saysWhatFormatsKeep_data();
    void saysWhatFormatsKeep();
    void asksThePictureWhetherItsProfileFits_data();
    void asksThePictureWhetherItsProfileFits();
    void namesEachWrittenTypeOnce();
    void tellsCodesOfQualityFromLowToHigh();
    void tellsRawFilesWithAndWithoutAPreview();
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

void TestPictureService::namesAnUnknownTypeByWhatItsNameSays()
{
    QCOMPARE(image::typeWord(text("com.example.sketch")), text("EXAMPLE.SKETCH"));
}

void TestPictureService::listsEveryFormatOnceWithItsExtensions()
{
    QSet<QString> ids;
    QSet<QString> extensions;
    const QVariantList formats = PictureService().formats();
    for (const QVariant &each : formats) {
        const QVariantMap format = each.toMap();
        const QString id = format.value(text("id")).toString();
        QVERIFY2(!id.isEmpty() && !ids.contains(id), qPrintable(id));
        ids.insert(id);
        const QStringList names = format.value(text("extensions")).toStringList();
        QVERIFY2(!names.isEmpty(), qPrintable(id));
        for (const QString &name : names) {
            QVERIFY2(!extensions.contains(name), qPrintable(name));
            extensions.insert(name);
            QCOMPARE(image::typeOfName(text("a.") + name), id);
        }
    }
    QVERIFY(ids.contains(text("public.jpeg")) && ids.contains(text("public.tiff")));
}

void TestPictureService::saysWhatFormatsKeep_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("profile");
    QTest::addColumn<bool>("alpha");
    QTest::addColumn<bool>("depth16");
    QTest::addColumn<bool>("quality");
    QTest::newRow("JPEG") << text("public.jpeg") << text("yes") << false << false << true;
    QTest::newRow("PNG") << text("public.png") << text("yes") << true << true << false;
    QTest::newRow("TIFF") << text("public.tiff") << text("yes") << true << true << false;
    QTest::newRow("BMP") << text("public.bmp") << text("no") << false << false << false;
    QTest::newRow("GIF") << text("com.compuserve.gif") << text("no") << true << false << false;
}

void TestPictureService::saysWhatFormatsKeep()
{
    QFETCH(QString, id);
    const QVariantList formats = PictureService().formats();
    const auto found = std::find_if(formats.begin(), formats.end(),
                                    [&id](const QVariant &each) { return each.toMap().value(text("id")) == id; });
    QVERIFY(found != formats.end());
    const QVariantMap format = found->toMap();
    QTEST(format.value(text("profile")).toString(), "profile");
    QTEST(format.value(text("alpha")).toBool(), "alpha");
    QTEST(format.value(text("depth16")).toBool(), "depth16");
    QTEST(format.value(text("quality")).toBool(), "quality");
}

void TestPictureService::asksThePictureWhetherItsProfileFits_data()
{
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("kept");
    QTest::newRow("into a PNG") << text("own/formats/profile.jpg") << text("public.png") << true;
    QTest::newRow("into a BMP") << text("own/formats/profile.jpg") << text("public.bmp") << false;
    QTest::newRow("no picture") << text("own/README.md") << text("public.png") << false;
    QTest::newRow("no written type") << text("own/formats/profile.jpg") << text("public.plain-text") << false;
}

void TestPictureService::asksThePictureWhetherItsProfileFits()
{
    QFETCH(QString, picture);
    QFETCH(QString, id);
    QTEST(PictureService().keepsProfile(picturePath(picture), id), "kept");
}

void TestPictureService::namesEachWrittenTypeOnce()
{
    QSet<QString> keywords;
    for (const image::WrittenType &type : image::writtenTypes()) {
        const platform::Format *format = platform::formatNamed(type.identifier);
        QVERIFY2(format, type.identifier.data());
        QCOMPARE(format->written.has_value(), !type.isPage);
        QVERIFY2(!keywords.contains(type.keyword), type.keyword.data());
        keywords.insert(type.keyword);
        QCOMPARE(image::targetTypeFor(type.keyword).has_value(), !type.isOfRecipes);
        QCOMPARE(platform::fileFormatForType(type.identifier).has_value(), !type.isPage && !type.isOfRecipes);
        QVERIFY2(!type.carriesMetadata || format->keeps.exif, type.identifier.data());
        QCOMPARE(image::typeWord(type.identifier), QString(type.word));
    }
    for (const platform::Format &format : platform::formats())
        QCOMPARE(std::any_of(image::writtenTypes().begin(), image::writtenTypes().end(),
                             [&](const image::WrittenType &type) { return type.identifier == format.identifier; }),
                 platform::writableFormatForType(format.identifier) || format.content == platform::Content::Pdf);
    QCOMPARE(PictureService().outputTypes().size(), qsizetype(image::writtenTypes().size()));
}

void TestPictureService::tellsCodesOfQualityFromLowToHigh()
{
    const QStringList codes = PictureService().qualityCodes();
    QCOMPARE(codes.size(), 10);
    for (qsizetype i = 0; i < codes.size(); ++i) {
        QCOMPARE(image::qualityForCode(codes[i]), double(i + 1) / 10);
        QCOMPARE(image::conversionQuality(codes[i]), double(qMin<qsizetype>(i + 1, 9)) / 10);
    }
}

void TestPictureService::tellsRawFilesWithAndWithoutAPreview()
{
    const QVariantList types = PictureService().rawTypes();
    QVERIFY(!types.isEmpty());
    for (const QVariant &each : types) {
        const QVariantMap type = each.toMap();
        QCOMPARE(type.value(text("extension")).toString(), type.value(text("extension")).toString().toLower());
        QCOMPARE(type.value(text("hasPreview")).typeId(), int(QMetaType::Bool));
    }
}

QUORLIN_TEST(TestPictureService)
#include "tst_picture_service.moc"
