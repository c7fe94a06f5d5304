#include "files/services/file_service.h"

#include "files/items/file_facts.h"
#include "tests/support/raised_text.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <limits>

using files::FileService;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

/** What scripts of jobs ask about files and have done with them. */
class TestFileService : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    QString at(const char *name) const { return m_folder.filePath(text(name)); }
    void write(const char *name, const QByteArray &bytes) const
    {
        QFile file(at(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray read(const char *name) const { return pictures::bytesOf(at(name)); }
    QStringList names() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); } // its natural order
    void init() { m_folder = QTemporaryDir(); }

    void tellsOneFolderHoweverItIsSpelled();
    void tellsWhoReadsAFile();
    void tellsWhatIsAtAPath();
    void tellsHowMuchRoomThereIs();
    void listsAFolder();
    void collectsForAScript();
    void makesAndRemovesFolders();
    void placesByWord();
    void refusesATextThatIsNoIdentity_data();
    void refusesATextThatIsNoIdentity();
    void keepsUnfinishedFilesUntilTheyAreSwept();
    void tellsOfPicturesAndOfWhatIsNone();
    void tellsWhatIsKnownWithoutDecoding();
    void writesAndReadsComments();
    void writesAndReadsText();
    void keepsTheNewestLines();
    void tellsSizesAndDatesInTheReadersForm();
    void saysSizesInEnglishForNamesAndInTheReadersWayForTheEye();
    void refusesWhatIsNoCountOfBytes_data();
    void refusesWhatIsNoCountOfBytes();
};

void TestFileService::tellsOneFolderHoweverItIsSpelled()
{
    QVERIFY(QDir(m_folder.path()).mkdir(text("in")) && QFile::link(at("in"), at("link")));
    const FileService service;
    const QString known = service.folderIdentity(at("in"));
    for (const char *spelling : {"in/", "in/.", "in/../in", "link", "link/../in", "link/."})
        QCOMPARE(service.folderIdentity(at(spelling)), known);
    QVERIFY(service.folderIdentity(m_folder.path()) != known);
    QCOMPARE(service.folderIdentity(at("link/new/er")), service.folderIdentity(at("in/new//er/")));
    QVERIFY(service.folderIdentity(at("in/new")) != service.folderIdentity(at("in/other")));
}

void TestFileService::tellsWhoReadsAFile()
{
    write("a", "a");
    QVERIFY(QFile::link(at("a"), at("link")));
    const FileService service;
    const QVariantMap owners = service.owners({at("a"), at("link"), at("missing")});
    QCOMPARE(owners.size(), 2);
    QCOMPARE(owners.value(service.identity(at("a"))).toStringList(), QStringList({at("a"), at("link")}));
    QCOMPARE(owners.value(service.identity(at("link"))).toStringList(), QStringList{at("link")});
    QCOMPARE(service.identity(at("missing")), QString());
}

void TestFileService::tellsWhatIsAtAPath()
{
    write("a.jpg", "12345");
    QVERIFY(QFile::link(at("nothing"), at("broken")));
    const FileService service;
    const auto facts = [&](const char *name) {
        const QVariantMap info = service.info(at(name));
        return QVariantList{info.value(text("exists")), info.value(text("isFolder")), info.value(text("isLink")),
                            info.value(text("bytes"))};
    };
    QCOMPARE(facts("a.jpg"), QVariantList({true, false, false, 5.0}));
    QCOMPARE(facts("broken"), QVariantList({true, false, true, -1.0}));
    QCOMPARE(facts("missing"), QVariantList({false, false, false, -1.0}));
    QCOMPARE(service.info(m_folder.path()).value(text("isFolder")), QVariant(true));
    QCOMPARE(service.absolute(at("x/../a.jpg")), at("a.jpg"));
    QCOMPARE(service.home(), QDir::homePath());
    QVERIFY(QDir(service.dataFolder()).exists());
}

void TestFileService::tellsHowMuchRoomThereIs()
{
    const FileService service;
    const QVariantMap here = service.space(at("not/there/yet"));
    QVERIFY(here.value(text("free")).toDouble() > 0);
    QCOMPARE(here.value(text("disk")), service.space(m_folder.path()).value(text("disk")));
    files::setDiskSpaceSource([](const QString &) { return files::DiskSpace{7, 3}; });
    QCOMPARE(service.space(text("/")), (QVariantMap{{text("free"), 7.0}, {text("disk"), 3.0}}));
    files::setDiskSpaceSource({});
}

void TestFileService::listsAFolder()
{
    QVERIFY(QDir(m_folder.path()).mkpath(text("in/.hidden")));
    write("in/a", "a");
    QVERIFY(QFile::link(at("nothing"), at("in/broken")));
    const FileService service;
    QStringList all = service.names(at("in"));
    all.sort();
    QCOMPARE(all, QStringList({text(".hidden"), text("a"), text("broken")}));
    QCOMPARE(service.folders(at("in")), QStringList{text(".hidden")});
    QCOMPARE(service.names(at("missing")), QStringList());
}

