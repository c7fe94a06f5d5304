#include "platform/disk/trash.h"
#include "tests/support/corpus_names.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QDateTime>
#include <QTest>
#include <QUrl>

using namespace platform;

/** The trash: its contents, what file managers are told, and that nothing is ever lost. */
class TestTrash : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void makesATrashForTheUserAlone();
    void saysWhereTheItemWas();
    void numbersNamesThatAreTaken_data();
    void numbersNamesThatAreTaken();
    void passesOverNamesThatLieThereWithoutInfo();
    void trashesFoldersWhole();
    void trashesALinkAndNotWhatItLeadsTo();
    void takesEveryName();
    void cutsNamesThatAreTooLong();
    void refusesWhatIsNoItem_data();
    void refusesWhatIsNoItem();
    void leavesTheItemWhereTheTrashCannotBeMade_data();
    void leavesTheItemWhereTheTrashCannotBeMade();
    void leavesTheItemThatMayNotBeTaken();
    void leavesAFolderThatHoldsTheTrash();
    void usesTheTrashOfAnotherFileSystem();
    void namesAPlaceForNamesThatAreNoPaths();
    void copiesIntoTheTrashWhereAFileSystemHasNone();

private:
    QStringList infoLines(const char *name) const
    {
        return QString::fromUtf8(
                   m_home->read(QStringLiteral("data/Trash/info/%1.trashinfo").arg(QString::fromUtf8(name))))
            .split(u'\n');
    }
    void useDataOf(const ScratchFolder &home) const { qputenv("XDG_DATA_HOME", QFile::encodeName(home.path("data"))); }

    std::unique_ptr<ScratchFolder> m_home;
};

void TestTrash::init()
{
    m_home = std::make_unique<ScratchFolder>();
    useDataOf(*m_home);
}

void TestTrash::makesATrashForTheUserAlone()
{
    QVERIFY(m_home->write("a.jpg", "a"));
    QVERIFY(moveToTrash(m_home->path("a.jpg")));
    const auto own = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    for (const char *folder : {"data/Trash", "data/Trash/files", "data/Trash/info"})
        QCOMPARE(QFileInfo(m_home->path(folder)).permissions() & QFileDevice::Permissions(0x7077),
                 QFileDevice::Permissions(own));
    QCOMPARE(m_home->names(), QStringList{QStringLiteral("data")});
    QCOMPARE(m_home->read("data/Trash/files/a.jpg"), QByteArray("a"));
}

void TestTrash::saysWhereTheItemWas()
{
    QVERIFY(m_home->write("sub folder/50% \303\244.jpg", "a"));
    const QString before = QDateTime::currentDateTime().toString(Qt::ISODate);
    QVERIFY(moveToTrash(m_home->path("sub folder/50% \303\244.jpg")));
    const QStringList lines = infoLines("50% \303\244.jpg");
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines[0], QStringLiteral("[Trash Info]"));
    QCOMPARE(lines[1], QStringLiteral("Path=") + m_home->path("sub%20folder/50%25%20%C3%A4.jpg"));
    QVERIFY(lines[2].startsWith(QStringLiteral("DeletionDate=")));
    const QString date = lines[2].section(u'=', 1);
    QCOMPARE(QDateTime::fromString(date, Qt::ISODate).toString(Qt::ISODate), date);
    QVERIFY(date >= before && date <= QDateTime::currentDateTime().toString(Qt::ISODate));
}

void TestTrash::numbersNamesThatAreTaken_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("second");
    QTest::newRow("extension") << "a.jpg"
                               << "a.2.jpg";
    QTest::newRow("none") << "noextension"
                          << "noextension.2";
    QTest::newRow("hidden") << ".hidden"
                            << ".hidden.2";
    QTest::newRow("dot at the end") << "a."
                                    << "a.2.";
    QTest::newRow("dots alone") << "..."
                                << "...2.";
}

void TestTrash::numbersNamesThatAreTaken()
{
    QFETCH(QString, name);
    QFETCH(QString, second);
    for (const char *bytes : {"1", "2", "3"}) {
        QVERIFY(m_home->write(name, bytes));
        QVERIFY(moveToTrash(m_home->path(name)));
    }
    QCOMPARE(m_home->names("data/Trash/files").size(), 3);
    QCOMPARE(m_home->names("data/Trash/info").size(), 3);
    QCOMPARE(m_home->read(QStringLiteral("data/Trash/files/") + name), QByteArray("1"));
    QCOMPARE(m_home->read(QStringLiteral("data/Trash/files/") + second), QByteArray("2"));
}

void TestTrash::passesOverNamesThatLieThereWithoutInfo()
{
    QVERIFY(m_home->write("data/Trash/files/a.jpg", "old") && m_home->write("a.jpg", "new"));
    QVERIFY(moveToTrash(m_home->path("a.jpg")));
    QCOMPARE(m_home->read("data/Trash/files/a.jpg"), QByteArray("old"));
    QCOMPARE(m_home->read("data/Trash/files/a.2.jpg"), QByteArray("new"));
    QCOMPARE(m_home->names("data/Trash/info"), QStringList{QStringLiteral("a.2.jpg.trashinfo")});
}

