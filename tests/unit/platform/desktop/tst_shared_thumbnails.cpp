#include "platform/desktop/shared_thumbnails.h"
#include "tests/support/test_program.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <sys/sysmacros.h>

using platform::sharedThumbnail;

class TestSharedThumbnails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_before = qgetenv("XDG_CACHE_HOME");
        qputenv("XDG_CACHE_HOME", QFile::encodeName(m_folder->filePath(QStringLiteral("cache"))));
    }
    void cleanup() { m_before.isEmpty() ? qunsetenv("XDG_CACHE_HOME") : qputenv("XDG_CACHE_HOME", m_before); }

    // What `gio info` and file managers on it give for these paths.
    void addressesAreThoseOfFileManagers()
    {
        QCOMPARE(platform::fileUri(QStringLiteral("/home/a b/é#1;x.jpg")),
                 QByteArray("file:///home/a%20b/%C3%A9%231%3Bx.jpg"));
        QCOMPARE(platform::fileUri(QStringLiteral("/p/!$&'()*+,-.:=@_~.jpg")),
                 QByteArray("file:///p/!$&'()*+,-.:=@_~.jpg"));
        QCOMPARE(platform::fileUri(QStringLiteral("/p/[50%]?.jpg")), QByteArray("file:///p/%5B50%25%5D%3F.jpg"));
    }

    void theSmallestThatHasEnoughPixelsIsTaken()
    {
        const QString path = written(QStringLiteral("a.jpg"));
        const auto sideFor = [&path](QSize pixels, QSize wanted) {
            const auto found = sharedThumbnail(path, pixels, wanted);
            return found ? found->side : 0;
        };
        QCOMPARE(sideFor({4000, 3000}, {72, 54}), 128);
        QCOMPARE(sideFor({4000, 3000}, {128, 96}), 128);
        QCOMPARE(sideFor({4000, 3000}, {129, 96}), 256);
        QCOMPARE(sideFor({4000, 3000}, {288, 216}), 512);
        QCOMPARE(sideFor({4000, 3000}, {600, 450}), 0);
        QCOMPARE(sideFor({4000, 100}, {72, 54}), 0);
        QCOMPARE(sideFor({100, 80}, {72, 54}), 128);
        QCOMPARE(sideFor({60, 80}, {72, 54}), 0);
        QCOMPARE(sideFor({}, {72, 54}), 0);
        const auto found = sharedThumbnail(path, {4000, 3000}, {200, 150});
        QVERIFY(found->path.startsWith(m_folder->filePath(QStringLiteral("cache/thumbnails/large/"))));
        QVERIFY(!found->isThere());
        QVERIFY(!sharedThumbnail(m_folder->filePath(QStringLiteral("gone.jpg")), {4000, 3000}, {72, 54}));
    }

    // As computed by md5sum for "file:///srv/photos/me.png".
    void theNameIsTheSumOfTheAddress()
    {
        QDir().mkpath(m_folder->filePath(QStringLiteral("cache")));
        const QString path = written(QStringLiteral("a.jpg"));
        const auto found = sharedThumbnail(path, {400, 300}, {72, 54});
        QVERIFY(found);
        const QByteArray sum = QCryptographicHash::hash(platform::fileUri(path), QCryptographicHash::Md5).toHex();
        QCOMPARE(QFileInfo(found->path).fileName(), QString::fromLatin1(sum) + QStringLiteral(".png"));
        QCOMPARE(
            QCryptographicHash::hash(platform::fileUri(QStringLiteral("/srv/photos/me.png")), QCryptographicHash::Md5)
                .toHex(),
            QByteArray("a92ec86d1ae4691dc2eb1d7f61beb339"));
    }

    void whatIsWrittenStatesItsPictureAndIsTheUsersOwn()
    {
        const QString path = written(QStringLiteral("a.jpg"));
        const auto place = sharedThumbnail(path, {400, 300}, {72, 54});
        QVERIFY(place);
        QImage image(128, 96, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        QVERIFY(platform::writeSharedThumbnail(*place, path, image, {400, 300}));
        const QImage kept(place->path);
        QCOMPARE(kept.size(), QSize(128, 96));
        QCOMPARE(kept.pixelColor(5, 5), QColor(Qt::darkGreen));
        QCOMPARE(kept.text(QStringLiteral("Thumb::URI")).toLatin1(), platform::fileUri(path));
        QCOMPARE(kept.text(QStringLiteral("Thumb::MTime")),
                 QString::number(QFileInfo(path).lastModified().toSecsSinceEpoch()));
        QCOMPARE(kept.text(QStringLiteral("Thumb::Image::Width")), QStringLiteral("400"));
        QCOMPARE(modeOf(place->path), 0600U);
        QCOMPARE(modeOf(QFileInfo(place->path).path()), 0700U);
        QCOMPARE(QDir(QFileInfo(place->path).path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
        QVERIFY2(!sharedThumbnail(place->path, {128, 96}, {72, 54}), "a thumbnail gets no thumbnail");
    }

    void nothingIsWrittenForAPictureThatChangedMeanwhile()
    {
        const QString path = written(QStringLiteral("a.jpg"));
        auto place = sharedThumbnail(path, {400, 300}, {72, 54});
        QVERIFY(place);
        place->modified -= 5;
        QVERIFY(!platform::writeSharedThumbnail(*place, path, QImage(128, 96, QImage::Format_RGB32), {400, 300}));
        QVERIFY(!QFile::exists(place->path));
    }

    void disksThatAreEncryptedOrCanBeTakenAwayArePrivate()
    {
        const QString system = m_folder->filePath(QStringLiteral("sys"));
        fact(system, "disk/sda/removable", "0");
        fact(system, "disk/sda/sda1/partition", "1");
        fact(system, "disk/usb1/sdb/removable", "0");
        fact(system, "disk/usb1/sdb/sdb1/partition", "1");
        fact(system, "disk/sdc/removable", "1");
        fact(system, "disk/sdc/sdc1/partition", "1");
        fact(system, "disk/dm-0/dm/uuid", "CRYPT-LUKS2-ab-name");
        fact(system, "disk/dm-1/dm/uuid", "LVM-cd");
        fact(system, "disk/dm-2/dm/uuid", "LVM-ef");
        link(system, "../../dm-0", "disk/dm-1/slaves/dm-0");
        link(system, "../../sda/sda1", "disk/dm-2/slaves/sda1");
        const char *names[] = {"sda/sda1", "usb1/sdb/sdb1", "sdc/sdc1", "dm-0", "dm-1", "dm-2"};
        for (int i = 0; i < 6; ++i)
            link(system, QByteArray("../../disk/") + names[i], QByteArray("dev/block/8:") + QByteArray::number(i));
        const auto isPrivate = [&system](unsigned number, const QByteArray &mounts = {}) {
            return platform::isPrivateDisk(gnu_dev_makedev(8, number), mounts, system);
        };
        QVERIFY(!isPrivate(0));
        QVERIFY(isPrivate(1));
        QVERIFY(isPrivate(2));
        QVERIFY(isPrivate(3));
        QVERIFY(isPrivate(4));
        QVERIFY(!isPrivate(5));
        QVERIFY(!isPrivate(77));
        const QByteArray mounts("30 1 8:90 / /a rw - ext4 /dev/none rw\n"
                                "31 1 8:91 / /b rw shared:1 - fuse.gocryptfs gocryptfs rw\n"
                                "32 1 8:92 / /c rw - ecryptfs x rw\n");
        QVERIFY(!isPrivate(90, mounts));
        QVERIFY(isPrivate(91, mounts));
        QVERIFY(isPrivate(92, mounts));
    }

private:
    QString written(const QString &name)
    {
        QFile file(m_folder->filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write("x") != 1)
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }
    static unsigned modeOf(const QString &path)
    {
        struct stat status = {};
        return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 0777U : 0;
    }
    static void fact(const QString &system, const QByteArray &name, const QByteArray &text)
    {
        const QString path = system + u'/' + QString::fromLatin1(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text + '\n') < 0)
            qFatal("cannot write %s", qPrintable(path));
    }
    static void link(const QString &system, const QByteArray &target, const QByteArray &name)
    {
        const QString path = system + u'/' + QString::fromLatin1(name);
        QDir().mkpath(QFileInfo(path).path());
        if (!QFile::link(QString::fromLatin1(target), path))
            qFatal("cannot link %s", qPrintable(path));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_before;
};

QUORLIN_TEST(TestSharedThumbnails)
#include "tst_shared_thumbnails.moc"
