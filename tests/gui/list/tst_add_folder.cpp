#include "tests/gui/support/window_driver.h"
#include "tests/support/dated_pictures.h"
#include "tests/support/test_program.h"

#include "app/window/pictures/date_box.h"

#include <QCheckBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

using window::PictureModel;

/** Add Folder with its choices: folders inside, and a filter. */
class TestAddFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_driver.reset(); }
    void allOfAFolderIsAdded();
    void typesOfFilesAreNoPartOfFolders();
    void foldersInsideAreLeftOut();
    void aFilterChooses_data();
    void aFilterChooses();
    void theFilterIsForgotten();
    void cancelledAddsNothing();

private:
    using Filling = std::function<void(QFileDialog &panel)>;

    void file(const QString &name, const QByteArray &content);
    void addFolder(const Filling &fill);
    QStringList names();

    std::unique_ptr<WindowDriver> m_driver;
    bool m_wasShown = false;
};

void TestAddFolder::init()
{
    m_driver = WindowDriver::showing("resize");
    file(QStringLiteral("a.jpg"), pictures::datedJpeg(QStringLiteral("2026:08:14 10:00:00")));
    file(QStringLiteral("b.JPEG"), pictures::datedJpeg(QStringLiteral("2026:09:01 10:00:00"), {}, {900, 700}));
    file(QStringLiteral("c.png"), pictures::datedJpeg({})); // changed today
    file(QStringLiteral("in/a in.jpg"), pictures::datedJpeg(QStringLiteral("2025:01:01 10:00:00")));
    file(QStringLiteral("notes.txt"), QByteArray("notes"));
    file(QStringLiteral("in/notes.txt"), QByteArray("notes"));
}

void TestAddFolder::file(const QString &name, const QByteArray &content)
{
    const QString path = m_driver->inputFolder() + u'/' + name;
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile made(path);
    QVERIFY(made.open(QIODevice::WriteOnly) && made.write(content) == content.size());
}

void TestAddFolder::addFolder(const Filling &fill)
{
    m_wasShown = false;
    QTimer::singleShot(50, this, [this, fill] {
        auto *panel = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!panel)
            return;
        m_wasShown = true;
        // What is chosen in the list of folders would have to be read first.
        panel->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(m_driver->inputFolder());
        fill(*panel);
        if (panel->isVisible())
            QMetaObject::invokeMethod(panel, "accept");
    });
    m_driver->trigger("addFolderAction");
    QVERIFY(m_wasShown);
}

QStringList TestAddFolder::names()
{
    QStringList found;
    for (const QString &path : m_driver->pictures().paths())
        found.append(path.mid(path.lastIndexOf(u'/') + 1));
    found.sort();
    return found;
}

void TestAddFolder::allOfAFolderIsAdded()
{
    addFolder([](QFileDialog &panel) {
        auto *inside = panel.findChild<QCheckBox *>(QStringLiteral("addSubfolders"));
        QVERIFY(inside && inside->isVisible() && inside->isChecked());
        QVERIFY(!panel.findChild<QWidget *>(QStringLiteral("addFilterRows"))->isVisible());
    });
    QCOMPARE(m_driver->pictures().count(), 4);
    QCOMPARE(m_driver->text("statusText"),
             QStringLiteral("4 pictures added · 2 files were not added: they are not supported pictures."));
}

void TestAddFolder::typesOfFilesAreNoPartOfFolders()
{
    bool hasTypes = true;
    QString label;
    int needed = 0;
    int room = 0;
    addFolder([&](QFileDialog &panel) {
        hasTypes = panel.findChild<QWidget *>(QStringLiteral("fileTypeCombo"))->isVisible();
        label = panel.labelText(QFileDialog::FileName);
        panel.findChild<QAbstractButton *>(QStringLiteral("addFilter"))->click();
        QCoreApplication::processEvents();
        const auto *types = panel.findChild<QLineEdit *>(QStringLiteral("addTypes"));
        needed = types->fontMetrics().horizontalAdvance(types->placeholderText());
        constexpr int paddingsPx = 24;
        room = types->width() - paddingsPx;
        panel.reject();
    });
    QVERIFY(!hasTypes);
    QCOMPARE(label, QStringLiteral("Folder:"));
    QVERIFY2(room >= needed, qPrintable(QStringLiteral("%1 of %2").arg(room).arg(needed)));
}

