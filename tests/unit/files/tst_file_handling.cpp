#include "files/cNSFileHandling.h"
#include "platform/controls/stand_ins.h"
#include "platform/foundation/raised.h"
#include "tests/support/corpus_names.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QGuiApplication>
#include <QImage>
#include <QLocale>
#include <QTest>

/** The words that the file operations answer with. */
class TestFileHandling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void makesFolders();
    void placesAndTrashes();
    void placesUnderEveryName();
    void tellsWhetherSomethingExists();
    void tellsSizes();
    void stampsDates_data();
    void stampsDates();
    void keepsTheStampBefore();
    void addsIcons();
    void tellsTypes_data();
    void tellsTypes();
    void deletesInOrderAndGoesOn();
    void deletesNothingWhereOneIsNoLocation_data();
    void deletesNothingWhereOneIsNoLocation();
    void opensTheFolderOfTheField();

private:
    QString at(const char *name) const { return m_home->path(name); }
    QVariant locationOf(const char *name) const { return QUrl::fromLocalFile(at(name)).toString(QUrl::FullyEncoded); }

    std::unique_ptr<ScratchFolder> m_home;
    cNSFileHandling m_files;
};

void TestFileHandling::init()
{
    m_home = std::make_unique<ScratchFolder>();
    QVERIFY(m_home->write("a.jpg", "a"));
    qputenv("XDG_DATA_HOME", QFile::encodeName(at("data")));
}

void TestFileHandling::makesFolders()
{
    QCOMPARE(m_files.hCreateDirectory(at("x/y/z")), QStringLiteral("OK"));
    QVERIFY(QFileInfo(at("x/y/z")).isDir());
    QCOMPARE(m_files.hCreateDirectory(at("x/y")), QStringLiteral("EXISTS"));
    QCOMPARE(m_files.hCreateDirectory(at("a.jpg")), QStringLiteral("EXISTS"));
    QCOMPARE(m_files.hCreateDirectory(at("a.jpg/x")), QStringLiteral("FAILED"));
    QCOMPARE(m_files.hCreateDirectory(QString()), QStringLiteral("FAILED"));
}

void TestFileHandling::placesAndTrashes()
{
    QCOMPARE(m_files.hCopyFileTo(at("a.jpg"), at("x/b.jpg")), QStringLiteral("OK"));
    QCOMPARE(m_files.hMoveFileTo(at("x/b.jpg"), at("y/c.jpg")), QStringLiteral("OK"));
    QCOMPARE(m_files.hAliasFileTo(at("y/c.jpg"), at("z/d.jpg")), QStringLiteral("OK"));
    QCOMPARE(m_home->read("z/d.jpg"), QByteArray("a"));
    QCOMPARE(m_files.hTrashFile(at("y/c.jpg")), QStringLiteral("OK"));
    QCOMPARE(m_home->read("data/Trash/files/c.jpg"), QByteArray("a"));
    QVERIFY(!m_home->isThere("y/c.jpg") && !m_home->isThere("x/b.jpg"));
    QCOMPARE(m_files.hTrashFile(at("y/c.jpg")), QStringLiteral("Failed"));
    QCOMPARE(m_files.hCopyFileTo(at("missing"), at("e")), QStringLiteral("Failed"));
    QCOMPARE(m_files.hMoveFileTo(at("missing"), at("e")), QStringLiteral("Failed"));
    QCOMPARE(m_files.hAliasFileTo(at("missing"), at("a.jpg/e")), QStringLiteral("Failed"));
    QCOMPARE(m_files.hMoveFileTo(at("a.jpg"), at("a.jpg")), QStringLiteral("Failed"));
    QVERIFY(!m_home->isThere("a.jpg"));
}

void TestFileHandling::placesUnderEveryName()
{
    QVERIFY(oddNames().size() > 20);
    for (const QString &name : oddNames()) {
        const QString one = m_home->path(QStringLiteral("one/") + name);
        const QString two = m_home->path(QStringLiteral("two/") + name);
        QVERIFY2(m_files.hCopyFileTo(at("a.jpg"), one) == QStringLiteral("OK"), qPrintable(name));
        QVERIFY2(m_files.hMoveFileTo(one, two) == QStringLiteral("OK"), qPrintable(name));
        QVERIFY2(m_files.hAliasFileTo(two, one) == QStringLiteral("OK"), qPrintable(name));
        QCOMPARE(m_home->names("one"), QStringList{name});
        QVERIFY2(m_files.hCheckIfFileExist(one) == QStringLiteral("OK"), qPrintable(name));
        m_files.hDeleteFiles({QUrl::fromLocalFile(one).toString(QUrl::FullyEncoded),
                              QUrl::fromLocalFile(two).toString(QUrl::FullyEncoded)});
        QVERIFY2(m_home->names("one").isEmpty() && m_home->names("two").isEmpty(), qPrintable(name));
    }
}