void TestTrash::trashesFoldersWhole()
{
    QVERIFY(m_home->write("folder/inner/a", "a") && m_home->write("folder/.b", "b"));
    QVERIFY(moveToTrash(m_home->path("folder/")));
    QCOMPARE(m_home->read("data/Trash/files/folder/inner/a") + m_home->read("data/Trash/files/folder/.b"),
             QByteArray("ab"));
    QCOMPARE(infoLines("folder")[1], QStringLiteral("Path=") + m_home->path("folder"));
}

void TestTrash::trashesALinkAndNotWhatItLeadsTo()
{
    QVERIFY(m_home->write("folder/a", "a") && m_home->link("folder", "link") && m_home->link("nowhere", "dangling"));
    QVERIFY(moveToTrash(m_home->path("link/")) && moveToTrash(m_home->path("dangling")));
    QCOMPARE(m_home->linkText("data/Trash/files/link"), QByteArray("folder"));
    QCOMPARE(m_home->linkText("data/Trash/files/dangling"), QByteArray("nowhere"));
    QCOMPARE(m_home->names(), QStringLiteral("data folder").split(u' '));
    QCOMPARE(m_home->read("folder/a"), QByteArray("a"));
}

void TestTrash::takesEveryName()
{
    const QStringList names = oddNames();
    QVERIFY(names.size() > 20);
    for (const QString &name : names) {
        QVERIFY2(m_home->write(QStringLiteral("in/") + name, name.toUtf8()), qPrintable(name));
        QVERIFY2(moveToTrash(m_home->path(QStringLiteral("in/") + name)), qPrintable(name));
    }
    QCOMPARE(m_home->names("in"), QStringList());
    QCOMPARE(m_home->names("data/Trash/files").size(), names.size());
    QStringList places;
    for (const QString &info : m_home->names("data/Trash/info")) {
        const QByteArray path = m_home->read(QStringLiteral("data/Trash/info/") + info).split('\n').at(1).mid(5);
        const QString place = QUrl::fromPercentEncoding(path);
        places.append(place.mid(place.lastIndexOf(u'/') + 1));
        QCOMPARE(m_home->read(QStringLiteral("data/Trash/files/") + info.chopped(10)), places.last().toUtf8());
    }
    QCOMPARE(QSet<QString>(places.begin(), places.end()), QSet<QString>(names.begin(), names.end()));
}

void TestTrash::cutsNamesThatAreTooLong()
{
    const QString longest = QString(125, QChar(0x00e9)) + QStringLiteral("a.jpg");
    const QString noBase = QStringLiteral("a.") + QString(253, u'x');
    for (const QString &name : {longest, noBase, longest}) {
        QVERIFY(m_home->write(name, "a"));
        QVERIFY(moveToTrash(m_home->path(name)));
    }
    QCOMPARE(m_home->names("data/Trash/files").size(), 3);
    QCOMPARE(m_home->names("data/Trash/info").size(), 3);
    QCOMPARE(m_home->names("data/Trash/files").filter(QStringLiteral(".jpg")).size(), 2);
}

void TestTrash::refusesWhatIsNoItem_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<ErrorCode>("code");
    QTest::newRow("missing") << "/no/such/file" << ErrorCode::NotFound;
    QTest::newRow("empty") << "" << ErrorCode::NotFound;
    QTest::newRow("everything") << "/" << ErrorCode::InvalidValue;
    QTest::newRow("this folder") << "/tmp/." << ErrorCode::InvalidValue;
    QTest::newRow("the folder above") << "/tmp/.." << ErrorCode::InvalidValue;
}

void TestTrash::refusesWhatIsNoItem()
{
    QFETCH(QString, path);
    QFETCH(ErrorCode, code);
    const auto trashed = moveToTrash(path);
    QVERIFY(!trashed);
    QCOMPARE(trashed.error().code, code);
}

void TestTrash::leavesTheItemWhereTheTrashCannotBeMade_data()
{
    QTest::addColumn<QByteArray>("inTheWay");
    for (const char *path : {"data", "data/Trash", "data/Trash/files", "data/Trash/info"})
        QTest::newRow(path) << QByteArray(path);
}

void TestTrash::leavesTheItemWhereTheTrashCannotBeMade()
{
    QFETCH(QByteArray, inTheWay);
    QVERIFY(m_home->write("a.jpg", "a") && m_home->write(inTheWay.constData(), "no folder"));
    QVERIFY(!moveToTrash(m_home->path("a.jpg")));
    QCOMPARE(m_home->read("a.jpg"), QByteArray("a"));
    QVERIFY(m_home->names("data/Trash/files").isEmpty() && m_home->names("data/Trash/info").isEmpty());
}

