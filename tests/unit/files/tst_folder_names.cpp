#include "files/services/folder_names.h"

#include "tests/support/test_program.h"

#include <QTest>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

class TestFolderNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesOverNumbersThatAreTaken();
    void countsEachNameByItself();
    void takesWritingsOfOneNameForTheSame();
    void prefersTheExactSpelling();
    void remembersNamesThatWereGiven();
    void takesNamesFromTheDiskAgain();
    void numbersNamesOfFullLength();
};

void TestFolderNames::passesOverNumbersThatAreTaken()
{
    FolderNames names;
    names.setNames({text("a.jpg"), text("a (2).jpg"), text("A (3).JPG")});
    QCOMPARE(names.giveNumbered(text("a.jpg")), text("a (4).jpg"));
    QCOMPARE(names.giveNumbered(text("a.jpg")), text("a (5).jpg"));
    names.give(text("A (6).jpg"));
    QCOMPARE(names.giveNumbered(text("A.JPG")), text("A (7).JPG"));
}

void TestFolderNames::countsEachNameByItself()
{
    FolderNames names;
    QCOMPARE(names.giveNumbered(text("a.jpg")), text("a (2).jpg"));
    QCOMPARE(names.giveNumbered(text("b.jpg")), text("b (2).jpg"));
    QCOMPARE(names.numbered(text("c"), 9), text("c (9)"));
}

void TestFolderNames::takesWritingsOfOneNameForTheSame()
{
    FolderNames names;
    names.setNames({text("IMG.JPG"), text("e\u0301.jpg")});
    QVERIFY(!names.isFree(text("img.jpg")) && !names.isFree(text("\u00e9.jpg")) && names.isFree(text("e.jpg")));
    QCOMPARE(names.onDiskAs(text("img.jpg")), text("IMG.JPG"));
    QCOMPARE(names.onDiskAs(text("other")), QString());
    QCOMPARE(names.keyOf(text("E\u0301.JPG")), names.keyOf(text("\u00e9.jpg")));
}

void TestFolderNames::prefersTheExactSpelling()
{
    FolderNames names;
    names.setNames({text("a.jpg"), text("A.JPG")});
    QCOMPARE(names.onDiskAs(text("a.jpg")), text("a.jpg"));
    QCOMPARE(names.onDiskAs(text("A.JPG")), text("A.JPG"));
}

void TestFolderNames::remembersNamesThatWereGiven()
{
    FolderNames names;
    QCOMPARE(names.give(text("a.jpg")), text("a.jpg"));
    QVERIFY(!names.isFree(text("A.jpg")) && names.isGiven(text("A.jpg")) && !names.isGiven(text("b.jpg")));
    QCOMPARE(names.onDiskAs(text("a.jpg")), QString());
}

void TestFolderNames::takesNamesFromTheDiskAgain()
{
    FolderNames names;
    names.setNames({text("a.jpg")});
    names.setNames({text("b.jpg")});
    QVERIFY(names.isFree(text("a.jpg")) && !names.isFree(text("b.jpg")));
    QCOMPARE(names.names(), QStringList(text("b.jpg")));
}

void TestFolderNames::numbersNamesOfFullLength()
{
    const QString name = QString(251, u'x') + text(".jpg");
    FolderNames names;
    names.setNames({name, names.numbered(name, 2)});
    QCOMPARE(names.giveNumbered(name), QString(247, u'x') + text(" (3).jpg"));
    QCOMPARE(names.giveNumbered(name), QString(247, u'x') + text(" (4).jpg"));
}

QUORLIN_TEST(TestFolderNames)
#include "tst_folder_names.moc"
