#include "tests/gui/runs/window_session.h"
#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include "app/window/log/log_table.h"
#include "app/window/log/run_list.h"

#include <QLineEdit>
#include <QRandomGenerator>

using session::Ended;
using session::Home;

namespace {

const char *const names[] = {"a.jpg", "b.tif", "c.png", "d.bmp", "e.jpg", "f.jpg"};

QString valuesFolder(const QString &home)
{
    return home + QStringLiteral("/.local/share/quorlin/metadata-values");
}

/** Everything that is stored for reverting runs. */
QByteArray storedValues(const QString &home)
{
    QByteArray all;
    for (const QFileInfo &each : QDir(valuesFolder(home)).entryInfoList(QDir::Files))
        all += pictures::bytesOf(each.filePath());
    return all;
}

/** Whether the file of this process is one in which old values are stored. */
bool isOfValues(int file)
{
    return QFile::symLinkTarget(QStringLiteral("/proc/self/fd/%1").arg(file))
        .contains(QLatin1String("/metadata-values/"));
}

/** The form with a title, ready to be written into all pictures. */
void prepare(WindowDriver &driver)
{
    driver.show("metadata");
    driver.drop({driver.inputFolder()});
    driver.click("metaFields");
    driver.control<QLineEdit>("mfTitle")->setText(QStringLiteral("Möwe {name}"));
    const auto isReady = [&driver] {
        return driver.pictures().count() == int(std::size(names)) &&
               driver.control<QAbstractButton>("startButton")->isEnabled() &&
               driver.control<QAbstractButton>("startButton")->text().contains(QStringLiteral("6 "));
    };
    if (!driver.waitFor(isReady, 60'000))
        qFatal("the form is not ready");
    session::say(QStringLiteral("started"));
}

void write(WindowDriver &driver)
{
    WindowDriver::answerNextQuestion(QStringLiteral("Write"));
    driver.click("startButton");
    session::say(QStringLiteral("summary ") + driver.waitForSummary());
}

/** Before each change of the disk: what has been written into a picture can be reverted. */
void watch(WindowDriver &driver)
{
    prepare(driver);
    const QMap<QString, QByteArray> before = Home::files(driver.inputFolder());
    int calls = 0;
    int met = 0;
    EveryCall::before = [&](std::string_view, const char *) {
        if (::gettid() != ::getpid())
            return 0;
        ++calls;
        const QByteArray stored = storedValues(driver.folder());
        const QMap<QString, QByteArray> now = Home::files(driver.inputFolder());
        for (auto file = now.begin(); file != now.end(); ++file) {
            const bool isChanged =
                !QFileInfo(file.key()).fileName().startsWith(u'.') && before.value(file.key()) != *file;
            met += isChanged;
            if (isChanged &&
                !stored.contains("\"file\":\"" + (driver.inputFolder() + u'/' + file.key()).toUtf8() + '"'))
                session::say(QStringLiteral("bare %1 at call %2").arg(file.key()).arg(calls));
        }
        return 0;
    };
    write(driver);
    EveryCall::before = nullptr;
    session::say(QStringLiteral("met %1 changed files at %2 calls").arg(met).arg(calls));
}

/** The disk of the old values is full, but for so many of them. */
void writeOntoAFullDisk(WindowDriver &driver, int stored)
{
    prepare(driver);
    int left = stored;
    EveryCall::before = [&left](std::string_view call, const char *) {
        return call == "write" && isOfValues(EveryCall::file) && left-- <= 0 ? ENOSPC : 0;
    };
    write(driver);
    EveryCall::before = nullptr;
    for (int row = 0; row < int(std::size(names)); ++row)
        session::say(QStringLiteral("status ") + driver.cell(row, window::PictureModel::Status));
}

/** Reverts the run of the log, as a person would after the crash. */
void revert(WindowDriver &driver)
{
    session::say(QStringLiteral("told ") + driver.text("statusText"));
    driver.show("log");
    auto *table = driver.control<window::LogTable>("logTable");
    auto *runs = driver.control<window::RunList>("logRuns");
    driver.waitFor([&] { return !table->isReading(); });
    session::say(QStringLiteral("rows %1").arg(table->model()->rowCount()));
    session::say(QStringLiteral("started"));
    if (table->model()->rowCount() == 0)
        return;
    // The oldest one: a revert that was killed is a run of the log too.
    runs->setCurrentIndex(runs->model()->index(runs->model()->rowCount() - 1, 0));
    auto *button = driver.control<QAbstractButton>("logUndo");
    driver.waitFor([&] { return button->isEnabled(); });
    driver.click("logUndo");
    driver.waitFor([&] { return driver.text("statusText").contains(QStringLiteral("reverted")); }, 60'000);
    session::say(QStringLiteral("reverted ") + driver.text("statusText"));
}

int act(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString does = arguments.value(3);
    const int endAt = arguments.value(4).toInt();
    jobs::WorkerDesk::ofProcess().setSize(2);
    auto driver = WindowDriver::started(arguments.value(2));
    if (does == QLatin1String("watch")) {
        watch(*driver);
    } else if (does.startsWith(QLatin1String("full "))) {
        writeOntoAFullDisk(*driver, does.mid(5).toInt());
    } else if (does == QLatin1String("write")) {
        prepare(*driver);
        session::Calls::endBefore(endAt);
        write(*driver);
        session::say(QStringLiteral("calls %1").arg(session::Calls::count()));
    } else {
        session::Calls::endBefore(endAt);
        revert(*driver);
        session::say(QStringLiteral("calls %1").arg(session::Calls::count()));
    }
    EveryCall::before = nullptr;
    driver.reset();
    return 0;
}

} // namespace

/** The window is killed at any moment while fields are written or reverted: whatever was written can be reverted. */
class KilledFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void oldValuesAreThereBeforeAnyEdit();
    void revertsAfterAKillAtAnyCall();
    void revertsAfterAKillAtAnyMoment();
    void revertsAfterAKillOfReverting();
    void writesNothingThatCannotBeReverted();
    void writesOnWhereOnlyOneCannotBeReverted();

private:
    static void addPictures(const Home &home)
    {
        int size = 40;
        for (const char *name : names)
            QVERIFY(pictures::gradient(size += 8, 30).save(home.input() + u'/' + QString::fromLatin1(name)));
    }
    void revertAll(const Home &home, const QMap<QString, QByteArray> &before, const QString &told, int killedAt = 0);
    static QStringList recordsOf(const Home &home)
    {
        return QDir(home.data() + QStringLiteral("/metadata-runs")).entryList(QDir::Files);
    }

    int m_calls = 0;
    int m_runMs = 0;
    int m_changed = 0; ///< of the tries, those that had changed a picture
};

/** What a person sees: hidden files that a kill leaves are swept later. */
static QMap<QString, QByteArray> shown(const Home &home)
{
    QMap<QString, QByteArray> all = Home::files(home.input());
    for (const QString &name : all.keys())
        if (name.startsWith(u'.'))
            all.remove(name);
    return all;
}

void KilledFields::initTestCase()
{
    const Home home;
    addPictures(home);
    const Ended ended = home.window(QStringLiteral("write"));
    QVERIFY2(ended.line("summary ").startsWith(QStringLiteral("6 pictures changed")),
             qPrintable(ended.said.join(u'\n')));
    m_calls = ended.line("calls ").toInt();
    m_runMs = std::max(1, ended.workMs);
    QVERIFY(m_calls > 4 * int(std::size(names)));
    QVERIFY(recordsOf(home).isEmpty());
    qInfo("a run takes %d ms and changes the disk %d times", m_runMs, m_calls);
}

void KilledFields::oldValuesAreThereBeforeAnyEdit()
{
    const Home home;
    addPictures(home);
    const Ended ended = home.window(QStringLiteral("watch"));
    QVERIFY2(!ended.has("bare "), qPrintable(ended.said.join(u'\n')));
    QVERIFY2(ended.line("met ").section(u' ', 0, 0).toInt() > int(std::size(names)),
             qPrintable(ended.said.join(u'\n')));
}

void KilledFields::revertAll(const Home &home, const QMap<QString, QByteArray> &before, const QString &told,
                             int killedAt)
{
    const bool isChanged = shown(home) != before;
    m_changed += isChanged;
    Ended ended = home.window(QStringLiteral("revert"), {-1, killedAt});
    QString all = told + QStringLiteral("\n") + ended.said.join(u'\n');
    if (ended.isKilled) {
        ended = home.window(QStringLiteral("revert"));
        all += QStringLiteral("\nagain\n") + ended.said.join(u'\n');
    }
    QVERIFY2(shown(home) == before, qPrintable(all + u'\n' + shown(home).keys().join(u' ')));
    QVERIFY2(!ended.line("reverted ").contains(QStringLiteral("problem")), qPrintable(all));
    QVERIFY2(recordsOf(home).isEmpty(), qPrintable(all));
}

void KilledFields::revertsAfterAKillAtAnyCall()
{
    const int stride = std::max(1, m_calls / tests::repetitions(4, 30));
    int tries = 0;
    m_changed = 0;
    for (int call = 1 + QRandomGenerator::global()->bounded(stride); call <= m_calls; call += stride, ++tries) {
        const Home home;
        addPictures(home);
        const auto before = shown(home);
        const Ended ended = home.window(QStringLiteral("write"), {-1, call});
        QTRY_VERIFY(home.workers().isEmpty());
        revertAll(
            home, before,
            QStringLiteral("killed before change %1 of %2: %3").arg(call).arg(m_calls).arg(ended.said.join(u'|')));
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("%d kills, %d of them after a picture was changed", tries, m_changed);
    QVERIFY(m_changed > 0);
}

void KilledFields::revertsAfterAKillAtAnyMoment()
{
    const int rounds = tests::repetitions(1, 30);
    for (int i = 0; i < rounds; ++i) {
        const Home home;
        addPictures(home);
        const auto before = shown(home);
        const int after = QRandomGenerator::global()->bounded(m_runMs * 11 / 10 + 1);
        home.window(QStringLiteral("write"), {after, 0});
        QTRY_VERIFY(home.workers().isEmpty());
        revertAll(home, before, QStringLiteral("killed after %1 of %2 ms").arg(after).arg(m_runMs));
        if (QTest::currentTestFailed())
            return;
    }
}

void KilledFields::revertsAfterAKillOfReverting()
{
    int calls = 0;
    {
        const Home home;
        addPictures(home);
        home.window(QStringLiteral("write"));
        calls = home.window(QStringLiteral("revert")).line("calls ").toInt();
        QVERIFY(calls > int(std::size(names)));
    }
    const int stride = std::max(1, calls / tests::repetitions(2, 20));
    for (int call = 1 + QRandomGenerator::global()->bounded(stride); call <= calls; call += stride) {
        const Home home;
        addPictures(home);
        const auto before = shown(home);
        home.window(QStringLiteral("write"));
        revertAll(home, before, QStringLiteral("reverting killed before change %1 of %2").arg(call).arg(calls), call);
        if (QTest::currentTestFailed())
            return;
    }
}

void KilledFields::writesNothingThatCannotBeReverted()
{
    const Home home;
    addPictures(home);
    const auto before = shown(home);
    const Ended ended = home.window(QStringLiteral("full 0"));
    QVERIFY2(shown(home) == before, qPrintable(ended.said.join(u'\n')));
    QVERIFY2(ended.line("summary ").contains(QStringLiteral("6 problems")), qPrintable(ended.said.join(u'\n')));
    QVERIFY2(ended.line("status ").contains(QStringLiteral("its old values cannot be kept")),
             qPrintable(ended.said.join(u'\n')));
}

void KilledFields::writesOnWhereOnlyOneCannotBeReverted()
{
    const Home home;
    addPictures(home);
    const auto before = shown(home);
    const Ended ended = home.window(QStringLiteral("full 3"));
    QVERIFY2(ended.line("summary ").startsWith(QStringLiteral("3 pictures changed · 3 problems")),
             qPrintable(ended.said.join(u'\n')));
    revertAll(home, before, ended.said.join(u'\n'));
}

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--window") == 0)
        return act(argc, argv);
    return tests::mainWithoutWindows<KilledFields>(argc, argv);
}

#include "tst_killed_fields.moc"
