#include "tests/gui/support/rights.h"
#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "app/window/controls/segmented_control.h"
#include "image/ZtImageHandling.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QPlainTextEdit>
#include <QTest>

/** New files may be read and written by whom the mask and the folder say, and changed ones by the same as before. */
class Access : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::started();
        m_folder = m_driver->inputFolder();
    }
    void cleanup() { m_driver.reset(); }

    void isThatOfTheFolder_data() { cases(); }
    void isThatOfTheFolder();
    void staysWhereFilesAreChanged_data() { cases(); }
    void staysWhereFilesAreChanged();
    void staysWhereFilesAreReplaced_data() { cases(); }
    void staysWhereFilesAreReplaced();

private:
    enum class Sharing { None, Group, List };

    static void cases()
    {
        QTest::addColumn<int>("mask");
        QTest::addColumn<Sharing>("sharing");
        for (const int mask : {022, 002, 077, 007}) {
            QTest::addRow("mask %03o", mask) << mask << Sharing::None;
            QTest::addRow("mask %03o, folder of a group", mask) << mask << Sharing::Group;
            QTest::addRow("mask %03o, folder with a list", mask) << mask << Sharing::List;
        }
    }

    bool share(Sharing sharing) const
    {
        constexpr gid_t anyGroup = 1234;
        switch (sharing) {
        case Sharing::None:
            return true;
        case Sharing::Group:
            return rights::shareByGroup(m_folder, anyGroup);
        case Sharing::List:
            return rights::shareByList(m_folder);
        }
        return false;
    }

    /** Before the folder is shared, so that it has nothing of that. */
    void add(const char *name, mode_t mode = 0640) const
    {
        QImage image(300, 200, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        const QString path = at(name);
        QVERIFY(image.save(path));
        QVERIFY(::chmod(QFile::encodeName(path).constData(), mode) == 0);
    }

    QString at(const char *name) const { return m_folder + u'/' + QLatin1String(name); }

    void run(const char *said)
    {
        m_driver->click("startButton");
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(QLatin1String(said)), qPrintable(summary));
        m_driver->click("dismissButton");
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_folder;
};

void Access::isThatOfTheFolder()
{
    QFETCH(int, mask);
    QFETCH(Sharing, sharing);
    const rights::Mask set{mode_t(mask)};
    add("a.jpg", 0600);
    if (!share(sharing))
        QSKIP("this file system, or this user, cannot share a folder so");
    m_driver->drop({m_folder});
    run("1 picture done"); // Resize, by a worker
    m_driver->show("convert");
    m_driver->choose("target", QStringLiteral("png"));
    run("1 picture done");
    m_driver->show("recipe");
    run("2 files made");
    WindowDriver::answerPanels({at("saved.gif")});
    m_driver->trigger("saveAsAction");
    QVERIFY(m_driver->waitFor([&] { return m_driver->text("statusText").startsWith(QStringLiteral("Saved")); }));
    ZtImageHandling service;
    const platform::BitmapHandle bitmap(platform::Bitmap::fromImage(pictures::gradient(64, 48)));
    QCOMPARE(service.hSaveToNewImageFileMPR(at("service"), QStringLiteral("public.png"), bitmap, {},
                                            QStringLiteral("9"), {}),
             QStringLiteral("OK"));
    int count = 0;
    for (QDirIterator files(m_folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); files.hasNext();) {
        const QString path = files.next();
        if (path == at("a.jpg"))
            continue;
        ++count;
        QVERIFY2(rights::of(path) == rights::ofNewFileIn(files.fileInfo().path()),
                 qPrintable(path + u' ' + rights::of(path) + QStringLiteral(" not ") +
                            rights::ofNewFileIn(files.fileInfo().path())));
    }
    QCOMPARE(count, 6);
}

void Access::staysWhereFilesAreChanged()
{
    QFETCH(int, mask);
    QFETCH(Sharing, sharing);
    const rights::Mask set{mode_t(mask)};
    add("a.jpg");
    const QString before = rights::of(at("a.jpg"));
    if (!share(sharing))
        QSKIP("this file system, or this user, cannot share a folder so");
    add("b.jpg", 0664); // has what the folder gives
    const QString given = rights::of(at("b.jpg"));
    m_driver->drop({m_folder});
    m_driver->show("metadata");
    Q_EMIT m_driver->control<window::SegmentedControl>("metaScope")->chosen(1);
    m_driver->control<QPlainTextEdit>("metaComment")->setPlainText(QStringLiteral("all"));
    WindowDriver::answerNextQuestion(QStringLiteral("Write"));
    m_driver->click("metaApplyAll");
    QVERIFY(m_driver->waitFor(
        [&] { return m_driver->text("statusText").startsWith(QStringLiteral("2 comments written")); }));
    QCOMPARE(rights::of(at("a.jpg")), before);
    QCOMPARE(rights::of(at("b.jpg")), given);
    m_driver->show("rename");
    m_driver->choose("preset", QStringLiteral("=Number suffix"));
    QVERIFY(m_driver->waitFor(
        [&] { return m_driver->control<QAbstractButton>("startButton")->text() == QStringLiteral("Rename 2 Files"); }));
    m_driver->click("startButton");
    QVERIFY(!m_driver->waitForSummary().isEmpty());
    QCOMPARE(rights::of(at("a 001.jpg")), before);
    QCOMPARE(rights::of(at("b 002.jpg")), given);
}

void Access::staysWhereFilesAreReplaced()
{
    QFETCH(int, mask);
    QFETCH(Sharing, sharing);
    const rights::Mask set{mode_t(mask)};
    add("a.jpg");
    const QString before = rights::of(at("a.jpg"));
    if (!share(sharing))
        QSKIP("this file system, or this user, cannot share a folder so");
    add("b.jpg", 0664);
    const QString given = rights::of(at("b.jpg"));
    m_driver->drop({m_folder});
    m_driver->choose("destination", QStringLiteral("source"));
    m_driver->choose("ifTaken", QStringLiteral("replace"));
    WindowDriver::answerNextQuestion(QStringLiteral("Replace"));
    run("2 pictures done");
    // A file of a shared folder has its group: who replaces it may not be allowed to give it another one.
    const auto withoutGroup = [](const QString &access) {
        return access.section(u':', 0, 0) + access.section(u' ', 2);
    };
    QCOMPARE(withoutGroup(rights::of(at("a.jpg"))), withoutGroup(before));
    QCOMPARE(rights::of(at("b.jpg")), given);
}

QUORLIN_GUI_TEST(Access)

#include "tst_access.moc"
