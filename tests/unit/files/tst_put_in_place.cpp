#include "files/finishing/put_in_place.h"

#include "platform/disk/disk_file_system.h"
#include "platform/disk/item_identity.h"
#include "tests/support/model_file_system.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace files;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

/** The last step of a finished file: to its name, and never over what is not meant. */
class TestPutInPlace : public QObject
{
    Q_OBJECT

    platform::DiskFileSystem m_disk;
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
    void init() { m_folder = QTemporaryDir(); }

    void placesOnlyWhereNothingIs();
    void replacesOnlyWhatIsKnown();
    void leavesALinkThatGotThereAlone();
    void putsBackWhatGotThereInBetween();
    void takesAFreePlaceWhateverWasKnown();
    void replacesInOneStepWhereNamesCannotBeSwapped();
    void leavesAllAsItIsWhenTheDiskFails_data();
    void leavesAllAsItIsWhenTheDiskFails();
    void takesNoNameThatIsNone();
};

void TestPutInPlace::placesOnlyWhereNothingIs()
{
    write("new", "new");
    write("there", "old");
    QVERIFY(QFile::link(at("nothing"), at("broken")));
    for (const char *taken : {"there", "broken"})
        QCOMPARE(placeFile(m_disk, at("new"), at(taken)).outcome, PlaceOutcome::Taken);
    QCOMPARE(read("there"), QByteArray("old"));
    QCOMPARE(placeFile(m_disk, at("new"), at("free")).outcome, PlaceOutcome::Placed);
    QCOMPARE(read("free"), QByteArray("new"));
    const auto lost = placeFile(m_disk, at("new"), at("other"));
    QCOMPARE(lost.outcome, PlaceOutcome::Failed);
    QVERIFY(lost.message.contains(text("other")));
}

void TestPutInPlace::replacesOnlyWhatIsKnown()
{
    write("new", "new");
    write("a", "old");
    write("original", "original");
    QVERIFY(QFile::setPermissions(at("a"), QFile::ReadOwner | QFile::WriteOwner));
    const QString known = platform::itemIdentity(at("a"));
    QCOMPARE(placeFileInsteadOf(m_disk, at("new"), at("original"), known).outcome, PlaceOutcome::Taken);
    QCOMPARE(placeFileInsteadOf(m_disk, at("new"), m_folder.path(), known).outcome, PlaceOutcome::Taken);
    QCOMPARE(read("original"), QByteArray("original"));
    QCOMPARE(placeFileInsteadOf(m_disk, at("new"), at("a"), known).outcome, PlaceOutcome::Placed);
    QCOMPARE(read("a"), QByteArray("new"));
    QVERIFY(!(QFile::permissions(at("a")) & QFile::ReadOther));
    write("newer", "newer");
    QCOMPARE(placeFileInsteadOf(m_disk, at("newer"), at("gone"), known).outcome, PlaceOutcome::Placed);
    QCOMPARE(names(), QStringList({text("a"), text("gone"), text("original")}));
}

/** Between the plan and the run the folder was swapped for a link to the originals. */
void TestPutInPlace::leavesALinkThatGotThereAlone()
{
    QVERIFY(QDir(m_folder.path()).mkdir(text("in")) && QDir(m_folder.path()).mkdir(text("out")));
    write("in/a.jpg", "original");
    write("out/a.jpg", "old result");
    write("new", "new");
    const QString known = platform::itemIdentity(at("out/a.jpg"));
    QVERIFY(QDir(at("out")).removeRecursively() && QFile::link(at("in"), at("out")));
    QCOMPARE(placeFileInsteadOf(m_disk, at("new"), at("out/a.jpg"), known).outcome, PlaceOutcome::Taken);
    QCOMPARE(read("in/a.jpg"), QByteArray("original"));
}

namespace {

const QString unfinished = QStringLiteral("/d/.unfinished/a.jpg");
const QString place = QStringLiteral("/d/a.jpg");

/** A finished file, and an older one in its place. */
void fill(ModelFileSystem &disk)
{
    disk.addFolder(QStringLiteral("/d"));
    disk.addFolder(QStringLiteral("/d/.unfinished"));
    disk.addFile(unfinished, "new");
    disk.addFile(place, "old");
}

QString knownAt(const ModelFileSystem &disk, const QString &path)
{
    return platform::identityOf(*disk.look(path));
}

} // namespace

