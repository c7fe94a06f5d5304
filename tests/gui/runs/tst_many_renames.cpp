#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "platform/desktop/user_defaults.h"

#include <QDir>
#include <QFile>
#include <QProgressBar>
#include <QTest>
#include <QTimer>

#include <algorithm>

using window::PictureModel;

/** Renaming ten thousand files: the window says how far it is from the first one on, and can be stopped at any time. */
class ManyRenames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_driver = WindowDriver::started();
        beginRenaming();
    }

    void cleanup() { m_driver.reset(); }

    void showsHowFarItIs()
    {
        Turns turns(*m_driver);
        m_driver->click("startButton");
        QVERIFY(isPlanning()); // said at once, before any of the work
        QCOMPARE(names().filter(QStringLiteral("new ")).size(), 0);
        QList<int> shown;
        QStringList texts;
        connect(progress(), &QProgressBar::valueChanged, progress(), [&](int value) {
            shown.append(value);
            texts.append(m_driver->text("statusText"));
        });
        QVERIFY(m_driver->waitFor([&] { return !shown.isEmpty(); }, 60000));
        const int planned = turns.beforeTheFirst();
        QVERIFY2(planned >= 20, qPrintable(QString::number(planned)));
        const QString said = m_driver->waitForSummary();
        QVERIFY2(said.startsWith(QStringLiteral("10,000 files renamed, no problems")), qPrintable(said));
        QVERIFY2(shown.constFirst() > 0 && shown.constFirst() < 1000, qPrintable(texts.constFirst()));
        QVERIFY2(texts.constFirst().endsWith(QLatin1String(" of 10,000")), qPrintable(texts.constFirst()));
        QVERIFY(shown.size() > 2 && std::is_sorted(shown.cbegin(), shown.cend()));
        QVERIFY2(turns.mostAtOnce() > 0 && turns.mostAtOnce() < 1000, qPrintable(QString::number(turns.mostAtOnce())));
        QCOMPARE(names().filter(QStringLiteral("new ")).size(), many);
    }

    void stopsWhileItPlans()
    {
        const QStringList before = names();
        Turns turns(*m_driver);
        m_driver->click("startButton");
        QVERIFY(m_driver->waitFor([&] { return turns.count() > 2; }));
        QVERIFY(isPlanning());
        m_driver->click("cancelButton");
        QCOMPARE(m_driver->waitForSummary(), QStringLiteral("Cancelled before the first file. Nothing was moved."));
        QCOMPARE(names(), before);
        QVERIFY(m_driver->control<QAbstractButton>("startButton")->isEnabled());
    }

    void stopsInTheMiddle()
    {
        const QStringList before = names();
        QString detail;
        connect(progress(), &QProgressBar::valueChanged, this, [&](int value) {
            if (value < 100 || value >= many)
                return;
            progress()->disconnect(this);
            m_driver->click("cancelButton");
            detail = m_driver->text("statusDetail");
        });
        m_driver->click("startButton");
        const QString said = m_driver->waitForSummary();
        QCOMPARE(detail, QStringLiteral("stopping")); // by the click itself
        const int moved = int(names().filter(QStringLiteral("new ")).size());
        QVERIFY2(moved >= 100 && moved < many, qPrintable(said));
        QVERIFY2(said.startsWith(QStringLiteral("Cancelled: %L1 files renamed, no problems").arg(moved)),
                 qPrintable(said));
        QCOMPARE(names().size(), many);
        QCOMPARE(m_driver->cell(moved - 1, PictureModel::Status), QStringLiteral("Done"));
        QCOMPARE(m_driver->cell(moved, PictureModel::Status), QStringLiteral("Skipped: cancelled"));
        m_driver->click("undoButton");
        const QString restored = m_driver->waitForSummary();
        QVERIFY2(restored.startsWith(QStringLiteral("%L1 names restored, no problems").arg(moved)),
                 qPrintable(restored));
        QCOMPARE(names(), before);
    }

private:
    static constexpr int many = 10000;

    /** Counts when the window can do something else, and how many files are done from one such moment to the next. */
    class Turns
    {
    public:
        explicit Turns(WindowDriver &driver) : m_driver(driver)
        {
            connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
            m_timer.start(0);
        }

        int count() const { return m_count; }
        int beforeTheFirst() const { return m_before; }
        int mostAtOnce() const { return m_most; }

    private:
        void look()
        {
            const int last = m_done;
            while (m_done < many && m_driver.cell(m_done, PictureModel::Status) == QStringLiteral("Done"))
                ++m_done;
            m_most = std::max(m_most, m_done - last);
            m_before += m_done == 0 ? 1 : 0;
            ++m_count;
        }

        WindowDriver &m_driver;
        QTimer m_timer;
        int m_count = 0;
        int m_before = 0;
        int m_done = 0;
        int m_most = 0;
    };

    QProgressBar *progress() { return m_driver->control<QProgressBar>("progress"); }

    bool isPlanning()
    {
        return m_driver->text("statusText") == QStringLiteral("Planning…") && progress()->isVisible() &&
               progress()->maximum() == 0 && m_driver->control<QAbstractButton>("cancelButton")->isVisible();
    }

    QStringList names() const { return QDir(m_driver->inputFolder()).entryList(QDir::Files | QDir::Hidden); }

    void beginRenaming()
    {
        for (int i = 0; i < many; ++i) {
            QFile file(m_driver->inputFolder() + QStringLiteral("/p%1.txt").arg(i, 5, 10, QLatin1Char('0')));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        platform::setUserDefault(QStringLiteral("Settings-rename"),
                                 QStringLiteral(R"({"what":"files","steps":[{"kind":"text","on":true,"pattern":)"
                                                R"("new {counter:00001}"}],"sidecars":true,"simulation":false})"));
        m_driver->startAgain();
        m_driver->show("rename");
        m_driver->drop({m_driver->inputFolder()});
        QVERIFY(m_driver->waitFor(
            [this] {
                return m_driver->pictures().model()->rowCount() == many &&
                       m_driver->control<QAbstractButton>("startButton")->isEnabled() &&
                       m_driver->cell(many - 1, PictureModel::Status) == QStringLiteral("Ready");
            },
            120000));
    }

    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(ManyRenames)
#include "tst_many_renames.moc"
