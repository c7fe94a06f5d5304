#include "platform/disk/disk_file_system.h"
#include "platform/disk/folders.h"
#include "platform/file/held_file.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QTest>

using namespace platform;

/** The disk as one who moves files meets it. */
class TestDiskFileSystem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void renamesWithoutThePromiseAndReplacesNothing();
    void looksAtLinksThemselves();
    void comparesContents();
    void bringsBackFromTheTrash();
    void findsWhatWasTrashed();
    void holdsAFileForOneOnly();
};

void TestDiskFileSystem::renamesWithoutThePromiseAndReplacesNothing()
{
    const ScratchFolder folder;
    for (const char *name : {"a", "b", "full/in", "dir/in"})
        QVERIFY(folder.write(name, name));
    QVERIFY(folder.link("nowhere", "link"));
    const auto rename = [&](const char *from, const char *to) {
        return renameWithoutPromise(folder.path(from), folder.path(to));
    };
    QCOMPARE(rename("a", "b"), std::make_error_code(std::errc::file_exists));
    QCOMPARE(rename("a", "link"), std::make_error_code(std::errc::file_exists));
    QCOMPARE(rename("dir", "full"), std::make_error_code(std::errc::file_exists));
    QCOMPARE(rename("missing", "x"), std::error_code(ENOENT, std::generic_category()));
    QVERIFY(!folder.isThere("x"));
    QVERIFY(!rename("a", "x") && !rename("link", "other link") && !rename("dir", "new"));
    QCOMPARE(folder.read("x"), QByteArray("a"));
    QCOMPARE(folder.linkText("other link"), QByteArray("nowhere"));
    QCOMPARE(folder.read("new/in"), QByteArray("dir/in"));
    QCOMPARE(folder.read("b"), QByteArray("b"));
    QVERIFY(!folder.isThere("a") && !folder.isThere("link") && !folder.isThere("dir"));
}

void TestDiskFileSystem::looksAtLinksThemselves()
{
    const ScratchFolder folder;
    QVERIFY(folder.write("a", "abc"));
    QVERIFY(folder.link("a", "link"));
    const DiskFileSystem disk;
    const auto file = disk.look(folder.path("a"));
    const auto link = disk.look(folder.path("link"));
    QVERIFY(file && link && !disk.look(folder.path("missing")));
    QCOMPARE(file->kind, ItemKind::File);
    QCOMPARE(file->bytes, qint64(3));
    QCOMPARE(link->kind, ItemKind::Link);
    QVERIFY(file->inode != link->inode && file->device == link->device);
    QCOMPARE(disk.linkText(folder.path("link")), QStringLiteral("a"));
    QVERIFY(disk.linkText(folder.path("a")).isNull());
    QVERIFY(disk.canonicalFolder(folder.path("a")).isNull());
    QCOMPARE(int(disk.list(folder.path())->size()), 2);
    QVERIFY(!disk.list(folder.path("a")));
}

void TestDiskFileSystem::comparesContents()
{
    const ScratchFolder folder;
    const QByteArray large(1'000'000, 'x');
    for (const char *name : {"a", "same", "one/in", "two/in", "three/in", "three/more", "four/other"})
        QVERIFY(folder.write(name, large));
    QVERIFY(folder.write("differs", large.chopped(1) + 'y'));
    QVERIFY(folder.write("shorter", large.chopped(1)));
    const DiskFileSystem disk;
    const auto areSame = [&](const char *one, const char *other) {
        return disk.haveSameContent(folder.path(one), folder.path(other));
    };
    QVERIFY(areSame("a", "same") && areSame("one", "two"));
    QVERIFY(!areSame("a", "differs") && !areSame("a", "shorter") && !areSame("a", "one") && !areSame("a", "missing"));
    QVERIFY(!areSame("one", "three") && !areSame("three", "one") && !areSame("one", "four"));
}

void TestDiskFileSystem::bringsBackFromTheTrash()
{
    const ScratchFolder folder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path("data")));
    QVERIFY(folder.write("a", "abc"));
    DiskFileSystem disk;
    const auto trashed = disk.trash(folder.path("a"));
    QVERIFY(trashed && !folder.isThere("a"));
    QVERIFY(folder.write("a", "another"));
    QCOMPARE(disk.restore(*trashed, folder.path("a")), std::make_error_code(std::errc::file_exists));
    QCOMPARE(folder.read("a"), QByteArray("another"));
    QVERIFY(!disk.restore(*trashed, folder.path("b")));
    QCOMPARE(folder.read("b"), QByteArray("abc"));
    QVERIFY(folder.names("data/Trash/files").isEmpty() && folder.names("data/Trash/info").isEmpty());
}

void TestDiskFileSystem::findsWhatWasTrashed()
{
    const ScratchFolder folder;
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path("data")));
    DiskFileSystem disk;
    QVERIFY(folder.write("50% \303\244", "first"));
    const auto first = disk.look(folder.path("50% \303\244"));
    QVERIFY(disk.trash(folder.path("50% \303\244")));
    QVERIFY(folder.write("50% \303\244", "second"));
    const auto second = disk.look(folder.path("50% \303\244"));
    QVERIFY(!disk.findTrashed(folder.path("50% \303\244"), *second));
    QVERIFY(disk.trash(folder.path("50% \303\244")));
    for (const auto &[state, bytes] : {std::pair(*first, "first"), {*second, "second"}}) {
        const auto found = disk.findTrashed(folder.path("50% \303\244"), state);
        QVERIFY(found.has_value());
        QFile file(found->path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray(bytes));
    }
    QVERIFY(!disk.findTrashed(folder.path("other"), *first));
}

void TestDiskFileSystem::holdsAFileForOneOnly()
{
    const ScratchFolder folder;
    auto made = HeldFile::make(folder.path("f"));
    QVERIFY(made.has_value());
    QVERIFY(!HeldFile::make(folder.path("f")));
    QVERIFY(made->append("one\n", Lasting::AtOnce) && made->append("two\n", Lasting::WhenTheSystemLikes));
    QCOMPARE(HeldFile::open(folder.path("f")).error().code, ErrorCode::Unsupported);
    QCOMPARE(HeldFile::open(folder.path("missing")).error().code, ErrorCode::NotFound);
    *made = HeldFile();
    made = HeldFile();
    const auto opened = HeldFile::open(folder.path("f"));
    QVERIFY(opened.has_value());
    QCOMPARE(opened->readAll().value(), QByteArray("one\ntwo\n"));
}

QUORLIN_TEST(TestDiskFileSystem)
#include "tst_disk_file_system.moc"
