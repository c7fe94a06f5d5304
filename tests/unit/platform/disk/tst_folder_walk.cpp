#include "platform/disk/folder_walk.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace platform;

namespace {

/** Folders with a slash at the end, files without, relative to the root; sorted, since the file system's order is any. */
QStringList walked(const QString &root, const FolderWalkOptions &options = {})
{
    QStringList found;
    walkFolder(root, options, [&](const FolderItem &item) {
        const QString path = QFile::decodeName(QByteArray(item.path.data(), qsizetype(item.path.size())));
        found << path.mid(root.size() + 1) + (item.isFolder ? QStringLiteral("/") : QString());
        return Descend::Yes;
    });
    found.sort();
    return found;
}

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

int openDescriptors()
{
    return int(QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System | QDir::Files).size());
}

} // namespace

class FolderWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        QVERIFY(chmod(qPrintable(root()), 0755) == 0);
    }

    /** Qt removes neither names that are no text nor paths that are too long. */
    void cleanup() { QCOMPARE(QProcess::execute(text("rm"), {text("-rf"), root()}), 0); }

    void visitsEverythingBelowTheRoot()
    {
        make({"a.jpg", "sub/b.png", "sub/deeper/c", "empty/"});
        QCOMPARE(walked(root()), QStringList({text("a.jpg"), text("empty/"), text("sub/"), text("sub/b.png"),
                                              text("sub/deeper/"), text("sub/deeper/c")}));
    }

    void visitsAFolderJustBeforeItsContents()
    {
        make({"one/x", "one/inner/y", "two/z", "three"});
        QByteArrayList order;
        walkFolder(root(), {}, [&](const FolderItem &item) {
            order << QByteArray(item.path.data(), qsizetype(item.path.size()));
            return Descend::Yes;
        });
        for (const char *folder : {"one", "one/inner", "two"}) {
            const QByteArray path = QFile::encodeName(root()) + '/' + folder;
            const qsizetype at = order.indexOf(path);
            QVERIFY(at >= 0);
            qsizetype inside = 0;
            while (at + inside + 1 < order.size() && order.at(at + inside + 1).startsWith(path + '/'))
                ++inside;
            const auto below = [&](const QByteArray &each) { return each.startsWith(path + '/'); };
            QCOMPARE(inside, std::count_if(order.begin(), order.end(), below));
        }
    }

    void keepsTheFileSystemsOrder()
    {
        for (int i = 0; i < 200; ++i)
            make({qPrintable(QString::number(i * 7919 % 1000))});
        QStringList expected;
        QDir listed(root());
        listed.setSorting(QDir::Unsorted);
        expected = listed.entryList(QDir::Files);
        QStringList found;
        walkFolder(root(), {}, [&](const FolderItem &item) {
            found << QString::fromLatin1(item.name.data(), qsizetype(item.name.size()));
            return Descend::Yes;
        });
        QCOMPARE(found, expected);
    }

    void skipsHiddenItemsAndWhatIsInThem()
    {
        make({"seen", ".hidden", ".folder/inside", "sub/.also"});
        QCOMPARE(walked(root()), QStringList({text("seen"), text("sub/")}));
        QCOMPARE(walked(root(), {HiddenItems::Visit, PackageContents::Visit}),
                 QStringList({text(".folder/"), text(".folder/inside"), text(".hidden"), text("seen"), text("sub/"),
                              text("sub/.also")}));
    }

    void entersPackagesOnlyWhereAsked()
    {
        make({"My.app/inside", "Old.PhotoLibrary/picture", "notes.rtfd.txt/inside"});
        QCOMPARE(walked(root(), {HiddenItems::Skip, PackageContents::Skip}),
                 QStringList({text("My.app/"), text("Old.PhotoLibrary/"), text("notes.rtfd.txt/"),
                              text("notes.rtfd.txt/inside")}));
        QCOMPARE(walked(root()).size(), 6);
    }

    void entersARootThatIsAPackage()
    {
        make({"My.app/inside"});
        QCOMPARE(walked(root() + text("/My.app"), {HiddenItems::Skip, PackageContents::Skip}),
                 QStringList({text("inside")}));
    }

    void knowsPackageNames_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("package");
        for (const char *name : {"a.app", "a.bundle", "a.framework", "a.plugin", "a.pkg", "a.rtfd", "a.photoslibrary",
                                 "a.photolibrary", "A.APP", "a.b.App"})
            QTest::newRow(name) << QByteArray(name) << true;
        for (const char *name : {"app", "a.ap", "a.apps", "a.app.d", "a.", "", "a.app "})
            QTest::addRow("not '%s'", name) << QByteArray(name) << false;
    }

    void knowsPackageNames()
    {
        QFETCH(QByteArray, name);
        QFETCH(bool, package);
        QCOMPARE(isPackageName(name.toStdString()), package);
    }

    void doesNotDescendWhereTheVisitorSaysNo()
    {
        make({"open/a", "shut/b"});
        QStringList found;
        walkFolder(root(), {}, [&](const FolderItem &item) {
            found << QString::fromLatin1(item.name.data(), qsizetype(item.name.size()));
            return item.name == "shut" ? Descend::No : Descend::Yes;
        });
        found.sort();
        QCOMPARE(found, QStringList({text("a"), text("open"), text("shut")}));
    }

    void followsNoLink()
    {
        make({"real/file.jpg"});
        link("..", "real/up");
        link("real", "toFolder");
        link("real/file.jpg", "toFile.jpg");
        link("nowhere.jpg", "toNothing.jpg");
        link("selfish.jpg", "selfish.jpg");
        QCOMPARE(walked(root()), QStringList({text("real/"), text("real/file.jpg"), text("toFile.jpg")}));
    }

    void entersARootThatIsALink()
    {
        make({"real/file.jpg"});
        link("real", "chosen");
        QCOMPARE(walked(root() + text("/chosen")), QStringList({text("file.jpg")}));
    }

    void passesOverPipesAndSockets()
    {
        make({"file"});
        QVERIFY(mkfifo(qPrintable(root() + text("/pipe.jpg")), 0600) == 0);
        QCOMPARE(walked(root()), QStringList({text("file")}));
    }

    void givesNothingForARootThatIsNoFolder()
    {
        make({"file"});
        QCOMPARE(walked(root() + text("/file")), QStringList());
        QCOMPARE(walked(root() + text("/missing")), QStringList());
        QCOMPARE(walked(QString()), QStringList());
    }

    void takesARootWithASlashAtItsEnd()
    {
        make({"file"});
        QByteArrayList paths;
        walkFolder(root() + text("//"), {}, [&](const FolderItem &item) {
            paths << QByteArray(item.path.data(), qsizetype(item.path.size()));
            return Descend::Yes;
        });
        QCOMPARE(paths, QByteArrayList({QFile::encodeName(root()) + "/file"}));
    }

    void passesOverAFolderThatCannotBeRead()
    {
        make({"closed/inside", "open/seen"});
        QVERIFY(chmod(qPrintable(root() + text("/closed")), 0) == 0);
        QStringList found;
        {
            const Nobody nobody;
            if (!nobody.ready())
                QSKIP("runs as root and cannot become another user");
            found = walked(root());
        }
        QVERIFY(chmod(qPrintable(root() + text("/closed")), 0755) == 0);
        QCOMPARE(found, QStringList({text("closed/"), text("open/"), text("open/seen")}));
    }

    void survivesNamesThatAreNotText()
    {
        const QByteArray path = QFile::encodeName(root()) + "/\xff\xfe.jpg";
        const int file = open(path.constData(), O_CREAT | O_WRONLY, 0600);
        QVERIFY(file >= 0);
        close(file);
        QByteArray name;
        walkFolder(root(), {}, [&](const FolderItem &item) {
            name = QByteArray(item.name.data(), qsizetype(item.name.size()));
            return Descend::Yes;
        });
        QCOMPARE(name, QByteArray("\xff\xfe.jpg"));
        QCOMPARE(walked(root()).size(), 1);
    }

    void goesDeeperThanAPathCanBeLong()
    {
        constexpr int depth = 600;
        makeDeep(depth);
        int folders = 0;
        int files = 0;
        int mostOpen = 0;
        const int before = openDescriptors();
        size_t longest = 0;
        walkFolder(root(), {}, [&](const FolderItem &item) {
            ++(item.isFolder ? folders : files);
            longest = std::max(longest, item.path.size());
            if (folders % 50 == 0)
                mostOpen = std::max(mostOpen, openDescriptors() - before);
            return Descend::Yes;
        });
        QCOMPARE(folders, 2 * depth);
        QCOMPARE(files, 2 * depth);
        QVERIFY(longest > 2 * PATH_MAX);
        QVERIFY2(mostOpen <= 40, qPrintable(QString::number(mostOpen)));
        QCOMPARE(openDescriptors(), before);
    }

