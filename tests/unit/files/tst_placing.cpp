#include "files/items/placing.h"
#include "files/items/rename_by_location.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QTest>

using namespace files;

Q_DECLARE_METATYPE(files::Placing)

/** Moving, copying and linking to a destination: the order of steps, and what is removed on the way. */
class TestPlacing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void placesInAFolderThatIsMissing_data() { waysToPlace(); }
    void placesInAFolderThatIsMissing();
    void replacesWhatIsThere_data();
    void replacesWhatIsThere();
    void removesTheTargetThoughTheSourceIsMissing();
    void touchesNothingWhereTheFolderCannotBeMade_data();
    void touchesNothingWhereTheFolderCannotBeMade();
    void losesAFileThatIsMovedOrCopiedOntoItself_data();
    void losesAFileThatIsMovedOrCopiedOntoItself();
    void keepsBothWhereTheTargetCannotBeRemoved_data() { waysToPlace(); }
    void keepsBothWhereTheTargetCannotBeRemoved();
    void removesNoFolderByAnotherName();
    void linksToWhatIsNotThere();
    void readsPathsAsLocations_data();
    void readsPathsAsLocations();
    void renamesByLocation_data();
    void renamesByLocation();

private:
    void waysToPlace();
    QByteArray sourceAfter(Placing placing) const { return placing == Placing::Move ? "nothing to read" : "a"; }

    std::unique_ptr<ScratchFolder> m_home;
};

void TestPlacing::init()
{
    m_home = std::make_unique<ScratchFolder>();
    QVERIFY(m_home->write("a.jpg", "a"));
}

void TestPlacing::waysToPlace()
{
    QTest::addColumn<Placing>("placing");
    QTest::newRow("move") << Placing::Move;
    QTest::newRow("copy") << Placing::Copy;
    QTest::newRow("link") << Placing::Link;
}

void TestPlacing::placesInAFolderThatIsMissing()
{
    QFETCH(Placing, placing);
    QVERIFY(place(placing, m_home->path("a.jpg"), m_home->path("x/y/z/b.jpg")));
    const QByteArray there = m_home->read("x/y/z/b.jpg");
    QCOMPARE(there, QByteArray("a"));
    QCOMPARE(m_home->read("a.jpg"), sourceAfter(placing));
    QCOMPARE(m_home->linkText("x/y/z/b.jpg"),
             placing == Placing::Link ? QFile::encodeName(m_home->path("a.jpg")) : QByteArray("no link"));
    QCOMPARE(m_home->names("x/y/z"), QStringList{QStringLiteral("b.jpg")});
}

void TestPlacing::replacesWhatIsThere_data()
{
    QTest::addColumn<Placing>("placing");
    QTest::addColumn<QString>("target");
    for (const char *target : {"file", "folder", "folder/", "to file", "to folder", "to folder/", "to nothing"})
        for (const auto &[name, placing] :
             {std::pair("move", Placing::Move), {"copy", Placing::Copy}, {"link", Placing::Link}})
            QTest::addRow("%s over %s", name, target) << placing << QString::fromUtf8(target);
}

void TestPlacing::replacesWhatIsThere()
{
    QFETCH(Placing, placing);
    QFETCH(QString, target);
    QVERIFY(m_home->write("file", "f") && m_home->write("folder/inner/b", "b") && m_home->write("kept/c", "c"));
    QVERIFY(m_home->link("kept/c", "to file") && m_home->link("kept", "to folder") && m_home->link("no", "to nothing"));
    const QStringList before = m_home->names();
    QVERIFY(place(placing, m_home->path("a.jpg"), m_home->path(target)));
    target.remove(u'/');
    QCOMPARE(m_home->read(target), QByteArray("a"));
    QCOMPARE(QFileInfo(m_home->path(target)).isSymLink(), placing == Placing::Link);
    QCOMPARE(m_home->read("kept/c"), QByteArray("c"));
    QStringList after = before;
    if (placing == Placing::Move)
        after.removeOne(QStringLiteral("a.jpg"));
    QCOMPARE(m_home->names(), after);
}