void TestFileService::collectsForAScript()
{
    for (const char *file : {"a.jpg", "a.xmp", "c.txt"})
        write(file, "x");
    const QVariantMap found =
        FileService().collect({m_folder.path()}, {text("jpg")}, {text("xmp")}, {text("jpg"), text("txt")});
    const QVariantMap expected = {
        {text("paths"), QStringList{at("a.jpg")}},       {text("listed"), QStringList{at("a.jpg"), at("c.txt")}},
        {text("folders"), QStringList{m_folder.path()}}, {text("leftOut"), 2},
        {text("companions"), QStringList{at("a.xmp")}},  {text("example"), text("c.txt")}};
    QCOMPARE(found, expected);
}

void TestFileService::makesAndRemovesFolders()
{
    const FileService service;
    QCOMPARE(service.makeFolder(at("a/b")), QString());
    write("a/b/file", "x");
    QVERIFY(service.makeFolder(at("a/b/file")).contains(at("a/b/file")));
    service.removeEmptyFolder(at("a/b"));
    QVERIFY(QDir(at("a/b")).exists());
    QVERIFY(QFile::remove(at("a/b/file")));
    service.removeEmptyFolder(at("a/b"));
    QVERIFY(!QDir(at("a/b")).exists());
}

void TestFileService::placesByWord()
{
    write("new", "new");
    write("there", "old");
    const FileService service;
    const auto status = [&](const char *from, const char *to, const QString &replaced) {
        return service.place(at(from), at(to), replaced).value(text("status")).toString();
    };
    QCOMPARE(status("new", "there", {}), text("Taken"));
    QCOMPARE(status("new", "there", text("1:2")), text("Taken"));
    QCOMPARE(status("new", "there", service.identity(at("there"))), text("OK"));
    QCOMPARE(read("there"), QByteArray("new"));
    const QVariantMap failed = service.place(at("gone"), at("x"), {});
    QCOMPARE(failed.value(text("status")).toString(), text("Failed"));
    QVERIFY(!failed.value(text("message")).toString().isEmpty());
}

void TestFileService::refusesATextThatIsNoIdentity_data()
{
    QTest::addColumn<QString>("replaced");
    for (const char *word : {"false", "true", "1", ":", "1:", ":1", "1:2:3", "-1:2", "1:2 "})
        QTest::newRow(word) << text(word);
}

void TestFileService::refusesATextThatIsNoIdentity()
{
    QFETCH(QString, replaced);
    write("new", "new");
    write("there", "old");
    QCOMPARE(raisedBy([&] { FileService().place(at("new"), at("there"), replaced); }),
             text("TypeError: Expected an identity or empty text for replaced but received \"%1\"").arg(replaced));
    QCOMPARE(read("there"), QByteArray("old"));
    QCOMPARE(read("new"), QByteArray("new"));
}

void TestFileService::keepsUnfinishedFilesUntilTheyAreSwept()
{
    const FileService service;
    const QString staging = service.makeStaging(m_folder.path()).toString();
    QVERIFY(staging.endsWith(u'/'));
    service.sweep(m_folder.path());
    QCOMPARE(names().size(), 1);
    service.removeStaging(staging);
    QCOMPARE(names().size(), 0);
    QVERIFY(service.makeStaging(at("missing")).isNull());
}

void TestFileService::tellsOfPicturesAndOfWhatIsNone()
{
    QVERIFY(pictures::gradient(33, 17).save(at("a.jpg"), "JPEG") && pictures::gradient(5, 6).save(at("b.png"), "PNG"));
    write("c.jpg", "no picture");
    const FileService service;
    const QVariantMap size = {{text("width"), 33}, {text("height"), 17}};
    QCOMPARE(service.storedSize(at("a.jpg")).toMap(), size);
    QVERIFY(service.storedSize(at("c.jpg")).isNull());
    QVERIFY(service.jpegBlock(at("a.jpg")).toMap().value(text("width")).toInt() % 8 == 0);
    QVERIFY(service.jpegBlock(at("b.png")).isNull());
    const QVariantMap picture = service.picture(at("b.png"));
    QCOMPARE(picture.value(text("width")), QVariant(5));
    QCOMPARE(picture.value(text("type")), QVariant(text("PNG")));
    QCOMPARE(picture.value(text("bytes")), QVariant(double(QFileInfo(at("b.png")).size())));
    const QVariantMap none = service.picture(at("c.jpg"));
    QCOMPARE(none.value(text("width")), QVariant(0));
    QCOMPARE(none.value(text("type")), QVariant(text("JPEG"))); // by its name
    QVERIFY(!service.markUpright(at("c.jpg")).isEmpty());
    QCOMPARE(service.profileName(at("c.jpg")), QString());
}

