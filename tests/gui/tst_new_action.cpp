#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "app/window/folders/side_bar.h"
#include "app/window/look/icons.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

namespace {

void copyFolder(const QString &from, const QString &to)
{
    QDirIterator walk(from, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString target = to + walk.next().mid(from.size());
        QVERIFY(QDir().mkpath(QFileInfo(target).path()) && QFile::copy(walk.filePath(), target));
    }
}

/** Puts a line before the first one that is @p before. */
void addLine(QStringList &lines, const QString &line, const QString &before)
{
    const qsizetype at = lines.indexOf(before);
    QVERIFY2(at >= 0, qPrintable(before));
    lines.insert(at, line);
}

} // namespace

/** An action that the program does not have is added to a copy of the interface: its folder, and two lines in actions.js. */
class NewAction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QString copy = m_folder.filePath(QStringLiteral("interface"));
        copyFolder(QStringLiteral(QUORLIN_INTERFACE_FOLDER), copy);
        copyFolder(QStringLiteral(QUORLIN_TEST_DATA "/new-action/shrink"), copy + QStringLiteral("/actions/shrink"));
        QFile registry(copy + QStringLiteral("/actions/actions.js"));
        QVERIFY(registry.setPermissions(QFile::ReadOwner | QFile::WriteOwner) && registry.open(QIODevice::ReadWrite));
        QStringList lines = QString::fromUtf8(registry.readAll()).split(u'\n');
        addLine(lines, QStringLiteral("import { shrink } from \"./shrink/shrink-action.js\";"),
                QStringLiteral("import { sort } from \"./sort/sort-action.js\";"));
        addLine(lines, QStringLiteral("            shrink,"), QStringLiteral("            turn,"));
        registry.seek(0);
        registry.write(lines.join(u'\n').toUtf8());
        registry.close();
        qputenv("QUORLIN_INTERFACE", copy.toLocal8Bit());
        m_driver = std::make_unique<WindowDriver>(*qobject_cast<QApplication *>(QCoreApplication::instance()));
    }

    void cleanupTestCase()
    {
        m_driver.reset();
        qputenv("QUORLIN_INTERFACE", QUORLIN_INTERFACE_FOLDER);
    }

    void standsInTheSideBarWithItsIcon()
    {
        const auto *bar = m_driver->control<window::SideBar>("sideBar");
        QCOMPARE(bar->findItems(QStringLiteral("Shrink"), Qt::MatchExactly).size(), 1);
        QVERIFY(!window::icon(QStringLiteral("shrink")).pixmap(16, 16).isNull());
        QVERIFY(window::icon(QStringLiteral("shrunk")).isNull());
    }

    void showsItsPane()
    {
        m_driver->show("shrink");
        QCOMPARE(m_driver->text("paneTitle"), QStringLiteral("Shrink"));
        QVERIFY(m_driver->control<QSpinBox>("shrinkPercent")->isVisible());
        QCOMPARE(m_driver->control<QSpinBox>("shrinkPercent")->value(), 50);
    }

    void startsWithItsPresets()
    {
        m_driver->show("shrink");
        auto *presets = m_driver->control<QComboBox>("preset");
        QVERIFY(presets->findText(QStringLiteral("A quarter")) >= 0);
        m_driver->choose("preset", QStringLiteral("=A quarter"));
        QCOMPARE(m_driver->control<QSpinBox>("shrinkPercent")->value(), 25);
    }

    void plansAndRuns()
    {
        const QString folder = m_driver->inputFolder();
        QImage picture(400, 200, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(folder + QStringLiteral("/a.png")));
        m_driver->drop({folder});
        m_driver->show("shrink");
        m_driver->control<QSpinBox>("shrinkPercent")->setValue(20);
        QTRY_COMPARE(m_driver->text("resultText"), QStringLiteral("400×200 → 80×40"));
        // No table has the forms of its text.
        QCOMPARE(m_driver->control<QAbstractButton>("startButton")->text(), QStringLiteral("Shrink 1 Picture(s)"));
        m_driver->click("startButton");
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(QLatin1String("1 picture done")), qPrintable(summary));
        QCOMPARE(QImage(folder + QStringLiteral("/Shrunk/a.png")).size(), QSize(80, 40));
    }

    void keepsItsSettings()
    {
        m_driver->show("shrink");
        m_driver->control<QSpinBox>("shrinkPercent")->setValue(35);
        m_driver->show("crop");
        m_driver->show("shrink");
        QCOMPARE(m_driver->control<QSpinBox>("shrinkPercent")->value(), 35);
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(NewAction)

#include "tst_new_action.moc"