void TestPlacing::removesTheTargetThoughTheSourceIsMissing()
{
    for (const Placing placing : {Placing::Move, Placing::Copy}) {
        QVERIFY(m_home->write("target", "t"));
        QVERIFY(!place(placing, m_home->path("missing"), m_home->path("target")));
        QVERIFY(!m_home->isThere("target"));
    }
    QVERIFY(!place(Placing::Move, QString(), m_home->path("new/target")));
    QCOMPARE(m_home->names(), QStringLiteral("a.jpg new").split(u' '));
}

void TestPlacing::touchesNothingWhereTheFolderCannotBeMade_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("below a file") << "file/b.jpg";
    QTest::newRow("deep below a file") << "file/x/y/b.jpg";
    QTest::newRow("below a link to nothing") << "dangling/b.jpg";
}

void TestPlacing::touchesNothingWhereTheFolderCannotBeMade()
{
    QFETCH(QString, target);
    QVERIFY(m_home->write("file", "f") && m_home->link("nowhere/at/all", "dangling"));
    for (const Placing placing : {Placing::Move, Placing::Copy, Placing::Link}) {
        QVERIFY(!place(placing, m_home->path("a.jpg"), m_home->path(target)));
        QVERIFY(!place(placing, m_home->path("a.jpg"), QString()));
        QVERIFY(!place(placing, m_home->path("a.jpg"), QStringLiteral("relative.jpg")));
    }
    QCOMPARE(m_home->names(), QStringLiteral("a.jpg dangling file").split(u' '));
    QCOMPARE(m_home->read("a.jpg") + m_home->read("file"), QByteArray("af"));
}

void TestPlacing::losesAFileThatIsMovedOrCopiedOntoItself_data()
{
    QTest::addColumn<Placing>("placing");
    QTest::newRow("move") << Placing::Move;
    QTest::newRow("copy") << Placing::Copy;
}

void TestPlacing::losesAFileThatIsMovedOrCopiedOntoItself()
{
    QFETCH(Placing, placing);
    QVERIFY(!place(placing, m_home->path("a.jpg"), m_home->path("a.jpg")));
    QCOMPARE(m_home->names(), QStringList());
}

void TestPlacing::keepsBothWhereTheTargetCannotBeRemoved()
{
    QFETCH(Placing, placing);
    const Nobody nobody;
    const ScratchFolder here;
    QVERIFY(nobody.ready() && here.write("a", "a") && here.write("locked/b", "b") && here.allow("locked", 0555));
    const bool isPlaced = place(placing, here.path("a"), here.path("locked/b"));
    const bool isPlacedDeeper = place(placing, here.path("a"), here.path("locked/new/b"));
    QVERIFY(here.allow("locked", 0755));
    QVERIFY(!isPlaced && !isPlacedDeeper);
    QCOMPARE(here.read("a") + here.read("locked/b"), QByteArray("ab"));
    QCOMPARE(here.names("locked"), QStringList{QStringLiteral("b")});
}

void TestPlacing::removesNoFolderByAnotherName()
{
    QVERIFY(m_home->write("folder/inner/b", "b"));
    for (const char *target : {"folder/.", "folder/inner/..", "folder/inner/../"})
        QVERIFY(!place(Placing::Copy, m_home->path("a.jpg"), m_home->path(target)));
    QCOMPARE(m_home->read("folder/inner/b") + m_home->read("a.jpg"), QByteArray("ba"));
}

void TestPlacing::linksToWhatIsNotThere()
{
    QVERIFY(place(Placing::Link, QStringLiteral("../not//there"), m_home->path("link")));
    QCOMPARE(m_home->linkText("link"), QByteArray("../not//there"));
    QVERIFY(place(Placing::Link, QStringLiteral("/else/where"), m_home->path("link")));
    QCOMPARE(m_home->linkText("link"), QByteArray("/else/where"));
    QVERIFY(!place(Placing::Link, QString(), m_home->path("link")));
}

