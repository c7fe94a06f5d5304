#include "files/items/picture_collector.h"

#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace files;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

/** Files and folders as they are dropped, turned into the list to work on. */
class TestPictureCollector : public QObject
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

    void collectsInNaturalOrderFilesFirst();
    void collectsWhatIsHardToReach();
    void tellsWhatItLeavesOut();
};

void TestPictureCollector::collectsInNaturalOrderFilesFirst()
{
    QDir dir(m_folder.path());
    for (const char *folder : {"b10", "b2/deep", "p.app", ".hidden"})
        QVERIFY(dir.mkpath(text(folder)));
    for (const char *file : {"z10.jpg", "Z2.Jpg", "b10/a.JPG", "b2/deep/c.jpg", "b2/b.jpg", "p.app/x.jpg",
                             ".hidden/x.jpg", ".x.jpg", "n.txt"})
        write(file, "x");
    const QStringList all = {at("Z2.Jpg"), at("z10.jpg"), at("b2/b.jpg"), at("b2/deep/c.jpg"), at("b10/a.JPG")};
    const QString folder = m_folder.path();
    const Collected found = collectFiles({folder + u'/'}, {{text("JPG")}, {}, {}});
    QCOMPARE(found.paths, all);
    QCOMPARE(found.listed, all);
    QCOMPARE(found.leftOut, 1);
    QCOMPARE(collectFiles({folder}, {{text("*")}, {}, {}}).paths.size(), 7);
}

/** Links to files, paths beyond what the system takes at once, and names that are no valid text. */
void TestPictureCollector::collectsWhatIsHardToReach()
{
    QDir dir(m_folder.path());
    QVERIFY(dir.mkpath(text("real/other")) && dir.mkpath(text("in")));
    write("real/a.jpg", "x");
    write("real/other/no.jpg", "x");
    QVERIFY(QFile::link(at("real/a.jpg"), at("in/link.jpg")) && QFile::link(at("real/other"), at("in/other")));
    QVERIFY(QFile::link(at("nothing.jpg"), at("in/broken.jpg")) && ::mkfifo(qPrintable(at("in/pipe.jpg")), 0600) == 0);
    const QByteArray odd = QFile::encodeName(at("in")) + "/odd\xff.jpg";
    ::close(::open(odd.constData(), O_CREAT | O_WRONLY, 0600));
    const QByteArray name(200, 'd');
    int deep = ::open(qPrintable(at("in")), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < 30; ++level) {
        QVERIFY(::mkdirat(deep, name.constData(), 0700) == 0);
        const int inside = ::openat(deep, name.constData(), O_RDONLY | O_DIRECTORY);
        ::close(deep);
        deep = inside;
    }
    ::close(::openat(deep, "far.jpg", O_CREAT | O_WRONLY, 0600));
    ::close(deep);
    const QStringList paths = collectFiles({at("in")}, {{text("jpg")}, {}, {}}).paths;
    QCOMPARE(paths.size(), 3);
    QCOMPARE(paths[0], at("in/link.jpg"));
    QVERIFY(paths[1].startsWith(at("in/odd")));
    QVERIFY(paths[2].endsWith(text("/far.jpg")) && paths[2].size() > 6000);
    ::unlink(odd.constData());                             // the folder's own removal has no word for this name
    std::filesystem::current_path(at("in").toStdString()); // too deep to be removed by its path
    std::filesystem::remove_all(name.toStdString());
    std::filesystem::current_path("/");
}

void TestPictureCollector::tellsWhatItLeavesOut()
{
    for (const char *file : {"a.jpg", "a.xmp", "b.heic", "c.txt", "d"})
        write(file, "x");
    QVERIFY(::mkfifo(qPrintable(at("pipe.jpg")), 0600) == 0);
    const CollectRule rule = {{text("jpg")}, {text("xmp")}, {text("jpg"), text("heic")}};
    const Collected found = collectFiles({m_folder.path()}, rule);
    QCOMPARE(found.paths, QStringList{at("a.jpg")});
    QCOMPARE(found.listed, QStringList({at("a.jpg"), at("b.heic")}));
    QCOMPARE(found.companions, QStringList{at("a.xmp")});
    QCOMPARE(found.leftOut, 4);
    QCOMPARE(found.example, text("b.heic"));
    QCOMPARE(found.folders, QStringList{m_folder.path()});
    const Collected dropped = collectFiles({at("missing.jpg"), at("pipe.jpg"), at("a.jpg")}, rule);
    QCOMPARE(dropped.paths, QStringList{at("a.jpg")});
    QCOMPARE(dropped.leftOut, 2);
    QCOMPARE(dropped.example, text("missing.jpg"));
}

QUORLIN_TEST(TestPictureCollector)
#include "tst_picture_collector.moc"
