#include "files/items/make_folder.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using files::FolderMade;
using files::makeFolder;

/** Making a folder, and the three ways in which it can go. */
class TestMakeFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsThreeWaysApart();
};

void TestMakeFolder::tellsThreeWaysApart()
{
    const QTemporaryDir home;
    QFile file(home.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QString folder = home.filePath(QStringLiteral("a/b/c"));
    QCOMPARE(makeFolder(folder), FolderMade::Yes);
    QVERIFY(QDir(folder).exists());
    QCOMPARE(makeFolder(folder), FolderMade::WasThere);
    QCOMPARE(makeFolder(file.fileName()), FolderMade::WasThere);
    QCOMPARE(makeFolder(file.fileName() + QStringLiteral("/d")), FolderMade::No);
    QCOMPARE(makeFolder(QString()), FolderMade::No);
}

QUORLIN_TEST(TestMakeFolder)
#include "tst_make_folder.moc"