private:
    QString root() const { return m_folder->path(); }

    void make(std::initializer_list<const char *> names)
    {
        for (const char *name : names) {
            const QString path = root() + QLatin1Char('/') + QString::fromLatin1(name);
            QVERIFY(QDir().mkpath(path.left(path.lastIndexOf(QLatin1Char('/')))));
            QFile file(path);
            QVERIFY(path.endsWith(QLatin1Char('/')) || file.open(QIODevice::WriteOnly));
        }
    }

    void link(const char *target, const char *name)
    {
        QVERIFY(symlink(target, qPrintable(root() + QLatin1Char('/') + QString::fromLatin1(name))) == 0);
    }

    /** On each of @p depth levels a file, a folder with a file in it, and the next level. */
    void makeDeep(int depth)
    {
        int folder = open(qPrintable(root()), O_RDONLY | O_DIRECTORY);
        for (int level = 0; level < depth; ++level) {
            QVERIFY(mkdirat(folder, "beside", 0755) == 0);
            close(openat(folder, "beside/file", O_CREAT | O_WRONLY, 0644));
            close(openat(folder, "file", O_CREAT | O_WRONLY, 0644));
            const char *next = "a-folder-with-a-long-name";
            QVERIFY(mkdirat(folder, next, 0755) == 0);
            const int inner = openat(folder, next, O_RDONLY | O_DIRECTORY);
            close(folder);
            folder = inner;
        }
        close(folder);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QUORLIN_TEST(FolderWalk)
#include "tst_folder_walk.moc"