void TestAddFolder::foldersInsideAreLeftOut()
{
    addFolder([](QFileDialog &panel) { panel.findChild<QCheckBox *>(QStringLiteral("addSubfolders"))->click(); });
    QVERIFY(m_driver->waitFor([this] { return m_driver->pictures().count() == 3; }));
    QCOMPARE(names(), QStringList({QStringLiteral("a.jpg"), QStringLiteral("b.JPEG"), QStringLiteral("c.png")}));
    QCOMPARE(m_driver->text("statusText"), QStringLiteral("3 pictures added"));
}

void TestAddFolder::aFilterChooses_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("kept");
    const QStringList jpegs = {QStringLiteral("a in.jpg"), QStringLiteral("a.jpg"), QStringLiteral("b.JPEG")};
    QTest::newRow("type") << QStringLiteral("addTypes") << QStringLiteral(".jpg") << jpegs;
    QTest::newRow("types") << QStringLiteral("addTypes") << QStringLiteral("*.png, tif")
                           << QStringList{QStringLiteral("c.png")};
    QTest::newRow("name") << QStringLiteral("addName") << QStringLiteral("A")
                          << QStringList({QStringLiteral("a in.jpg"), QStringLiteral("a.jpg")});
    QTest::newRow("least") << QStringLiteral("addLeast") << QStringLiteral("0.002")
                           << QStringList{QStringLiteral("b.JPEG")};
    QTest::newRow("from") << QStringLiteral("addFrom") << QStringLiteral("2026-08-14")
                          << QStringList({QStringLiteral("a.jpg"), QStringLiteral("b.JPEG"), QStringLiteral("c.png")});
    QTest::newRow("to") << QStringLiteral("addTo") << QStringLiteral("2026-08-14")
                        << QStringList({QStringLiteral("a in.jpg"), QStringLiteral("a.jpg")});
}

void TestAddFolder::aFilterChooses()
{
    QFETCH(QString, field);
    QFETCH(QString, value);
    QFETCH(QStringList, kept);
    addFolder([&](QFileDialog &panel) {
        panel.findChild<QAbstractButton *>(QStringLiteral("addFilter"))->click();
        auto *control = panel.findChild<QWidget *>(field);
        QVERIFY(control && control->isVisible());
        if (auto *line = qobject_cast<QLineEdit *>(control))
            line->setText(value);
        if (auto *number = qobject_cast<QDoubleSpinBox *>(control)) {
            number->setDecimals(3);
            number->setValue(value.toDouble());
        }
        if (auto *day = qobject_cast<window::DateBox *>(control)) {
            panel.findChild<QAbstractButton *>(QStringLiteral("addDated"))->click();
            QVERIFY(day->isEnabled());
            panel.findChild<window::DateBox *>(QStringLiteral("addFrom"))->setDay(QStringLiteral("1990-01-01"));
            panel.findChild<window::DateBox *>(QStringLiteral("addTo"))->setDay(QStringLiteral("2199-01-01"));
            day->setDay(value);
        }
    });
    QVERIFY(m_driver->waitFor([&] { return names() == kept; }));
    QVERIFY2(m_driver->text("statusText").contains(QLatin1String("not match the filter")),
             qPrintable(m_driver->text("statusText")));
}

void TestAddFolder::theFilterIsForgotten()
{
    addFolder([](QFileDialog &panel) {
        panel.findChild<QAbstractButton *>(QStringLiteral("addFilter"))->click();
        panel.findChild<QLineEdit *>(QStringLiteral("addTypes"))->setText(QStringLiteral("png"));
    });
    QVERIFY(m_driver->waitFor([this] { return m_driver->pictures().count() == 1; }));
    addFolder([](QFileDialog &) {});
    QCOMPARE(m_driver->pictures().count(), 4);
}

void TestAddFolder::cancelledAddsNothing()
{
    addFolder([](QFileDialog &panel) { panel.reject(); });
    QCOMPARE(m_driver->pictures().count(), 0);
}

QUORLIN_GUI_TEST(TestAddFolder)

#include "tst_add_folder.moc"
