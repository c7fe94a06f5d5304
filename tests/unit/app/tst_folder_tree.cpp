#include "app/setup/translations.h"
#include "app/window/folders/folder_tree.h"
#include "tests/support/test_program.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using window::FolderTree;

namespace {

QVariantMap folder(const char *path, const char *above, const char *name, int total, bool isNew)
{
    return {{QStringLiteral("path"), QString::fromUtf8(path)},
            {QStringLiteral("above"), QString::fromUtf8(above)},
            {QStringLiteral("name"), QString::fromUtf8(name)},
            {QStringLiteral("total"), total},
            {QStringLiteral("isNew"), isNew}};
}

QVariantList threeYears()
{
    return {folder("/p", "", "~/p", 7, false),      folder("/p/10", "/p", "10", 2, true),
            folder("/p/2", "/p", "2", 4, false),    folder("/p/2/b", "/p/2", "b", 1, true),
            folder("/p/2/A", "/p/2", "A", 3, true), folder("/p/9 x", "/p", "9 x", 1, true)};
}

QStringList names(const FolderTree &tree)
{
    QStringList all;
    const QVariantList folders = tree.folders();
    for (const QVariant &each : folders)
        all.append(each.toMap().value(QStringLiteral("name")).toString());
    return all;
}

QTreeWidgetItem *itemNamed(const FolderTree &tree, const char *name)
{
    const QList<QTreeWidgetItem *> found =
        tree.findItems(QString::fromUtf8(name), Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : found.first();
}

} // namespace

class FolderTreeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsFoldersInNaturalOrder()
    {
        FolderTree tree;
        tree.setFolders(threeYears());
        QCOMPARE(names(tree), QStringList({QStringLiteral("~/p"), QStringLiteral("2"), QStringLiteral("A"),
                                           QStringLiteral("b"), QStringLiteral("9 x"), QStringLiteral("10")}));
        tree.setFolders({});
        QCOMPARE(tree.topLevelItemCount(), 0);
    }

    void saysWhatItShows()
    {
        const app::Translations english(QStringLiteral("en"));
        FolderTree tree;
        tree.setFolders(threeYears());
        const auto spoken = [&tree](const char *name) {
            return itemNamed(tree, name)->data(0, Qt::AccessibleTextRole).toString();
        };
        QCOMPARE(spoken("10"), QStringLiteral("10, new folder, 2 files"));
        QCOMPARE(spoken("2"), QStringLiteral("2, existing folder, 4 files"));
        QCOMPARE(spoken("b"), QStringLiteral("b, new folder, 1 file"));
    }

    void tellsWhatIsChosenByKeyAndPointer()
    {
        FolderTree tree;
        tree.setFolders(threeYears());
        tree.resize(300, 400);
        tree.show();
        QSignalSpy chosen(&tree, &FolderTree::folderChosen);
        const QRect place = tree.visualItemRect(itemNamed(tree, "A"));
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place.center());
        QCOMPARE(tree.chosen(), QStringLiteral("/p/2/A"));
        QTest::keyClick(&tree, Qt::Key_Down);
        QCOMPARE(tree.chosen(), QStringLiteral("/p/2/b"));
        QTest::keyClick(&tree, Qt::Key_Escape);
        QCOMPARE(tree.chosen(), QString());
        QCOMPARE(chosen.size(), 3);
        QVERIFY(!tree.grab().isNull());
    }

    void keepsWhatWasChosenOpenedAndClosed()
    {
        FolderTree tree;
        tree.setFolders(threeYears());
        itemNamed(tree, "2")->setExpanded(false);
        tree.setChosen(QStringLiteral("/p/10"));
        QSignalSpy chosen(&tree, &FolderTree::folderChosen);
        tree.setFolders(threeYears());
        QCOMPARE(tree.chosen(), QStringLiteral("/p/10"));
        QVERIFY(!itemNamed(tree, "2")->isExpanded());
        QVERIFY(itemNamed(tree, "~/p")->isExpanded());
        QCOMPARE(chosen.size(), 0);
        tree.setFolders({folder("/q", "", "q", 1, true)});
        QCOMPARE(tree.chosen(), QString());
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.first().first().toString(), QString());
    }

    void showsTenThousandFoldersWithoutAStall()
    {
        QVariantList many = {folder("/p", "", "p", 10000, false)};
        for (int i = 0; i < 10000; ++i) {
            const QByteArray number = QByteArray::number(i);
            many.append(folder("/p/" + number, "/p", number, 1, true));
        }
        FolderTree tree;
        QElapsedTimer clock;
        clock.start();
        tree.setFolders(many);
        const qint64 ms = clock.elapsed();
        qInfo("10,000 folders shown in %lld ms", ms);
        QVERIFY(ms < 2000);
        QCOMPARE(tree.topLevelItem(0)->childCount(), 10000);
    }
};

QUORLIN_GUI_TEST(FolderTreeTest)
#include "tst_folder_tree.moc"