void TestFileHandling::tellsWhetherSomethingExists()
{
    QVERIFY(m_home->link("nowhere", "dangling") && m_home->link("a.jpg", "link"));
    QCOMPARE(m_files.hCheckIfFileExist(at("a.jpg")), QStringLiteral("OK"));
    QCOMPARE(m_files.hCheckIfFileExist(m_home->path()), QStringLiteral("OK"));
    QCOMPARE(m_files.hCheckIfFileExist(at("link")), QStringLiteral("OK"));
    QCOMPARE(m_files.hCheckIfFileExist(at("dangling")), QStringLiteral("NO"));
    QCOMPARE(m_files.hCheckIfFileExist(at("missing")), QStringLiteral("NO"));
    QCOMPARE(m_files.hCheckIfFileExist(QString()), QStringLiteral("NO"));
}

void TestFileHandling::tellsSizes()
{
    cNSFileHandling fresh;
    QVERIFY(fresh.getFileSize(at("missing")).isNull());
    QVERIFY(m_home->write("big", QByteArray(2400000, 'x')) && m_home->write("empty", "") &&
            m_home->link("big", "link"));
    QCOMPARE(fresh.getFileSize(at("big")), QStringLiteral("2.4 MB"));
    QCOMPARE(fresh.property("myFileSizeStr").toString(), QStringLiteral("2.4 MB"));
    QCOMPARE(fresh.getFileSize(at("missing")), QStringLiteral("2.4 MB"));
    QCOMPARE(fresh.getFileSize(at("empty")), QStringLiteral("Zero KB"));
    QCOMPARE(fresh.getFileSize(at("a.jpg")), QStringLiteral("1 byte"));
    QCOMPARE(fresh.getFileSize(at("link")), QStringLiteral("3 bytes"));
}

void TestFileHandling::stampsDates_data()
{
    QTest::addColumn<QVariant>("code");
    QTest::addColumn<QString>("stamp");
    for (const QVariant &code : {QVariant(0), QVariant(1), QVariant(2), QVariant(QStringLiteral("0")),
                                 QVariant(QStringLiteral("1")), QVariant(QStringLiteral("2"))})
        QTest::addRow("%s %s", code.typeName(), qPrintable(code.toString())) << code << "16-Nov-2026T03-52-09";
    for (const QVariant &code :
         {QVariant(3), QVariant(-1), QVariant(1.5), QVariant(QStringLiteral("3")), QVariant(QStringLiteral("")),
          QVariant(QStringLiteral(" 1")), QVariant(QStringLiteral("01")), QVariant(QVariantList{1}),
          QVariant(QVariantMap()), QVariant()})
        QTest::addRow("%s %s", code.typeName(), qPrintable(code.toString())) << code << "(null)";
}

void TestFileHandling::stampsDates()
{
    QFETCH(QVariant, code);
    QFETCH(QString, stamp);
    QFile file(at("a.jpg"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime(QDate(2026, 11, 16), QTime(3, 52, 9)), QFileDevice::FileModificationTime));
    file.close();
    cNSFileHandling fresh;
    QCOMPARE(fresh.hGetModificationDateFile(at("a.jpg"), code), stamp);
    QCOMPARE(fresh.property("dateString").toString(), stamp == QStringLiteral("(null)") ? QString() : stamp);
}

void TestFileHandling::keepsTheStampBefore()
{
    cNSFileHandling fresh;
    QCOMPARE(fresh.hGetCreationDateFile(at("missing"), 1), QStringLiteral("(null)"));
    const QDateTime birth = QFileInfo(at("a.jpg")).birthTime();
    const QDateTime date = birth.isValid() ? birth : QFileInfo(at("a.jpg")).lastModified();
    const QString stamp = fresh.hGetCreationDateFile(at("a.jpg"), 1);
    QCOMPARE(QLocale(QLocale::English, QLocale::UnitedKingdom)
                 .toDateTime(stamp, QStringLiteral("d-MMM-yyyy'T'HH-mm-ss"))
                 .toSecsSinceEpoch(),
             date.toSecsSinceEpoch());
    QCOMPARE(fresh.hGetModificationDateFile(m_home->path(), 3), stamp);
    QCOMPARE(fresh.hGetCreationDateFile(at("missing"), QStringLiteral("x")), stamp);
    QCOMPARE(fresh.hGetCreationDateFile(at("missing"), 2), QStringLiteral("(null)"));
    QCOMPARE(fresh.hGetCreationDateFile(at("missing"), 3), QStringLiteral("(null)"));
}