void TestTrash::leavesTheItemThatMayNotBeTaken()
{
    const Nobody nobody;
    const ScratchFolder here;
    useDataOf(here);
    QVERIFY(nobody.ready() && here.write("folder/a.jpg", "a") && here.allow("folder", 0555));
    const auto trashed = moveToTrash(here.path("folder/a.jpg"));
    QVERIFY(here.allow("folder", 0755));
    QVERIFY(!trashed);
    QCOMPARE(here.read("folder/a.jpg"), QByteArray("a"));
    QVERIFY(here.names("data/Trash/files").isEmpty() && here.names("data/Trash/info").isEmpty());
}

void TestTrash::leavesAFolderThatHoldsTheTrash()
{
    QVERIFY(m_home->write("data/a", "a"));
    QVERIFY(!moveToTrash(m_home->path("data")));
    QCOMPARE(m_home->read("data/a"), QByteArray("a"));
    QVERIFY(m_home->names("data/Trash/files").isEmpty() && m_home->names("data/Trash/info").isEmpty());
}

void TestTrash::usesTheTrashOfAnotherFileSystem()
{
    const ScratchFolder other(QStringLiteral("/dev/shm"));
    if (!areApart(m_home->path(), other.path()))
        QSKIP("no second file system");
    const QString name = QFileInfo(other.path()).fileName() + QStringLiteral(".jpg");
    QCOMPARE(trashPlaceFor(other.path()), QStringLiteral("/dev/shm"));
    QCOMPARE(trashPlaceFor(other.path("not/there")), QStringLiteral("/dev/shm"));
    QCOMPARE(trashPlaceFor(m_home->path()), m_home->path("data/Trash"));
    QVERIFY(other.write("a b.jpg", "a") && QFile::rename(other.path("a b.jpg"), other.path(name)));
    QVERIFY(moveToTrash(other.path(name)));
    const QString trash = QStringLiteral("/dev/shm/.Trash-%1").arg(::geteuid());
    QFile info(trash + QStringLiteral("/info/") + name + QStringLiteral(".trashinfo"));
    QVERIFY(info.open(QIODevice::ReadOnly));
    QCOMPARE(info.readAll().split('\n').at(1), "Path=" + other.path(name).mid(9).toUtf8());
    QVERIFY(other.names().isEmpty() && m_home->names("data/Trash/files").isEmpty());
    QVERIFY(QFile::remove(trash + QStringLiteral("/files/") + name) && info.remove());
    for (const char *folder : {"/files", "/info", ""}) // it stays if others have items in it
        QDir().rmdir(trash + QString::fromLatin1(folder));
}

void TestTrash::namesAPlaceForNamesThatAreNoPaths()
{
    const ScratchFolder gone;
    QVERIFY(gone.write("removed/a", "a") && QFile::remove(gone.path("removed/a")));
    const QString working = QDir::currentPath();
    for (const QString &folder : {working, gone.path("removed")}) {
        QVERIFY(QDir::setCurrent(folder));
        if (folder != working)
            QVERIFY(QDir().rmdir(folder));
        QStringList places;
        for (const char *name : {"", "a", "abc", "abc/d", ".", "..", "/", "//", "a\nb"})
            places << trashPlaceFor(QString::fromLatin1(name));
        places << trashPlaceFor(QString(QChar(u'\0'))) << trashPlaceFor(QStringLiteral("a") + QChar(u'\0'));
        const auto trashed = moveToTrash(QStringLiteral("a"));
        QVERIFY(QDir::setCurrent(working));
        QVERIFY(!places.contains(QString()));
        QVERIFY(!trashed);
    }
}

void TestTrash::copiesIntoTheTrashWhereAFileSystemHasNone()
{
    const ScratchFolder other(QStringLiteral("/dev/shm"));
    const QString trash = QStringLiteral("/dev/shm/.Trash-%1").arg(::geteuid());
    if (!areApart(m_home->path(), other.path()) || QFileInfo::exists(trash))
        QSKIP("no second file system without a trash");
    QFile inTheWay(trash);
    QVERIFY(inTheWay.open(QIODevice::WriteOnly) && other.write("folder/a.jpg", "a"));
    const QString place = trashPlaceFor(other.path());
    const auto trashed = moveToTrash(other.path("folder"));
    QVERIFY(inTheWay.remove());
    QCOMPARE(place, m_home->path("data/Trash"));
    QVERIFY(trashed);
    QCOMPARE(m_home->read("data/Trash/files/folder/a.jpg"), QByteArray("a"));
    QCOMPARE(infoLines("folder")[1], QStringLiteral("Path=") + other.path("folder"));
    QCOMPARE(other.names(), QStringList());
}

QUORLIN_TEST(TestTrash)
#include "tst_trash.moc"
