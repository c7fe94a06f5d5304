#include "tests/gui/support/window_driver.h"
#include "tests/support/dated_pictures.h"
#include "tests/support/test_program.h"

#include "jobs/camera_clocks.h"

#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QMenu>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

using window::PictureModel;

/** Dates and cameras as columns, the order by them, and clocks that went wrong. */
class TestClocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void datesAndCamerasAreColumns();
    void countersFollowTheOrderOfDates();
    void aShiftedClockChangesOrderAndPlan();
    void columnsAreChosenAndKept();
    void statusKeepsItsRoom();

private:
    void stamp(const char *name, const char *date, const char *camera);
    QByteArray contentOf(const char *name);
    QString name(int row) { return m_driver->cell(row, PictureModel::Name); }
    QString newName(int row) { return m_driver->cell(row, PictureModel::NewName); }
    bool waitForOrder(const QStringList &names);
    QHeaderView &header() { return *m_driver->pictures().horizontalHeader(); }
    void sortByDate() { header().setSortIndicator(PictureModel::Taken, Qt::AscendingOrder); }

    std::unique_ptr<WindowDriver> m_driver;
};

void TestClocks::stamp(const char *name, const char *date, const char *camera)
{
    QFile file(m_driver->inputFolder() + u'/' + QString::fromLatin1(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(pictures::datedJpeg(QString::fromLatin1(date), QString::fromLatin1(camera))) > 0);
}

QByteArray TestClocks::contentOf(const char *name)
{
    QFile file(m_driver->inputFolder() + u'/' + QString::fromLatin1(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Two cameras at one wedding: the clock of B is an hour slow. */
void TestClocks::init()
{
    m_driver = WindowDriver::showing("rename");
    stamp("a1.jpg", "2026:08:14 15:00:00", "Camera A");
    stamp("a2.jpg", "2026:08:14 14:30:00", "Camera A");
    stamp("b1.jpg", "2026:08:14 13:45:00", "Camera B");
    stamp("b2.jpg", "2026:08:14 23:30:00", "Camera B");
    m_driver->drop({m_driver->inputFolder()});
    QCOMPARE(m_driver->pictures().count(), 4);
}

void TestClocks::cleanup()
{
    for (const char *camera : {"Camera A", "Camera B"})
        jobs::CameraClocks::ofProcess().setShift(QString::fromLatin1(camera), 0);
    m_driver.reset();
}

bool TestClocks::waitForOrder(const QStringList &names)
{
    return m_driver->waitFor([&] {
        QStringList shown;
        for (int row = 0; row < m_driver->pictures().model()->rowCount(); ++row)
            shown.append(name(row));
        return shown == names && m_driver->pictures().isSettled();
    });
}

void TestClocks::datesAndCamerasAreColumns()
{
    QVERIFY(m_driver->waitFor([this] { return m_driver->cell(0, PictureModel::Camera) == QLatin1String("Camera A"); }));
    QVERIFY2(m_driver->cell(0, PictureModel::Taken).contains(QLatin1String("2026")),
             qPrintable(m_driver->cell(0, PictureModel::Taken)));
    m_driver->window().resize(1900, 900);
    QCoreApplication::processEvents();
    QVERIFY(!header().isSectionHidden(PictureModel::Taken) && !header().isSectionHidden(PictureModel::Camera));
    m_driver->window().resize(1000, 720);
    QCoreApplication::processEvents();
    QVERIFY(header().isSectionHidden(PictureModel::Taken) && header().isSectionHidden(PictureModel::Camera));
}

void TestClocks::countersFollowTheOrderOfDates()
{
    m_driver->choose("preset", QStringLiteral("=Number suffix"));
    sortByDate(); // before all dates are read
    QVERIFY(waitForOrder(
        {QStringLiteral("b1.jpg"), QStringLiteral("a2.jpg"), QStringLiteral("a1.jpg"), QStringLiteral("b2.jpg")}));
    QVERIFY(m_driver->waitFor([this] { return newName(0) == QLatin1String("b1 001.jpg"); }));
    QVERIFY(m_driver->waitFor([this] { return newName(3) == QLatin1String("b2 004.jpg"); }));
    header().setSortIndicator(PictureModel::Taken, Qt::DescendingOrder);
    QVERIFY(m_driver->waitFor([this] { return newName(0) == QLatin1String("b2 001.jpg"); }));
}

void TestClocks::aShiftedClockChangesOrderAndPlan()
{
    m_driver->choose("preset", QStringLiteral("=Number suffix"));
    sortByDate();
    QVERIFY(m_driver->waitFor([this] { return newName(0) == QLatin1String("b1 001.jpg"); }));
    QVERIFY(m_driver->pictures().isSettled());
    const QByteArray before = contentOf("b2.jpg");
    m_driver->trigger("clocksAction");
    QWidget *window = nullptr;
    QVERIFY(m_driver->waitFor([&window] {
        for (QWidget *each : QApplication::topLevelWidgets())
            if (each->objectName() == QLatin1String("clocksWindow") && each->isVisible())
                window = each;
        return window != nullptr;
    }));
    auto *cameras = window->findChild<QComboBox *>(QStringLiteral("clockCamera"));
    QCOMPARE(cameras->count(), 2);
    cameras->setCurrentIndex(cameras->findData(QStringLiteral("Camera B")));
    Q_EMIT cameras->activated(cameras->currentIndex());
    window->findChild<QSpinBox *>(QStringLiteral("clockHours"))->setValue(1);
    QVERIFY(waitForOrder(
        {QStringLiteral("a2.jpg"), QStringLiteral("b1.jpg"), QStringLiteral("a1.jpg"), QStringLiteral("b2.jpg")}));
    QVERIFY(m_driver->waitFor([this] { return newName(1) == QLatin1String("b1 002.jpg"); }));
    // The picture of half past eleven belongs to the next day now.
    m_driver->show("sort");
    m_driver->choose("preset", QStringLiteral("=By year and day taken"));
    const auto shows = [this](int row, const char *text) {
        return m_driver->waitFor([&] { return newName(row).contains(QLatin1String(text)); });
    };
    QVERIFY2(shows(3, "2026-08-15"), qPrintable(newName(3)));
    QVERIFY2(shows(0, "2026-08-14"), qPrintable(newName(0)));
    QCOMPARE(contentOf("b2.jpg"), before); // no file is changed
    window->findChild<QAbstractButton *>(QStringLiteral("clockReset"))->click();
    QVERIFY2(shows(3, "2026-08-14"), qPrintable(newName(3)));
    window->close();
}

void TestClocks::columnsAreChosenAndKept()
{
    m_driver->window().resize(1280, 720);
    window::PictureTable &list = m_driver->pictures();
    QVERIFY(header().isSectionHidden(PictureModel::Camera));
    QTimer::singleShot(0, this, [] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        for (QAction *entry : menu ? menu->actions() : QList<QAction *>())
            if (entry->text() == QLatin1String("Camera"))
                entry->trigger();
        if (menu)
            menu->close();
    });
    m_driver->trigger("columnsAction");
    QVERIFY(!header().isSectionHidden(PictureModel::Camera));
    QVERIFY(list.columnLayout().contains(QLatin1String("camera")));
    m_driver->startAgain();
    m_driver->show("rename");
    QVERIFY(!header().isSectionHidden(PictureModel::Camera));
}

/** The status has at least the room that it had without dates and cameras, unless the user asks for these. */
void TestClocks::statusKeepsItsRoom()
{
    for (const char *action : {"resize", "rename"}) {
        m_driver->show(action);
        for (const int width : {1280, 1366, 1440}) {
            m_driver->window().resize(width, 720);
            QCoreApplication::processEvents();
            QVERIFY2(header().sectionSize(PictureModel::Status) >= 120,
                     qPrintable(QStringLiteral("%1 at %2: %3")
                                    .arg(QString::fromLatin1(action))
                                    .arg(width)
                                    .arg(header().sectionSize(PictureModel::Status))));
        }
    }
}

QUORLIN_GUI_TEST(TestClocks)

#include "tst_clocks.moc"
