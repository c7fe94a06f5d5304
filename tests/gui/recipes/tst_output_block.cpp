#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "app/window/controls/color_well.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QTest>

using window::PictureModel;

namespace {

QDateTime changeOf(const QString &path)
{
    return QFileInfo(path).lastModified();
}

} // namespace

/** Where results go and what they are called, as a person says it under the settings of an action. */
class OutputBlock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::showing("resize");
        m_pictures = m_driver->inputFolder();
        QVERIFY(QDir(m_pictures).mkpath(QStringLiteral("lake/north")));
        for (const char *name : {"/a.png", "/lake/b.png", "/lake/north/c.png"})
            QVERIFY(pictures::gradient(40, 30).save(m_pictures + QLatin1String(name)));
    }

    void cleanup() { m_driver.reset(); }

    void keepsSubfolders()
    {
        m_driver->drop({m_pictures});
        auto *keeps = m_driver->control<QCheckBox>("keepSubfolders");
        QVERIFY(!keeps->isVisible());
        const QString results = chooseFolder();
        QVERIFY(keeps->isVisible());
        keeps->click();
        run(QStringLiteral("3 pictures done"));
        QVERIFY(QFileInfo::exists(results + QStringLiteral("/a.png")));
        QVERIFY(QFileInfo::exists(results + QStringLiteral("/lake/b.png")));
        QVERIFY(QFileInfo::exists(results + QStringLiteral("/lake/north/c.png")));
        QCOMPARE(QDir(results + QStringLiteral("/lake")).entryList(QDir::Files), QStringList{QStringLiteral("b.png")});
    }

    void putsPicturesThatWereAddedThemselvesIntoTheFolder()
    {
        m_driver->drop({m_pictures + QStringLiteral("/lake/north/c.png"), m_pictures + QStringLiteral("/a.png")});
        const QString results = chooseFolder();
        m_driver->control<QCheckBox>("keepSubfolders")->click();
        run(QStringLiteral("2 pictures done"));
        QCOMPARE(QDir(results).entryList(QDir::Files), (QStringList{QStringLiteral("a.png"), QStringLiteral("c.png")}));
        QVERIFY(QDir(results).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty());
    }

    void forgetsFoldersWithTheList()
    {
        m_driver->drop({m_pictures});
        m_driver->click("clearButton");
        m_driver->drop({m_pictures + QStringLiteral("/lake")});
        const QString results = chooseFolder();
        m_driver->control<QCheckBox>("keepSubfolders")->click();
        run(QStringLiteral("2 pictures done"));
        QVERIFY(QFileInfo::exists(results + QStringLiteral("/b.png")));
        QVERIFY(QFileInfo::exists(results + QStringLiteral("/north/c.png")));
    }

    void namesTheFolderBesideTheOriginals()
    {
        m_driver->drop({m_pictures + QStringLiteral("/a.png")});
        auto *name = m_driver->control<QLineEdit>("folderName");
        QCOMPARE(name->text(), QStringLiteral("Resized"));
        name->setText(QStringLiteral("For {Jane}")); // braces are nothing but braces here
        QCOMPARE(m_driver->control<QComboBox>("destination")->currentText(), QStringLiteral("Next to each picture"));
        run(QStringLiteral("1 picture done"));
        QVERIFY(QFileInfo::exists(m_pictures + QStringLiteral("/For {Jane}/a.png")));
        name->setText(QStringLiteral("a/b"));
        QVERIFY(m_driver->text("problemText").contains(QLatin1String("not a valid folder name")));
    }

    void namesResultsByAPattern()
    {
        m_driver->drop({m_pictures});
        auto *pattern = m_driver->control<QLineEdit>("namePattern");
        QVERIFY(!pattern->isVisible());
        m_driver->click("outputMore");
        QVERIFY(pattern->isVisible());
        pattern->setText(QStringLiteral("{counter:001} {name} {width}"));
        QVERIFY(m_driver->waitFor(
            [&] { return m_driver->cell(1, PictureModel::NewName) == QLatin1String("002 b 40.png"); }));
        run(QStringLiteral("3 pictures done"));
        QVERIFY(QFileInfo::exists(m_pictures + QStringLiteral("/lake/north/Resized/003 c 40.png")));
        // What is not as usual is always in sight.
        m_driver->click("outputMore");
        QVERIFY(pattern->isVisible());
        QVERIFY(!m_driver->control<QCheckBox>("keepDates")->isVisible());
        pattern->setText(QStringLiteral("{nowhere}"));
        QVERIFY(!m_driver->text("problemText").isEmpty());
    }

    void offersTheValuesOfNames()
    {
        m_driver->click("outputMore");
        auto *pattern = m_driver->control<QLineEdit>("namePattern");
        pattern->setText(QStringLiteral("x-web"));
        pattern->setCursorPosition(1);
        m_driver->click("nameTokens");
        QWidget *menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        QTest::keyClicks(menu->focusWidget(), QStringLiteral("camera"));
        QTest::keyClick(menu->focusWidget(), Qt::Key_Return);
        QCOMPARE(pattern->text(), QStringLiteral("x{camera}-web"));
    }

    void keepsTheDateOfTheFile()
    {
        const QString original = m_pictures + QStringLiteral("/a.png");
        const QDateTime before(QDate(2001, 2, 3), QTime(4, 5, 6));
        QFile file(original);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(before, QFileDevice::FileModificationTime));
        file.close();
        m_driver->drop({original});
        run(QStringLiteral("1 picture done"));
        QVERIFY(changeOf(m_pictures + QStringLiteral("/Resized/a.png")) > before);
        m_driver->click("outputMore");
        m_driver->control<QCheckBox>("keepDates")->click();
        run(QStringLiteral("1 picture done"));
        QCOMPARE(changeOf(m_pictures + QStringLiteral("/Resized/a (2).png")), before);
    }

    void laysTransparentPartsOnAColour()
    {
        const QString original = m_pictures + QStringLiteral("/clear.png");
        QVERIFY(pictures::plain(40, 30, Qt::transparent).save(original));
        m_driver->drop({original});
        m_driver->click("outputMore");
        auto *well = m_driver->control<window::ColorWell>("matte");
        m_driver->choose("fileType", QStringLiteral("public.png"));
        QVERIFY(!well->isVisible());
        m_driver->choose("fileType", QStringLiteral("public.bmp"));
        QVERIFY(well->isVisible());
        well->setColor(QStringLiteral("#306090"));
        Q_EMIT well->chosen(well->color());
        run(QStringLiteral("1 picture done"));
        QCOMPARE(QImage(m_pictures + QStringLiteral("/Resized/clear.bmp")).pixelColor(20, 15),
                 QColor(0x30, 0x60, 0x90));
    }

    void writesEveryTypeAtTheQualityThatIsChosen()
    {
        m_driver->drop({m_pictures + QStringLiteral("/a.png")});
        auto *quality = m_driver->control<QComboBox>("quality");
        m_driver->choose("fileType", QStringLiteral("public.png"));
        QVERIFY(!quality->isEnabled());
        for (const char *type : {"org.webmproject.webp", "public.avif", "public.jpeg-xl"}) {
            m_driver->choose("fileType", QString::fromLatin1(type));
            QVERIFY(quality->isEnabled());
            m_driver->choose("quality", QStringLiteral("3"));
            run(QStringLiteral("1 picture done"));
        }
        const QString results = m_pictures + QStringLiteral("/Resized/a");
        for (const char *extension : {".webp", ".avif", ".jxl"})
            QVERIFY2(QFileInfo::exists(results + QLatin1String(extension)), extension);
    }

    void turnsWithoutLossUntilAQualityIsChosen()
    {
        QVERIFY(pictures::gradient(64, 48).save(m_pictures + QStringLiteral("/b.jpg"), "JPEG", 70));
        m_driver->show("turn");
        m_driver->drop({m_pictures + QStringLiteral("/b.jpg")});
        m_driver->click("turnHalf");
        auto *quality = m_driver->control<QComboBox>("quality");
        QCOMPARE(quality->currentData().toString(), QStringLiteral("own"));
        QVERIFY(m_driver->waitFor([&] { return m_driver->text("planNote").contains(QLatin1String("without loss")); }));
        m_driver->choose("quality", QStringLiteral("10"));
        QVERIFY(m_driver->waitFor([&] { return !m_driver->text("planNote").contains(QLatin1String("without loss")); }));
    }

    void isRememberedByPresets()
    {
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        m_driver->click("outputMore");
        m_driver->control<QLineEdit>("namePattern")->setText(QStringLiteral("{name}-it's"));
        m_driver->control<QCheckBox>("keepDates")->click();
        m_driver->choosePresetEntry("Save");
        m_driver->choose("preset", QStringLiteral("=Mail 1024"));
        QCOMPARE(m_driver->control<QLineEdit>("namePattern")->text(), QStringLiteral("{name}"));
        QVERIFY(!m_driver->control<QCheckBox>("keepDates")->isChecked());
        m_driver->choose("preset", QStringLiteral("=Web 1600"));
        QCOMPARE(m_driver->control<QLineEdit>("namePattern")->text(), QStringLiteral("{name}-it's"));
        QVERIFY(m_driver->control<QCheckBox>("keepDates")->isChecked());
    }

private:
    QString chooseFolder()
    {
        const QString results = m_driver->folder() + QStringLiteral("/results");
        QDir().mkpath(results);
        WindowDriver::answerPanels({results});
        m_driver->choose("destination", QStringLiteral("choose"));
        return results;
    }

    void run(const QString &start)
    {
        m_driver->click("startButton");
        const QString summary = m_driver->waitForSummary();
        QVERIFY2(summary.startsWith(start), qPrintable(summary));
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_pictures;
};

QUORLIN_GUI_TEST(OutputBlock)

#include "tst_output_block.moc"