void TestFileHandling::addsIcons()
{
    QImage image(8, 8, QImage::Format_RGB888);
    image.fill(Qt::red);
    QVERIFY(m_home->write("folder/k", ""));
    m_files.hAddIconToFile(at("missing"), platform::Picture(platform::Bitmap::fromImage(image)));
    m_files.hAddIconToFile(at("folder"), platform::Picture());
    QCOMPARE(m_home->names("folder").size(), 1);
    m_files.hAddIconToFile(at("folder"), platform::Picture(platform::Bitmap::fromImage(image)));
    QVERIFY(m_home->read("folder/.directory").contains("Icon=./.folder-icon.png"));
    QCOMPARE(QImage(at("folder/.folder-icon.png")).size(), QSize(8, 8));
}

void TestFileHandling::tellsTypes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::newRow("picture") << "a.jpg"
                             << "public.jpeg";
    QTest::newRow("capitals") << "b.TIFF"
                              << "public.tiff";
    QTest::newRow("unknown") << "c.xyz"
                             << "dyn.xyz";
    QTest::newRow("folder") << "folder"
                            << "public.folder";
    QTest::newRow("folder with an extension") << "folder.jpg"
                                              << "public.folder";
    QTest::newRow("link to a folder") << "to folder.png"
                                      << "public.folder";
    QTest::newRow("link to nothing") << "dangling.png" << QString();
    QTest::newRow("missing") << "missing.jpg" << QString();
}

void TestFileHandling::tellsTypes()
{
    QFETCH(QString, name);
    QFETCH(QString, type);
    QVERIFY(m_home->write("b.TIFF", "") && m_home->write("c.xyz", "") && m_home->write("folder/k", ""));
    QVERIFY(m_home->write("folder.jpg/k", "") && m_home->link("folder", "to folder.png"));
    QVERIFY(m_home->link("nowhere", "dangling.png"));
    QCOMPARE(m_files.hGetFileType(m_home->path(name)), type);
    QCOMPARE(m_files.hGetFileType(m_home->path(name)).isNull(), type.isNull());
}

void TestFileHandling::deletesInOrderAndGoesOn()
{
    QVERIFY(m_home->write("folder/inner/b", "b") && m_home->write("c d.jpg", "c") && m_home->write("kept/e", "e"));
    QVERIFY(m_home->link("kept", "link"));
    QCOMPARE(m_files.hDeleteFiles({}), QStringLiteral("OK"));
    QCOMPARE(m_files.hDeleteFiles({locationOf("missing"), locationOf("folder"), QStringLiteral("http://host/x"),
                                   QStringLiteral("file://host") + at("a.jpg"), QStringLiteral("file:///"),
                                   locationOf("c d.jpg"), QString(locationOf("link").toString() + u'/')}),
             QStringLiteral("OK"));
    QCOMPARE(m_home->names(), QStringLiteral("a.jpg kept").split(u' '));
    QCOMPARE(m_home->read("kept/e"), QByteArray("e"));
}

void TestFileHandling::deletesNothingWhereOneIsNoLocation_data()
{
    QTest::addColumn<QVariant>("wrong");
    QTest::newRow("path") << QVariant(QStringLiteral("/a/b.jpg"));
    QTest::newRow("empty") << QVariant(QStringLiteral(""));
    QTest::newRow("number") << QVariant(1);
    QTest::newRow("nothing") << QVariant();
}

void TestFileHandling::deletesNothingWhereOneIsNoLocation()
{
    QFETCH(QVariant, wrong);
    QVERIFY_EXCEPTION_THROWN(m_files.hDeleteFiles({locationOf("a.jpg"), wrong}), platform::Raised);
    QVERIFY(m_home->isThere("a.jpg"));
}

void TestFileHandling::opensTheFolderOfTheField()
{
    QVERIFY(m_home->write("bin/xdg-open",
                          "#!/bin/sh\nprintf %s \"$1\" > \"$0.said.tmp\" && mv \"$0.said.tmp\" \"$0.said\"\n"));
    QVERIFY(m_home->allow("bin/xdg-open", 0755) && m_home->write("my folder/k", "k"));
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(at("bin")) + ':' + before);
    cNSFileHandling object;
    object.hShowInFinder({});
    platform::TextField field;
    object.setProperty("tfDestinationFolder", QVariant::fromValue<QObject *>(&field));
    object.hShowInFinder({});
    field.setProperty("stringValue", at("missing"));
    object.hShowInFinder({});
    field.setProperty("stringValue", at("my folder"));
    object.hShowInFinder({});
    qputenv("PATH", before);
    QTRY_VERIFY(m_home->isThere("bin/xdg-open.said"));
    QCOMPARE(m_home->read("bin/xdg-open.said"), "file://" + at("my folder").toUtf8().replace(' ', "%20"));
}

QUORLIN_GUI_TEST(TestFileHandling)
#include "tst_file_handling.moc"