void TestFileService::tellsWhatIsKnownWithoutDecoding()
{
    QVERIFY(pictures::gradient(33, 17).save(at("a.jpg"), "JPEG"));
    const FileService service;
    const QVariantMap facts = service.facts(at("a.jpg")).toMap();
    QCOMPARE(facts.value(text("width")), QVariant(33));
    QCOMPARE(facts.value(text("type")), QVariant(text("JPEG")));
    QCOMPARE(facts.value(text("taken")), QVariant(text("")));
    QVERIFY(QDateTime::fromString(facts.value(text("changed")).toString(), Qt::ISODate).isValid());
    QCOMPARE(service.facts(m_folder.path()).toMap().value(text("isFolder")), QVariant(true));
    QVERIFY(service.facts(at("missing")).isNull());
}

void TestFileService::writesAndReadsComments()
{
    QVERIFY(pictures::gradient(33, 17).save(at("a.jpg"), "JPEG"));
    QVERIFY(QFile::copy(at("a.jpg"), at("b.jpg")));
    write("c.txt", "text");
    const FileService service;
    QVERIFY(service.holdsComment(at("a.jpg")) && !service.holdsComment(at("c.txt")));
    QCOMPARE(service.pagesLostToComment(at("a.jpg")), 0);
    QCOMPARE(service.writeComment(at("a.jpg"), text("at the sea")), QString());
    QCOMPARE(service.readComment(at("a.jpg")),
             (QVariantMap{{text("comment"), text("at the sea")}, {text("problem"), text("")}}));
    QCOMPARE(service.lostMetadata(at("a.jpg"), at("b.jpg")),
             (QVariantMap{{text("lost"), QStringList{text("EXIF")}}, {text("problem"), text("")}}));
    for (const auto &[from, to] : {std::pair("c.txt", "b.jpg"), {"missing.jpg", "b.jpg"}, {"a.jpg", "missing.jpg"}}) {
        const QVariantMap compared = service.lostMetadata(at(from), at(to));
        QCOMPARE(compared.value(text("lost")), QVariant(QStringList()));
        QVERIFY2(!compared.value(text("problem")).toString().isEmpty(), from);
    }
    QVERIFY(!service.writeComment(at("c.txt"), text("no")).isEmpty());
    QVERIFY(!service.readComment(at("missing.jpg")).value(text("problem")).toString().isEmpty());
}

void TestFileService::writesAndReadsText()
{
    const FileService service;
    QCOMPARE(service.writeText(at("a.txt"), text("Größe\n")), QString());
    QCOMPARE(service.readText(at("a.txt")).toString(), text("Größe\n"));
    QVERIFY(service.readText(at("missing")).isNull());
    QVERIFY(!service.writeText(at("no/folder.txt"), text("x")).isEmpty());
}

void TestFileService::keepsTheNewestLines()
{
    const FileService service;
    QCOMPARE(service.appendLines(at("log"), text("1\n2\n")), QString());
    QCOMPARE(service.appendLines(at("log"), text("3\n4\n")), QString());
    QCOMPARE(service.keepNewestLines(at("log"), 2, 4), QString());
    QCOMPARE(read("log"), QByteArray("1\n2\n3\n4\n"));
    QCOMPARE(service.keepNewestLines(at("log"), 2, 3), QString());
    QCOMPARE(read("log"), QByteArray("3\n4\n"));
    write("cut", "half");
    QCOMPARE(service.appendLines(at("cut"), text("whole\n")), QString());
    QCOMPARE(read("cut"), QByteArray("half\nwhole\n"));
    QVERIFY(!service.appendLines(m_folder.path(), text("x\n")).isEmpty());
    QVERIFY(!service.keepNewestLines(at("missing"), 1, 2).isEmpty());
}

void TestFileService::tellsSizesAndDatesInTheReadersForm()
{
    const FileService service;
    QCOMPARE(service.byteText(2'400'000), text("2.4 MB"));
    // Counts have their forms in the tables of texts, which this test does not load.
    QCOMPARE(service.byteText(2), text("2 bytes"));
    QVERIFY(service.dateText(text("2026-08-14T10:20:30")).contains(text("26")));
    QCOMPARE(service.dateText(text("no date")), QString());
}

void TestFileService::saysSizesInEnglishForNamesAndInTheReadersWayForTheEye()
{
    QFile large(at("large"));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(123400000));
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const FileService service;
    QCOMPARE(service.facts(at("large")).toMap().value(text("size")).toString(), text("123.4 MB"));
    QCOMPARE(service.byteText(123400000), text("123,4 MB"));
    QLocale::setDefault(before);
}

void TestFileService::refusesWhatIsNoCountOfBytes_data()
{
    QTest::addColumn<double>("bytes");
    QTest::newRow("none") << std::nan("");
    QTest::newRow("without end") << std::numeric_limits<double>::infinity();
    QTest::newRow("more than can be counted") << 1e300;
}

void TestFileService::refusesWhatIsNoCountOfBytes()
{
    QFETCH(double, bytes);
    QVERIFY(raisedBy([&] { FileService().byteText(bytes); }).startsWith(text("TypeError: Expected a number of bytes")));
}

QUORLIN_TEST(TestFileService)
#include "tst_file_service.moc"
