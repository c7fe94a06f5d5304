#include "platform/desktop/custom_icon.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QImage>
#include <QTest>
#include <QUrl>

#include <sys/xattr.h>

using namespace platform;

namespace {

Picture redPicture(int width = 300, int height = 150)
{
    QImage image(width, height, QImage::Format_RGB888);
    image.fill(Qt::red);
    return Picture(Bitmap::fromImage(image));
}

QByteArray attributeOf(const QString &path)
{
    QByteArray value(4096, '\0');
    const auto size = ::getxattr(QFile::encodeName(path).constData(), "user.metadata::custom-icon", value.data(),
                                 size_t(value.size()));
    return size < 0 ? QByteArray() : value.left(size);
}

} // namespace

/** Icons of files and folders, and that what they belong to stays as it is. */
class TestCustomIcon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void givesAFolderAHiddenPicture();
    void keepsWhatElseAFolderSays_data();
    void keepsWhatElseAFolderSays();
    void givesAFileAnAttribute();
    void refusesWhatCannotBe();
    void leavesAFolderThatMayNotBeChanged();

private:
    std::unique_ptr<ScratchFolder> m_home;
};

void TestCustomIcon::init()
{
    m_home = std::make_unique<ScratchFolder>();
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home->path("data")));
    QVERIFY(m_home->write("folder/a.jpg", "a"));
}

void TestCustomIcon::givesAFolderAHiddenPicture()
{
    QVERIFY(setCustomIcon(m_home->path("folder"), redPicture()));
    QCOMPARE(m_home->read("folder/.directory"), QByteArray("[Desktop Entry]\nIcon=./.folder-icon.png\n"));
    const QImage icon(m_home->path("folder/.folder-icon.png"));
    QCOMPARE(icon.size(), QSize(256, 128));
    QCOMPARE(icon.pixelColor(9, 9), QColor(Qt::red));
    QVERIFY(setCustomIcon(m_home->path("folder/"), redPicture(10, 20)));
    QCOMPARE(QImage(m_home->path("folder/.folder-icon.png")).size(), QSize(10, 20));
    QCOMPARE(m_home->names("folder"), QStringLiteral(".directory .folder-icon.png a.jpg").split(u' '));
}

void TestCustomIcon::keepsWhatElseAFolderSays_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const QByteArray icon = "Icon=./.folder-icon.png\n";
    QTest::newRow("another icon")
        << QByteArray("# mine\n[Desktop Entry]\nName=x\nIcon = folder-red\nIconX=1\n\n[Dolphin]\nIcon=y\n")
        << QByteArray("# mine\n[Desktop Entry]\nName=x\n" + icon + "IconX=1\n\n[Dolphin]\nIcon=y\n");
    QTest::newRow("no icon") << QByteArray("[Desktop Entry]\nName=x\n[Dolphin]\nIcon=y")
                             << QByteArray("[Desktop Entry]\n" + icon + "Name=x\n[Dolphin]\nIcon=y");
    QTest::newRow("no such group") << QByteArray("[Dolphin]\nIcon=y")
                                   << QByteArray("[Dolphin]\nIcon=y\n[Desktop Entry]\n" + icon);
    QTest::newRow("group at the end") << QByteArray("[Desktop Entry]")
                                      << QByteArray("[Desktop Entry]\n" + icon.chopped(1));
}

void TestCustomIcon::keepsWhatElseAFolderSays()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QVERIFY(m_home->write("folder/.directory", before));
    QVERIFY(setCustomIcon(m_home->path("folder"), redPicture()));
    QCOMPARE(m_home->read("folder/.directory"), after);
}

void TestCustomIcon::givesAFileAnAttribute()
{
    if (::setxattr(QFile::encodeName(m_home->path("folder/a.jpg")).constData(), "user.test", "x", 1, 0) != 0)
        QSKIP("this file system keeps no attributes");
    QVERIFY(setCustomIcon(m_home->path("folder/a.jpg"), redPicture()));
    const QUrl location(QString::fromLatin1(attributeOf(m_home->path("folder/a.jpg"))));
    QVERIFY(location.toLocalFile().startsWith(m_home->path("data/")));
    QCOMPARE(QImage(location.toLocalFile()).size(), QSize(256, 128));
    QCOMPARE(m_home->read("folder/a.jpg"), QByteArray("a"));
    QCOMPARE(m_home->names("folder"), QStringList{QStringLiteral("a.jpg")});
}

void TestCustomIcon::refusesWhatCannotBe()
{
    const auto missing = setCustomIcon(m_home->path("missing"), redPicture());
    const auto nothing = setCustomIcon(m_home->path("folder"), Picture());
    QVERIFY(!missing && !nothing && !setCustomIcon(m_home->path("folder"), Picture::ofNoSize()));
    QCOMPARE(missing.error().code, ErrorCode::NotFound);
    QCOMPARE(nothing.error().code, ErrorCode::InvalidValue);
    QCOMPARE(m_home->names("folder"), QStringList{QStringLiteral("a.jpg")});
}

void TestCustomIcon::leavesAFolderThatMayNotBeChanged()
{
    const Nobody nobody;
    const ScratchFolder here;
    QVERIFY(nobody.ready() && here.write("locked/a", "a") && here.allow("locked", 0555));
    const auto set = setCustomIcon(here.path("locked"), redPicture());
    QVERIFY(here.allow("locked", 0755));
    QVERIFY(!set);
    QCOMPARE(set.error().code, ErrorCode::WriteFailed);
    QCOMPARE(here.names("locked"), QStringList{QStringLiteral("a")});
}

QUORLIN_TEST(TestCustomIcon)
#include "tst_custom_icon.moc"