/** Another program saves its own file under the name, after the look at what is there. */
void TestPutInPlace::putsBackWhatGotThereInBetween()
{
    ModelFileSystem disk;
    fill(disk);
    const QString known = knownAt(disk, place);
    disk.meanwhile = [&disk] {
        disk.drop(place);
        disk.addFile(place, "somebody's");
    };
    QCOMPARE(placeFileInsteadOf(disk, unfinished, place, known).outcome, PlaceOutcome::Taken);
    QCOMPARE(disk.bytes(place), QByteArray("somebody's"));
    QCOMPARE(disk.bytes(unfinished), QByteArray("new"));
}

void TestPutInPlace::takesAFreePlaceWhateverWasKnown()
{
    ModelFileSystem disk;
    fill(disk);
    const QString known = knownAt(disk, place);
    disk.drop(place);
    QCOMPARE(placeFileInsteadOf(disk, unfinished, place, known).outcome, PlaceOutcome::Placed);
    QCOMPARE(disk.bytes(place), QByteArray("new"));

    disk.addFile(unfinished, "newer");
    const QString again = knownAt(disk, place);
    disk.meanwhile = [&disk] { disk.drop(place); };
    QCOMPARE(placeFileInsteadOf(disk, unfinished, place, again).outcome, PlaceOutcome::Placed);
    QCOMPARE(disk.bytes(place), QByteArray("newer"));
    QVERIFY(!disk.look(unfinished));
}

void TestPutInPlace::replacesInOneStepWhereNamesCannotBeSwapped()
{
    ModelFileSystem disk;
    fill(disk);
    disk.canExchange = false;
    const QString known = knownAt(disk, place);
    disk.addFile(QStringLiteral("/d/b.jpg"), "original");
    QCOMPARE(placeFileInsteadOf(disk, unfinished, QStringLiteral("/d/b.jpg"), known).outcome, PlaceOutcome::Taken);
    QCOMPARE(placeFileInsteadOf(disk, unfinished, place, known).outcome, PlaceOutcome::Placed);
    QCOMPARE(disk.bytes(place), QByteArray("new"));
    QCOMPARE(disk.bytes(QStringLiteral("/d/b.jpg")), QByteArray("original"));
    QVERIFY(!disk.look(unfinished));
    QCOMPARE(disk.permissionsCopied, QStringList{place + u'>' + unfinished});
}

void TestPutInPlace::leavesAllAsItIsWhenTheDiskFails_data()
{
    QTest::addColumn<bool>("canExchange");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("free") << true << false;
    QTest::newRow("swapped") << true << true;
    QTest::newRow("replaced") << false << true;
}

void TestPutInPlace::leavesAllAsItIsWhenTheDiskFails()
{
    QFETCH(bool, canExchange);
    QFETCH(bool, isTaken);
    ModelFileSystem disk;
    fill(disk);
    disk.canExchange = canExchange;
    const QString known = knownAt(disk, place);
    if (!isTaken)
        disk.drop(place);
    const auto before = disk.everything();
    disk.trouble = [] { return std::make_error_code(std::errc::io_error); };
    const PlaceResult result = placeFileInsteadOf(disk, unfinished, place, known);
    QCOMPARE(result.outcome, PlaceOutcome::Failed);
    QVERIFY2(result.message.startsWith(text("a.jpg")), qPrintable(result.message));
    QCOMPARE(disk.everything(), before);
}

void TestPutInPlace::takesNoNameThatIsNone()
{
    write("a", "a");
    write("new", "new");
    const QString known = platform::itemIdentity(at("a"));
    const QString cut = at("a") + QChar(0) + text("b");
    QCOMPARE(placeFileInsteadOf(m_disk, at("new"), cut, known).outcome, PlaceOutcome::Failed);
    QCOMPARE(placeFile(m_disk, at("new"), cut).outcome, PlaceOutcome::Failed);
    QCOMPARE(read("a"), QByteArray("a"));
    QCOMPARE(read("new"), QByteArray("new"));
}

QUORLIN_TEST(TestPutInPlace)
#include "tst_put_in_place.moc"
