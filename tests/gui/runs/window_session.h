#pragma once

#include "tests/gui/support/window_driver.h"
#include "tests/support/every_call.h"

#include "app/window/controls/segmented_control.h"
#include "jobs/desk/worker_desk.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QProcess>
#include <QTest>
#include <QTimer>

#include <csignal>
#include <cstdio>

/**
 * Windows in separate processes, one after the other in one home, each of which may be killed at any moment. The program of the test
 * is started again as `PROGRAM --window HOME DOES CALL`; it ends itself before the CALLth call that changes the disk, or never for 0.
 * To be included once in a program.
 */
namespace session {

/** Changes of the disk after the work has begun, and before which of them this process ends. */
class Calls
{
public:
    static void endBefore(int call)
    {
        EveryCall::before = [call](std::string_view name, const char *) {
            if (::gettid() == ::getpid() && (name != "write" || isOfADisk(EveryCall::file)) && ++s_count == call)
                ::kill(::getpid(), SIGKILL);
            return 0;
        };
    }
    /** From that call on the disk is full instead, as far as this process writes to it; 0: never. */
    static void fillBefore(int call)
    {
        EveryCall::before = [call](std::string_view name, const char *) {
            static constexpr std::string_view needing[] = {"write",           "mkdir",   "open", "open without a name",
                                                           "copy_file_range", "symlink", "link", "linkat"};
            if (::gettid() != ::getpid() || (name == "write" && !isOfADisk(EveryCall::file)) ||
                std::find(std::begin(needing), std::end(needing), name) == std::end(needing))
                return 0;
            return ++s_count >= call && call > 0 ? ENOSPC : 0;
        };
    }
    static int count() { return s_count; }

private:
    /** Not a pipe or a socket. */
    static bool isOfADisk(int file)
    {
        struct stat found = {};
        return ::fstat(file, &found) == 0 && S_ISREG(found.st_mode);
    }

