#include "tests/gui/support/window_driver.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "jobs/desk/recipe_errand.h"
#include "jobs/desk/worker_desk.h"
#include "platform/desktop/user_defaults.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

namespace {

/** A picture that is worked on until it is dropped. */
class LongErrand : public jobs::RecipeErrand
{
public:
    LongErrand(std::shared_ptr<const jobs::SharedRecipe> recipe, const Task &task, qint64 bytes, int &begun)
        : RecipeErrand(std::move(recipe), task, [](const jobs::RecipeResult &) {}), m_bytes(bytes), m_begun(begun)
    {
    }

    std::vector<platform::Message> begin(jobs::Hand &hand) override
    {
        ++m_begun;
        return RecipeErrand::begin(hand);
    }
    Turn take(platform::Message &) override { return Turn::GoesOn; }
    qint64 expectedBytes() const override { return m_bytes; }

private:
    qint64 m_bytes;
    int &m_begun;
};

} // namespace

/** The sheet of the preferences: what it shows, what is kept, and what it is good for. */
class Preferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_driver = WindowDriver::started(); }
    void cleanup() { m_driver.reset(); }

    void memoryIsLimitedAtOnce_data()
    {
        QTest::addColumn<int>("megabytes");
        QTest::addColumn<int>("atOnce");
        QTest::newRow("1 GB") << 1024 << 2;
        QTest::newRow("2 GB") << 2048 << 4;
    }

    // Each picture takes 450 MB. Workers that have no memory for one do what needs none, so all are seen to be ready.
    void memoryIsLimitedAtOnce()
    {
        QFETCH(int, megabytes);
        jobs::WorkerDesk &desk = jobs::WorkerDesk::ofProcess();
        m_driver->trigger("preferencesAction");
        auto *box = m_driver->control<QComboBox>("wishMemory");
        box->setCurrentIndex(box->findData(megabytes));
        Q_EMIT box->activated(box->currentIndex());
        constexpr int workers = 4;
        desk.setSize(workers);
        const QString picture = m_driver->inputFolder() + QStringLiteral("/a.png");
        QVERIFY(pictures::plain(60, 40, Qt::red).save(picture));
        const auto recipe = jobs::SharedRecipe::from(R"({"quorlin": 1, "outputs": [{"type": "png"}]})");
        QVERIFY(recipe.has_value());
        int large = 0;
        int small = 0;
        QList<jobs::WorkerDesk::Number> asked;
        const auto dropAll = qScopeGuard([&] {
            for (const auto number : asked)
                desk.drop(number);
        });
        constexpr qint64 bytes = qint64(450) << 20;
        for (int i = 0; i < 2 * workers; ++i) {
            const bool isLarge = i % 2 == 0;
            const jobs::RecipeErrand::Task task{
                picture, QStringLiteral("%1/%2.png").arg(m_driver->inputFolder()).arg(i), i, true, QSize(60, 40)};
            asked.append(
                desk.add(std::make_shared<LongErrand>(*recipe, task, isLarge ? bytes : 0, isLarge ? large : small),
                         isLarge ? jobs::Urgency::Soon : jobs::Urgency::Later));
        }
        QTRY_COMPARE_WITH_TIMEOUT(large + small, workers, 30000);
        QTEST(large, "atOnce");
        m_driver->click("preferencesDone");
    }

    void theOthersTakeEffect()
    {
        m_driver->show("log");
        QVERIFY(m_driver->text("logEmpty").contains(QStringLiteral("100,000")));
        m_driver->trigger("preferencesAction");
        const auto choose = [this](const char *name, const QVariant &value) {
            auto *box = m_driver->control<QComboBox>(name);
            QVERIFY(box->findData(value) >= 0);
            box->setCurrentIndex(box->findData(value));
            Q_EMIT box->activated(box->currentIndex());
        };
        choose("wishProcessors", 1);
        choose("wishLogRows", 1000);
        choose("wishDestination", QStringLiteral("source"));
        QCOMPARE(jobs::WorkerDesk::ofProcess().size(), 1);
        QVERIFY(m_driver->pictures().sharesThumbnails());
        m_driver->control<QCheckBox>("wishThumbnails")->click();
        QVERIFY(!m_driver->pictures().sharesThumbnails());
        m_driver->click("preferencesDone");
        m_driver->startAgain();
        QCOMPARE(jobs::WorkerDesk::ofProcess().size(), 1);
        QVERIFY(!m_driver->pictures().sharesThumbnails());
        m_driver->show("log");
        QVERIFY(m_driver->text("logEmpty").contains(QStringLiteral("1,000")));
        m_driver->show("round");
        QCOMPARE(m_driver->control<QComboBox>("destination")->currentData().toString(), QStringLiteral("source"));
    }

    void preferencesAreKept()
    {
        m_driver->trigger("preferencesAction");
        for (const auto &[box, value] :
             {std::pair{"wishLanguage", "fr"}, {"wishAppearance", "dark"}, {"wishTaken", "skip"}})
            m_driver->choose(box, QString::fromLatin1(value));
        auto *rows = m_driver->control<QComboBox>("wishLogRows");
        rows->setCurrentIndex(0);
        Q_EMIT rows->activated(0);
        m_driver->control<QCheckBox>("wishUpdate")->click();
        QVERIFY(m_driver->control<QAction>("darkAppearanceAction")->isChecked());
        m_driver->click("preferencesDone");
        m_driver->startAgain();
        m_driver->trigger("preferencesAction");
        QVERIFY(m_driver->control<QDialog>("preferencesWindow")->isVisible());
        QCOMPARE(m_driver->control<QComboBox>("wishLanguage")->currentText(), QStringLiteral("Français"));
        QCOMPARE(m_driver->control<QComboBox>("wishAppearance")->currentData().toString(), QStringLiteral("dark"));
        QCOMPARE(m_driver->control<QComboBox>("wishTaken")->currentData().toString(), QStringLiteral("skip"));
        QCOMPARE(m_driver->control<QComboBox>("wishLogRows")->currentData().toInt(), 1000);
        QVERIFY(m_driver->control<QCheckBox>("wishUpdate")->isChecked());
        m_driver->choose("wishLanguage", QStringLiteral("system"));
        QVERIFY(!platform::userDefault(QStringLiteral("Language")).isValid());
        m_driver->choose("wishAppearance", QStringLiteral("system"));
        m_driver->click("preferencesDone");
        // An action that was never used starts as wished.
        m_driver->show("round");
        QCOMPARE(m_driver->control<QComboBox>("ifTaken")->currentData().toString(), QStringLiteral("skip"));
    }

    // Each with a sentence that explains it; with more than twelve they would need a field to search in.
    void preferencesAreExplainedAndFew()
    {
        m_driver->trigger("preferencesAction");
        const QWidget &window = *m_driver->control<QDialog>("preferencesWindow");
        const QList<QWidget *> wishes =
            window.findChildren<QWidget *>(QRegularExpression(QStringLiteral("^wish[A-Z]")));
        QVERIFY2(wishes.size() >= 9, qPrintable(QString::number(wishes.size())));
        QVERIFY(wishes.size() + 1 <= 12 || window.findChild<QLineEdit *>(QStringLiteral("wishSearch")));
        for (const QWidget *each : wishes) {
            const QString name = each->objectName().mid(4);
            auto *note = window.findChild<QLabel *>(name.at(0).toLower() + name.mid(1) + QStringLiteral("Note"));
            QVERIFY2(note && note->text().endsWith(u'.'), qPrintable(name));
        }
    }

private:
    std::unique_ptr<WindowDriver> m_driver;
};

QUORLIN_GUI_TEST(Preferences)

#include "tst_preferences.moc"