void TestPlacing::readsPathsAsLocations_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("path"); // null: none
    const auto row = [](const char *text, const char *path) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(path);
    };
    row("/a/b.jpg", "/a/b.jpg");
    row("file:///a/b.jpg", "/a/b.jpg");
    row("/a/b%20c.jpg", "/a/b c.jpg");
    row("/a/%C3%A9.jpg", "/a/\303\251.jpg");
    row("/a/b:c;d,e=f+g&h$i!j'k(l)m*n@o~p_q-r.jpg", "/a/b:c;d,e=f+g&h$i!j'k(l)m*n@o~p_q-r.jpg");
    row("/a/b?c.jpg", "/a/b");
    row("/a/b#c.jpg", "/a/b");
    row("/a/b c.jpg", nullptr);
    row("/a/\303\251.jpg", nullptr);
    row("/a/50%.jpg", nullptr);
    row("/a/%zz.jpg", nullptr);
    row("/a/\"b\".jpg", nullptr);
    row("/a/<b>.jpg", nullptr);
    row("/a/b[1].jpg", nullptr);
    row("/a/b{1}.jpg", nullptr);
    row("/a/b|c.jpg", nullptr);
    row("/a/b\\c.jpg", nullptr);
    row("/a/b^c.jpg", nullptr);
    row("/a/b`c.jpg", nullptr);
    row("/a/b\tc.jpg", nullptr);
    row("/a/b\n", nullptr);
    row("/a/b#c#d.jpg", nullptr);
    row("//host/a.jpg", nullptr);
    row("file://host/a.jpg", nullptr);
    row("http://host/a.jpg", nullptr);
    row("", nullptr);
}

void TestPlacing::readsPathsAsLocations()
{
    QFETCH(QString, text);
    QFETCH(QString, path);
    QCOMPARE(pathOfLocationText(text).value_or(QString()), path);
    QCOMPARE(pathOfLocationText(text).has_value(), !path.isEmpty());
}

void TestPlacing::renamesByLocation_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("after");
    QTest::newRow("safe") << "a.jpg"
                          << "new.jpg"
                          << "b c.jpg|folder|new.jpg|taken.jpg";
    QTest::newRow("folder") << "folder/"
                            << "new"
                            << "a.jpg|b c.jpg|new|taken.jpg";
    QTest::newRow("space in the path") << "b c.jpg"
                                       << "new.jpg"
                                       << "a.jpg|b c.jpg|folder|taken.jpg";
    QTest::newRow("space in the name") << "a.jpg"
                                       << "n w.jpg"
                                       << "a.jpg|b c.jpg|folder|taken.jpg";
    QTest::newRow("accent in the name") << "a.jpg"
                                        << "n\303\251.jpg"
                                        << "a.jpg|b c.jpg|folder|taken.jpg";
    QTest::newRow("encoded") << "b%20c.jpg"
                             << "n%20w.jpg"
                             << "a.jpg|folder|n w.jpg|taken.jpg";
    QTest::newRow("name that is taken") << "a.jpg"
                                        << "taken.jpg"
                                        << "a.jpg|b c.jpg|folder|taken.jpg";
    QTest::newRow("folder that is taken") << "a.jpg"
                                          << "folder"
                                          << "a.jpg|b c.jpg|folder|taken.jpg";
    QTest::newRow("its own name") << "a.jpg"
                                  << "a.jpg"
                                  << "a.jpg|b c.jpg|folder|taken.jpg";
    QTest::newRow("other case of letters") << "a.jpg"
                                           << "A.jpg"
                                           << "A.jpg|b c.jpg|folder|taken.jpg";
    QTest::newRow("empty name") << "a.jpg"
                                << ""
                                << "a.jpg|b c.jpg|folder|taken.jpg";
    QTest::newRow("missing") << "missing"
                             << "new"
                             << "a.jpg|b c.jpg|folder|taken.jpg";
    QTest::newRow("missing folder") << "a.jpg"
                                    << "no/new"
                                    << "a.jpg|b c.jpg|folder|taken.jpg";
}

void TestPlacing::renamesByLocation()
{
    QFETCH(QString, from);
    QFETCH(QString, name);
    QFETCH(QString, after);
    QVERIFY(m_home->write("b c.jpg", "b") && m_home->write("taken.jpg", "t") && m_home->write("folder/kept", "k"));
    renameByLocation(m_home->path(from), name);
    QStringList names = m_home->names();
    QStringList expected = after.split(u'|');
    names.sort();
    expected.sort();
    QCOMPARE(names, expected);
    QCOMPARE(m_home->read("taken.jpg"), QByteArray("t"));
}

QUORLIN_TEST(TestPlacing)
#include "tst_placing.moc"