    static inline int s_count = 0;
};

inline void say(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

/** Copies into folders below "sorted", beside the folder of the pictures. */
inline void chooseCopies(WindowDriver &driver)
{
    const QString target = driver.folder() + QStringLiteral("/sorted");
    QDir().mkpath(target);
    WindowDriver::answerPanels({target});
    driver.choose("sortDestination", QStringLiteral("choose"));
    auto *kind = driver.control<window::SegmentedControl>("sortKind");
    QTest::keyClick(kind, Qt::Key_Home);
    QTest::keyClick(kind, Qt::Key_Right);
}

/** does: "begin" for Resize, "replace", or the name of an action */
inline void begin(WindowDriver &driver, int endAt, const QString &does)
{
    jobs::WorkerDesk::ofProcess().setSize(2);
    if (does != QLatin1String("begin") && does != QLatin1String("replace"))
        driver.show(qPrintable(does));
    driver.drop({driver.inputFolder()});
    if (does == QLatin1String("replace")) {
        driver.choose("destination", QStringLiteral("source"));
        driver.choose("ifTaken", QStringLiteral("replace"));
        WindowDriver::answerNextQuestion(QStringLiteral("Replace"));
    }
    if (does == QLatin1String("sort"))
        chooseCopies(driver);
    driver.waitFor([&] { return driver.control<QAbstractButton>("startButton")->isEnabled(); });
    say(QStringLiteral("started"));
    Calls::endBefore(endAt);
    driver.click("startButton");
    say(QStringLiteral("summary ") + driver.waitForSummary());
}

inline void answer(WindowDriver &driver, int endAt, const char *button)
{
    const bool isAsked = driver.control<QWidget>("interruptedBar")->isVisible();
    say(isAsked ? QStringLiteral("asked ") + driver.text("interruptedNote") : QStringLiteral("not asked"));
    say(QStringLiteral("started"));
    Calls::endBefore(endAt);
    if (isAsked)
        driver.click(button);
    if (isAsked && button == QByteArray("interruptedGo"))
        say(QStringLiteral("summary ") + driver.waitForSummary());
}

/** Undoes the last run, of this start or an earlier one; says where the window asks about that, and answers. */
inline void undo(WindowDriver &driver)
{
    say(driver.control<QWidget>("interruptedBar")->isVisible() ? QStringLiteral("asked") : QStringLiteral("not asked"));
    auto *action = driver.control<QAction>("undoAction");
    say(action->isEnabled() ? QStringLiteral("undoes ") + action->text() : QStringLiteral("nothing to undo"));
    if (!action->isEnabled())
        return;
    QTimer look;
    look.callOnTimeout([] {
        if (qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            say(QStringLiteral("question"));
    });
    look.start(20);
    WindowDriver::answerNextQuestion(QStringLiteral("Undo It"));
    action->trigger();
    say(QStringLiteral("summary ") + driver.waitForSummary());
}

inline int act(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString does = arguments.value(3);
    const int endAt = arguments.value(4).toInt();
    auto driver = WindowDriver::started(arguments.value(2));
    if (does == QLatin1String("continue"))
        answer(*driver, endAt, "interruptedGo");
    else if (does == QLatin1String("leave"))
        answer(*driver, endAt, "interruptedLeave");
    else if (does == QLatin1String("undo"))
        undo(*driver);
    else
        begin(*driver, endAt, does);
    driver.reset();
    say(QStringLiteral("calls %1").arg(Calls::count()));
    return 0;
}

/** The outcome for a window. */
struct Ended
{
    bool isKilled = false;
    QStringList said;
    int workMs = 0; ///< how long its work took

    QString line(const char *begin) const
    {
        for (const QString &each : said)
            if (each.startsWith(QLatin1String(begin)))
                return each.mid(qsizetype(qstrlen(begin)));
        return {};
    }
    bool has(const char *begin) const
    {
        return std::any_of(said.begin(), said.end(),
                           [begin](const QString &each) { return each.startsWith(QLatin1String(begin)); });
    }
};

/** When a window is killed: so many milliseconds after it has begun its work, or before a change of the disk. */
struct Moment
{
    int afterMs = -1;
    int beforeCall = 0;
};

/** Everything that one window after the other finds and leaves. */
class Home
{
public:
    Home() { QDir(m_folder.path()).mkdir(QStringLiteral("in")); }

    QString path() const { return m_folder.path(); }
    QString input() const { return path() + QStringLiteral("/in"); }

    /** So many JPEGs of different sizes and colours, and what is in the folder then. */
    QMap<QString, QByteArray> addPictures(int count) const
    {
        for (int i = 0; i < count; ++i) {
            QImage image(500 + i, 300, QImage::Format_RGB32);
            image.fill(qRgb(90, 20 * i, 7));
            if (!image.save(QStringLiteral("%1/p%2.jpg").arg(input()).arg(i)))
                qFatal("no picture");
        }
        return files(input());
    }

    Ended window(const QString &does, Moment moment = {}) const
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--window"), path(), does, QString::number(moment.beforeCall)});
        Ended ended;
        QElapsedTimer since;
        const auto take = [&] {
            for (const QByteArray &line : process.readAllStandardOutput().split('\n'))
                if (!line.isEmpty())
                    ended.said.append(QString::fromUtf8(line));
            if (!since.isValid() && ended.said.contains(QStringLiteral("started")))
                since.start();
            if (ended.workMs == 0 && ended.has("summary "))
                ended.workMs = int(since.elapsed());
        };
        constexpr int mostMs = 120'000;
        QElapsedTimer whole;
        whole.start();
        while (process.state() != QProcess::NotRunning && whole.elapsed() < mostMs) {
            const bool isWaiting = since.isValid() && moment.afterMs >= 0;
            const int left = isWaiting ? int(moment.afterMs - since.elapsed()) : 1000;
            if (left <= 0 && isWaiting)
                ::kill(pid_t(process.processId()), SIGKILL);
            process.waitForReadyRead(isWaiting && left > 0 ? left : 1000);
            take();
        }
        process.waitForFinished(1000);
        take();
        ended.isKilled = process.exitStatus() == QProcess::CrashExit;
        return ended;
    }

    /** What is in a folder and below it, hidden ones too, by its path in there. */
    static QMap<QString, QByteArray> files(const QString &folder)
    {
        QMap<QString, QByteArray> all;
        QDirIterator found(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (found.hasNext()) {
            QFile file(found.next());
            const bool isFile = found.fileInfo().isFile() && file.open(QIODevice::ReadOnly);
            all.insert(file.fileName().mid(folder.size() + 1), isFile ? file.readAll() : QByteArray("no file"));
        }
        return all;
    }

    QString data() const { return path() + QStringLiteral("/.local/share/quorlin"); }
    QMap<QString, QByteArray> trash() const { return files(path() + QStringLiteral("/.local/share/Trash/files")); }

    /** What the log has of each row but times and the name of its run, in its order. */
    QList<QJsonObject> logRows() const
    {
        QFile log(data() + QStringLiteral("/log.jsonl"));
        QList<QJsonObject> rows;
        if (!log.open(QIODevice::ReadOnly))
            return rows;
        for (const QByteArray &line : log.readAll().split('\n')) {
            if (line.isEmpty())
                continue;
            QJsonObject row = QJsonDocument::fromJson(line).object();
            if (row.isEmpty())
                continue; // it was being written
            for (const char *passing : {"date", "run"})
                row.remove(QLatin1String(passing));
            for (const char *path : {"inputPath", "outputPath"}) // each home has a different name
                row[QLatin1String(path)] = row[QLatin1String(path)].toString().remove(input());
            rows.append(row);
        }
        return rows;
    }

    /** Records of runs and lists that ended in order are not there. */
    QStringList records() const
    {
        return QDir(data() + QStringLiteral("/runs")).entryList(QDir::Files) +
               QDir(data() + QStringLiteral("/lists")).entryList(QDir::Files);
    }

    /** The workers of windows of this home that live. */
    QStringList workers() const
    {
        QStringList found;
        QDirIterator processes(QStringLiteral("/proc"), {QStringLiteral("[0-9]*")}, QDir::Dirs);
        while (processes.hasNext()) {
            QFile environment(processes.next() + QStringLiteral("/environ"));
            const QString program = QFile::symLinkTarget(processes.filePath() + QStringLiteral("/exe"));
            if (program == QStringLiteral(QUORLIN_WORKER) && environment.open(QIODevice::ReadOnly) &&
                environment.readAll().contains(QFile::encodeName(path())))
                found.append(processes.fileName());
        }
        return found;
    }

private:
    QTemporaryDir m_folder{QDir::tempPath() + QStringLiteral("/quorlin-XXXXXX")};
};

} // namespace session
